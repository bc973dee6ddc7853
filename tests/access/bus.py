# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""The accessibility bus as a screen reader sees it: objects, and the events that they send.

Objects are asked anew each time, as libraries that remember names and states rely on events that not every
toolkit sends. Events and answers of a program come over one connection, in the order in which it sent them.
"""

import collections

import gi
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

ROOT = "/org/a11y/atspi/accessible/root"
NULL = "/org/a11y/atspi/null"
REGISTRY = "org.a11y.atspi.Registry"
DEADLINE = 20  # in seconds; what has not come by then does not come

# Those that a table tells, by their number on the bus.
STATES = {"active": 1, "checked": 4, "enabled": 8, "focusable": 11, "focused": 12, "modal": 16, "selected": 23,
          "showing": 25}

Event = collections.namedtuple("Event", "kind detail value node")


class Gone(Exception):
    """The object is no longer there."""


class Bus:
    def __init__(self, session_address):
        session = self._connect(session_address)
        address = self._call(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0]
        # As a screen reader does when it starts: else programs tell nothing.
        self._call(session, "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                   GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))))
        self._connection = self._connect(address)
        self.events = []
        self._connection.signal_subscribe(None, None, None, None, None, Gio.DBusSignalFlags.NONE, self._note)
        for kind in ("object:", "window:"):
            self.call(REGISTRY, "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
                      GLib.Variant("(sass)", (kind, [], "")))

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags
        return Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)

    @staticmethod
    def _call(connection, name, path, interface, method, arguments=None):
        try:
            return connection.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                        DEADLINE * 1000, None).unpack()
        except GLib.Error as error:
            raise Gone(f"{path} {method}: {error.message}") from error

    def call(self, *arguments):
        return self._call(self._connection, *arguments)

    def _note(self, _connection, sender, path, interface, signal, arguments):
        if interface == "org.a11y.atspi.Event.Object":
            detail, value = arguments.unpack()[:2]
            self.events.append(Event(signal, detail, value, Node(self, sender, path)))

    def wait_for(self, what, condition):
        """Returns the first true value of the condition. It is asked whenever something came over the bus, and
        now and then, as not everything that changes is told."""
        context = GLib.MainContext.default()
        expired = []
        reminder = GLib.timeout_add(100, lambda: GLib.SOURCE_CONTINUE)
        watchdog = GLib.timeout_add_seconds(DEADLINE, lambda: expired.append(True) or GLib.SOURCE_REMOVE)
        try:
            while not expired:
                try:
                    if result := condition():
                        return result
                except Gone:
                    pass  # a window was closed meanwhile: it is asked again
                context.iteration(True)
            raise AssertionError(f"Waited in vain for {what}")
        finally:
            GLib.source_remove(reminder)
            if not expired:
                GLib.source_remove(watchdog)

    def take_what_came(self):
        """Hands out what has arrived, without waiting."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass

    def program(self):
        """The program that has come to the bus, or nothing."""
        children = Node(self, REGISTRY, ROOT).children()
        return children[0] if children else None


class Node:
    """An object of a program."""

    def __init__(self, bus, name, path):
        self._bus, self._name, self.path = bus, name, path

    def __eq__(self, other):
        return self.path == other.path

    def _ask(self, method, arguments=None, interface="org.a11y.atspi.Accessible"):
        return self._bus.call(self._name, self.path, interface, method, arguments)

    def _property(self, name, interface="org.a11y.atspi.Accessible"):
        return self._ask("Get", GLib.Variant("(ss)", (interface, name)), "org.freedesktop.DBus.Properties")[0]

    def children(self):
        return [Node(self._bus, *each) for each in self._ask("GetChildren")[0] if each[1] != NULL]

    def parent(self):
        return Node(self._bus, *self._property("Parent"))

    def role(self):
        return self._ask("GetRoleName")[0]

    def name(self):
        return self._property("Name")

    def description(self):
        return self._property("Description")

    def states(self):
        low, high = self._ask("GetState")[0]
        bits = low | high << 32
        return {state for state, bit in STATES.items() if bits >> bit & 1}

    def act(self, *wanted):
        """Does the first of these that a screen reader offers to do with the object, such as "Press"."""
        offered = [each[0] for each in self._ask("GetActions", interface="org.a11y.atspi.Action")[0]]
        index = next((offered.index(each) for each in wanted if each in offered), None)
        if index is None:
            raise AssertionError(f"{self.name()} offers {offered}")
        self._ask("DoAction", GLib.Variant("(i)", (index,)), "org.a11y.atspi.Action")

    def enter(self, text):
        self._ask("SetTextContents", GLib.Variant("(s)", (text,)), "org.a11y.atspi.EditableText")

    def walk(self, depth=0):
        """The object and all under it that are shown, with their depth."""
        if depth and "showing" not in self.states():
            return
        yield depth, self
        for child in self.children():
            yield from child.walk(depth + 1)

    def find(self, role, name):
        """The shown object under this one with the role and a name that begins so, or nothing."""
        try:
            for _, node in self.walk():
                if node.role() == role and node.name().startswith(name):
                    return node
        except Gone:
            pass  # a window was closed meanwhile: whoever waits asks again
        return None
