"""The program on a desktop in another language, and on one with doubled resolution."""

from orby import DesktopTest

OUTPUTS = {"txtSugPSUP": "7.6", "txtSuggestBoltLength": "4.9", "txtSugSumDiagonals": "63.2", "txtRockLoadEntry1": "10.0",
           "txtStabFactorEntry1": "1.06"}


class Language(DesktopTest):
    def open_parameters(self, **environment):
        run = self.start(**environment)
        run.keys("alt+i", "p")
        return run, run.window("Parameters")

    def check_outputs(self, window):
        for name, text in OUTPUTS.items():
            window.wait_text(name, text)

    def test_a_decimal_comma_changes_no_number(self):
        run, window = self.open_parameters(LC_ALL="de_DE.UTF-8", LANGUAGE="de")

        self.check_outputs(window)
        window.type("txtDepthofCover", "410.5")
        window.press("Command2")
        window.wait_gone()

        run.quit()
        run.answer("Save changes to: Untitled?", "No")
        self.assertEqual(run.wait_end(), 0)
        self.assertIn("DefaultMETrowSpacing=1.2\r\n", self.configuration())

    def test_the_layout_is_left_to_right_on_every_desktop(self):
        _, window = self.open_parameters(LC_ALL="ar_EG.UTF-8", LANGUAGE="ar")

        self.check_outputs(window)
        label_left = window.control("lblCMRR").box[0]
        field_left = window.control("txtCMRR").box[0]
        self.assertLess(label_left, field_left)
        self.assertEqual(window.label("Command2"), "OK")

    def test_a_doubled_resolution_changes_no_number(self):
        _, window = self.open_parameters(QT_SCALE_FACTOR="2")

        self.check_outputs(window)
        window.picture("parameters-200")
