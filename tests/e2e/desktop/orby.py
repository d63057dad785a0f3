"""One run of the desktop program, driven from outside as a person with keyboard and mouse would."""

import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

import atspi

PROGRAM = os.environ["ORBY_PROGRAM"]
COMPANION = os.environ["ORBY_CLI"]
EXAMPLES = os.environ["ORBY_EXAMPLES"]
PICTURES = os.environ["ORBY_PICTURES"]

PATIENCE = 60  # seconds before a missing event counts as a failure, even on a loaded machine
TITLE = "Orby Roof Support Workbench"


def until(condition, what):
    """Waits until the condition returns a true value, and returns that value."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            found = condition()
        except atspi.Gone:
            found = None
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.01)


def xdotool(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True, timeout=PATIENCE)


def press_keys(*keys):
    xdotool("key", "--delay", "2", *keys)


def front_window():
    """Returns the title of the window that gets the keys."""
    answer = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True, timeout=PATIENCE)
    return answer.stdout.decode().removesuffix("\n")


def bring_to_front(title):
    """Asks the window manager to activate the window with this title."""
    subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$", "windowactivate"],
                   capture_output=True, timeout=PATIENCE)


def settle_window_manager():
    """Waits until the window manager has handled all events so far.

    A new program's windows may reuse the ids of an ended program's windows. The window manager would then apply late
    events of the old windows to the new ones.
    """
    def desktops():
        answer = subprocess.run(["xdotool", "get_num_desktops"], capture_output=True, check=True, timeout=PATIENCE)
        return int(answer.stdout)

    other = 5 if desktops() == 4 else 4
    xdotool("set_num_desktops", other)
    until(lambda: desktops() == other, "an answer of the window manager")


def clipboard():
    """Returns the text of the clipboard; empty if there is none."""
    answer = subprocess.run(["xclip", "-o", "-selection", "clipboard"], capture_output=True, timeout=PATIENCE)
    return answer.stdout.decode()


def companion(*words):
    """Returns the output of orby-cli for these arguments."""
    answer = subprocess.run([COMPANION, *words], capture_output=True, check=True, timeout=PATIENCE)
    return answer.stdout.decode()


def take_picture(name, *options):
    """Saves a picture of the screen in the build folder."""
    os.makedirs(PICTURES, exist_ok=True)
    subprocess.run(["import", "-window", "root", *options, os.path.join(PICTURES, name + ".png")], check=True,
                   timeout=PATIENCE)


def words_of(pdf):
    """Returns the words of a PDF file, or nothing while it is incomplete."""
    answer = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True)
    return answer.stdout.decode().split() if answer.returncode == 0 else None


def lines(text):
    """Returns the text with the line ends of the toolkit's text boxes."""
    return text.replace("\r\n", "\n")


def data_part(report):
    """Returns the report without file name, title and description."""
    return report[report.index("[GEOLOGY PARAMETERS]"):]


