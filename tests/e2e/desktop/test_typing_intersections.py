"""No text in a number field of the secondary support of intersections ends the run."""

from parameter_fields import ParameterFieldsTest, support_of


class TypingParameters(ParameterFieldsTest):
    def test_no_text_in_a_field_ends_the_run(self):
        self.open_parameters(lambda name: support_of(name) == "intersections")
        self.window.choose_tab("SSTab1", "Secondary Support: Intersections")
        self.fill_supports("SSTab3")
        self.leave_parameters()
