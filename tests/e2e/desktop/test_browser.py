"""The text file browser and the unit calculator."""

import os

from orby import DesktopTest, press_keys, until

NOTES = "North mains\r\n\tpanel 3\r\n45\u00b0 dip\r\n"
NOTES_SHOWN = ["North mains", "        panel 3", "45\u00b0 dip"]


def names(node):
    return [child.name for child in node.children()]


class Browser(DesktopTest):
    def setUp(self):
        super().setUp()
        self.run_ = self.start()
        self.run_.main()
        with open(os.path.join(self.data, "notes.txt"), "w", encoding="cp1252", newline="") as file:
            file.write(NOTES)
        self.run_.main().choose("File", "View Source Files...")
        self.window = self.run_.window("View Source Files")

    def choose_file(self, name):
        files = self.window.control("File1")
        place = until(lambda: names(files), "the files").index(name)
        self.window.focus("Text2")
        press_keys("shift+Tab", "Home", *["Down"] * place, "Return")

    def close(self):
        self.window.press("Command1")
        self.window.wait_gone()
        self.run_.quit()
        self.assertEqual(self.run_.wait_end(), 0)

    def test_shows_a_file_of_the_pattern(self):
        self.window.type("Text2", "*.txt")

        self.choose_file("notes.txt")

        pane = self.window.control("RichTextBox1")
        until(lambda: names(pane) == NOTES_SHOWN, f"the lines of the file, there are {names(pane)}")
        self.assertEqual(self.window.text("Label1"), os.path.join(self.data, "notes.txt"))
        self.close()
        self.assertIn("BrowseDefaultFilter=*.txt\r\n", self.configuration())

    def test_reports_a_missing_viewer_by_its_name(self):
        self.window.type("Text2", "*.txt")
        self.window.press("Check1")

        self.choose_file("notes.txt")

        self.run_.answer("Shell operation failed. Check status of External Viewer: Notepad.exe", "OK")
        with open(os.path.join(self.data, "Temp", "~tmpbr.tmp"), encoding="cp1252", newline="") as copy:
            self.assertEqual(copy.read(), NOTES)
        self.close()
        self.assertIn("BrowseUseNotepad=1\r\n", self.configuration())


class Calculator(DesktopTest):
    def test_converts_a_foot(self):
        run = self.start()
        run.keys("alt+u", "u")
        window = run.window("Unit Conversions")

        window.press("Option2_1")
        window.type("txtLength", "1")

        for field, text in (("Text7", "12"), ("Text8", "1"), ("Text9", "30.48"), ("Text10", "0.3048")):
            window.wait_text(field, text)
        window.press("Command1")
        window.wait_gone()
        run.quit()
        self.assertEqual(run.wait_end(), 0)
