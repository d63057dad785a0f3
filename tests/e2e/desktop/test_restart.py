"""What the program keeps from one run to the next, and what it does not."""

import os

from orby import TITLE, DesktopTest, until, xdotool


class Restart(DesktopTest):
    def setUp(self):
        super().setUp()
        self.first = self.copy_example("development-entry", "first.ORB")
        self.second = self.copy_example("weak-roof", "second.ORB")
        run = self.start(self.first)
        self.leave_parameters(run)
        run.keys("ctrl+o")
        run.give_file_name("Open", self.second)
        self.leave_parameters(run)
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def leave_parameters(self, run):
        parameters = run.window("Parameters")
        parameters.press("Command1")
        parameters.wait_gone()
        run.main().wait_active()

    def edit_configuration(self, old, new):
        text = self.configuration()
        self.assertIn(old, text)
        with open(os.path.join(self.data, "ORBY.INI"), "w", encoding="cp1252", newline="") as file:
            file.write(text.replace(old, new))

    def quit(self, run):
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def test_finds_the_recent_files(self):
        run = self.start()

        run.main().choose("File", self.first)
        self.leave_parameters(run)

        self.assertTrue(run.caption().endswith("first.ORB"), run.caption())
        self.quit(run)
        self.assertIn(f"LastFileLong1={self.first}\r\n", self.configuration())
        self.assertIn(f"LastFileLong2={self.second}\r\n", self.configuration())

    def test_opens_the_last_file_when_the_settings_say_so(self):
        self.edit_configuration("LoadLastInputFile=0", "LoadLastInputFile=1")

        run = self.start()
        self.leave_parameters(run)

        self.assertTrue(run.caption().endswith("second.ORB"), run.caption())

    def test_resets_the_options(self):
        self.edit_configuration("ShowInputScreenOnLoad=1", "ShowInputScreenOnLoad=0")

        run = self.start(self.first)

        # The dialog still opens, because the options are stored under another name than the one that is read.
        self.leave_parameters(run)
        self.assertTrue(run.caption().endswith("first.ORB"), run.caption())

    def test_replaces_a_configuration_of_another_version(self):
        self.edit_configuration("INIFileVersion=201030", "INIFileVersion=201031")
        self.edit_configuration("DisplayFontSize=10", "DisplayFontSize=14")

        run = self.start()

        self.assertEqual(run.caption(), f"{TITLE}: Untitled")
        self.assertIn("INIFileVersion=201030\r\n", self.configuration())
        self.assertIn("DisplayFontSize=10\r\n", self.configuration())
        self.assertIn("[FileMenu]\r\nMaxLastFiles=0\r\n", self.configuration())


class WindowPlace(DesktopTest):
    def test_is_kept_when_a_dialog_hides_the_main_window(self):
        run = self.start()
        run.main().wait_active()
        before = self.settled(run)
        xdotool("getactivewindow", "windowsize", 700, 500, "windowmove", 90, 70)
        until(lambda: self.place(run)[2:] == (700, 500) and self.place(run)[0] < before[0], "the window elsewhere")
        moved = self.settled(run)

        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        self.assertIsNone(self.main_on_screen(run))
        parameters.press("Command1")
        parameters.wait_gone()

        run.main().wait_active()
        until(lambda: self.place(run) == moved, f"the window at {moved}, it is at {self.place(run)}")

    def place(self, run):
        return run.main().node.box

    def settled(self, run):
        """Returns the position after the window manager has settled."""
        last = None
        def same_twice():
            nonlocal last
            found, last = last, self.place(run)
            return found == last
        until(same_twice, "the window at rest")
        return last

    def main_on_screen(self, run):
        return next((node for node in run.windows() if node.name.startswith(TITLE)), None)
