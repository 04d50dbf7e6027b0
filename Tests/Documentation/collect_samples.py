#!/usr/bin/env python3
"""Gathers the code samples of README.md and Documentation/*.md in one source, and checks the pages' links.

Usage: collect_samples.py PROJECT_ROOT OUTPUT.cpp. Every ```cpp block that begins with an #include counts: its includes
come first, the rest goes into a namespace of its own. Ends with 1 when a link or a picture leads to no file of the
project, or when the theme documents that the pages show whole aren't those of Documentation/Examples.
"""

import json
import re
import sys
from pathlib import Path

BLOCK = re.compile(r"^ *```(\w+)\n(.*?)^ *```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"!?\[[^\]]*\]\(([^)#\s]+)(?:#[^)]*)?\)")


def samples_of(page, text):
    for match in BLOCK.finditer(text):
        code = match.group(2)
        if match.group(1) == "cpp" and code.lstrip().startswith("#include"):
            yield page, text.count("\n", 0, match.start()) + 2, code


def source_of(samples):
    includes, bodies = [], []
    for number, (page, line, code) in enumerate(samples):
        lines = code.splitlines()
        includes += [line for line in lines if line.startswith("#include")]
        rest = ["" if line.startswith("#include") else line for line in lines]
        bodies.append("\n".join([f"namespace sample{number} {{", f'#line {line} "{page.as_posix()}"', *rest, "}"]))
    return "\n".join([*dict.fromkeys(includes), *bodies, ""])


def faults_of(page, text):
    for target in LINK.findall(BLOCK.sub("", text)):
        if "://" not in target and not (page.parent / target).exists():
            yield f"{page}: there is no {target}"
    for language, code in BLOCK.findall(text):
        if language == "json":
            try:
                json.loads(code)
            except ValueError as error:
                yield f"{page}: a sample isn't JSON: {error}"


def example_faults(root, texts):
    for example in sorted((root / "Documentation/Examples").glob("*.json")):
        if not any(example.read_text(encoding="utf-8") in text for text in texts):
            yield f"{example}: no page shows it as it is"


def main():
    root, output = Path(sys.argv[1]), Path(sys.argv[2])
    pages = [root / "README.md", *sorted((root / "Documentation").glob("*.md"))]
    texts = {page: page.read_text(encoding="utf-8") for page in pages}
    faults = [fault for page, text in texts.items() for fault in faults_of(page, text)]
    faults += example_faults(root, texts.values())
    for fault in faults:
        print(fault, file=sys.stderr)
    samples = [sample for page, text in texts.items() for sample in samples_of(page, text)]
    output.write_text(source_of(samples), encoding="utf-8")
    print(f"{len(pages)} pages, {len(samples)} samples, {len(faults)} faults")
    return 1 if faults or not samples else 0


if __name__ == "__main__":
    sys.exit(main())
