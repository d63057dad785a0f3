"""Compares the companion of this machine with the one for Windows: same_bytes.py DESIGNS SEED FOLDER...

Makes designs from the projects in the folders, each with some numbers changed, and gives them to every command of both
programs. Everything they print, their exit statuses and the files they write have to be the same. Only the numbers of a
study may differ, after their sixth digit, because the sampled numbers are not rounded. companion.py says what it needs.
"""

import collections
import contextlib
import json
import math
import os
import random
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

import companion

FIRST_LINE = b"ORBY_105"
LARGEST = 16000  # bytes
ENDS = b"\r\n"
MOST_SHOWN = 20
OF_ONE_FILE = ("live", "validate", "save", "convert", "curve", "sheet", "matters")
OF_MANY_FILES = ("report", "cost", "verdicts", "table", "table --csv", "table --json --units metric")
AT_ONCE = 200  # files of one command
STUDIES = 10
STUDIED = "study --json --samples 5000"
OF_STUDY = ".study"
SAME_DIGITS = 1e-6
FIGURE = "actual-psup"

STUDY = {"format": 1, "inputs": [
    {"field": "roof rating", "distribution": "measured values", "values": [38, 41, 42, 42, 45, 47, 50, 52, 55, 61]},
    {"field": "depth of cover", "distribution": "lognormal", "mean": 600, "deviation": 80, "lowest": 300},
    {"field": "unit weight", "distribution": "beta", "alpha": 2, "beta": 3, "least": 150, "greatest": 175}],
    "rankCorrelations": [[1, -0.3, 0], [-0.3, 1, 0], [0, 0, 1]]}


def projects_in(folders):
    """Returns the bytes of the projects below the folders, in the order of their paths."""
    paths = sorted(os.path.join(place, name) for folder in folders for place, _, names in os.walk(folder)
                   for name in names if name.upper().endswith(".ORB"))
    found = []
    for path in paths:
        with open(path, "rb") as file:
            project = file.read()
        if project.startswith(FIRST_LINE) and len(project) < LARGEST:
            found.append(project)
    return found


def other_number(dice, number):
    return dice.choice((
        f"{number * dice.uniform(.3, 2.2):g}", f"{number * dice.uniform(.5, 2):.0f}", "0",
        f"{number + dice.uniform(-3, 3):.1f}", f"{number * dice.uniform(.8, 1.2):.2f}", "-1", "1E+20"))


def changed(dice, project):
    """Returns the project with some of its numbers changed."""
    lines = project.split(ENDS)
    first = lines.index(b"##EndDesc##") + 1
    for _ in range(dice.choice((1, 2, 3, 6, 12))):
        place = dice.randrange(first, len(lines) - 1)
        with contextlib.suppress(ValueError):
            number = float(lines[place])
            is_choice = number in (0, 1) and dice.random() < .8
            lines[place] = (dice.choice("0112") if is_choice else other_number(dice, number)).encode()
    for place in (1, 2):  # the unit system and the strength
        if dice.random() < .3:
            lines[place] = dice.choice((b" 0 ", b" 1 "))
    return ENDS.join(lines)


def write(folder, name, content):
    with open(os.path.join(folder, name), "wb") as file:
        file.write(content)


def command_lines(dice, names):
    """Returns the words of every command line, with the name of its outputs first."""
    lines = []
    for name in names:
        for command in OF_ONE_FILE:
            words = [command, name]
            if command == "curve":
                words.insert(1, str(dice.randrange(10)))
            if command in ("save", "convert"):
                words.append(f"{command}-{name}")
            if command == "sheet":
                words.append("-")
            if command == "matters":
                words.insert(1, FIGURE)
            lines.append((f"{name}-{command}", words))
    lines.extend((name + OF_STUDY, [*STUDIED.split(), name]) for name in names[:STUDIES])
    for first in range(0, len(names), AT_ONCE):
        lines.extend((f"{first}-{command}", [*command.split(), *names[first:first + AT_ONCE]]) for command in OF_MANY_FILES)
    return lines


def run_all(program, folder, lines):
    """Runs the program with each line in the folder, and stores there what it prints and its exit status."""
    def run(line):
        output, words = line
        with open(os.path.join(folder, output + ".out"), "w+b") as out, \
                open(os.path.join(folder, output + ".err"), "w+b") as err:
            status = companion.run(program, words, folder, out, err)
        write(folder, output + ".status", str(status).encode())

    with ThreadPoolExecutor(os.cpu_count()) as workers:
        list(workers.map(run, lines))


@contextlib.contextmanager
def wine_kept_running():
    """Wine ends with its last program. One that starts just then would fail."""
    with subprocess.Popen([companion.THERE[0], "cmd", "/c", "pause"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL):
        yield


def files_in(folder):
    files = {}
    for name in os.listdir(folder):
        with open(os.path.join(folder, name), "rb") as file:
            files[name] = file.read()
    return files


def difference(here, there):
    """Returns the first lines that differ."""
    if here is None or there is None:
        return "  is missing " + ("here" if here is None else "there")
    pairs = zip(here.split(b"\n") + [b""], there.split(b"\n") + [b""])
    return next((f"  here  {one!r:.200}\n  there {other!r:.200}" for one, other in pairs if one != other),
                "  differs in its length")


def is_same(here, there):
    """Returns whether two values of a study are the same, numbers to six digits."""
    if isinstance(here, dict) and isinstance(there, dict):
        return here.keys() == there.keys() and all(is_same(here[key], there[key]) for key in here)
    if isinstance(here, list) and isinstance(there, list):
        return len(here) == len(there) and all(map(is_same, here, there))
    if isinstance(here, float) and isinstance(there, float):
        return math.isclose(here, there, rel_tol=SAME_DIGITS, abs_tol=SAME_DIGITS)
    return here == there


def differs(name, here, there):
    if here == there or here is None or there is None:
        return here != there
    if not name.endswith(OF_STUDY + ".out"):
        return True
    return not is_same(json.loads(here, parse_int=float), json.loads(there, parse_int=float))


def main(count, seed, *folders):
    dice = random.Random(int(seed))
    projects = projects_in(folders)
    names = [f"design{number}.ORB" for number in range(int(count))]
    lines = command_lines(dice, names)
    with tempfile.TemporaryDirectory() as home, tempfile.TemporaryDirectory() as windows_home:
        for name in names:
            project = changed(dice, dice.choice(projects))
            for folder in (home, windows_home):
                write(folder, name, project)
        for name in names[:STUDIES]:
            for folder in (home, windows_home):
                write(folder, name.replace(".ORB", ".study.json"), json.dumps(STUDY).encode())
        run_all(companion.HERE, home, lines)
        with wine_kept_running():
            run_all(companion.THERE, windows_home, lines)
        here, there = files_in(home), files_in(windows_home)
    different = sorted(name for name in here.keys() | there.keys() if differs(name, here.get(name), there.get(name)))
    for name in different[:MOST_SHOWN]:
        print(f"{name}:\n{difference(here.get(name), there.get(name))}")
    statuses = collections.Counter(content.decode() for name, content in here.items() if name.endswith(".status"))
    print(f"{count} designs, {len(lines)} runs, {len(here)} files, {len(different)} differ")
    print("exit statuses:", ", ".join(f"{status}: {runs} times" for status, runs in sorted(statuses.items())))
    # Runs that all fail alike compare nothing.
    return 1 if different or statuses["0"] == 0 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
