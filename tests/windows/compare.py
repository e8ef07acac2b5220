#!/usr/bin/env python3
"""compare.py LINUX-FOLDER WINDOWS-FOLDER HOLD-FILE: the programs for Windows, run with wine, write the same bytes as those
for Linux, and do what only Windows asks of them. The first two are program folders, the last one hold-file.exe."""
import os
import shutil
import subprocess
import sys
import tempfile

NEUTRAL = r"samples\all_languages_one_text\arc\blyt\banner.brlyt"
TWO = r"samples\german_japanese\arc\blyt\banner.brlyt"
SEVEN = r"samples\seven_languages\arc\blyt\banner.brlyt"

# Arguments, and the command-line text that Linux makes of them: on Windows an argument with a blank keeps the quotes
# that it had to be given in.
EDITS = [
    ([SEVEN, "-TITLE", "Moon", "-YEAR", "1994", "-PLAY", "4", "-ESRB", "E10+"], None),
    ([SEVEN, "-T_JPN", "月夜の手紙", "-COLOR", "Midnight", "-LOGO", "Comet.tpl"], None),
    ([TWO, "-TITLE", "Two Words", "-YEAR", "19 94", "-PAD", "32"],
     [TWO, "-TITLE", '"Two Words"', "-YEAR", '"19 94"', "-PAD", "32"]),
    (["\\" + NEUTRAL, "-TITLE", "Below", "-PAD", "0"], None),
    ([SEVEN, "-PAD", "x"], None),
    ([SEVEN, "-COLOR", "None"], None),
    (["none.brlyt", "-TITLE", "x"], None),
    (["-TITLE", "The last one used"], ["-TITLE", '"The last one used"']),
]
failures = []


def check(holds, what):
    if not holds:
        failures.append(what)
        print("FAILED:", what)


def contents(folder):
    found = {}
    for at, _, names in os.walk(folder):
        for name in names:
            if os.path.relpath(at, folder).split(os.sep)[0] not in ("samples", "schemes", "logos"):
                continue
            with open(os.path.join(at, name), "rb") as file:
                found[os.path.relpath(os.path.join(at, name), folder)] = file.read()
    return found


def run(folder, program, arguments):
    done = subprocess.run([*program, *arguments], cwd=folder, capture_output=True, timeout=120)
    return done.returncode, done.stderr.decode("utf-8")


class Builds:
    def __init__(self, linux, windows, hold, work):
        self.hold = os.path.abspath(hold)
        self.linux, self.windows = os.path.join(work, "linux"), os.path.join(work, "windows é")
        shutil.copytree(linux, self.linux)
        shutil.copytree(windows, self.windows)

    def on_linux(self, *arguments):
        return run(self.linux, [os.path.join(self.linux, "bannersmith")], arguments)

    def on_windows(self, *arguments):
        return run(self.windows, ["wine", os.path.join(self.windows, "bannersmith.exe")], arguments)

    def configuration(self):
        with open(os.path.join(self.windows, "cfgs", "vcinfopath.cfg"), "rb") as file:
            return file.read()


def same_edits(builds):
    for arguments, text in EDITS:
        expected, _ = builds.on_linux(*(text or arguments))
        status, errors = builds.on_windows(*arguments)
        check(status == expected, "status %d, not %d: %s" % (status, expected, arguments))
        check((status == 0) == (errors == ""), "standard error of %s: %s" % (arguments, errors))
        check(contents(builds.windows) == contents(builds.linux), "the files after %s" % arguments)


def paths_of_windows(builds):
    layout = os.path.join(os.path.dirname(builds.windows), "full.brlyt")
    shutil.copy(os.path.join(builds.windows, TWO.replace("\\", "/")), layout)
    path = "Z:" + layout.replace("/", "\\")
    status, errors = builds.on_windows(path, "-TITLE", "Full", "-COLOR", "midnight")
    with open(layout, "rb") as file:
        check("Full".encode("utf-16-be") in file.read(), "the layout at a path with a drive letter")
    check(status == 0, "a path with a drive letter, a scheme in other letters: " + errors)
    check(builds.configuration() == path.encode() + b"\r\n", "the drive letter in the configuration")


def code_page(builds):
    layout = os.path.join(builds.windows, "samples", "Café.brlyt")
    shutil.copy(os.path.join(builds.windows, TWO.replace("\\", "/")), layout)
    status, errors = builds.on_windows(r"samples\Café.brlyt", "-TITLE", "Coffee")
    check(status == 0, "a name outside ASCII: " + errors)
    check(builds.configuration().endswith(b"\\samples\\Caf\xe9.brlyt\r\n"), "the configuration's code page")
    os.remove(layout)


def folder_outside_the_code_page(builds):
    folder = os.path.join(os.path.dirname(builds.windows), "バナー of mine")
    shutil.copytree(builds.windows, folder)
    edit = [SEVEN, "-TITLE", "Anywhere", "-COLOR", "Lagoon", "-LOGO", "Waves.tpl"]
    status, errors = run(folder, ["wine", os.path.join(folder, "bannersmith.exe")], edit)
    check(status == 0, "a program folder with Japanese letters: " + errors)
    with open(os.path.join(folder, "cfgs", "vcinfopath.cfg"), "rb") as file:
        check(file.read() == builds.configuration(), "a path outside the code page is not stored")
    builds.on_windows(*edit)
    check(contents(folder) == contents(builds.windows), "the files of a folder with Japanese letters")


def file_held_open(builds):
    layout = os.path.join(builds.windows, SEVEN.replace("\\", "/"))
    before = contents(builds.windows)
    held = subprocess.Popen(["wine", builds.hold, os.path.relpath(layout, builds.windows)], cwd=builds.windows,
                            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    check(held.stdout.readline().strip() == b"held", "hold-file holds the layout")
    status, errors = builds.on_windows(SEVEN, "-TITLE", "Held", "-LOGO", "Waves.tpl")
    check(status == 1 and "banner.brlyt: " in errors, "a file that is held open: %d %s" % (status, errors))
    after = contents(builds.windows)
    changed = [name for name in {*before, *after} if before.get(name) != after.get(name)]
    check(not changed, "after the save of a held file: %s" % changed)
    held.communicate(b"\n")
    check(builds.on_windows(SEVEN, "-TITLE", "Held")[0] == 0, "the save after the file was let go")


def main():
    os.environ.setdefault("WINEDEBUG", "-all")
    with tempfile.TemporaryDirectory() as work:
        os.environ["WINEPREFIX"] = os.path.join(work, "prefix")
        subprocess.run(["wine", "wineboot", "-i"], check=True, capture_output=True, timeout=300)
        builds = Builds(*sys.argv[1:], work)
        check(contents(builds.windows) == contents(builds.linux), "the samples, schemes and logos")
        check(len(contents(builds.linux)) > 20, "there are samples, schemes and logos")
        for test in (same_edits, paths_of_windows, code_page, folder_outside_the_code_page, file_held_open):
            test(builds)
        subprocess.run(["wineserver", "-k"], check=False)
    print("%d edits compared, %d failures" % (len(EDITS), len(failures)))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
