"""A design is converted to the other units and back."""

from orby import TITLE, DesktopTest, companion, until


class Conversion(DesktopTest):
    def convert(self, run):
        run.keys("alt+u", "f")
        return run.window("File Conversion Utility")

    def open_with_depth(self, depth):
        """Opens an example and enters this depth of cover without saving."""
        run = self.start(self.copy_example("development-entry", "entry.ORB"))
        parameters = run.window("Parameters")
        parameters.type("txtDepthofCover", depth)
        parameters.press("Command2")
        parameters.wait_gone()
        until(lambda: run.caption().endswith("entry.ORB*"), "the mark of unsaved changes")
        return run

    def save_as(self, run, name):
        run.keys("alt+f", "a")
        run.give_file_name("Save As", self.path(name))
        until(lambda: run.caption().endswith("/" + name), "the name in the caption")

    def convert_to(self, run, caption):
        window = self.convert(run)
        window.press("Command2")
        run.answer("Conversion Completed: The conversion form will be closed", "OK")
        window.wait_gone()
        until(lambda: run.caption() == f"{TITLE}: {caption}*", "the new name, not saved")

    def test_there_and_back_rounds_the_depth_and_lengthens_the_name(self):
        run = self.open_with_depth("401.25")
        run.keys("ctrl+s")
        until(lambda: run.caption().endswith("entry.ORB"), "the end of the mark")

        self.convert_to(run, "Metric_entry.ORB")
        self.save_as(run, "Metric_entry.ORB")
        self.convert_to(run, "English_Metric_entry.ORB")
        self.save_as(run, "English_Metric_entry.ORB")

        run.quit()
        self.assertEqual(run.wait_end(), 0)
        self.assertRegex(companion("report", "--page", "0", self.path("Metric_entry.ORB")),
                         r"Depth of Cover\.+122\.3 \(m\)")
        self.assertRegex(companion("report", "--page", "0", self.path("English_Metric_entry.ORB")),
                         r"Depth of Cover\.+401\.2 \(ft\)")

    def test_changes_nothing_if_it_is_cancelled(self):
        run = self.open_with_depth("715")
        run.keys("ctrl+s")
        until(lambda: run.caption().endswith("entry.ORB"), "the end of the mark")

        window = self.convert(run)
        window.press("Command1")
        window.wait_gone()

        self.assertTrue(run.caption().endswith("/entry.ORB"))
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def test_is_refused_while_there_is_no_design(self):
        run = self.start()

        run.keys("alt+u", "f")

        run.answer("Current file is empty", "OK")
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def test_is_refused_before_the_design_is_saved(self):
        run = self.open_with_depth("715")

        run.keys("alt+u", "f")

        run.answer("Save Current File before accessing this option", "OK")
        run.quit()
        run.answer(f"Save changes to: {self.path('entry.ORB')}?", "No")
        self.assertEqual(run.wait_end(), 0)
