"""New versions from a server on this machine: offered, downloaded, and started only if they are the published ones."""

import hashlib
import os

from orby import DesktopTest, until
from update_server import FILES, UpdateServer

SETUP = b"#!/bin/sh\nexit 0\n" * 1000
SUM = hashlib.sha256(SETUP).hexdigest()
QUESTION = ("A new ORBY version is available. \nNote that in order to download and install you may need administrator "
            "priviledges and/or Windows may ask you for permission to do so. \nProceed with Download and Install?")
CLOSING = ("ORBY will now close to install the new update. You may be asked to grant permission to Windows to allow "
           "installation of the new version. ")


class Update(DesktopTest):
    def setUp(self):
        super().setUp()
        self.server = self.enterContext(UpdateServer())
        self.opened = self.path("opened")
        self.setup_file = self.path("Downloads", "ORBY1.0.01.exe")
        self.make_opener()

    def make_opener(self):
        """Installs a tool for opening files that only records its arguments."""
        folder = self.path("bin")
        os.mkdir(folder)
        tool = os.path.join(folder, "xdg-open")
        with open(tool, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\necho \"$1\" >> '{self.opened}'\n")
        os.chmod(tool, 0o700)
        self.tools = folder + os.pathsep + os.environ["PATH"]

    def offer(self, text, setup=None):
        self.server.files["orby_version.txt"] = text.encode()
        if setup is not None:
            self.server.files["ORBY1.0.01.exe"] = setup

    def start_with_server(self):
        return self.start(ORBY_UPDATE_SERVER=self.server.address, PATH=self.tools)

    def open_updates(self, run):
        run.main().wait_active()
        run.main().choose("Help", "Program Updates...")
        return run.window("Program Updates")

    def opened_files(self):
        if not os.path.exists(self.opened):
            return []
        with open(self.opened, encoding="utf-8") as file:
            return file.read().splitlines()

    def end(self, run):
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def test_is_offered_at_the_start(self):
        self.offer("1.0.01\r\n")

        run = self.start_with_server()
        run.answer(QUESTION, "No")

        self.assertIn("Server/Current: 1.0.01/1.0.00", run.main().text("txtMain"))
        with open(os.path.join(self.data, "orby_version.txt"), "rb") as file:
            self.assertEqual(file.read(), b"1.0.01\r\n")
        self.end(run)

    def test_opens_the_dialog_if_the_user_wants_it(self):
        self.offer("1.0.01\r\n")

        run = self.start_with_server()
        run.answer(QUESTION, "Yes")

        updates = run.window("Program Updates")
        updates.press("Command1")
        updates.wait_gone()
        self.end(run)

    def test_is_not_mentioned_if_there_is_none(self):
        self.offer("1.0.00\r\n")

        run = self.start_with_server()
        until(lambda: "Server/Current: 1.0.00/1.0.00" in run.main().text("txtMain"), "the look at the server")

        self.assertEqual(len(run.windows()), 1)
        self.end(run)

    def test_is_not_looked_for_after_the_check_is_switched_off(self):
        self.offer("1.0.00\r\n")
        run = self.start_with_server()
        updates = self.open_updates(run)
        updates.press("chkShow")
        until(lambda: updates.is_checked("chkShow"), "a ticked box")
        updates.press("Command1")
        updates.wait_gone()
        self.end(run)
        self.assertIn("RemindAnnualUpdates=0\r\n", self.configuration())
        self.server.asked.clear()

        self.end(self.start_with_server())

        self.assertEqual(self.server.asked, [])

    def test_is_not_looked_for_without_a_server(self):
        run = self.start(ORBY_UPDATE_SERVER="")
        updates = self.open_updates(run)

        updates.press("cmdCheck")
        run.answer("Internet Connection Failed", "OK")

        updates.press("Command1")
        updates.wait_gone()
        self.end(run)

    def test_is_downloaded_and_started(self):
        self.offer(f"1.0.01,{SUM.upper()}\r\n", SETUP)
        run = self.start_with_server()
        run.answer(QUESTION, "No")
        updates = self.open_updates(run)

        updates.press("cmdCheck")
        run.answer("A new version is available. Download?", "Yes")
        done = "Download completed. Program at: " + self.setup_file
        until(lambda: updates.label("lblStatus") == done, "the setup file")
        updates.press("cmdInstall")
        run.answer(CLOSING, "OK")

        self.assertEqual(run.wait_end(), 0)
        until(lambda: len(self.opened_files()) == 1, "the start of the setup file")
        started = self.opened_files()[0]
        self.assertEqual(os.path.basename(started), "ORBY1.0.01.exe")
        self.assertNotEqual(started, self.setup_file)
        self.assertEqual(os.stat(os.path.dirname(started)).st_mode & 0o777, 0o700)
        for path in (started, self.setup_file):
            with open(path, "rb") as file:
                self.assertEqual(file.read(), SETUP)

    def test_is_never_started_after_it_was_replaced(self):
        self.offer(f"1.0.01,{SUM}\r\n", SETUP)
        run = self.start_with_server()
        run.answer(QUESTION, "No")
        updates = self.open_updates(run)

        updates.press("cmdDownUpdate")
        done = "Download completed. Program at: " + self.setup_file
        until(lambda: updates.label("lblStatus") == done, "the setup file")
        with open(self.setup_file, "wb") as file:
            file.write(b"something else")
        updates.press("cmdInstall")
        run.answer(f"Update file: {self.setup_file} is not the one that was published. Please download it again.", "OK")

        updates.press("Command1")
        updates.wait_gone()
        self.end(run)
        self.assertEqual(self.opened_files(), [])

    def test_is_never_started_if_it_is_not_the_published_one(self):
        self.offer(f"1.0.01,{SUM}\r\n", SETUP.replace(b"0", b"1"))
        run = self.start_with_server()
        run.answer(QUESTION, "No")
        updates = self.open_updates(run)

        updates.press("cmdDownUpdate")
        run.answer("Download failed: the file that arrived is not the one that was published, and was deleted: " +
                   self.setup_file, "OK")
        updates.press("cmdInstall")
        run.answer(f"Update file: {self.setup_file} not found", "OK")

        self.assertEqual(os.listdir(self.path("Downloads")), [])
        updates.press("Command1")
        updates.wait_gone()
        self.end(run)
        self.assertEqual(self.opened_files(), [])

    def test_is_never_started_if_its_download_failed(self):
        self.offer("1.0.01\r\n")
        os.mkdir(self.path("Downloads"))
        with open(self.setup_file, "wb") as file:
            file.write(b"of another day")
        run = self.start_with_server()
        run.answer(QUESTION, "No")
        updates = self.open_updates(run)

        updates.press("cmdDownUpdate")
        run.answer(f"Download failed: {self.server.address}{FILES}ORBY1.0.01.exe is not there, or did not arrive as a "
                   "whole. Try again later.", "OK")
        updates.press("cmdInstall")
        run.answer(f"Update file: {self.setup_file} has not been checked. Please download it again.", "OK")

        updates.press("Command1")
        updates.wait_gone()
        self.end(run)
        self.assertEqual(self.opened_files(), [])
