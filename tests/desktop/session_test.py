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
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
from rig import PATIENCE, Calculator, enter_session, holds, keys, start_manager, wait_for, xdotool  # noqa: E402

if __name__ == "__main__":
    enter_session(tools=["setxkbmap"], modules=["pyatspi"])

import pyatspi  # noqa: E402  (needs the session's bus)

PROGRAM = os.path.abspath(sys.argv[1])


class SessionTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.manager = start_manager()

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
        calculator = Calculator(PROGRAM, self.home, *options, **more)
        self.addCleanup(calculator.end)
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

    def test_alt_opens_the_menus_of_every_view(self):
        opened = {"alt+f": "Exit", "alt+v": "Scientific View", "alt+h": "About"}
        for view in ("standard", "scientific", "business", "statistics"):
            calculator = self.start("--view", view)
            calculator.window()
            keys("4")
            calculator.expect_display("4")
            for chord, item in opened.items():
                with self.subTest(view=view, chord=chord):
                    keys(chord)
                    wait_for("the menu with " + item, lambda: any(
                        item in node.name and node.getState().contains(pyatspi.STATE_SHOWING)
                        for node in calculator.nodes(pyatspi.ROLE_MENU_ITEM)))
                    keys("Escape", "Escape")
            keys("2")
            calculator.expect_display("42")
            calculator.process.terminate()
            calculator.ended()

    def test_key_help_and_the_voice_off(self):
        calculator = self.started()
        keys("7")
        calculator.expect_display("7")
        opened = lambda: [node.name for node in calculator.nodes(pyatspi.ROLE_MENU_ITEM)  # noqa: E731
                          if node.getState().contains(pyatspi.STATE_SELECTED)]
        keys("shift+F1", "5", "m", "Delete", "F9", "F10", "Tab", "space", "ctrl+m")
        holds("the calculation and no menu", lambda: calculator.display() == "7" and not opened())
        xdotool("keydown", "Escape", "sleep", "1.2", "keyup", "Escape")  # held, it does not clear all
        keys("5")
        calculator.expect_display("75")
        keys("F9", "m")
        calculator.expect_display("-75")
        calculator.process.terminate()
        calculator.ended()
        self.assertIn('"OwnVoice","off"', calculator.settings.read_text())

    def test_the_decimal_comma_of_the_desktops_language(self):
        for language, shown in (("de_DE.UTF-8", "1.5"), ("en_US.UTF-8", "15")):
            with self.subTest(language=language):
                calculator = self.start(environment={"LC_ALL": "", "LC_NUMERIC": language, "LANG": "fr_FR.UTF-8"})
                calculator.window()
                keys("1", "comma", "5")
                calculator.expect_display(shown)
                calculator.process.terminate()
                calculator.ended()

    def test_the_tape_is_read_by_the_line_and_the_lines_are_no_controls(self):
        calculator = self.started()
        names = [node.name for node in calculator.nodes(pyatspi.ROLE_LABEL)]
        self.assertEqual([name.split(":")[0] for name in names], ["Open calculation", "Status"])
        keys("1", "plus", "2", "Return", "7", "plus", "5", "Return")
        calculator.expect_display("12")
        keys("ctrl+v", "Tab", "Tab")
        tape = calculator.nodes(pyatspi.ROLE_TEXT)[2]
        wait_for("the tape's focus", lambda: tape.getState().contains(pyatspi.STATE_FOCUSED))
        lines = tape.queryText()
        for key, line in (("Up", "7 + 5 = 12"), ("Up", "1 + 2 = 3"), ("End", "1 + 2 = 3"), ("ctrl+End", "7 + 5 = 12")):
            with self.subTest(key=key):
                keys(key)
                wait_for("the caret on " + line, lambda: lines.getTextAtOffset(
                    lines.caretOffset, pyatspi.TEXT_BOUNDARY_LINE_START)[0].strip() == line)

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
        keys("v")
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

    def data_list(self, calculator):
        """The first list's items, and the chosen one."""
        items = [(item.name, item.getState().contains(pyatspi.STATE_SELECTED))
                 for item in calculator.nodes(pyatspi.ROLE_LIST)[0]]
        return [name for name, _ in items], [name for name, chosen in items if chosen]

    def expect_data(self, calculator, names, chosen):
        wait_for(f"the points {names}", lambda: self.data_list(calculator) == (names, [chosen]))

    def test_points_and_their_statistics(self):
        calculator = self.start("--view", "statistics")
        calculator.window()
        keys("1", "period", "5", "a", "2", "a", "7", "a", "4", "a")
        self.expect_data(calculator, ["1.5", "2", "7", "4"], "1.5")
        lists = calculator.nodes(pyatspi.ROLE_LIST)
        self.assertEqual([node.name for node in lists], ["Data list", "Data list 2"])
        keys("ctrl+d", "Down", "Down")
        self.expect_data(calculator, ["1.5", "2", "7", "4"], "7")
        keys("r")
        self.expect_data(calculator, ["1.5", "2", "4"], "4")
        lists[0][1].queryAction().doAction(0)
        self.expect_data(calculator, ["1.5", "2", "4"], "2")
        keys("u")
        report = wait_for("the report", lambda: next(
            node for node in calculator.nodes(pyatspi.ROLE_TEXT) if node.name == "Statistics Result"))
        text = report.queryText().getText(0, -1)
        for line in ("Count = 3", "Sum = 7.5", "Mean = 2.5", "Median = 2"):
            self.assertIn(line, text)
        keys("Escape", "Return", "5")
        calculator.expect_display("5")

    def test_copy_and_paste_with_real_keys(self):
        calculator = self.start("--view", "statistics")
        calculator.window()
        keys("7", "period", "5", "m", "ctrl+shift+c", "Escape")
        calculator.expect_display("0")
        keys("ctrl+shift+v")
        calculator.expect_display("-7.5")
        keys("a")
        self.expect_data(calculator, ["-7.5"], "-7.5")
        # What the toolkit copies is pasted, too.
        keys("Escape", "4", "ctrl+v", "ctrl+c", "Escape", "shift+Insert")
        calculator.expect_display("4")

    def open_import(self, calculator):
        """The keyboard is the file dialog's then."""
        window = calculator.window()
        xdotool("key", "--delay", "60", "alt+f", "Return")
        wait_for("the file dialog", lambda: xdotool("getactivewindow") not in ([], [window]))

    def test_import_through_the_file_dialog(self):
        calculator = self.start("--view", "statistics")
        documents = calculator.home / "Documents" / "QVES"
        documents.mkdir(parents=True)
        (documents / "points.txt").write_text("10,20 30\n")
        window = calculator.window()
        keys("6", "a", "7")
        self.open_import(calculator)
        keys("a", "l", "1", "Control_L", "Caps_Lock", "Caps_Lock")
        keys("Escape")
        wait_for("the calculator", lambda: xdotool("getactivewindow") == [window])
        keys("8")
        calculator.expect_display("78")
        self.expect_data(calculator, ["6"], "6")
        self.open_import(calculator)
        xdotool("type", "points")
        keys("Return")
        self.expect_data(calculator, ["10", "20", "30"], "10")
        calculator.expect_display("78")

    def test_end_inside_the_file_dialog(self):
        for name in ("", "nothing.txt"):
            with self.subTest(name=name):
                calculator = self.start("--view", "statistics")
                self.open_import(calculator)
                if name:  # the message that there is no such file
                    xdotool("type", name)
                    keys("Return")
                    wait_for("the message", lambda: len(
                        xdotool("search", "--onlyvisible", "--pid", str(calculator.process.pid))) == 3)
                calculator.process.terminate()
                self.assertEqual(calculator.ended(), 0)
                self.assertIn("CalcView", calculator.settings.read_text())

    def test_a_screen_reader_hears_of_no_focus_that_comes_back(self):
        calculator = self.start("--view", "scientific", "-style", "fusion")  # the latter is the toolkit's
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
        other = tempfile.TemporaryDirectory(prefix="qvescalc-test-")
        self.addCleanup(other.cleanup)
        elsewhere = Calculator(PROGRAM, other.name)
        self.addCleanup(elsewhere.end)
        elsewhere.window()
        first.process.kill()
        first.process.wait()
        self.started()

    def test_a_copy_that_hangs_holds_no_later_one_up(self):
        first = self.started()
        first.process.send_signal(signal.SIGSTOP)
        later = [self.start() for _ in range(3)]
        for copy in later:
            self.assertEqual(copy.ended(), 0)
            self.assertIn("does not answer", copy.process.stderr.read())
        first.process.send_signal(signal.SIGCONT)
        self.assertEqual(self.start().ended(), 0)
        keys("4")
        first.expect_display("4")

    def test_copies_started_at_the_same_moment(self):
        copies = [self.start() for _ in range(4)]
        wait_for("all copies but one to end", lambda: sum(c.process.poll() is not None for c in copies) == 3)
        holds("one copy runs on", lambda: sorted(str(c.process.poll()) for c in copies) == ["0", "0", "0", "None"])

    def test_number_that_is_no_view_shows_no_window(self):
        calculator = self.start()
        calculator.window()
        calculator.process.terminate()
        calculator.ended()
        calculator.settings.write_text('"Calc Settings"\n"CalcView",7\n')
        sockets = lambda: len(list(Path(os.environ["XDG_RUNTIME_DIR"]).glob("qvescalc-*.socket")))  # noqa: E731
        before = sockets()
        calculator = self.start()
        wait_for("the copy that listens for others", lambda: sockets() > before)
        self.assertEqual(xdotool("search", "--onlyvisible", "--pid", str(calculator.process.pid)), [])
        calculator.process.terminate()
        self.assertEqual(calculator.ended(), 0)

    def test_command_line(self):
        for options in (["--view", "round"], ["--view"], ["--view", "standard", "--view", "round"], ["--speech", ""],
                        ["--home", "/dev/null/x"], ["--nonsense"], ["-nonsense"], ["word"]):
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
