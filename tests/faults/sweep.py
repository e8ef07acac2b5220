#!/usr/bin/env python3
# sweep.py PROGRAM-FOLDER: kills the program before each of its file calls, interrupts it there by a signal
# and makes each call fail, and looks at what is on disk afterwards; also with two runs at once.
#
# PROGRAM-FOLDER: where the programs and the samples are. Needs strace, whose fault injection does the work.
import collections
import concurrent.futures
import fcntl
import itertools
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SAMPLES = "samples/seven_languages/arc/"
BANNER, TEXTURE = SAMPLES + "blyt/banner.brlyt", SAMPLES + "timg/my_Back_logo.tpl"
CHANNEL, CONFIG = "samples/channel/00000000.app", "cfgs/vcinfopath.cfg"
SHELF = ["shelf/%02d/banner.brlyt" % number for number in range(20)]
ERRORS = ("ENOSPC", "EIO", "EACCES", "EDQUOT", "EINTR")
SIGNALS = ("INT", "TERM", "HUP", "QUIT")
# As on a card: no second names, no trade of places, no modes.
CARD = ("link,linkat:error=EPERM", "renameat2:error=EINVAL", "fchmod:error=EPERM")

# What is run in a copy of the folder, the files that it replaces, and what fails all along.
EDIT = ("./bannersmith", "-LOGO", "Comet.tpl", "-TITLE", "Swept")
SCENARIOS = {
    "layout": (("./bannersmith", "-TITLE", "Swept", "-YEAR", "2001"), [BANNER], ()),
    "logo": (EDIT, [BANNER, TEXTURE], ()),
    "logo on a card": (EDIT, [BANNER, TEXTURE], CARD),
    "archive": (("./bannersmith", CHANNEL, *EDIT[1:]), [CHANNEL, CONFIG], ()),
    "configuration": (("./bannersmith", BANNER, "-TITLE", "Swept"), [BANNER, CONFIG], ()),
    "shelf": (("./bannersmith-edit", "--jobs", "1", "--title", "Swept", *SHELF), SHELF, ()),
    "new file": (("./bannersmith-edit", BANNER, "--quiet", "--title", "x", "--output", "new.brlyt"), ["new.brlyt"], ()),
}


# Each file's bytes, None where there is none.
def contents(folder, files):
    return {file: (folder / file).read_bytes() if (folder / file).exists() else None for file in files}


