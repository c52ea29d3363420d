"""The walk of accessible_tree.py over trees made by hand: each fault that it is to find is found."""

import unittest

from accessible_tree import Window


class Node:
    def __init__(self, role, name="", *inside, description="", labelled=False, heads=(), cells=()):
        self.role, self.name, self.description = role, name, description
        self.labelled, self.showing, self.focusable = labelled, True, True
        self.inside, self.columns, self.cells = inside, list(heads), cells

    def children(self):
        return self.inside

    def rows(self):
        return len(self.cells)

    def heads(self):
        return self.columns

    def cell(self, row, column):
        return self.cells[row][column]


def table(name="Nodi", heads=("z [m]", "M"), cells=(("0.00", "1.2"),)):
    return Node("table", name, heads=heads, cells=cells)


def found(*inside, role="dialog"):
    filling = (Node("label", "a"), Node("label", "b"))
    return list(Window(Node(role, "Finestra", *inside, *filling)).faults())


class Walk(unittest.TestCase):
    def test_finds_nothing_wrong_with_a_window_that_can_be_read(self):
        picture = Node("image", "Figura", description="la paratia è in equilibrio")
        button = Node("push button", "Chiudi")
        choice = Node("combo box", "Fase 1", labelled=True)
        self.assertEqual(found(table(), picture, button, choice), [])

    def test_finds_a_window_that_says_to_be_none(self):
        self.assertIn("no window but a filler", found(role="filler")[0])

    def test_finds_a_window_without_anything_in_it(self):
        self.assertIn("no more than 1", list(Window(Node("dialog", "x")).faults())[0])

    def test_finds_a_control_without_name_deep_inside(self):
        wrong = found(Node("filler", "", Node("filler", "", Node("text"))))
        self.assertEqual(len(wrong), 1)
        self.assertIn('no name: dialog "Finestra" > filler "" > filler "" > text ""', wrong[0])
        self.assertEqual(found(Node("text", labelled=True)), [])

    def test_finds_a_part_that_says_to_be_a_window(self):
        part = Node("frame")
        self.assertIn("a part that says", found(part)[0])
        part.focusable = False
        self.assertEqual(found(part), [])

    def test_passes_over_what_is_not_shown(self):
        hidden = Node("push button")
        hidden.showing = False
        self.assertEqual(found(hidden), [])

    def test_finds_a_choice_that_says_only_what_is_chosen(self):
        self.assertIn("a choice of which", found(Node("combo box", "Fase 1"))[0])

    def test_finds_a_picture_that_says_nothing_or_whose_numbers_are_nowhere(self):
        self.assertIn("without name or description", found(table(), Node("image", "Figura"))[0])
        seen = Node("image", "Figura", description="la paratia è in equilibrio")
        self.assertIn("numbers are nowhere", found(seen)[0])
        keyed = Node("image", "Figura", description="tabelle di Risultati (Ctrl+R)")
        self.assertEqual(found(keyed), [])
        self.assertEqual(found(Node("image"), role="alert"), [])

    def test_finds_a_table_without_name_head_or_cells(self):
        self.assertIn("a table without name", found(table(name=""))[0])
        self.assertIn("no head of column 1", found(table(heads=("z", "")))[0])
        self.assertIn("can't be read", found(table(cells=(("", ""),)))[0])


if __name__ == "__main__":
    unittest.main()
