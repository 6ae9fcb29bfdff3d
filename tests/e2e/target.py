"""What differs between the systems that the program is made for: Linux, and Windows by wine. TARGET is the one under test."""

import os
import pathlib
import shutil
import subprocess
import tempfile

BUILD = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", pathlib.Path(__file__).parents[2] / "build"))


class Linux:
    PLATFORM = "xcb"
    SHOWS_LATE = False  # whether the program takes a window for shown that is not on the screen yet
    PROGRAM, CLI = "tallyhoop", "tallyhoop-cli"
    # All that the installation lays out, sorted; every other file in a program folder belongs to its pool.
    OWN_FILES = ["DEMOSET.EXE", "NCAALIST.THS", "TALLYHOOP.HLP", CLI, PROGRAM]

    @staticmethod
    def prepare(scratch, environment):
        """Called once for each scratch folder, before the first program runs in it; gives their whole environment."""
        return {"LC_ALL": "C.UTF-8", **environment}

    @staticmethod
    def clear(scratch):
        """Ends what is left of the programs of a scratch folder."""

    @staticmethod
    def of_program(errors):
        """What is written to the terminal, without what the program cannot help."""
        return errors

    @staticmethod
    def command(executable):
        return [str(executable)]

    @staticmethod
    def shown(path):
        """A path as the program shows and takes it."""
        return str(path)

    @staticmethod
    def built(name):
        """A program of the build by its path without extension."""
        return BUILD / name


def quoted(text):
    """A text as files of the registry have it."""
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


class Windows:
    """Each scratch folder has a registry and a wine server of its own; the system's files are made once for a build."""

    PLATFORM = "windows"
    SHOWS_LATE = True
    PROGRAM, CLI = "tallyhoop.exe", "tallyhoop-cli.exe"
    OWN_FILES = ["DEMOSET.EXE", "LICENSE.TXT", "NCAALIST.THS", "Qt6Core.dll", "Qt6Gui.dll", "Qt6PrintSupport.dll",
                 "Qt6Widgets.dll", "TALLYHOOP.HLP", "libgcc_s_seh-1.dll", "libstdc++-6.dll", "libwinpthread-1.dll",
                 "licences", "platforms", "styles", CLI, PROGRAM]

    # What Qt reports of wine, and wine of its drives.
    _LACKING_IN_WINE = (
        "SetProcessDpiAwarenessContext(", "EnableNonClientDpiScaling() failed",
        "FS volume label and serial are not available")

    _SYSTEM = BUILD / "tests/e2e/wine"
    _CLIENT = BUILD / "tests/windows/mapi/client/MAPI_CLIENT.DLL"
    _QUIET = {"WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe=;mapi32=n"}

    @classmethod
    def prepare(cls, scratch, environment):
        if not cls._SYSTEM.exists():
            cls._make_system()
        prefix = cls._prefix(scratch)
        prefix.mkdir()
        for file in cls._SYSTEM.iterdir():
            if file.is_file():
                shutil.copy2(file, prefix / file.name)
        (prefix / "drive_c").symlink_to(cls._SYSTEM / "drive_c")
        (prefix / "dosdevices").mkdir()
        (prefix / "dosdevices/c:").symlink_to("../drive_c")
        (prefix / "dosdevices/z:").symlink_to("/")
        # Of Linux' variables for Qt wine passes none on; a user's own are in the registry.
        of_qt = {"QT_FORCE_STDERR_LOGGING": "1",
                 **{name: value for name, value in environment.items() if name.startswith("QT_")}}
        with open(prefix / "user.reg", "a", encoding="ascii") as registry:
            registry.write("\n[Environment]\n" + "".join(f"{quoted(name)}={quoted(value)}\n" for name, value in of_qt.items()))
        return {**cls._QUIET, **environment, "WINEPREFIX": str(prefix),
                "WINEPATH": cls.shown(BUILD / "tests/e2e/plugins")}

    @classmethod
    def clear(cls, scratch):
        prefix = cls._prefix(scratch)
        if not prefix.exists():
            return
        place = prefix.stat()
        cls._server(prefix, "-k")
        # The server's own folder is named after the prefix, which is never there again.
        shutil.rmtree(f"/tmp/.wine-{os.getuid()}/server-{place.st_dev:x}-{place.st_ino:x}", ignore_errors=True)

    @classmethod
    def of_program(cls, errors):
        return "".join(line for line in errors.splitlines(keepends=True)
                       if not any(complaint in line for complaint in cls._LACKING_IN_WINE))

    @staticmethod
    def command(executable):
        return ["wine", str(executable)]

    @staticmethod
    def shown(path):
        return "Z:" + str(path).replace("/", "\\")

    @staticmethod
    def built(name):
        return BUILD / f"{name}.exe"

    @staticmethod
    def _prefix(scratch):
        return scratch / "wine"

    @staticmethod
    def _server(prefix, *arguments):
        subprocess.run(["wineserver", *arguments], env={**os.environ, "WINEPREFIX": str(prefix)}, stderr=subprocess.DEVNULL)

    @classmethod
    def _make_system(cls):
        made = pathlib.Path(tempfile.mkdtemp(prefix="wine-", dir=cls._SYSTEM.parent))
        environment = {**os.environ, **cls._QUIET, "WINEPREFIX": str(made), "HOME": str(made)}
        environment.pop("DISPLAY", None)
        subprocess.run(["wineboot", "--init"], env=environment, check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        cls._server(made, "-w")
        shutil.copy2(cls._CLIENT, made / "drive_c/windows/system32/mapi32.dll")
        made.rename(cls._SYSTEM)


TARGET = Windows if os.environ.get("TALLYHOOP_TARGET") == "Windows" else Linux
