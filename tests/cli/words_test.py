"""The verbs: the program, its man page, its completion and its documentation name the same ones."""

import re
import subprocess
import unittest

from pools import TESTS, run

SOURCE = TESTS.parent
COMMON = {"--folder", "--out", "--help", "--version"}


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


def options_of(*words):
    """The options that the program itself names, but those that every verb has."""
    listed = set(re.findall(r"(--[a-z-]+)", run(*words, "--help").stdout.decode().split("Options:\n", 1)[1]))
    return listed - COMMON


def rows_of_the_documentation(heading):
    table = (SOURCE / "docs/cli.md").read_text().split(f"| {heading} |", 1)[1].split("\n\n", 1)[0]
    return re.findall(r"^\| `(.*?)` \|", table, re.MULTILINE)


def entries_of_the_man_page(section):
    """What the page explains there, without its formatting."""
    page = (SOURCE / "packaging/tallyhoop-cli.1").read_text()
    lines = page.split(f".SH {section}\n", 1)[1].split(".SH ", 1)[0]
    return [re.sub(r'^\.\w+ |\\f[A-Z]|"', "", entry).replace("\\-", "-")
            for entry in re.findall(r"^\.TP\n(.*)", lines, re.MULTILINE)]


def options_by_verb(entries):
    """From such as "scores [--json]"; a verb may have several entries."""
    options = {}
    for entry in entries:
        options.setdefault(entry.split()[0], set()).update(re.findall(r"--[a-z-]+", entry))
    return options


class Words(unittest.TestCase):
    def test_there_are_verbs(self):
        self.assertIn("standings", verbs())

    def test_the_completion_has_every_verb(self):
        self.assertEqual([word for word in completed("") if not word.startswith("-")], verbs())

    def test_the_completion_has_every_option_of_a_verb(self):
        for verb in verbs():
            with self.subTest(verb):
                offered = {word for word in completed(verb, "-") if word.startswith("-")}
                self.assertEqual(offered - COMMON, options_of(verb))

    def test_the_completion_goes_on(self):
        self.assertEqual(completed("report", ""), list("1234567"))
        self.assertEqual(completed("csv", "p"), ["picks", "picks-by-player"])
        self.assertEqual(completed("outlook", "--weights", "s"), ["seeds"])
        self.assertEqual(completed("--folder", "/nowhere/x"), [])
        self.assertIn("/etc", completed("--folder", "/et"))

    def test_man_page_and_documentation_have_every_verb_with_its_options(self):
        offered = {verb: options_of(verb) for verb in verbs()}
        for where, entries in (("man page", entries_of_the_man_page("VERBS")),
                               ("documentation", rows_of_the_documentation("verb"))):
            with self.subTest(where):
                explained = options_by_verb(entries)
                self.assertEqual(list(explained), verbs())
                self.assertEqual(explained, offered)

    def test_man_page_and_documentation_explain_every_option(self):
        every = set().union(*(options_of(verb) for verb in verbs()))
        self.assertIn("--weights", every)
        explained = {entry.split()[0] for entry in entries_of_the_man_page("OPTIONS")}
        self.assertEqual(explained, every | COMMON)
        self.assertEqual(set(rows_of_the_documentation("option")), every)
        text = (SOURCE / "docs/cli.md").read_text()
        for option in COMMON:
            self.assertIn(f"`{option}`", text)


if __name__ == "__main__":
    unittest.main()
