"""The verbs: the program, its man page, its completion and its documentation name the same ones."""

import re
import subprocess
import unittest

from pools import TESTS, run

SOURCE = TESTS.parent


def verbs():
    listed = run("--help").stdout.decode().split("Verbs:\n", 1)[1]
    return re.findall(r"^ {2}([a-z]+)", listed, re.MULTILINE)


def completed(*words):
    """What bash offers for the last of these words."""
    script = """
        . "$1"
        shift
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
        _tallyhoop_cli
        printf '%s\\n' "${COMPREPLY[@]}"
    """
    done = subprocess.run(["bash", "-c", script, "bash", SOURCE / "packaging/tallyhoop-cli.bash", "tallyhoop-cli", *words],
                          check=True, capture_output=True, text=True)
    return done.stdout.split()


class Words(unittest.TestCase):
    def test_there_are_verbs(self):
        self.assertIn("standings", verbs())

    def test_the_completion_has_every_verb(self):
        self.assertEqual([word for word in completed("") if not word.startswith("-")], verbs())

    def test_the_completion_has_every_option_of_a_verb(self):
        for verb in verbs():
            with self.subTest(verb):
                options = set(re.findall(r"(--[a-z-]+)", run(verb, "--help").stdout.decode()))
                offered = {word for word in completed(verb, "-") if word.startswith("-")}
                self.assertEqual(offered - {"--folder", "--out", "--help"}, options - {"--folder", "--out", "--help"})

    def test_the_completion_goes_on(self):
        self.assertEqual(completed("report", ""), list("1234567"))
        self.assertEqual(completed("csv", "p"), ["picks", "picks-by-player"])
        self.assertEqual(completed("outlook", "--weights", "s"), ["seeds"])
        self.assertEqual(completed("--folder", "/nowhere/x"), [])
        self.assertIn("/etc", completed("--folder", "/et"))

    def test_the_man_page_has_every_verb(self):
        page = (SOURCE / "packaging/tallyhoop-cli.1").read_text()
        section = page.split(".SH VERBS\n", 1)[1].split(".SH OPTIONS", 1)[0]
        self.assertEqual(re.findall(r'^\.TP\n\.BR? ?I? ?"?([a-z]+)', section, re.MULTILINE), verbs())

    def test_the_documentation_has_every_verb(self):
        table = (SOURCE / "docs/cli.md").read_text().split("| verb |", 1)[1].split("\n\n", 1)[0]
        self.assertEqual(re.findall(r"^\| `([a-z]+)", table, re.MULTILINE), verbs())


if __name__ == "__main__":
    unittest.main()
