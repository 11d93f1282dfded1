"""Our own stroke lettering: ticker letters and the titles of the screens.

A letter is a path on a grid 4 wide and 6 high. M and L take a point, C two
control points and a point, A an ellipse (centre, radii) and two angles in
degrees; the arc runs backwards when the second angle is the smaller.
"""
import math
import cairo
from .canvas import Canvas, draw_sharp
from .shapes import darker, lighter, rgb

STROKES = {
    "A": "M 0 6 L 2 0 L 4 6 M 0.75 4.1 L 3.25 4.1",
    "B": "M 0 0 L 0 6 L 2.3 6 A 2.3 4.5 1.6 1.5 90 -90 L 0 3 M 2 3 A 2 1.5 1.6 1.5 90 -90 L 0 0",
    "C": "A 2.2 3 2.2 3 -45 -315",
    "D": "M 0 0 L 0 6 L 1.4 6 A 1.4 3 2.6 3 90 -90 L 0 0",
    "E": "M 3.8 0 L 0.2 0 L 0.2 6 L 3.8 6 M 0.2 3 L 3 3",
    "F": "M 3.8 0 L 0.2 0 L 0.2 6 M 0.2 3 L 3 3",
    "G": "A 2.1 3 2.1 3 -45 -360 L 2.8 3",
    "H": "M 0 0 L 0 6 M 4 0 L 4 6 M 0 3 L 4 3",
    "I": "M 2 0 L 2 6 M 0.8 0 L 3.2 0 M 0.8 6 L 3.2 6",
    "J": "M 3.5 0 L 3.5 4.2 A 1.75 4.2 1.75 1.8 0 165",
    "K": "M 0 0 L 0 6 M 4 0 L 0 3.4 M 1.3 2.5 L 4 6",
    "L": "M 0.3 0 L 0.3 6 L 3.9 6",
    "M": "M -0.2 6 L -0.2 0 L 2 3.4 L 4.2 0 L 4.2 6",
    "N": "M 0 6 L 0 0 L 4 6 L 4 0",
    "O": "A 2 3 2.2 3 0 360",
    "P": "M 0.2 6 L 0.2 0 L 2.3 0 A 2.3 1.7 1.7 1.7 -90 90 L 0.2 3.4",
    "Q": "A 2 3 2.2 3 0 360 M 2.7 4.4 L 4.3 6.2",
    "R": "M 0.1 6 L 0.1 0 L 2.3 0 A 2.3 1.6 1.7 1.6 -90 90 L 0.1 3.2 M 2 3.2 L 4 6",
    "S": "M 3.8 1 C 3.3 -0.5 0.1 -0.6 0.1 1.5 C 0.1 3.5 3.9 2.5 3.9 4.5 C 3.9 6.6 0.6 6.5 0 4.9",
    "T": "M 0 0 L 4 0 M 2 0 L 2 6",
    "U": "M 0 0 L 0 4 A 2 4 2 2 180 0 L 4 0",
    "V": "M 0 0 L 2 6 L 4 0",
    "W": "M -0.4 0 L 0.9 6 L 2 2 L 3.1 6 L 4.4 0",
    "X": "M 0 0 L 4 6 M 4 0 L 0 6",
    "Y": "M 0 0 L 2 3.1 L 4 0 M 2 3.1 L 2 6",
    "Z": "M 0.1 0 L 3.9 0 L 0.1 6 L 3.9 6",
    "0": "A 2 3 1.8 3 0 360 M 1.7 3.7 L 2.3 2.3",
    "1": "M 0.8 1.3 L 2.2 0 L 2.2 6 M 0.9 6 L 3.5 6",
    "2": "M 0.2 1.4 C 0.5 -0.5 3.8 -0.5 3.8 1.6 C 3.8 3 1.5 4.2 0.2 6 L 4 6",
    "3": "M 0.3 0.8 C 1.2 -0.4 3.6 -0.2 3.6 1.5 C 3.6 2.5 2.6 2.9 1.6 2.9 C 3 2.9 3.9 3.4 3.9 4.5 C 3.9 6.4 1 6.5 0 5",
    "4": "M 2.9 6 L 2.9 0 L 0 4.2 L 4 4.2",
    "5": "M 3.6 0 L 0.6 0 L 0.4 2.7 C 2 1.8 4 2.5 4 4.1 C 4 6.4 1 6.6 0.1 5.1",
    "6": "M 3.2 0 C 1.4 0.8 0.2 2.4 0.2 4.2 A 2 4.2 1.8 1.8 180 540",
    "7": "M 0 0 L 4 0 L 1.5 6",
    "8": "A 2 1.45 1.6 1.45 0 360 M 3.9 4.45 A 2 4.45 1.9 1.55 0 360",
    "9": "M 0.8 6 C 2.6 5.2 3.8 3.6 3.8 1.8 A 2 1.8 1.8 1.8 0 360",
    "!": "M 2 0 L 2 3.7 M 2 5.85 L 2 6",
    "?": "M 0.3 1.5 C 0.5 -0.5 3.7 -0.5 3.7 1.5 C 3.7 2.8 2 2.7 2 4 M 2 5.85 L 2 6",
    "a": "M 3.7 4 A 1.9 4 1.8 2 0 360 M 3.7 2 L 3.7 6",
    "b": "M 0.1 4 A 1.9 4 1.8 2 180 540 M 0.1 0 L 0.1 6",
    "c": "A 1.9 4 1.9 2 -50 -310",
    "d": "M 3.7 4 A 1.9 4 1.8 2 0 360 M 3.7 0 L 3.7 6",
    "e": "M 0.2 4 L 3.8 4 A 2 4 1.8 2 0 -315",
    "g": "M 3.7 4 A 1.9 4 1.8 2 0 360 M 3.7 2 L 3.7 6 A 1.9 6 1.8 1.4 0 150",
    "h": "M 0 0 L 0 6 M 0 3.8 A 1.7 3.8 1.7 1.7 180 360 L 3.4 6",
    "i": "M 0 2.2 L 0 6 M 0 0.1 L 0 0.25",
    "k": "M 0 0 L 0 6 M 3.1 2 L 0 4.5 M 1.1 3.7 L 3.3 6",
    "l": "M 0 0 L 0 6",
    "m": "M 0 6 L 0 2 M 0 3.4 A 1.15 3.3 1.15 1.3 180 360 L 2.3 6 M 2.3 3.3 A 3.45 3.3 1.15 1.3 180 360 L 4.6 6",
    "n": "M 0 2 L 0 6 M 0 3.8 A 1.7 3.8 1.7 1.7 180 360 L 3.4 6",
    "o": "A 1.9 4 1.9 2 0 360",
    "p": "M 0.1 4 A 1.9 4 1.8 2 180 540 M 0.1 2 L 0.1 7.8",
    "r": "M 0 2 L 0 6 M 0 3.9 A 1.6 3.9 1.6 1.8 180 310",
    "s": "M 3 2.8 C 2.6 1.8 0.2 1.7 0.2 3 C 0.2 4.3 3.1 3.7 3.1 5 C 3.1 6.3 0.5 6.3 0 5.2",
    "t": "M 1 0.4 L 1 4.9 C 1 5.9 1.9 6.2 2.7 5.8 M 0 2.2 L 2.5 2.2",
    "u": "M 0 2 L 0 4.3 A 1.7 4.3 1.7 1.7 180 0 L 3.4 2 M 3.4 2 L 3.4 6",
    "v": "M 0 2 L 1.8 6 L 3.6 2",
    "w": "M 0 2 L 1.1 6 L 2.3 2.8 L 3.5 6 L 4.6 2",
    "y": "M 0 2 L 1.8 6 M 3.6 2 L 1.6 7.2 L 0.6 7.8",
}
TICKER = "ABCDEFGHIJKLMNOPQRSTUVWXYZ!0123456789"
ARGUMENTS = {"M": 2, "L": 2, "C": 6, "A": 6}


