"""Windows as wine has it, on the display of a test."""

import os
import pathlib
import shutil
import struct
import subprocess
import tempfile

from build_folder import BUILD

# Windows' own fonts under their names, by those with the same widths.
FONTS = {"Arial": "Liberation Sans", "Courier New": "Liberation Mono", "Segoe UI": "Liberation Sans",
         "Tahoma": "Liberation Sans", "Times New Roman": "Liberation Serif"}


def quoted(text):
    """A text as files of the registry have it."""
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def add_to_registry(file, key, values):
    """Adds values to a key; they are texts, or already written as such files have them."""
    with open(file, "a", encoding="ascii") as registry:
        registry.write("\n[" + key.replace("\\", "\\\\") + "]\n" + "".join(
            f"{quoted(name)}={value}\n" for name, value in values.items()))


def of_the_desktop(face, pixels):
    """A font as the registry has those of the desktop."""
    font = struct.pack("<5i8x64s", -pixels, 0, 0, 0, 400, face.encode("utf-16-le"))
    return "hex:" + ",".join(f"{byte:02x}" for byte in font)


class Windows:
    """Each scratch folder has a wine server, a registry and settings of its own; the system's files are made once for a build."""

    PLATFORM = "windows"
    SHOWS_LATE = True
    OFFERS_PRINTERS = False
    LETTERS = "#000000"
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
        drive = prefix / "drive_c"
        shutil.copytree(cls._SYSTEM / "drive_c/users", drive / "users", symlinks=True)
        for folder in (cls._SYSTEM / "drive_c").iterdir():
            if folder.name != "users":
                (drive / folder.name).symlink_to(folder)
        (prefix / "dosdevices").mkdir()
        (prefix / "dosdevices/c:").symlink_to("../drive_c")
        (prefix / "dosdevices/z:").symlink_to("/")
        # Of Linux' variables for Qt wine passes none on; a user's own are in the registry.
        of_qt = {"QT_FORCE_STDERR_LOGGING": "1",
                 **{name: value for name, value in environment.items() if name.startswith("QT_")}}
        add_to_registry(prefix / "user.reg", "Environment", {name: quoted(value) for name, value in of_qt.items()})
        # Wine takes the names of files to be in the character set of its environment.
        return {"LC_ALL": "C.UTF-8", **cls._QUIET, **environment, "WINEPREFIX": str(prefix),
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
        cls._look_like_windows(made / "user.reg")
        for link in (made / "drive_c/users").glob("*/*"):
            if link.is_symlink():  # into the home of whoever runs the tests
                link.unlink()
                link.mkdir()
        shutil.copy2(cls._CLIENT, made / "drive_c/windows/system32/mapi32.dll")
        made.rename(cls._SYSTEM)

    @staticmethod
    def _look_like_windows(registry):
        """With the fonts of Windows 10, and smooth ones."""
        add_to_registry(registry, r"Software\Wine\Fonts\Replacements", {name: quoted(font) for name, font in FONTS.items()})
        add_to_registry(registry, r"Control Panel\Desktop", {
            "FontSmoothing": quoted("2"), "FontSmoothingType": "dword:2", "FontSmoothingGamma": "dword:578"})
        add_to_registry(registry, r"Control Panel\Desktop\WindowMetrics", {
            f"{use}Font": of_the_desktop("Segoe UI", 12) for use in ("Caption", "Icon", "Menu", "Message", "Status")})
