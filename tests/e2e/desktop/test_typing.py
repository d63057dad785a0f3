"""No text in a number field of the general tab or of primary support ends the run."""

from parameter_fields import ParameterFieldsTest, support_of


class TypingParameters(ParameterFieldsTest):
    def test_no_text_in_a_field_ends_the_run(self):
        self.open_parameters(lambda name: support_of(name) is None)
        self.fill_fields()
        self.window.choose_tab("SSTab1", "Primary Support: Roof Bolts")
        self.fill_page()
        self.leave_parameters()
