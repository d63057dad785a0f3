"""What the Study menu makes of a design: the calculation sheet, the report to sign, what its figures depend on."""

from orby import DesktopTest, until, words_of


class Documents(DesktopTest):
    def test_give_a_signed_report_with_what_was_typed(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("Command1")
        run.main().choose("Study", "Signed Report...")
        report = run.window("Signed Report")
        report.type("txtCompany", "Brannock Coal")
        report.type("txtRevision", "C2")
        report.choose_tab("tabReport", "Contents")
        report.press("chkSheet")

        report.press("cmdSaveAs")
        run.give_file_name("Save Signed Report", self.path("report.pdf"))

        words = until(lambda: words_of(self.path("report.pdf")), "the PDF file")
        text = " ".join(words)
        for part in ("Brannock Coal", "revision C2", "Summary", "Signatures", "Appendix: calculation sheet", "44.86371"):
            self.assertIn(part, text)
        report.press("cmdClose")
        report.wait_gone()
        run.main().choose("Study", "Signed Report...")
        self.assertEqual(run.window("Signed Report").text("txtCompany"), "Brannock Coal")

    def test_tell_what_a_figure_depends_on(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("Command1")
        run.main().choose("Study", "What Matters...")
        window = run.window("What Matters")

        window.type("txtChange", "25")

        turns = [node.name for node in window.control("lstTurns").children()]
        self.assertTrue(any("holds up to" in turn for turn in turns), turns)
        window.press("cmdClose")
        window.wait_gone()

    def test_show_how_the_results_on_view_are_computed(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("cmdresults")

        run.window("Calculation Results").press("cmdSheet")

        sheet = run.window("Calculation Sheet")
        self.assertRegex(sheet.label("lblPage"), r"^Page 1 of \d+")
        sheet.press("cmdClose")
        sheet.wait_gone()
