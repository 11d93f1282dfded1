"""The loading screen, and what it shares with the menu: the dark ground and the name of the game."""
import math
import random
import cairo
from . import creatures, pieces
from .canvas import DENSITY, Canvas, in_few_colours
from .glyphs import lettering, text_width
from .shapes import circle, ellipse, fill, rgb, stroke

NIGHT, AMBER = rgb("141b30"), rgb("ffb52e")


def backdrop(ctx, width, height, x, y, glow):
    """Dark ground with one soft light centred on (x, y)."""
    shade = cairo.RadialGradient(x, y, 0, x, y, max(width, height) * .72)
    shade.add_color_stop_rgb(0, *glow)
    shade.add_color_stop_rgb(.45, *NIGHT)
    shade.add_color_stop_rgb(1, .025, .03, .06)
    ctx.set_source(shade)
    ctx.rectangle(0, 0, width, height)
    ctx.fill()


def logo(ctx, middle, y, unit, kern={}):
    """The name of the game, each letter in a colour of its own, with its shadow."""
    colours = [creatures.RED, rgb("4a8cff"), rgb("3ec46a"), creatures.YELLOW, rgb("f08a2a"), rgb("b07af0")]
    weight, outline = unit * 34 / 24, unit / 24
    left = middle - text_width("GLONKS", unit, weight, unit, kern) / 2
    ctx.save()
    ctx.translate(unit * 8 / 24, unit * 10 / 24)
    lettering(ctx, "GLONKS", left, y, unit, weight, [rgb("05070d")], 9 * outline, unit, kern)
    ctx.restore()
    lettering(ctx, "GLONKS", left, y, unit, weight, colours, 8 * outline, unit, kern)


def loading():
    canvas = Canvas(1024, 768, 2, DENSITY)
    ctx = canvas.ctx
    backdrop(ctx, 1024, 768, 540, 430, rgb("34508c"))
    rng = random.Random(3)
    for _ in range(60):
        x, y, r = rng.uniform(0, 1024), rng.uniform(120, 768), rng.uniform(8, 60)
        fill(ctx, circle(x, y, r), rgb("6ea8ff"), .035)
        stroke(ctx, circle(x, y, r), rgb("6ea8ff"), 1.5, .07)
    logo(ctx, 512, 168, 24)
    floor = ellipse(512, 700, 470, 52)
    fill(ctx, floor, (.01, .015, .03), .6)
    p = {**pieces.PIECES, **pieces.FRUIT}
    back = ["rock_01", "bauble", "slammer", "gorgon", "bowlingball", "calculator_01", "rock_03"]
    for i, name in enumerate(back):
        pieces.place(ctx, p[name], 92 + i * 122, 452 + 26 * ((i - 3) / 3) ** 2, 108, turn=(i - 3) * 3)
    front = ["bomb", "glonk_01", "glonk_02", "glonk_03", "glonk_04", "diamond"]
    for i, name in enumerate(front):
        pieces.place(ctx, p[name], 76 + i * 150, 566 - 14 * math.sin(i / 5 * math.pi), 138, turn=(-6, 5, -3, 4, -5, 6)[i])
    return in_few_colours(canvas.opaque(1.2))
