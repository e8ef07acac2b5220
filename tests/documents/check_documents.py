#!/usr/bin/env python3
# check_documents.py [--write] SOURCES PROGRAM-FOLDER [FOLDER...]: what the pages say is what the programs do. Runs each
# example of the manual, the messages page and the pages beside this file in a copy of the program folder, with what the
# other folders hold laid over it, and compares what it prints; option by option compares --help with the man pages and
# the manual, and the messages page with the messages in the sources. With --write the examples' outputs are put into the
# pages in place of being compared.
import difflib
import glob
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile

import jsonschema

USER_PAGES = ["docs/manual.md", "docs/messages.md"]
PROGRAMS = ["bannersmith", "bannersmith-edit", "bannersmith-window", "bannersmith-inspect", "bannersmith-render",
            "bannersmith-texture"]
# A text of three words or more (four without a capital), or one that ends in "!", is a message; what holds a line
# break or a | is none.
SENTENCE = re.compile(r'"((?=[^"]*!")[^"|\\n]*|[A-Z][\w\']*(?:,? [\w\'+.]+){2}[^"|]*|'
                      r' ?[a-z]+(?:,? [a-z]+){3}[^"|]*)"')


def read(*path):
    with open(os.path.join(*path), encoding="utf-8") as file:
        return file.read()


# The lines of a console block with what its commands print now.
def run_block(block, folder):
    lines = []
    for command in re.findall(r"^\$ (.*(?:\n>(?: .*)?)*)\n", block, re.M):
        done = subprocess.run(["bash", "-c", re.sub(r"\n> ?", "\n", command)], cwd=folder, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=60, env={**os.environ, "LC_ALL": "C.UTF-8"})
        lines += ["$ ", command, "\n", done.stdout.decode("utf-8").replace("\r\n", "\n").replace(folder, "/programs/bannersmith")]
    return "".join(lines)


# The options of --help by name, with their arguments; "-2, -3" are two.
def help_options(text):
    found = {name: "" for name in re.findall(r"(?<![\w-])--[a-z]+(?:-[a-z]+)*(?![\w\[-])", text)}
    for names, argument in re.findall(r"^  (-[^\s,]+(?:, -[^\s,]+)*)((?: (?:[A-Z]+|xxx))?) +", text, re.M):
        found.update({name: argument.strip().lower() for name in names.split(", ")})
    return found


def man_options(text):
    synopsis = re.search(r"\.Sh SYNOPSIS\n(.*?)\.Sh", text, re.S)[1]
    found = {"--" + name: "" for name in re.findall(r"(?<!\w)-([a-z]+(?:-[a-z]+)*)", synopsis)}
    for line in re.findall(r"^\.It (Fl .*)$", text, re.M):
        argument = re.search(r"Ar (\w+)|$", line)[1] or ""
        found.update({"-" + name: argument.lower() for name in re.findall(r"Fl (\S+)", line)})
    return found


# What the programs write as JSON is as the schema says.
def schema(sources, folder):
    definitions = json.loads(read(sources, "docs", "banner.schema.json"))
    samples = ["samples/channel/00000000.app", *glob.glob("samples/*/arc/blyt/*.brlyt", root_dir=folder)]
    for kind, command in (("inspection", ["./bannersmith-inspect", "--json"]),
                          ("outcome", ["./bannersmith-edit", "--json", "--dry-run", "--title-eng", "x"]),
                          ("row", ["./bannersmith-edit", "--export-recipe", "json"])):
        printed = subprocess.run(command + samples, cwd=folder, capture_output=True).stdout.decode()
        found = json.loads(printed if kind != "row" else "[" + ",".join(printed.splitlines()) + "]")
        assert len(found) == len(samples), "%d of %d are told as %s" % (len(found), len(samples), kind)
        for each in found:
            jsonschema.validate(each, {"$ref": "#/$defs/" + kind, "$defs": definitions["$defs"]})


def options(sources, folder, manual):
    for program in PROGRAMS:
        path = os.path.join(folder, program)
        if not os.path.exists(path):
            print("%s is not built: its man page is not compared" % program)
            continue
        shown = help_options(subprocess.run([path, "--help"], capture_output=True, check=True).stdout.decode())
        page = man_options(read(sources, "packaging", "man", program + ".1"))
        if program == "bannersmith-window":  # refers to bannersmith for the options
            shown = {name: argument for name, argument in shown.items() if name.startswith("--")}
        differing = sorted(shown.items() ^ page.items())
        assert not differing, "%s: --help and man page differ in %s" % (program, differing)
        for name in shown:
            typed = name.replace("xxx", "[A-Z]{3}").replace("BOX", r"\w+")
            typed = typed.replace("[-LANG]", "(-[a-z]{3})?").replace("-LANG", "-[a-z]{3}")
            assert re.search(r"^[$>] .*(?<![\w-])" + typed + r"(?![\w-])", manual, re.M), "no example of " + name


def messages(sources, page):
    listed = {message for cell in re.findall(r"^\| (`.*?`) \|", page, re.M) for message in cell.strip("`").split("`, `")}
    code = ""
    for at, _, names in os.walk(os.path.join(sources, "src")):
        if os.path.basename(at) != "desktop":  # the views have tooltips
            code += "".join(read(at, name) for name in names if re.search(r"(?<!usage)\.(cpp|h)$", name))
    code = re.sub(r"(?<!:)//.*|#include.*", "", code)
    code = re.sub(r'"\s*\n\s*"', "", code).replace('\\"', "'").replace("\\\\", "\\")  # literals in one piece
    said = {part.strip(" ':,") for text in SENTENCE.findall(code) for part in re.split("%[12]", text) if "\\n" not in text and "NTLG" not in text}
    assert len(said) > 25, "only %d messages are found in the sources" % len(said)
    for text in said:
        assert any(text in message for message in listed) or text.isupper(), "the messages page lacks: " + text
    for part in {part for each in listed for part in re.split(r'"?\b(?:NUMBER|NAME|REASON|FILE|FIELDS?|N)\b"?|\.\.\.', each)}:
        assert part.strip(" ':") in code, "no program says: " + part


def main():
    write = "--write" in sys.argv
    sources, *folders = [argument for argument in sys.argv[1:] if argument != "--write"]
    pages = USER_PAGES + glob.glob("tests/documents/*.md", root_dir=sources)
    assert len(pages) > len(USER_PAGES), "there are pages beside this file"
    with tempfile.TemporaryDirectory() as work:
        folder = os.path.join(work, "home of \u30d0\u30ca\u30fc")
        for page in pages:
            shutil.rmtree(folder, ignore_errors=True)
            for each in folders:
                shutil.copytree(each, folder, dirs_exist_ok=True)
            text = read(sources, page)
            now = re.sub(r"(?<=```console\n).*?(?=```)", lambda match: run_block(match[0], folder), text, flags=re.S)
            assert "\n```console\n" in text, "%s has no example" % page
            if write:
                with open(os.path.join(sources, page), "w", encoding="utf-8") as file:
                    file.write(now)
            changes = difflib.unified_diff(text.split("\n"), now.split("\n"), page, "what it prints now", n=9, lineterm="")
            assert write or now == text, "\n".join(changes)
        options(sources, folder, read(sources, "docs/manual.md"))
        schema(sources, folder)
        messages(sources, read(sources, "docs/messages.md"))


if __name__ == "__main__":
    main()
