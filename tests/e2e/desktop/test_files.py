"""Files are opened, refused, named oddly, and left with unsaved changes."""

import os

from orby import TITLE, DesktopTest, companion, until

SAVED = "development-entry"


class RefusedFile(DesktopTest):
    def test_is_reported_and_the_program_continues(self):
        letter = self.path("letter.ORB")
        with open(letter, "w", encoding="ascii") as file:
            file.write("Dear colleague,\nthe roof has been quiet since Monday.\n")

        run = self.start(letter)

        run.answer("Invalid ORBY file format. File can not be opened.", "OK")
        self.assertEqual(run.caption(), f"{TITLE}: Untitled")
        run.keys("ctrl+o")
        run.give_file_name("Open", self.copy_example(SAVED, "good.ORB"))
        parameters = run.window("Parameters")
        self.assertEqual(parameters.text("txtDepthofCover"), "650")
        parameters.press("Command1")
        parameters.wait_gone()
        run.quit()
        self.assertEqual(run.wait_end(), 0)


class CommandLine(DesktopTest):
    def open_by(self, *arguments):
        run = self.start(*arguments)
        parameters = run.window("Parameters")
        parameters.press("Command1")
        parameters.wait_gone()
        caption = run.caption()
        run.quit()
        self.assertEqual(run.wait_end(), 0)
        return caption

    def test_names_one_file_with_spaces_quoted_or_not(self):
        self.copy_example(SAVED, "east mains.ORB")
        name = self.path("east mains.ORB")

        captions = {self.open_by(name), self.open_by(f'"{name}"'), self.open_by("east", "mains.ORB")}

        (caption,) = captions
        self.assertTrue(caption.endswith(f"{os.path.basename(self.home)}/east mains.ORB"), caption)


class UnsavedChanges(DesktopTest):
    def setUp(self):
        super().setUp()
        self.file = self.copy_example(SAVED, "entry.ORB")
        self.before = self.read()
        self.run_ = self.start(self.file)
        self.change_depth(self.run_)

    def read(self):
        with open(self.file, encoding="cp1252", newline="") as file:
            return file.read()

    def change_depth(self, run):
        parameters = run.window("Parameters")
        parameters.type("txtDepthofCover", "715")
        parameters.press("Command2")
        parameters.wait_gone()
        until(lambda: run.caption().endswith("entry.ORB*"), "the mark of unsaved changes")

    def answer(self, button):
        self.run_.quit()
        self.run_.answer(f"Save changes to: {self.file}?", button)

    def test_yes_saves_and_closes(self):
        self.answer("Yes")

        self.assertEqual(self.run_.wait_end(), 0)
        self.assertIn("\r\n715\r\n", self.read())
        self.assertRegex(companion("report", "--page", "0", self.file), r"Depth of Cover\.+715 \(ft\)")

    def test_no_closes_without_changing_the_file(self):
        self.answer("No")

        self.assertEqual(self.run_.wait_end(), 0)
        self.assertEqual(self.read(), self.before)

    def test_cancel_keeps_the_window_and_the_changes(self):
        self.answer("Cancel")

        self.assertTrue(self.run_.caption().endswith("entry.ORB*"))
        self.assertEqual(self.read(), self.before)
        self.run_.keys("ctrl+s")
        until(lambda: self.run_.caption().endswith("entry.ORB"), "the end of the mark")
        self.assertIn("\r\n715\r\n", self.read())
        self.run_.quit()
        self.assertEqual(self.run_.wait_end(), 0)
