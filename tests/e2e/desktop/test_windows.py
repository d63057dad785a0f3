"""The program for Windows under Wine: installed in silence, used, killed and started again, and removed.

Wine's windows have no accessibility tree here: the test presses keys and looks at titles, files and the clipboard.
"""

import glob
import hashlib
import os
import re
import shlex
import shutil
import signal
import ssl
import struct
import subprocess
import unittest

from orby import (EXAMPLES, TITLE, clipboard, companion, front_window, lines, press_keys, take_picture, until, words_of,
                  xdotool)
from update_server import UpdateServer

WINE = os.environ["WINE"]
WINE_SERVER = os.environ["WINE_SERVER"]
SETUP = os.environ["ORBY_SETUP"]

# Families that every Windows has, and those of the same widths that stand in for them here.
FONTS = {"Arial": "Liberation Sans", "Courier New": "Liberation Mono", "Segoe UI": "Liberation Sans",
         "Tahoma": "Liberation Sans", "MS Shell Dlg 2": "Liberation Sans", "MS Shell Dlg": "Liberation Sans"}

NOT_OURS = (r"\Software\Wine", r"\Explorer", r"\Software\QtProject")

SECOND_CURVE = (760, 182)  # in the results window

LONGEST = 300  # seconds that an installation may take on a loaded machine
CERTIFICATES = os.path.join(os.path.dirname(__file__), "..", "..", "data", "certificates")
TRUSTED = r"HKLM\Software\Microsoft\SystemCertificates\Root\Certificates"
ORB_COMMAND = "ORB_File\\shell\\open\\command"


def in_front(title):
    """Waits for the active window with this title, which may be a pattern.

    The window manager does not always activate the window behind a dialog of Windows itself. Then it is asked to.
    """
    def is_in_front():
        front = front_window()
        if not front:
            subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$", "windowactivate"],
                           capture_output=True)
        return re.fullmatch(title, front)

    until(is_in_front, f"window {title!r} in front")


def type_over(text):
    press_keys("Home", "shift+End")
    xdotool("type", "--delay", "5", text)


def windows_path(path):
    return "Z:" + path.replace("/", "\\")


def curve_on_screen():
    """Returns the pixels at the second curve of the list, in the window in front."""
    geometry = ["xdotool", "getactivewindow", "getwindowgeometry", "--shell"]
    answer = subprocess.run(geometry, capture_output=True, check=True)
    place = dict(line.split("=") for line in answer.stdout.decode().split())
    x, y = (int(place[axis]) + offset for axis, offset in zip("XY", SECOND_CURVE))
    return subprocess.run(["import", "-window", "root", "-crop", f"40x10+{x}+{y}", "rgb:-"], capture_output=True,
                          check=True).stdout


