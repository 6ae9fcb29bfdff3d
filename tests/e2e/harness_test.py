"""The harness itself, tested on a small program with one of everything."""

import shutil
import unittest

from program import Failed, Program, centre
from target import TARGET


def dummy(**how):
    """The small program in the place of the real one."""
    program = Program(**how)
    shutil.copy2(TARGET.built("tests/e2e/tallyhoop_e2e_dummy"), program.folder / TARGET.PROGRAM)
    return program


class HarnessOnADisplay(unittest.TestCase):
    platform = TARGET.PLATFORM

    def setUp(self):
        self.program = self.enterContext(dummy(platform=self.platform)).start()

    def see(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def test_a_click_presses_a_button_and_typing_fills_a_box(self):
        self.program.type("txtName", "Smith, J. & \"Sons\"")
        self.program.click("cmdGreet")
        self.see("lblSaid", "hello Smith, J. & \"Sons\"")
        self.assertEqual(self.program.caption("cmdGreet"), "Greet")

    def test_a_click_a_drag_and_a_right_press_are_distinguished(self):
        self.program.click("lblDrag")
        self.see("lblDrag", "clicked")
        self.assertEqual(self.program.colour("lblDrag"), "#00ff00")
        self.program.drag("lblDrag", "cmdGreet")
        self.see("lblDrag", "dragged")
        self.program.right_click("lblDrag")
        self.see("lblDrag", "cleared")

    def test_menus_open_and_boxes_are_answered(self):
        self.program.menu("mnuFile", "mnuAsk")
        box = self.program.answer("Yes", "** A QUESTION **")
        self.assertEqual((box["text"], box["icon"]), ("Well?\r\nYes?", "question"))
        self.see("lblSaid", "yes")
        self.program.key("Ctrl+J")
        self.program.answer("No")
        self.see("lblSaid", "no")
        self.assertFalse(self.program.action("mnuNever")["enabled"])

    def test_a_file_dialog_takes_a_name(self):
        self.program.write("Some file.txt", ["text"])
        self.program.menu("mnuFile", "mnuOpen")
        self.program.file_dialog("Some file.txt")
        self.see("lblSaid", self.program.path("Some file.txt"))

    def test_a_heading_is_dragged_to_another_place(self):
        headings = self.program.table("table")["headings"]
        self.program.drag_between(centre(headings[2]["rect"]), (headings[0]["rect"][0] + 4, centre(headings[0]["rect"])[1]))
        self.program.wait(lambda: self.program.rows("table") == [["02", "00", "01"], ["12", "10", "11"]], "the new order")

    def test_a_step_that_cannot_be_taken_fails(self):
        with self.assertRaises(Failed):
            self.program.widget("cmdNoSuchThing")


@unittest.skipUnless(TARGET.PLATFORM == "xcb", "the program for Windows comes with what it needs for a display alone")
class HarnessWithoutADisplay(HarnessOnADisplay):
    platform = "offscreen"


@unittest.skipIf(TARGET.SHOWS_LATE, "the pointer shows whether the window is there")
class HarnessWhileAWindowIsBeingShown(unittest.TestCase):
    def test_nothing_is_pressed_before_the_window_manager_has_shown_the_box(self):
        program = self.enterContext(dummy()).start()
        self.assertTrue(program.reachable("cmdGreet"))
        with program.without_window_manager():
            program.key("Ctrl+J")
            program.wait(lambda: program.visible("qt_msgbox_label"), "the box, as the program has it")
            self.assertFalse(program.reachable("qt_msgbox_label"))
            self.assertFalse(program.reachable("cmdGreet"))
        program.click("qt_msgbox_label")
        self.assertTrue(program.modal()["active"])
        program.key("Escape")
        program.wait(lambda: program.text("lblSaid") == "no", "the answer")
        self.assertTrue(program.reachable("cmdGreet"))


class HarnessClosing(unittest.TestCase):
    def test_the_window_managers_close_ends_the_program(self):
        with dummy() as program:
            self.assertEqual(program.start().close(), 0)


if __name__ == "__main__":
    unittest.main()