class Window:
    """A window on the screen. Finds its controls by name."""

    def __init__(self, node):
        self.node = node
        self.known = {}

    def control(self, name):
        def find():
            if name not in self.known:
                self.known = {node.description: node for node in self.node.walk()}
            return self.known.get(name)

        return until(find, f"control {name}")

    def text(self, name):
        return self.control(name).text

    def label(self, name):
        return self.control(name).name

    def shows(self, name):
        return self.control(name).has(atspi.SHOWING)

    def is_checked(self, name):
        return self.control(name).has(atspi.CHECKED)

    def press(self, name):
        button = self.control(name)
        until(lambda: button.has(atspi.ENABLED), f"{name} enabled")
        button.act("Press", "Toggle")

    def choose_tab(self, tab_set, caption):
        (bar,) = [node for node in self.control(tab_set).children() if node.role == atspi.PAGE_TAB_LIST]
        (tab,) = [node for node in bar.children() if node.name == caption]
        tab.act("Press")

    def choose(self, menu, entry):
        """Chooses an item of a menu of this window."""
        (found,) = [node for node in self.node.walk() if node.role == atspi.MENU and node.name == menu]
        (item,) = [node for node in found.walk() if node.role == atspi.MENU and node.name == entry]
        item.act("Press")

    def choose_curve(self, number):
        """Chooses a curve in the results window by the keyboard."""
        if not self.shows("lstGraphs"):
            self.press("cmdGraph")
            until(lambda: self.shows("lstGraphs"), "the list of curves")
        self.focus("RichTextBox1")
        press_keys("Tab", "Home", *["Down"] * number, "Return")

    def focus(self, name):
        self.wait_active()
        node = self.control(name)
        until(lambda: node.has(atspi.SHOWING), f"{name} on view")
        node.grab_focus()
        until(lambda: node.has(atspi.FOCUSED), f"focus in {name}")
        return node

    def type(self, name, text):
        node = self.focus(name)
        xdotool("key", "ctrl+a", "type", "--delay", "2", text)
        until(lambda: node.text == text, f"{text!r} in {name}, it has {node.text!r}")

    def wait_text(self, name, text):
        node = self.control(name)
        until(lambda: node.text == text, f"the text in {name}")

    def wait_active(self):
        """Waits until the window is active for the program and for the window manager. A key would be lost in between.

        On a loaded machine the window manager may have activated no window. Then it is asked to, as by a click.
        """
        next_request = time.monotonic() + 3

        def is_in_front():
            nonlocal next_request
            if self.node.has(atspi.ACTIVE) and front_window() == self.node.name:
                return True
            if time.monotonic() > next_request:
                next_request += 3
                bring_to_front(self.node.name)
            return False

        until(is_in_front, f"window {self.node.name!r} in front")

    def wait_gone(self):
        def gone():
            try:
                return not self.node.has(atspi.SHOWING)
            except atspi.Gone:
                return True

        until(gone, "the end of a window")

    def picture(self, name):
        """Saves a picture of the window in the build folder."""
        left, top, width, height = self.node.box
        take_picture(name, "-crop", f"{width}x{height}+{left}+{top}", "+repage")


def state_of(process):
    """Returns the state letter of a process; Z after it has ended."""
    try:
        with open(f"/proc/{process}/stat", encoding="utf-8") as file:
            return file.read().rpartition(")")[2].split()[0]
    except FileNotFoundError:
        return "Z"


class Grandchild:
    """A process that the program started. Has the part of the Popen interface that a run needs."""

    def __init__(self, process):
        self.pid = process

    def poll(self):
        """Returns None while it runs, then 0. Only its parent knows the real status."""
        return 0 if state_of(self.pid) == "Z" else None

    def send_signal(self, number):
        os.kill(self.pid, number)

    def wait(self, _patience=PATIENCE):
        until(lambda: self.poll() is not None, "the end of a process")


def started_again(home):
    """Returns the run in this home that another run started after an error, or None if there is none yet."""
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{name}/environ", "rb") as file:
                variables = file.read().split(b"\0")
        except OSError:
            continue
        is_told = any(variable.startswith(b"ORBY_START_AGAIN=") for variable in variables)
        if is_told and b"HOME=" + home.encode() in variables:
            return Grandchild(int(name))
    return None


