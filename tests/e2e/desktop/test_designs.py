"""The designs of a folder as a table: sorted, filtered, copied and opened with keys."""

import os

from orby import DesktopTest, press_keys, until


class Designs(DesktopTest):
    def test_of_a_folder_are_filtered_and_opened_by_keys(self):
        os.makedirs(self.path("mine", "north"))
        for example in ("weak-roof", "intersection-secondary-bolts", "development-entry"):
            self.copy_example(example, os.path.join("mine", "north", example + ".ORB"))
        run = self.start()
        run.main().choose("Study", "Designs in a Folder...")
        designs = run.window("Designs in a Folder")
        designs.type("txtContaining", "weak")
        designs.type("txtFolder", self.path("mine"))
        press_keys("Return")
        until(lambda: designs.label("lblShown") == "3 designs. Rows shown: 1, marked: 1.", "the row with the text")
        until(lambda: designs.label("lblDone") == "Read 3 files", "the end of the reading")
        designs.picture("designs")
        press_keys("Return")
        designs.wait_gone()

        parameters = run.window("Parameters")
        self.assertEqual(parameters.text("txtDepthofCover"), "1200")
        parameters.press("Command1")
        run.main()
