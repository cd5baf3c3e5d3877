#!/usr/bin/python3
"""Runs the demo host on the accessibility bus the way a screen reader meets it, and walks its screens.

An X server with a window manager, a D-Bus session, the AT-SPI bus launcher and, in this process, a
listener that reads every focus, showing and name event as a screen reader does. The walk presses the
named buttons through their AT-SPI actions; a route that ends in "Close" reopens the module from the
host. The demo must end by itself when its last window closes, and its food-data service with it.

usage: screen_reader.py DEMO            the walk; exit status 0 when the demo neither crashed nor
                                        left its service running
       screen_reader.py DEMO --explore  the session only: prints the events and waits for Ctrl-C
"""

import ctypes
import fnmatch
import os
import shutil
import signal
import subprocess
import sys
import time

AT_SPI_LAUNCHERS = ["/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher"]
TOOLS = ["Xvfb", "openbox", "dbus-daemon", "xdotool"]
PR_SET_PDEATHSIG = 1
STEP_SECONDS = 30
START = time.monotonic()


class WalkFailed(Exception):
    pass


def log(*parts):
    print(f"[{time.monotonic() - START:6.2f}]", *parts, flush=True)


def die_with_parent():
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


def stat(pid):
    """The fields of /proc/PID/stat after the name (state, parent, ...), or None once it has gone."""
    try:
        with open(f"/proc/{pid}/stat") as file:
            return file.read().rsplit(")", 1)[1].split()
    except OSError:
        return None


def children_of(pid):
    return [int(entry) for entry in os.listdir("/proc")
            if entry.isdigit() and (fields := stat(entry)) and int(fields[1]) == pid]


def running(pid):
    fields = stat(pid)
    return fields is not None and fields[0] != "Z"


def quietly(question, default=None):
    """The answer, or `default` when the object asked has gone meanwhile."""
    try:
        return question()
    except Exception:
        return default


def describe(status):
    if status is None:
        return "running"
    return f"signal {signal.Signals(-status).name}" if status < 0 else f"exit status {status}"


