"""The program folder as the installation lays it out, and what a second installation leaves alone."""

import pathlib
import subprocess
import tempfile
import unittest

from program_folder import BUILD, CMAKE, OWN_FILES


def build_type():
    cache = (BUILD / "CMakeCache.txt").read_text()
    return cache.split("CMAKE_BUILD_TYPE:STRING=", 1)[1].split("\n", 1)[0]


def sections(program):
    """What readelf lists of a program's sections."""
    return subprocess.run(["readelf", "--wide", "--sections", program], check=True, text=True,
                          stdout=subprocess.PIPE).stdout


class ProgramFolder(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def install(self):
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", self.folder, "--component", "program"], check=True,
                       stdout=subprocess.DEVNULL)

    def names(self):
        return sorted(file.name for file in self.folder.rglob("*"))

    def test_everything_is_directly_in_the_folder(self):
        self.install()
        self.assertEqual(self.names(), OWN_FILES)

    @unittest.skipUnless(build_type().startswith("Rel"), "only what people run is stripped")
    def test_the_installed_programs_are_stripped(self):
        self.install()
        for built, program in (("app/tallyhoop", "tallyhoop"), ("cli/tallyhoop-cli", "tallyhoop-cli"),
                               ("DEMOSET.EXE", "DEMOSET.EXE")):
            self.assertIn(".symtab", sections(BUILD / built))
            shown = sections(self.folder / program)
            self.assertIn(".text", shown)
            for stripped in (".symtab", ".debug_info"):
                self.assertNotIn(stripped, shown, program)

    def test_the_shipped_team_list_holds_the_369_names_between_its_marks(self):
        self.install()
        lines = (self.folder / "NCAALIST.THS").read_bytes().split(b"\r\n")
        self.assertEqual((lines[0], lines[-2], lines[-1]), (b"*START*", b"*END*", b""))
        names = lines[1:-2]
        self.assertEqual(len(names), 369)
        self.assertEqual((names[0], names[-1]), (b"Abilene Christian", b"Youngstown St."))

    def test_an_existing_team_list_is_kept_whatever_the_case_of_its_name(self):
        (self.folder / "NcaaList.ths").write_text("mine")
        self.install()
        self.assertNotIn("NCAALIST.THS", self.names())
        self.assertEqual((self.folder / "NcaaList.ths").read_text(), "mine")

    def test_a_pool_in_the_folder_survives_a_new_installation(self):
        self.install()
        (self.folder / "POOLSTART.THS").write_bytes(b"*START*\r\n*END*\r\n")
        (self.folder / "TALLYHOOP.HLP").write_text("old")
        self.install()
        self.assertEqual((self.folder / "POOLSTART.THS").read_bytes(), b"*START*\r\n*END*\r\n")
        self.assertNotEqual((self.folder / "TALLYHOOP.HLP").read_text(), "old")


if __name__ == "__main__":
    unittest.main()
