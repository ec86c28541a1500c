"""The program on a display in memory: typed into with real key events, read as a screen reader reads it.

usage: session_test.py PROGRAM
Starts itself again inside a display and a message bus of its own. Exit status 77: the tools for that are missing.
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

TOOLS = ["xvfb-run", "Xvfb", "dbus-run-session", "openbox", "xdotool", "xprop", "setxkbmap"]
INSIDE = "QVES_SESSION_TEST"
PATIENCE = 10.0  # seconds; what is waited for comes within fractions of one

PROGRAM = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else ""


def enter_session():
    """Replaces this process by one inside a display and a bus, or ends it where that cannot be had."""
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    if subprocess.run([sys.executable, "-c", "import pyatspi"], stderr=subprocess.DEVNULL).returncode:
        missing.append("pyatspi")
    if missing:
        print("skipped, not installed:", *missing)
        sys.exit(77)
    os.environ[INSIDE] = "1"
    command = ["xvfb-run", "-a", "-s", "-screen 0 1280x900x24 -noreset", "dbus-run-session", "--", sys.executable]
    os.execvp(command[0], command + [os.path.abspath(__file__), PROGRAM])


if __name__ == "__main__" and INSIDE not in os.environ:
    enter_session()

import pyatspi  # noqa: E402  (needs the session's bus)
from gi.repository import GLib  # noqa: E402


def wait_for(what, condition, patience=PATIENCE):
    """The condition's value as soon as it is true; an error of the accessibility bus counts as not yet."""
    end = time.monotonic() + patience
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            value = condition()
        except Exception:  # the tree changes under the reader
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("waited in vain for " + what)
        time.sleep(0.02)


def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def xdotool(*arguments):
    return subprocess.run(["xdotool", *arguments], capture_output=True, text=True).stdout.split()


def descendants(node):
    for child in node:
        if child is not None:
            yield child
            yield from descendants(child)


class Calculator:
    """A running copy with a home folder."""

    def __init__(self, home, *options, environment=None):
        self.home = Path(home)
        self.process = subprocess.Popen(
            [PROGRAM, "--home", str(home), "--speech", "off", *options],
            env={**os.environ, **(environment or {})}, stderr=subprocess.PIPE, text=True)

    @property
    def settings(self):
        return self.home / ".config" / "QVES" / "Settings" / "Calc.ost"

    def window(self):
        """The window, once it is shown and has the keyboard."""
        def active():
            windows = xdotool("search", "--onlyvisible", "--pid", str(self.process.pid))
            return windows[-1] if windows and xdotool("getactivewindow") == windows[-1:] else None
        return wait_for("the window", active)

    def tree(self):
        def application():
            for node in pyatspi.Registry.getDesktop(0):
                if node is not None and node.get_process_id() == self.process.pid:
                    return node
            return None
        return wait_for("the program on the accessibility bus", application)

    def nodes(self, role):
        return [node for node in descendants(self.tree()) if node.getRole() == role]

    def button(self, name):
        return wait_for("button " + name, lambda: next(
            node for node in self.nodes(pyatspi.ROLE_PUSH_BUTTON) if node.name == name))

    def display(self):
        node = self.nodes(pyatspi.ROLE_TEXT)[0]
        return node.queryText().getText(0, -1)

    def expect_display(self, text):
        try:
            wait_for("", lambda: self.display() == text, 4)
        except AssertionError:
            raise AssertionError(f"the display shows {self.display()!r}, not {text!r}") from None

    def ended(self):
        return wait_for("the end of the program", lambda: self.process.poll() is not None) and self.process.returncode

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.process.stderr.close()


class SessionTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.manager = subprocess.Popen(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        properties = ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK", "_NET_CLIENT_LIST"]
        wait_for("the window manager", lambda: subprocess.run(
            properties, capture_output=True, text=True).stdout.count("window id") == 2)

    @classmethod
    def tearDownClass(cls):
        cls.manager.terminate()
        cls.manager.wait()

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="qvescalc-test-")
        self.addCleanup(folder.cleanup)
        self.home = folder.name
        subprocess.run(["setxkbmap", "us"], check=True)

    def start(self, *options, **more):
        calculator = Calculator(self.home, *options, **more)
        self.addCleanup(calculator.kill)
        return calculator

    def started(self):
        calculator = self.start()
        calculator.window()
        return calculator

    def test_typing_on_three_layouts(self):
        calculator = self.started()
        # On the French one the digits are the unshifted keys of the top row, here by their key codes.
        for layout, seven, five in (("us", "7", "5"), ("fr", "16", "14"), ("de", "7", "5")):
            with self.subTest(layout=layout):
                subprocess.run(["setxkbmap", layout], check=True)
                keys("Escape")
                calculator.expect_display("0")
                keys(seven, "plus", five)
                calculator.expect_display("5")
                keys("Return")
                calculator.expect_display("12")

    def held(self, modifier, key):
        """The key by its code while the modifier is down."""
        xdotool("keydown", modifier, "key", key, "keyup", modifier)

    def test_keys_that_stand_elsewhere(self):
        calculator = self.started()
        subprocess.run(["setxkbmap", "fr"], check=True)
        keys("17")
        self.held("Shift_L", "60")
        keys("11", "Return")
        calculator.expect_display("4")  # 8 / 2
        keys("Escape", "17", "60", "11")
        calculator.expect_display("82")  # the colon is no point
        subprocess.run(["setxkbmap", "de"], check=True)
        keys("Escape", "8")
        self.held("ISO_Level3_Shift", "16")
        keys("9")
        calculator.expect_display("89")  # AltGr and 7 type no 7

    def test_quick_keys_around_a_menu(self):
        calculator = self.started()
        for opening in (["alt+v", "Escape", "Escape"], ["Alt_L", "Escape"], ["F10", "Escape"]):
            with self.subTest(opening=opening):
                keys("Escape")
                calculator.expect_display("0")
                xdotool("key", "--delay", "30", "7", *opening, "5")
                calculator.expect_display("75")

    def test_nobody_writes_into_the_display(self):
        calculator = self.started()
        keys("7")
        calculator.expect_display("7")
        calculator.nodes(pyatspi.ROLE_TEXT)[0].queryEditableText().setTextContents("999")
        calculator.expect_display("7")

    def test_keypad_and_dead_keys(self):
        subprocess.run(["setxkbmap", "us", "intl"], check=True)
        calculator = self.started()
        # The dead apostrophe must not take the next key with it.
        keys("apostrophe", "KP_7", "KP_Multiply", "KP_3", "KP_Enter")
        calculator.expect_display("21")

    def test_what_a_screen_reader_sees(self):
        calculator = self.started()
        buttons = calculator.nodes(pyatspi.ROLE_PUSH_BUTTON)
        names = [button.name for button in buttons]
        for expected in [*"0123456789", "plus", "minus", "multiply", "divide", "point", "clear entry", "="]:
            self.assertIn(expected, names)
        self.assertEqual([button.name for button in buttons if not button.description], [])
        display = calculator.nodes(pyatspi.ROLE_TEXT)[0]
        self.assertTrue(display.name)
        self.assertTrue(display.getState().contains(pyatspi.STATE_FOCUSED))
        self.assertTrue(display.getState().contains(pyatspi.STATE_READ_ONLY))

        changes = []
        on_change = lambda event: changes.append(event.source.name)  # noqa: E731
        pyatspi.Registry.registerEventListener(on_change, "object:text-changed")
        self.addCleanup(pyatspi.Registry.deregisterEventListener, on_change, "object:text-changed")
        keys("7")
        wait_for("the display's change", lambda: display.name in changes)

    def test_screen_reader_presses_and_moves_the_focus(self):
        calculator = self.started()
        button = calculator.button("9")
        button.queryAction().doAction([button.queryAction().getName(i).lower()
                                       for i in range(button.queryAction().nActions)].index("press"))
        calculator.expect_display("9")
        root = next(node for node in calculator.nodes(pyatspi.ROLE_PUSH_BUTTON) if "root" in node.name)
        root.queryComponent().grabFocus()
        wait_for("the focus", lambda: root.getState().contains(pyatspi.STATE_FOCUSED))
        keys("Return")
        calculator.expect_display("3")

    def test_mouse(self):
        calculator = self.started()
        box = calculator.button("8").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        xdotool("mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2), "click", "1", "click", "1")
        calculator.expect_display("88")
        menu = calculator.nodes(pyatspi.ROLE_MENU_BAR)[0].queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        xdotool("mousemove", str(menu.x + 8), str(menu.y + 8), "mousemove", str(menu.x + 12), str(menu.y + 8))
        keys("1")
        calculator.expect_display("881")

    def test_menus_take_the_keys_and_give_them_back(self):
        calculator = self.started()
        menus = lambda: [m for m in calculator.nodes(pyatspi.ROLE_MENU_ITEM)  # noqa: E731
                         if m.getState().contains(pyatspi.STATE_SELECTED)
                         or m.getState().contains(pyatspi.STATE_FOCUSED)]
        keys("alt+v")
        wait_for("an open menu", menus)
        keys("7")
        keys("Escape", "Escape")
        wait_for("no open menu", lambda: not menus())
        calculator.expect_display("0")
        keys("4")
        calculator.expect_display("4")
        keys("alt+f")
        wait_for("an open menu", menus)
        keys("x")
        self.assertEqual(calculator.ended(), 0)
        self.assertTrue(calculator.settings.is_file())

    def test_scientific_view_from_the_menu(self):
        calculator = self.started()
        keys("alt+v")
        xdotool("key", "--delay", "60", "Return")
        lists = wait_for("the lists", lambda: calculator.nodes(pyatspi.ROLE_LIST))
        self.assertEqual([node.name for node in lists], ["Number base", "Angle unit"])
        keys("3", "0", "s")
        calculator.expect_display("0.5")
        keys("2", "parenleft", "3", "plus", "4", "parenright", "asterisk", "2", "Return")
        calculator.expect_display("14")
        # Alt and V is a key of this view; F10 leads to the menus.
        keys("alt+v")
        calculator.expect_display("1.4e+1")
        xdotool("key", "--delay", "60", "F10", "Right", "Down", "Down", "Down", "Return")
        wait_for("the tape", lambda: len(calculator.nodes(pyatspi.ROLE_TEXT)) > 2)
        calculator.expect_display("0")

    def test_number_bases_and_check_boxes(self):
        calculator = self.start("--view", "scientific")
        calculator.window()
        state = lambda node, what: node.getState().contains(what)  # noqa: E731
        inverse = wait_for("the check box", lambda: calculator.nodes(pyatspi.ROLE_CHECK_BOX)[0])
        keys("4", "ctrl+i", "space")
        wait_for("the mark", lambda: state(inverse, pyatspi.STATE_CHECKED))
        self.assertTrue(inverse.name and inverse.description and state(inverse, pyatspi.STATE_FOCUSED))
        keys("q")
        calculator.expect_display("2")
        wait_for("no mark", lambda: not state(inverse, pyatspi.STATE_CHECKED))
        keys("2", "5", "5", "ctrl+b", "Up")
        calculator.expect_display("FF")
        bases = calculator.nodes(pyatspi.ROLE_LIST)[0]
        self.assertEqual([(item.name, state(item, pyatspi.STATE_SELECTED)) for item in bases],
                         [("Hex", True), ("Decimal", False), ("Octal", False), ("Binary", False)])
        self.assertFalse(state(calculator.button("sine"), pyatspi.STATE_ENABLED))
        keys("a", "f", "ctrl+c", "Return")
        calculator.expect_display("AFC")
        bases[3].queryAction().doAction(0)
        calculator.expect_display("101011111100")
        inverse.queryAction().doAction(0)
        wait_for("the mark", lambda: state(inverse, pyatspi.STATE_CHECKED))

    def test_a_screen_reader_hears_of_no_focus_that_comes_back(self):
        calculator = self.start("--view", "scientific")
        calculator.window()
        keys("1")
        calculator.expect_display("1")
        focused = []
        on_focus = lambda event: focused.append(event.source.name)  # noqa: E731
        pyatspi.Registry.registerEventListener(on_focus, "object:state-changed:focused")
        self.addCleanup(pyatspi.Registry.deregisterEventListener, on_focus, "object:state-changed:focused")
        keys("7", "plus", "5")
        calculator.expect_display("5")
        keys("ctrl+b")
        wait_for("the list's focus", lambda: "Number base" in focused or "Decimal" in focused)
        self.assertEqual([name for name in focused if name in ("7", "5", "plus")], [])

    def test_signals_save_the_settings(self):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(signal=number.name):
                calculator = self.started()
                self.assertFalse(calculator.settings.exists())
                calculator.process.send_signal(number)
                self.assertEqual(calculator.ended(), 0)
                self.assertIn("CalcView", calculator.settings.read_text())
                calculator.settings.unlink()

    def test_closing_the_window_saves_the_settings(self):
        calculator = self.started()
        keys("alt+F4")
        self.assertEqual(calculator.ended(), 0)
        self.assertTrue(calculator.settings.is_file())

    @unittest.skipUnless(shutil.which("xev"), "xev is not installed")
    def test_exit_gives_the_focus_to_the_host_product(self):
        host = subprocess.Popen(["xev", "-name", "Reading with QUORVANE 1000"], stdout=subprocess.DEVNULL)
        self.addCleanup(host.wait)
        self.addCleanup(host.kill)
        window = wait_for("the host's window", lambda: xdotool("search", "--onlyvisible", "--name", "QUORVANE"))[0]
        calculator = self.started()
        xdotool("windowminimize", window)
        wait_for("the minimised window", lambda: not xdotool("search", "--onlyvisible", "--name", "QUORVANE"))
        calculator.process.terminate()
        calculator.ended()
        wait_for("the host's window in front", lambda: xdotool("getactivewindow") == [window])

    def test_display_that_goes_away(self):
        server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "800x600x24", "-noreset"],
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.addCleanup(server.wait)
        self.addCleanup(server.kill)
        display = ":" + server.stdout.readline().strip()
        server.stdout.close()
        environment = {"DISPLAY": display, "XAUTHORITY": "/dev/null"}
        calculator = self.start(environment=environment)
        wait_for("the window", lambda: subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(calculator.process.pid)],
            env={**os.environ, **environment}, capture_output=True).stdout)
        server.kill()
        calculator.ended()
        self.assertIn("CalcView", calculator.settings.read_text())

    def test_one_copy(self):
        first = self.started()
        window = first.window()
        xdotool("windowminimize", window)
        wait_for("the minimised window", lambda: not xdotool("search", "--onlyvisible", "--pid", str(first.process.pid)))
        self.assertEqual(self.start().ended(), 0)
        self.assertEqual(first.window(), window)
        with tempfile.TemporaryDirectory(prefix="qvescalc-test-") as other:
            elsewhere = Calculator(other)
            self.addCleanup(elsewhere.kill)
            elsewhere.window()
        first.process.kill()
        first.process.wait()
        self.started()

    def test_copies_started_at_the_same_moment(self):
        copies = [self.start() for _ in range(4)]
        wait_for("all copies but one to end", lambda: sum(c.process.poll() is not None for c in copies) == 3)
        time.sleep(0.3)
        self.assertEqual(sorted(str(c.process.poll()) for c in copies), ["0", "0", "0", "None"])

    def test_number_that_is_no_view_shows_no_window(self):
        calculator = self.start()
        calculator.window()
        calculator.process.terminate()
        calculator.ended()
        calculator.settings.write_text('"Calc Settings"\n"CalcView",7\n')
        calculator = self.start()
        time.sleep(0.5)
        self.assertIsNone(calculator.process.poll())
        self.assertEqual(xdotool("search", "--onlyvisible", "--pid", str(calculator.process.pid)), [])
        calculator.process.terminate()
        self.assertEqual(calculator.ended(), 0)

    def test_command_line(self):
        for options in (["--view", "round"], ["--nonsense"], ["-nonsense"], ["word"]):
            with self.subTest(options=options):
                result = subprocess.run([PROGRAM, *options], capture_output=True, text=True, timeout=PATIENCE)
                self.assertEqual(result.returncode, 2)
                self.assertIn(options[0], result.stderr)
        without = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
        self.assertEqual(subprocess.run([PROGRAM, "--help"], env=without, capture_output=True).returncode, 0)
        result = subprocess.run([PROGRAM], env=without, capture_output=True, text=True)
        self.assertEqual(result.returncode, 2)
        self.assertIn("display", result.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
