"""A report on paper, where there is no printer but a file."""

import subprocess

from orby import DesktopTest, companion, press_keys, until


def words_of(pdf):
    """The words of a PDF file; nothing while it is not whole."""
    answer = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True)
    return answer.stdout.decode().split() if answer.returncode == 0 else None


class Printing(DesktopTest):
    def test_all_pages_go_to_a_pdf_file_as_text(self):
        example = self.example("weak-roof")
        run = self.start(example)
        run.window("Parameters").press("cmdresults")
        run.window("Calculation Results").press("Command6")
        dialog = run.window("Print")

        press_keys("Return")

        dialog.wait_gone()
        words = until(lambda: words_of(self.path("print.pdf")), "the PDF file")
        self.assertEqual(words[:3], ["File", "Name:", "weak-roof.ORB"])
        # Each sheet has its header between the lines of the report.
        rest = iter(words)
        for word in companion("report", example).split():
            self.assertIn(word, rest)
