"""The pages of the main window, in the window's own logical pixels.

Controls are laid over these pictures; what they are laid over stands here at the same places.
"""
import math
import random
import cairo
from . import creatures, frames, pieces
from .canvas import Canvas
from .glyphs import lettering, text_width
from .screens import AMBER, backdrop
from .shapes import box, circle, ellipse, fill, glossy, line, polygon, rgb, sloped, star, stroke

SCALE = 4               # picture pixels to a logical one
WIDTH, HEIGHT = 241, 338
TITLE_WIDTH = 243
WINDOW = rgb("14161c")  # colour of the window around the pictures
PALE, BLUE, DIM = rgb("cfe0ff"), rgb("6ea8ff"), rgb("8d9ab8")
GLONKS = list(creatures.GLONKS.values())


def sheet(width, height):
    canvas = Canvas(width * SCALE, height * SCALE, 2)
    canvas.ctx.scale(SCALE, SCALE)
    return canvas


def blend(ctx, x0, y0, x1, y1, x, y, w, h):
    """Fades a box from the window's colour at (x0, y0) to nothing at (x1, y1)."""
    shade = cairo.LinearGradient(x0, y0, x1, y1)
    shade.add_color_stop_rgba(0, *WINDOW, 1)
    shade.add_color_stop_rgba(1, *WINDOW, 0)
    ctx.set_source(shade)
    ctx.rectangle(x, y, w, h)
    ctx.fill()


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


def page(seed, head, **look):
    canvas = ground(WIDTH, HEIGHT, seed, **look)
    blend(canvas.ctx, 0, 0, 0, 5, 0, 0, WIDTH, 5)
    lettering(canvas.ctx, head, 17, 5.5, 2.55, 3.2, [AMBER], .8, 2)
    return canvas


def well(ctx, x, y, w, h):
    """The dark hollow that a control of this size lies in."""
    sloped(ctx, box(x - 2.5, y - 2.5, w + 5, h + 5, 3), rgb("0c111f"), rgb("101729"), .7, rgb("31466f"))


def second_head(ctx, text, y):
    lettering(ctx, text, 17, y, 1.35, 1.5, [PALE], .3, .9)


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


def plate(ctx, x, y, w, h, radius=5):
    """The amber body of a button that fills its hot spot."""
    fill(ctx, box(x, y, w, h, radius), rgb("2b1402"))
    sloped(ctx, box(x + .8, y + .8, w - 1.6, h - 1.6, radius - .6), rgb("ffd46a"), rgb("d9730c"), 0, diagonal=False)
    fill(ctx, box(x + 2.4, y + 2, w - 4.8, h * .4, radius - 1.4), (1, 1, 1), .22)


def button(ctx, text, x, y, w, h, unit=2.3):
    plate(ctx, x, y, w, h)
    weight, gap = unit * 1.3, unit * .65
    width = text_width(text, unit, weight, gap)
    lettering(ctx, text, x + (w - width) / 2, y + h / 2 - 4.3 * unit, unit, weight, [rgb("fff6e0")], .9, gap)


def row_of(ctx, draws, x, y, size, pitch):
    for i, draw in enumerate(draws):
        pieces.place(ctx, draw, x + i * pitch, y, size, turn=(-5, 4, -3, 5)[i % 4])


def new_game():
    canvas = page(9, "New Game")
    ctx = canvas.ctx
    well(ctx, 16, 32, 209, 21)
    well(ctx, 16, 64, 209, 57)
    well(ctx, 16, 160, 209, 119)
    second_head(ctx, "Level", 145)
    for i, draw in enumerate(GLONKS):
        pieces.place(ctx, draw, 142 + i * 21, 131, 20)
    row_of(ctx, (pieces.bomb, pieces.diamond, pieces.bauble), 18, 296, 33, 40)
    button(ctx, "Play", 152, 296, 73, 33)
    return canvas.quiet()


def podium(ctx, x, y, w, h, place):
    sloped(ctx, box(x, y, w, h, 2), rgb("2c4374"), rgb("141d38"), .7, rgb("4a69a8"), diagonal=False)
    lettering(ctx, place, x + w / 2 - text_width(place, 1.6, 2, 1) / 2, y + 7, 1.6, 2, [AMBER], .6, 1)


def high_scores():
    canvas = page(11, "High Scores", light=(190, 40))
    ctx = canvas.ctx
    well(ctx, 16, 40, 209, 21)
    well(ctx, 16, 88, 209, 132)
    lettering(ctx, "The best ten", 17, 73, 1.35, 1.5, [PALE], .3, .9)
    fill(ctx, ellipse(120, 329, 100, 7), (.01, .015, .03), .6)
    podium(ctx, 44, 298, 50, 30, "2")
    podium(ctx, 146, 304, 50, 24, "3")
    podium(ctx, 95, 284, 50, 44, "1")
    for draw, x, y in ((GLONKS[3], 103, 250), (GLONKS[0], 52, 264), (GLONKS[1], 154, 270)):
        pieces.place(ctx, draw, x, y, 34)
    for x, y, r in ((84, 252, 4), (158, 248, 3), (70, 240, 2.5), (176, 258, 2.5), (120, 240, 3)):
        fill(ctx, star(x, y, 5, r, r * .45, .3), AMBER, .9)
    return canvas.quiet()


