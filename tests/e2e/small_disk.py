"""A small disk of its own under a folder, for this process and those it starts."""

import contextlib
import ctypes
import errno
import os
import pathlib

CLONE_NEWNS, CLONE_NEWUSER = 0x00020000, 0x10000000
MS_REC, MS_PRIVATE = 0x4000, 0x40000
FILLER = "Holiday film.mpg"


class NotHere(RuntimeError):
    """This machine does not allow mounts."""


def _call(function, *arguments):
    if function(*arguments) != 0:
        raise NotHere(os.strerror(ctypes.get_errno()))


def mount(folder, megabytes):
    """Mounts a disk that vanishes when the last process that sees it has ended; without rights, in a user namespace."""
    libc = ctypes.CDLL(None, use_errno=True)
    user, group = os.getuid(), os.getgid()
    _call(libc.unshare, CLONE_NEWNS if user == 0 else CLONE_NEWNS | CLONE_NEWUSER)
    if user != 0:
        pathlib.Path("/proc/self/setgroups").write_text("deny")
        pathlib.Path("/proc/self/uid_map").write_text(f"0 {user} 1")
        pathlib.Path("/proc/self/gid_map").write_text(f"0 {group} 1")
    _call(libc.mount, b"none", b"/", None, MS_REC | MS_PRIVATE, None)
    _call(libc.mount, b"tmpfs", os.fsencode(folder), b"tmpfs", 0, f"size={megabytes}m".encode())


MNT_DETACH = 2


def unmount(folder):
    _call(ctypes.CDLL(None, use_errno=True).umount2, os.fsencode(folder), MNT_DETACH)


def fill(folder):
    """Fills the disk to the last byte."""
    with open(folder / FILLER, "wb", buffering=0) as film:
        for size in (1 << 20, 1 << 12):
            with contextlib.suppress(OSError):
                while film.write(b"x" * size) == size:
                    pass
        try:
            film.write(b"x" * (1 << 12))
        except OSError as full:
            if full.errno == errno.ENOSPC:
                return
            raise
    raise AssertionError("the disk is not full")


def empty(folder):
    (folder / FILLER).unlink()
