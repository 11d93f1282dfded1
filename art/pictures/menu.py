"""The pages of the main window, in the window's own logical pixels.

Controls are laid over these pictures; what they are laid over stands here at the same places.
"""
import math
import re
from pathlib import Path
from . import emblems, pieces
from .glyphs import lettering, text_width
from .parts import (BLUE, DIM, GLONKS, INK, PALE, RIM, WINDOW, button, crowd, ground, head, plate, row_of, second_head,
                    shadow, sheet, slope, stand, well, words)
from .screens import AMBER, logo
from .shapes import box, fill, line, polygon, rgb, sloped, star, stroke

WIDTH, HEIGHT = 241, 338
TITLE_WIDTH = 243


def mend_top(ctx):
    """No seam to the strip of window above."""
    slope(ctx, box(0, 0, TITLE_WIDTH, 5), WINDOW, 0, 5)


def page(seed, text, **look):
    canvas = ground(WIDTH, HEIGHT, seed, **look)
    mend_top(canvas.ctx)
    head(canvas.ctx, text)
    return canvas


def new_game():
    canvas = page(9, "New Game")
    ctx = canvas.ctx
    well(ctx, 16, 32, 209, 21)
    well(ctx, 16, 64, 209, 57)
    well(ctx, 16, 160, 209, 119)
    second_head(ctx, "Level", 17, 145)
    for i in range(4):
        stand(ctx, i, 119 + i * 27, 157.3, 27)
    row_of(ctx, (pieces.bomb, pieces.b_type, pieces.bauble), 18, 294, 37, 42)
    button(ctx, "Play", 152, 296, 73, 33)
    return canvas.indexed()


def podium(ctx, x, y, w, h, place):
    sloped(ctx, box(x, y, w, h, 2), rgb("2c4374"), rgb("141d38"), .7, rgb("4a69a8"), diagonal=False)
    slope(ctx, box(x + 1.5, y + 1.2, w - 3, 4, 1.5), (1, 1, 1), y + 1, y + 5, .25)
    lettering(ctx, place, x + w / 2 - text_width(place, 1.6, 2, 1) / 2, y + 8, 1.6, 2, [AMBER], .6, 1)


def high_scores():
    canvas = page(11, "High Scores", light=(120, 260))
    ctx = canvas.ctx
    well(ctx, 16, 40, 209, 21)
    well(ctx, 16, 88, 209, 132)
    second_head(ctx, "The best ten", 17, 73)
    shadow(ctx, 120, 329, 100, 7)
    podium(ctx, 38, 298, 54, 30, "2")
    podium(ctx, 148, 304, 54, 24, "3")
    podium(ctx, 91, 284, 58, 44, "1")
    for glonk, x, floor, size in ((3, 98, 284, 46), (0, 44, 298, 42), (1, 156, 304, 38)):
        stand(ctx, glonk, x, floor, size)
    for x, y, r in ((84, 246, 4), (160, 250, 3), (64, 240, 2.5), (182, 246, 3.5), (150, 235, 2.5), (40, 252, 3)):
        fill(ctx, star(x, y, 5, r, r * .45, .3), AMBER, .9)
    return canvas.indexed()


def credits_page():
    canvas = page(12, "Credits", light=(120, 300))
    ctx = canvas.ctx
    well(ctx, 16, 40, 209, 249)
    shadow(ctx, 120, 331, 98, 5)
    for i in range(4):
        stand(ctx, i, 31 + i * 47, 331, 36)
    return canvas.indexed()


def store_bank():
    canvas = sheet(88, 38)
    ctx = canvas.ctx
    sloped(ctx, box(1, 1, 86.5, 29, 4), rgb("22345c"), rgb("121a31"), .7, RIM)
    lettering(ctx, "Bank", 6, 9.6, 1.7, 2.1, [AMBER], .5, 1.3)
    well(ctx, 54, 6, 29, 19, 1.5)
    return canvas.indexed()


STORE = ((pieces.slammer, "Slammer"), (pieces.bomb, "Bomb"), (pieces.detonator, "Detonator"),
         (pieces.bowling_ball, "Bowling Ball"), (emblems.bonus_song, "Bonus Song"),
         (emblems.midnight, "Midnight Bowling"))
BUY_TOPS, TOTAL_TOPS = (48, 88, 128, 168, 208, 248), (50, 91, 128, 170, 210, 250)


def prices():
    """Those of the program itself, by row."""
    header = Path(__file__).resolve().parents[2] / "shell/storepage.h"
    found = re.findall(r'^ *\{(\d+), "', header.read_text(encoding="utf-8"), re.M)
    assert len(found) == len(STORE), header
    return found


def store_table():
    canvas = sheet(224, 290)
    ctx = canvas.ctx
    sloped(ctx, box(1, 8, 222, 276, 5), rgb("1d2d52"), rgb("0c1122"), .7, RIM)
    fill(ctx, box(2, 9, 220.5, 28, 4), rgb("0b101d"), .55)
    for text, x, middle in (("Item", 38, False), ("Cost", 131, True), ("Buy", 164.5, True), ("Total", 205, True)):
        words(ctx, text, x, 27, 11, AMBER, True, middle)
    for i, ((draw, name), cost, top, total) in enumerate(zip(STORE, prices(), BUY_TOPS, TOTAL_TOPS)):
        height = 17 if i == 2 else 25
        middle = top + height / 2
        if i:
            stroke(ctx, line((9, top - 7.5), (215, top - 7.5)), rgb("3a5183"), .5, .5)
        pieces.place(ctx, draw, 7, middle - 14, 28)
        lines = name.split(" ") if len(name) > 12 else [name]
        for k, part in enumerate(lines):
            words(ctx, part, 38, middle + 3.8 + (k - (len(lines) - 1) / 2) * 11.5, 11)
        words(ctx, cost, 131, middle + 3.8, 11, rgb("ffd46a"), True, True)
        plate(ctx, 152, top, 25, height, 4)
        words(ctx, "Buy", 164.5, middle + 3.4, 10, INK, True, True)
        well(ctx, 190.5, total, 29, 19, 1.5)
    return canvas.indexed()


