"""What is in the packages: all of it, no more, not too much, and the licences of everything."""

import re
import unittest
import zipfile

import packages

LIMIT = 25_000_000  # bytes, to be sent by mail


class Contents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.archive = zipfile.ZipFile(packages.archive())
        cls.addClassCleanup(cls.archive.close)

    def text(self, name):
        return self.archive.read("Tallyhoop/" + name).decode()

    def test_are_small_enough_to_be_mailed(self):
        for package in packages.setup(), packages.archive():
            self.assertLess(package.stat().st_size, LIMIT, package.name)
            self.assertGreater(package.stat().st_size, LIMIT / 5, package.name)

    def test_the_archive_has_one_folder_with_all_that_the_program_needs(self):
        names = [name for name in self.archive.namelist() if not name.endswith("/")]
        self.assertEqual(sorted(names), ["Tallyhoop/" + name for name in packages.OWN_FILES])

    def test_what_an_editor_opens_has_the_line_breaks_of_windows(self):
        for name in packages.TEXTS:
            if name == "TALLYHOOP.HLP":
                continue  # which the program itself shows
            self.assertEqual(re.findall("[^\r]\n", self.text(name))[:3], [], name)

    def test_every_library_and_licence_is_named(self):
        libraries = self.text("licences/LIBRARIES.TXT")
        for name in packages.LIBRARIES:
            shown = "Qt6*.dll" if name.startswith("Qt6") else name.partition("/")[0]
            self.assertIn(shown, libraries)
        licences = {name.partition("/")[2] for name in packages.TEXTS if name.startswith("licences/")}
        self.assertEqual(set(re.findall(r"[A-Z0-9-]+\.TXT", libraries)) | {"LIBRARIES.TXT"}, licences)

    def test_each_licence_is_the_one_that_it_is_called(self):
        words = {"QT.TXT": "The Qt Company", "LGPL-3.TXT": "GNU LESSER GENERAL PUBLIC LICENSE", "FMT.TXT": "Victor Zverovich",
                 "GPL-3.TXT": "GNU GENERAL PUBLIC LICENSE", "GCC.TXT": "GCC RUNTIME LIBRARY EXCEPTION",
                 "MINGW-W64.TXT": "mingw-w64-libraries/winpthreads", "CLI11.TXT": "Henry Schreiner",
                 "JSON.TXT": "Niels Lohmann", "NSIS.TXT": "Nullsoft"}
        for name, expected in words.items():
            self.assertIn(expected, self.text("licences/" + name), name)
        self.assertIn("Permission is hereby granted, free of charge", self.text("LICENSE.TXT"))

    def test_says_where_the_source_of_qt_is_and_that_it_may_be_replaced(self):
        libraries = " ".join(self.text("licences/LIBRARIES.TXT").split())
        for words in ("https://snapshot.debian.org/", "packaging/windows/build_qt.sh",
                      "You may put other versions of these libraries in their place."):
            self.assertIn(words, libraries)


if __name__ == "__main__":
    unittest.main()
