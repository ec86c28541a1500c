"""What is heard: the real window, real keys, and a recording of a sound output that makes no noise.

usage: heard_test.py PROGRAM
Prints how long after each key the speech begins, and how long after Ctrl alone it ends; fails only beyond a second, as
the machine may be busy. Exit status 77: the tools for that are missing.
"""
import os
import subprocess
import sys
import time

sys.dont_write_bytecode = True
from rig import SOUND_TOOLS, Calculator, Recording, SoundServer, enter_session, start_manager  # noqa: E402

BOUND = 1.0  # seconds
FAILED = []


def press(key):
    """Presses the key; the time just before, so that what is measured is no less than what a user waits."""
    before = time.monotonic()
    subprocess.run(["xdotool", "key", key], check=True)
    return before


def report(what, milliseconds, good):
    print(f"{what}: {milliseconds:.0f} ms")
    if not good:
        FAILED.append(what)


def hear_keys(recording):
    for key in ("7", "plus", "5", "Return"):
        pressed = press(key)
        time.sleep(1.3)
        began = recording.first_loud(pressed)
        report(f"speech after {key}", 1000 * ((began or pressed + 9) - pressed), began and began - pressed < BOUND)


def hear_silence(recording):
    asked = press("F1")
    time.sleep(1.5)
    if not recording.first_loud(asked):
        FAILED.append("the help is heard")
    pressed = press("Control_L")
    time.sleep(2.5)  # the help would take longer
    quiet = recording.last_loud(pressed) - pressed
    report("silence after Ctrl alone", 1000 * quiet, quiet < BOUND)


def hear_tick(recording):
    pressed = press("F3")
    time.sleep(1.3)
    began = recording.first_loud(pressed)
    report("the tick of a key without a function", 1000 * ((began or pressed + 9) - pressed),
           began and began - pressed < BOUND and recording.last_loud(pressed) - began < 0.3)


def hear(calculator):
    recording = Recording()
    try:
        calculator.window()
        time.sleep(2)
        press("Control_L")  # the welcome need not be heard to its end
        time.sleep(1)
        hear_keys(recording)
        hear_silence(recording)
        hear_tick(recording)
    finally:
        recording.stop()


def main():
    enter_session(SOUND_TOOLS)
    sound = SoundServer()
    manager = start_manager()
    calculator = Calculator(os.path.abspath(sys.argv[1]), os.path.join(os.environ["HOME"], "home"), speech="espeak-ng")
    try:
        hear(calculator)
        calculator.end()
    except AssertionError as error:
        FAILED.append(str(error))
    finally:
        calculator.process.kill()
        manager.terminate()
        manager.wait(10)
        sound.stop()
    print("failed:", *FAILED, sep="\n") if FAILED else print("all heard")
    sys.exit(1 if FAILED else 0)


main()
