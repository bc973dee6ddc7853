<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The Varno Plexora developers
SPDX-License-Identifier: GPL-3.0-or-later
-->
<TS version="2.1" language="de_DE">
<context>
    <name>MainWindow</name>
    <message>
        <source>E&amp;xit</source>
        <translation>B&amp;eenden</translation>
    </message>
</context>
</TS>
