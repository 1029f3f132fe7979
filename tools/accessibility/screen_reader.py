"""What a screen reader sees, hears and does: objects by role and name, announcements, keys."""

import re
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

TAB, ESCAPE, SPACE = 0xFF09, 0xFF1B, 0x20

# Roles of what a user acts on.
CONTROLS = {"button", "check box", "combo box", "link", "menu item", "page tab", "progress bar",
            "radio button", "slider", "spin button", "text", "toggle button", "dialog"}
# Roles that do not say what an object is.
EMPTY = {"filler", "invalid", "redundant object", "unknown"}


def wait_for(what, condition, limit=60.0):
    """Lets events in until `condition()` is true, and returns its value. AssertionError that names
    `what` after `limit` seconds."""
    context = GLib.MainContext.default()
    deadline = time.monotonic() + limit
    while True:
        while context.iteration(False):
            pass
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {limit:g} s for {what}")
        time.sleep(0.05)


def fits(text, wanted):
    """Whether `text` is `wanted`, in which "…" between two words stands for anything."""
    return text == wanted or re.fullmatch(
        ".+".join(re.escape(part) for part in wanted.split("…")), text) is not None


class Object:
    """One accessible object, with its role; all else is asked for anew each time."""

    def __init__(self, accessible):
        self.accessible = accessible
        self.role = Atspi.Accessible.get_role_name(accessible)

    def __eq__(self, other):
        return isinstance(other, Object) and self.accessible == other.accessible

    def __hash__(self):
        return hash(self.accessible)

    def __str__(self):
        return f"{self.role} “{self.name}”"

    @property
    def name(self):
        return Atspi.Accessible.get_name(self.accessible) or ""

    def has(self, *states):
        held = Atspi.Accessible.get_state_set(self.accessible)
        return all(held.contains(getattr(Atspi.StateType, state.upper())) for state in states)

    def press(self):
        action = Atspi.Accessible.get_action_iface(self.accessible)
        names = [Atspi.Action.get_action_name(action, i)
                 for i in range(Atspi.Action.get_n_actions(action))]
        assert "Press" in names, f"{self} cannot be pressed, only {names}"
        Atspi.Action.do_action(action, names.index("Press"))

    def take_focus(self):
        Atspi.Component.grab_focus(self.accessible)

    @property
    def value(self):
        return Atspi.Value.get_current_value(self.accessible)

    @value.setter
    def value(self, number):
        Atspi.Value.set_current_value(self.accessible, number)

    def children(self):
        """What can be seen directly in this object."""
        for i in range(Atspi.Accessible.get_child_count(self.accessible)):
            child = Atspi.Accessible.get_child_at_index(self.accessible, i)
            if child is not None and Atspi.Accessible.get_state_set(child).contains(
                    Atspi.StateType.VISIBLE):
                yield Object(child)

    def walk(self):
        """This object and all that can be seen in it, in the order of reading."""
        yield self
        for child in self.children():
            yield from child.walk()


class ScreenReader:
    """Follows one program: its window, where the focus is, what it announces."""

    def __init__(self):
        Atspi.init()
        Atspi.set_timeout(10000, 10000)  # ms: the machine may be busy
        self.window = None
        self.focus = None
        self._announcements = []
        self._listener = Atspi.EventListener.new(self._on_event)
        for event in ("object:state-changed:focused", "object:announcement"):
            self._listener.register(event)

    def _on_event(self, event):
        if event.type.startswith("object:announcement"):
            self._announcements.append(event.any_data)
        elif event.detail1:
            self.focus = Object(event.source)

    def wait_for_program(self, name):
        def search():
            desktop = Atspi.get_desktop(0)
            for i in range(Atspi.Accessible.get_child_count(desktop)):
                program = Atspi.Accessible.get_child_at_index(desktop, i)
                if program is not None and Atspi.Accessible.get_name(program) == name:
                    # What has changed is not always told, so nothing is remembered.
                    program.set_cache_mask(Atspi.Cache.NONE)
                    if Atspi.Accessible.get_child_count(program) > 0:
                        return Object(Atspi.Accessible.get_child_at_index(program, 0))
            return None
        self.window = wait_for(f"the program {name}", search, limit=120)

    def look_for(self, role, name):
        """The first visible object of that role whose name fits, or None."""
        # Dialogs lie in the window itself, so that there is no need to look deeper.
        where = self.window.children() if role == "dialog" else self.window.walk()
        return next((object for object in where
                     if object.role == role and fits(object.name, name)), None)

    def find(self, role, name):
        return wait_for(f"{role} “{name}”", lambda: self.look_for(role, name))

    def wait_until_heard(self, wanted):
        """Waits for an announcement that fits, takes it out of those heard and returns it."""
        def heard():
            return next((text for text in self._announcements if fits(text, wanted)), None)
        text = wait_for(f"the announcement “{wanted}”", heard)
        self._announcements.remove(text)
        return text

    def press_key(self, keysym):
        Atspi.generate_keyboard_event(keysym, None, Atspi.KeySynthType.SYM)

    def follow_tab(self):
        """Presses the tab key and returns what has the focus then."""
        before = self.focus
        self.press_key(TAB)
        wait_for(f"the stop of the tab key after {before}", lambda: self.focus != before)
        return self.focus
