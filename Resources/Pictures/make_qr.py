#!/usr/bin/env python3
"""Draws the QR pictures QRCode/ios.svg and QRCode/android.svg anew.

Needs qrencode (on Debian: apt-get install qrencode). Run it without arguments after a change of ADDRESSES:

    Resources/Pictures/make_qr.py

The codes have error level M and a white quiet zone of 4 modules, so that they scan on a dark ground as well. A module
is a whole number of pixels wide, which keeps all edges crisp at single and at double resolution.
"""

import pathlib
import subprocess

ADDRESSES = {
    "ios": "https://example.com/get/ios",
    "android": "https://example.com/get/android",
}
MODULE_PIXELS = 3
QUIET_MODULES = 4


def modules(address):
    """The rows of the code as strings, "#" where a module is dark, without the quiet zone."""
    command = ["qrencode", "--type=ASCII", "--level=M", "--margin=0", "--output=-", address]
    text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    # The ASCII form doubles each module sideways.
    return [line[::2] for line in text.splitlines()]


def path(rows):
    """One outline for each run of dark modules in a row, in modules."""
    parts = []
    for y, row in enumerate(rows):
        x = 0
        while x < len(row):
            run = len(row[x:]) - len(row[x:].lstrip("#"))
            if run:
                parts.append(f"M{x} {y}h{run}v1h-{run}z")
            x += max(run, 1)
    return "".join(parts)


def picture(address):
    rows = modules(address)
    size = (len(rows) + 2 * QUIET_MODULES) * MODULE_PIXELS
    offset = QUIET_MODULES * MODULE_PIXELS
    return f"""<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 {size} {size}">
  <!-- {address}, drawn by make_qr.py -->
  <rect width="{size}" height="{size}" rx="4" fill="#ffffff"/>
  <path transform="translate({offset} {offset}) scale({MODULE_PIXELS})" fill="#000000" d="{path(rows)}"/>
</svg>
"""


def main():
    folder = pathlib.Path(__file__).resolve().parent / "QRCode"
    folder.mkdir(exist_ok=True)
    for name, address in ADDRESSES.items():
        (folder / f"{name}.svg").write_text(picture(address), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
