"""The dialogs that read themselves aloud: in the real window, with real keys, recorded, and read as a screen reader does.

usage: reading_test.py PROGRAM
Starts itself again inside a display and a message bus of its own. Bounds are in seconds, as the machine may be busy.
Exit status 77: the tools for that are missing.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from rig import (  # noqa: E402
    SOUND_TOOLS, Calculator, Recording, SoundServer, enter_session, holds, keys, start_manager, wait_for, xdotool)

if __name__ == "__main__":
    enter_session(SOUND_TOOLS, ["pyatspi"])

import pyatspi  # noqa: E402  (needs the session's bus)

PROGRAM = os.path.abspath(sys.argv[1])
BOUND = 1.0  # seconds, for what takes milliseconds
ABOUT = "About the QVES Calculator Application"
HOT_KEYS = "Quorvane Calculator Hot Keys"


def sentence_starts(text):
    return [match.start() for match in re.finditer(r"\S(?:(?![.?!]\s)[^\n])*[.?!]?", text)]


class Dialog:
    """A dialog of the calculator that is open, and the places its reader went to."""

    def __init__(self, calculator, title=ABOUT):
        self.calculator = calculator
        self.node = wait_for(title, lambda: next(
            node for node in calculator.nodes(pyatspi.ROLE_TEXT) if node.name == title))
        self.text = self.node.queryText().getText(0, -1)
        self.moves = []
        pyatspi.Registry.registerEventListener(self.note, "object:text-caret-moved")

    def note(self, event):
        if event.source == self.node:
            self.moves.append(event.detail1)

    def forget(self):
        pyatspi.Registry.deregisterEventListener(self.note, "object:text-caret-moved")

    @property
    def caret(self):
        return self.node.queryText().caretOffset

    def caret_is_in_sight(self):
        whole = self.node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        x, y, _, height = self.node.queryText().getCharacterExtents(self.caret, pyatspi.DESKTOP_COORDS)
        return whole.x <= x <= whole.x + whole.width and whole.y <= y and y + height <= whole.y + whole.height


def setUpModule():
    manager = start_manager()
    unittest.addModuleCleanup(manager.wait)
    unittest.addModuleCleanup(manager.terminate)


class ReadingTestCase(unittest.TestCase):
    def start(self, *options, program=PROGRAM, **more):
        folder = tempfile.TemporaryDirectory(prefix="qvescalc-test-")
        self.addCleanup(folder.cleanup)
        calculator = Calculator(program, folder.name, "--view", "standard", *options, **more)
        self.addCleanup(calculator.end)
        calculator.window()
        return calculator

    def open_help(self, calculator, title=ABOUT, item=0):
        view = calculator.window()
        xdotool("key", "--delay", "60", "alt+h", *["Down"] * item, "Return")
        wait_for("the dialog's window", lambda: calculator.window() != view)
        dialog = Dialog(calculator, title)
        self.addCleanup(dialog.forget)
        return dialog

    def close(self, calculator, dialog_window):
        keys("Escape", "Return")
        wait_for("the view's window", lambda: calculator.window() != dialog_window)


class HeardReadingTest(ReadingTestCase):
    def setUp(self):
        self.sound = SoundServer()
        self.addCleanup(lambda: self.sound.stop())
        self.recording = Recording()
        self.addCleanup(lambda: self.recording.stop())
        self.calculator = self.start(speech="espeak-ng")
        self.expect_sound(0, "the welcome")  # which is cut off

    def expect_sound(self, since, what):
        self.recording.wait_for_sound(since, what)

    def expect_silence(self, since, what):
        self.assertLess(self.recording.wait_for_silence(since) - since, BOUND, what)

    def wait_for_sentence(self, dialog, number):
        start = sentence_starts(dialog.text)[number]
        wait_for(f"sentence {number}", lambda: dialog.caret >= start, 30)

    def read_on_from(self, dialog, place):
        """F5 reads the sentence at that place again: the next place is that of the sentence behind it."""
        following = next(start for start in sentence_starts(dialog.text) if start > place)
        dialog.moves.clear()
        pressed = time.monotonic()
        keys("F5")
        self.expect_sound(pressed, "the reading after F5")
        wait_for("the next sentence", lambda: dialog.moves, 30)
        self.assertEqual(dialog.moves[0], following)
        self.assertGreater(time.monotonic() - pressed, 1, "the sentence is read, not skipped")

    def test_a_key_stops_the_reading_and_f5_goes_on(self):
        opened = time.monotonic()
        dialog = self.open_help(self.calculator)
        self.expect_sound(opened, "the reading")
        self.wait_for_sentence(dialog, 2)
        heard = {int(10 * (when - opened)) for when, loud in list(self.recording.pieces) if loud}
        self.assertGreater(len(heard), 15, "tenths of a second with sound")
        pressed = time.monotonic()
        keys("a")
        self.expect_silence(pressed, "silence after a key")
        place = dialog.caret
        self.assertIn(place, sentence_starts(dialog.text))
        holds("the place of the silenced reading", lambda: dialog.caret == place)
        self.read_on_from(dialog, place)
        window = self.calculator.window()
        pressed = time.monotonic()
        self.close(self.calculator, window)
        self.assertLess(self.recording.wait_for_silence(pressed) - pressed, 3 * BOUND, "silence after where one is")

    def test_a_sound_server_that_dies(self):
        dialog = self.open_help(self.calculator)
        self.wait_for_sentence(dialog, 2)
        self.recording.stop()
        self.sound.stop(kill=True)
        place = sentence_starts(dialog.text)[2]
        holds("nothing counts as read that was not heard", lambda: dialog.caret == place, 2)
        keys("F5", "Right")
        wait_for("the key's answer", lambda: dialog.caret == place + 1)
        keys("Left")
        self.sound = SoundServer()
        self.recording = Recording()
        self.read_on_from(dialog, place)


class DocumentTest(ReadingTestCase):
    """Of programs beside which the document is not as it should be."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="qvescalc-test-")
        self.addCleanup(folder.cleanup)
        self.program = Path(folder.name) / Path(PROGRAM).name
        for path in Path(PROGRAM).parent.iterdir():
            if path == Path(PROGRAM) or path.suffix in (".so", ".txt", ".rtf"):
                shutil.copy2(path, folder.name)
        self.document = self.program.parent / "AboutStd.rtf"
        self.good = self.document.read_bytes()

    def test_the_dialog_opens_answers_and_closes(self):
        rows = {
            "missing": (None, ""),
            "empty": (b"", ""),
            "no text": (b"\x89PNG\r\n\x1a\n\0\0" + bytes(range(256)) * 400, ""),
            "cut off": (self.good[:len(self.good) // 2], "The Standard View.\n"),
            "groups without end": (b"{\\rtf1 Before.\\par " + b"{\\b " * 1000000, "Before."),
            "one word": (b"x" * 1000000, "xxx"),
            "too large": (b"{\\rtf1 " + (b"This is a sentence. " * 40 + b"\\par\n") * 60000 + b"}", "This is a sentence. "),
        }
        for name, (content, beginning) in rows.items():
            with self.subTest(document=name):
                self.document.unlink(missing_ok=True)
                if content is not None:
                    self.document.write_bytes(content)
                calculator = self.start(program=str(self.program))
                dialog = self.open_help(calculator)
                self.assertTrue(dialog.node.queryText().getText(0, len(beginning)) == beginning)
                window = calculator.window()
                keys("F5", "Right", "Down", "Next", "End", "Home", "F1", "F7", "Tab")
                self.close(calculator, window)
                keys("7")
                calculator.expect_display("7")
                calculator.end()


class ScreenReaderTest(ReadingTestCase):
    def test_the_reader_on_the_accessibility_bus(self):
        calculator = self.start()
        for title, item in ((ABOUT, 0), (HOT_KEYS, 1), (HOT_KEYS, 2)):
            dialog = self.open_help(calculator, title, item)
            state = dialog.node.getState()
            for wanted in (pyatspi.STATE_FOCUSED, pyatspi.STATE_READ_ONLY, pyatspi.STATE_MULTI_LINE):
                self.assertTrue(state.contains(wanted), wanted)
            self.assertIn("pressing F5", dialog.node.description)
            self.assertEqual(len(dialog.text), dialog.node.queryText().characterCount)
            looks = [dict(run.split(":") for run in dialog.node.queryText().getAttributes(at)[0].split(";"))
                     for at in (0, len(dialog.text) - 1)]
            self.assertEqual([look.get("weight") for look in looks], ["bold", None])
            self.assertGreater(float(looks[0]["size"]), float(looks[1]["size"]))
            self.assertTrue(calculator.button("OK").description)
            self.close(calculator, calculator.window())

    def test_the_caret_follows_the_keys(self):
        calculator = self.start()
        dialog = self.open_help(calculator)
        lines = [0, *(match.end() for match in re.finditer("\n", dialog.text))]
        for key, place in (("Right", 1), ("Right", 2), ("Left", 1), ("End", lines[1] - 2), ("Home", 0), ("Up", 0),
                           ("Down", lines[1]), ("Next", lines[11]), ("Prior", lines[1]), ("Next", lines[11]),
                           ("Next", lines[21] if len(lines) > 21 else lines[-1]), ("Next", lines[-1])):
            before = dialog.caret
            dialog.moves.clear()
            keys(key)
            if place != before:
                wait_for(f"the move after {key} to {place}", lambda: dialog.moves)
                self.assertEqual(dialog.moves[-1], place, key)
            self.assertEqual(dialog.caret, place, key)
            wait_for("the caret in sight", dialog.caret_is_in_sight)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