def backgrounds():
    canvas = page(14, "Backgrounds", light=(120, 190))
    ctx = canvas.ctx
    well(ctx, 16, 32, 209, 21)
    second_head(ctx, "Preview", 33, 105)
    sloped(ctx, box(31, 121, 178, 138, 4), rgb("3d5a97"), rgb("16213f"), .8, rgb("060a14"))
    fill(ctx, box(38.5, 128.5, 163, 123, 2), rgb("060a14"))
    stroke(ctx, box(31.8, 121.8, 176.4, 136.4, 3.5), rgb("8fb4ff"), .5, .35)
    for i in range(4):
        stand(ctx, 3 - i, 96 + i * 28, 121, 28)
    words(ctx, "Pictures of this theme", 120.5, 276, 10, DIM, middle=True)
    well(ctx, 16, 284, 209, 17)
    for i in range(5):
        words(ctx, str(i + 1), 36.9 + i * 41.8, 317, 10, PALE, True, True)
    return canvas.indexed()


def loudspeaker(ctx, x, y, waves):
    fill(ctx, polygon([(x, y + 3), (x + 3, y + 3), (x + 7, y), (x + 7, y + 10), (x + 3, y + 7), (x, y + 7)], .5), PALE)
    for i in range(waves):
        ctx.new_path()
        ctx.arc(x + 7.5, y + 5, 3 + 3 * i, -math.pi / 4, math.pi / 4)
        ctx.set_source_rgb(*PALE)
        ctx.set_line_width(1)
        ctx.stroke()


def music_page():
    canvas = page(15, "Music", light=(150, 270), glow="3b3470")
    ctx = canvas.ctx
    well(ctx, 24, 32, 193, 171)
    second_head(ctx, "Volume", 25, 221)
    well(ctx, 24, 240, 193, 17)
    loudspeaker(ctx, 24, 264, 1)
    loudspeaker(ctx, 199.5, 264, 3)
    shadow(ctx, 120, 330, 100, 6)
    for draw, x, y, size, turn in (
            (GLONKS[1], 24, 283, 48, -3), (GLONKS[0], 98, 283, 48, 0), (GLONKS[2], 168, 280, 51, 3),
            (emblems.guitar, 68, 288, 43, 4), (emblems.drum, 141, 299, 34, 0),
            (pieces.music, 72, 263, 22, -10), (pieces.music, 144, 264, 23, 10)):
        pieces.place(ctx, draw, x, y, size, turn=turn)
    return canvas.indexed()


def bands_page():
    canvas = page(16, "Bands", light=(70, 285), glow="3b3470")
    ctx = canvas.ctx
    second_head(ctx, "Who plays here", 25, 36)
    well(ctx, 24, 52, 193, 171)
    words(ctx, "Pick a band and open its page.", 25, 242, 10, DIM)
    shadow(ctx, 76, 329, 62, 6)
    for draw, x, y, size, turn in (
            (GLONKS[3], 18, 272, 58, -4), (GLONKS[1], 84, 278, 50, 4), (emblems.microphone, 62, 286, 44, 0),
            (pieces.music, 66, 256, 22, -8), (pieces.music, 106, 254, 20, 10)):
        pieces.place(ctx, draw, x, y, size, turn=turn)
    button(ctx, "Visit", 144, 288, 73, 41)
    return canvas.indexed()


def title():
    canvas = ground(TITLE_WIDTH, HEIGHT, 17, "3a5a9e", (121, 190), 34)
    ctx = canvas.ctx
    mend_top(ctx)
    for draw, x, y, size, turn in (
            (pieces.bowling_ball, 13, 122, 36, -8), (pieces.diamond, 62, 108, 33, 6), (pieces.bauble, 106, 116, 34, -4),
            (pieces.bomb, 148, 109, 35, 4), (pieces.shifter, 194, 126, 36, -10)):
        middle, low = x + size / 2, y + size / 2
        trail = [(middle - size * .3, low), (middle - 4, low - 44), (middle + 4, low - 44), (middle + size * .3, low)]
        slope(ctx, polygon(trail), BLUE, low, low - 42, .32)
        pieces.place(ctx, draw, x, y, size, turn=turn)
    logo(ctx, 121.5, 24, 5.8, {"LO": -.9})
    words(ctx, "Slam them.  Bomb them.  Bowl them over.", 121.5, 91, 10.5, middle=True)
    crowd(ctx, 121.5, 254)
    row_of(ctx, (pieces.rock_pile, pieces.orange, pieces.pin), 18, 272, 36, 40)
    button(ctx, "Start", 144, 272, 73, 33, 2)
    return canvas.indexed()


PAGES = {"page0": new_game, "page1": high_scores, "page2": credits_page, "page4": backgrounds, "page5": music_page,
         "page6": bands_page, "page7": title, "store_bank": store_bank, "store_table": store_table}
