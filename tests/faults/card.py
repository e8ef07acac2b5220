#!/usr/bin/env python3
"""card.py PROGRAM-FOLDER TOOLS-FOLDER: saves on a FAT32 card and looks at what a reader finds on it after each single
write that the card received, as if it had been pulled out there.

The file system's driver may be missing here, and mounting needs rights, so the card is in a Linux of its own that runs as
an ordinary program (Debian's user-mode-linux, with this system's files as its own). Without it the test says so and exits
with 77, which counts as skipped.
"""
import collections
import ctypes
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import traceback

MODULES = ("drivers/block/loop", "drivers/md/dm-mod", "drivers/md/dm-log-writes", "fs/nls/nls_cp437", "fs/nls/nls_ascii",
           "fs/nls/nls_utf8", "fs/fat/fat", "fs/fat/vfat")
NEEDED = ("linux.uml", "dmsetup", "mkfs.vfat", "fsck.vfat", "losetup")
FLUSH, MARK = 1, 8
SECTOR = 512
LIBC = ctypes.CDLL(None, use_errno=True)

SAMPLES = "samples/seven_languages/arc/"
BANNER, TEXTURE = SAMPLES + "blyt/banner.brlyt", SAMPLES + "timg/my_Back_logo.tpl"
CONFIG, SCHEME, NEW_SCHEME = "cfgs/vcinfopath.cfg", "schemes/Midnight.vccs", "schemes/New.vccs"
FILES = (BANNER, TEXTURE, CONFIG, SCHEME, NEW_SCHEME)

# What is run one after the other, and its status.
RUNS = (
    (["./bannersmith", BANNER, "-LOGO", "Comet.tpl", "-TITLE", "The first"], 0),
    (["./bannersmith", "-LOGO", "Waves.tpl", "-TITLE", "The second", "-PAD", "40000"], 0),
    (["./bannersmith", "-LOGO", "Comet.tpl", "-COLOR", "Nothing"], 1),
    (["./bannersmith", "-TITLE", "The third", "-PAD", "0"], 0),
    (["./save-scheme", "New"], 0),
    (["./save-scheme", "Midnight"], 0),
)


def run(*command, **more):
    return subprocess.run(command, check=True, capture_output=True, **more).stdout.decode()


def mount(kind, what, where, read_only=False):
    options = b"iocharset=ascii" if kind == "vfat" else b""
    os.makedirs(where, exist_ok=True)
    if LIBC.mount(what.encode(), where.encode(), kind.encode(), int(read_only), options) != 0:
        raise OSError(ctypes.get_errno(), "mount " + where)


def unmount(where):
    if LIBC.umount(where.encode()) != 0:
        raise OSError(ctypes.get_errno(), "umount " + where)


def contents(folder):
    """Each file's bytes, None where there is none or it cannot be read whole."""
    found = {}
    for name in FILES:
        try:
            with open(os.path.join(folder, name), "rb") as file:
                found[name] = file.read()
        except OSError:
            found[name] = None
    return found


def log_entries(log):
    """What the device received, in order: (sector, flags, data)."""
    magic, _, count, size = struct.unpack_from("<QQQI", log)
    assert magic == 0x6A736677736872 and size == SECTOR, "no log"
    at = SECTOR
    for _ in range(count):
        sector, sectors, flags, length = struct.unpack_from("<QQQQ", log, at)
        if flags & MARK:
            yield sector, flags, log[at + 32:at + 32 + length]
            at += SECTOR
        else:
            yield sector, flags, log[at + SECTOR:at + SECTOR + sectors * SECTOR]
            at += SECTOR + sectors * SECTOR


def record(work, program_folder, tools_folder):
    """Makes the runs on a card; returns the card before them, what it received, and the files after each run."""
    card, log, folder = (os.path.join(work, name) for name in ("card.img", "log.img", "card"))
    for path, size in ((card, 40 << 20), (log, 100 << 20)):
        with open(path, "wb") as file:
            file.truncate(size)
    run("mkfs.vfat", "-F", "32", "-s", "1", card)
    devices = [run("losetup", "-f", "--show", path).strip() for path in (card, log)]
    mount("vfat", devices[0], folder)
    shutil.copytree(program_folder, folder, dirs_exist_ok=True, copy_function=shutil.copyfile,
                    ignore=shutil.ignore_patterns("bannersmith-*"))
    shutil.copyfile(os.path.join(tools_folder, "save-scheme"), os.path.join(folder, "save-scheme"))
    unmount(folder)
    with open(card, "rb") as file:
        before = file.read()

    sectors = len(before) // SECTOR
    run("dmsetup", "create", "card", "--table", "0 %d log-writes %s %s" % (sectors, *devices))
    mount("vfat", "/dev/dm-0", folder)
    states = [contents(folder)]
    for command, status in RUNS:
        done = subprocess.run(command, cwd=folder, capture_output=True)
        assert done.returncode == status, (command, done)
        run("dmsetup", "message", "card", "0", "mark", "ended")
        states.append(contents(folder))
    unmount(folder)
    run("dmsetup", "remove", "card")
    with open(log, "rb") as file:
        return before, list(log_entries(file.read())), states


