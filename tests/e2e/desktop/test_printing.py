"""Printing to a PDF file on a machine without a printer."""

import re
import subprocess

import atspi
from orby import DesktopTest, companion, press_keys, until, words_of, xdotool


class Printing(DesktopTest):
    def test_all_pages_go_to_a_pdf_file_as_text(self):
        example = self.example("weak-roof")
        run = self.start(example)
        run.window("Parameters").press("cmdresults")
        run.window("Calculation Results").press("Command6")
        dialog = run.window("Print")

        press_keys("Return")

        dialog.wait_gone()
        words = until(lambda: words_of(self.path("weak-roof.pdf")), "the PDF file")
        self.assertEqual(words[:3], ["File", "Name:", "weak-roof.ORB"])
        # Each sheet repeats the header between the lines of the report.
        rest = iter(words)
        for word in companion("report", example).split():
            self.assertIn(word, rest)


def first_words(pdf):
    """Returns the words of the first page of a PDF file with position and size, or nothing while it is incomplete."""
    answer = subprocess.run(["pdftotext", "-bbox", "-l", "1", pdf, "-"], capture_output=True)
    return re.findall("<word .*</word>", answer.stdout.decode()) if answer.returncode == 0 else None


def picture_of(pdf):
    """Returns a small picture of the first page of a PDF file."""
    return subprocess.run(["pdftoppm", "-r", "50", "-l", "1", pdf], capture_output=True, check=True).stdout


def field_with(dialog, text):
    """Returns the field of the dialog with this text."""
    for node in dialog.node.walk():
        try:
            if node.text == text:
                return node
        except atspi.Gone:
            continue  # it has no text
    return None


class ChartThenReport(DesktopTest):
    """Prints in turn a chart, the report of the results window, and the report of the main window."""

    def print_to(self, run, proposed, name):
        """Accepts the printer dialog with a file of this name in the suggested folder.

        The program runs in the home folder, so a bare name is enough. For a full path the field would offer other files.
        """
        dialog = run.window("Print")
        field = until(lambda: field_with(dialog, self.path(proposed)), f"the proposed file {proposed}")
        field.grab_focus()
        until(lambda: field.has(atspi.FOCUSED), "the field of the file name")
        xdotool("key", "ctrl+a", "type", "--delay", "2", name)
        until(lambda: field.text == name, "the name of the file")
        # Enter would go to the file list that may have opened below the field.
        (button,) = [node for node in dialog.node.walk() if node.role == atspi.PUSH_BUTTON and node.name == "Print"]
        button.act("Press")
        dialog.wait_gone()
        return self.path(name)

    def print_report(self, run, name):
        """Prints the results of a run with an open parameters dialog."""
        run.window("Parameters").press("cmdresults")
        results = run.window("Calculation Results")
        results.press("Command6")
        return results, self.print_to(run, "weak-roof.pdf", name)

    def test_all_have_the_same_text_and_size_as_in_a_new_run(self):
        example = self.example("weak-roof")
        fresh_run = self.start(example)
        _, fresh = self.print_report(fresh_run, "fresh.pdf")
        until(lambda: first_words(fresh), "the report of a fresh run")
        fresh_run.kill()

        run = self.start(example)
        parameters = run.window("Parameters")
        parameters.press("cmdresults")
        results = run.window("Calculation Results")
        results.choose_curve(1)
        graph = run.window("Graph")
        graph.choose("File", "Print")
        chart = self.print_to(run, "weak-roof Suggested PSUP vs Depth of Cover.pdf", "chart.pdf")
        graph.choose("File", "Exit")
        graph.wait_gone()
        results.press("Command6")
        report = self.print_to(run, "weak-roof.pdf", "report.pdf")
        results.press("Command1")
        results.wait_gone()
        parameters.press("Command1")
        parameters.wait_gone()
        run.keys("ctrl+p")
        printed = self.print_to(run, "weak-roof.pdf", "printed.pdf")

        expected = until(lambda: first_words(fresh), "the first report")
        self.assertEqual(until(lambda: first_words(report), "the second report"), expected)
        self.assertEqual(until(lambda: first_words(printed), "the report of the main window"), expected)
        self.assertEqual(picture_of(report), picture_of(fresh))
        self.assertEqual(picture_of(printed), picture_of(fresh))
        self.assertEqual(words_of(printed), words_of(fresh))
        self.assertIn("PSUP", until(lambda: words_of(chart), "the chart"))
        properties = subprocess.run(["pdfinfo", printed], capture_output=True).stdout.decode()
        self.assertIn("weak-roof.ORB", properties)
        self.assertIn("Orby Roof Support Workbench", properties)
