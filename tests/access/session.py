# SPDX-FileCopyrightText: 2026 The Varno Plexora developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Works with the program as somebody who cannot see it, and compares what is told with session.txt.

    session.py PROGRAM FOLDER [--write]

Each step does something, waits for what has to come of it, and for as many events as the table has. A step
that shows a window lists what is in it. --write makes the table anew: read the difference before you commit it.
"""

import copy
import difflib
import json
import os
import sys
import tempfile

from bus import Bus, Gone
from desktop import Desktop
from reader import MAIN, Expected, Reader

QUESTION = "Save..."


def start(r):
    r.show("the program starts", MAIN)
    r.step("Help, About", lambda: r.choose("Help", "a"), shows="About...")
    r.step("Escape", lambda: r.keys.press("Escape"), lambda: r.closed("About..."))
    r.step("File, New", lambda: r.choose("File", "n"), shows="Select Product Line")


def choose_line(r, line, title):
    """From the chooser to the first window of a line, of that title."""
    if line != "QHX/ZPV":
        r.choose("File", "n")
        r.window("Select Product Line")
    name = r.find("combo box", "").name()
    while name != line:
        before = name
        r.keys.press("Down")
        name = r.wait_for("another line", lambda: (now := r.find("combo box", "").name()) != before and now)
    r.step(f"a new menu: {line}", lambda: r.press("push button", "Save"), lambda: r.closed("Select Product Line"),
           shows=title)


def open_menu(r, path):
    r.choose("File", "o")  # what the file dialog tells is not the program's
    r.window("Open JSON Menu")
    r.find("text", "File name:").enter(path)
    r.press("push button", "Open")
    r.closed("Open JSON Menu")
    r.find("label", "Opened ")
    r.show("a menu is open", MAIN)


def select_row(r, title, name, row):
    """Selects a row of a list with the keyboard, after which the details tell of it."""
    def act():
        r.focus("list", name)
        r.keys.press("Home")
    r.step(title, act, lambda: r.wait_for("the row", lambda: "selected" in r.find("list item", row).states()))


def products(r):
    select_row(r, "a product is selected", "Products", "  1")
    r.step("the product is edited", lambda: r.press("push button", "Edit"), shows="Product Edit")
    r.step("its color is chosen", lambda: r.press("push button", "Timer Color"), shows="Colors")
    r.step("a color is picked", lambda: r.press("push button", "full blue"), lambda: r.closed("Colors"))
    r.step("the product is saved", lambda: r.press("push button", "Save"), lambda: r.closed("Product Edit"))
    multiple_selection(r)


def multiple_selection(r):
    def mark():
        r.focus("list", "Products")
        r.keys.press("Down")
        r.keys.press("space")
    r.step("multiple selection", lambda: r.press("push button", "Multiple Selection"),
           lambda: r.find("push button", "Cancel Selection"))
    r.step("a row is marked", mark,
           lambda: r.wait_for("the mark", lambda: r.find("push button", "Delete").states() >= {"enabled"}))
    r.step("Escape leaves the mode", lambda: r.keys.press("Escape"),
           lambda: r.find("push button", "Multiple Selection"))


def groups(r):
    r.step("the groups", lambda: r.press("page tab", "Groups"), lambda: r.find("list", "Groups"), shows=MAIN)
    select_row(r, "a group is selected", "Groups", "  1")
    r.step("the group is edited", lambda: r.press("push button", "Edit"), shows="Group Edit")
    r.find("text", "Name").enter("")
    r.step("it cannot be saved without a name", lambda: r.press("push button", "Save"), shows="Error")
    r.step("the error is closed", lambda: r.press("push button", "Close"), lambda: r.closed("Error"))
    r.find("text", "Name").enter("Meats")
    default_member(r)
    r.step("the group is saved", lambda: r.press("push button", "Save"), lambda: r.closed("Group Edit"))


def default_member(r):
    def act():
        r.focus("list", "Group Products")
        r.keys.press("End")
        r.keys.press("space")

    def is_default():
        return "checked" in r.find("list", "Group Products").children()[-1].states()
    r.step("another member is the default", act, lambda: r.wait_for("the default", is_default))


def bins(r):
    first = "Row 1, Bin 1: "
    r.step("the day parts", lambda: r.press("page tab", "Day Parts"), lambda: r.find("push button", first), shows=MAIN)
    r.step("a bin is pressed", lambda: r.press("push button", first), shows="Assign Product/Group")
    select_row(r, "an entry is selected", "Products and Groups", "  1")
    r.step("the entry is chosen", lambda: r.press("push button", "Select"), lambda: r.closed("Assign Product/Group"))
    removal(r, first)
    r.step("another day part is shown", lambda: (r.focus("combo box", "BREAKFAST"), r.keys.press("Down")),
           lambda: r.find("combo box", "LUNCH"))
    r.step("the day part is edited", lambda: r.press("push button", "Edit"), shows="Edit Day Part")
    r.step("that is cancelled", lambda: r.press("push button", "Cancel"), lambda: r.closed("Edit Day Part"))
    r.step("back to the first day part", lambda: (r.focus("combo box", "LUNCH"), r.keys.press("Up")),
           lambda: r.find("combo box", "BREAKFAST"))


def removal(r, name):
    """In the mode a filled bin is a check box."""
    def hold():
        r.focus("push button", name)
        r.keys.set("space", True)

    def press_second():
        r.press("check box", "Row 1, Bin 2: ")

    def marked(count):
        r.wait_for(f"{count} marks", lambda: sum("checked" in r.find("check box", f"Row 1, Bin {number}: ").states()
                                                 for number in (1, 2)) == count)
    r.step("a bin is held", hold, lambda: marked(1))
    r.keys.set("space", False)
    r.step("another bin is marked", press_second, lambda: marked(2))
    r.step("its mark is taken off", press_second, lambda: marked(1))
    r.step("the bin is emptied", lambda: r.press("push button", "Remove"),
           lambda: r.find("push button", name + "Empty"))


def holding(r, menu):
    choose_line(r, "QHX/ZPV", "Configuration")
    r.step("the configuration is cancelled", lambda: r.keys.press("Escape"), lambda: r.closed("Configuration"))
    open_menu(r, menu)
    products(r)
    groups(r)
    bins(r)
    r.step("File, Save", lambda: r.choose("File", "s"), lambda: r.find("label", "Saved "))
    r.step("the menu is closed", lambda: r.press("push button", "Close"), shows=QUESTION)
    leave(r)


def leave(r):
    """Answers the question that closing asks."""
    r.press("push button", "No")
    r.closed(QUESTION)
    r.wait_for("an empty area", lambda: not any(node.role() == "dialog" for _, node in r.window(MAIN).walk()))


def timer_bar(r):
    choose_line(r, "Timer Bar Cabinet", "Configuration")
    r.step("a Timer Bar menu is made", lambda: r.press("push button", "Save"), shows=MAIN)
    select_row(r, "a Timer Bar product is selected", "Products", "  1")
    r.step("the Timer Bar product is edited", lambda: r.press("push button", "Edit"), shows="Product Edit")
    r.step("the edit is cancelled", lambda: r.press("push button", "Cancel"), lambda: r.closed("Product Edit"))
    r.step("the Timer Bar day parts", lambda: r.press("page tab", "Day Parts"),
           lambda: r.find("push button", "Row 1, Bin 1: "), shows=MAIN)
    r.step("a Timer Bar bin is pressed", lambda: r.press("push button", "Row 1, Bin 1: "), shows="Assign Product")
    select_row(r, "a Timer Bar entry is selected", "Products", "  1")
    r.step("the Timer Bar entry is chosen", lambda: r.press("push button", "Select"),
           lambda: r.closed("Assign Product"))
    r.step("its bins are to be copied", lambda: r.press("push button", "Copy From…"), shows="Copy Bins")
    r.step("the copying is cancelled", lambda: r.press("push button", "Cancel"), lambda: r.closed("Copy Bins"))
    r.press("push button", "Close")
    leave(r)


def lanes(r):
    choose_line(r, "Savorix", MAIN)

    def has_three():
        return "enabled" in r.find("spin box", "Temperature of lane 3").states()
    r.step("another number of lanes", lambda: (r.focus("combo box", "Double Lane"), r.keys.press("Down")),
           lambda: r.wait_for("three lanes", has_three))


def work(r, menu):
    """The session: every window, and a menu that is worked on."""
    start(r)
    holding(r, menu)
    timer_bar(r)
    lanes(r)


def named(entry, field, name):
    copied = copy.deepcopy(entry)
    copied[field] = {language: name for language in entry[field]}
    return copied


def write_menu(sample, path):
    """A menu like the sample, with a product that stands in a bin, one that fits no other, and a group."""
    with open(sample, encoding="utf-8") as file:
        whole = json.load(file)
    menu = whole["menu"]
    product, group = menu["products"][0], menu["productGroups"][0]
    menu["products"] = [named(product, "productName", name) | {"productId": number}
                        for number, name in enumerate(("Bacon", "Chili", "Ham", "Gravy"), start=1)]
    menu["products"][3] |= {"upperTemp": 190, "lowerTemp": 180}
    members = {"groupId": 9, "products": [1, 2, 3], "defaultProd": 0}
    menu["productGroups"] = [named(group, "groupName", "Meats") | members]
    menu["layout"] = [named(daypart, "daypartName", name)
                      for daypart, name in zip(menu["layout"], ("BREAKFAST", "LUNCH"))]
    for daypart in menu["layout"]:
        for location in daypart["productLocations"]:
            location["productId"] = 2 if location["bin"] == 2 else 0
    with open(path, "w", encoding="utf-8") as file:
        json.dump(whole, file)


def main(program, folder, write=False):
    path = os.path.join(folder, "session.txt")
    table = []
    if not write:
        with open(path, encoding="utf-8") as file:
            table = file.read().splitlines()
    with tempfile.TemporaryDirectory() as home, Desktop(home) as desktop:
        menu = os.path.join(home, "menu.json")
        write_menu(os.path.join(folder, "..", "data", "rich.json"), menu)
        bus = Bus(desktop.bus_address)
        desktop.start([program])
        reader = Reader(bus, desktop.keyboard, home, None if write else Expected(table))
        try:
            work(reader, menu)
        except (AssertionError, Gone) as error:
            reader.told.append(f"The session ended: {error}")
            reader.told += [line for each in reader.windows() for line in reader.list(each)]
    told = reader.told
    if write:
        with open(path, "w", encoding="utf-8") as file:
            file.write("\n".join(told) + "\n")
        return 0
    difference = list(difflib.unified_diff(table, told, "session.txt", "what was told", lineterm=""))
    print("\n".join(difference) or "All was told as in session.txt")
    return 1 if difference else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], "--write" in sys.argv[3:]))