class WindowsProgram(unittest.TestCase):
    """A user of a new Windows who has the installer."""

    @classmethod
    def setUpClass(cls):
        cls.home = os.environ["HOME"]
        cls.drive = os.path.join(cls.home, "wine", "drive_c")
        os.environ["WINEPREFIX"] = os.path.join(cls.home, "wine")
        cls.wine("wineboot", "--init")
        for family, present in FONTS.items():
            cls.wine("reg", "add", r"HKCU\Software\Wine\Fonts\Replacements", "/v", family, "/d", present, "/f")
        cls.addClassCleanup(subprocess.run, [WINE_SERVER, "-k"])

    @staticmethod
    def wine(*words):
        """Returns the output of a program of Windows after its end."""
        answer = subprocess.run([WINE, *words], capture_output=True, check=True, timeout=LONGEST)
        return answer.stdout.decode("utf-8", "replace").replace("\r\n", "\n")

    def registry(self):
        """Returns the user's entries as texts: key, name, type and value.

        Leaves out what Windows keeps on programs, and the toolkit on its file dialogs for all programs that use it.
        """
        entries, key = set(), ""
        for line in self.wine("reg", "query", r"HKCU\Software", "/s").splitlines():
            if line.startswith("HKEY"):
                key = line
            elif line.strip() and not any(part in key for part in NOT_OURS):
                entries.add(key + "\\" + re.sub(" {2,}", " ", line.strip()))
        return entries

    def installed(self, *parts):
        (folder,) = glob.glob(os.path.join(self.drive, "users", "*", "AppData", "Local", "Programs", "Orby"))
        return os.path.join(folder, *parts)

    def setUp(self):
        self.addCleanup(xdotool, "mousemove", 0, 0)

    def tearDown(self):
        result = self._outcome.result
        if any(test is self for test, _ in result.failures + result.errors):
            take_picture("failed-windows")

    def test_is_installed_used_and_removed(self):
        before = self.registry()
        self.wine(SETUP, "/S")
        added = self.registry() - before
        self.check_installation(added)
        self.start_from_the_menu()
        design = self.open_by_association()
        self.edit_print_and_save(design)
        self.come_back_after_a_kill(design)
        self.update()
        self.remove(before, design)

    def check_installation(self, added):
        print(*sorted(added), sep="\n")
        for name in ("orby.exe", "orby-cli.exe", "ORBY.CHM", "ORBY.PDF", "uninstall.exe", "licences/GPL-3"):
            self.assertTrue(os.path.exists(self.installed(name)), name)
        self.assertEqual(sorted(os.listdir(self.installed("examples"))), sorted(os.listdir(EXAMPLES)))
        self.assertTrue(any(ORB_COMMAND in entry and 'orby.exe" "%1"' in entry for entry in added), added)
        self.assertTrue(any("QuietUninstallString" in entry for entry in added), added)
        expected = re.compile(r"\\Classes\\\.ORB|\\Classes\\ORB_File|\\Uninstall\\Orby")
        outside = [entry for entry in added if not expected.search(entry)]
        self.assertEqual(outside, [], "nothing else is in the registry")

    def accept_disclaimer(self):
        in_front("Disclaimer")
        press_keys("Return")

    def quit(self):
        press_keys("alt+f", "x")

    def wait_for_end(self):
        """Waits until no program of Windows runs any more."""
        subprocess.run([WINE_SERVER, "-w"], check=True, timeout=LONGEST)

    def start_from_the_menu(self):
        (link,) = glob.glob(os.path.join(self.drive, "users", "*", "AppData", "Roaming", "Microsoft", "Windows",
                                         "Start Menu", "Programs", TITLE + ".lnk"))
        subprocess.run([WINE, "start", "/unix", link], check=True, timeout=LONGEST, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        self.accept_disclaimer()
        in_front(TITLE + ".*")
        take_picture("windows-main")
        for letter, title in (("o", "Options"), ("s", "Settings")):
            press_keys("alt+u", letter)
            in_front(title)
            take_picture("windows-" + title.lower())
            press_keys("Escape")
            in_front(TITLE + ".*")
        self.quit()
        self.wait_for_end()

    def open_by_association(self):
        """Opens a copy of an example by the command of its type, and returns its path.

        Wine's own shell does not look at the types of a user.
        """
        design = os.path.join(self.home, "Panel \u00e4 \u0416.ORB")
        shutil.copy(os.path.join(EXAMPLES, "development-entry.ORB"), design)
        (command,) = [entry.partition("REG_SZ ")[2] for entry in self.registry() if ORB_COMMAND in entry]
        program, argument = shlex.split(command.replace("\\", "\\\\"))
        self.start(program, argument.replace("%1", windows_path(design)))
        in_front("Parameters - .*")
        take_picture("windows-parameters")
        return design

    def edit_print_and_save(self, design):
        press_keys("alt+d")
        type_over("720")
        press_keys("alt+r")
        in_front("Calculation Results - .*")
        press_keys("alt+n")
        take_picture("windows-results")
        press_keys("alt+y")
        report = until(lambda: "[ORBY DESIGN]" in clipboard() and lines(clipboard()), "the report in the clipboard")
        self.print_report()
        self.look_at_a_curve()
        press_keys("alt+l")
        in_front("Parameters - .*")
        press_keys("Return")
        in_front(TITLE + ".*")
        saved_before = os.stat(design).st_mtime_ns
        press_keys("ctrl+s")
        until(lambda: os.stat(design).st_mtime_ns != saved_before, "the saved file")
        self.quit()
        self.wait_for_end()
        pages = lines(companion("report", design)).replace("\f", "")
        self.assertEqual(report[report.index("[GEOLOGY"):], pages[pages.index("[GEOLOGY"):])
        self.assertIn("720", pages)

    def look_at_a_curve(self):
        """Clicks on the second curve of the list that appears at the right."""
        before = curve_on_screen()
        press_keys("alt+g")
        until(lambda: curve_on_screen() != before, "the list of curves")
        xdotool("getactivewindow", "mousemove", "--window", "%1", *SECOND_CURVE, "click", 1)
        in_front("Graph - .*")
        take_picture("windows-graph")
        press_keys("alt+F4")
        in_front("Calculation Results - .*")

    def print_report(self):
        """Prints to a PDF file: this Windows has no printer."""
        pdf = os.path.join(self.home, "plan.pdf")
        press_keys("alt+a")
        in_front("Print to File")
        type_over(windows_path(pdf))
        take_picture("windows-print")
        press_keys("Return")
        words = until(lambda: os.path.exists(pdf) and words_of(pdf), "the PDF file")
        self.assertIn("PSUP", words)
        in_front("Calculation Results - .*")

    def come_back_after_a_kill(self, design):
        program = self.start(self.installed("orby.exe"), windows_path(design))
        in_front("Parameters - .*")
        press_keys("alt+d")
        type_over("777")
        until(lambda: any("777" in self.kept(name) for name in self.recovery_files()), "the recovery file")
        program.send_signal(signal.SIGKILL)
        program.wait()
        self.wait_for_end()
        self.start(self.installed("orby.exe"))
        in_front(TITLE)
        take_picture("windows-recovery")
        press_keys("y")
        in_front(TITLE + r": .*\.ORB\*")
        press_keys("alt+i", "p")
        in_front("Parameters - .*")
        press_keys("alt+d", "ctrl+a", "ctrl+c")
        until(lambda: clipboard() == "777", "the depth that was typed before the kill")
        press_keys("Escape")
        in_front(TITLE + ".*")
        self.quit()
        in_front(TITLE)
        press_keys("n")
        self.wait_for_end()

    def trust(self, certificate):
        """Makes Windows trust the servers with this certificate, which an administrator can do."""
        with open(certificate, encoding="ascii") as file:
            bytes_of = ssl.PEM_cert_to_DER_cert(file.read())
        certificate_property, always = 32, 1
        blob = struct.pack("<III", certificate_property, always, len(bytes_of)) + bytes_of
        self.wine("reg", "add", TRUSTED + "\\" + hashlib.sha1(bytes_of).hexdigest().upper(), "/v", "Blob", "/t", "REG_BINARY",
                  "/d", blob.hex(), "/f")

    def update(self):
        """Downloads the installer over a secure line as that of a newer version, and installs it over the program."""
        certificate, key = (os.path.join(CERTIFICATES, "here." + part) for part in ("crt", "key"))
        self.trust(certificate)
        with UpdateServer(certificate, key) as server:
            with open(SETUP, "rb") as file:
                setup = file.read()
            server.files["orby_version.txt"] = f"1.0.01,{hashlib.sha256(setup).hexdigest()}".encode()
            server.files["ORBY1.0.01.exe"] = setup
            os.environ["ORBY_UPDATE_SERVER"] = server.address
            self.addCleanup(os.environ.pop, "ORBY_UPDATE_SERVER")
            os.remove(self.installed("licences", "GPL-3"))
            program = self.start(self.installed("orby.exe"))
            in_front(TITLE)
            press_keys("y")
            in_front("Program Updates")
            press_keys("alt+d")
            arrived = os.path.join(self.drive, "users", "*", "Downloads", "ORBY1.0.01.exe")
            until(lambda: glob.glob(arrived), "the installer")
            take_picture("windows-update")
            press_keys("alt+i")
            in_front(TITLE)
            press_keys("Return")
            program.wait(LONGEST)
        in_front(TITLE + " Setup")
        take_picture("windows-setup")
        press_keys("alt+n")
        take_picture("windows-setup-parts")
        press_keys("alt+n", "alt+i")
        # Of no use before the end of the installation.
        until(lambda: press_keys("alt+f") or front_window() == "Disclaimer", "the program that the installer starts")
        self.assertTrue(os.path.exists(self.installed("licences", "GPL-3")), "what was missing is installed again")
        self.accept_disclaimer()
        in_front(TITLE + ".*")
        self.open_by_the_dialog()
        self.quit()
        self.wait_for_end()

    def open_by_the_dialog(self):
        """Opens a copy of an example by its name without extension."""
        shutil.copy(os.path.join(EXAMPLES, "weak-roof.ORB"), self.home)
        press_keys("ctrl+o")
        in_front("")  # Wine's dialog has no title
        type_over(windows_path(os.path.join(self.home, "weak-roof")))
        take_picture("windows-open")
        press_keys("Return")
        in_front("Parameters - .*")
        press_keys("Escape")
        in_front(TITLE + r".*weak-roof\.ORB")

    def start(self, *words):
        """Starts the program and returns its process. Accepts the disclaimer."""
        program = subprocess.Popen([WINE, *words])
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        self.accept_disclaimer()
        return program

    def recovery_files(self):
        folder = os.path.join(self.drive, "users", "*", "Documents", "MyStrataDesk", "ORBY", "Temp")
        return glob.glob(os.path.join(folder, "~recover?.tmp"))

    @staticmethod
    def kept(recovery_file):
        with open(recovery_file, encoding="latin-1") as file:
            return file.read().split("\n")

    def remove(self, before, design):
        """Removes the program as Windows does, with a project of the user beside the examples."""
        folder = self.installed()
        kept = os.path.join(folder, "examples", "my panel.ORB")
        shutil.copy(design, kept)
        (command,) = [entry.partition("REG_SZ ")[2] for entry in self.registry() if "QuietUninstallString" in entry]
        self.wine(*shlex.split(command.replace("\\", "\\\\")))
        self.wait_for_end()
        left = [os.path.join(place, name) for place, _, names in os.walk(folder) for name in names]
        self.assertEqual(left, [kept])
        self.assertEqual(self.registry() - before, set())
        self.assertTrue(os.path.exists(design))


if __name__ == "__main__":
    unittest.main()