def trace(ctx, letter):
    """Traces a letter in grid units on the current transformation."""
    words = STROKES[letter].split()
    ctx.new_path()
    while words:
        verb = words.pop(0)
        a = [float(words.pop(0)) for _ in range(ARGUMENTS[verb])]
        if verb == "M":
            ctx.move_to(*a)
        elif verb == "L":
            ctx.line_to(*a)
        elif verb == "C":
            ctx.curve_to(*a)
        else:
            x, y, rx, ry, start, end = a
            ctx.save()
            ctx.translate(x, y)
            ctx.scale(rx, ry)
            arc = ctx.arc if end > start else ctx.arc_negative
            arc(0, 0, 1, math.radians(start), math.radians(end))
            ctx.restore()


def extent(letter):
    """Left and right edge of a letter in grid units."""
    ctx = Canvas(8, 8, 1).ctx
    ctx.scale(.01, .01)
    ctx.set_tolerance(.001)
    trace(ctx, letter)
    x0, _, x1, _ = ctx.path_extents()
    return x0, x1


def letter(ctx, name, x, y, unit, weight, colour, outline=3.0):
    """One letter, grid origin at (x, y); weight and outline in pixels."""
    def retrace():
        ctx.save()
        ctx.translate(x, y)
        ctx.scale(unit, unit)
        trace(ctx, name)
        ctx.restore()
    top = y - weight / 2
    shade = cairo.LinearGradient(0, top, 0, y + 6 * unit + weight / 2)
    shade.add_color_stop_rgb(0, *lighter(colour, .62))
    shade.add_color_stop_rgb(.5, *colour)
    shade.add_color_stop_rgb(1, *darker(colour, .38))
    if outline:
        retrace()
        ctx.set_source_rgb(*darker(colour, .9))
        ctx.set_line_width(weight + 2 * outline)
        ctx.stroke()
    retrace()
    ctx.set_source(shade)
    ctx.set_line_width(weight)
    ctx.stroke()
    ctx.save()
    ctx.translate(-weight * .16, -weight * .2)
    retrace()
    ctx.set_source_rgba(1, 1, 1, .42)
    ctx.set_line_width(weight * .2)
    ctx.stroke()
    ctx.restore()


