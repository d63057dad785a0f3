"""The help beside the dialogs."""

import subprocess

import atspi
from orby import PATIENCE, DesktopTest, press_keys, take_picture, until, xdotool


class Help(DesktopTest):
    def page(self, window):
        (page,) = [node for node in window.node.walk() if node.name == "Page"]
        return page.text

    def wait_page(self, window, start):
        until(lambda: self.page(window).startswith(start), f"the page {start!r}")

    def click_line(self, window, title):
        (line,) = [node for node in window.node.walk() if node.name == title and node.role != atspi.FRAME]
        left, top, width, height = line.box
        xdotool("mousemove", left + width // 2, top + height // 2, "click", "1")

    def uppermost(self):
        """Returns the title of the topmost window in the window manager's stack."""
        numbers = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], capture_output=True, check=True,
                                 timeout=PATIENCE).stdout.decode().partition("#")[2].split(",")
        return subprocess.run(["xdotool", "getwindowname", numbers[-1].strip()], capture_output=True, check=True,
                              timeout=PATIENCE).stdout.decode().strip()

    def test_stays_usable_from_dialog_to_dialog(self):
        run = self.start()
        run.main().choose("File", "New")
        parameters = run.window("Parameters")
        parameters.focus("txtDepthofCover")

        press_keys("F1")
        window = run.window("Help")
        self.wait_page(window, "Project Parameters")
        take_picture("help-beside-parameters")
        self.click_line(window, "Welcome")
        self.wait_page(window, "Welcome")

        parameters.press("Command1")
        parameters.wait_gone()
        run.main().choose("Input", "Project Description...")
        description = run.window("Project Description")
        description.wait_active()
        self.assertEqual(self.uppermost(), "Project Description")
        window = until(lambda: run.find("Help"), "the help under the next dialog")
        xdotool("search", "--name", "^Help$", "windowactivate", "--sync")
        self.click_line(window, "How a design is made")
        self.wait_page(window, "How a design is made")

        press_keys("Escape")
        window.wait_gone()
        description.press("Command1")
        description.wait_gone()

    def test_opens_at_its_contents_and_ends_with_the_program(self):
        run = self.start()
        run.keys("F1")
        window = run.window("Help")
        self.wait_page(window, "Welcome")

        run.main().choose("File", "Exit")

        self.assertEqual(run.wait_end(), 0)
