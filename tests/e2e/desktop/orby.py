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

PATIENCE = 60  # seconds until something that does not happen counts as a failure, however loaded the machine is
TITLE = "Orby Roof Support Workbench"


def until(condition, what):
    """Waits for the condition and gives what it gave."""
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
    """The title of the window that the window manager gives the keys to."""
    answer = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True, timeout=PATIENCE)
    return answer.stdout.decode().removesuffix("\n")


def bring_to_front(title):
    """Asks the window manager for the window of this title."""
    subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$", "windowactivate"],
                   capture_output=True, timeout=PATIENCE)


def settle_window_manager():
    """Waits until the window manager has dealt with all that has happened so far.

    The windows of a program have the numbers of those of a program that has ended, and what the window manager is late
    to hear of the old ones it would do to the new ones.
    """
    def desktops():
        answer = subprocess.run(["xdotool", "get_num_desktops"], capture_output=True, check=True, timeout=PATIENCE)
        return int(answer.stdout)

    other = 5 if desktops() == 4 else 4
    xdotool("set_num_desktops", other)
    until(lambda: desktops() == other, "an answer of the window manager")


def clipboard():
    """The text of the clipboard; empty while there is none."""
    answer = subprocess.run(["xclip", "-o", "-selection", "clipboard"], capture_output=True, timeout=PATIENCE)
    return answer.stdout.decode()


def companion(*words):
    """What orby-cli prints for these words."""
    answer = subprocess.run([COMPANION, *words], capture_output=True, check=True, timeout=PATIENCE)
    return answer.stdout.decode()


def take_picture(name, *options):
    """Leaves a picture of the screen in the build folder."""
    os.makedirs(PICTURES, exist_ok=True)
    subprocess.run(["import", "-window", "root", *options, os.path.join(PICTURES, name + ".png")], check=True,
                   timeout=PATIENCE)


def lines(text):
    """The text with the line ends of the toolkit's text boxes."""
    return text.replace("\r\n", "\n")


def data_part(report):
    """The report without the name of its file, the title and the description."""
    return report[report.index("[GEOLOGY PARAMETERS]"):]


class Window:
    """A window on the screen; its controls are found by their names."""

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
        """An entry of a menu of this window."""
        (found,) = [node for node in self.node.walk() if node.role == atspi.MENU and node.name == menu]
        (item,) = [node for node in found.walk() if node.role == atspi.MENU and node.name == entry]
        item.act("Press")

    def choose_curve(self, number):
        """A curve of the list in the results window, by the keyboard."""
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
        """Waits until the window is in front for the program and for the window manager: a key is lost in between.

        On a loaded machine the window manager may have given the keys to nobody; then it is asked, as by a click.
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
        """Leaves a picture of the window in the build folder."""
        left, top, width, height = self.node.box
        take_picture(name, "-crop", f"{width}x{height}+{left}+{top}", "+repage")


def state_of(process):
    """The letter for what a process is doing; Z once it has ended."""
    try:
        with open(f"/proc/{process}/stat", encoding="utf-8") as file:
            return file.read().rpartition(")")[2].split()[0]
    except FileNotFoundError:
        return "Z"


class Grandchild:
    """A process that the program started, with the part of Popen that a run needs."""

    def __init__(self, process):
        self.pid = process

    def poll(self):
        """None while it runs. Its status is known to its own parent alone."""
        return 0 if state_of(self.pid) == "Z" else None

    def send_signal(self, number):
        os.kill(self.pid, number)

    def wait(self, _patience=PATIENCE):
        until(lambda: self.poll() is not None, "the end of a process")


def started_again(home):
    """The run in this home that was started by one that ended by an error; None while there is none."""
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
        """The windows that are on the screen."""
        return [node for node in self.root.children()
                if node.role in atspi.WINDOW_ROLES and node.has(atspi.SHOWING)]

    def find(self, title):
        for node in self.windows():
            if node.name == title:
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
        """Accepts the disclaimer if the program begins with it."""
        first = until(lambda: self.find("Disclaimer") or self.find_main(), "the first window")
        if first.node.name == "Disclaimer":
            first.wait_active()
            first.press("Command1")
            first.wait_gone()

    def caption(self):
        return self.main().node.name

    def box(self):
        """The message box on the screen: its window, its text and its buttons by their names."""

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
        """Presses a button of the message box that says this, a text or a pattern of the whole text."""
        node, shown, buttons = self.box()
        if not (text.fullmatch(shown) if isinstance(text, re.Pattern) else shown == text):
            raise AssertionError(f"the box says {shown!r}, not {text!r}")
        buttons[button].act("Press")
        Window(node).wait_gone()

    def keys(self, *keys):
        """Keys for the main window."""
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
        """Stops the program at once, and kills it when the window manager has put up what the program has shown.

        A window that ends before the window manager puts it up stays in the window manager's list for good. The window
        of a later run that has the same number then never comes up.
        """
        self.process.send_signal(signal.SIGSTOP)
        until(lambda: state_of(self.process.pid) in "TZ", "a stopped program")
        settle_window_manager()
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def quit(self):
        """Leaves the program by its menu."""
        self.keys("alt+f", "x")


def start_program(bus, home, *arguments, **environment):
    """Starts the program in the home of a user."""
    environment = {**os.environ, "HOME": home, **environment}
    settle_window_manager()
    return Run(bus, subprocess.Popen([PROGRAM, *arguments], cwd=home, env=environment))


class DesktopTest(unittest.TestCase):
    """A user with an empty home."""

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
        """Starts the program; what it begins with is accepted unless the test is about that."""
        run = start_program(self.bus, self.home, *arguments, **environment)
        self.runs.append(run)
        if accepts:
            run.accept_disclaimer()
        return run

    def next_run(self):
        """The run that the program has started by itself."""
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
