"""Compares the companion of this machine with the one for Windows: same_bytes.py PROGRAM PROGRAM.EXE DESIGNS SEED FOLDER...

Makes designs from the projects in the folders, each with some numbers changed, and gives them to every command of both
programs. Everything they print, their exit statuses and the files they write have to be the same. Needs Wine, whose
command is in $WINE.
"""

import contextlib
import os
import random
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

FIRST_LINE = b"ORBY_105"
LARGEST = 16000  # bytes
ENDS = b"\r\n"
PATIENCE = 3600  # seconds
MOST_SHOWN = 20
OF_ONE_FILE = ("live", "validate", "save", "convert", "curve")
AT_ONCE = ("report", "cost")


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


def commands(dice, names):
    """Returns the words of every command line, with the name of its outputs first."""
    lines = []
    for name in names:
        for command in OF_ONE_FILE:
            words = [command, name]
            if command == "curve":
                words.insert(1, str(dice.randrange(10)))
            if command in ("save", "convert"):
                words.append(f"{command}-{name}")
            lines.append((f"{name}-{command}", words))
    # The shell of Windows takes no longer lines.
    for first in range(0, len(names), 200):
        lines.extend((f"{first}-{command}", [command, *names[first:first + 200]]) for command in AT_ONCE)
    return lines


def run_here(program, folder, lines):
    def run(line):
        output, words = line
        with open(os.path.join(folder, output + ".out"), "wb") as out, \
                open(os.path.join(folder, output + ".err"), "wb") as err:
            status = subprocess.call([program, *words], cwd=folder, stdout=out, stderr=err, timeout=PATIENCE)
        with open(os.path.join(folder, output + ".status"), "wb") as file:
            file.write(str(status).encode() + ENDS)

    with ThreadPoolExecutor(os.cpu_count()) as workers:
        list(workers.map(run, lines))


def run_in_wine(program, folder, lines):
    """Runs all in a few shells of Windows: a start of Wine itself takes longer than most commands."""
    def run(part):
        batch = f"part{part}.bat"
        with open(os.path.join(folder, batch), "wb") as file:
            for output, words in lines[part::os.cpu_count()]:
                said = f"{' '.join(words)} >{output}.out 2>{output}.err"
                file.write(f'@"Z:{program}" {said}\r\n@(echo %errorlevel%)>{output}.status\r\n'.encode())
        subprocess.run([os.environ["WINE"], "cmd", "/c", batch], cwd=folder, check=True, timeout=PATIENCE,
                       stdout=subprocess.DEVNULL)
        os.remove(os.path.join(folder, batch))

    with ThreadPoolExecutor(os.cpu_count()) as workers:
        list(workers.map(run, range(os.cpu_count())))


def files_in(folder):
    files = {}
    for name in os.listdir(folder):
        with open(os.path.join(folder, name), "rb") as file:
            files[name] = file.read()
    return files


def main(native, windows, count, seed, *folders):
    dice = random.Random(int(seed))
    projects = projects_in(folders)
    with tempfile.TemporaryDirectory() as home, tempfile.TemporaryDirectory() as windows_home:
        names = [f"design{number}.ORB" for number in range(int(count))]
        for name in names:
            project = changed(dice, dice.choice(projects))
            for folder in (home, windows_home):
                with open(os.path.join(folder, name), "wb") as file:
                    file.write(project)
        lines = commands(dice, names)
        run_here(os.path.abspath(native), home, lines)
        run_in_wine(os.path.abspath(windows), windows_home, lines)
        here, there = files_in(home), files_in(windows_home)
    different = sorted(name for name in here.keys() | there.keys() if here.get(name) != there.get(name))
    for name in different[:MOST_SHOWN]:
        print(f"{name} differs:\n  here  {here.get(name)!r:.300}\n  there {there.get(name)!r:.300}")
    done = sum(content == b"0" + ENDS for name, content in here.items() if name.endswith(".status"))
    print(f"{count} designs, {len(lines)} runs, {done} of them done without a complaint, "
          f"{len(here)} files, {len(different)} differ")
    return 1 if different or done == 0 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
