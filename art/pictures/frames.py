"""The four frames that surround the field: one design, four moods."""
import math
import random
import numpy as np
from PIL import Image
from . import creatures, glyphs, pieces
from .canvas import DENSITY, Canvas, in_few_colours
from .shapes import box, circle, darker, fill, lighter, line, polygon, rgb, sloped, star, stroke

WIDTH, HEIGHT = 1024, 768
WINDOW = (81, 80, 934, 690)     # inclusive: the plate shows through here
ICON, ICON_SHIFT, ICON_MIDDLE = 32, 42, 42


def bubbles(ctx, rng, x, y, tint):
    r = rng.uniform(6, 24)
    stroke(ctx, circle(x, y, r), tint, 2, .16)
    fill(ctx, circle(x - r * .3, y - r * .3, r * .3), tint, .1)


def chevrons(ctx, rng, x, y, tint):
    r = rng.uniform(8, 18)
    stroke(ctx, line((x - r, y + r), (x, y), (x + r, y + r)), tint, 4, .15)


def hexagons(ctx, rng, x, y, tint):
    r = rng.choice((14, 22))
    hexagon = polygon([(x + r * math.cos(i * math.pi / 3), y + r * math.sin(i * math.pi / 3)) for i in range(6)])
    stroke(ctx, hexagon, tint, 2, .2)


def night_sky(ctx, rng, x, y, tint):
    fill(ctx, star(x, y, 4, rng.uniform(3, 9), 1.2), tint, rng.uniform(.25, .6))


def moon(ctx):
    ctx.new_path()
    ctx.arc(45, 45, 36, math.radians(50), math.radians(310))
    ctx.arc_negative(66, 45, 27.7, math.radians(274), math.radians(86))
    ctx.close_path()
    ctx.set_source_rgb(*rgb("f4e6a8"))
    ctx.fill()


GLONKS = list(creatures.GLONKS.values())
FRUIT = list(pieces.FRUIT.values())
COUNTED = [(795, pieces.money), (895, pieces.music)]
# Per frame: ground, accent, ornament, the figures of the right band, the counters' icons.
MOODS = {
    "frame": ("1c2740", "6ea8ff", bubbles, GLONKS + [pieces.diamond, pieces.bauble],
              [(300, pieces.slammer), (400, pieces.bomb), (500, pieces.detonator), (600, pieces.bowling_ball)]),
    "frameA": ("3a1a2c", "ff7f9d", chevrons, [pieces.calculator_plus, GLONKS[0], pieces.rock_round, GLONKS[2],
                                             pieces.shifter, pieces.calculator_minus], []),
    "frameB": ("12322f", "4fe0b0", hexagons, [pieces.b_type] + FRUIT + [pieces.b_type], [(300, pieces.b_type)]),
    "frameM": ("1d1740", "c9a6ff", night_sky, [moon] + [pieces.pin, pieces.bowling_ball] * 2 + [pieces.pin], []),
}


def lip(ctx, ground, accent):
    """The bevelled edge around the window."""
    x0, y0, x1, y1 = WINDOW
    for grow, colour, width in ((11.5, darker(ground, .75), 2), (9, lighter(ground, .1), 3), (5.5, darker(ground, .35), 5)):
        stroke(ctx, box(x0 - grow, y0 - grow, x1 - x0 + 2 * grow, y1 - y0 + 2 * grow, 10), colour, width)
    top_left = line((x0 - 9.5, y1 + 4), (x0 - 9.5, y0 - 3), (x0 - 3, y0 - 9.5), (x1 + 4, y0 - 9.5))
    stroke(ctx, top_left, lighter(ground, .45), 1.6, .8)
    stroke(ctx, box(x0 - 3, y0 - 3, x1 - x0 + 7, y1 - y0 + 7, 3), darker(accent, .45), 2)
    stroke(ctx, box(x0 - 1, y0 - 1, x1 - x0 + 3, y1 - y0 + 3), (.02, .02, .04), 2)


def goal_panel(ctx, ground):
    """Arcade's lines of goals: three of them reach down over the lip."""
    sloped(ctx, box(71, 17, 233, 63, 9), darker(ground, .82), darker(ground, .7), 2, lighter(ground, .2), diagonal=False)


