"""What the menu's pictures are put together from, in the window's own logical pixels."""
import random
import cairo
from . import creatures, pieces
from .canvas import Canvas
from .glyphs import lettering, text_width
from .screens import AMBER, backdrop
from .shapes import box, circle, ellipse, fill, rgb, sloped, stroke

SCALE = 4               # picture pixels to a logical one
WINDOW = rgb("14161c")  # colour of the window around the pictures
PALE, BLUE, DIM, RIM, INK = rgb("cfe0ff"), rgb("6ea8ff"), rgb("9aa8c8"), rgb("31466f"), rgb("3a1c02")
GLONKS = list(creatures.GLONKS.values())
FEET = (88.5, 86.5, 87.5, 85.5)     # how far down each glonk reaches


def sheet(width, height):
    """A sheet in the window's colour."""
    canvas = Canvas(width * SCALE, height * SCALE, 2)
    canvas.ctx.scale(SCALE, SCALE)
    fill(canvas.ctx, box(0, 0, width, height), WINDOW)
    return canvas


def ground(width, height, seed, glow="27406e", light=(60, 20), rings=26):
    """A quiet dark sheet with thin rings along its edges."""
    canvas = sheet(width, height)
    ctx = canvas.ctx
    backdrop(ctx, width, height, *light, rgb(glow))
    rng = random.Random(seed)
    for _ in range(rings):
        x, y = rng.choice(((rng.uniform(0, 10), rng.uniform(0, height)),
                           (rng.uniform(width - 10, width), rng.uniform(0, height)),
                           (rng.uniform(0, width), rng.uniform(height * .86, height)),
                           (rng.uniform(width * .55, width), rng.uniform(0, 30))))
        stroke(ctx, circle(x, y, rng.uniform(2, 9)), BLUE, .5, .16)
    return canvas


def slope(ctx, path, colour, y0, y1, alpha=1.0):
    """Fills a path with a colour that fades from y0 to nothing at y1."""
    shade = cairo.LinearGradient(0, y0, 0, y1)
    shade.add_color_stop_rgba(0, *colour, alpha)
    shade.add_color_stop_rgba(1, *colour, 0)
    path(ctx)
    ctx.set_source(shade)
    ctx.fill()


def head(ctx, text, x=17, y=5.5):
    lettering(ctx, text, x, y, 2.55, 3.2, [AMBER], .8, 2)


def second_head(ctx, text, x, y):
    lettering(ctx, text, x, y, 1.35, 1.5, [PALE], .3, .9)


def words(ctx, text, x, y, size, colour=PALE, bold=False, middle=False):
    """Plain small print; y is the base line."""
    ctx.select_font_face("Liberation Sans", cairo.FONT_SLANT_NORMAL,
                         cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
    ctx.set_font_size(size)
    if middle:
        x -= ctx.text_extents(text).x_advance / 2
    ctx.set_source_rgb(*colour)
    ctx.move_to(x, y)
    ctx.show_text(text)


def well(ctx, x, y, w, h, margin=2.5):
    """The dark hollow that a control of this size lies in."""
    sloped(ctx, box(x - margin, y - margin, w + 2 * margin, h + 2 * margin, 3), rgb("0c111f"), rgb("101729"), .7, RIM)


def plate(ctx, x, y, w, h, radius=5):
    """The amber body of a button that fills its hot spot."""
    fill(ctx, box(x, y, w, h, radius), rgb("2b1402"))
    sloped(ctx, box(x + .8, y + .8, w - 1.6, h - 1.6, radius - .6), rgb("ffd46a"), rgb("d9730c"), 0, diagonal=False)
    fill(ctx, box(x + 2.4, y + 2, w - 4.8, h * .4, radius - 1.4), (1, 1, 1), .22)


def button(ctx, text, x, y, w, h, unit=2.3):
    plate(ctx, x, y, w, h)
    weight, gap = unit * 1.3, unit * .65
    width = text_width(text, unit, weight, gap)
    lettering(ctx, text, x + (w - width) / 2, y + h / 2 - 4.1 * unit, unit, weight, [rgb("fff6e0")], .9, gap)


def shadow(ctx, x, y, rx, ry):
    """What stands on the floor throws this on it."""
    fill(ctx, ellipse(x, y, rx, ry), (.01, .015, .03), .6)


def row_of(ctx, draws, x, y, size, pitch):
    for i, draw in enumerate(draws):
        pieces.place(ctx, draw, x + i * pitch, y, size, turn=(-5, 4, -3, 5)[i % 4])


def stand(ctx, glonk, x, floor, size):
    pieces.place(ctx, GLONKS[glonk], x, floor - size * FEET[glonk] / 90, size)


def crowd(ctx, middle, floor):
    """The four glonks in front of a heap of other pieces, 206 wide and 100 high."""
    shadow(ctx, middle, floor - 2, 108, 9)
    for draw, x, y, size, turn in (
            (pieces.rock_peak, -99, -88, 46, -6), (creatures.gorgon, -66, -102, 56, -4),
            (pieces.calculator_plus, -20, -98, 46, 3), (pieces.slammer, 18, -96, 48, 6), (pieces.money, 58, -86, 42, 8),
            (GLONKS[1], -107, -62, 60, -4), (GLONKS[3], 4, -66, 64, 4),
            (GLONKS[2], 48, -66, 64, 3), (GLONKS[0], -56, -70, 70, -3)):
        pieces.place(ctx, draw, middle + x, floor + y, size, turn=turn)
