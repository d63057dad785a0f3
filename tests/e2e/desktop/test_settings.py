"""The settings: their checks, their messages, and that they are kept."""

import os

import atspi
from orby import DesktopTest, until


class Settings(DesktopTest):
    def setUp(self):
        super().setUp()
        self.run_ = self.start()
        self.before = self.configuration()

    def open_settings(self):
        self.run_.keys("alt+u", "s")
        return self.run_.window("Settings")

    def check_refusal(self, field, text, message, left=None):
        window = self.open_settings()
        window.type(field, text)

        window.press("cmdOK")

        self.run_.answer(message, "OK")
        until(lambda: window.control(field).has(atspi.FOCUSED), f"focus in {field}")
        self.assertEqual(window.text(field), left or text)
        window.press("cmdCancel")
        window.wait_gone()
        self.assertEqual(self.configuration(), self.before)

    def test_refuse_a_path_that_does_not_exist(self):
        self.check_refusal("Text2", "/nowhere", "Invalid Path for Data Files", "/nowhere/")

    def test_refuse_a_history_that_is_too_short(self):
        self.check_refusal("Text3", "4095", "Size of Command History Window: Value '4095' is outside input range\n"
                                            "Valid range is: 4096-16384")

    def test_refuse_an_extension_with_a_point(self):
        self.check_refusal("Text1", ".ORB", "Invalid character in file extension")

    def test_are_kept_for_the_next_run(self):
        window = self.open_settings()
        window.press("optUnits_1")
        window.type("Text1", "RS7")
        window.type("Text3", "8000")
        window.press("chkEnableTB")
        window.press("cmdOK")
        window.wait_gone()
        self.run_.quit()
        self.assertEqual(self.run_.wait_end(), 0)

        self.run_ = self.start()
        window = self.open_settings()

        self.assertTrue(window.is_checked("optUnits_1"))
        self.assertEqual(window.text("Text1"), "RS7")
        self.assertEqual(window.text("Text3"), "8000")
        self.assertFalse(window.is_checked("chkEnableTB"))
        self.assertIn("FileExtension=RS7\r\n", self.configuration())

    def test_explain_a_check_box_without_blocking_the_client_that_pressed_it(self):
        window = self.open_settings()

        window.press("chkShortNames")

        self.run_.answer("Option will take effect upon restarting this program", "OK")
        until(lambda: window.is_checked("chkShortNames"), "the mark in the box")
        window.press("cmdOK")
        window.wait_gone()
        self.assertIn("ShortRecentFiles=1\r\n", self.configuration())

    def test_change_the_font_of_the_history(self):
        window = self.open_settings()
        window.press("Command5")
        font = self.run_.window("Font")
        font.type("txtSize", "25")
        font.press("cmdOK")
        self.run_.answer("Size: Value '25' is outside input range\nValid range is: 7-24", "OK")
        font.type("txtSize", "14")
        font.press("cmdOK")
        font.wait_gone()

        window.press("cmdOK")

        window.wait_gone()
        self.assertIn("DisplayFontSize=14\r\n", self.configuration())


class NoSettings(DesktopTest):
    """A user whose configuration cannot be written."""

    def test_start_with_the_built_in_settings_and_a_message(self):
        file = os.path.join(self.data, "ORBY.INI")
        os.makedirs(file)
        trouble = f"Configuration file cannot be used: {file} (Path/File access error). Built-in settings are in force"

        run = self.start(accepts=False)
        run.answer(trouble + " and changes to them may be lost.", "OK")
        run.accept_disclaimer()

        self.assertIn(trouble, run.main().text("txtMain"))
        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        self.assertEqual(parameters.text("txtDepthofCover"), "400")
        parameters.press("Command1")
        parameters.wait_gone()
        run.quit()
        self.assertEqual(run.wait_end(), 0)
        self.assertEqual(os.listdir(file), [])
