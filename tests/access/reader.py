# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Somebody who works with the program without seeing it, and notes what is there and what is told."""

import time

from bus import Gone

QUIET = 1.0  # in seconds; only while a table is written: then all events of a step have come
MOST_STOPS = 60  # of Tab in a window
MOST_LETTERS = 60  # of a name in the table
MAIN = "Varno Plexora"
MARKS = ("checked", "selected")
PROPERTIES = {"accessible-name": "name", "accessible-description": "description"}


class Expected:
    """What the table holds of each step: the number of its events, and what has the focus in the end."""

    def __init__(self, table):
        self.counts = {}
        self.focus = {}
        title = None
        for line in table:
            if line.startswith("== "):
                title = line[3:]
                self.counts[title] = 0
            elif line.startswith("! "):
                self.counts[title] += 1
            elif line.startswith("@ "):
                self.focus[title] = line


class Reader:
    """`home` is the folder whose path differs with each run; `expected` is nothing while a table is written."""

    def __init__(self, bus, keyboard, home, expected):
        self.keys = keyboard
        self.told = []
        self._bus = bus
        self._home = home
        self._program = bus.wait_for("the program", bus.program)
        self._expected = expected

    # What is there

    def windows(self):
        try:
            return [each for each in self._program.children() if "showing" in each.states()]
        except Gone:
            return []

    def window(self, title):
        """The window, once keys go to it."""
        def active():
            return next((each for each in self.windows() if each.name() == title and "active" in each.states()), None)
        return self._bus.wait_for(f"the window {title}", active)

    def find(self, role, name):
        """What is shown with the role and a name that begins so, in the window that came last."""
        def found():
            return next((node for each in reversed(self.windows()) if (node := each.find(role, name))), None)
        return self._bus.wait_for(f"{role} {name}", found)

    def wait_for(self, what, condition):
        return self._bus.wait_for(what, condition)

    def closed(self, title):
        self._bus.wait_for(f"the end of {title}", lambda: all(each.name() != title for each in self.windows()))
        self.active()

    def active(self):
        self._bus.wait_for("an active window", lambda: any("active" in each.states() for each in self.windows()))

    # What is done

    def focus(self, role, name):
        """Goes there with Tab. A list has the focus where one of its rows has it."""
        node = self.find(role, name)
        for _ in range(MOST_STOPS):
            if self._has_focus(node):
                return
            before = self._focus_count()
            self.keys.press("Tab")
            self._bus.wait_for("the next stop", lambda: self._focus_count() > before)
        raise AssertionError(f"Tab does not come to {role} {name}")

    @staticmethod
    def _has_focus(node):
        rows = node.children() if node.role() == "list" else []
        return any("focused" in each.states() for each in [node, *rows])

    def _focus_count(self):
        return sum(event.kind == "StateChanged" and event.detail == "focused" and bool(event.value)
                   for event in self._bus.events)

    def press(self, role, name):
        self.find(role, name).act("Press", "Toggle", "Check", "Uncheck")

    def choose(self, menu, letter):
        """An entry of the menu bar, by its letter."""
        self.find("menu item", menu).act("ShowMenu")
        self.find("menu item", {"File": "New", "Help": "About"}[menu])
        self.keys.press(letter)

    # What is told

    def step(self, title, act, until=None, shows=None):
        """`until` waits for what the step has to come to; `shows` is the title of a window to list."""
        self._bus.take_what_came()
        del self._bus.events[:]
        act()
        if until:
            until()
        if shows:
            self.window(shows)
        self._wait_for_events(title, opens=shows)
        self._note(title, opens=shows)
        if shows:
            self.told += self.list(self.window(shows))

    def show(self, title, window):
        """Lists a window, whatever was told before."""
        self.told.append(f"== {title}")
        self.told += self.list(self.window(window))

    def _note(self, title, opens):
        self.told += [f"== {title}", *self._told_events(opens), *self._focus_line()]

    def _told_events(self, opens):
        """What is told while a window is built nobody hears."""
        return [] if opens else [line for event in self._bus.events if (line := self._describe(event))]

    def _focus_line(self):
        """What has come to the focus last; nothing where it stayed. A row has it as its list."""
        for event in reversed(self._bus.events):
            if event.kind == "StateChanged" and event.detail == "focused" and event.value:
                try:
                    node = event.node.parent() if event.node.role() == "list item" else event.node
                    return [f"@ {node.role()} {self._quoted(node.name())}"]
                except Gone:
                    pass  # it was in a window that is closed
        return []

    def _wait_for_events(self, title, opens):
        if self._expected is None:
            end = time.monotonic() + QUIET
            while time.monotonic() < end:
                self._bus.take_what_came()
                time.sleep(0.01)
            return
        count = self._expected.counts.get(title, 0)
        focus = self._expected.focus.get(title)
        def told():
            return len(self._told_events(opens)) >= count and (not focus or self._focus_line() == [focus])
        try:
            self._bus.wait_for("what is told", told)
        except AssertionError:
            self._note(title, opens)  # the comparison says what is missing
            raise
        self._program.name()  # what was told before the answer has come with it
        self._bus.take_what_came()

    def _quoted(self, text):
        text = text.replace(self._home, "HOME").replace("\n", ", ")
        return f'"{text if len(text) <= MOST_LETTERS else text[:MOST_LETTERS] + "..."}"'

    def _describe(self, event):
        """A line of the table; nothing for what it does not hold, nor for what is no longer shown."""
        if event.kind == "PropertyChange" and event.detail in PROPERTIES:
            what = PROPERTIES[event.detail]
        elif event.kind == "StateChanged" and event.detail in MARKS:
            what = f"{event.detail} {'on' if event.value else 'off'}"
        elif event.kind == "SelectionChanged":
            what = "selection"
        else:
            return None
        try:
            if "showing" not in event.node.states():
                return None
            told = event.node.description() if what == "description" else event.node.name()
            return f"! {what}: {event.node.role()} {self._quoted(told)}"
        except Gone:
            return None

    def list(self, window):
        lines = []
        for depth, node in window.walk():
            states = node.states() - {"showing", "active", "focused"}
            told = sorted(states - {"enabled"}) + ([] if "enabled" in states else ["disabled"])
            line = f"{'  ' * depth}{node.role()} {self._quoted(node.name())}"
            if description := node.description():
                line += f" - {self._quoted(description)[1:-1]}"
            lines.append(line + (f" [{' '.join(told)}]" if told else ""))
        return lines
