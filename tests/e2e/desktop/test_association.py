"""The association of project files with the program, checked by the desktop's own tools."""

import os
import subprocess

from orby import PATIENCE, PROGRAM, DesktopTest

QUESTION = ("This operation may break an existing association of file extension ORB with other programs on this "
            "computer. Proceed?")
TYPE = "application/x-orby-orb"


class Association(DesktopTest):
    def associate(self, answer):
        run = self.start()
        main = run.main()
        main.wait_active()
        main.choose("Utilities", "Options...")
        options = run.window("Options")
        options.press("cmdFileAssoc")
        run.answer(QUESTION, answer)
        if answer == "Yes":
            folder = os.path.dirname(os.path.realpath(PROGRAM)) + "/"
            run.answer(f"The ORB file extensions has been associated to {folder}\n\nNote: if order for this function to "
                       "be successfully completed the user needs to have access to the registry", "OK")
        options.press("cmdCancel")
        options.wait_gone()
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def entry(self):
        return self.path(".local", "share", "applications", "orby.desktop")

    def ask(self, *words):
        """Returns the output of a desktop tool for this user."""
        answer = subprocess.run(words, env={**os.environ, "HOME": self.home}, capture_output=True, timeout=PATIENCE)
        return (answer.stdout + answer.stderr).decode().strip()

    def test_no_changes_nothing(self):
        self.associate("No")

        self.assertFalse(os.path.exists(self.entry()))

    def test_yes_writes_an_entry_that_starts_the_program(self):
        self.associate("Yes")

        with open(self.entry(), encoding="utf-8") as file:
            lines = file.read().splitlines()
        self.assertIn(f'Exec="{os.path.realpath(PROGRAM)}" %f', lines)
        self.assertIn(f"MimeType={TYPE};", lines)

    def test_the_entry_is_valid_for_the_desktop(self):
        self.associate("Yes")

        self.assertEqual(self.ask("desktop-file-validate", self.entry()), "")

    def test_the_desktop_opens_projects_with_the_program(self):
        self.associate("Yes")

        self.assertEqual(self.ask("xdg-mime", "query", "default", TYPE), "orby.desktop")
        for name in ("panel.ORB", "panel.orb"):
            project = self.copy_example("development-entry", name)
            self.assertEqual(self.ask("xdg-mime", "query", "filetype", project), TYPE)
