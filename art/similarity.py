#!/usr/bin/python3
"""Tells whether the pieces can be told apart without colour, at half their size in the field.

Each piece is drawn with 45 by 45 pixels on two grounds, as dark and as light as the plates get behind a piece, and
looked at in four ways: in grey, which is its luminance, and as people with protanopia, deuteranopia and tritanopia
see it. The distance of two pieces in one of these is found so:

- Both are blurred a little (one pixel), as a glance at a small picture is: a thin line or a speck alone doesn't
  set two pieces apart.
- The difference of two pixels is that of CIELAB, made for even steps to the eye. Above CLEAR it counts no further:
  black on white is told apart no better than white on mid-grey, and a few glaring spots shall not make up for
  pictures that are alike elsewhere.
- The mean goes over what either piece covers. So outlines count, where a piece lies on the other's ground, and inner
  patterns and brightness do; empty ground doesn't make small pieces look alike.
- One picture is moved against the other by up to REACH pixels in each direction and the least mean holds: where in
  its cell a piece stands says little.

A pair's distance is the least of the four ways and the two grounds. It must not lie below QUARTILE.
"""
import argparse
import csv
import sys
import textwrap
from itertools import combinations
from pathlib import Path

import numpy as np
from PIL import Image

SIZE, MARGIN, REACH, CLEAR = 45, 4, 2, 40
GROUNDS = (18, 64)      # the plates' brightness lies between these, but for a twentieth at either end
# The lower quartile and the least of all pairs as the pieces were drawn at commit 7a431ed, measured by this program:
# similarity.py --art FOLDER, with the art folder of that commit.
QUARTILE, LEAST_BEFORE, BEFORE = 13.87, 8.54, "7a431ed"

# For linear RGB and severity 1.0, from G. M. Machado, M. M. Oliveira, L. A. F. Fernandes: A Physiologically-based
# Model for Simulation of Color Vision Deficiency. IEEE Transactions on Visualization and Computer Graphics 15 (2009).
BLINDNESSES = {
    "protanopia": ((.152286, 1.052583, -.204868), (.114503, .786281, .099216), (-.003882, -.048116, 1.051998)),
    "deuteranopia": ((.367322, .860646, -.227968), (.280085, .672501, .047413), (-.011820, .042940, .968881)),
    "tritanopia": ((1.255528, -.076749, -.178779), (-.078411, .930809, .147602), (.004733, .691367, .303900)),
}
XYZ = np.array(((.4124564, .3575761, .1804375), (.2126729, .7151522, .0721750), (.0193339, .1191920, .9503041)))
WAYS = {"grey": np.tile(XYZ[1], (3, 1)), **{name: np.array(rows) for name, rows in BLINDNESSES.items()}}


def linear(colour):
    return np.where(colour <= .04045, colour / 12.92, ((colour + .055) / 1.055) ** 2.4)


def displayed(light):
    return np.where(light <= .0031308, light * 12.92, 1.055 * light ** (1 / 2.4) - .055)


def lab(light):
    t = light @ (XYZ / XYZ.sum(axis=1, keepdims=True)).T
    f = np.where(t > 216 / 24389, np.cbrt(t), (24389 / 27 * t + 16) / 116)
    return np.stack((116 * f[..., 1] - 16, 500 * (f[..., 0] - f[..., 1]), 200 * (f[..., 1] - f[..., 2])), axis=-1)


def blurred(picture):
    weights = np.exp(-np.arange(-3, 4) ** 2 / 2)
    weights /= weights.sum()
    for axis in (0, 1):
        picture = sum(w * np.roll(picture, k, axis) for k, w in zip(range(-3, 4), weights))
    return picture


def on_ground(icon, ground):
    """The light that comes from a piece on an even ground, and how much of each pixel it covers."""
    pixels = np.pad(np.asarray(icon) / 255, ((MARGIN, MARGIN), (MARGIN, MARGIN), (0, 0)))
    cover = pixels[..., 3:]
    return linear(pixels[..., :3]) * cover + linear(np.full(3, ground / 255)) * (1 - cover), cover[..., 0]


def seen(light, way):
    return (light @ WAYS[way].T).clip(0, 1)


def distance(one, other):
    """Of two pieces, each its CIELAB picture and its cover."""
    size, least = SIZE + 2 * MARGIN, CLEAR
    for dy in range(-REACH, REACH + 1):
        for dx in range(-REACH, REACH + 1):
            here = np.s_[max(0, dy):size + min(0, dy), max(0, dx):size + min(0, dx)]
            there = np.s_[max(0, -dy):size + min(0, -dy), max(0, -dx):size + min(0, -dx)]
            apart = np.sqrt(((one[0][here] - other[0][there]) ** 2).sum(axis=-1)).clip(0, CLEAR)
            cover = np.maximum(one[1][here], other[1][there])
            least = min(least, float((apart * cover).sum() / cover.sum()))
    return least


