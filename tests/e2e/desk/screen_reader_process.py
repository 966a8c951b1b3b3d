"""What a screen reader sees and hears, told line by line to the test that started this process.

Each line of the input is a question, {"ask": name, ...}; each line of the output is its answer. It runs in Debian's own
interpreter, for which the bindings of the accessibility bus are installed.
"""
import json
import sys

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # pylint: disable=wrong-import-position

HEARD = ["object:state-changed:focused", "object:state-changed:selected", "object:state-changed:showing",
         "object:property-change:accessible-name"]


def describe(item):
    """An object as plain data."""
    states = [state.value_nick for state in item.get_state_set().get_states()]
    box = Atspi.Component.get_extents(item, Atspi.CoordType.SCREEN) if "Component" in item.get_interfaces() else None
    return {"role": item.get_role_name(), "name": item.get_name(), "description": item.get_description(),
            "states": states, "rect": [box.x, box.y, box.width, box.height] if box else None}


def children(item):
    found = (item.get_child_at_index(index) for index in range(item.get_child_count()))
    return [child for child in found if child]


class Reader:
    def __init__(self):
        self.heard = []
        self.found = {}
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in HEARD:
            self.listener.register(kind)

    def hear(self, event):
        try:
            self.heard.append({"kind": event.type, "on": event.detail1, **describe(event.source)})
        except GLib.Error:
            pass  # it is gone again

    # What can be asked

    def events(self, forget=False):
        told = list(self.heard)
        if forget:
            self.heard.clear()
        return told

    def tree(self, pid, role, name=None, depth=9):
        """The first object with the role, and the name unless it is left open, with all that is in it; None when there
        is none."""
        def wanted(item):
            return item.get_role_name() == role and name in (None, item.get_name())

        def showing(item):
            return item.get_state_set().contains(Atspi.StateType.SHOWING)

        known = self.found.pop((pid, role, name), None)
        try:
            waiting = [known] if known and wanted(known) and showing(known) else self.programs(pid)
        except GLib.Error:
            waiting = self.programs(pid)  # it has gone since
        while waiting:
            item = waiting.pop(0)
            if wanted(item):
                self.found[pid, role, name] = item
                return self.with_children(item, depth)
            waiting.extend(children(item))
        return None

    @staticmethod
    def programs(pid):
        return [app for app in children(Atspi.get_desktop(0)) if app.get_process_id() == pid]

    def with_children(self, item, depth):
        within = [self.with_children(child, depth - 1) for child in children(item)] if depth else []
        return {**describe(item), "children": within}

    def answer(self, line):
        question = json.loads(line)
        try:
            return getattr(self, question.pop("ask"))(**question)
        except GLib.Error:
            return None  # what was looked at went away meanwhile


def main():
    reader = Reader()
    loop = GLib.MainLoop()

    def asked(source, _condition):
        line = source.readline()
        if not line:
            loop.quit()
            return False
        print(json.dumps(reader.answer(line)), flush=True)
        return True
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP, asked)
    print(json.dumps("ready"), flush=True)
    loop.run()


if __name__ == "__main__":
    main()
