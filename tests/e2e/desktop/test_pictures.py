"""Saves pictures of every window in both unit systems in the build folder, for visual checks."""

from orby import DesktopTest, until

SUPPORT_TABS = ("Cable Bolts", "Truss Bolts", "Roof Bolts", "Standing Supports")
SUPPORT_SETS = (("Entries", "SSTab2", "chkSecEntries"), ("Intersections", "SSTab3", "chkSecInter"))
ANALYSES = ("chkPrimSupport", "chkSecondSupEntries", "chkSecondSupInter")
ROCK_LOAD_CURVE = 4


class Pictures(DesktopTest):
    def test_english(self):
        self.take_all("english", "belt-entry-trusses")

    def test_metric(self):
        self.take_all("metric", "australian-grade-metric")

    def take_all(self, system, example):
        self.system = system
        self.opened = self.start(self.example(example))
        parameters = self.opened.window("Parameters")
        self.take_parameters(parameters)
        self.take_dialog("The Coal Mine Roof Rating (CMRR) Estimator for HAMB", "estimator",
                         lambda: self.open_estimator(parameters))
        self.take_results(parameters)
        parameters.press("Command1")
        parameters.wait_gone()
        self.take_main_window()

    def take(self, window, name):
        window.wait_active()
        left, top, width, height = window.node.box
        self.assertGreaterEqual(left, 0, name)
        self.assertGreaterEqual(top, 0, name)
        self.assertLessEqual(left + width, 1366, name)
        self.assertLessEqual(top + height, 768, name)
        window.picture(f"{self.system}-{name}")

    def take_dialog(self, title, name, open_it):
        open_it()
        dialog = self.opened.window(title)
        self.take(dialog, name)
        dialog.press("Command1")
        dialog.wait_gone()

    def switch_on(self, window, *boxes):
        for box in boxes:
            if not window.is_checked(box):
                window.press(box)
                until(lambda box=box: window.is_checked(box), f"{box} on")

    def take_parameters(self, parameters):
        self.switch_on(parameters, *ANALYSES)
        self.take(parameters, "parameters-general")
        parameters.choose_tab("SSTab1", "Primary Support: Roof Bolts")
        self.take(parameters, "parameters-primary")
        for tab, inner, boxes in SUPPORT_SETS:
            parameters.choose_tab("SSTab1", "Secondary Support: " + tab)
            for number, support in enumerate(SUPPORT_TABS):
                self.switch_on(parameters, f"{boxes}_{number}")
                parameters.choose_tab(inner, support)
                self.take(parameters, f"parameters-{tab}-{support}".lower().replace(" ", "-"))
        parameters.choose_tab("SSTab1", "General")

    def open_estimator(self, parameters):
        if parameters.is_checked("chkCMRRManual"):
            parameters.press("chkCMRRManual")
        parameters.press("cmdCMRR")

    def take_results(self, parameters):
        parameters.press("cmdresults")
        results = self.opened.window("Calculation Results")
        results.choose_curve(ROCK_LOAD_CURVE)
        graph = self.opened.window("Graph")
        graph.choose("Options", "Point ID")
        until(lambda: graph.shows("Frame1"), "the read-out")
        self.take(graph, "graph")
        self.take_dialog("Graph Parameters and Options", "graph-options",
                         lambda: graph.choose("Options", "Basic Options"))
        graph.choose("File", "Exit")
        graph.wait_gone()
        results.press("cmdGraph")
        until(lambda: results.shows("lstGraphs"), "the list of curves")
        self.take(results, "results")
        results.press("Command1")
        parameters.wait_active()

    def take_main_window(self):
        main = self.opened.main()
        self.take(main, "main")
        keys = self.opened.keys
        self.take_dialog("Project Description", "description", lambda: keys("alt+i", "d"))
        self.take_dialog("Print Preview", "preview", lambda: main.choose("File", "Print Preview..."))
        keys("alt+i", "c")
        cost = self.opened.window("Cost Parameters")
        self.take(cost, "cost")
        cost.press("Command1")
        cost.wait_gone()
