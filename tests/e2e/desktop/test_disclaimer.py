"""The disclaimer at the start: it is refused or accepted and cannot be skipped."""

import os

from orby import DesktopTest, press_keys, until


class Disclaimer(DesktopTest):
    def start_before_it(self):
        run = self.start(accepts=False)
        return run, run.window("Disclaimer")

    def untick(self, window):
        window.press("chkShow")
        until(lambda: not window.is_checked("chkShow"), "an empty box")

    def written(self):
        """Returns every file that the program keeps in the user's folder."""
        found = {}
        for folder, _, names in os.walk(self.data):
            for name in names:
                with open(os.path.join(folder, name), "rb") as file:
                    found[os.path.join(folder, name)] = file.read()
        return found

    def test_refused_ends_the_program_and_changes_nothing(self):
        run, window = self.start_before_it()
        self.untick(window)
        before = self.written()

        window.press("cmdNoAccept")

        self.assertEqual(run.wait_end(), 0)
        self.assertEqual(self.written(), before)
        self.start_before_it()

    def test_does_not_appear_again_after_it_was_switched_off(self):
        run, window = self.start_before_it()
        self.untick(window)

        window.press("Command1")

        window.wait_gone()
        run.main().wait_active()
        self.assertIn("ShowDisclaim=0\r\n", self.configuration())
        run.quit()
        self.assertEqual(run.wait_end(), 0)
        run = self.start(accepts=False)
        run.main().wait_active()
        self.assertIsNone(run.find("Disclaimer"))

    def test_cannot_be_skipped_by_the_escape_key(self):
        run, window = self.start_before_it()

        press_keys("Escape")
        self.untick(window)

        self.assertTrue(window.shows("Command1"))
        self.assertIsNone(run.find_main())

    def test_refused_from_the_menu_also_ends_the_program(self):
        run, window = self.start_before_it()
        window.press("Command1")
        window.wait_gone()
        run.keys("alt+h", "d")

        run.window("Disclaimer").press("cmdNoAccept")

        self.assertEqual(run.wait_end(), 0)
