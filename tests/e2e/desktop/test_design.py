"""A design is made from an empty project to its report, its curves and its file, and opened again."""

import os
import re
import subprocess
import zipfile
from xml.etree import ElementTree

from orby import DesktopTest, clipboard, companion, data_part, lines, press_keys, until, xdotool

TITLE = "East Mains"
DESCRIPTION = "Belt entry from 2 Right to the overcast"

# A field of the general tab, its typed text, and the outputs of other tabs that follow it.
TYPED = (
    ("txtCMRR", "52", {"txtSugPSUP": "3.3", "txtSuggestBoltLength": "4.0", "txtSugSumDiagonals": "65.9"}),
    ("txtDepthofCover", "820", {"txtSugPSUP": "6.3", "txtSuggestBoltLength": "4.5"}),
    ("txtActualSpanDiagonals", "64", {"txtSugPSUP": "7.2", "txtSuggestBoltLength": "4.8", "txtRockLoadInter1": "215"}),
    ("txtUnitWeight", "158", {"txtRockLoadEntry1": "9.7", "txtStabFactorEntry1": "1.09", "txtRockLoadInter1": "209"}),
    ("txtEntryWidth", "19", {"txtActualPSUP": "5.3", "txtRockLoadEntry1": "9.1", "txtStabFactorEntry1": "1.16"}),
)

# Keys in a field with 12345, and the text after them.
EDITED = (
    (("Home", "Delete"), "2345"),
    (("End", "BackSpace"), "1234"),
    (("End", "shift+Left", "shift+Delete"), "1234"),
    (("ctrl+a", "Delete", "7"), "7"),
)

DEPTH_CURVE = 1
CURVE_BLUE = bytes([0, 0, 255])
POINT_RADIUS = 3  # pixels

# Replacements for the desktop's tools that open files. A file in the home folder says whether there is a spreadsheet.
DESKTOP_TOOLS = {
    "xdg-mime": '#!/bin/sh\ncat "$HOME/spreadsheet-program" 2>/dev/null\n',
    "xdg-open": '#!/bin/sh\nprintf "%s" "$1" > "$HOME/opened.part" && mv "$HOME/opened.part" "$HOME/opened"\n',
}

SHEET_NAMESPACE = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"


def curve_points(number, file):
    return [tuple(map(float, line.split(","))) for line in companion("curve", str(number), file).splitlines()]


def sheet_rows(path):
    """Returns the cells of the first sheet of an .xlsx file by rows."""
    with zipfile.ZipFile(path) as book:
        sheet = ElementTree.fromstring(book.read("xl/worksheets/sheet1.xml"))
        strings = ElementTree.fromstring(book.read("xl/sharedStrings.xml"))
        assert "xl/charts/chart1.xml" in book.namelist()
    shared = ["".join(entry.itertext()) for entry in strings]
    rows = []
    for row in sheet.iter(SHEET_NAMESPACE + "row"):
        cells = [(cell.get("t"), cell.find(SHEET_NAMESPACE + "v").text) for cell in row]
        rows.append([shared[int(value)] if kind == "s" else float(value) for kind, value in cells])
    return rows


