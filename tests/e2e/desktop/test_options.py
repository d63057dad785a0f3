"""Options are edited, and checked in the next run."""

from orby import DesktopTest, press_keys, until, xdotool

ENGLISH = "Default Parameters (English)"
STANDS = "Default Parameters (Standing Supports)"
TABLE = "org.a11y.atspi.Table"


def row_count(table):
    return table.get(TABLE, "NRows")


def cell(table, row, column):
    owner, path = table.call(TABLE, "GetAccessibleAt", "(ii)", row, column)[0]
    return type(table)(table.bus, owner, path).name


class Options(DesktopTest):
    def open_options(self, page):
        run = self.start()
        main = run.main()
        main.wait_active()
        main.choose("Utilities", "Options...")
        options = run.window("Options")
        options.choose_tab("SSTab1", page)
        return run, options

    def leave(self, run, options, button):
        options.press(button)
        options.wait_gone()
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def grades(self, options):
        return [node.name for node in options.control("lstBoltGrade_0").children()]

    def test_an_edited_list_is_kept_for_the_next_run(self):
        run, options = self.open_options(ENGLISH)
        before = self.grades(options)
        options.type("txtItem_0", "80")
        options.press("cmdAddBolt_0")
        until(lambda: len(self.grades(options)) == len(before) + 1, "the new grade")
        options.type("txtDepthofCover_0", "655")
        self.leave(run, options, "cmdOK")

        self.assertIn("DefaultBoltGradeArrayENG6=80\r\n", self.configuration())
        self.assertIn("DefaultENGDepthofCover=655\r\n", self.configuration())
        run, options = self.open_options(ENGLISH)
        self.assertEqual(self.grades(options), [*before, "80"])
        self.assertEqual(options.text("txtDepthofCover_0"), "655")
        self.leave(run, options, "cmdCancel")

    def test_a_standing_support_lasts_until_the_program_ends(self):
        run, options = self.open_options(STANDS)
        table = options.control("VSFlexGridStand")
        before = row_count(table)
        options.wait_active()
        options.press("cmdAddStandSupport")
        until(lambda: row_count(table) == before + 1, "the new row")
        xdotool("type", "--delay", "2", "Steel Set")
        press_keys("Tab")
        until(lambda: cell(table, before, 1) == "Steel Set", "the new name")
        xdotool("type", "--delay", "2", "90")
        press_keys("shift+Tab")
        until(lambda: cell(table, before, 2) == "90", "the new capacity")
        self.leave(run, options, "cmdOK")

        self.assertIn("DefaultStandSupportType16=Steel Set\r\n", self.configuration())
        self.assertIn("DefaultStandSupportCap16_1=800\r\n", self.configuration())
        run, options = self.open_options(STANDS)
        self.assertEqual(row_count(options.control("VSFlexGridStand")), before)
        self.leave(run, options, "cmdCancel")