class Run:
    """One start of the program."""

    def __init__(self, bus, process):
        self.bus = bus
        self.process = process
        self.root = until(lambda: self.bus.application(self.process.pid), "the program")

    def windows(self):
        """Returns the windows on the screen."""
        return [node for node in self.root.children()
                if node.role in atspi.WINDOW_ROLES and node.has(atspi.SHOWING)]

    def find(self, title):
        """Returns the window with this title. The name of the project may follow it."""
        for node in self.windows():
            if node.name == title or node.name.startswith(title + " - "):
                return Window(node)
        return None

    def window(self, title):
        window = until(lambda: self.find(title), f"window {title!r}")
        window.wait_active()
        return window

    def find_main(self):
        for node in self.windows():
            if node.role == atspi.FRAME and node.name.startswith(TITLE):
                return Window(node)
        return None

    def main(self):
        return until(self.find_main, "the main window")

    def accept_disclaimer(self):
        """Accepts the disclaimer if the program shows it at the start."""
        first = until(lambda: self.find("Disclaimer") or self.find_main(), "the first window")
        if first.node.name == "Disclaimer":
            first.wait_active()
            first.press("Command1")
            first.wait_gone()

    def caption(self):
        return self.main().node.name

    def box(self):
        """Returns the window, the text and the buttons (by name) of the message box on the screen."""

        def find():
            for node in self.windows():
                if node.role == atspi.ALERT:
                    return node
            return None

        node = until(find, "a message box")
        Window(node).wait_active()
        parts = list(node.walk())
        (text,) = [part.name for part in parts if part.role == atspi.LABEL and part.name]
        return node, text, {part.name: part for part in parts if part.role == atspi.PUSH_BUTTON}

    def answer(self, text, button):
        """Presses a button of the message box with this text. `text` may be a pattern of the whole text."""
        node, shown, buttons = self.box()
        if not (text.fullmatch(shown) if isinstance(text, re.Pattern) else shown == text):
            raise AssertionError(f"the box says {shown!r}, not {text!r}")
        buttons[button].act("Press")
        Window(node).wait_gone()

    def keys(self, *keys):
        """Presses keys in the main window."""
        self.main().wait_active()
        press_keys(*keys)

    def give_file_name(self, title, path):
        dialog = self.window(title)
        xdotool("key", "ctrl+a", "type", "--delay", "2", path)
        press_keys("Return")
        dialog.wait_gone()

    def wait_end(self):
        return self.process.wait(PATIENCE)

    def kill(self):
        """Stops the program at once, and kills it after the window manager has mapped its windows.

        A window that is destroyed before the window manager maps it stays in the window manager's list. A later window
        with the same id is then never shown.
        """
        self.process.send_signal(signal.SIGSTOP)
        until(lambda: state_of(self.process.pid) in "TZ", "a stopped program")
        settle_window_manager()
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def quit(self):
        """Ends the program by its menu."""
        self.keys("alt+f", "x")


def start_program(bus, home, *arguments, **environment):
    """Starts the program in this home folder."""
    environment = {**os.environ, "HOME": home, **environment}
    settle_window_manager()
    return Run(bus, subprocess.Popen([PROGRAM, *arguments], cwd=home, env=environment))


class DesktopTest(unittest.TestCase):
    """A user with an empty home folder."""

    @classmethod
    def setUpClass(cls):
        cls.bus = atspi.Bus()

    def setUp(self):
        xdotool("mousemove", 0, 0)
        self.home = tempfile.mkdtemp(prefix="home-")
        self.addCleanup(shutil.rmtree, self.home)
        self.data = os.path.join(self.home, "Documents", "MyStrataDesk", "ORBY")
        self.runs = []
        self.addCleanup(self.end_runs)

    def tearDown(self):
        result = self._outcome.result
        if any(test is self for test, _ in result.failures + result.errors):
            take_picture("failed-" + self.id())

    def end_runs(self):
        for run in self.runs:
            if run.process.poll() is None:
                run.kill()

    def start(self, *arguments, accepts=True, **environment):
        """Starts the program. Accepts the disclaimer unless the test is about it."""
        run = start_program(self.bus, self.home, *arguments, **environment)
        self.runs.append(run)
        if accepts:
            run.accept_disclaimer()
        return run

    def next_run(self):
        """Returns the run that the program started by itself."""
        run = Run(self.bus, until(lambda: started_again(self.home), "the program started again"))
        self.runs.append(run)
        run.accept_disclaimer()
        return run

    def path(self, *parts):
        return os.path.join(self.home, *parts)

    def example(self, name):
        return os.path.join(EXAMPLES, name + ".ORB")

    def copy_example(self, name, target):
        shutil.copy(self.example(name), self.path(target))
        return self.path(target)

    def configuration(self):
        with open(os.path.join(self.data, "ORBY.INI"), encoding="cp1252", newline="") as file:
            return file.read()

    def recovery_files(self):
        folder = os.path.join(self.data, "Temp")
        return sorted(name for name in os.listdir(folder) if re.fullmatch(r"~recover\d\.tmp", name))