def leftmost_pixel(box, color):
    """Returns the screen position of the leftmost pixels of this colour in the box, at their middle height."""
    left, top, width, height = box
    picture = subprocess.run(["import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage",
                              "-depth", "8", "rgb:-"], capture_output=True, check=True).stdout
    places = [(at // 3 % width, at // 3 // width) for at in
              (match.start() for match in re.finditer(re.escape(color), picture)) if at % 3 == 0]
    if not places:
        return None
    first = min(x for x, _ in places)
    heights = [y for x, y in places if x == first]
    return left + first, top + sum(heights) // len(heights)


class Design(DesktopTest):
    def setUp(self):
        super().setUp()
        tools = self.path("tools")
        os.mkdir(tools)
        for name, script in DESKTOP_TOOLS.items():
            with open(os.path.join(tools, name), "w", encoding="ascii") as file:
                file.write(script)
            os.chmod(file.name, 0o755)
        self.tools = tools + os.pathsep + os.environ["PATH"]
        self.file = self.path("east mains.ORB")

    def test_is_made_from_new_saved_and_opened_again(self):
        run = self.start(PATH=self.tools)
        self.describe(run)
        parameters = self.type_general_fields(run)
        pages = self.read_results(run, parameters)
        self.look_at_curve(run)
        self.leave_windows(run, parameters)
        self.save_and_quit(run)
        self.check_saved_file(pages)
        self.find_it_again(pages)

    def test_a_number_is_edited_by_the_keys_of_a_real_keyboard(self):
        run = self.start()
        run.keys("ctrl+n")
        parameters = run.window("Parameters")
        for keys, left in EDITED:
            parameters.type("txtUnitWeight", "12345")
            press_keys(*keys)
            parameters.wait_text("txtUnitWeight", left)

    def describe(self, run):
        run.keys("ctrl+n")
        parameters = run.window("Parameters")
        parameters.press("Command1")
        parameters.wait_gone()
        run.keys("alt+i", "d")
        description = run.window("Project Description")
        description.type("Text1", TITLE)
        description.type("Text2", DESCRIPTION)
        description.press("Command2")
        description.wait_gone()
        self.assertEqual(run.caption(), "Orby Roof Support Workbench: Untitled*")

    def type_general_fields(self, run):
        run.keys("alt+i", "p")
        parameters = run.window("Parameters")
        parameters.press("chkCMRRManual")
        for field, text, outputs in TYPED:
            parameters.type(field, text)
            for output, expected in outputs.items():
                parameters.wait_text(output, expected)
        return parameters

    def read_results(self, run, parameters):
        parameters.press("cmdresults")
        results = run.window("Calculation Results")
        echo = results.text("RichTextBox1")
        self.assertIn(f"[PROJECT TITLE]\n{TITLE}\n", echo)
        self.assertIn(f"[PROJECT DESCRIPTION]\n{DESCRIPTION}\n", echo)
        results.press("Command4")
        until(lambda: results.text("RichTextBox1") != echo, "the next page")
        calculations = results.text("RichTextBox1")
        results.press("Command7")
        until(lambda: calculations in lines(clipboard()), "the report in the clipboard")
        self.assertEqual(lines(clipboard()).replace("\f", ""), echo + calculations)
        return echo, calculations

    def look_at_curve(self, run):
        results = run.window("Calculation Results")
        results.choose_curve(DEPTH_CURVE)
        graph = run.window("Graph")
        graph.choose("Options", "Point ID")
        until(lambda: graph.shows("Frame1"), "the read-out")
        chart = graph.control("graph1")
        x, y = until(lambda: leftmost_pixel(chart.box, CURVE_BLUE), "the curve")
        xdotool("mousemove", x + POINT_RADIUS, y)
        until(lambda: graph.label("lblX"), "the coordinates of the point")
        self.read_out = tuple(graph.label(name) for name in ("lblX", "lblSF", "lblCurve"))
        xdotool("mousemove", 0, 0)
        self.export(run, graph)
        graph.choose("File", "Exit")
        graph.wait_gone()

    def export(self, run, graph):
        sheet = os.path.join(self.data, "Temp", "ORBY Suggested PSUP vs Depth of Cover.xlsx")
        graph.choose("File", "Export")
        run.answer(f"Error occurred: Automation server can't create object. The curve was written to {sheet} (429). "
                   "Procedure Terminated", "OK")
        os.remove(sheet)
        with open(self.path("spreadsheet-program"), "w", encoding="ascii") as file:
            file.write("sheets.desktop\n")
        graph.wait_active()
        graph.choose("File", "Export")
        run.answer("Exported 1 Curve", "OK")
        until(lambda: os.path.exists(self.path("opened")), "the spreadsheet program")
        with open(self.path("opened"), encoding="utf-8") as opened:
            self.assertEqual(opened.read(), sheet)
        self.sheet = sheet_rows(sheet)

    def leave_windows(self, run, parameters):
        run.window("Calculation Results").press("Command1")
        parameters.wait_active()
        parameters.press("Command2")
        parameters.wait_gone()

    def save_and_quit(self, run):
        run.keys("alt+f", "a")
        run.give_file_name("Save As", self.file)
        until(lambda: run.caption().endswith("east mains.ORB"), "the name in the caption")
        run.quit()
        self.assertEqual(run.wait_end(), 0)

    def check_saved_file(self, pages):
        with open(self.file, encoding="ascii", newline="") as file:
            self.assertIn(f"\r\n{TITLE}\r\n##StartDesc##\r\n{DESCRIPTION}\r\n##EndDesc##\r\n", file.read())
        self.assertEqual(data_part(lines(companion("report", self.file))), data_part("".join(pages)))
        points = curve_points(DEPTH_CURVE, self.file)
        self.assertEqual(self.read_out, (f"{points[0][0]:.2f}", f"{points[0][1]:.2f}", "Sug.PSUP"))
        self.assertEqual(self.sheet[0], ["X-coord", "Sug.PSUP"])
        self.assertEqual(len(self.sheet) - 1, len(points))
        for cells, point in zip(self.sheet[1:], points):
            for cell, coordinate in zip(cells, point):
                self.assertAlmostEqual(cell, coordinate, delta=1e-6 * abs(coordinate))

    def find_it_again(self, pages):
        run = self.start(self.file)
        parameters = run.window("Parameters")
        for field, text, _ in TYPED:
            self.assertEqual(parameters.text(field), text)
        parameters.press("cmdresults")
        results = run.window("Calculation Results")
        self.assertEqual(results.text("RichTextBox1"), lines(companion("report", "--page", "0", self.file)))
        results.press("Command4")
        results.wait_text("RichTextBox1", pages[1])
        results.press("Command1")
        parameters.wait_active()
        parameters.press("Command1")
        parameters.wait_gone()
        # The reader takes the line before the title as the title, and the title as the first line of the description.
        run.keys("alt+i", "d")
        description = run.window("Project Description")
        self.assertEqual(description.text("Text2"), f"{TITLE}\n##StartDesc##\n{DESCRIPTION}")
        description.press("Command1")
        description.wait_gone()
        run.quit()
        self.assertEqual(run.wait_end(), 0)
