#!/usr/bin/env python3
"""shelf.py BUILD-FOLDER [MOST]: a recipe over 10 to MOST banners (10,000 unless given), each in a folder of its own,
beside a bare program that makes the same grouped safe copies and, up to 1,000, beside as many classic runs. On the disk
that the build folder is on. Prints the times, their ratios, and the peak memory."""
import os
import shutil
import subprocess
import sys
import tempfile
import time


def timed(command, folder):
    begin = time.perf_counter()
    subprocess.run(command, cwd=folder, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - begin


def main():
    build = os.path.abspath(sys.argv[1])
    most = int(sys.argv[2]) if len(sys.argv) > 2 else 10000
    with open(os.path.join(build, "pristine/samples/seven_languages/arc/blyt/banner.brlyt"), "rb") as file:
        banner = file.read().ljust(12000, b"\0")
    print("%8s %12s %12s %12s %7s %7s %10s" % ("banners", "recipe", "bare", "classic", "/bare", "classic/", "peak KiB"))
    for count in (10, 100, 1000, 10000):
        if count > most:
            break
        with tempfile.TemporaryDirectory(dir=build) as folder:
            shutil.copytree(os.path.join(build, "program"), folder, dirs_exist_ok=True)
            for name in ("grouped_limit", "peak"):
                shutil.copy(os.path.join(build, "bench", name), folder)
            names = ["shelf/%05d/banner.brlyt" % i for i in range(count)]
            for name in names:
                os.makedirs(os.path.join(folder, os.path.dirname(name)))
                with open(os.path.join(folder, name), "wb") as file:
                    file.write(banner)
            os.sync()
            recipes = []
            for run in range(2):
                recipes.append("recipe%d.csv" % run)
                with open(os.path.join(folder, recipes[run]), "w") as file:
                    file.write("banner,title,year\n")
                    file.writelines("%s,Game %d of %d,%d\n" % (name, i, run, 1980 + run) for i, name in enumerate(names))
            bare = timed(["./grouped_limit", *names], folder)
            recipe = timed(["./bannersmith-edit", "--quiet", "--recipe", recipes[0]], folder)
            peak = subprocess.run(["./peak", "./bannersmith-edit", "--quiet", "--recipe", recipes[1]], cwd=folder, check=True,
                                  capture_output=True).stdout.decode().strip()
            classic = 0
            if count <= 1000:
                classic = sum(timed(["./bannersmith", name, "-TITLE", "Game", "-YEAR", "1990"], folder) for name in names)
            print("%8d %10.3f s %10.3f s %10.3f s %7.2f %7.1f %10s" % (count, recipe, bare, classic, recipe / bare,
                                                                      classic / recipe, peak))


if __name__ == "__main__":
    main()
