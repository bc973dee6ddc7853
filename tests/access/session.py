# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Works with the program as somebody who cannot see it, and compares what is told with session.txt.

    session.py PROGRAM FOLDER [--write]

Each step does something, waits for what has to come of it, and for as many events as the table has. A step
that shows a window lists what is in it. --write makes the table anew: read the difference before you commit it.
"""

import difflib
import os
import shutil
import sys
import tempfile
import time

from bus import Bus, Gone
from desktop import Desktop

QUIET = 1.5  # in seconds; only while the table is written: then all events of a step have come

MOST_STOPS = 120  # of Tab in a window
TOLD_STATES = ("checked", "selected", "focused")


class Session:
    def __init__(self, desktop, bus, program, expected):
        self.keys = desktop.keyboard
        self._bus = bus
        self._program = program
        self._expected = expected
        self.told = []

    # What is there

    def windows(self):
        try:
            return [each for each in self._program.children() if "showing" in each.states()]
        except Gone:
            return []

    def window(self, title):
        """The window, once it can be worked with."""
        def active():
            try:
                return next((each for each in self.windows() if each.name() == title and (title == MAIN or "active" in each.states())),
                            None)
            except Gone:
                return None
        return self._bus.wait_for(f"the window {title}", active)

    def find(self, role, name):
        def found():
            return next((node for each in reversed(self.windows()) if (node := each.find(role, name))), None)
        return self._bus.wait_for(f"{role} {name}", found)

    # What is done

    def focus(self, role, name):
        """Goes there with Tab; to a list even where Qt has the focus on one of its rows."""
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
        return any("focused" in each.states() for each in [node, *(node.children() if node.role() == "list" else [])])

    def _focus_count(self):
        return sum(each.kind == "StateChanged" and each.detail == "focused" and each.value for each in
                   self._bus.events)

    def wait_for_focus(self, role, name):
        node = self.find(role, name)
        self._bus.wait_for(f"focus on {role} {name}", lambda: "focused" in node.states())

    def press(self, role, name):
        self.find(role, name).act("Press")

    def turn_to(self, tab):
        self.find("page tab", tab).act("Press")

    def closed(self, title):
        self._bus.wait_for(f"the end of {title}", lambda: all(each.name() != title for each in self.windows()))

    def choose(self, menu, letter):
        """An entry of the menu bar, by its letter."""
        self.find("menu item", menu).act("ShowMenu")
        self.find("menu item", {"File": "New", "Help": "About"}[menu])
        self.keys.press(letter)

    def enter_path(self, title, path):
        self.window(title)
        self.find("text", "File name:").enter(path)
        self.find("push button", "Open").act("Press")

    # What is told

    def step(self, title, act, until, shows=None):
        """`until` waits for what the step has to come to; `shows` is the title of a window to list."""
        self._bus.take_what_came()
        del self._bus.events[:]
        act()
        until()
        self._wait_for_events(self._expected.get(title), opens=shows)
        self.told.append(f"== {title}")
        self.told += [self._describe(event) for event in self._told_events(opens=shows)]
        if shows:
            self.told += self._list(self.window(shows))

    def show(self, title, window):
        """Lists a window, whatever was told before."""
        self.told.append(f"== {title}")
        self.told += self._list(self.window(window))

    def _told_events(self, opens):
        """What is told while a window is built nobody hears: of that only where the focus is counts."""
        told = [event for event in self._bus.events
                if event.kind == "StateChanged" and event.detail in (("focused",) if opens else TOLD_STATES)
                or not opens and event.kind in ("PropertyChange", "SelectionChanged")]
        # The window manager gives the focus back when it gets to it: that comes in an order of its own.
        return sorted(told, key=lambda event: event.detail == "focused")

    def _wait_for_events(self, expected, opens):
        if expected is None:
            end = time.monotonic() + QUIET
            while time.monotonic() < end:
                self._bus.take_what_came()
                time.sleep(0.01)
            return
        try:
            self._bus.wait_for("events", lambda: len(self._told_events(opens)) >= expected)
        except AssertionError:
            pass  # the comparison says which are missing
        self._program.name()  # what was told before the answer has come with it
        self._bus.take_what_came()

    @staticmethod
    def _describe(event):
        what = event.detail or event.kind
        if event.kind == "StateChanged":
            what += " on" if event.value else " off"
        try:
            return f"! {what}: {event.node.role()} \"{event.node.name()}\""
        except Gone:
            return f"! {what}: (closed)"

    @staticmethod
    def _list(window):
        lines = []
        for depth, node in window.walk():
            states = node.states() - {"showing", "active"}
            told = sorted(states - {"enabled"}) + ([] if "enabled" in states else ["disabled"])
            line = f"{'  ' * depth}{node.role()} \"{node.name()}\""
            if description := node.description().replace("\n", ", "):
                line += f" - {description}"
            lines.append(line + (f" [{' '.join(told)}]" if told else ""))
        return lines


MAIN = "Varno Plexora"


def work(session, menu):
    """The session: every kind of window, and a menu that is worked on."""
    s = session
    s.show("the program starts", MAIN)
    s.step("File, New", lambda: s.choose("File", "n"), lambda: s.window("Select Product Line"), "Select Product Line")
    s.step("Escape", lambda: s.keys.press("Escape"), lambda: s.window(MAIN))
    s.choose("File", "o")  # what the file dialog tells is not the program's
    s.enter_path("Open JSON Menu", menu)
    s.find("label", "Opened ")
    s.wait_for_focus("push button", "Configuration")
    s.show("a menu is open", MAIN)
    s.step("multiple selection", lambda: s.press("push button", "Multiple Selection"),
           lambda: s.find("push button", "Cancel Selection"))
    s.step("the selection is cancelled", lambda: s.press("push button", "Cancel Selection"),
           lambda: s.find("push button", "Multiple Selection"))
    s.step("the groups", lambda: s.turn_to("Groups"), lambda: s.find("list", "Groups"), MAIN)
    bins(s)
    s.step("File, Save", lambda: s.choose("File", "s"), lambda: s.find("label", "Saved "))


def bins(s):
    s.step("the day parts", lambda: s.turn_to("Day Parts"), lambda: s.find("push button", "Row 1, Bin 1"), MAIN)
    s.step("a bin is pressed", lambda: s.press("push button", "Row 1, Bin 1: Empty"),
           lambda: s.window("Assign Product/Group"), "Assign Product/Group")
    s.step("an entry is selected", lambda: (s.focus("list", "Products and Groups"), s.keys.press("Down"), s.keys.press("Up")),
           lambda: s.find("label", "Holding Time: "))
    s.step("the entry is chosen", lambda: s.press("push button", "Select"), lambda: (s.closed("Assign Product/Group"), s.wait_for_focus("push button", "Configuration")))


def expected_events(table):
    """The number of events of each step."""
    counts = {}
    title = None
    for line in table:
        if line.startswith("== "):
            title = line[3:]
            counts[title] = 0
        elif line.startswith("! "):
            counts[title] += 1
    return counts


def main(program, folder, write=False):
    path = os.path.join(folder, "session.txt")
    table = []
    if not write:
        with open(path, encoding="utf-8") as file:
            table = file.read().splitlines()
    with tempfile.TemporaryDirectory() as home, Desktop(home) as desktop:
        menu = shutil.copy(os.path.join(folder, "..", "data", "rich.json"), os.path.join(home, "menu.json"))
        bus = Bus(desktop.bus_address)
        desktop.start([program])
        session = Session(desktop, bus, bus.wait_for("the program", bus.program), expected_events(table))
        try:
            work(session, menu)
        except (AssertionError, Gone) as error:
            session.told.append(f"The session ended: {error}")
            if write:
                session.told += [line for each in session.windows() for line in session._list(each)]
    told = [line.replace(home, "HOME") for line in session.told]
    if write:
        with open(path, "w", encoding="utf-8") as file:
            file.write("\n".join(told) + "\n")
        return 0
    difference = list(difflib.unified_diff(table, told, "session.txt", "what was told", lineterm=""))
    print("\n".join(difference) or "All was told as in session.txt")
    return 1 if difference else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], "--write" in sys.argv[3:]))
