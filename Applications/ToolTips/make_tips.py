#!/usr/bin/env python3
"""Draws the programs' animated tool tips and writes them beside this script.

    python3 Applications/ToolTips/make_tips.py

Needs Python alone. The pictures are in double resolution: 640 by 360 pixels, shown at 320 by 180. A display of
single resolution shows every second pixel, so edges are softened over two pixels instead of one.
"""

import math
from pathlib import Path

WIDTH, HEIGHT = 640, 360
SOFTNESS = 2.0
FRAME_TIME = 6  # hundredths of a second

# The photograph's colours from the darkest, a warm mask, and the white and accent of the tools.
SKY = ((52, 74, 108), (66, 92, 128), (84, 112, 146), (108, 134, 160), (140, 156, 168), (176, 176, 172))
SUN = (246, 214, 150)
FAR, MIDDLE, NEAR = (70, 92, 106), (48, 70, 76), (28, 44, 46)
MASK = (222, 62, 62)
WHITE = (240, 240, 240)
SHADE = (20, 20, 20)


def mix(below, above, amount):
    return tuple(b + (a - b) * amount for b, a in zip(below, above))


def cover(distance):
    """How much of a pixel a shape covers whose edge is so far away, negative inside."""
    return min(1.0, max(0.0, 0.5 - distance / SOFTNESS))


def ridge(x, base, *waves):
    return base + sum(height * math.sin(x / length + phase) for height, length, phase in waves)


