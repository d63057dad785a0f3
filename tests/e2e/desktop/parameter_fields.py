"""Tests the number fields of the parameters, page by page."""

from number_fields import NumberFieldsTest

SUPPORTS = ("Cable Bolts", "Truss Bolts", "Roof Bolts", "Standing Supports")
KEPT = ("optBoltOptions", "optCableCapMode", "optSupportType")
# Rock fall over an entry and over an intersection.
ENTRY_FALL = ("txtRockLoadHeight", "txtRockFallAngle")
INTERSECTION_FALL = ("txtRockLoadHeightInter", "txtRockFallAngleEntry", "txtRockFallAngleXcut")


def support_of(name):
    """Returns the secondary support of a field, or None for the other fields."""
    if name.endswith("SecEntry") or name in ENTRY_FALL:
        return "entries"
    return "intersections" if name.endswith("SecInter") or name in INTERSECTION_FALL else None


class ParameterFieldsTest(NumberFieldsTest):
    def open_parameters(self, ours):
        run = self.start(self.copy_example("weak-roof", "weak.ORB"))
        self.enter(run, run.window("Parameters"), "frmPENVParm", ours)

    def leave_parameters(self):
        self.press_and_answer("Command2")
        self.press_and_answer("cmdresults")
        self.leave("Command1")
        self.quit()

    def fill_supports(self, tabs):
        for support in SUPPORTS:
            self.window.choose_tab(tabs, support)
            self.fill_page()

    def fill_page(self):
        """Tries every source of a number on the page: a field, a list, a table."""
        self.press_options("_1")
        self.fill_fields()
        self.press_options("_0", KEPT)
        self.fill_fields()
        self.press_options("_0")
        self.fill_fields()
