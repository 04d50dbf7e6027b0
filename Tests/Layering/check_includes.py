#!/usr/bin/env python3
"""Checks who includes whom.

Usage: check_includes.py PROJECT_ROOT. Prints one line for each include that points the wrong way, names no
folder or names no header, and then exits with 1.
"""

import re
import sys
from pathlib import Path

QUOTED = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
ANGLED = re.compile(r"^\s*#\s*include\s*<([^>]+)>", re.MULTILINE)
SOURCE_SUFFIXES = {".h", ".cpp", ".mm"}

PALETTES = r"Theme/Vantra\w*Palette\.h"

# For the files below Source/Common that the first expression matches: the headers of ours they may include.
# The first rule that matches a file counts. Headers of the sibling libraries are open to all.
RULES = [
    (r"VTWidgetsLiteExport\.h", ""),
    (r"Theme/VantraStyleTheme\w*\.cpp", r"(Theme|StyleOptions)/.*"),
    (r"Theme/.*", r"Theme/.*"),
    # A header of a derived control needs the header of its base; beyond that, only the palettes' words.
    (r"Controls/.*\.h", rf"{PALETTES}|Controls/.*"),
    (r"StyleOptions/.*", rf"{PALETTES}|(Controls|StyleOptions)/.*"),
    (r"Style/.*", r"(Theme|StyleOptions|Style)/.*"),
    # Pictures enter all controls by one door; a tool button also hands itself to the filter of the rich tips.
    (r"Controls/VantraToolButton\.cpp",
     r"(Theme|StyleOptions|Controls)/.*|Utilities/VTWidgetsImageUtils\.h|ToolTips/VantraToolTipFilter\.h"),
    (r"Controls/.*", r"(Theme|StyleOptions|Controls)/.*|Utilities/VTWidgetsImageUtils\.h"),
    (r"Utilities/.*", r"(Theme|StyleOptions|Controls|Utilities)/.*"),
    (r"ToolTips/.*", r"(Theme|StyleOptions|Controls|Utilities|ToolTips)/.*"),
    (r"Window/.*", r"(Theme|StyleOptions|Controls|Utilities|ToolTips|Window)/.*"),
    (r"Progress/.*", r"(Theme|StyleOptions|Controls|Utilities|ToolTips|Window|Progress)/.*"),
]

# What programs and plugins may not include, though the library's own sources may.
PRIVATE_HEADER = re.compile(r".*_p\.h|Style/(?!VantraStyle\.h).*")

# Stands beside the folders, as every header needs it.
EXPORT_HEADER = "VTWidgetsLiteExport.h"


def sources(folder):
    return sorted(path for path in folder.rglob("*") if path.suffix in SOURCE_SUFFIXES)


def common_faults(name, includes, headers):
    """Faults of one file of the library; name and headers are relative to Source/Common."""
    allowed = next((allowed for files, allowed in RULES if re.fullmatch(files, name)), None)
    if allowed is None:
        yield "no rule says what this file may include"
        return
    for include in includes & headers:
        if include != EXPORT_HEADER and not re.fullmatch(allowed, include):
            yield f'may not lean on "{include}"'


def platform_faults(includes, system_includes, headers):
    for include in includes & headers:
        yield f'a sibling library knows nothing of "{include}"'
    for include in system_includes:
        if include.startswith("QtWidgets"):
            yield f"a sibling library leans on Qt Core and Gui only, not on <{include}>"


def folder_faults(includes, files, headers):
    """Includes of the library's headers that leave out the folder, and those of files that don't exist."""
    by_name = {Path(header).name: header for header in headers}
    folders = {header.split("/")[0] for header in headers if "/" in header}
    for include in includes:
        if include in files:
            continue
        if include in by_name:
            yield f'"{include}" must be written "{by_name[include]}"'
        elif include.split("/")[0] in folders:
            yield f'there is no "{include}"'


def main():
    root = Path(sys.argv[1])
    common, platform = root / "Source/Common", root / "Source/Platform"
    files = {path.relative_to(common).as_posix() for path in sources(common)}
    headers = {name for name in files if name.endswith(".h")}
    checked = fault_count = 0
    for top in ("Source", "Applications", "Plugins", "Benchmarks", "Tests"):
        for path in sources(root / top):
            # A program outside the tree, which may leave the folder out.
            if path.is_relative_to(root / "Tests/Package/consumer"):
                continue
            text = path.read_text(encoding="utf-8")
            includes, system_includes = set(QUOTED.findall(text)), set(ANGLED.findall(text))
            faults = list(folder_faults(includes | system_includes, files, headers))
            if path.is_relative_to(common):
                faults += common_faults(path.relative_to(common).as_posix(), includes, headers)
            elif path.is_relative_to(platform):
                faults += platform_faults(includes, system_includes, headers)
            elif top in ("Applications", "Plugins"):
                faults += [f'"{include}" is private to the library' for include in includes
                           if PRIVATE_HEADER.fullmatch(include)]
            for fault in sorted(faults):
                print(f"{path.relative_to(root)}: {fault}")
            checked += 1
            fault_count += len(faults)
    print(f"{checked} files, {fault_count} faults")
    return 1 if fault_count or not checked else 0


if __name__ == "__main__":
    sys.exit(main())
