"""The pictures that fill the small windows beside the main one, in logical pixels."""
import math
import random
from functools import partial
from . import creatures, pieces
from .parts import DIM, GLONKS, INK, RIM, crowd, ground, head, plate, slope, stand, well, words
from .screens import AMBER, logo
from .shapes import box, circle, fill, line, polygon, rgb, sloped, stroke


def tip():
    canvas = ground(291, 166, 21, light=(220, 30), rings=18)
    ctx = canvas.ctx
    head(ctx, "Did you know?", 12, 9)
    for draw, x, y, size, turn in ((GLONKS[3], 192, 5, 44, -8), (GLONKS[0], 232, 1, 50, 5)):    # behind the panel
        pieces.place(ctx, draw, x, y, size, turn=turn)
    well(ctx, 9, 43, 273, 113)
    return canvas.indexed()


def about():
    canvas = ground(251, 300, 22, "34508c", (125, 130), 34)
    ctx = canvas.ctx
    logo(ctx, 125.5, 16, 5.8, {"LO": -.9})
    words(ctx, "A falling-pieces puzzle game", 125.5, 82, 11.5, middle=True)
    crowd(ctx, 125.5, 193)
    words(ctx, "Made by the Glonks makers", 125.5, 226, 12, AMBER, True, True)
    plate(ctx, 40, 248, 169, 25)
    words(ctx, "glonks.example", 124.5, 264.7, 12, INK, True, True)
    words(ctx, "Code: MIT.  Pictures and sounds: CC BY 4.0", 125.5, 288, 10, DIM, middle=True)
    return canvas.indexed()


SPECIMENS = [(16, 16, GLONKS[0]), (72, 16, GLONKS[1]), (128, 16, GLONKS[2]), (184, 16, GLONKS[3]),
             (256, 16, pieces.slammer), (312, 16, pieces.bomb), (24, 88, pieces.bauble), (80, 88, pieces.diamond),
             (136, 88, pieces.calculator_plus), (192, 88, creatures.gorgon), (248, 88, pieces.shifter),
             (16, 160, pieces.rock_round), (72, 160, pieces.rock_pile), (128, 160, pieces.rock_peak),
             (200, 160, pieces.bowling_ball), (256, 160, pieces.money), (304, 88, pieces.b_type),
             (312, 160, pieces.music)]
NAMES = ("Glonk", "Glonk", "Glonk", "Glonk", "Slammer", "Bomb", "Bauble", "Diamond", "Calculator", "Gorgon",
         "Shifter", "Rock", "Rock", "Rock", "Ball", "Money", "B-Type", "Music")


def grain(ctx, x, y, w, h):
    """Veins of the wood of a box."""
    rng = random.Random(5)
    ctx.save()
    box(x, y, w, h, 3)(ctx)
    ctx.clip()
    for _ in range(90):
        at, drift = rng.uniform(y, y + h), rng.uniform(-3, 3)
        stroke(ctx, line((x, at), (x + w, at + drift)), rgb("1f1006"), rng.uniform(.3, 1.1), .16)
    ctx.restore()


def specimens():
    """A wooden box with a lined compartment for each specimen."""
    canvas = ground(384, 317, 23, "2b2038", (190, 110), 0)
    ctx = canvas.ctx
    sloped(ctx, box(2, 2, 380, 313, 4), rgb("7a4d28"), rgb("3a2110"), 1, rgb("150b04"))
    grain(ctx, 3, 3, 378, 311)
    for (x, y, draw), name in zip(SPECIMENS, NAMES):
        sloped(ctx, box(x, y, 49, 57, 3), rgb("ded2b4"), rgb("b3a27c"), 1.2, rgb("1d1007"))
        slope(ctx, box(x + .6, y + .6, 47.8, 14, 2.6), (0, 0, 0), y, y + 12, .4)
        pieces.place(ctx, draw, x + 5, y + 2, 39)
        fill(ctx, box(x + 1.5, y + 44, 46, 11.5, 1), rgb("f6efd9"))
        words(ctx, name, x + 24.5, y + 52.8, 8.6, rgb("3a2a14"), True, True)
    well(ctx, 8, 224, 361, 81)
    return canvas.indexed()


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
        ctx.rotate(turn * math.pi / 2)
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
PAD_COLOURS = {"A": "3f9b4a", "B": "b9443c", "X": "3a6fc0", "Y": "c79a2b"}


