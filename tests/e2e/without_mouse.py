"""What a test does that has only the keyboard."""


class WithoutMouse:
    """To come before the test case that starts `program`."""

    def setUp(self):
        super().setUp()
        self.program.move = self.program.press = self.program.click = self.program.drag = None

    def focused(self, name):
        self.program.wait(lambda: self.program.widget(name)["focus"], f"{name} having the focus")

    def mnemonic(self, name):
        caption = self.program.text(name)
        self.program.key("Alt+" + caption[caption.index("&") + 1].lower())
