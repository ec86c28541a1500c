"""What the tests of the window share: a session of their own, real keys, the program as a screen reader sees it, and a
recording of a sound output that makes no noise."""
import array
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

SESSION_TOOLS = ["xvfb-run", "Xvfb", "dbus-run-session", "openbox", "xdotool", "xprop"]
SOUND_TOOLS = ["pulseaudio", "pactl", "parec"]
INSIDE = "QVES_TEST_SESSION"
SLOWNESS = int(os.environ.get("QVES_SLOWNESS", "1"))  # how much longer anything may take, with sanitizers
PATIENCE = 10.0 * SLOWNESS  # seconds; what is waited for comes within fractions of one
RATE = 16000
LOUD = 300  # of 32767
SILENCE = 1.0  # seconds; no pause of a text is as long


def enter_session(tools=(), modules=()):
    """Runs the script again inside a display, a message bus and a runtime folder of its own, and ends with its status.

    Status 77: the tools for that are missing. Returns at once inside."""
    if INSIDE in os.environ:
        return
    missing = [tool for tool in [*SESSION_TOOLS, *tools] if not shutil.which(tool)]
    missing += [module for module in modules
                if subprocess.run([sys.executable, "-c", "import " + module], stderr=subprocess.DEVNULL).returncode]
    if missing:
        print("skipped, not installed:", *missing)
        sys.exit(77)
    with tempfile.TemporaryDirectory(prefix="qvescalc-test-", ignore_cleanup_errors=True) as folder:
        environment = {**os.environ, INSIDE: "1", "XDG_RUNTIME_DIR": folder, "HOME": folder}
        environment.pop("PULSE_SERVER", None)
        command = ["xvfb-run", "-a", "-s", "-screen 0 1280x900x24 -noreset", "dbus-run-session", "--", sys.executable,
                   *map(os.path.abspath, sys.argv[:2]), *sys.argv[2:]]
        sys.exit(subprocess.run(command, env=environment).returncode)


def handle_bus_events():
    """Lets listeners of the accessibility bus hear, where there are any."""
    if "pyatspi" not in sys.modules:
        return
    from gi.repository import GLib
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(what, condition, patience=PATIENCE):
    """The condition's value as soon as it is true; an error of the accessibility bus counts as not yet."""
    end = time.monotonic() + patience
    while True:
        handle_bus_events()
        try:
            value = condition()
        except Exception:  # the tree changes under the reader
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("waited in vain for " + what)
        time.sleep(0.02)


def holds(what, condition, seconds=1.0):
    """Fails as soon as the condition, which must be true all the time, is not."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        handle_bus_events()
        if not condition():
            raise AssertionError("not so all the time: " + what)
        time.sleep(0.02)


def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def xdotool(*arguments):
    return subprocess.run(["xdotool", *arguments], capture_output=True, text=True).stdout.split()


def start_manager():
    """A window that comes before the window manager may lose the keyboard again."""
    manager = subprocess.Popen(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    properties = ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK", "_NET_CLIENT_LIST"]
    wait_for("the window manager", lambda: subprocess.run(
        properties, capture_output=True, text=True).stdout.count("window id") == 2)
    return manager


def descendants(node):
    for child in node:
        if child is not None:
            yield child
            yield from descendants(child)


class Calculator:
    """A running copy with a home folder."""

    def __init__(self, program, home, *options, speech="off", environment=None):
        self.home = Path(home)
        self.process = subprocess.Popen(
            [program, "--home", str(home), "--speech", speech, *options],
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
        import pyatspi

        def application():
            for node in pyatspi.Registry.getDesktop(0):
                if node is not None and node.get_process_id() == self.process.pid:
                    return node
            return None
        return wait_for("the program on the accessibility bus", application)

    def nodes(self, role):
        return [node for node in descendants(self.tree()) if node.getRole() == role]

    def button(self, name):
        import pyatspi
        return wait_for("button " + name, lambda: next(
            node for node in self.nodes(pyatspi.ROLE_PUSH_BUTTON) if node.name == name))

    def display(self):
        import pyatspi
        node = self.nodes(pyatspi.ROLE_TEXT)[0]
        return node.queryText().getText(0, -1)

    def expect_display(self, text):
        try:
            wait_for("", lambda: self.display() == text, 4)
        except AssertionError:
            raise AssertionError(f"the display shows {self.display()!r}, not {text!r}") from None

    def ended(self):
        return wait_for("the end of the program", lambda: self.process.poll() is not None) and self.process.returncode

    def end(self):
        """Ends the program, if it has not ended. What a sanitizer says of it, its leaks too, is an error."""
        self.process.terminate()
        try:
            said = self.process.communicate(timeout=PATIENCE)[1]
        except subprocess.TimeoutExpired:
            self.process.kill()
            said = self.process.communicate()[1]
        if "Sanitizer" in said or "runtime error: " in said:
            raise AssertionError(said)


class SoundServer:
    """A sound output that makes no noise."""

    def __init__(self):
        self.process = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--log-target=null",
             "-L", "module-native-protocol-unix",
             "-L", "module-null-sink sink_name=null rate=48000 channels=2 norewinds=1"])
        wait_for("the sound server", lambda: subprocess.run(
            ["pactl", "info"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0)

    def stop(self, kill=False):
        self.process.kill() if kill else self.process.terminate()
        self.process.wait(10)


class Recording:
    """The sound output's monitor, each piece with the time of its arrival."""

    def __init__(self):
        self.pieces = []
        self.process = subprocess.Popen(
            ["parec", "--device=null.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1", "--latency-msec=5"],
            stdout=subprocess.PIPE)
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()
        wait_for("the recording", lambda: self.pieces)

    def read(self):
        while data := os.read(self.process.stdout.fileno(), 4096):
            samples = array.array("h", data[:len(data) // 2 * 2])
            self.pieces.append((time.monotonic(), max(map(abs, samples), default=0) > LOUD))

    def stop(self):
        self.process.terminate()
        self.process.wait(10)
        self.reader.join(10)
        self.process.stdout.close()

    def first_loud(self, since):
        return next((t for t, loud in list(self.pieces) if loud and t > since), None)

    def wait_for_sound(self, since, what, patience=PATIENCE):
        """The time when it began."""
        return wait_for(what, lambda: self.first_loud(since), patience)

    def wait_for_silence(self, since):
        """The time when sound ended for longer than speech pauses; `since` when there was none."""
        wait_for("silence", lambda: time.monotonic() - self.last_loud(since) > SILENCE, 60)
        return self.last_loud(since)

    def last_loud(self, since):
        return max((t for t, loud in list(self.pieces) if loud and t > since), default=since)
