#!/usr/bin/env python3
"""full_disk.py PROGRAM-FOLDER TOOLS-FOLDER: saves layouts of many sizes on a small disk with more or less space left.

Mounts a file system in memory; where that is not permitted it says so and exits with 77, which counts as skipped.
"""
import os
import shutil
import subprocess
import sys
import tempfile

DISK = 4 << 20
LAYOUT = b"box T_VCTitle_ENG A name\nbox T_PF X\nfill %d\nsection gre1\n"
SIZES = [4096 * (k + 1) * (k + 1) for k in range(12)]  # 4 KiB to 576 KiB
SHARES = [0, 0.1, 0.25, 0.5, 0.75, 0.9, 0.99, 1, 1.01, 1.1, 1.5, 2]  # of the size, left free


def save_on(disk, program, layout, free):
    """Fills the disk up to `free` bytes beside the layout, saves, and yields what is wrong afterwards."""
    banner, filler = os.path.join(disk, "blyt", "banner.brlyt"), os.path.join(disk, "filler")
    texture = os.path.join(disk, "timg", "my_Back.tpl")
    old = {banner: layout, texture: b"o" * (30000 + len(layout))}
    for path, contents in old.items():
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(contents)
    left = os.statvfs(disk).f_bavail * os.statvfs(disk).f_bsize
    with open(filler, "wb") as file:
        file.write(b"x" * max(0, left - int(free)))
    command = [program, banner, "-LOGO", "Comet.tpl", "-TITLE", "Another name", "-PAD", "0"]
    done = subprocess.run(command, capture_output=True)
    files = sorted(os.path.join(at, name) for at, _, names in os.walk(disk) for name in names)
    if files != sorted([*old, filler]):
        yield "left behind: %s" % files
    kept = [path for path, contents in old.items() if open(path, "rb").read() == contents]
    if done.returncode == 0 and kept:
        yield "says done, but is not"
    if done.returncode == 1 and (len(kept) != 2 or b": No space left on device" not in done.stderr):
        yield "says %r, %d files are as they were" % (done.stderr, len(kept))
    if done.returncode not in (0, 1):
        yield "ended with %d" % done.returncode
    os.remove(filler)


def main():
    program_folder, tools_folder = sys.argv[1:]
    results, wrong = [], []
    with tempfile.TemporaryDirectory(prefix="full_disk") as work:
        shutil.copytree(program_folder, os.path.join(work, "program"))
        disk = os.path.join(work, "disk")
        os.mkdir(disk)
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=%d" % DISK, "tmpfs", disk]).returncode != 0:
            print("SKIPPED: no file system can be mounted here")
            return 77
        try:
            for size in SIZES:
                layout = subprocess.run([os.path.join(tools_folder, "make-layout")], check=True, capture_output=True,
                                        input=LAYOUT % size).stdout
                for share in SHARES:
                    found = list(save_on(disk, os.path.join(work, "program", "bannersmith"), layout, size * share))
                    results.append(found)
                    wrong += ["%d bytes, %g free: %s" % (size, share, what) for what in found]
        finally:
            subprocess.run(["umount", disk], check=True)
    print("%d saves" % len(results))
    print("\n".join(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
