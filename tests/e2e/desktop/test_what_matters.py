"""What a figure depends on: its charts, chosen by keys."""

from orby import DesktopTest, press_keys, until


class WhatMatters(DesktopTest):
    def test_shows_its_spider_by_keys(self):
        run = self.start(self.copy_example("weak-roof", "weak roof.ORB"))
        run.window("Parameters").press("Command1")
        run.main().wait_active()
        run.keys("alt+s", "m")
        matters = run.window("What Matters")
        matters.wait_active()
        self.assertEqual(matters.label("picTornado"), "Tornado chart")

        matters.focus("txtChange")
        press_keys("Tab", "Down")
        until(lambda: matters.label("picTornado") == "Spider chart", "the spider chart")
        press_keys("Up")
        until(lambda: matters.label("picTornado") == "Tornado chart", "the tornado chart")
        matters.press("cmdClose")
        matters.wait_gone()
