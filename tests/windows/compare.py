#!/usr/bin/env python3
# compare.py LINUX-FOLDER WINDOWS-FOLDER HOLD-FILE: the programs for Windows, run with wine, write the same bytes as those
# for Linux, and do what only Windows asks of them. The first two are program folders, the last one hold-file.exe.
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

NEUTRAL = r"samples\all_languages_one_text\arc\blyt\banner.brlyt"
TWO = r"samples\german_japanese\arc\blyt\banner.brlyt"
SEVEN = r"samples\seven_languages\arc\blyt\banner.brlyt"

# On Windows an argument with a blank keeps the quotes that it had to be given in; Linux is given the text with them.
EDITS = [
    [SEVEN, "-TITLE", "Moon", "-YEAR", "1994", "-PLAY", "4", "-ESRB", "E10+"],
    [SEVEN, "-T_JPN", "月夜の手紙", "-COLOR", "Midnight", "-LOGO", "Comet.tpl"],
    [TWO, "-TITLE", "Two Words", "-YEAR", "19 94", "-PAD", "32"],
    ["\\" + NEUTRAL, "-TITLE", "Below", "-PAD", "0"],
    [SEVEN, "-PAD", "x"],
    [SEVEN, "-COLOR", "None"],
    ["none.brlyt", "-TITLE", "x"],
    ["-TITLE", "The last one used"],
]


def contents(folder):
    return {path.relative_to(folder): path.read_bytes() for part in ("samples", "schemes", "logos")
            for path in (folder / part).rglob("*") if path.is_file()}


# Status and messages of the program in the folder.
def run(folder, *arguments):
    program = ["wine", folder / "bannersmith.exe"] if (folder / "bannersmith.exe").exists() else [folder / "bannersmith"]
    done = subprocess.run([*program, *arguments], cwd=folder, capture_output=True, timeout=120)
    return done.returncode, done.stderr.decode("utf-8")


def same_edits(linux, windows):
    for arguments in EDITS:
        expected, _ = run(linux, *('"%s"' % each if " " in each else each for each in arguments))
        status, errors = run(windows, *arguments)
        assert status == expected, "status %d, not %d: %s" % (status, expected, arguments)
        assert (status == 0) == (errors == ""), "standard error of %s: %s" % (arguments, errors)
        assert contents(windows) == contents(linux), "the files after %s" % arguments


def same_pictures(linux, windows):
    for program in ([linux / "bannersmith-render"], ["wine", windows / "bannersmith-render.exe"]):
        subprocess.run([*program, "--language", "JPN", "-o", "samples", "samples/channel/00000000.app"],
                       cwd=pathlib.Path(program[-1]).parent, check=True, timeout=120)
    assert contents(windows) == contents(linux) and (windows / "samples/00000000.png").exists(), "a banner is drawn"


# A name outside ASCII, stored in the code page; a drive letter; a scheme in other letters.
def paths_of_windows(windows):
    full = windows.with_name("full.brlyt")
    drive = "Z:" + str(full).replace("/", "\\")
    for layout, typed, stored in ((windows / "samples/Café.brlyt", r"samples\Café.brlyt", b"\\samples\\Caf\xe9.brlyt"),
                                  (full, drive, drive.encode())):
        shutil.copy(windows / TWO.replace("\\", "/"), layout)
        status, errors = run(windows, typed, "-TITLE", "Full", "-COLOR", "midnight")
        assert status == 0 and "Full".encode("utf-16-be") in layout.read_bytes(), typed + ": " + errors
        assert (windows / "cfgs/vcinfopath.cfg").read_bytes().endswith(stored + b"\r\n"), typed + " is stored otherwise"
        layout.unlink()


def folder_outside_the_code_page(windows):
    folder = windows.with_name("バナー of mine")
    shutil.copytree(windows, folder)
    edit = [SEVEN, "-TITLE", "Anywhere", "-COLOR", "Lagoon", "-LOGO", "Waves.tpl"]
    status, errors = run(folder, *edit)
    assert status == 0, "a program folder with Japanese letters: " + errors
    configurations = [(each / "cfgs/vcinfopath.cfg").read_bytes() for each in (folder, windows)]
    assert configurations[0] == configurations[1], "a path outside the code page is not stored"
    run(windows, *edit)
    assert contents(folder) == contents(windows), "the files of a folder with Japanese letters"


def file_held_open(windows, hold):
    before = contents(windows)
    held = subprocess.Popen(["wine", hold, SEVEN], cwd=windows, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    assert held.stdout.readline().strip() == b"held", "hold-file holds the layout"
    status, errors = run(windows, SEVEN, "-TITLE", "Held", "-LOGO", "Waves.tpl")
    assert status == 1 and "banner.brlyt: " in errors, "a file that is held open: %d %s" % (status, errors)
    assert contents(windows) == before, "the files after the save of a held one"
    held.communicate(b"\n")
    assert run(windows, SEVEN, "-TITLE", "Held")[0] == 0, "the save after the file was let go"


# The window is opened, typed into, and saves, with the keys of a person, what a batch run of Linux does.
def window_saves(linux, windows):
    edit = [SEVEN, "-TITLE", "Typed in a window"]
    assert run(linux, *edit)[0] == 0
    keys = r"""
        wineserver -k  # what ran before knows of no display
        wine bannersmith-window.exe --open '%s' &
        for try in $(seq 120); do
            window=$(xdotool search --name banner.brlyt) && break
            sleep 0.5
        done
        xdotool sleep 3 windowfocus $window key alt+n key ctrl+a type "Typed in a window"
        xdotool sleep 1 key Tab Tab Tab space sleep 1 key ctrl+s sleep 3
        wineserver -k
        wait
    """ % SEVEN
    subprocess.run(["xvfb-run", "-a", "sh", "-c", keys], cwd=windows, capture_output=True, timeout=180)
    assert contents(windows) == contents(linux), "what the window saved"


def main():
    os.environ.setdefault("WINEDEBUG", "-all")
    with tempfile.TemporaryDirectory() as work:
        os.environ["WINEPREFIX"] = os.path.join(work, "prefix")
        subprocess.run(["wine", "wineboot", "-i"], check=True, capture_output=True, timeout=300)
        linux, windows = pathlib.Path(work, "linux"), pathlib.Path(work, "windows é")
        shutil.copytree(sys.argv[1], linux)
        shutil.copytree(sys.argv[2], windows)
        assert len(contents(linux)) > 20 and contents(windows) == contents(linux), "the samples, schemes and logos"
        try:
            same_edits(linux, windows)
            same_pictures(linux, windows)
            window_saves(linux, windows)
            paths_of_windows(windows)
            folder_outside_the_code_page(windows)
            file_held_open(windows, os.path.abspath(sys.argv[3]))
        finally:
            subprocess.run(["wineserver", "-k"], check=False)


if __name__ == "__main__":
    main()
