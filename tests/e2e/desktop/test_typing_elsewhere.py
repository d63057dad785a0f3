"""No text in a number field of the other dialogs ends the run."""

from number_fields import NumberFieldsTest

UNIT_TABS = ("Length", "Load", "Load Grad", "Stress", "Stress Grad")
# The pages of the options, their tables, and the fields over the cells while a table has the focus.
TABLES = (("Default Parameters (English)", "VSFlexGridEng", "txtCableEng"),
          ("Default Parameters (Metric)", "VSFlexGridMet", "txtCableMet"),
          ("Default Parameters (Standing Supports)", "VSFlexGridStand", "txtStand"))

# The tables of prices, and the fields over their cells.
PRICES = (("grdBoltPrices", "txtBoltPrice"), ("grdOtherPrices", "txtOtherPrice"))


class TypingElsewhere(NumberFieldsTest):
    def start_main(self):
        run = self.start()
        run.main().wait_active()
        return run

    def test_in_the_costs(self):
        run = self.start(self.copy_example("development-entry", "entry.ORB"))
        parameters = run.window("Parameters")
        parameters.press("Command1")
        parameters.wait_gone()
        run.keys("alt+i", "c")
        costs = run.window("Cost Parameters")
        self.assertEqual(costs.node.name, "Cost Parameters - entry.ORB")
        self.enter(run, costs, "frmTULKCost")
        self.fill_fields()
        for box in ("chkAdvance", "chkProduction"):
            self.window.press(box)
        self.fill_fields()
        self.press_and_answer("Command2")
        self.leave("Command1")
        self.quit()

    def test_in_the_options(self):
        run = self.start_main()
        run.keys("alt+u", "o")
        self.enter(run, run.window("Options"), "frmTULKOpts")
        for page, table, field in TABLES:
            self.window.choose_tab("SSTab1", page)
            self.fill_fields()
            self.fill_table(table, field)
        self.press_and_answer("cmdOK")
        self.leave("cmdCancel")
        self.quit()

    def test_in_the_study(self):
        run = self.start_main()
        run.keys("alt+s", "w")
        self.enter(run, run.window("What Would Hold"), "frmWouldHold")
        self.window.choose_tab("tabStudy", "Cheapest Patterns")
        self.fill_fields()
        self.press_and_answer("cmdSearch")
        self.window.choose_tab("tabStudy", "Prices")
        for table, field in PRICES:
            self.fill_table(table, field)
        self.leave("cmdClose")
        parameters = run.window("Parameters")
        parameters.wait_active()
        parameters.press("Command1")
        parameters.wait_gone()
        self.quit()

    def test_in_what_matters(self):
        run = self.start_main()
        run.keys("alt+s", "m")
        self.enter(run, run.window("What Matters"), "frmWhatMatters")
        self.fill_fields()
        self.leave("cmdClose")
        self.quit()

    def test_in_the_design_chart(self):
        run = self.start_main()
        run.keys("alt+s", "d")
        self.enter(run, run.window("Design Chart"), "frmDesignChart")
        self.fill_fields()
        self.leave("cmdClose")
        self.quit()

    def test_in_the_settings_and_in_the_font_dialog(self):
        run = self.start_main()
        run.keys("alt+u", "s")
        settings = run.window("Settings")
        self.enter(run, settings, "frmSet")
        self.fill_fields()
        self.press_and_answer("cmdOK")
        settings.press("Command5")
        self.enter(run, run.window("Font"), "frmFont")
        self.fill_fields()
        self.press_and_answer("cmdOK")
        self.leave("cmdCancel")
        settings.press("cmdCancel")
        settings.wait_gone()
        self.quit()

    def test_in_the_unit_calculator(self):
        run = self.start_main()
        run.keys("alt+u", "u")
        self.enter(run, run.window("Unit Conversions"), "frmUnits")
        for page in UNIT_TABS:
            self.window.choose_tab("SSTab1", page)
            self.fill_fields()
        self.leave("Command1")
        self.quit()