def files_of(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


# A program is linked: one that is being written cannot be run, and threads that start processes meanwhile would
# hand on the descriptor that it is written through.
def copy_file(source, target):
    (os.link if os.access(source, os.X_OK) else shutil.copy2)(source, target)


class Scenario:
    def __init__(self, name, base, work):
        self.name, (self.command, self.replaced, conditions) = name, SCENARIOS[name]
        self.conditions = [word for condition in conditions for word in ("-e", "inject=" + condition)]
        self.failing = {name for each in conditions for name in each.split(":")[0].split(",")}
        self.base, self.work, trace = base, work, work / (name + ".trace")
        self.old, self.clean = contents(base, self.replaced), self.copy("clean")
        assert self.run(self.clean, trace, "trace=%file,%desc").returncode == 0
        self.new, traced = contents(self.clean, self.replaced), trace.read_text("latin-1")
        assert all(self.new[file] != self.old[file] for file in self.replaced), self.new.keys()
        order = re.findall(r"^(fsync|renameat2|rename|unlink)\(", traced, re.M)
        if name == "layout":  # the file, its place, its folder, the file again; only then the old one goes
            assert order == ["fsync", "renameat2", "fsync", "fsync", "unlink"], order
        # The first call starts the program; the telling of what failed cannot be told when it fails itself.
        self.calls = re.findall(r"^(\w+)\((?!2, \"banner)", traced, re.M)[1:]
        shutil.rmtree(self.clean)

    def copy(self, label):
        return shutil.copytree(self.base, self.work / (self.name + "_" + label), copy_function=copy_file)

    def run(self, folder, trace, expression):
        command = ["strace", "-qq", "-o", trace, *self.conditions, "-e", expression, *self.command]
        # A right that is missing leads to the user's folder where there is one; here is none.
        homeless = {name: value for name, value in os.environ.items() if name not in ("HOME", "XDG_DATA_HOME")}
        return subprocess.run(command, cwd=folder, env=homeless, capture_output=True, timeout=60)

    # Each call by its name and its ordinal among those of the name, killed once and failing in each way.
    def faults(self):
        seen, signals = collections.Counter(["execve"]), itertools.cycle(SIGNALS)
        for call in self.calls:
            seen[call] += 1
            errors = () if call in self.failing or self.name == "shelf" else ERRORS
            yield call, seen[call], "signal=KILL"
            if self.name != "shelf" or seen[call] % 10 == 0:
                yield call, seen[call], "signal=" + next(signals)
            for error in errors:
                yield call, seen[call], "error=" + error

    def try_fault(self, call, ordinal, effect):
        label = "%s_%d_%s" % (call, ordinal, effect)
        folder = self.copy(label)
        before = files_of(folder)
        # Each of those that fail all along: no call can be told to fail and to be killed.
        fault = "inject=%s:%s" % (call, effect) + ("" if call in self.failing else ":when=%d" % ordinal)
        wrong = list(self.judge(folder, before, self.run(folder, "/dev/null", fault), call, effect))
        shutil.rmtree(folder)
        return ["%s, %s: %s" % (self.name, label, what) for what in wrong]

    def judge(self, folder, before, done, call, effect):
        status, errors, now = done.returncode, done.stderr.decode(), contents(folder, self.replaced)
        # The configuration holds the folder's path. Nobody asked to have it written, so nothing is told of it.
        new = {file: saved.replace(bytes(self.clean), bytes(folder)) for file, saved in self.new.items()}
        asked = [file for file in self.replaced if file != CONFIG]
        if any(now[file] not in (self.old[file], new[file]) for file in self.replaced):
            yield "a file is neither the old nor the new one"
        if any(now[file] != new[file] for file in re.findall(r"^(shelf/\S+): saved", done.stdout.decode(), re.M)):
            yield "told as saved, and is not"
        if effect == "signal=KILL":
            return
        if effect.startswith("signal="):
            if status != -signal.Signals["SIG" + effect[7:]]:
                yield "a signal ends it with %d" % status
            if len({now[file] == new[file] for file in asked}) > 1:
                yield "a signal leaves one file new and one old"
        left = files_of(folder) - before - {*self.replaced}
        if left:
            yield "left behind: %s" % sorted(left)
        if status == 0 and any(now[file] != new[file] for file in asked):
            yield "says done, but is not"
        # On a card the last of the old files cannot come back when syncing fails.
        stays = self.conditions and call in ("fsync", "openat") and "Written, but not safe" in errors
        if status > 0 and not stays and any(now[file] != self.old[file] for file in asked):
            yield "says failed (%s), but a file is new" % errors.strip()
        if status > 0 and not re.search(r"^bannersmith(-edit)?: .+: .+$", errors, re.M):
            yield "no message: status %d, %r" % (status, errors)
        if status == 0 and call == "fsync" and effect != "error=EINTR" and CONFIG not in self.replaced:
            yield "says done, but it is not safe from a power failure"


# Neither of two runs loses what the other wrote, whichever is first, nor takes its files away.
def two_at_once(base):
    old = files_of(base)
    for number in range(150):
        commands = (["-T_ENG", "one%d" % number, "-LOGO", "Comet.tpl"], ["-T_GER", "two%d" % number],
                    ["-T_FRA", "none", "-LOGO", "Waves.tpl", "-PAD", "much"])
        runs = [subprocess.Popen(["./bannersmith", *command], cwd=base, stderr=subprocess.DEVNULL) for command in commands]
        statuses = [each.wait() for each in runs]
        layout = (base / BANNER).read_bytes().decode("utf-16-be", "replace")
        kept = ["%s%d" % (text, number) in layout for text in ("one", "two")]
        logo = (base / TEXTURE).read_bytes() == (base / "logos/Comet.tpl").read_bytes()
        if statuses != [0, 0, 1] or not all(kept) or not logo or files_of(base) != old:
            yield "two runs at once: %s, %s, %s, %s" % (statuses, kept, logo, sorted(files_of(base) ^ old))


# Folders that stay held are told in time.
def refused(base):
    start = time.monotonic()
    holder = os.open((base / BANNER).parent, os.O_RDONLY)
    fcntl.flock(holder, fcntl.LOCK_EX)
    done = subprocess.run(["./bannersmith", "-TITLE", "Held"], cwd=base, capture_output=True, timeout=60)
    os.close(holder)
    if done.returncode != 1 or b"Another run of Bannersmith" not in done.stderr:
        yield "held: status %d, %r" % (done.returncode, done.stderr)
    if not 5 < time.monotonic() - start < 20:
        yield "held: %d seconds" % (time.monotonic() - start)


def main():
    with tempfile.TemporaryDirectory() as folder:
        work, base = pathlib.Path(folder), pathlib.Path(folder, "base")
        shutil.copytree(sys.argv[1], base, ignore=shutil.ignore_patterns("bannersmith-[itw]*"))
        for file in SHELF:
            (base / file).parent.mkdir(parents=True)
            shutil.copy(base / "samples/german_japanese/arc/blyt/banner.brlyt", base / file)
        (base / CONFIG).write_bytes(b"\\%s\r\n" % BANNER.replace("/", "\\").encode())
        runs = [(s, fault) for s in (Scenario(name, base, work) for name in SCENARIOS) for fault in s.faults()]
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count() * 2) as pool:
            wrong = [what for found in pool.map(lambda run: run[0].try_fault(*run[1]), runs) for what in found]
        wrong += [*two_at_once(base), *refused(base)]
    kinds = collections.Counter(fault[2].split("=")[0] for _, fault in runs)
    print("%d signals, half of them kills, and %d failures" % (kinds["signal"], kinds["error"]))
    print("\n".join(wrong))
    return 1 if wrong or kinds["signal"] < 200 or kinds["error"] < 300 else 0


if __name__ == "__main__":
    sys.exit(main())
