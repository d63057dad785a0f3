"""The summary of the project in the main window, and the places of windows over restarts, with keys only."""

import subprocess

from orby import PATIENCE, DesktopTest, press_keys, until


class Summary(DesktopTest):
    def close_parameters(self, run):
        parameters = run.window("Parameters")
        press_keys("Escape")
        parameters.wait_gone()

    def test_leads_from_an_example_to_its_results(self):
        run = self.start()
        main = run.main()
        until(lambda: main.shows("lstExamples"), "the examples")
        run.keys("alt+e", "End", "Return")
        self.close_parameters(run)
        main = run.main()
        until(lambda: main.shows("lstVerdicts"), "the judgements")
        self.assertEqual(main.control("lblProject").name, "Cinder Hollow, fault zone")
        self.assertFalse(main.shows("lstExamples"))
        run.keys("alt+r")
        results = run.window("Calculation Results")
        self.assertEqual(results.node.name, "Calculation Results - weak-roof.ORB")
        press_keys("Escape")
        results.wait_gone()
        run.main().wait_active()

    def test_has_help_of_its_own(self):
        run = self.start()
        until(lambda: run.main().shows("lstExamples"), "the examples")
        run.keys("alt+e", "F1")
        self.assertEqual(run.window("Help").node.name, "Help")

    def test_finds_the_window_in_its_size_again(self):
        run = self.start()
        run.main().wait_active()
        window = subprocess.run(["xdotool", "getactivewindow"], capture_output=True, timeout=PATIENCE).stdout.strip()
        subprocess.run(["xdotool", "windowsize", window, "701", "503"], timeout=PATIENCE, check=True)
        until(lambda: tuple(run.main().node.box[2:]) == (701, 503), "the new size")
        run.quit()
        run.wait_end()
        self.assertIn("[Windows]", self.configuration())
        again = self.start()
        until(lambda: tuple(again.main().node.box[2:]) == (701, 503), "the size of the last run")
