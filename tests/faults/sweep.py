#!/usr/bin/env python3
"""sweep.py PROGRAM-FOLDER TOOLS-FOLDER: kills the program before each of its file calls, interrupts it there by a signal
and makes each call fail, and looks at what is on disk afterwards; also with two runs at once.

PROGRAM-FOLDER: where bannersmith and the samples are. TOOLS-FOLDER: where save-scheme is. Needs strace, whose fault
injection does the work.
"""
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

BANNER = "samples/seven_languages/arc/blyt/banner.brlyt"
TEXTURE = "samples/seven_languages/arc/timg/my_Back_logo.tpl"
CHANNEL = "samples/channel/00000000.app"
CONFIG = "cfgs/vcinfopath.cfg"
ERRORS = ("ENOSPC", "EIO", "EACCES", "EDQUOT", "EINTR")
SIGNALS = ("INT", "TERM", "HUP", "QUIT")
STRACE = ("strace", "-qq", "-o")
# As on a card: no second names, no trade of places, no modes.
CARD = ("link,linkat:error=EPERM", "renameat2:error=EINVAL", "fchmod:error=EPERM")

# What is run in a copy of the folder, the files that it replaces, and what fails all along.
SCENARIOS = {
    "layout": (["./bannersmith", "-TITLE", "Swept", "-YEAR", "2001"], [BANNER], ()),
    "logo": (["./bannersmith", "-LOGO", "Comet.tpl", "-TITLE", "Swept"], [BANNER, TEXTURE], ()),
    "logo on a card": (["./bannersmith", "-LOGO", "Comet.tpl", "-TITLE", "Swept"], [BANNER, TEXTURE], CARD),
    "archive": (["./bannersmith", CHANNEL, "-LOGO", "Comet.tpl", "-TITLE", "Swept"], [CHANNEL, CONFIG], ()),
    "configuration": (["./bannersmith", BANNER, "-TITLE", "Swept"], [BANNER, CONFIG], ()),
    "new scheme": (["./save-scheme", "New"], ["schemes/New.vccs"], ()),
}


def contents(folder, files):
    """Each file's bytes, None where there is none."""
    return {file: (folder / file).read_bytes() if (folder / file).exists() else None for file in files}


def files_of(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}


def copy_file(source, target):
    """A program is linked: one that is being written cannot be run, and threads that start processes meanwhile would
    hand on the descriptor that it is written through."""
    (os.link if os.access(source, os.X_OK) else shutil.copy2)(source, target)


def run(folder, *command, wrapper=(), check=False):
    return subprocess.run([*wrapper, *command], cwd=folder, capture_output=True, timeout=60, check=check)


class Scenario:
    def __init__(self, name, base, work):
        self.name, (command, self.replaced, conditions) = name, SCENARIOS[name]
        self.conditions = [word for condition in conditions for word in ("-e", "inject=" + condition)]
        self.command, self.failing = command, {name for each in conditions for name in each.split(":")[0].split(",")}
        self.base, self.work = base, work
        self.old, self.clean = contents(base, self.replaced), self.copy("clean")
        trace = work / (name + ".trace")
        run(self.clean, *command, wrapper=(*STRACE, trace, "-e", "trace=%file,%desc", *self.conditions), check=True)
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

    def faults(self):
        """Each call by its name and its ordinal among those of the name, killed once and failing in each way."""
        seen, signals = collections.Counter(["execve"]), itertools.cycle(SIGNALS)
        for call in self.calls:
            seen[call] += 1
            yield call, seen[call], "signal=KILL"
            yield call, seen[call], "signal=" + next(signals)
            if call in self.failing:
                continue
            for error in ERRORS:
                yield call, seen[call], "error=" + error

    def run(self, fault):
        call, ordinal, effect = fault
        label = "%s_%d_%s" % (call, ordinal, effect)
        folder = self.copy(label)
        before = files_of(folder)
        fault = "inject=%s:%s:when=%d" % (call, effect, ordinal)
        if call in self.failing:
            fault = "inject=%s:%s" % (call, effect)  # each of them, as no call can be told to fail and to be killed
        done = run(folder, *self.command, wrapper=(*STRACE, "/dev/null", *self.conditions, "-e", fault))
        wrong = list(self.judge(folder, before, done, call, effect))
        shutil.rmtree(folder)
        return ["%s, %s: %s" % (self.name, label, what) for what in wrong]

    def judge(self, folder, before, done, call, effect):
        errors = done.stderr.decode()
        now = contents(folder, self.replaced)
        # The configuration holds the folder's path.
        new = {file: old.replace(bytes(self.clean), bytes(folder)) for file, old in self.new.items()}
        for file in self.replaced:
            if now[file] not in (self.old[file], new[file]):
                yield file + " is neither the old nor the new one"
        if effect == "signal=KILL":
            return
        if effect.startswith("signal="):
            if done.returncode != -signal.Signals["SIG" + effect[7:]]:
                yield "a signal ends it with %d" % done.returncode
            if len({now[file] == new[file] for file in self.replaced if file != CONFIG}) > 1:
                yield "a signal leaves one file new and one old"
        left = files_of(folder) - before - {*self.replaced}
        if left:
            yield "left behind: %s" % sorted(left)
        banner_files = [file for file in self.replaced if file != CONFIG]
        if done.returncode == 0 and any(now[file] != new[file] for file in banner_files):
            yield "says done, but is not"
        # On a card the last of the old files cannot come back when syncing fails.
        stays = self.conditions and call in ("fsync", "openat") and "Written, but not safe" in errors
        if done.returncode > 0 and not stays and any(now[file] != self.old[file] for file in banner_files):
            yield "says failed (%s), but a file is new" % errors.strip()
        if done.returncode > 0 and not re.search(r"^bannersmith: .+: .+$", errors, re.M):
            yield "no message: status %d, %r" % (done.returncode, errors)
        # Of the configuration, which nobody asked to have written, nothing is told.
        if done.returncode == 0 and call == "fsync" and effect != "error=EINTR" and CONFIG not in self.replaced:
            yield "says done, but it is not safe from a power failure"


