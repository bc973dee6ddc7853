# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""A display, a window manager and a session bus of the test's own, and real keys on that display."""

import ctypes
import os
import signal
import subprocess


def _end_with_parent():
    """A test that is killed because it hangs leaves nothing behind."""
    set_parent_death_signal = 1
    ctypes.CDLL(None).prctl(set_parent_death_signal, signal.SIGTERM)


class Desktop:
    """Everything ends with the `with` block. `folder` is the home of all that is started."""

    def __init__(self, folder):
        self._processes = []
        # Nothing of the desktop that the test is run from.
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": folder, "XDG_RUNTIME_DIR": folder, "TMPDIR": folder,
            "LANG": "C.UTF-8", "LC_ALL": "C.UTF-8", "GSETTINGS_BACKEND": "memory", "QT_QPA_PLATFORM": "xcb",
            "QT_SCALE_FACTOR": "1"}
        self.environment |= {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        self.keyboard = None
        self.bus_address = None

    def __enter__(self):
        try:
            self._start_display()
            self._start_bus()
            self._start_window_manager()
            self.keyboard = Keyboard(self.environment["DISPLAY"])
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            process.terminate()
            process.wait()

    def start(self, arguments, **options):
        """A process that is ended with the desktop."""
        process = subprocess.Popen(arguments, env=self.environment, preexec_fn=_end_with_parent, **options)
        self._processes.append(process)
        return process

    def _start_display(self):
        # The server picks a display that is free.
        number = self._first_line(
            lambda end: ["Xvfb", "-displayfd", str(end), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
            stderr=subprocess.DEVNULL)
        self.environment["DISPLAY"] = ":" + number

    def _start_bus(self):
        # It starts the accessibility bus when somebody asks for it.
        self.bus_address = self._first_line(
            lambda end: ["dbus-daemon", "--session", "--nofork", f"--print-address={end}"],
            stderr=subprocess.DEVNULL)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus_address

    def _first_line(self, arguments_for, **options):
        """Starts a process and returns the line that it writes to the file descriptor when it is ready."""
        reading, writing = os.pipe()
        self.start(arguments_for(writing), pass_fds=(writing,), **options)
        os.close(writing)
        with os.fdopen(reading) as answer:
            line = answer.readline().strip()
        if not line:
            raise RuntimeError(f"{arguments_for(0)[0]} did not start")
        return line

    def _start_window_manager(self):
        ready = os.path.join(self.environment["HOME"], "window-manager-is-ready")
        os.mkfifo(ready)
        self.start(["openbox", "--startup", f"sh -c 'echo yes > {ready}'"], stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
        with open(ready) as answer:
            answer.readline()


class Keyboard:
    """Keys as from a keyboard, named as X names them: "Down", "Alt_L", "a"."""

    def __init__(self, display_name):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._xtst = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._x11.XStringToKeysym.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display_name.encode()))
        if not self._display:
            raise RuntimeError("no display for keys")
        self._x11.XAutoRepeatOff(self._display)

    def set(self, key, down):
        keysym = self._x11.XStringToKeysym(key.encode())
        code = self._x11.XKeysymToKeycode(self._display, ctypes.c_ulong(keysym))
        if not code:
            raise ValueError(f"no key {key}")
        self._xtst.XTestFakeKeyEvent(self._display, code, int(down), ctypes.c_ulong(0))
        self._x11.XSync(self._display, 0)

    def press(self, *keys):
        """Keys that are pressed together, such as Alt_L and f."""
        for key in keys:
            self.set(key, True)
        for key in reversed(keys):
            self.set(key, False)
