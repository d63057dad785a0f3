"""No text in a number field of the secondary support of entries ends the run."""

from parameter_fields import ParameterFieldsTest, support_of


class TypingParameters(ParameterFieldsTest):
    def test_no_text_in_a_field_ends_the_run(self):
        self.open_parameters(lambda name: support_of(name) == "entries")
        self.window.choose_tab("SSTab1", "Secondary Support: Entries")
        self.fill_supports("SSTab2")
        self.leave_parameters()
