#!/usr/bin/python3
"""Prints what a screen reader is told of the running program, from outside, over AT-SPI: a line a thing, those inside it
set in. Only what is on view is printed; what differs from run to run (time, folder, who has the keyboard) is left out.
usage: dump_tree.py NAME   (of a window or a frame on view)"""
import re
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

# What holds of nearly everything, or depends on the window manager.
UNTOLD = {"enabled", "sensitive", "visible", "showing", "active", "focused", "transient", "manages-descendants"}


def states(node):
    held = {state.value_nick for state in node.get_state_set().get_states()}
    return sorted(held - UNTOLD) + ([] if "enabled" in held else ["disabled"])


def plain(text):
    text = re.sub(r"\d\d:\d\d:\d\d", "hh:mm:ss", text)
    text = re.sub(r"/\S*/(app\b|home/青禾家庭记账本)", "程序文件夹", text)
    return text.replace("\r\n", "⏎").replace("\n", "⏎").replace("\u2029", "⏎")


# Later releases call the same role by a shorter name.
ROLES = {"button": "push button"}


def line(node):
    role = node.get_role_name()
    told = f'{ROLES.get(role, role)} "{plain(node.get_name())}"'
    if node.get_description():
        told += f" [{plain(node.get_description())}]"
    if states(node):
        told += " " + ", ".join(states(node))
    interfaces = node.get_interfaces()
    if "Text" in interfaces:
        told += f' = "{plain(Atspi.Text.get_text(node, 0, -1))}"'
    if "Value" in interfaces:
        told += f" = {Atspi.Value.get_current_value(node):g}"
    return told


def on_view(node):
    return node is not None and node.get_state_set().contains(Atspi.StateType.SHOWING)


def parts(node):
    return [part for part in map(node.get_child_at_index, range(node.get_child_count())) if on_view(part)]


def print_tree(node, depth=0):
    print("  " * depth + line(node))
    for part in parts(node):
        print_tree(part, depth + 1)


def find(node, name):
    if node.get_role() in (Atspi.Role.TABLE, Atspi.Role.PAGE_TAB_LIST):
        return None
    if node.get_name() == name:
        return node
    return next(filter(None, (find(part, name) for part in parts(node))), None)


def programs():
    desktop = Atspi.get_desktop(0)
    found = map(desktop.get_child_at_index, range(desktop.get_child_count()))
    return [program for program in found if program and program.get_name() == "qinghe"]


# A program that has just been started may have yet to reach the bus.
patience = time.monotonic() + 10
named = None
while named is None and time.monotonic() < patience:
    named = next(filter(None, (find(program, sys.argv[1]) for program in programs())), None)
    time.sleep(0 if named else 0.02)
if named is None:
    sys.exit(f"nothing on view is called {sys.argv[1]}")
print_tree(named)