def credits_page():
    canvas = page(12, "Credits", light=(120, 300))
    ctx = canvas.ctx
    well(ctx, 16, 40, 209, 249)
    row_of(ctx, GLONKS, 40, 298, 32, 43)
    return canvas.quiet()


def store_bank():
    canvas = sheet(88, 38)
    ctx = canvas.ctx
    fill(ctx, box(0, 0, 88, 38), WINDOW)
    sloped(ctx, box(1, 1, 85, 29, 4), rgb("22345c"), rgb("121a31"), .7, rgb("31466f"))
    lettering(ctx, "Bank", 7, 9.6, 1.7, 2.1, [AMBER], .5, 1.3)
    fill(ctx, box(53, 4.5, 29, 22, 3), rgb("0b101d"))
    stroke(ctx, box(53, 4.5, 29, 22, 3), rgb("31466f"), .7)
    return canvas.quiet()


def midnight(ctx):
    """A pin under the moon; only ever an icon."""
    fill(ctx, circle(45, 45, 38), rgb("16234a"))
    stroke(ctx, circle(45, 45, 38), rgb("05070d"), 3)
    pieces.place(ctx, frames.moon, 44, 10, 34)
    for x, y in ((24, 30), (30, 18), (72, 58), (18, 52)):
        fill(ctx, star(x, y, 4, 4, 1.4), rgb("fff6d0"))
    pieces.place(ctx, frames.pin, 14, 22, 62)


def bonus_song(ctx):
    pieces.music(ctx)
    glossy(ctx, star(70, 68, 5, 19, 8, 2), rgb("ffc93d"), 3)


STORE = ((pieces.slammer, "Slammer", "2"), (pieces.bomb, "Bomb", "4"), (pieces.detonator, "Detonator", "7"),
         (pieces.bowling_ball, "Bowling Ball", "10"), (bonus_song, "Bonus Song", "40"),
         (midnight, "Midnight Bowling", "40"))
BUY_TOPS, TOTAL_TOPS = (48, 88, 128, 168, 208, 248), (50, 91, 128, 170, 210, 250)


def store_table():
    canvas = sheet(224, 290)
    ctx = canvas.ctx
    fill(ctx, box(0, 0, 224, 290), WINDOW)
    sloped(ctx, box(.5, 8, 219, 279, 5), rgb("1d2d52"), rgb("0c1122"), .7, rgb("31466f"))
    fill(ctx, box(1.5, 9, 217, 28, 4), rgb("0b101d"), .55)
    for text, x, middle in (("Item", 36, False), ("Cost", 131, True), ("Buy", 164.5, True), ("Total", 201, True)):
        words(ctx, text, x, 27, 11, AMBER, True, middle)
    for i, ((draw, name, cost), top, total) in enumerate(zip(STORE, BUY_TOPS, TOTAL_TOPS)):
        height = 17 if i == 2 else 25
        centre = top + height / 2
        if i:
            stroke(ctx, line((9, centre - 20), (211, centre - 20)), rgb("3a5183"), .5, .5)
        pieces.place(ctx, draw, 6, centre - 14, 28)
        lines = name.split(" ") if len(name) > 12 else [name]
        for k, part in enumerate(lines):
            words(ctx, part, 38, centre + 3.8 + (k - (len(lines) - 1) / 2) * 11.5, 11, PALE)
        words(ctx, cost, 131, centre + 3.8, 11, rgb("ffd46a"), True, True)
        plate(ctx, 152, top, 25, height, 4)
        words(ctx, "Buy", 164.5, centre + 3.4, 9.5, rgb("3a1c02"), True, True)
        fill(ctx, box(190, total - 1.5, 23, 20, 2.5), rgb("0b101d"))
        stroke(ctx, box(190, total - 1.5, 23, 20, 2.5), rgb("31466f"), .7)
    return canvas.quiet()


def backgrounds():
    canvas = page(14, "Backgrounds", light=(120, 190))
    ctx = canvas.ctx
    well(ctx, 16, 32, 209, 21)
    second_head(ctx, "Preview", 98)
    for i, draw in enumerate(GLONKS[::-1]):
        pieces.place(ctx, draw, 142 + i * 21, 88, 20)
    sloped(ctx, box(31, 121, 178, 138, 4), rgb("3d5a97"), rgb("16213f"), .8, rgb("060a14"))
    fill(ctx, box(36, 126, 168, 128, 2), rgb("060a14"))
    stroke(ctx, box(31.8, 121.8, 176.4, 136.4, 3.5), rgb("8fb4ff"), .5, .35)
    words(ctx, "Pictures of this theme", 120.5, 277, 9.5, DIM, middle=True)
    well(ctx, 16, 284, 209, 17)
    for i in range(5):
        words(ctx, str(i + 1), 36.9 + i * 41.8, 317, 10, PALE, True, True)
    return canvas.quiet()


