"""What a figure depends on: the spider chart, chosen and saved by keys."""

import os

from orby import DesktopTest, press_keys, until


class WhatMatters(DesktopTest):
    def test_saves_its_spider_by_keys(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("Command1")
        run.main().wait_active()
        run.keys("alt+s", "m")
        matters = run.window("What Matters")
        matters.wait_active()
        self.assertEqual(matters.label("picTornado"), "Tornado chart")

        matters.focus("cmbChart")
        press_keys("Down")
        until(lambda: matters.label("picTornado") == "Spider chart", "the spider chart")
        matters.focus("picTornado")
        press_keys("shift+F10", "s")
        run.give_file_name("Save Drawing", self.path("spider.svg"))

        until(lambda: os.path.exists(self.path("spider.svg")), "the file")
        with open(self.path("spider.svg"), encoding="utf-8") as file:
            drawing = file.read()
        for text in (">-100<", ">0<", ">100<", ">CMRR<", "this design: "):
            self.assertIn(text, drawing)
        matters.press("cmdClose")
        matters.wait_gone()