def places(text, unit, weight, gap, kern):
    """Left edge of each letter and of what follows the last; `kern` moves single pairs, in grid units."""
    x, found = 0, [0]
    for i, c in enumerate(text):
        x0, x1 = extent(c) if c != " " else (0, 1.2)
        x += (x1 - x0 + kern.get(text[i:i + 2], 0)) * unit + weight + gap
        found.append(x)
    return found


def text_width(text, unit, weight, gap, kern={}):
    return places(text, unit, weight, gap, kern)[-1] - gap


def lettering(ctx, text, x, y, unit, weight, colours, outline=3.0, gap=None, kern={}):
    """A line of text whose first stroke starts at x; capitals start at y."""
    gap = weight * .45 if gap is None else gap
    for i, (c, left) in enumerate(zip(text, places(text, unit, weight, gap, kern))):
        if c != " ":
            letter(ctx, c, x + left + weight / 2 - extent(c)[0] * unit, y + weight / 2, unit, weight,
                   colours[i % len(colours)], outline)


def glyph_pictures():
    """The ticker's letters, by file name."""
    pictures = {"Space": draw_sharp(lambda ctx: None, 50, 50)}
    for name in TICKER:
        pictures[name] = draw_sharp(
            lambda ctx, name=name: letter(ctx, name, 13.6, 7.9, 5.7, 7.8, rgb("ffb52e"), 2.8), 50, 50)
    return pictures
