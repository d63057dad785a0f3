"""Designs side by side: a variant kept in the parameters, a file, and the comparison saved as a web page."""

import re

from orby import DesktopTest, press_keys, until


class SideBySide(DesktopTest):
    def test_compares_a_variant_and_a_file_with_the_open_project(self):
        other = self.copy_example("development-entry", "east.ORB")
        project = self.copy_example("weak-roof", "weak roof.ORB")
        with open(project, "rb") as file:
            before = file.read()
        run = self.start(project)
        parameters = run.window("Parameters")
        parameters.type("txtDepthofCover", "777")
        parameters.wait_active()
        press_keys("alt+k")
        run.answer(re.compile(r"The fields are kept as Variant 1\. .*"), "OK")
        parameters.press("Command1")
        run.main().choose("Study", "Side by Side...")
        side = run.window("Side by Side")
        until(lambda: side.label("lblState").startswith("2 designs"), "the open project and its variant")

        side.wait_active()
        press_keys("alt+f")
        run.give_file_name("Compare a Design", other)
        until(lambda: side.label("lblState").startswith("3 designs"), "the file")

        page = self.path("side.html")
        side.wait_active()
        press_keys("alt+s")
        run.give_file_name("Save Comparison", page)
        side.press("cmdClose")
        side.wait_gone()
        with open(page, encoding="utf-8") as file:
            html = file.read()
        for text in ("weak roof", "Variant 1", "east", "<td>777</td>", "best</td>", "Depth of Cover (ft)"):
            self.assertIn(text, html)
        with open(project, "rb") as file:
            self.assertEqual(file.read(), before)
