"""Runs one module of tests on a desktop of its own: session.py MODULE.

The desktop is a display without a screen, a window manager, a message bus and a home; all of it ends with the tests.
"""

import contextlib
import os
import subprocess
import sys
import tempfile
import time
import unittest

# The low numbers are those of people's screens, and of what is started by hand.
FIRST_DISPLAY = 1000
DISPLAYS = 50000
TRIES = 20

HERE = os.path.dirname(os.path.abspath(__file__))
PATIENCE = 60  # seconds until something that does not start counts as a failure, however loaded the machine is


# Of modules that are not about the usual screen.
SCREENS = {"test_small_screen": "1024x600x24"}


def start_display(module):
    """The display server and the number of its display, which no other program is likely to use or to go to."""
    first = FIRST_DISPLAY + os.getpid() % DISPLAYS
    for number in range(first, first + TRIES):
        server = start_server(str(number), SCREENS.get(module, "1366x768x24"))
        if server:
            return server, str(number)
    sys.exit("Xvfb does not start")


def start_server(number, screen):
    """The server of this display once it is ready for clients; None when it cannot have the number."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", ":" + number, "-displayfd", str(writer), "-screen", "0", screen,
                               "-nolisten", "tcp"], pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as told:
        if told.readline().strip() == number:
            return server
    end(server)
    return None


def start_window_manager(folder, environment):
    """The window manager, ready for windows: one that is shown before may never come up."""
    ready = os.path.join(folder, "managed")
    manager = subprocess.Popen(["openbox", "--startup", f"touch {ready}"], env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    deadline = time.monotonic() + PATIENCE
    while not os.path.exists(ready):
        if time.monotonic() > deadline:
            end(manager)
            sys.exit("openbox does not start")
        time.sleep(0.01)
    return manager


def end(process):
    process.terminate()
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def desktop_environment(folder, display):
    environment = {name: value for name, value in os.environ.items()
                   if not name.startswith(("QT_", "XDG_", "DBUS_", "LC_", "LANG", "WAYLAND_"))}
    if "ASAN_OPTIONS" in environment:
        # The library of keyboard layouts copies texts whose length it knows from where no end is marked.
        environment["ASAN_OPTIONS"] += ":strict_string_checks=0"
        # A message on its way over the bus when the program ends is the bus library's to free, and it does not.
        environment["LSAN_OPTIONS"] = f"suppressions={os.path.join(HERE, 'leaks_of_others.txt')}:print_suppressions=0"
    runtime = os.path.join(folder, "runtime")
    os.mkdir(runtime, 0o700)
    return environment | {
        "DISPLAY": ":" + display,
        "HOME": folder,
        "LC_ALL": os.environ.get("LC_ALL", "C.UTF-8"),
        "ORBY_ACCESSIBLE_IDS": "1",
        "PYTHONDONTWRITEBYTECODE": "1",
        "PYTHONPATH": HERE,
        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        "QT_QPA_PLATFORM": "xcb",
        "TMPDIR": folder,
        "XDG_RUNTIME_DIR": runtime,
    }


def run_tests(module):
    with contextlib.ExitStack() as ending:
        folder = ending.enter_context(tempfile.TemporaryDirectory(prefix="orby-desktop-"))
        server, display = start_display(module)
        ending.callback(end, server)
        environment = desktop_environment(folder, display)
        ending.callback(end, start_window_manager(folder, environment))
        # The bus and all that it starts end with the tests; what they say is no result.
        told = os.dup(1)
        return subprocess.call(
            ["dbus-run-session", "--", sys.executable, __file__, module, str(told)], env=environment, pass_fds=[told],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def run_inside(module, told):
    for stream in (1, 2):
        os.dup2(int(told), stream)
    unittest.main(module, argv=[module], verbosity=2)


if __name__ == "__main__":
    if len(sys.argv) == 2:
        sys.exit(run_tests(sys.argv[1]))
    run_inside(*sys.argv[1:])
