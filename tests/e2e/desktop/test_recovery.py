"""Unsaved work is recovered after the program ends unexpectedly."""

import os
import re

from orby import DesktopTest, take_picture, until

QUESTION = re.compile(
    r"Orby ended unexpectedly\. Recover the unsaved project\?\n\n"
    r"(Untitled|/.*\.ORB) of \d{4}-\d\d-\d\d \d\d:\d\d:\d\d"
)
ERROR = ("Run-time error '11':\n\nDivision by zero\n\nThe error happened while the report was made.\n\n"
         "Your project is kept with its unsaved changes.\n"
         "Start Again brings it back now; after OK the next start offers it.")


class Recovery(DesktopTest):
    def edit(self, depth, *arguments):
        """Returns a run with another depth of cover in its open parameters dialog and in the recovery file."""
        run = self.start(*arguments)
        if not arguments:
            run.keys("ctrl+n")
        parameters = run.window("Parameters")
        parameters.type("txtDepthofCover", depth)
        until(lambda: any(depth in self.kept(name) for name in self.recovery_files()), "the recovery file")
        return run

    def kept(self, name):
        with open(os.path.join(self.data, "Temp", name), encoding="utf-8") as file:
            return file.read().split("\n")

    def depth_of(self, run):
        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        depth = parameters.text("txtDepthofCover")
        parameters.press("Command1")
        parameters.wait_gone()
        return depth

    def quit_unsaved(self, run, name):
        run.quit()
        run.answer(f"Save changes to: {name}?", "No")
        self.assertEqual(run.wait_end(), 0)

    def test_restores_a_changed_field_of_the_open_dialog_after_a_kill(self):
        file = self.copy_example("development-entry", "entry.ORB")
        self.edit("777", file).kill()

        run = self.start()
        run.answer(QUESTION, "Yes")

        until(lambda: run.caption().endswith("entry.ORB*"), "the old name with the mark of unsaved changes")
        self.assertEqual(self.depth_of(run), "777")
        self.quit_unsaved(run, file)
        self.assertEqual(self.recovery_files(), [])

    def test_no_moves_the_work_to_the_backups(self):
        self.edit("777").kill()

        run = self.start()
        run.answer(QUESTION, "No")

        until(lambda: not self.recovery_files(), "the end of the recovery file")
        (kept,) = (name for name in os.listdir(os.path.join(self.data, "Backups")) if name.endswith(".recovery"))
        self.assertRegex(kept, r"^\d{4}-\d\d-\d\d \d\d\.\d\d\.\d\d 00001 Untitled\.recovery$")
        self.assertEqual(self.depth_of(run), "400")
        run.quit()
        self.assertEqual(run.wait_end(), 0)
        again = self.start()
        self.assertEqual(self.depth_of(again), "400")

    def test_offers_the_file_of_the_command_line_in_the_question(self):
        self.edit("777").kill()
        file = self.copy_example("development-entry", "entry.ORB")

        run = self.start(file)
        run.answer(QUESTION, "Open entry.ORB instead")

        parameters = run.window("Parameters")
        self.assertNotEqual(parameters.text("txtDepthofCover"), "777")
        parameters.press("Command1")
        parameters.wait_gone()
        self.assertTrue(run.caption().endswith("entry.ORB"))

    def test_keeps_the_work_of_two_programs_separate(self):
        first = self.edit("771")
        second = self.edit("772")
        first.kill()
        second.kill()
        self.assertEqual(self.recovery_files(), ["~recover1.tmp", "~recover2.tmp"])

        depths = [self.recovered_depth() for _ in range(2)]

        self.assertEqual(depths, ["771", "772"])

    def recovered_depth(self):
        """Returns the depth that a new run recovers while the other runs continue."""
        run = self.start()
        run.answer(QUESTION, "Yes")
        return self.depth_of(run)

    def end_by_error(self, *arguments):
        """Returns a run with changes that an impossible report has ended. Its message box is on the screen."""
        run = self.edit("777", *arguments)
        parameters = run.window("Parameters")
        parameters.type("txtUnitWeight", "158")
        parameters.choose_tab("SSTab1", "Secondary Support: Entries")
        parameters.type("txtRockFallAngle", "0")
        parameters.press("cmdresults")
        run.box()
        return run

    def assert_brought_back(self, run):
        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        self.assertEqual(parameters.text("txtDepthofCover"), "777")
        self.assertEqual(parameters.text("txtUnitWeight"), "158")

    def test_restores_the_fields_after_a_run_time_error(self):
        self.end_by_error().answer(ERROR, "OK")

        self.assertEqual(self.runs[0].wait_end(), 1)
        again = self.start()
        again.answer(QUESTION, "Yes")
        self.assert_brought_back(again)

    def test_starts_again_with_the_project_and_without_a_question(self):
        file = self.copy_example("development-entry", "entry.ORB")
        run = self.end_by_error(file)
        before = self.configuration()

        take_picture("error")
        run.answer(ERROR, "Start Again")

        self.assertEqual(run.wait_end(), 1)
        self.assertEqual(self.configuration(), before)
        again = self.next_run()
        until(lambda: again.caption().endswith("entry.ORB*"), "the old name with the mark of unsaved changes")
        self.assertIn(f"Recovered: {file}, with its unsaved changes", again.main().text("txtMain"))
        self.assert_brought_back(again)