class Session:
    """The X server, window manager, D-Bus session and AT-SPI bus. Each helper dies with this process,
    however it ends, so none is left behind for the next run."""

    def __init__(self):
        self.helpers = []

    def spawn(self, argv, **kwargs):
        self.helpers.append(subprocess.Popen(argv, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                             stderr=subprocess.DEVNULL, preexec_fn=die_with_parent, **kwargs))

    def first_line(self, argv):
        """Starts argv with "{fd}" replaced by a pipe, and reads the line it writes there."""
        read_end, write_end = os.pipe()
        self.spawn([arg.replace("{fd}", str(write_end)) for arg in argv], pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            line = pipe.readline().strip()
        if not line:
            raise WalkFailed(f"{argv[0]} did not start")
        return line

    def __enter__(self):
        missing = [tool for tool in TOOLS if shutil.which(tool) is None]
        launcher = next((path for path in AT_SPI_LAUNCHERS if os.access(path, os.X_OK)), None)
        if missing or launcher is None:
            missing += [] if launcher else ["at-spi-bus-launcher"]
            raise WalkFailed(f"missing {' '.join(missing)} (scripts/setup installs them)")
        os.environ["DISPLAY"] = ":" + self.first_line(["Xvfb", "-displayfd", "{fd}", "-screen", "0",
                                                      "1024x900x24", "-nolisten", "tcp"])
        # A bus of this run's own; dbus-launch would fork it away from this process.
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.first_line(
            ["dbus-daemon", "--session", "--nofork", "--print-address={fd}"])
        self.spawn(["openbox"])
        self.spawn([launcher, "--launch-immediately"])
        return self

    def __exit__(self, *exc):
        for process in reversed(self.helpers):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
        return False


def matches(actual, wanted):
    """A "*" in a name stands for any text; a name that starts with "!" matches any other name."""
    if wanted.startswith("!"):
        return not matches(actual, wanted[1:])
    return fnmatch.fnmatchcase(actual, wanted)


class Reader:
    """A listener that reads each event's object, the way a screen reader speaks it."""

    EVENTS = ["focus:", "object:state-changed:focused", "object:state-changed:showing",
              "object:property-change:accessible-name"]

    def __init__(self, verbose):
        import pyatspi
        from gi.repository import GLib
        self.pyatspi = pyatspi
        self.context = GLib.MainContext.default()
        self.verbose = verbose
        self.events = 0
        pyatspi.Registry.registerEventListener(self.on_event, *self.EVENTS)
        # A question the demo cannot answer fails within seconds rather than D-Bus's 25.
        pyatspi.setTimeout(3000, 15000)

    def on_event(self, event):
        self.events += 1
        try:
            source = event.source
            parent = source.parent
            spoken = f"{source.getRoleName()} '{source.name}' in '{parent.name if parent else ''}'"
        except Exception as error:  # an object that went away between the event and the question
            spoken = f"gone ({type(error).__name__})"
        if self.verbose:
            log(event.type, spoken)

    def pump(self, seconds):
        deadline = time.monotonic() + seconds
        while True:
            while self.context.iteration(False):
                pass
            if time.monotonic() >= deadline:
                return
            time.sleep(0.02)

    def application(self, pid):
        return next((app for app in self.pyatspi.Registry.getDesktop(0)
                     if app is not None and quietly(app.get_process_id) == pid), None)

    def showing(self, node):
        return quietly(lambda: node.getState().contains(self.pyatspi.STATE_SHOWING), False)

    def role(self, name):
        """The AT-SPI role, and a state it must have: Qt gives a text field the role of a text."""
        if name == "entry":
            return self.pyatspi.ROLE_TEXT, self.pyatspi.STATE_EDITABLE
        return getattr(self.pyatspi, "ROLE_" + name.upper().replace(" ", "_")), None

    def find(self, root, role, name):
        """The first showing object below root, breadth first, with that role (and its state) and name."""
        role, state = self.role(role)
        pending = [root]
        while pending:
            for child in quietly(lambda: list(pending.pop(0)), []):
                if child is None or not self.showing(child):
                    continue
                if quietly(lambda: child.getRole() == role and matches(child.name, name) and (
                        state is None or child.getState().contains(state))):
                    return child
                pending.append(child)
        return None


class Demo:
    def __init__(self, binary, reader):
        env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
        self.process = subprocess.Popen([binary], env=env, stdout=subprocess.PIPE, text=True,
                                        preexec_fn=die_with_parent)
        self.reader = reader
        log("demo:", self.process.stdout.readline().strip())
        self.services = children_of(self.process.pid)
        self.app = None

    def alive(self):
        return self.process.poll() is None

    def wait_for(self, what, found):
        deadline = time.monotonic() + STEP_SECONDS
        while time.monotonic() < deadline:
            if not self.alive():
                raise WalkFailed(f"the demo ended ({describe(self.process.returncode)}) waiting for {what}")
            if self.app is None:
                self.app = self.reader.application(self.process.pid)
            result = self.app is not None and found()
            if result:
                return result
            self.reader.pump(0.1)
        raise WalkFailed(f"no {what} within {STEP_SECONDS} s")

    def control(self, role, name, within=None):
        """A showing control, inside the showing container `within` (role, name) when given."""
        def found():
            root = self.reader.find(self.app, *within) if within else self.app
            return root and self.reader.find(root, role, name)
        return self.wait_for(f"{role} {name!r}", found)

    def press(self, role, name, within=None, leaves=False):
        """Presses the control; with `leaves`, waits until the screen that held it has gone."""
        node = self.control(role, name, within)
        log("press", role, repr(node.name))
        action = node.queryAction()
        names = [action.getName(i) for i in range(action.nActions)]
        action.doAction(names.index("Press") if "Press" in names else 0)
        if leaves:
            self.wait_for(f"{name!r} to go", lambda: not self.reader.showing(node))
        self.reader.pump(0.3)

    def type(self, name, text):
        node = self.control("entry", name)
        node.queryComponent().grabFocus()
        self.reader.pump(0.2)
        try:
            node.queryEditableText().setTextContents(text)
        except NotImplementedError:  # then as a person types it
            subprocess.run(["xdotool", "type", "--delay", "30", text], check=True)
        log("typed", repr(text), "into", repr(name))


# A step presses a control ("press", role, name[, within]) or types ("type", field, text); see matches()
# for the names. Every way starts on the search screen: the module opens on it, and an empty calculator
# shows it again.
MEALS = [("press", "page tab", "Meals")]
MEAL_EDITOR = MEALS + [("press", "push button", "Create Meal")]
PORTIONS = [("type", "Search", "apple"), ("press", "push button", "*", ("list", "Search results"))]
PREVIEW = PORTIONS + [("press", "radio button", "!Custom amount*", ("list", "Portions")),
                      ("press", "push button", "Select Portion")]
SUGGESTIONS = PREVIEW + [("press", "push button", "Add to calculator")]
HOST, SEARCH = ("push button", "Open carb calculator"), ("entry", "Search")
CALCULATOR = ("push button", "Search more foods")
# A calculator line read with what it counts: its food, its portion and weight, and its carbohydrates.
COUNTED_LINE = ("push button", "Apple*, * · * g*, * g")
# Each screen: the way there, what shows on it, and each way out it offers with the buttons pressed
# after it, and where that lands (with what shows there). Adding a food comes last: the calculator
# keeps it.
ROUTES = [
    ("search", [], [SEARCH, ("label", "Type the name of a food*")],
     [("Back", [], [SEARCH]), ("Close", [], [HOST])]),
    ("meals", MEALS, [("page tab", "Meals")], [("Back", [], [SEARCH]), ("Close", [], [HOST])]),
    ("meal editor", MEAL_EDITOR, [("push button", "Save Meal"), ("entry", "Servings"),
                                  ("push button", "Increase Servings"), ("label", "No ingredients yet*")],
     [("Back", ["Close"], [HOST]), ("Close", [], [HOST])]),
    ("portions", PORTIONS, [("list", "Portions"), ("label", "Apple*")], [("Back", [], [SEARCH])]),
    ("preview", PREVIEW, [("push button", "Add to calculator"), ("entry", "Quantity")],
     [("Back", ["Back", "Close"], [HOST]), ("Close", [], [HOST])]),
    ("suggestions", SUGGESTIONS, [("push button", "No Thanks")],
     [("No Thanks", [], [CALCULATOR, COUNTED_LINE])]),
]


def walk(demo):
    at = HOST
    for screen, way, shown, exits in ROUTES:
        for exit, then, lands in exits:
            log(f"--- {screen}: {exit}")
            if at == HOST:
                demo.press(*HOST)
            for kind, *step in way:
                getattr(demo, kind)(*step)
            for control in shown:
                demo.control(*control)
            for button in [exit] + then:
                demo.press("push button", button, leaves=True)
            for control in lands:
                demo.control(*control)
            at = lands[0]
            demo.reader.pump(1.0)  # the screens that went are deleted by the event loop


def main():
    # A timeout's SIGTERM still takes the session down.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    explore = "--explore" in sys.argv
    demo = None
    try:
        with Session():
            reader = Reader(verbose=explore or "--verbose" in sys.argv)
            demo = Demo(sys.argv[1], reader)
            if len(demo.services) != 1:
                raise WalkFailed(f"the demo runs {len(demo.services)} services, not one")
            if explore:
                while demo.alive():
                    reader.pump(0.5)
            else:
                walk(demo)
                # The module's window closed by the window manager ends the demo with its last window.
                subprocess.run(["xdotool", "key", "alt+F4"], check=True)
                demo.process.wait(STEP_SECONDS)
            log(f"the demo ended with {describe(demo.process.returncode)}; {reader.events} events read")
            if demo.process.returncode != 0:
                raise WalkFailed(f"the demo ended with {describe(demo.process.returncode)}")
    except (WalkFailed, subprocess.TimeoutExpired, subprocess.CalledProcessError) as error:
        log("FAIL:", error)
        return 1
    finally:
        if demo is not None:
            if demo.alive():
                demo.process.kill()
                demo.process.wait()
            deadline = time.monotonic() + 10
            while any(map(running, demo.services)) and time.monotonic() < deadline:
                time.sleep(0.1)
            left = [pid for pid in demo.services if running(pid)]
            for pid in left:
                os.kill(pid, signal.SIGKILL)
            if left:
                log("FAIL: the food-data service outlived the demo")
                return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