def loudspeaker(ctx, x, y, waves):
    fill(ctx, polygon([(x, y + 3), (x + 3, y + 3), (x + 7, y), (x + 7, y + 10), (x + 3, y + 7), (x, y + 7)], .5), PALE)
    for i in range(waves):
        r = 3 + 3 * i
        ctx.new_sub_path()
        ctx.arc(x + 7.5, y + 5, r, -math.pi / 4, math.pi / 4)
        ctx.set_source_rgb(*PALE)
        ctx.set_line_width(1)
        ctx.stroke()


def music_page():
    canvas = page(15, "Music", light=(200, 250), glow="3b3470")
    ctx = canvas.ctx
    well(ctx, 24, 32, 193, 171)
    lettering(ctx, "Volume", 25, 221, 1.35, 1.5, [PALE], .3, .9)
    well(ctx, 24, 240, 193, 17)
    loudspeaker(ctx, 24, 263, 1)
    loudspeaker(ctx, 200, 263, 3)
    fill(ctx, ellipse(120, 328, 96, 7), (.01, .015, .03), .6)
    pieces.place(ctx, GLONKS[0], 66, 281, 44)
    pieces.place(ctx, GLONKS[2], 130, 279, 46)
    for x, y, size, turn in ((34, 282, 24, -12), (108, 270, 22, 8), (178, 276, 26, 12)):
        pieces.place(ctx, pieces.music, x, y, size, turn=turn)
    return canvas.quiet()


def bands_page():
    canvas = page(16, "Bands", light=(40, 240), glow="3b3470")
    ctx = canvas.ctx
    lettering(ctx, "Who plays here", 25, 36, 1.35, 1.5, [PALE], .3, .9)
    well(ctx, 24, 52, 193, 171)
    words(ctx, "Pick a band and open its page.", 25, 243, 9.5, DIM)
    pieces.place(ctx, GLONKS[1], 24, 284, 46)
    pieces.place(ctx, GLONKS[3], 74, 282, 46)
    pieces.place(ctx, pieces.music, 62, 262, 26, turn=10)
    button(ctx, "Visit", 144, 288, 73, 41)
    return canvas.quiet()


def title():
    canvas = ground(TITLE_WIDTH, HEIGHT, 17, "34508c", (121, 150), 34)
    ctx = canvas.ctx
    blend(ctx, 0, 0, 0, 5, 0, 0, TITLE_WIDTH, 5)
    letters(ctx, 120.5, 34, 5.6)
    words(ctx, "Slam them.  Bomb them.  Love them.", 120.5, 96, 10.5, PALE, middle=True)
    fill(ctx, ellipse(120, 246, 104, 12), (.01, .015, .03), .6)
    for i, draw in enumerate((pieces.rock_peak, pieces.bauble, creatures.gorgon, pieces.shifter, pieces.bowling_ball)):
        pieces.place(ctx, draw, 19 + i * 41, 128 - 12 * math.sin(i / 4 * math.pi), 42, turn=(i - 2) * 5)
    for draw, x, y, size, turn in ((GLONKS[1], 16, 186, 58, -5), (GLONKS[2], 167, 184, 60, 5), (GLONKS[0], 66, 180, 66, -3),
                                   (GLONKS[3], 117, 186, 62, 4)):
        pieces.place(ctx, draw, x, y, size, turn=turn)
    pieces.place(ctx, pieces.slammer, 18, 262, 44, turn=-8)
    pieces.place(ctx, pieces.bomb, 64, 266, 42, turn=5)
    pieces.place(ctx, pieces.diamond, 104, 268, 36, turn=-4)
    button(ctx, "Start", 144, 272, 73, 33, 2)
    return canvas.quiet()


def letters(ctx, middle, y, unit):
    """The name of the game, each letter in a colour of its own, with its shadow."""
    colours = [creatures.RED, rgb("4a8cff"), rgb("3ec46a"), creatures.YELLOW, rgb("f08a2a"), rgb("b07af0")]
    weight, gap = unit * 1.42, unit
    left = middle - text_width("GLONKS", unit, weight, gap) / 2
    ctx.save()
    ctx.translate(unit / 3, unit * .42)
    lettering(ctx, "GLONKS", left, y, unit, weight, [rgb("05070d")], unit * .38, gap)
    ctx.restore()
    lettering(ctx, "GLONKS", left, y, unit, weight, colours, unit * .33, gap)


PAGES = {"page0": new_game, "page1": high_scores, "page2": credits_page, "page4": backgrounds, "page5": music_page,
         "page6": bands_page, "page7": title, "store_bank": store_bank, "store_table": store_table}
