"""What Windows reads in the programs before it starts them: nothing of this runs."""

import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml

import packages

OBJDUMP = "x86_64-w64-mingw32-objdump"
VERSION, MANIFEST = "16", "24"  # kinds of resources
DESCRIPTIONS = {"tallyhoop.exe": "Tallyhoop", "tallyhoop-cli.exe": "Tallyhoop without its windows",
                "DEMOSET.EXE": "Tallyhoop: the sample pool"}


def output_of(*words):
    return subprocess.run([str(word) for word in words], check=True, stdout=subprocess.PIPE).stdout


class Programs(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory(prefix="tallyhoop-programs-")
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = packages.unpack(pathlib.Path(scratch.name))

    def headers(self, file):
        return output_of(OBJDUMP, "--private-headers", self.folder / file).decode(errors="replace")

    def resource(self, program, kind):
        return output_of("wrestool", "--extract", "--raw", f"--type={kind}", self.folder / program)

    def strings_of(self, program):
        """The names and values of the version: words of UTF-16 that end with 0, a name after its lengths and a 1 for text."""
        words = [word for word in self.resource(program, VERSION).decode("utf-16-le", "ignore").split("\0") if word]
        return {name.rpartition("\1")[2]: value for name, value in zip(words, words[1:])}

    def test_only_the_command_line_has_a_console(self):
        subsystems = {program: re.search(r"^Subsystem\s+\w+\s+\((.*)\)", self.headers(program), re.MULTILINE)[1]
                      for program in packages.PROGRAMS}
        self.assertEqual(subsystems, {"DEMOSET.EXE": "Windows GUI", "tallyhoop-cli.exe": "Windows CUI",
                                      "tallyhoop.exe": "Windows GUI"})

    def test_lie_anywhere_in_memory_and_run_no_data(self):
        for file in packages.PROGRAMS + packages.LIBRARIES:
            for trait in ("HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"):
                self.assertIn(trait, self.headers(file), file)

    def test_need_no_library_but_those_beside_them_and_windows_own(self):
        own = {pathlib.Path(name).name for name in packages.LIBRARIES}
        for file in packages.PROGRAMS + packages.LIBRARIES:
            needed = set(re.findall(r"DLL Name: (\S+)", self.headers(file)))
            foreign = {name for name in needed if name.startswith(("Qt", "lib"))}
            self.assertLessEqual(foreign, own, file)
            self.assertIn("KERNEL32.dll", needed, "the list was read")

    def test_say_what_they_are_and_of_which_version(self):
        version = re.search(r"Tallyhoop-(.*)-windows", packages.archive().name)[1]
        for program in packages.PROGRAMS:
            strings = self.strings_of(program)
            expected = {"FileVersion": version, "ProductVersion": version, "ProductName": "Tallyhoop",
                        "OriginalFilename": program, "FileDescription": DESCRIPTIONS[program]}
            self.assertEqual({name: strings.get(name) for name in expected}, expected, program)

    def test_have_an_icon(self):
        for program in packages.PROGRAMS:
            kinds = output_of("wrestool", "--list", self.folder / program).decode()
            self.assertIn("group_icon", kinds, program)

    def test_ask_windows_for_what_they_can_do(self):
        for program in packages.PROGRAMS:
            manifest = xml.fromstring(self.resource(program, MANIFEST))
            settings = {element.tag.rpartition("}")[2]: (element.text or "").strip() for element in manifest.iter()}
            self.assertEqual(settings["dpiAwareness"], "PerMonitorV2, PerMonitor", program)
            self.assertEqual(settings["longPathAware"], "true", program)
            self.assertEqual(settings["activeCodePage"], "UTF-8", program)
            levels = [element.get("level") for element in manifest.iter() if element.get("level")]
            self.assertEqual(levels, ["asInvoker"], program)
            libraries = [element.get("name") for element in manifest.iter() if element.get("publicKeyToken")]
            self.assertEqual(libraries, ["Microsoft.Windows.Common-Controls"], program)

    def test_the_installer_asks_for_no_administrator(self):
        manifest = output_of("wrestool", "--extract", "--raw", f"--type={MANIFEST}", packages.setup()).decode()
        self.assertIn('<requestedExecutionLevel level="asInvoker" uiAccess="false"/>', manifest)


if __name__ == "__main__":
    unittest.main()
