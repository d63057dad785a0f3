"""Projects that were dropped or overwritten are restored from the backups."""

import os

from orby import DesktopTest, press_keys, until


class Backups(DesktopTest):
    def kept(self):
        folder = os.path.join(self.data, "Backups")
        names = os.listdir(folder) if os.path.isdir(folder) else []
        return sorted(name for name in names if not name.endswith(".about"))

    def change_depth(self, run, depth):
        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        parameters.type("txtDepthofCover", depth)
        parameters.press("Command2")
        parameters.wait_gone()

    def open_file(self):
        self.file = self.copy_example("development-entry", "entry.ORB")
        run = self.start(self.file)
        parameters = run.window("Parameters")
        parameters.press("Command1")
        parameters.wait_gone()
        return run

    def test_a_project_that_new_dropped_is_restored_by_the_keyboard(self):
        run = self.open_file()
        self.change_depth(run, "777")
        run.keys("ctrl+n")
        parameters = run.window("Parameters")
        parameters.press("Command1")
        parameters.wait_gone()
        until(lambda: run.caption().endswith("Untitled"), "the new project")
        self.assertEqual(len(self.kept()), 1)

        run.keys("alt+u", "b")
        backups = run.window("Backups")
        self.assertEqual(backups.text("txtDepthofCover"), "777 (ft)")
        press_keys("Return")
        backups.wait_gone()

        until(lambda: run.caption().endswith("entry.ORB*"), "the project under its old name with its mark")
        run.keys("ctrl+s")
        until(lambda: run.caption().endswith("entry.ORB"), "the end of the mark")
        with open(self.file, encoding="utf-8", newline="") as file:
            self.assertIn("\r\n777\r\n", file.read())

    def test_the_values_typed_before_escape_are_restored(self):
        run = self.open_file()
        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        parameters.type("txtDepthofCover", "777")
        press_keys("Escape")
        parameters.wait_gone()

        run.keys("alt+u", "b")
        backups = run.window("Backups")
        self.assertEqual(backups.text("txtDepthofCover"), "777 (ft)")
        press_keys("Escape")
        backups.wait_gone()
        self.assertTrue(run.caption().endswith("entry.ORB"))
