"""Types and pastes odd texts into every number field of a dialog."""

import itertools
import os
import subprocess

import atspi
from orby import PATIENCE, DesktopTest, Window, press_keys, until, xdotool

TEXT = 61  # the role of an input line
RADIO = 44
TABLE = "org.a11y.atspi.Table"
LIST = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data", "number_fields.txt")
LOOKS = 100  # reads of the typed text before the keys are pressed again

PASTED = ("1E400", "-", "\u00e9", "1,5", "1E40")  # the last one fails every check


def listed(form):
    """Returns the names of the number fields of a form."""
    with open(LIST, encoding="ascii") as file:
        return {name for owner, name in map(str.split, file) if owner == form}


def fill_clipboard(text):
    subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), stdout=subprocess.DEVNULL, check=True,
                   timeout=PATIENCE)


class NumberFieldsTest(DesktopTest):
    """Visits all number fields of a dialog, page by page. `left` has the fields that are still to be visited."""

    def enter(self, run, window, form, ours=lambda name: True):
        self.run_, self.window = run, window
        self.left = set(filter(ours, listed(form)))
        self.assertTrue(self.left)

    def nodes(self):
        """Returns the controls of the window by name."""
        return {node.description: node for node in self.window.node.walk() if node.description}

    @staticmethod
    def can_be_used(node):
        return node.has(atspi.SHOWING) and node.has(atspi.ENABLED)

    def press_options(self, suffix, but=()):
        """Presses the options with this suffix in turn. One may make the next one visible."""
        for name, node in self.nodes().items():
            if node.role == RADIO and name.endswith(suffix) and not name.startswith(but) and self.can_be_used(node):
                node.act("Press", "Toggle")

    def fill_fields(self):
        """Types and pastes into the remaining fields that are usable now."""
        nodes = self.nodes()
        fields = [name for name in sorted(self.left & nodes.keys()) if self.can_be_used(nodes[name])]
        self.try_fields({name: nodes[name] for name in fields})
        self.left.difference_update(fields)

    def try_fields(self, fields):
        lines = {name: self.line_of(node) for name, node in fields.items()}
        self.try_text(fields, lines, "0.9", lambda: xdotool("key", "ctrl+a", "type", "--delay", "2", "0.9"))
        self.try_text(fields, lines, "", lambda: press_keys("ctrl+a", "BackSpace"))
        for text in PASTED:
            fill_clipboard(text)
            self.try_text(fields, lines, text, lambda: press_keys("ctrl+a", "ctrl+v"))

    def try_text(self, fields, lines, text, act):
        for name, node in fields.items():
            self.assert_alive()
            lines[name].grab_focus()
            until(lambda: node.has(atspi.FOCUSED) or lines[name].has(atspi.FOCUSED), f"focus in {name}")
            self.act_until(act, lambda: lines[name].text == text, f"{text!r} in {name}")
        self.assert_alive()

    @staticmethod
    def act_until(act, condition, what):
        """Presses keys until they take effect. The program may notice a new clipboard only after the paste keys."""
        act()
        looks = itertools.count(1)
        until(lambda: condition() or (next(looks) % LOOKS == 0 and act()), what)

    def fill_table(self, table, field):
        """Does the same in the field over the selected cell while the table has the focus."""
        node = self.window.control(table)
        left, top, width, height = self.cell(node, 0, 1).box
        xdotool("mousemove", left + width // 2, top + height // 2, "click", 1)
        for text in ("0.9", *PASTED):
            fill_clipboard(text)

            def fill():
                if text == "0.9":
                    xdotool("key", "ctrl+a", "type", "--delay", "2", text)
                else:
                    press_keys("ctrl+a", "BackSpace", "ctrl+v")
                press_keys("Tab", "shift+Tab")

            self.act_until(fill, lambda: self.cell(node, 0, 1).name == text, f"{text!r} in the first cell of {table}")
            self.assert_alive()
        self.left.remove(field)

    @staticmethod
    def cell(table, row, column):
        owner, path = table.call(TABLE, "GetAccessibleAt", "(ii)", row, column)[0]
        return atspi.Node(table.bus, owner, path)

    @staticmethod
    def line_of(node):
        """Returns the input line. In a list with a text field it is a child."""
        if node.role == TEXT:
            return node
        (line,) = [child for child in node.children() if child.role == TEXT]
        return line

    def assert_alive(self):
        """Asserts that the program runs and no message is open."""
        self.assertIsNone(self.run_.process.poll(), "the program has ended")
        texts = [part.name for node in self.run_.windows() if node.role == atspi.ALERT for part in node.walk()]
        self.assertEqual(texts, [])

    def press_and_answer(self, button):
        """Presses a button that checks the fields, and closes its message."""
        self.window.press(button)
        self.run_.box()
        while self.has_box():
            node, text, buttons = self.run_.box()
            self.assertNotIn("Run-time error", text)
            buttons["OK"].act("Press")
            Window(node).wait_gone()

    def has_box(self):
        return any(node.role == atspi.ALERT for node in self.run_.windows())

    def leave(self, button):
        self.assertEqual(self.left, set(), "fields that were not reached")
        self.window.wait_active()
        self.window.press(button)
        self.window.wait_gone()

    def quit(self):
        self.run_.quit()
        self.assertEqual(self.run_.wait_end(), 0)
