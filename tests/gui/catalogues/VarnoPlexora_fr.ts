<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The Varno Plexora developers
SPDX-License-Identifier: GPL-3.0-or-later
-->
<TS version="2.1" language="fr">
<context>
    <name>MainWindow</name>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
</TS>