def two_at_once(base):
    """Neither of two runs loses what the other wrote, whichever is first, nor takes its files away."""
    old = files_of(base)
    for number in range(150):
        commands = (["-T_ENG", "one%d" % number, "-LOGO", "Comet.tpl"], ["-T_GER", "two%d" % number],
                    ["-T_FRA", "none", "-LOGO", "Waves.tpl", "-PAD", "much"])
        runs = [subprocess.Popen(["./bannersmith", *command], cwd=base, stderr=subprocess.DEVNULL) for command in commands]
        statuses = [each.wait() for each in runs]
        layout = (base / BANNER).read_bytes().decode("utf-16-be", "replace")
        kept = ["%s%d" % (text, number) in layout for text in ("one", "two")]
        if statuses != [0, 0, 1] or not all(kept) or files_of(base) != old:
            yield "two runs at once: %s, %s, %s" % (statuses, kept, sorted(files_of(base) ^ old))
        if (base / TEXTURE).read_bytes() != (base / "logos/Comet.tpl").read_bytes():
            yield "two runs at once: another texture"


def held_elsewhere(base):
    """A folder that stays held is told in time."""
    before, start = contents(base, [BANNER]), time.monotonic()
    holder = os.open((base / BANNER).parent, os.O_RDONLY)
    fcntl.flock(holder, fcntl.LOCK_EX)
    done = run(base, "./bannersmith", "-TITLE", "Held")
    os.close(holder)
    if done.returncode != 1 or b"Another run of Bannersmith" not in done.stderr or contents(base, [BANNER]) != before:
        yield "held: status %d, %r" % (done.returncode, done.stderr)
    if not 5 < time.monotonic() - start < 20:
        yield "held: %d seconds" % (time.monotonic() - start)


def closed_pipe(base):
    """A message that nobody reads."""
    before = contents(base, [BANNER, TEXTURE])
    reader, writer = os.pipe()
    os.close(reader)
    done = subprocess.run(["./bannersmith", "-LOGO", "Waves.tpl", "-PAD", "much"], cwd=base, stderr=writer)
    os.close(writer)
    if done.returncode not in (1, -signal.SIGPIPE) or contents(base, [BANNER, TEXTURE]) != before:
        yield "closed pipe: status %d" % done.returncode


def main():
    program_folder, tools_folder = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        work, base = pathlib.Path(folder), pathlib.Path(folder, "base")
        shutil.copytree(program_folder, base, ignore=shutil.ignore_patterns("bannersmith-*"))
        shutil.copy(os.path.join(tools_folder, "save-scheme"), base)
        (base / CONFIG).write_bytes(b"\\%s\r\n" % BANNER.replace("/", "\\").encode())
        runs = [(s, fault) for s in (Scenario(name, base, work) for name in SCENARIOS) for fault in s.faults()]
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count() * 2) as pool:
            wrong = [what for found in pool.map(lambda run: run[0].run(run[1]), runs) for what in found]
        for test in (two_at_once, held_elsewhere, closed_pipe):
            wrong += test(base)
    kinds = collections.Counter(fault[2].split("=")[0] for _, fault in runs)
    print("%d signals, half of them kills, and %d failures" % (kinds["signal"], kinds["error"]))
    print("\n".join(wrong))
    return 1 if wrong or kinds["signal"] < 200 or kinds["error"] < 300 else 0


if __name__ == "__main__":
    sys.exit(main())
