"""The pictures that fill the small windows beside the main one, in logical pixels."""
import random
import cairo
from . import creatures, pieces
from .glyphs import lettering
from .menu import AMBER, DIM, GLONKS, PALE, ground, letters, plate, well, words
from .shapes import box, ellipse, fill, line, polygon, rgb, sloped, stroke


def head(ctx, text, x=12, y=8):
    lettering(ctx, text, x, y, 2.2, 2.8, [AMBER], .7, 1.8)


def tip():
    canvas = ground(291, 166, 21, light=(60, 20), rings=18)
    ctx = canvas.ctx
    head(ctx, "A Tip", 12, 12)
    well(ctx, 9, 43, 273, 113)
    for draw, x, size, turn in ((GLONKS[3], 196, 34, -8), (GLONKS[0], 228, 38, 4), (pieces.bomb, 172, 24, 6)):
        pieces.place(ctx, draw, x, 41 - size, size, turn=turn)
    return canvas.quiet()


def about():
    canvas = ground(251, 300, 22, "34508c", (125, 110), 34)
    ctx = canvas.ctx
    letters(ctx, 125.5, 22, 5.8)
    words(ctx, "A falling-pieces puzzle game", 125.5, 88, 11.5, PALE, middle=True)
    fill(ctx, ellipse(125, 172, 96, 9), (.01, .015, .03), .6)
    for i, draw in enumerate((pieces.diamond, GLONKS[2], GLONKS[0], GLONKS[3], GLONKS[1], pieces.bomb)):
        size = 34 if i in (0, 5) else 44
        pieces.place(ctx, draw, (22, 52, 86, 124, 160, 200)[i], 174 - size, size, turn=(-8, 4, -4, 4, -4, 8)[i])
    words(ctx, "Made by the Glonks makers", 125.5, 205, 12, AMBER, True, True)
    words(ctx, "Code: MIT.  Pictures and sounds: CC BY 4.0", 125.5, 225, 9.5, DIM, middle=True)
    plate(ctx, 40, 248, 169, 25)
    words(ctx, "glonks.example", 124.5, 264.7, 12, rgb("3a1c02"), True, True)
    words(ctx, "No Glonk was harmed.", 125.5, 289, 9.5, DIM, middle=True)
    return canvas.quiet()


SPECIMENS = [(16, 16, GLONKS[0]), (72, 16, GLONKS[1]), (128, 16, GLONKS[2]), (184, 16, GLONKS[3]),
             (256, 16, pieces.slammer), (312, 16, pieces.bomb), (24, 88, pieces.bauble), (80, 88, pieces.diamond),
             (136, 88, pieces.calculator_plus), (192, 88, creatures.gorgon), (248, 88, pieces.shifter),
             (16, 160, pieces.rock_round), (72, 160, pieces.rock_pile), (128, 160, pieces.rock_peak),
             (200, 160, pieces.bowling_ball), (256, 160, pieces.money), (304, 88, pieces.b_type),
             (312, 160, pieces.music)]
NAMES = ("Glonk", "Glonk", "Glonk", "Glonk", "Slammer", "Bomb", "Bauble", "Diamond", "Calculator", "Gorgon",
         "Shifter", "Rock", "Rock", "Rock", "Bowling Ball", "Money", "B-Type", "Music Note")


