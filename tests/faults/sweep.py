#!/usr/bin/env python3
"""sweep.py PROGRAM-FOLDER TOOLS-FOLDER: kills the program before each of its file calls and makes each call
fail, and looks at what is on disk afterwards.

PROGRAM-FOLDER: where bannersmith and the samples are. TOOLS-FOLDER: where operate is, which saves a scheme as a person
does. Needs strace, whose fault injection does the work.
"""
import collections
import concurrent.futures
import os
import re
import shutil
import subprocess
import sys
import tempfile

BANNER = "samples/seven_languages/arc/blyt/banner.brlyt"
TEXTURE = "samples/seven_languages/arc/timg/my_Back_logo.tpl"
LOGO = "logos/Comet.tpl"
CONFIG = "cfgs/vcinfopath.cfg"
SCHEME, NEW_SCHEME = "schemes/Swept.vccs", "schemes/New.vccs"
ERRORS = ("ENOSPC", "EIO", "EACCES", "EDQUOT", "EINTR")
CALLS = "%file,%desc"

# A layout that cannot be read would leave other colours to save.
SAVE_SCHEME = b"set txtSrc none\nclick cmdEditColor\nanswer %s\nclick colors.cmdSaveScheme\n"

# What is run in a copy of the folder, what it reads, the files that it replaces, and its status without a fault.
SCENARIOS = {
    "layout": (["./bannersmith", "-TITLE", "Swept", "-YEAR", "2001"], b"", [BANNER], 0),
    "logo": (["./bannersmith", "-LOGO", "Comet.tpl", "-TITLE", "Swept"], b"", [BANNER, TEXTURE], 0),
    "logo taken back": (["./bannersmith", "-LOGO", "Comet.tpl", "-PAD", "much"], b"", [BANNER, TEXTURE], 1),
    "configuration": (["./bannersmith", BANNER, "-PAD", "0"], b"", [BANNER, CONFIG], 0),
    "scheme": (["./operate"], SAVE_SCHEME % b"Swept", [SCHEME], 0),
    "new scheme": (["./operate"], SAVE_SCHEME % b"New", [NEW_SCHEME], 0),
}


def read(path):
    """The file's bytes, None where there is none."""
    if not os.path.exists(path):
        return None
    with open(path, "rb") as file:
        return file.read()


def files_of(folder):
    return {os.path.relpath(os.path.join(at, name), folder) for at, _, names in os.walk(folder) for name in names}


def copy_file(source, target):
    """A program is linked: one that is being written cannot be run, and threads that start processes meanwhile would
    hand on the descriptor that it is written through."""
    (os.link if os.access(source, os.X_OK) else shutil.copy2)(source, target)


class Scenario:
    def __init__(self, name, base, work):
        self.name, (self.command, self.input, self.replaced, status) = name, SCENARIOS[name]
        self.base, self.work = base, work
        self.old = {file: read(os.path.join(base, file)) for file in self.replaced}
        folder = self.copy("clean")
        trace = os.path.join(work, name + ".trace")
        done = subprocess.run(["strace", "-qq", "-o", trace, "-e", "trace=" + CALLS] + self.command, cwd=folder,
                              input=self.input, capture_output=True)
        assert done.returncode == status, done
        self.new = {file: read(os.path.join(folder, file)) for file in self.replaced}
        if TEXTURE in self.replaced:  # new for a moment also where it is taken back
            self.new[TEXTURE] = read(os.path.join(base, LOGO))
        self.clean = folder
        # The first call starts the program; the telling of what failed cannot be told when it fails itself.
        self.calls = re.findall(r"^(\w+)\((?!2, \"banner)", read(trace).decode("latin-1"), re.M)[1:]
        shutil.rmtree(folder)

    def copy(self, label):
        folder = os.path.join(self.work, self.name + "_" + label)
        shutil.copytree(self.base, folder, copy_function=copy_file)
        return folder

    def faults(self):
        """Each call by its name and its ordinal among those of the name, killed once and failing in each way."""
        seen = collections.Counter(["execve"])
        for call in self.calls:
            seen[call] += 1
            yield call, seen[call], "signal=KILL"
            for error in ERRORS:
                yield call, seen[call], "error=" + error

    def run(self, fault):
        call, ordinal, effect = fault
        label = "%s_%d_%s" % (call, ordinal, effect)
        folder = self.copy(label)
        before = files_of(folder)
        inject = "inject=%s:%s:when=%d" % (call, effect, ordinal)
        done = subprocess.run(["strace", "-qq", "-o", "/dev/null", "-e", inject] + self.command, cwd=folder,
                              input=self.input, capture_output=True, timeout=60)
        wrong = list(self.judge(folder, before, done, call, effect))
        shutil.rmtree(folder)
        return ["%s, %s: %s" % (self.name, label, what) for what in wrong]

    def judge(self, folder, before, done, call, effect):
        errors = done.stderr.decode()
        now = {file: read(os.path.join(folder, file)) for file in self.replaced}
        # The configuration holds the folder's path.
        new = {file: contents.replace(self.clean.encode(), folder.encode()) for file, contents in self.new.items()}
        for file in self.replaced:
            if now[file] not in (self.old[file], new[file]):
                yield file + " is neither the old nor the new one"
        if effect == "signal=KILL":
            return
        left = files_of(folder) - before - {*self.replaced}
        if left:
            yield "left behind: %s" % sorted(left)
        banner_files = [file for file in self.replaced if file != CONFIG]
        if done.returncode == 0 and any(now[file] != new[file] for file in banner_files):
            yield "says done, but is not"
        if done.returncode != 0 and any(now[file] != self.old[file] for file in banner_files):
            yield "says failed (%s), but a file is new" % errors.strip()
        if done.returncode != 0 and not re.search(r"^bannersmith: .+: .+$", errors, re.M):
            yield "no message: status %d, %r" % (done.returncode, errors)
        if done.returncode == 0 and call == "fsync" and effect != "error=EINTR":
            yield "says done, but it is not safe from a power failure"
        # Of the configuration, which nobody asked to have written, nothing is told.
        if call == "fchown" and self.name != "configuration" and "could not keep its owner" not in errors:
            yield "does not say that the owner is another one"


