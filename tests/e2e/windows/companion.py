"""Starts the companion of this machine, whose path is in $ORBY_CLI, and the one for Windows, in $ORBY_CLI_EXE, under Wine,
whose command is in $WINE."""

import contextlib
import os
import subprocess

MOST_STARTS = 3
PATIENCE = 600  # seconds
USAGE = b"usage:"

HERE = [os.path.abspath(os.environ["ORBY_CLI"])]
THERE = [os.environ["WINE"], os.path.abspath(os.environ["ORBY_CLI_EXE"])]


def has_failed_in_wine(status, err):
    """Returns whether Wine itself has failed, as it does in one start of some thousands.

    It then ends with 127, as its loader does, or with 1. The companion has no status 127, and 1 only with its usage.
    """
    err.seek(0)
    return status == 127 or (status == 1 and err.read(len(USAGE)) != USAGE)


def run(program, words, folder, out, err):
    """Runs the program in the folder with its streams in the two files. Returns its exit status."""
    for _ in range(MOST_STARTS):
        status = subprocess.call([*program, *words], cwd=folder, stdin=subprocess.DEVNULL, stdout=out, stderr=err,
                                 timeout=PATIENCE)
        if not has_failed_in_wine(status, err):
            break
        for stream in (out, err):
            with contextlib.suppress(OSError):  # a device has no end
                stream.seek(0)
                stream.truncate()
    return status