def pad_button(ctx, x, y, name):
    """A button of a gamepad in a space 27 wide: a round one with its letter, the cross, or one with its name."""
    if name in PAD_COLOURS:
        fill(ctx, circle(x + 13.5, y + 13, 11), rgb("05070d"))
        sloped(ctx, circle(x + 13.5, y + 12, 11), rgb("38415a"), rgb("1d2437"), .8, rgb("0a0f1c"), diagonal=False)
        fill(ctx, circle(x + 13.5, y + 11.5, 8.6), rgb(PAD_COLOURS[name]))
        words(ctx, name, x + 13.5, y + 15.7, 11.5, rgb("f3f6ff"), True, True)
    elif name in ("|", "-"):
        # The cross, with arrows on two of its arms.
        arms = [box(x + 9.5, y + 1, 8, 23, 2), box(x + 2, y + 8.5, 23, 8, 2)]
        for arm in arms:
            fill(ctx, arm, rgb("222c46"))
            stroke(ctx, arm, rgb("0a0f1c"), .8)
        for arm in arms:
            fill(ctx, arm, rgb("3b496f"))
        for turn in ((0, 2) if name == "|" else (1, 3)):
            ctx.save()
            ctx.translate(x + 13.5, y + 12.5)
            ctx.rotate(turn * math.pi / 2)
            fill(ctx, polygon([(0, -10.4), (3, -5.4), (-3, -5.4)], .6), rgb("f3f6ff"))
            ctx.restore()
    else:
        width = 14 + 5.6 * len(name)
        x += 13.5 - width / 2
        fill(ctx, box(x, y + 4, width, 18, 9), rgb("05070d"))
        sloped(ctx, box(x, y + 3, width, 18, 9), rgb("4b5b80"), rgb("222c46"), .8, rgb("0a0f1c"), diagonal=False)
        words(ctx, name, x + width / 2, y + 15.6, 9.5, rgb("f3f6ff"), True, True)


PAD_TEXTS = {0: "Move the pointer (or the stick)", 1: "Slide the row", 2: "Drop a Slammer", 4: "Set off all Bombs",
             8: "End the game (press Back twice)"}
PAD_NAMES = ("|", "-", "A", "B", "X", "Y", "Start", "L, R", "Back")

KEY_ICONS = {2: pieces.slammer, 3: pieces.bomb, 4: pieces.detonator, 5: pieces.bowling_ball, 7: pieces.music}


def controls(pad=False):
    """A chart of the keys; with `pad`, a gamepad's buttons stand beside them."""
    canvas = ground(360, 360, 24, light=(90, 20))
    ctx = canvas.ctx
    head(ctx, "Keys and Pad" if pad else "The Keys", 20, 10)
    for i in range(4):
        stand(ctx, i, 218 + i * 31, 44, 30)
    sloped(ctx, box(14, 44, 332, 304, 5), rgb("0c111f"), rgb("101729"), .7, RIM)
    for i, (keys, text) in enumerate(KEY_LINES):
        y = 50 + i * 29.6
        if i:
            stroke(ctx, line((22, y - 1.6), (338, y - 1.6)), RIM, .5, .6)
        x = 24
        for name, turn in keys:
            width = {"Enter": 40, "Alt": 32, "Esc": 32}.get(name, 27)
            key_cap(ctx, x, y, width, name, turn)
            x += width + 5
        if pad and i < len(PAD_NAMES):
            pad_button(ctx, 103, y, PAD_NAMES[i])
        words(ctx, PAD_TEXTS.get(i, text) if pad else text, 156 if pad else 112, y + 16.5, 11 if pad else 12.5)
        if i in KEY_ICONS:
            pieces.place(ctx, KEY_ICONS[i], 312, y, 25)
    return canvas.indexed()


WINDOWS = {"tip": tip, "about": about, "specimens": specimens, "controls": controls, "controls_pad": partial(controls, True)}
