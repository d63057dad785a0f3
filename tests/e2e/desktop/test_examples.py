"""The window and orby-cli give the same results for every example."""

import os

from orby import EXAMPLES, DesktopTest, companion, lines


def live_outputs(file):
    """Returns the outputs of the parameters dialog as orby-cli prints them, and whether the warnings show."""
    outputs = dict(line.split("=", 1) for line in companion("live", file).splitlines())
    warned = outputs.pop("txtMessage.Visible") == "1"
    return {name: text.replace("\\r\\n", "\n") for name, text in outputs.items()}, warned


class Examples(DesktopTest):
    def test_give_the_same_texts_as_orby_cli(self):
        names = sorted(name for name in os.listdir(EXAMPLES) if name.endswith(".ORB"))
        self.assertEqual(len(names), 6)
        run = self.start()
        for name in names:
            try:
                self.compare(run, os.path.join(EXAMPLES, name))
            except AssertionError as error:
                error.add_note(name)
                raise

    def compare(self, run, file):
        run.keys("ctrl+o")
        run.give_file_name("Open", file)
        parameters = run.window("Parameters")
        outputs, warned = live_outputs(file)
        self.assertEqual({name: parameters.text(name) for name in outputs}, outputs)
        self.assertEqual(parameters.shows("txtMessage"), warned)
        parameters.press("cmdresults")
        results = run.window("Calculation Results")
        for page in ("0", "1"):
            results.wait_text("RichTextBox1", lines(companion("report", "--page", page, file)))
            if page == "0":
                results.press("Command4")
        results.press("Command1")
        parameters.wait_active()
        parameters.press("Command1")
        parameters.wait_gone()
