"""The chart for the wall: chosen and read out by keys, and its page as a PDF file."""

from orby import DesktopTest, press_keys, until, words_of


class DesignChart(DesktopTest):
    def test_is_read_out_and_printed_by_keys(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("Command1")
        run.main().wait_active()
        run.keys("alt+s", "d")
        chart = run.window("Design Chart")
        chart.wait_active()
        self.assertTrue(chart.label("lblRead").startswith("This design: Depth of Cover "), chart.label("lblRead"))

        chart.focus("picChart")
        press_keys("Right", "Up")
        until(lambda: chart.label("lblRead").startswith("Depth of Cover "), "the point")
        press_keys("Home")
        until(lambda: chart.label("lblRead").startswith("This design: "), "the design")

        chart.type("txtAcrossLow", "900000")
        until(lambda: "must be below" in chart.label("lblRead"), "the message")
        chart.type("txtAcrossLow", "100")
        until(lambda: chart.label("lblRead").startswith("This design: "), "the chart")
        chart.press("cmdSavePage")
        run.give_file_name("Save Page", self.path("wall.pdf"))

        words = " ".join(until(lambda: words_of(self.path("wall.pdf")), "the PDF file"))
        for part in ("Suggested PSUP", "Company", "Checker", "this design", "Depth of Cover (ft)"):
            self.assertIn(part, words)
        chart.press("cmdClose")
        chart.wait_gone()
