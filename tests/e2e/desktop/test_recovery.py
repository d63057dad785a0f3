"""Work that is not lost when the program ends in the middle of it."""

import os
import re

from orby import DesktopTest, until

QUESTION = re.compile(
    r"Orby ended unexpectedly\. Recover the unsaved project\?\n\n"
    r"(Untitled|/.*\.ORB) of \d{4}-\d\d-\d\d \d\d:\d\d:\d\d"
)


class Recovery(DesktopTest):
    def edit(self, depth, *arguments):
        """A run whose parameters dialog is open with another depth of cover, which has been kept."""
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

    def test_brings_back_a_changed_field_of_the_open_dialog_after_a_kill(self):
        file = self.copy_example("development-entry", "entry.ORB")
        self.edit("777", file).kill()

        run = self.start()
        run.answer(QUESTION, "Yes")

        until(lambda: run.caption().endswith("entry.ORB*"), "the old name with the mark of unsaved changes")
        self.assertEqual(self.depth_of(run), "777")
        self.quit_unsaved(run, file)
        self.assertEqual(self.recovery_files(), [])

    def test_no_moves_what_was_kept_into_the_backups(self):
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

    def test_keeps_the_work_of_two_programs_apart(self):
        first = self.edit("771")
        second = self.edit("772")
        first.kill()
        second.kill()
        self.assertEqual(self.recovery_files(), ["~recover1.tmp", "~recover2.tmp"])

        depths = [self.recovered_depth() for _ in range(2)]

        self.assertEqual(depths, ["771", "772"])

    def recovered_depth(self):
        """What a program brings back that goes on beside the others."""
        run = self.start()
        run.answer(QUESTION, "Yes")
        return self.depth_of(run)

    def test_brings_back_the_fields_after_a_run_time_error(self):
        run = self.edit("777")
        parameters = run.window("Parameters")
        parameters.type("txtUnitWeight", "158")
        parameters.choose_tab("SSTab1", "Primary Support: Roof Bolts")
        parameters.type("txtStabilityFactor", "9" + 37 * "0")  # more than a report can be computed with
        parameters.press("cmdresults")

        run.answer("Run-time error '6':\n\nOverflow", "OK")

        self.assertEqual(run.wait_end(), 1)
        again = self.start()
        again.answer(QUESTION, "Yes")
        again.keys("alt+i", "p")
        parameters = again.window("Parameters")
        self.assertEqual(parameters.text("txtDepthofCover"), "777")
        self.assertEqual(parameters.text("txtUnitWeight"), "158")