def without_links(base):
    """Where a file cannot have a second name, a copy of the old texture is kept, and comes back."""
    texture = os.path.join(base, TEXTURE)
    old, files = read(texture), files_of(base)
    for padding, status, wanted in (("much", 1, old), ("0", 0, read(os.path.join(base, LOGO)))):
        done = subprocess.run(["strace", "-qq", "-o", "/dev/null", "-e", "inject=link,linkat:error=EPERM", "./bannersmith",
                               "-LOGO", "Comet.tpl", "-PAD", padding], cwd=base, capture_output=True, timeout=60)
        if done.returncode != status or read(texture) != wanted or files_of(base) != files:
            yield "without links: status %d, %r, %s" % (done.returncode, done.stderr, sorted(files_of(base) - files))


def without_memory(base):
    """A layout for which memory lacks is told and left alone."""
    layout = os.path.join(base, "huge.brlyt")
    with open(layout, "wb") as file:
        file.write(b"RLYT")
        file.truncate(60 << 20)
    done = subprocess.run("ulimit -v 100000; ./bannersmith huge.brlyt -TITLE x", shell=True, cwd=base, capture_output=True)
    if done.returncode != 1 or not done.stderr.endswith(b"huge.brlyt: Not enough memory\n"):
        yield "without memory: status %d, %r" % (done.returncode, done.stderr)
    with open(os.path.join(base, CONFIG), "wb") as file:
        file.write(b"\\huge.brlyt\r\n")
    done = subprocess.run("ulimit -v 100000; ./operate", shell=True, cwd=base, input=b"show lblLoaded\nclick cmdSave\n",
                          capture_output=True)
    if b"lblLoaded: No layout loaded: Not enough memory\n" != done.stdout or b"huge.brlyt: Not enough" not in done.stderr:
        yield "a window without memory: status %d, %r, %r" % (done.returncode, done.stdout, done.stderr)
    if os.path.getsize(layout) != 60 << 20 or read(layout).count(0) != (60 << 20) - 4:
        yield "without memory: the layout was changed"


def main():
    program_folder, tools_folder = sys.argv[1:]
    with tempfile.TemporaryDirectory() as work:
        base = os.path.join(work, "base")
        shutil.copytree(program_folder, base, ignore=shutil.ignore_patterns("bannersmith-*"))
        shutil.copy(os.path.join(tools_folder, "operate"), base)
        with open(os.path.join(base, CONFIG), "wb") as file:
            file.write(("\\" + BANNER.replace("/", "\\") + "\r\n").encode())
        with open(os.path.join(base, SCHEME), "wb") as file:
            file.write(b" 0  0  0  0  0  0 \r\n" * 19)
        runs = [(s, fault) for s in (Scenario(name, base, work) for name in SCENARIOS) for fault in s.faults()]
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count() * 2) as pool:
            wrong = [what for found in pool.map(lambda run: run[0].run(run[1]), runs) for what in found]
        wrong += [*without_links(base), *without_memory(base)]
    kills = sum(fault[2] == "signal=KILL" for _, fault in runs)
    print("%d kills and %d failures" % (kills, len(runs) - kills))
    print("\n".join(wrong))
    return 1 if wrong or kills < 100 or len(runs) - kills < 300 else 0


if __name__ == "__main__":
    sys.exit(main())