SHEET_TOP, SHEET_MARKS, SHEET_BOTTOM = 8, 33, 62    # a roll's mark stands in the upper part, the total below
# Left and right edge of each frame of a game, and the edges of its rolls from the left one.
SHEET = [(84 + 68 * k, 84 + 68 * (k + 1), (24, 46, 68)) for k in range(9)] + [(696, 790, (28, 50, 72, 94))]


def score_sheet(ctx, ground, accent):
    """Ten empty frames of a bowling game, for white text."""
    rim, height = darker(accent, .42), SHEET_BOTTOM - SHEET_TOP
    left, right = SHEET[0][0], SHEET[-1][1]
    whole = box(left + .5, SHEET_TOP + .5, right - left - 1, height - 1, 4)
    sloped(ctx, whole, darker(ground, .35), darker(ground, .62), 0, diagonal=False)
    ctx.save()
    whole(ctx)
    ctx.clip()
    for x0, x1, rolls in SHEET:
        first = 0 if len(rolls) > 3 else 1      # the first roll has a square of its own in the last frame alone
        at, end = x0 + rolls[first], x0 + rolls[-1]
        fill(ctx, box(at, SHEET_TOP, end - at, SHEET_MARKS - SHEET_TOP), accent, .1)
        stroke(ctx, line((x0 + rolls[0] + .5, SHEET_TOP), (x0 + rolls[0] + .5, SHEET_MARKS)), accent, 1, .16)
        for x in rolls[first:-1]:
            stroke(ctx, line((x0 + x + .5, SHEET_TOP), (x0 + x + .5, SHEET_MARKS)), rim, 1)
        stroke(ctx, line((at + .5, SHEET_MARKS + .5), (end + .5, SHEET_MARKS + .5)), rim, 1)
        if x1 < right:
            stroke(ctx, line((x1 + .5, SHEET_TOP), (x1 + .5, SHEET_BOTTOM)), rim, 1)
    ctx.restore()
    stroke(ctx, whole, rim, 1)
    for k, (x, _, _) in enumerate(SHEET):
        glyphs.lettering(ctx, str(k + 1), x + 5, SHEET_TOP + 3, 1.1, 1.2, [darker(accent, .3)], 0, 1)


def frame(name):
    ground_text, accent_text, ornament, figures, counters = MOODS[name]
    ground, accent = rgb(ground_text), rgb(accent_text)
    rng = random.Random(name)
    canvas = Canvas(WIDTH, HEIGHT, 2, DENSITY)
    ctx = canvas.ctx
    sloped(ctx, box(0, 0, WIDTH, HEIGHT), lighter(ground, .06), darker(ground, .6), 0)
    for _ in range(46):     # right band and the right part of the bottom band
        ornament(ctx, rng, rng.uniform(945, 1020), rng.uniform(90, 760), accent)
        ornament(ctx, rng, rng.uniform(620, 1000), rng.uniform(708, 766), accent)
    for _ in range(14):
        ornament(ctx, rng, rng.uniform(4, 60), rng.uniform(90, 680), accent)
    for left, y, right, height in ((4, 4, 1020, 62), (66, 709, 600, 50)):   # wells for the lines of text
        well = box(left, y, right - left, height, 12)
        sloped(ctx, well, darker(ground, .78), darker(ground, .6), 2, lighter(ground, .14), diagonal=False)
    lip(ctx, ground, accent)
    if name == "frameA":
        goal_panel(ctx, ground)
    if name == "frameM":
        score_sheet(ctx, ground, accent)
    for i, draw in enumerate(figures):
        pieces.place(ctx, draw, 954, 100 + i * 98, 62, .62)
    for x, draw in counters + COUNTED:
        pieces.place(ctx, draw, x + ICON_SHIFT, ICON_MIDDLE - ICON / 2, ICON)
    stroke(ctx, box(1, 1, WIDTH - 2, HEIGHT - 2, 4), darker(ground, .8), 2)
    pixels = np.array(canvas.opaque(1.2).convert("RGBA"))
    x0, y0, x1, y1 = WINDOW
    pixels[DENSITY * y0:DENSITY * (y1 + 1), DENSITY * x0:DENSITY * (x1 + 1)] = 0
    return in_few_colours(Image.fromarray(pixels))
