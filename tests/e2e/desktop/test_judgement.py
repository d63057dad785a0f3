"""With keys alone an engineer sees what a design lacks, takes the cheapest pattern that holds, and prints the report."""

import subprocess
import time

import atspi
from orby import DesktopTest, companion, press_keys, until, words_of, xdotool

MOST_STOPS = 150  # presses of Tab before a control counts as out of reach
SHORT_PSUP = "Short: Actual PSUP"
PRICE = "9"  # dollars
PRICED_ROWS = 8
COLUMN_OF_10_FT = 5

# No pattern within the limits of a new search holds a roof that weak.
WIDER_LIMITS = (("txtNumberTo", "10"), ("txtSpacingFrom", "1"))


def has_focus_soon(node):
    """Returns whether a control gets the focus within the time that a key takes."""
    deadline = time.monotonic() + 0.15
    while time.monotonic() < deadline:
        if node.has(atspi.FOCUSED):
            return True
        time.sleep(0.01)
    return False


def tab_to(window, name):
    """Presses Tab until the focus is in a control."""
    window.wait_active()
    node = window.control(name)
    for _ in range(MOST_STOPS):
        if has_focus_soon(node):
            return node
        press_keys("Tab")
    raise AssertionError(f"{name} is out of reach of the Tab key")


def rows_of(window, name):
    """Returns the texts of a list."""
    return [node.name for node in window.control(name).children()]


def clipboard_types():
    """Returns the types in which the clipboard can be had."""
    answer = subprocess.run(["xclip", "-o", "-selection", "clipboard", "-t", "TARGETS"], capture_output=True)
    return answer.stdout


class Judgement(DesktopTest):
    def test_leads_from_a_weak_design_to_a_printed_report_by_keys_alone(self):
        file = self.copy_example("weak-roof", "weak roof.ORB")
        run = self.start()
        run.keys("ctrl+o")
        run.give_file_name("Open", file)
        parameters = run.window("Parameters")
        self.see_what_is_short(parameters)
        self.take_cheapest_pattern(run, parameters)
        self.look_at_drawing(parameters)
        self.print_report(run, parameters)

    def see_what_is_short(self, parameters):
        self.assertRegex(parameters.label("lblVerdicts"), r"^Judgements: \d+ short")
        verdicts = tab_to(parameters, "lstVerdicts")
        (row,) = [number for number, text in enumerate(rows_of(parameters, "lstVerdicts"))
                  if text.startswith(SHORT_PSUP)]
        press_keys("Home", *["Down"] * row)
        self.assertIn(verdicts.children()[row].name, companion("verdicts", self.path("weak roof.ORB")).splitlines())

    def take_cheapest_pattern(self, run, parameters):
        press_keys("alt+h")
        study = run.window("What Would Hold")
        tab_to(study, "grdChanges")
        press_keys("ctrl+Tab", "ctrl+Tab")
        self.type_prices(study)
        press_keys("ctrl+shift+Tab")
        for field, limit in WIDER_LIMITS:
            tab_to(study, field)
            xdotool("key", "ctrl+a", "type", "--delay", "2", limit)
            study.wait_text(field, limit)
        press_keys("alt+s")
        until(lambda: "hold" in study.label("lblFound"), "the end of the search")
        tab_to(study, "grdPatterns")
        press_keys("Return")
        study.wait_gone()
        parameters.wait_active()
        until(lambda: not self.is_short(parameters), "a PSUP that holds")

    @staticmethod
    def type_prices(study):
        """Types one price for each bolt of the table, in the stocked length that is long enough."""
        tab_to(study, "txtLengths")
        press_keys("Tab", *["Tab"] * COLUMN_OF_10_FT)
        for _ in range(PRICED_ROWS):
            xdotool("type", "--delay", "2", PRICE)
            press_keys("Down")

    @staticmethod
    def is_short(parameters):
        return any(text.startswith(SHORT_PSUP) for text in rows_of(parameters, "lstVerdicts"))

    @staticmethod
    def look_at_drawing(parameters):
        tab_to(parameters, "Image1")
        parameters.picture("judgement-drawing")
        press_keys("ctrl+c")
        until(lambda: b"image/png" in clipboard_types(), "the drawing on the clipboard")

    def print_report(self, run, parameters):
        length = parameters.text("txtBoltLengthPrimary")
        self.assertEqual(length, "10")
        tab_to(parameters, "cmdresults")
        press_keys("space")
        results = run.window("Calculation Results")
        tab_to(results, "Command6")
        press_keys("space")
        dialog = run.window("Print")
        press_keys("Return")
        dialog.wait_gone()
        words = " ".join(until(lambda: words_of(self.path("weak roof.pdf")), "the PDF file"))
        self.assertIn("Actual PSUP OK", words)
        self.assertRegex(words, r"Actual Roof Bolt Length\.+10\.0")
