"""A design is made only through the accessibility interfaces, as by a screen reader or voice control.

The tests set texts, select rows and run actions. They press no key and move no mouse."""

import os

import atspi
from orby import DesktopTest, companion, data_part, lines, press_keys, until

PRIMARY = "Primary Support: Roof Bolts"
ENTRIES = "Secondary Support: Entries"

# The inputs, page by page: a field and its text, a table or list and the selected row, or a check box.
GENERAL = (("check", "chkCMRRManual"), ("text", "txtCMRR", "47"), ("text", "txtDepthofCover", "690"),
           ("text", "txtUnitWeight", "160.5"), ("text", "txtActualSpanDiagonals", "65"),
           ("text", "txtEntryWidth", "18.5"), ("check", "chkPrimSupport"), ("check", "chkSecondSupEntries"),
           ("clear", "chkSecondSupInter"))
BOLTS = (("text", "txtBoltLengthPrimary", "6"), ("text", "txtBoltsperRowPrimary", "5"),
         ("row", "VSFlexGridPrimary", 6))
SYSTEMS = (("check", "chkSecEntries_0"), ("check", "chkSecEntries_3"))
CABLES = (("text", "txtCableLengthSecEntry", "12"), ("item", "cmbCableDiamSecEntry", 1),
          ("text", "txtCableBoltsPerRowSecEntry", "2"), ("text", "txtCableRowSpacingSecEntry", "8"))
STANDS = (("item", "cmbSupportTypeSecEntry", 3), ("text", "txtNumberSupPerRowSecEntry", "2"),
          ("text", "txtSupportRowSpacingSecEntry", "5.5"))


def parts_of(combo):
    """Returns the list and the field of a combo box."""
    (field,) = [node for node in combo.children() if node.role == atspi.TEXT_FIELD]
    (rows,) = [node for node in combo.children() if node.role != atspi.TEXT_FIELD]
    return rows, field


def item_text(rows, number):
    return rows.children()[number].name


class Reader:
    """Uses the controls of a window as a screen reader does."""

    def __init__(self, window):
        self.window = window

    def text(self, name, text):
        field = self.window.control(name)
        field.set_text(text)
        assert field.text == text, (name, field.text)

    def check(self, name):
        self.set_mark(name, True)

    def clear(self, name):
        self.set_mark(name, False)

    def set_mark(self, name, wanted):
        if self.window.is_checked(name) != wanted:
            self.window.press(name)
        until(lambda: self.window.is_checked(name) == wanted, f"the mark of {name}")

    def row(self, name, number):
        self.window.control(name).select_row(number)

    def item(self, name, number):
        rows, field = parts_of(self.window.control(name))
        rows.select_row(number)
        until(lambda: field.text == item_text(rows, number), f"the choice in {name}")

    def turn(self, tab_set, page):
        self.window.choose_tab(tab_set, page)


class Keyboard(Reader):
    """Does the same by keys, except that it opens pages as a screen reader does."""

    def text(self, name, text):
        self.window.type(name, text)

    def set_mark(self, name, wanted):
        self.window.focus(name)
        if self.window.is_checked(name) != wanted:
            press_keys("space")
        until(lambda: self.window.is_checked(name) == wanted, f"the mark of {name}")

    def row(self, name, number):
        # The table follows the option that enables it.
        table = self.window.control(name)
        self.window.focus("optBoltOptionsPrimary_0")
        press_keys("Tab", "Home", *["Down"] * number)
        until(lambda: table.is_row_selected(number), f"row {number} of {name}")

    def item(self, name, number):
        self.window.wait_active()
        rows, field = parts_of(self.window.control(name))
        field.grab_focus()
        until(lambda: field.has(atspi.FOCUSED), f"focus in {name}")
        press_keys(*["Down"] * len(rows.children()), *["Up"] * (len(rows.children()) - 1 - number))
        until(lambda: field.text == item_text(rows, number), f"the choice in {name}")


def fill(hand, acts):
    for kind, name, *value in acts:
        getattr(hand, kind)(name, *value)


def enter_design(hand):
    fill(hand, GENERAL)
    hand.turn("SSTab1", PRIMARY)
    fill(hand, BOLTS)
    hand.turn("SSTab1", ENTRIES)
    fill(hand, SYSTEMS)
    hand.turn("SSTab2", "Cable Bolts")
    fill(hand, CABLES)
    hand.turn("SSTab2", "Standing Supports")
    fill(hand, STANDS)


