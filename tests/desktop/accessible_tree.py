"""The tree of a running program as a screen reader meets it.

accessible_tree.py --spoken PROGRAM TITLE: prints name and description of each part of the window,
a table row by row.

accessible_tree.py PROGRAM TITLE: walks the window of that title, prints what is wrong, a line each,
and ends with 1 if anything is.

The window has the role of one. Every control that can be used has a name of its own, or a label; a
combo box, whose name is what is chosen, has a label or a description. Every picture has a name, a
description that says what can be seen, and what it shows in numbers: a table or fields in the same
window, or the key of the window that has them. A table has a name, and a head for each column; its
cells can be read. A list says what its items are.
"""

import re
import sys
import time

WINDOWS = {"frame", "dialog", "window", "alert", "color chooser", "file chooser"}
USED = {
    "push button",
    "toggle button",
    "check box",
    "radio button",
    "text",
    "entry",
    "password text",
    "spin button",
    "slider",
    "menu",
    "menu item",
    "page tab",
}
CHOICES = {"combo box"}
PICTURES = {"image", "canvas", "drawing area", "icon"}
TABLES = {"table", "tree table", "tree", "list"}
FIELDS = {"text", "entry", "combo box", "spin button"}
KEY = re.compile(r"\((Ctrl|F)\+?\w+\)")


def place(path):
    return " > ".join(f'{node.role} "{node.name}"' for node in path)


def faults_of_table(table, path):
    if not table.name and not table.labelled:
        yield f"a table without name: {place(path)}"
    heads = table.heads()
    # Of one column all is said by the name.
    for column, head in enumerate(heads):
        if len(heads) > 1 and not head:
            yield f"no head of column {column}: {place(path)}"
    if heads and table.rows() and not any(table.cell(0, c) for c in range(len(heads))):
        yield f"cells that can't be read: {place(path)}"


def faults_of_picture(node, path, window):
    if window.root.role == "alert":  # its sign says what the role says
        return
    if not node.name or not node.description:
        yield f"a picture without name or description: {place(path)}"
    elif not window.has_values and not KEY.search(node.description):
        yield f"a picture whose numbers are nowhere: {place(path)}"


def faults(node, path, window):
    """What is wrong with a node and all below it."""
    if not node.showing:
        return
    here = path + [node]
    if path and node.role in WINDOWS and node.focusable:  # lines between parts are frames too
        yield f"a part that says to be a window: {place(here)}"
    if node.role in USED and not node.name and not node.labelled:
        yield f"no name: {place(here)}"
    if node.role in CHOICES and not node.labelled and not node.description:
        yield f"a choice of which nobody says what it is: {place(here)}"
    if node.role in PICTURES:
        yield from faults_of_picture(node, here, window)
    if node.role in TABLES:
        yield from faults_of_table(node, here)
        return
    for child in node.children():
        yield from faults(child, here, window)


def walk(node):
    if not node.showing:
        return
    yield node
    if node.role not in TABLES:
        for child in node.children():
            yield from walk(child)


class Window:
    def __init__(self, root):
        self.root = root
        self.nodes = list(walk(root))
        tables = sum(1 for n in self.nodes if n.role in TABLES)
        fields = sum(1 for n in self.nodes if n.role in FIELDS)
        self.has_values = tables > 0 or fields > 2

    def faults(self):
        if self.root.role not in WINDOWS:
            yield f'no window but a {self.root.role}: "{self.root.name}"'
        if len(self.nodes) < 2:
            yield f'no more than {len(self.nodes)} nodes in "{self.root.name}"'
        yield from faults(self.root, [], self)


class BusNode:
    """A node as the accessibility bus gives it."""

    def __init__(self, accessible):
        import pyatspi

        self.accessible = accessible
        self.role = accessible.getRoleName()
        self.name = accessible.name
        self.description = accessible.description
        state = accessible.getState()
        self.showing = state.contains(pyatspi.STATE_SHOWING)
        self.focusable = state.contains(pyatspi.STATE_FOCUSABLE)
        self.labelled = any(
            r.getRelationType() == pyatspi.RELATION_LABELLED_BY for r in accessible.getRelationSet()
        )

    def children(self):
        for i in range(self.accessible.childCount):
            child = self.accessible.getChildAtIndex(i)
            if child is not None:
                yield BusNode(child)

    def table(self):
        try:
            return self.accessible.queryTable()
        except NotImplementedError:
            return None

    def rows(self):
        table = self.table()
        return table.nRows if table else self.accessible.childCount

    def heads(self):
        table = self.table()
        if table is None:
            return []
        names = []
        for column in range(table.nColumns):
            head = table.getColumnHeader(column)
            names.append(head.name if head is not None else table.getColumnDescription(column))
        return names

    def cell(self, row, column):
        cell = self.table().getAccessibleAt(row, column)
        return cell.name if cell is not None else ""


def window_of(program, title):
    """The window, once the program has told the bus of it; None after ten seconds."""
    import pyatspi

    for _ in range(200):
        for application in pyatspi.Registry.getDesktop(0):
            if application is None or application.name != program:
                continue
            for window in application:
                if window is not None and window.name == title and BusNode(window).showing:
                    return BusNode(window)
        time.sleep(0.05)
    return None


def main(program, title):
    root = window_of(program, title)
    if root is None:
        print(f'no window "{title}" on the bus')
        return 1
    window = Window(root)
    found = list(window.faults())
    for fault in found:
        print(fault)
    print(f"{title}: {len(window.nodes)} nodes")
    return 1 if found else 0


def spoken(program, title):
    root = window_of(program, title)
    if root is None:
        return 1
    for node in walk(root):
        print(f"{node.role}: {node.name}. {node.description}")
        if node.role in TABLES:
            columns = range(len(node.heads()))
            for row in range(min(node.rows(), 20)):
                print("; ".join(node.cell(row, column) for column in columns))
    return 0


if __name__ == "__main__":
    if sys.argv[1] == "--spoken":
        sys.exit(spoken(*sys.argv[2:]))
    sys.exit(main(*sys.argv[1:]))
