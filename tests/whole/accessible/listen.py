#!/usr/bin/python3
"""Prints what a screen reader hears of the running program over AT-SPI, a line an event, until it is ended: where the
keyboard goes, and what is written into a text. The first line is "listening"."""
import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def told(node):
    description = f" [{node.get_description()}]" if node.get_description() else ""
    return f'{node.get_role_name()} "{node.get_name()}"{description}'


def hear(event):
    if event.type.startswith("object:text-changed"):
        print(f'text {told(event.source)} = "{Atspi.Text.get_text(event.source, 0, -1)}"', flush=True)
    elif event.type.startswith("object:state-changed") and event.detail1:
        print(f"focus {told(event.source)}", flush=True)


listener = Atspi.EventListener.new(hear)
listener.register("object:state-changed:focused")
listener.register("object:text-changed:insert")
listener.register("object:property-change:accessible-name")  # else names that change are told as they were
print("listening", flush=True)
Atspi.event_main()