def judge(found, states, ended):
    """What is wrong with the files of a card that was pulled out when `ended` runs had ended."""
    for name in FILES:
        wanted = [state[name] for state in states[ended:ended + 2]]
        if wanted[0] is None:  # a new file takes its name before its contents
            wanted.append(b"")
        if found[name] not in wanted:
            yield "%s: %s" % (name, "lost" if found[name] is None else "%d other bytes" % len(found[name]))


def check(work, card, entries, states):
    """Looks at the card after each write, until the last run has ended."""
    path, folder = os.path.join(work, "pulled.img"), os.path.join(work, "pulled")
    prefixes, ended, wrong = 0, 0, collections.Counter()
    with open(path, "wb", buffering=0) as image:
        image.write(card)
        for sector, flags, data in entries:
            if flags & MARK:
                ended += 1
                if ended == len(RUNS):
                    break
            elif data:
                os.pwrite(image.fileno(), data, sector * SECTOR)
            prefixes += 1
            checked = subprocess.run(["fsck.vfat", "-n", path], capture_output=True).stdout.decode()
            device = run("losetup", "-f", "--show", "-r", path).strip()
            mount("vfat", device, folder, read_only=True)
            found = list(judge(contents(folder), states, ended))
            unmount(folder)
            run("losetup", "-d", device)
            found += [what for what in ("share clusters", "ontains a free cluster") if what in checked]
            wrong += collections.Counter("in run %d: %s" % (ended + 1, what) for what in found)
    print("%d writes to the card; wrong after a write:" % prefixes, dict(wrong) or "nothing")
    return not wrong and prefixes > 30


def inside(program_folder, tools_folder, work):
    """The first process of the Linux that has the card."""
    os.environ["PATH"] = "/usr/sbin:/usr/bin:/sbin:/bin"
    for kind, where in (("proc", "/proc"), ("sysfs", "/sys"), ("tmpfs", work + "/memory")):
        mount(kind, kind, where)
    for module in MODULES:
        path = "/usr/lib/uml/modules/%s/kernel/%s.ko" % (os.uname().release, module)
        with open(path, "rb") as file:
            LIBC.syscall(313, file.fileno(), b"", 0)  # finit_module; mounting tells what could not be loaded
    card, entries, states = record(work + "/memory", program_folder, tools_folder)
    if check(work + "/memory", card, entries, states):
        open(work + "/passed", "w").close()


def main():
    if sys.argv[1] == "--inside":
        try:
            inside(*sys.argv[2:])
        except Exception:  # the end of this process is a panic of the system
            traceback.print_exc()
        sys.stdout.flush()
        LIBC.reboot(0x4321FEDC)
    os.environ["PATH"] += ":/usr/sbin:/sbin"
    missing = [name for name in NEEDED if shutil.which(name) is None]
    if missing:
        print("SKIPPED: no card without " + ", ".join(missing))
        return 77
    with tempfile.TemporaryDirectory(dir=os.path.dirname(os.path.abspath(sys.argv[2]))) as work:
        programs, tools = (shutil.copytree(path, os.path.join(work, name)) for path, name in zip(sys.argv[1:], "pt"))
        start = os.path.join(work, "start")
        with open(start, "w", encoding="utf-8") as file:
            file.write('#!/bin/sh\nexec %s "%s" --inside "%s" "%s" "%s"\n'
                       % (sys.executable, os.path.abspath(__file__), programs, tools, work))
        os.chmod(start, 0o755)
        subprocess.run(["linux.uml", "mem=512M", "root=/dev/root", "rootfstype=hostfs", "rw", "init=" + start, "quiet",
                        "con0=fd:0,fd:1", "con=null"], stdin=subprocess.DEVNULL, timeout=280, check=False)
        return 0 if os.path.exists(os.path.join(work, "passed")) else 1


if __name__ == "__main__":
    sys.exit(main())
