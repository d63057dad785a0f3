"""Runs one module of tests on a desktop of its own: session.py MODULE.

The desktop is a display without a screen, a window manager, a message bus and a home; all of it ends with the tests.
"""

import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))


def start_display():
    """The display server and the number of its display, which it chose itself."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
                              pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as numbers:
        number = numbers.readline().strip()
    if not number:
        server.wait()
        sys.exit("Xvfb does not start")
    return server, number


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
    with tempfile.TemporaryDirectory(prefix="orby-desktop-") as folder:
        server, display = start_display()
        environment = desktop_environment(folder, display)
        manager = subprocess.Popen(["openbox"], env=environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        # The bus and all that it starts end with the tests; what they say is no result.
        told = os.dup(1)
        try:
            return subprocess.call(
                ["dbus-run-session", "--", sys.executable, __file__, module, str(told)], env=environment,
                pass_fds=[told], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        finally:
            end(manager)
            end(server)


def run_inside(module, told):
    for stream in (1, 2):
        os.dup2(int(told), stream)
    unittest.main(module, argv=[module], verbosity=2)


if __name__ == "__main__":
    if len(sys.argv) == 2:
        sys.exit(run_tests(sys.argv[1]))
    run_inside(*sys.argv[1:])
