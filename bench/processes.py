#!/usr/bin/env python3
"""processes.py BUILD-FOLDER [ROUNDS]: compares whole processes pair by pair, in alternating order in one run, and
prints the median of each and of the ratios. Needs a display for the windows (QT_QPA_PLATFORM=offscreen will do).
"""
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

BANNER = "samples/seven_languages/arc/blyt/banner.brlyt"


def once(command, folder):
    begin = time.perf_counter()
    subprocess.run(command, cwd=folder, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - begin


def peak(command, folder):
    """The peak memory of a process in KiB."""
    return int(subprocess.run(["./peak"] + command, cwd=folder, check=True, capture_output=True).stdout)


def compare(title, ours, other, folder, rounds, renew=lambda: None):
    times = ([], [])
    for i in range(rounds + 5):
        pair = [0, 0]
        for side in (0, 1) if i % 2 else (1, 0):
            renew()
            pair[side] = once((ours, other)[side], folder)
        if i >= 5:
            for side in (0, 1):
                times[side].append(pair[side])
    ratio = statistics.median(times[0]) / statistics.median(times[1])
    print("%-44s %8.2f ms / %8.2f ms = %.2f" % (title, statistics.median(times[0]) * 1e3,
                                               statistics.median(times[1]) * 1e3, ratio))


def main():
    build = os.path.abspath(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    bench = os.path.join(build, "bench")
    with tempfile.TemporaryDirectory(dir=build) as folder:
        shutil.copytree(os.path.join(build, "program"), folder, dirs_exist_ok=True)
        for name in ("limit", "empty", "peak"):
            shutil.copy(os.path.join(bench, name), folder)
        with open(os.path.join(folder, "cfgs/vcinfopath.cfg"), "wb") as file:
            file.write(("\\" + BANNER.replace("/", "\\") + "\r\n").encode())
        fields = ["./bannersmith", "-TITLE", "Name", "-YEAR", "1999", "-PLAY", "4", "-ESRB", "T", "-SYSTEM", "X",
                  "-T_GER", "Titel", "-Y_GER", "1998", "-E_GER", "E", "-PAD", "0"]
        limit = ["./limit", BANNER, os.path.dirname(BANNER)]
        for size in (64 << 10, 16 << 20):
            banner = subprocess.run([os.path.join(bench, "make-large-banner"), str(size), "40"], check=True,
                                    capture_output=True).stdout

            def renew():
                with open(os.path.join(folder, BANNER), "wb") as file:
                    file.write(banner)
                    os.fsync(file.fileno())  # what a run replaces has been on the disk for long

            if size < 1 << 20:
                compare("batch run, all fields, 64 KiB / limit", fields, limit, folder, rounds, renew)
            else:
                renew()
                more = peak(fields, folder) - peak(limit, folder)
                print("peak memory of a batch run above limit: %d KiB at %d KiB" % (more, size >> 10))
        channel = subprocess.run([os.path.join(bench, "make-large-banner"), "channel"], check=True,
                                 capture_output=True).stdout
        path = os.path.join(folder, "channel.app")

        def renew_channel():
            with open(path, "wb") as file:
                file.write(channel)
                os.fsync(file.fileno())

        compare("title in a channel of %d kB / limit" % (len(channel) // 1000),
                ["./bannersmith", "channel.app", "-TITLE", "Name"], ["./limit", "channel.app", "."], folder, rounds,
                renew_channel)
        compare("bannersmith --version / empty program", ["./bannersmith", "--version"], ["./empty"], folder, rounds)
        shutil.copy(os.path.join(build, "program", BANNER), os.path.join(folder, BANNER))
        window = os.path.join(bench, "first_window")
        if os.path.exists(window):
            shutil.copy(window, folder)
            os.environ["XDG_CONFIG_HOME"] = folder
            for other in ("empty", "text"):
                compare("first window / %s window" % other, ["./first_window", "editor"], ["./first_window", other],
                        folder, max(20, rounds // 5))


if __name__ == "__main__":
    main()
