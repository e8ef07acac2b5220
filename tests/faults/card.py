#!/usr/bin/env python3
# card.py PROGRAM-FOLDER: saves on a FAT32 card and looks at what a reader finds on it after each single
# write that the card received, as if it had been pulled out there.
#
# The file system's driver may be missing here, and mounting needs rights, so the card is in a Linux of its own that runs as
# an ordinary program (Debian's user-mode-linux, with this system's files as its own). Without it the test says so and exits
# with 77, which counts as skipped.
import collections
import ctypes
import os
import pathlib
import shlex
import shutil
import struct
import subprocess
import sys
import tempfile
import traceback

MODULES = ("drivers/block/loop", "drivers/md/dm-mod", "drivers/md/dm-log-writes", "fs/nls/nls_cp437", "fs/nls/nls_ascii",
           "fs/nls/nls_utf8", "fs/fat/fat", "fs/fat/vfat")
NEEDED = ("linux.uml", "dmsetup", "mkfs.vfat", "fsck.vfat", "losetup", "insmod")
MARK, SECTOR = 8, 512
VFAT = "iocharset=ascii"

BANNER, TEXTURE = "samples/seven_languages/arc/blyt/banner.brlyt", "samples/seven_languages/arc/timg/my_Back_logo.tpl"
FILES = (BANNER, TEXTURE, "cfgs/vcinfopath.cfg", "schemes/new.brlyt")

# What is run one after the other, and its status.
RUNS = (
    (["./bannersmith", BANNER, "-LOGO", "Comet.tpl", "-TITLE", "The first"], 0),
    (["./bannersmith", "-LOGO", "Waves.tpl", "-TITLE", "The second", "-PAD", "40000"], 0),
    (["./bannersmith", "-LOGO", "Comet.tpl", "-COLOR", "Nothing"], 1),
    (["./bannersmith", "-TITLE", "The third", "-PAD", "0"], 0),
    (["./bannersmith-edit", BANNER, "--title", "The fourth", "--output", "schemes/new.brlyt"], 0),
    (["./bannersmith-edit", "schemes/new.brlyt", BANNER, "--title", "The fifth"], 0),
)


def run(*command):
    return subprocess.run(command, check=True, capture_output=True).stdout.decode()


def mount(kind, what, where, options="rw"):
    where.mkdir(exist_ok=True)
    run("mount", "-t", kind, "-o", options, what, where)


# The file's bytes, None where there is none or it cannot be read whole.
def content(file):
    try:
        return file.read_bytes()
    except OSError:
        return None


# What the device received, in order: (sector, flags, data).
def log_entries(log):
    magic, _, count, size = struct.unpack_from("<QQQI", log)
    assert magic == 0x6A736677736872 and size == SECTOR, "no log"
    at = SECTOR
    for _ in range(count):
        sector, sectors, flags, _ = struct.unpack_from("<QQQQ", log, at)
        end = at + SECTOR + (0 if flags & MARK else sectors * SECTOR)
        yield sector, flags, log[at + SECTOR:end]
        at = end


# Makes the runs on a card; returns the card before them, what it received, and the files after each run.
def record(work, program_folder):
    card, log, folder = work / "card.img", work / "log.img", work / "card"
    run("truncate", "-s", "40M", card)
    run("truncate", "-s", "100M", log)
    run("mkfs.vfat", "-F", "32", "-s", "1", card)
    devices = [run("losetup", "-f", "--show", path).strip() for path in (card, log)]
    mount("vfat", devices[0], folder, VFAT)
    shutil.copytree(program_folder, folder, dirs_exist_ok=True, copy_function=shutil.copyfile,
                    ignore=shutil.ignore_patterns("bannersmith-[itw]*"))
    run("umount", folder)
    before = card.read_bytes()

    run("dmsetup", "create", "card", "--table", "0 %d log-writes %s %s" % (len(before) // SECTOR, *devices))
    mount("vfat", "/dev/dm-0", folder, VFAT)
    states = [[content(folder / name) for name in FILES]]
    for command, status in RUNS:
        done = subprocess.run(command, cwd=folder, capture_output=True)
        assert done.returncode == status, (command, done)
        run("dmsetup", "message", "card", "0", "mark", "ended")
        states.append([content(folder / name) for name in FILES])
    run("umount", folder)
    run("dmsetup", "remove", "card")
    return before, log_entries(log.read_bytes()), states


# Looks at the card after each write, until the last run has ended.
def check(work, card, entries, states):
    path, folder = work / "pulled.img", work / "pulled"
    path.write_bytes(card)
    writes, ended, wrong = 0, 0, collections.Counter()
    for sector, flags, data in entries:
        ended += flags & MARK == MARK
        if ended == len(RUNS):
            break
        with open(path, "r+b") as image:
            image.seek(sector * SECTOR)
            image.write(b"" if flags & MARK else data)
        writes += 1
        checked = subprocess.run(["fsck.vfat", "-n", path], capture_output=True).stdout.decode()
        found = [what for what in ("share clusters", "ontains a free cluster") if what in checked]
        mount("vfat", path, folder, VFAT + ",loop,ro")
        for name, *wanted in zip(FILES, *states[ended:ended + 2]):
            now = content(folder / name)
            # A new file takes its name before its contents.
            if now not in wanted and not (wanted[0] is None and now == b""):
                found.append("%s: %s" % (name, "lost" if now is None else "%d other bytes" % len(now)))
        run("umount", folder)
        wrong += collections.Counter("in run %d: %s" % (ended + 1, what) for what in found)
    print("%d writes to the card; wrong after a write:" % writes, dict(wrong) or "nothing")
    return not wrong and writes > 30


# The first process of the Linux that has the card.
def inside(program_folder, work):
    os.environ["PATH"] = "/usr/sbin:/usr/bin:/sbin:/bin"
    memory = pathlib.Path(work, "memory")
    for kind, where in (("proc", pathlib.Path("/proc")), ("sysfs", pathlib.Path("/sys")), ("tmpfs", memory)):
        mount(kind, kind, where)
    for module in MODULES:  # mounting tells what could not be loaded
        subprocess.run(["insmod", "/usr/lib/uml/modules/%s/kernel/%s.ko" % (os.uname().release, module)], check=False)
    if check(memory, *record(memory, program_folder)):
        pathlib.Path(work, "passed").touch()


def main():
    if sys.argv[1] == "--inside":
        try:
            inside(*sys.argv[2:])
        except Exception:  # the end of this process is a panic of the system
            traceback.print_exc()
        sys.stdout.flush()
        ctypes.CDLL(None).reboot(0x4321FEDC)
    os.environ["PATH"] += ":/usr/sbin:/sbin"
    missing = [name for name in NEEDED if shutil.which(name) is None]
    if missing:
        print("SKIPPED: no card without " + ", ".join(missing))
        return 77
    program_folder = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory(dir=os.path.dirname(program_folder)) as work:
        start, passed = pathlib.Path(work, "start"), pathlib.Path(work, "passed")
        command = [sys.executable, os.path.abspath(__file__), "--inside", program_folder, work]
        start.write_text("#!/bin/sh\nexec " + shlex.join(command))
        start.chmod(0o755)
        subprocess.run(["linux.uml", "mem=512M", "root=/dev/root", "rootfstype=hostfs", "rw", "init=%s" % start, "quiet",
                        "con0=fd:0,fd:1", "con=null"], stdin=subprocess.DEVNULL, timeout=280, check=False)
        return 0 if passed.exists() else 1


if __name__ == "__main__":
    sys.exit(main())
