#!/usr/bin/env python3
# check_translations.py SOURCES: every text of the windows is translated into every language, with the same places for
# values, and no letter of the fixed captions and of the menus is there twice.
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

TAKEN = set("nyeprclogis")  # by the captions that stay as they are


def letter(text):
    found = re.search(r"&(\w)", text)
    return found.group(1).lower() if found else ""


def check(file):
    messages = {message.get("id"): message.find("translation") for message in ElementTree.parse(file).iter("message")}
    assert len(messages) > 200, file.name
    for text, translation in messages.items():
        where, said = "%s: %s" % (file.name, text), translation.text or ""
        assert said and translation.get("type") is None, where + " is not translated"
        assert sorted(re.findall("%[12]", said)) == sorted(re.findall("%[12]", text)), where + " has other values"
        assert said.endswith("...") == text.endswith("..."), where + " ends otherwise"
    titles = [letter(messages[title].text) for title in ("&File", "E&dit", "&View", "&Help")]
    assert len(set(titles)) == 4 and not TAKEN & set(titles), "%s: the letters of the menus %s" % (file.name, titles)


def main():
    sources = pathlib.Path(sys.argv[1])
    files = sorted((sources / "translations").glob("*.ts"))
    assert len(files) == 6, "the languages"
    for file in files:
        check(file)
    with tempfile.TemporaryDirectory() as copy:
        for file in files:
            shutil.copy(file, copy)
        subprocess.run([sources / "tools/translate", copy], check=True)
        for file in files:
            fresh = pathlib.Path(copy, file.name).read_bytes()
            assert fresh == file.read_bytes(), file.name + " lacks what the sources say: run tools/translate"


if __name__ == "__main__":
    main()