def landscape():
    """Rows of pixels: a sky in bands, a low sun and three ranges of hills."""
    rows = []
    far = [ridge(x, 212, (26, 61, 0.4), (12, 23, 1.0)) for x in range(WIDTH)]
    middle = [ridge(x, 262, (24, 83, 2.2), (8, 31, 0.0)) for x in range(WIDTH)]
    near = [ridge(x, 318, (20, 107, 4.0), (5, 37, 2.0)) for x in range(WIDTH)]
    for y in range(HEIGHT):
        row = []
        for x in range(WIDTH):
            colour = SKY[min(len(SKY) - 1, y * len(SKY) // 216)]
            colour = mix(colour, SUN, cover(math.hypot(x - 452, y - 146) - 34))
            for line, hill in ((far[x], FAR), (middle[x], MIDDLE), (near[x], NEAR)):
                colour = mix(colour, hill, cover(line - y))
            row.append(colour)
        rows.append(row)
    return rows


def disc(image, centre, radius, colour, opacity=1.0, ring=0.0):
    """A filled circle, or a ring of that thickness."""
    reach = int(radius + ring + SOFTNESS) + 1
    for y in range(max(0, int(centre[1]) - reach), min(HEIGHT, int(centre[1]) + reach + 1)):
        for x in range(max(0, int(centre[0]) - reach), min(WIDTH, int(centre[0]) + reach + 1)):
            away = math.hypot(x + 0.5 - centre[0], y + 0.5 - centre[1]) - radius
            amount = opacity * cover(abs(away) - ring / 2 if ring else away)
            if amount:
                image[y][x] = mix(image[y][x], colour, amount)


def box(image, left, top, right, bottom, colour, opacity=1.0):
    for y in range(max(0, top), min(HEIGHT, bottom)):
        for x in range(max(0, left), min(WIDTH, right)):
            image[y][x] = mix(image[y][x], colour, opacity)


def copy(image):
    return [list(row) for row in image]


def ease(amount):
    return amount * amount * (3 - 2 * amount)


def brush_frames(photograph):
    """A brush paints a mask over the near hills, along one stroke to and fro."""
    radius, steps = 34, 44
    weight = [[0.0] * WIDTH for _ in range(HEIGHT)]
    frames = [(photograph, FRAME_TIME * 4)]
    for step in range(steps):
        # Several dabs to a frame, so that the stroke has smooth sides.
        for part in range(4):
            at = ease((step + part / 4) / steps)
            centre = (70 + 500 * at, 278 + 26 * math.sin(at * 9.5))
            for y in range(max(0, int(centre[1]) - 60), min(HEIGHT, int(centre[1]) + 60)):
                for x in range(max(0, int(centre[0]) - 60), min(WIDTH, int(centre[0]) + 60)):
                    away = math.hypot(x + 0.5 - centre[0], y + 0.5 - centre[1]) - radius
                    weight[y][x] = max(weight[y][x], cover(away))
        image = [[mix(pixel, MASK, 0.5 * amount) if amount else pixel for pixel, amount in zip(*rows)]
                 for rows in zip(photograph, weight)]
        still = copy(image) if step == steps - 1 else None
        disc(image, centre, radius, WHITE, 0.95, ring=3.2)
        disc(image, centre, 3.5, WHITE)
        frames.append((image, FRAME_TIME))
    frames.append((still, FRAME_TIME * 20))
    return frames


def crop_frames(photograph):
    """A crop frame is drawn by one corner; what lies outside goes dark, thirds show within."""
    steps = 26
    frames = [(photograph, FRAME_TIME * 5)]
    for step in range(1, steps + 1):
        at = ease(step / steps)
        left, top = 112, 64
        right, bottom = left + 40 + int(384 * at), top + 26 + int(222 * at)
        image = copy(photograph)
        for area in ((0, 0, WIDTH, top), (0, bottom, WIDTH, HEIGHT), (0, top, left, bottom),
                     (right, top, WIDTH, bottom)):
            box(image, *area, SHADE, 0.62)
        crop_handles(image, left, top, right, bottom)
        if step < steps:
            disc(image, (right, bottom), 9, WHITE, 1.0)
        frames.append((image, FRAME_TIME))
    frames[-1] = (frames[-1][0], FRAME_TIME * 22)
    return frames


def compare_frames(photograph):
    """A line goes to and fro between the photograph and a brighter, warmer form of it."""
    steps = 34
    after = [[tuple(min(255.0, channel * gain) for channel, gain in zip(pixel, (1.45, 1.25, 1.0)))
              for pixel in row] for row in photograph]
    frames = []
    for step in range(steps):
        line = 320 + 2 * int(90 * math.sin(step / steps * 2 * math.pi))
        image = [before[:line] + changed[line:] for before, changed in zip(photograph, after)]
        box(image, line - 2, 0, line + 2, HEIGHT, WHITE)
        disc(image, (line, HEIGHT // 2), 11, WHITE)
        frames.append((image, FRAME_TIME * (6 if step == 0 else 1)))
    return frames


def inspect_frames(photograph):
    """The sun's light and the nearest hills' shadow are marked, again and again."""
    marked = []
    for row in photograph:
        marked.append([(255, 50, 50) if sum(pixel) > 590 else (60, 110, 255) if sum(pixel) < 125 else pixel
                       for pixel in row])
    return [(photograph, FRAME_TIME * 12), (marked, FRAME_TIME * 16)]


def crop_handles(image, left, top, right, bottom):
    line, corner, reach = 2, 6, 30
    for third in (1, 2):
        x, y = left + (right - left) * third // 3 // 2 * 2, top + (bottom - top) * third // 3 // 2 * 2
        box(image, x, top, x + line, bottom, WHITE, 0.35)
        box(image, left, y, right, y + line, WHITE, 0.35)
    for x in (left, right - line):
        box(image, x, top, x + line, bottom, WHITE)
    for y in (top, bottom - line):
        box(image, left, y, right, y + line, WHITE)
    reach = min(reach, (right - left) // 2, (bottom - top) // 2)
    for x, inner in ((left - 4, left - 4), (right - corner + 4, right + 4 - reach)):
        for y, edge in ((top - 4, top - 4), (bottom + 4 - reach, bottom - corner + 4)):
            box(image, x, y, x + corner, y + reach, WHITE)
            box(image, inner, edge, inner + reach, edge + corner, WHITE)


def palette_of(frames, size):
    """The colours that the frames have most, in steps of eight, and a finder of the nearest one."""
    counts = {}
    for image, _ in frames[::3] + frames[-1:]:
        for row in image[::2]:
            for pixel in row:
                key = tuple(int(channel) >> 3 for channel in pixel)
                entry = counts.setdefault(key, [0, 0.0, 0.0, 0.0])
                entry[0] += 1
                for channel in range(3):
                    entry[channel + 1] += pixel[channel]
    ranked = sorted(counts.values(), reverse=True)[:size]
    colours = [tuple(round(total / entry[0]) for total in entry[1:]) for entry in ranked]
    known = {}

    def index_of(pixel):
        key = tuple(int(channel) for channel in pixel)
        if key not in known:
            known[key] = min(range(len(colours)), key=lambda index: sum(
                (one - other) ** 2 for one, other in zip(key, colours[index])))
        return known[key]

    return colours, index_of


def compressed(indices, bits):
    """GIF's form of LZW, in blocks of at most 255 bytes."""
    clear, end = 1 << bits, (1 << bits) + 1
    codes, width, out, buffer, filled = {}, bits + 1, bytearray(), 0, 0
    following = end + 1

    def put(code):
        nonlocal buffer, filled
        buffer |= code << filled
        filled += width
        while filled >= 8:
            out.append(buffer & 255)
            buffer >>= 8
            filled -= 8

    put(clear)
    prefix = indices[0]
    for index in indices[1:]:
        code = codes.get((prefix, index))
        if code is not None:
            prefix = code
            continue
        put(prefix)
        if following < 4096:
            codes[prefix, index] = following
            # The reader learns each code one step later than the writer.
            if following == 1 << width and width < 12:
                width += 1
            following += 1
        else:
            put(clear)
            codes, width, following = {}, bits + 1, end + 1
        prefix = index
    put(prefix)
    put(end)
    if filled:
        out.append(buffer & 255)
    blocks = b"".join(bytes([len(out[at:at + 255])]) + out[at:at + 255] for at in range(0, len(out), 255))
    return bytes([bits]) + blocks + b"\0"


def word(number):
    return number.to_bytes(2, "little")


def frame_bytes(rows, former, delay, bits, clear_index):
    """One picture of the animation: the smallest box that changes, with what stays left transparent."""
    changed = [(x, y) for y in range(HEIGHT) for x in range(WIDTH)
               if former is None or rows[y][x] != former[y][x]] or [(0, 0)]
    left, top = min(x for x, _ in changed), min(y for _, y in changed)
    right, bottom = max(x for x, _ in changed) + 1, max(y for _, y in changed) + 1
    indices = [clear_index if former is not None and rows[y][x] == former[y][x] else rows[y][x]
               for y in range(top, bottom) for x in range(left, right)]
    control = b"\x21\xf9\x04" + bytes([0x04 | (former is not None)]) + word(delay) + bytes([clear_index, 0])
    place = b"\x2c" + word(left) + word(top) + word(right - left) + word(bottom - top) + b"\0"
    return control + place + compressed(indices, bits)


def write(path, frames, bits=7):
    colours, index_of = palette_of(frames, (1 << bits) - 1)
    clear_index = (1 << bits) - 1
    colours += [(0, 0, 0)] * ((1 << bits) - len(colours))
    data = b"GIF89a" + word(WIDTH) + word(HEIGHT) + bytes([0xf0 | bits - 1, 0, 0])
    data += b"".join(bytes(colour) for colour in colours)
    data += b"\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0"  # without end
    former = None
    for image, delay in frames:
        rows = [[index_of(pixel) for pixel in row] for row in image]
        data += frame_bytes(rows, former, delay, bits, clear_index)
        former = rows
    path.write_bytes(data + b"\x3b")
    print(f"{path.name}: {len(frames)} frames, {len(data) // 1024} KB")


def main():
    folder = Path(__file__).resolve().parent
    photograph = landscape()
    write(folder / "brush@2x.gif", brush_frames(photograph))
    write(folder / "crop@2x.gif", crop_frames(photograph))
    write(folder / "compare@2x.gif", compare_frames(photograph))
    write(folder / "inspect@2x.gif", inspect_frames(photograph))


if __name__ == "__main__":
    main()
