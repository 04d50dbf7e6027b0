#!/usr/bin/env python3
"""Checks that the translations are complete and say all that the sources say.

Usage: check_translations.py [--lupdate PROGRAM] PROJECT_ROOT FOLDER=NAME...

For each pair, the texts of the sources in FOLDER are those of every NAME_*.ts. Without PROGRAM only the files
themselves are looked at. Prints one line for each fault, and then exits with 1.
"""

import argparse
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path

PLACE = re.compile(r"%L?\d+|%L?n")


def messages(file):
    """Each message of a file, by its context, source and comment."""
    return {(context.findtext("name"), message.findtext("source"), message.findtext("comment")): message
            for context in ElementTree.parse(file).iter("context") for message in context.iter("message")}


def message_faults(message):
    source, translation = message.findtext("source"), message.find("translation")
    if translation.get("type") is not None:
        yield f'is {translation.get("type")}'
        return
    plural = message.get("numerus") == "yes"
    forms = [form.text or "" for form in translation.iter("numerusform")] if plural else [translation.text or ""]
    if plural and len(forms) < 2:
        yield "lacks a form"
    for form in forms:
        if not form.strip():
            yield "is empty"
        # The form for a single thing may say its number in words.
        places = [Counter(place for place in PLACE.findall(text) if not (plural and place.endswith("n")))
                  for text in (source, form)]
        if places[0] != places[1]:
            yield f'has other places to fill: "{form}"'
        if source.endswith(" ") != form.endswith(" "):
            yield "ends otherwise"


def source_faults(lupdate, root, folder, file):
    with tempfile.TemporaryDirectory() as temporary:
        updated = Path(temporary) / file.name
        shutil.copy(file, updated)
        subprocess.run([lupdate, "-silent", "-locations", "none", root / folder, "-ts", updated], check=True)
        known = messages(file)
        for key, message in messages(updated).items():
            if key not in known:
                yield key, "is new: run the target update_translations"
            elif message.find("translation").get("type") in ("vanished", "obsolete"):
                yield key, "is no longer in the sources: run the target update_translations"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--lupdate")
    parser.add_argument("root", type=Path)
    parser.add_argument("pairs", nargs="+")
    arguments = parser.parse_args()
    message_count = fault_count = 0
    for pair in arguments.pairs:
        folder, name = pair.split("=")
        files = sorted((arguments.root / name).parent.glob(Path(name).name + "_*.ts"))
        if not files:
            print(f"{name}_*.ts: there is none")
            fault_count += 1
        for file in files:
            faults = [(key, fault) for key, message in messages(file).items() for fault in message_faults(message)]
            if arguments.lupdate:
                faults += source_faults(arguments.lupdate, arguments.root, folder, file)
            for (context, source, _), fault in faults:
                print(f'{file.relative_to(arguments.root)}: {context}: "{source}" {fault}')
            message_count += len(messages(file))
            fault_count += len(faults)
    print(f"{message_count} messages, {fault_count} faults")
    return 1 if fault_count or not message_count else 0


if __name__ == "__main__":
    sys.exit(main())
