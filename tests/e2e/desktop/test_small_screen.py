"""All windows of the program fit on a screen of 1024 x 600 with their frames."""

import re
import subprocess

from orby import PATIENCE, DesktopTest, Window, press_keys, take_picture, until

WIDTH, HEIGHT = 1024, 600


def asked(*words):
    return subprocess.run(words, capture_output=True, check=True, timeout=PATIENCE).stdout.decode()


def frame_in_front():
    """Returns left, top, right and bottom of the active window with the window manager's frame; None while it has no
    frame."""
    window = asked("xdotool", "getactivewindow").strip()
    place = dict(line.strip().split(":", 1) for line in asked("xwininfo", "-id", window).split("\n") if ": " in line)
    frame = re.search(r"= (\d+), (\d+), (\d+), (\d+)", asked("xprop", "-id", window, "_NET_FRAME_EXTENTS"))
    if not frame:
        return None
    left, right, top, bottom = map(int, frame.groups())
    x, y, width, height = (int(place[name]) for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width",
                                                        "Height"))
    return x - left, y - top, x + width + right, y + height + bottom


def is_on_screen(frame):
    return frame and frame[0] >= 0 and frame[1] >= 0 and frame[2] <= WIDTH and frame[3] <= HEIGHT


class SmallScreen(DesktopTest):
    def assert_fits(self, window):
        window.wait_active()
        take_picture("small-screen-" + re.sub(r"\W+", "-", window.node.name.split(":")[0]))
        until(lambda: is_on_screen(frame_in_front()), f"all of {window.node.name!r} on the screen, {frame_in_front()}")

    def test_shows_the_whole_main_window(self):
        run = self.start()
        self.assert_fits(run.main())
        run.keys("alt+u", "w")
        self.assert_fits(run.main())

    def test_shows_the_whole_of_each_dialog_of_the_menus(self):
        run = self.start()
        for menu, entry in (
                ("Input", "Project Description..."),
                ("Input", "Project Parameters..."),
                ("Input", "Cost Parameters..."),
                ("Utilities", "Settings..."),
                ("Utilities", "Options..."),
                ("Utilities", "Unit Conversions..."),
                ("Utilities", "Backups..."),
                ("File", "View Source Files..."),
                ("Help", "Resource Files..."),
                ("Help", "Program Updates...")):
            run.main().wait_active()
            run.main().choose(menu, entry)
            dialog = self.new_dialog(run)
            self.assert_fits(dialog)
            press_keys("Escape")
            dialog.wait_gone()

    def test_shows_the_whole_of_each_page_of_the_study(self):
        run = self.start()
        run.main().choose("Study", "What Would Hold...")
        study = run.window("What Would Hold")
        for page in ("Least Changes", "Cheapest Patterns", "Prices"):
            study.choose_tab("tabStudy", page)
            self.assert_fits(study)

    def new_dialog(self, run):
        def find():
            for node in run.windows():
                if not node.name.startswith("Orby Roof Support Workbench"):
                    return Window(node)
            return None

        return until(find, "a dialog")

    def test_shows_the_whole_of_results_and_help(self):
        run = self.start()
        run.main().choose("Input", "Project Parameters...")
        parameters = run.window("Parameters")
        parameters.press("cmdCMRR")
        estimator = run.window("The Coal Mine Roof Rating (CMRR) Estimator for HAMB")
        self.assert_fits(estimator)
        press_keys("Escape")
        estimator.wait_gone()
        parameters.focus("txtDepthofCover")
        press_keys("F1")
        self.assert_fits(run.window("Help"))
        take_picture("small-screen-help")
        press_keys("Escape")
        parameters.wait_active()
        parameters.press("cmdresults")
        results = run.window("Calculation Results")
        self.assert_fits(results)
        results.choose_curve(1)
        graph = run.window("Graph")
        self.assert_fits(graph)
        graph.choose("Options", "Basic Options")
        self.assert_fits(run.window("Graph Parameters and Options"))

    def test_shows_the_whole_of_disclaimer_and_preview(self):
        run = self.start(accepts=False)
        disclaimer = run.window("Disclaimer")
        self.assert_fits(disclaimer)
        disclaimer.press("Command1")
        disclaimer.wait_gone()
        run.main().wait_active()
        run.main().choose("File", "Print Preview...")
        run.answer("Current file is empty. Continue?", "Yes")
        self.assert_fits(run.window("Print Preview"))
