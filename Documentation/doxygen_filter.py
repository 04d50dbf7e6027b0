#!/usr/bin/env python3
"""Shows Doxygen the plain comments of a header as documentation. Doxygen's INPUT_FILTER.

Usage: doxygen_filter.py FILE. Prints the file with these changes; files other than headers come out as they are.

- The comment at the head documents the class that bears the file's name, or else the file.
- A comment above declarations documents each of them, up to the next empty line.
- A single line without a full stop above declarations is the heading of a section.
- A comment that stands alone within a class belongs to the class.
- A comment behind a declaration documents that one.
- Lines indented by four spaces and more are code.
"""

import re
import sys
from pathlib import Path

COMMENT = re.compile(r"^(\s*)//(?!/)\s?(.*)$")
TRAILING = re.compile(r"^(.*\S)\s+//(?!/)\s?(.*)$")
MACRO = re.compile(r"^\s*Q_[A-Z_]+(\(.*\))?\s*$")
ACCESS = re.compile(r"^\s*(public|protected|private|signals|(public|protected|private) slots)\s*:\s*$")
# What opens a scope with declarations of its own; forward declarations don't.
SCOPE = re.compile(r"""^\s*(?:typedef\s+)?(?:
    (?P<kind>class|struct|enum)\b(?:\s+\w+_EXPORT)?(?:\s+(?P<name>\w+))?(?!.*;) |
    (?P<space>namespace\b|extern\s"C").*\{)""", re.VERBOSE)
# What Doxygen or Markdown would take for more than text.
SPECIAL = re.compile(r"[\\@#<>%&*_`~$]")


def markdown(lines):
    """The text of a comment with its code set apart and all else as it stands."""
    result = []
    in_code = False
    for number, line in enumerate(lines):
        if not line.strip() and in_code:
            following = [later for later in lines[number:] if later.strip()]
            if following and following[0].startswith("    "):
                result.append("")
                continue
        is_code = line.startswith("    ")
        if is_code != in_code:
            result.append("\\code{.cpp}" if is_code else "\\endcode")
            in_code = is_code
        result.append(line[4:] if is_code else SPECIAL.sub(r"\\\g<0>", line).replace(r"\_", "_"))
    if in_code:
        result.append("\\endcode")
    return result


def block(indent, lines):
    return [f"{indent}/// {line}".rstrip() for line in lines]


def is_heading(lines):
    return len(lines) == 1 and not lines[0].endswith((".", ":", ",", ";"))


class Header:
    def __init__(self, name, text):
        self.stem = Path(name).stem
        self.file_name = Path(name).name
        self.lines = text.splitlines()
        self.result = []
        self.depth = 0         # of all brackets
        self.scopes = []       # (kind, name, depth within) of what a line stands in
        self.next_scope = None # one whose bracket is yet to come
        self.doc = None        # comment of the present run of declarations
        self.in_section = False
        self.is_begun = False  # a declaration goes on from the line before
        self.head_end = 0      # where in the result the class's own documentation ends
        self.head_more = []    # what comes from within the class to be added there

    def is_in(self, *kinds):
        return bool(self.scopes) and self.scopes[-1][0] in kinds

    def has_own_class(self):
        return any(scope and scope["name"] == self.stem for scope in map(SCOPE.match, self.lines))

    def head(self, comment):
        if self.has_own_class():
            self.result += block("", [f"\\class {self.stem}"] + markdown(comment))
            self.head_end = len(self.result)
            self.result += ["", f"/// \\file {self.file_name}", f"/// Declares {self.stem}.", ""]
        else:
            self.result += block("", [f"\\file {self.file_name}"] + markdown(comment))

    def comment(self, indent, lines, is_alone):
        if self.is_in("enum"):
            self.result += block(indent, markdown(lines))
        elif is_alone:
            # Not as a block of its own: Doxygen would put the first sentence of each before the rest of all.
            if self.is_in("class", "struct") and self.scopes[-1][1] == self.stem:
                self.head_more += block("", ["", *markdown(lines)])
        elif is_heading(lines):
            self.result += [f"{indent}/// \\name {lines[0]}", f"{indent}///@{{"]
            self.in_section = True
        else:
            self.doc = markdown(lines)

    def end_run(self):
        self.doc = None
        if self.in_section:
            self.result.append("///@}")
            self.in_section = False

    def code(self, line):
        trailing = TRAILING.match(line)
        code = trailing.group(1) if trailing else line
        if ACCESS.match(code):
            self.result.append(code)
            return
        if not self.is_begun and self.doc and not self.is_in("enum") and not MACRO.match(code):
            if not code.strip().startswith(("}", "#")):
                indent = line[: len(line) - len(line.lstrip())]
                self.result += block(indent, self.doc)
        self.track(code)
        if trailing and re.search(r"[,;{}=\w)]$", code):
            text = " ".join(markdown([trailing.group(2)]))
            self.result.append(f"{code} ///< {text}" if not code.endswith("{") else code)
        else:
            self.result.append(line)

    def track(self, code):
        """Follows brackets, and with them where scopes and declarations begin and end."""
        plain = re.sub(r'"(\\.|[^"\\])*"', '""', code).strip()
        scope = None if self.is_begun else SCOPE.match(code)
        if scope:
            self.next_scope = (scope["kind"] or "namespace", scope["name"])
        opened = False
        for character in plain:
            if character in "({[":
                self.depth += 1
                if character == "{" and self.next_scope:
                    self.scopes.append((*self.next_scope, self.depth))
                    self.next_scope, opened = None, True
            elif character in ")}]":
                if self.scopes and self.scopes[-1][2] == self.depth:
                    self.scopes.pop()
                self.depth -= 1
        outer = self.scopes[-1][2] if self.scopes else 0
        is_done = opened or plain.endswith((";", "}")) and self.depth <= outer
        self.is_begun = bool(plain) and not is_done and not MACRO.match(code) and not plain.startswith("#")

    def run(self):
        number = 0
        seen_head = False
        while number < len(self.lines):
            line = self.lines[number]
            match = COMMENT.match(line)
            if not match:
                if not line.strip():
                    self.end_run()
                    self.result.append(line)
                else:
                    self.code(line)
                number += 1
                continue
            indent, comment = match.group(1), []
            while number < len(self.lines) and COMMENT.match(self.lines[number]):
                comment.append(COMMENT.match(self.lines[number]).group(2))
                number += 1
            is_alone = number >= len(self.lines) or not self.lines[number].strip()
            if not seen_head and not self.scopes and not self.is_begun:
                self.head(comment)
                seen_head = True
            elif self.is_begun and not self.is_in("enum"):
                self.result += [""] * len(comment)
            else:
                self.end_run()
                self.comment(indent, comment, is_alone)
        self.result[self.head_end : self.head_end] = self.head_more
        return "\n".join(self.result) + "\n"


def main():
    name = sys.argv[1]
    text = Path(name).read_text(encoding="utf-8")
    sys.stdout.reconfigure(encoding="utf-8", newline="\n")
    sys.stdout.write(Header(name, text).run() if name.endswith(".h") else text)


if __name__ == "__main__":
    main()
