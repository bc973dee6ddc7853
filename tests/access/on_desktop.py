# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Runs a test program on a desktop of its own, on which somebody listens to what programs tell."""

import sys
import tempfile

from bus import Bus
from desktop import Desktop

with tempfile.TemporaryDirectory() as folder, Desktop(folder) as desktop:
    listener = Bus(desktop.bus_address)
    sys.exit(desktop.start(sys.argv[1:]).wait())
