"""A folder with the program in it, and the data files of a pool."""

import os
import pathlib
import shutil
import subprocess
import tempfile

from build_folder import BUILD
from target import TARGET

CMAKE = os.environ.get("TALLYHOOP_CMAKE", "cmake")
OWN_FILES = TARGET.OWN_FILES


class ProgramFolder:
    """The folder need not be there before lay_out()."""

    _laid_out = None  # the folder as installed, made once and copied for each program

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def lay_out(self):
        """Puts the program's own files into the folder as the installation does; data files there stay."""
        if ProgramFolder._laid_out is None:
            ProgramFolder._laid_out = tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-installed-")
            subprocess.run([CMAKE, "--install", BUILD, "--prefix", ProgramFolder._laid_out.name,
                            "--component", "program"], check=True, stdout=subprocess.DEVNULL)
        self.folder.mkdir(parents=True, exist_ok=True)
        shutil.copytree(ProgramFolder._laid_out.name, self.folder, dirs_exist_ok=True)

    def path(self, name=""):
        """The folder, or a file in it, as the program shows and takes it."""
        return TARGET.shown(self.folder / name)

    def read(self, name):
        return (self.folder / name).read_bytes()

    def write(self, name, content):
        """Writes a data file; lines of text get the line ends that the program writes."""
        if not isinstance(content, bytes):
            content = "".join(line + "\r\n" for line in content).encode("cp1252")
        (self.folder / name).write_bytes(content)

    def files(self):
        """The names of the data files in the folder, sorted."""
        return sorted(file.name for file in self.folder.iterdir() if file.name not in OWN_FILES)
