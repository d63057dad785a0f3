"""Reads the tree of accessible objects of a running program over the bus that screen readers use."""

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
EDITABLE_TEXT = "org.a11y.atspi.EditableText"
TABLE = "org.a11y.atspi.Table"
TEXT = "org.a11y.atspi.Text"
PROPERTIES = "org.freedesktop.DBus.Properties"

ROOT = "/org/a11y/atspi/accessible/root"
CALL_TIMEOUT = 60000  # milliseconds; a program on a loaded machine may be busy for long

# Bits of the state.
ACTIVE = 1
CHECKED = 4
ENABLED = 8
FOCUSED = 12
SHOWING = 25

# Relations.
LABELLED_BY = 2

# Roles.
ALERT = 2
COMBO_BOX = 11
DIALOG = 16
FRAME = 23
LABEL = 29
MENU = 35  # also its items
PAGE_TAB_LIST = 38
PANEL = 39  # a frame around controls
PUSH_BUTTON = 43
TABLE_VIEW = 55
TEXT_FIELD = 61
WINDOW_ROLES = (ALERT, DIALOG, FRAME)
CLOSED_ROLES = (COMBO_BOX, TABLE_VIEW)  # their children are no controls


class Gone(Exception):
    """The object or its program no longer exists."""


class Bus:
    """The accessibility bus of this display."""

    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        (address,) = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                       Gio.DBusCallFlags.NONE, CALL_TIMEOUT, None)
        flags = Gio.DBusConnectionFlags
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    def call(self, owner, path, interface, method, signature="()", *arguments):
        try:
            answer = self.connection.call_sync(owner, path, interface, method, GLib.Variant(signature, arguments),
                                               None, Gio.DBusCallFlags.NONE, CALL_TIMEOUT, None)
        except GLib.Error as error:
            raise Gone(f"{interface}.{method}: {error.message}") from error
        return answer.unpack()

    def process_of(self, owner):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "GetConnectionUnixProcessID", "(s)", owner)[0]

    def application(self, process):
        """Returns the root object of this process, or None if it is not on the bus yet."""
        root = Node(self, "org.a11y.atspi.Registry", ROOT)
        for child in root.children():
            try:
                if self.process_of(child.owner) == process:
                    return child
            except Gone:
                continue
        return None


class Node:
    """One accessible object."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def call(self, interface, method, signature="()", *arguments):
        return self.bus.call(self.owner, self.path, interface, method, signature, *arguments)

    def get(self, interface, name):
        return self.call(PROPERTIES, "Get", "(ss)", interface, name)[0]

    def children(self):
        return [Node(self.bus, owner, path) for owner, path in self.call(ACCESSIBLE, "GetChildren")[0]]

    @property
    def name(self):
        return self.get(ACCESSIBLE, "Name")

    @property
    def description(self):
        return self.get(ACCESSIBLE, "Description")

    @property
    def role(self):
        return self.call(ACCESSIBLE, "GetRole")[0]

    def has(self, state):
        words = self.call(ACCESSIBLE, "GetState")[0]
        return bool(words[state // 32] >> state % 32 & 1)

    @property
    def text(self):
        return self.call(TEXT, "GetText", "(ii)", 0, -1)[0]

    def set_text(self, text):
        return self.call(EDITABLE_TEXT, "SetTextContents", "(s)", text)[0]

    def insert_text(self, place, text):
        return self.call(EDITABLE_TEXT, "InsertText", "(isi)", place, text, len(text))[0]

    def delete_text(self, first, end):
        return self.call(EDITABLE_TEXT, "DeleteText", "(ii)", first, end)[0]

    def select_row(self, row):
        """Selects a row of a table or a list. The toolkit supports only the table interface for both."""
        return self.call(TABLE, "AddRowSelection", "(i)", row)[0]

    def is_row_selected(self, row):
        return self.call(TABLE, "IsRowSelected", "(i)", row)[0]

    @property
    def labels(self):
        """Returns the objects that label this one."""
        relations = dict(self.call(ACCESSIBLE, "GetRelationSet")[0])
        return [Node(self.bus, owner, path) for owner, path in relations.get(LABELLED_BY, [])]

    def grab_focus(self):
        return self.call(COMPONENT, "GrabFocus")[0]

    @property
    def box(self):
        """Returns left, top, width and height on the screen."""
        return self.call(COMPONENT, "GetExtents", "(u)", 0)[0]

    def act(self, *wanted):
        """Runs the first of these actions that the object has."""
        known = [entry[0] for entry in self.call(ACTION, "GetActions")[0]]
        for name in wanted:
            if name in known:
                return self.call(ACTION, "DoAction", "(i)", known.index(name))[0]
        raise AssertionError(f"{self.name} knows {known}, not {wanted}")

    def walk(self):
        """Yields all descendants."""
        for child in self.children():
            yield child
            if child.role not in CLOSED_ROLES:
                yield from child.walk()
