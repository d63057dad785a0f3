"""Saves that overwrite a file, and saves that fail."""

import os
import re
import resource
import signal

from orby import DesktopTest, Window, press_keys, until

EXAMPLE = "development-entry"
BACKUP = re.compile(r"[0-9-]{10} [0-9.]{8} [0-9]{5} .*\.ORB")
RECOVERY = re.compile(r"Orby ended unexpectedly\. Recover the unsaved project\?\n\n/.*entry\.ORB of .*")
NO_LIMIT = (resource.RLIM_INFINITY, resource.RLIM_INFINITY)


class Saving(DesktopTest):
    def setUp(self):
        super().setUp()
        self.file = self.copy_example(EXAMPLE, "entry.ORB")
        self.before = self.read(self.file)
        self.run_ = self.start(self.file)
        parameters = self.run_.window("Parameters")
        parameters.type("txtDepthofCover", "715")
        parameters.press("Command2")
        parameters.wait_gone()
        self.wait_unsaved()

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def wait_unsaved(self):
        until(lambda: self.run_.caption().endswith("entry.ORB*"), "the mark of unsaved changes")

    def save(self):
        self.run_.keys("ctrl+s")
        until(lambda: self.run_.caption().endswith("entry.ORB"), "the end of the mark")

    def backups(self):
        """Returns the complete backups. One that is still being written has another name."""
        folder = os.path.join(self.data, "Backups")
        names = os.listdir(folder) if os.path.isdir(folder) else []
        return [os.path.join(folder, name) for name in sorted(names) if BACKUP.fullmatch(name)]

    def open_backups(self, run):
        run.keys("alt+u", "b")
        return run.window("Backups")

    def test_an_overwritten_file_is_opened_from_the_backups(self):
        self.save()

        (backup,) = self.backups()
        self.assertEqual(self.read(backup), self.before)
        window = self.open_backups(self.run_)
        self.assertEqual(window.text("txtDepthofCover"), "650 (ft)")
        press_keys("Return")
        window.wait_gone()
        self.wait_unsaved()
        self.run_.keys("alt+i", "p")
        self.assertEqual(self.run_.window("Parameters").text("txtDepthofCover"), "650")

    def test_a_kill_during_a_save_leaves_the_typed_and_the_old_design_in_the_backups(self):
        self.run_.keys("ctrl+s")
        (backup,) = until(self.backups, "the backup")
        self.run_.kill()

        self.assertEqual(self.read(backup), self.before)
        is_typed_state_kept = bool(self.recovery_files())
        run = self.start()
        if is_typed_state_kept:
            run.answer(RECOVERY, "Yes")
            until(lambda: run.caption().endswith("entry.ORB*"), "the typed state")
        else:
            self.assertIn(b"\r\n715\r\n", self.read(self.file))
        self.assertEqual(self.open_backups(run).text("txtDepthofCover"), "650 (ft)")

    def test_a_limit_on_file_sizes_leaves_the_file_and_the_next_save_succeeds(self):
        # The limit also sends a signal that ends a program without a handler.
        resource.prlimit(self.run_.process.pid, resource.RLIMIT_FSIZE, (100, resource.RLIM_INFINITY))
        self.run_.keys("ctrl+s")
        self.run_.answer("Error occurred: Disk full (61)", "Cancel")

        self.assertIsNone(self.run_.process.poll(), signal.SIGXFSZ)
        self.assertEqual(self.read(self.file), self.before)
        self.wait_unsaved()
        resource.prlimit(self.run_.process.pid, resource.RLIMIT_FSIZE, NO_LIMIT)
        self.save()
        self.assertIn(b"\r\n715\r\n", self.read(self.file))
        self.assertEqual([self.read(backup) for backup in self.backups()], [self.before])

    def test_a_file_changed_by_another_program_is_backed_up_and_reported(self):
        others = self.before + b"a line of another program\r\n"
        with open(self.file, "wb") as file:
            file.write(others)

        self.run_.keys("ctrl+s")

        node, text, buttons = self.run_.box()
        (backup,) = self.backups()
        self.assertEqual(text, f"{self.file} had been changed by another program. It now holds the project as it is "
                               f"here; what the other program wrote is kept in {backup}.")
        buttons["OK"].act("Press")
        Window(node).wait_gone()
        self.assertEqual(self.read(backup), others)
        self.assertIn(b"\r\n715\r\n", self.read(self.file))
