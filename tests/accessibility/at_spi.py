"""What a screen reader gets over AT-SPI from the dialog of a program that has no application object.

at_spi.py PROGRAM, on a display; it makes a session bus of its own. Status 77: there is none to be had,
or no AT-SPI on it.
"""

import os
import shutil
import subprocess
import sys
import tempfile


def skip(reason):
    print("skipped:", reason)
    sys.exit(77)


BUS = ["dbus-run-session", "--"]
if "KV_HAS_BUS" not in os.environ:
    if not shutil.which(BUS[0]) or subprocess.run(BUS + ["true"]).returncode != 0:
        skip("no session bus")
    os.execvpe(BUS[0], BUS + [sys.executable] + sys.argv, dict(os.environ, KV_HAS_BUS="1"))

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as missing:
    skip(missing)

OPERABLE = {"spin button", "check box", "radio button", "slider", "combo box", "push button", "page tab"}
PATIENCE = 60  # seconds, on a loaded machine

failures = []


def expect(condition, what):
    if not condition:
        failures.append(what)


def wait_until(condition):
    """Handles events until the condition gives something; returns that, or None in the end."""
    loop = GLib.MainLoop()
    end = GLib.get_monotonic_time() + PATIENCE * 1000000
    while GLib.get_monotonic_time() < end:
        found = condition()
        if found:
            return found
        GLib.timeout_add(100, loop.quit)
        loop.run()
    return None


def children(accessible):
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child:
            yield child


def descendants(accessible):
    for child in children(accessible):
        yield child
        yield from descendants(child)


def label_of(accessible):
    for relation in accessible.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return ""


def caption_of(accessible):
    """A list's own name is its current item."""
    is_list = accessible.get_role_name() == "combo box"
    return label_of(accessible) if is_list else accessible.get_name()


def look_at(application):
    expect(application.get_name() == "kv-mvc-settings", "application: %r" % application.get_name())
    seen = set()
    focused = []
    for accessible in list(descendants(application)):
        role = accessible.get_role_name()
        states = accessible.get_state_set()
        description = accessible.get_description()
        expect("<" not in description, "marks in a description: %r" % description)
        if role not in OPERABLE:
            continue
        caption = caption_of(accessible)
        expect(caption, "%s without a name, %r" % (role, accessible.get_name()))
        expect((role, caption) not in seen, "two of %s %r" % (role, caption))
        seen.add((role, caption))
        if states.contains(Atspi.StateType.FOCUSED):
            focused.append((role, caption))
    for wanted in [
        ("spin button", "Picture width"),
        ("combo box", "Picture aspect ratio"),
        ("combo box", "Base View, Bitrate mode"),
        ("spin button", "Base View, Target bitrate (bps)"),
        ("spin button", "View 1, Target bitrate (bps)"),
        ("radio button", "View 1, Bitrate buffer (bits), VBV buffers (bits)"),
    ]:
        expect(wanted in seen, "no %s %r" % wanted)
    panels = {a.get_name() for a in descendants(application) if a.get_role_name() == "panel"}
    for wanted in ["Base View, Buffers", "Base View, Units", "View 1, Units"]:
        expect(wanted in panels, "no group %r" % wanted)
    expect(focused == [("page tab", "Basic Settings")], "the focus is on %r" % focused)


def hear_errors(application):
    said = []

    def heard(event):
        if event.source.get_role_name() == "notification" and event.detail1:
            said.append(event.source.get_name())

    listener = Atspi.EventListener.new(heard)
    listener.register("object:state-changed:showing")
    width = next(a for a in descendants(application) if a.get_name() == "Picture width" and a.get_role_name() == "spin button")
    # AtspiValue's own functions are those of its object here.
    for number, begin in [(17, "There are errors: the settings are refused. "), (1920, "There are no errors any more.")]:
        said.clear()
        Atspi.Value.set_current_value(width, number)
        wait_until(lambda: said)
        expect(len(said) == 1 and said[0].startswith(begin), "width %d: said %r" % (number, said))


def main(program):
    with tempfile.TemporaryDirectory() as folder:
        settings = os.path.join(folder, "disc.ini")
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", HOME=folder)
        subprocess.run([program, "defaults", "blu-ray-3d", "-o", settings], check=True, env=environment)
        if Atspi.init() not in (0, 1) or not Atspi.get_desktop(0):
            skip("no AT-SPI on the bus")
        process = subprocess.Popen([program, "edit", settings], env=environment)
        try:
            is_ours = lambda a: a.get_process_id() == process.pid and a.get_child_count() > 0
            application = wait_until(lambda: next(filter(is_ours, children(Atspi.get_desktop(0))), None))
            if not application:
                sys.exit("the dialog is not on the bus")
            # The window manager gives the focus when it has placed the window.
            wait_until(lambda: any(a.get_state_set().contains(Atspi.StateType.ACTIVE) for a in children(application)))
            look_at(application)
            hear_errors(application)
        finally:
            process.terminate()
            process.wait()
    for failure in failures:
        print("FAIL:", failure)
    sys.exit(1 if failures else 0)


main(sys.argv[1])