def measured(icons):
    """For each pair of names its distances in the four ways, nearest pair first."""
    table = {}
    for way in WAYS:
        for ground in GROUNDS:
            looks = {}
            for name, icon in icons.items():
                light, cover = on_ground(icon, ground)
                looks[name] = lab(seen(blurred(light), way)).astype(np.float32), cover.astype(np.float32)
            for pair in combinations(looks, 2):
                row = table.setdefault(pair, dict.fromkeys(WAYS, CLEAR))
                row[way] = min(row[way], distance(looks[pair[0]], looks[pair[1]]))
    return dict(sorted(table.items(), key=lambda entry: min(entry[1].values())))


def contact_sheet(icons):
    """One row in colour and one for each way."""
    rows = []
    for way in (None, *WAYS):
        lights = [on_ground(icon, 30)[0] for icon in icons.values()]
        rows.append(np.hstack([light if way is None else seen(light, way) for light in lights]))
    pixels = (displayed(np.vstack(rows)) * 255).round().astype(np.uint8)
    return Image.fromarray(pixels, "RGB").quantize(256, method=Image.Quantize.LIBIMAGEQUANT)


def write(path, icons, table, least):
    with open(path.with_suffix(".csv"), "w", encoding="ascii", newline="") as file:
        rows = csv.writer(file, lineterminator="\n")
        rows.writerow(("piece", "other", *WAYS, "least"))
        for pair, row in table.items():
            rows.writerow((*pair, *(f"{d:.2f}" for d in (*row.values(), min(row.values())))))
    contact_sheet(icons).save(path.with_suffix(".png"), optimize=True)
    lines = [
        "# Pieces told apart without colour", "",
        f"![The pieces in colour, grey, protanopia, deuteranopia and tritanopia]({path.stem}.png)", "",
        f"All {len(icons)} pictures of the pieces (a Calculator has two) at half their size; from the top in",
        "colour, in grey, and in simulated protanopia, deuteranopia and tritanopia. From the left:", "",
        *textwrap.wrap(", ".join(f"`{name}`" for name in icons) + ".", 100), "",
        "The distance of two pieces is the mean difference in CIELAB of their slightly blurred pictures, over",
        f"what either of them covers, where a difference above {CLEAR} counts as {CLEAR}, and with one moved by up to",
        f"{REACH} pixels to where it is least. Each pair is measured in grey and in the three simulations, on a",
        "dark and on a lighter ground; the least of these holds. `art/similarity.py` tells more.", "",
        f"Of all {len(table)} pairs:", "",
        f"| | as drawn at {BEFORE} | now |", "|---|---|---|",
        f"| closest pair | {LEAST_BEFORE} | {least[0]:.2f} |",
        f"| lower quartile | **{QUARTILE}** | {np.percentile(least, 25):.2f} |", "",
        f"No pair may be closer than {QUARTILE}, the lower quartile of old; CI checks it. The ten closest now:", "",
        "| pair | " + " | ".join(WAYS) + " |", "|---|" + "---|" * len(WAYS)]
    for pair, row in list(table.items())[:10]:
        lines.append(f"| {pair[0]}, {pair[1]} | " + " | ".join(f"{d:.2f}" for d in row.values()) + " |")
    lines += ["", f"All pairs are in [{path.stem}.csv]({path.stem}.csv). To measure again and to make this page:", "",
              f"    /usr/bin/python3 -B art/similarity.py --write docs/{path.name}", "",
              "It wants python3-cairo, python3-pil and python3-numpy, and ends with status 1 when a pair is too close."]
    path.write_text("\n".join(lines) + "\n", encoding="ascii")


def main():
    here = Path(__file__).resolve().parent
    parser = argparse.ArgumentParser(description="Measures how well the pieces are told apart without colour.")
    parser.add_argument("--write", type=Path, metavar="PAGE", help="write this page, its table and its picture")
    parser.add_argument("--art", type=Path, default=here, metavar="FOLDER", help="measure the drawings of this folder")
    options = parser.parse_args()
    sys.path.insert(0, str(options.art))
    from pictures import pieces
    from pictures.canvas import draw_icon

    icons = {name: draw_icon(draw, SIZE) for name, draw in pieces.PIECES.items()}
    table = measured(icons)
    least = [min(row.values()) for row in table.values()]
    if options.write:
        write(options.write, icons, table, least)
    for pair, d in zip(table, least):
        if d < QUARTILE or d in least[:10]:
            print(f"{d:6.2f}  {', '.join(pair)}")
    close = sum(d < QUARTILE for d in least)
    print(f"{len(least)} pairs: least {least[0]:.2f}, lower quartile {np.percentile(least, 25):.2f}; "
          f"{close} closer than {QUARTILE}")
    return 1 if close else 0


if __name__ == "__main__":
    sys.exit(main())
