"""How sure a design is when its roof rating scatters, and the settings that stay beside the project."""

import json
import os
import re

from orby import DesktopTest, until


class HowSure(DesktopTest):
    def open_window(self, run):
        run.main().choose("Study", "How Sure...")
        return run.window("How Sure")

    def test_of_measured_ratings_is_kept_beside_the_project(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("Command1")
        sure = self.open_window(run)
        sure.type("txtSecond", "4")
        sure.press("cmdAdd")
        sure.press("cmdRun")
        until(lambda: "100,000 samples, seed 1" in sure.label("lblDone"), "the end of the study")
        until(lambda: sure.shows("grdJudgements"), "the results")
        sure.press("cmdClose")
        sure.wait_gone()

        with open(self.path("weak roof.study.json"), encoding="utf-8") as file:
            kept = json.load(file)
        self.assertEqual(kept["inputs"][0]["field"], "roof rating")
        self.assertEqual(kept["inputs"][0]["deviation"], 4)

    def test_puts_a_damaged_file_aside(self):
        project = self.copy_example("weak-roof", "weak roof.ORB")
        settings = self.path("weak roof.study.json")
        with open(settings, "w", encoding="utf-8") as file:
            file.write("no study")
        run = self.start(project)
        run.window("Parameters").press("Command1")
        run.main().choose("Study", "How Sure...")

        run.answer(re.compile(r"The study .*weak roof\.study\.json cannot be used\..* It is kept in .*\.kept\."), "OK")

        sure = run.window("How Sure")
        self.assertIn(settings, sure.label("lblKept"))
        self.assertTrue(os.path.exists(settings + ".kept"))
        self.assertFalse(os.path.exists(settings))
        sure.press("cmdClose")
        sure.wait_gone()
