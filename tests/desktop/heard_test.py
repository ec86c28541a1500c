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
from rig import (  # noqa: E402
    SOUND_TOOLS, Calculator, Recording, SoundServer, enter_session, start_manager, wait_for, xdotool)

BOUND = 1.0  # seconds
FAILED = []


def press(key):
    """Presses the key; the time just before, so that what is measured is no less than what a user waits."""
    before = time.monotonic()
    subprocess.run(["xdotool", "key", key], check=True)
    return before


def report(what, seconds, bound=BOUND):
    print(f"{what}: {1000 * seconds:.0f} ms")
    if seconds > bound:
        FAILED.append(what)


def hear_keys(recording):
    for key in ("7", "plus", "5", "Return"):
        pressed = press(key)
        report(f"speech after {key}", recording.wait_for_sound(pressed, "speech after " + key) - pressed)
        recording.wait_for_silence(pressed)


def hear_silence(recording):
    """The help would be heard for longer than the bound."""
    recording.wait_for_sound(press("F1"), "the help")
    pressed = press("Control_L")
    report("silence after Ctrl alone", recording.wait_for_silence(pressed) - pressed)


def hear_tick(recording):
    pressed = press("F11")
    began = recording.wait_for_sound(pressed, "the tick")
    report("the tick of a key without a function", began - pressed)
    report("the length of the tick", recording.wait_for_silence(pressed) - began, 0.3)


def hear_file_dialog(calculator):
    """Its help too, for which the dialog has a key, ends with Ctrl alone."""
    window = calculator.window()
    xdotool("key", "--delay", "60", "alt+f", "Return")
    wait_for("the file dialog", lambda: xdotool("getactivewindow") not in ([], [window]))


def hear(calculator):
    recording = Recording()
    try:
        calculator.window()
        recording.wait_for_sound(0, "the welcome")
        recording.wait_for_silence(press("Control_L"))  # the welcome need not be heard to its end
        hear_keys(recording)
        hear_silence(recording)
        hear_tick(recording)
        hear_file_dialog(calculator)
        recording.wait_for_silence(press("Control_L"))
        hear_silence(recording)
    finally:
        recording.stop()


def main():
    enter_session(SOUND_TOOLS)
    sound = SoundServer()
    manager = start_manager()
    calculator = Calculator(os.path.abspath(sys.argv[1]), os.path.join(os.environ["HOME"], "home"),
                            "--view", "statistics", speech="espeak-ng")
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