def specimens():
    """A wooden box with a lined compartment for each specimen."""
    canvas = ground(384, 317, 23, "2b2038", (190, 110), 0)
    ctx = canvas.ctx
    sloped(ctx, box(4, 4, 376, 215, 4), rgb("7a4d28"), rgb("3a2110"), 1, rgb("150b04"))
    rng = random.Random(5)
    ctx.save()
    box(5, 5, 374, 213, 3)(ctx)
    ctx.clip()
    for _ in range(70):
        y, drift = rng.uniform(4, 219), rng.uniform(-3, 3)
        stroke(ctx, line((0, y), (384, y + drift)), rgb("1f1006"), rng.uniform(.3, 1.1), .16)
    ctx.restore()
    for (x, y, draw), name in zip(SPECIMENS, NAMES):
        sloped(ctx, box(x, y, 49, 57, 3), rgb("ded2b4"), rgb("b3a27c"), 1.2, rgb("1d1007"))
        shade = cairo.LinearGradient(0, y, 0, y + 12)
        shade.add_color_stop_rgba(0, 0, 0, 0, .4)
        shade.add_color_stop_rgba(1, 0, 0, 0, 0)
        box(x + .6, y + .6, 47.8, 14, 2.6)(ctx)
        ctx.set_source(shade)
        ctx.fill()
        pieces.place(ctx, draw, x + 5, y + 2, 39)
        fill(ctx, box(x + 2, y + 44.5, 45, 10.5, 1), rgb("f6efd9"))
        words(ctx, name, x + 24.5, y + 52.4, 7.4, rgb("3a2a14"), True, True)
    well(ctx, 8, 224, 361, 81)
    return canvas.quiet()


def key_cap(ctx, x, y, w, text=None, turn=None):
    """A key of the keyboard; `turn` draws an arrow that points (0) up, (1) right, down, left."""
    fill(ctx, box(x, y + 1, w, 25, 4), rgb("05070d"))
    sloped(ctx, box(x, y, w, 24, 4), rgb("4b5b80"), rgb("222c46"), .8, rgb("0a0f1c"), diagonal=False)
    sloped(ctx, box(x + 2.4, y + 1.6, w - 4.8, 18.6, 3), rgb("6a7ba6"), rgb("35426a"), 0, diagonal=False)
    if text:
        words(ctx, text, x + w / 2, y + 15, 11 if len(text) < 4 else 9.5, rgb("f3f6ff"), True, True)
    if turn is not None:
        ctx.save()
        ctx.translate(x + w / 2, y + 11)
        ctx.rotate(turn * 1.5707963)
        fill(ctx, polygon([(0, -5), (5, 1), (1.8, 1), (1.8, 5), (-1.8, 5), (-1.8, 1), (-5, 1)], .8), rgb("f3f6ff"))
        ctx.restore()


KEY_LINES = (((("", 0), ("", 2)), "Move the pointer from row to row"),
             ((("", 3), ("", 1)), "Slide the row under the pointer"),
             ((("1", None),), "Drop a Slammer from your stock"),
             ((("2", None),), "Drop a Bomb"),
             ((("3", None),), "Set off all Bombs with a Detonator"),
             ((("4", None),), "Drop a Bowling Ball"),
             ((("P", None),), "Pause, and go on"),
             ((("N", None),), "Another song"),
             ((("Esc", None),), "End the game"),
             ((("Alt", None), ("Enter", None)), "Whole screen or window"))
KEY_ICONS = {2: pieces.slammer, 3: pieces.bomb, 4: pieces.detonator, 5: pieces.bowling_ball, 7: pieces.music}


def controls():
    canvas = ground(360, 360, 24, light=(90, 20))
    ctx = canvas.ctx
    head(ctx, "The Keys", 20, 12)
    for i, draw in enumerate(GLONKS):
        pieces.place(ctx, draw, 232 + i * 27, 10, 26)
    sloped(ctx, box(14, 44, 332, 304, 5), rgb("0c111f"), rgb("101729"), .7, rgb("31466f"))
    for i, (keys, text) in enumerate(KEY_LINES):
        y = 50 + i * 29.6
        if i:
            stroke(ctx, line((22, y - 1.6), (338, y - 1.6)), rgb("31466f"), .5, .6)
        x = 24
        for name, turn in keys:
            width = {"Enter": 40, "Alt": 32, "Esc": 32}.get(name, 27)
            key_cap(ctx, x, y, width, name, turn)
            x += width + 5
        words(ctx, text, 112, y + 16.5, 12.5, PALE)
        if i in KEY_ICONS:
            pieces.place(ctx, KEY_ICONS[i], 312, y, 25)
    return canvas.quiet()


WINDOWS = {"tip": tip, "about": about, "specimens": specimens, "controls": controls}
