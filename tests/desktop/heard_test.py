"""What is heard: the real window, real keys, and a recording of a sound output that makes no noise.

usage: heard_test.py PROGRAM
Prints how long after each key the speech begins, and how long after Ctrl alone it ends; fails only beyond a second, as
the machine may be busy. Exit status 77: the tools for that are missing.
"""
import array
import os
import shutil
import subprocess
import sys
import tempfile
import threading
import time

TOOLS = ["xvfb-run", "dbus-run-session", "openbox", "xdotool", "xprop", "pulseaudio", "parec"]
INSIDE = "QVES_HEARD_TEST"
RATE = 16000
LOUD = 300  # of 32767
BOUND = 1.0  # seconds
FAILED = []


class Recording:
    """The sound output's monitor, each piece with the time of its arrival."""

    def __init__(self):
        self.pieces = []
        self.process = subprocess.Popen(
            ["parec", "--device=null.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1", "--latency-msec=5"],
            stdout=subprocess.PIPE)
        threading.Thread(target=self.read, daemon=True).start()

    def read(self):
        while data := os.read(self.process.stdout.fileno(), 4096):
            samples = array.array("h", data[:len(data) // 2 * 2])
            self.pieces.append((time.monotonic(), max(map(abs, samples), default=0) > LOUD))

    def first_loud(self, since):
        return next((t for t, loud in list(self.pieces) if loud and t > since), None)

    def last_loud(self, since):
        return max((t for t, loud in list(self.pieces) if loud and t > since), default=since)


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


def wait_for(what, condition):
    end = time.monotonic() + 10
    while not condition():
        if time.monotonic() > end:
            raise RuntimeError(what + " does not start")
        time.sleep(0.05)


def is_managed():
    """A window that comes before the window manager may lose the keyboard again."""
    query = ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK", "_NET_CLIENT_LIST"]
    return subprocess.run(query, capture_output=True, text=True).stdout.count("window id") == 2


def hear(calculator):
    recording = Recording()
    try:
        search = ["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(calculator.pid)]
        window = subprocess.run(search, capture_output=True, text=True, check=True, timeout=10).stdout.split()[0]
        subprocess.run(["xdotool", "windowfocus", "--sync", window], check=True, timeout=10)
        time.sleep(2)
        press("Control_L")  # the welcome need not be heard to its end
        time.sleep(1)
        hear_keys(recording)
        hear_silence(recording)
    finally:
        recording.process.terminate()


def inside(program):
    folder = os.environ["XDG_RUNTIME_DIR"]
    sound = subprocess.Popen(["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--log-target=null",
                              "-L", "module-native-protocol-unix",
                              "-L", "module-null-sink sink_name=null rate=48000 channels=2 norewinds=1"])
    manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
    wait_for("the window manager", is_managed)
    wait_for("the sound server", lambda: os.path.exists(os.path.join(folder, "pulse", "native")))
    calculator = subprocess.Popen([program, "--home", os.path.join(folder, "home"), "--speech", "espeak-ng"])
    try:
        hear(calculator)
    finally:
        for process in (calculator, manager, sound):
            process.terminate()
            process.wait(10)
    print("failed:", FAILED) if FAILED else print("all heard")
    return 1 if FAILED else 0


def main():
    program = os.path.abspath(sys.argv[1])
    if INSIDE in os.environ:
        sys.exit(inside(program))
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    if missing:
        print("skipped, not installed:", *missing)
        sys.exit(77)
    with tempfile.TemporaryDirectory() as folder:
        environment = {**os.environ, INSIDE: "1", "XDG_RUNTIME_DIR": folder, "HOME": folder}
        environment.pop("PULSE_SERVER", None)
        command = ["xvfb-run", "-a", "-s", "-screen 0 1280x900x24 -noreset", "dbus-run-session", "--", sys.executable,
                   os.path.abspath(__file__), program]
        sys.exit(subprocess.run(command, env=environment).returncode)


main()