def read_pages(run, parameters):
    """Returns both pages of the results as the screen reader gets them."""
    parameters.press("cmdresults")
    results = run.window("Calculation Results")
    echo = results.text("RichTextBox1")
    results.press("Command4")
    until(lambda: results.text("RichTextBox1") != echo, "the next page")
    pages = echo + results.text("RichTextBox1")
    results.press("Command1")
    results.wait_gone()
    return pages


class Accessible(DesktopTest):
    def new_design(self, run):
        main = run.main()
        main.choose("File", "New")
        return run.window("Parameters")

    def save(self, run, path):
        """Saves by the menu and the file dialog, with actions and one text."""
        run.main().choose("File", "Save As...")
        dialog = run.window("Save As")
        (field,) = [node for node in dialog.node.walk() if node.role == atspi.TEXT_FIELD and node.has(atspi.SHOWING)]
        (button,) = [node for node in dialog.node.walk() if node.role == atspi.PUSH_BUTTON and node.name == "Save"]
        field.set_text(path)
        until(lambda: button.has(atspi.ENABLED), "the button Save")
        button.act("Press")
        until(lambda: os.path.exists(path), "the file")
        until(lambda: run.caption().endswith(os.path.basename(path)), "the name in the caption")

    def design(self, hand, name):
        """Returns the file of a design entered by `hand`, and the pages of its results."""
        run = self.start()
        parameters = self.new_design(run)
        enter_design(hand(parameters))
        pages = read_pages(run, parameters)
        parameters.press("Command2")
        parameters.wait_gone()
        self.save(run, self.path(name))
        run.main().choose("File", "Exit")
        self.assertEqual(run.wait_end(), 0)
        return self.path(name), pages

    def test_a_design_made_without_keys_and_mouse_has_the_same_report(self):
        by_reader, pages = self.design(Reader, "by reader.ORB")
        by_keys, _ = self.design(Keyboard, "by keys.ORB")

        report = data_part(lines(companion("report", by_keys)))
        self.assertEqual(data_part(lines(companion("report", by_reader))), report)
        self.assertEqual(data_part(pages), report)
        for part in ("47", "690", "160.5", "18.5"):
            self.assertIn(part, report)

    def test_a_text_is_inserted_and_deleted_and_the_results_follow(self):
        run = self.start()
        parameters = self.new_design(run)
        parameters.press("chkCMRRManual")
        for field, text in (("txtCMRR", "52"), ("txtDepthofCover", "820"), ("txtActualSpanDiagonals", "64")):
            node = parameters.control(field)
            node.delete_text(0, len(node.text))
            node.insert_text(0, text[0])
            node.insert_text(1, text[1:])
            self.assertEqual(node.text, text)
        parameters.wait_text("txtSugPSUP", "7.2")

    def test_read_only_controls_cannot_be_changed(self):
        run = self.start()
        parameters = self.new_design(run)
        general, primary = parameters.control("txtDepthofCover"), parameters.control("txtStabilityFactor")
        shown = parameters.text("txtSugPSUP")
        parameters.press("chkPrimSupport")
        until(lambda: not parameters.is_checked("chkPrimSupport"), "no primary support")

        parameters.control("txtSugPSUP").set_text("9.9")
        parameters.choose_tab("SSTab1", PRIMARY)

        self.assertEqual(parameters.text("txtSugPSUP"), shown)
        self.assertTrue(general.has(atspi.SHOWING))
        self.assertFalse(primary.has(atspi.SHOWING))
        parameters.press("chkPrimSupport")
        parameters.choose_tab("SSTab1", PRIMARY)
        until(lambda: primary.has(atspi.SHOWING), "the page of the roof bolts")

    def test_a_nested_frame_has_its_own_name(self):
        run = self.start()
        parameters = self.new_design(run)
        for name, title in (("fraGeology", "Geology"), ("fraCMRR", "Coal Mine Roof Rating")):
            frame = parameters.control(name)
            self.assertEqual(frame.role, atspi.PANEL)
            self.assertEqual(frame.name, title)
            self.assertEqual(frame.labels, [])
