"""Runs one module of tests on a private desktop: session.py MODULE.

The desktop is a virtual display, a window manager, a message bus and a home folder. All of it ends with the tests.
"""

import contextlib
import os
import subprocess
import sys
import tempfile
import time
import unittest

# Low display numbers belong to real screens and to programs started by hand.
FIRST_DISPLAY = 1000
DISPLAYS = 50000
TRIES = 20

HERE = os.path.dirname(os.path.abspath(__file__))
PATIENCE = 60  # seconds before a program that does not start counts as a failure, even on a loaded machine


# The screens of modules that do not use the usual one.
SCREENS = {"test_small_screen": "1024x600x24"}


def start_display(module):
    """Starts the display server and returns it with its display number, which other programs are unlikely to use."""
    first = FIRST_DISPLAY + os.getpid() % DISPLAYS
    for number in range(first, first + TRIES):
        server = start_server(str(number), SCREENS.get(module, "1366x768x24"))
        if server:
            return server, str(number)
    sys.exit("Xvfb does not start")


def start_server(number, screen):
    """Returns the server of this display when it is ready, or None if the number is taken."""
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
    """Starts the window manager and waits until it is ready. A window that opens earlier may never be shown."""
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
        # The keyboard layout library copies texts of known length that have no terminator.
        environment["ASAN_OPTIONS"] += ":strict_string_checks=0"
        # The bus library does not free a message that is in transit when the program ends.
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
        # The output of the bus and its services is not part of the result.
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
