"""Full pictures around the game: the loading screen and the menu page."""
import math
import random
import cairo
from . import creatures, pieces
from .canvas import Canvas
from .glyphs import lettering, text_width
from .shapes import box, circle, ellipse, fill, rgb, sloped, stroke

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


def loading():
    canvas = Canvas(1024, 768, 2)
    ctx = canvas.ctx
    backdrop(ctx, 1024, 768, 540, 430, rgb("34508c"))
    rng = random.Random(3)
    for _ in range(60):
        x, y, r = rng.uniform(0, 1024), rng.uniform(120, 768), rng.uniform(8, 60)
        fill(ctx, circle(x, y, r), rgb("6ea8ff"), .035)
        stroke(ctx, circle(x, y, r), rgb("6ea8ff"), 1.5, .07)
    colours = [creatures.RED, rgb("4a8cff"), rgb("3ec46a"), creatures.YELLOW, rgb("f08a2a"), rgb("b07af0")]
    unit, weight, gap = 24, 34, 24
    left = 512 - text_width("GLONKS", unit, weight, gap) / 2
    ctx.save()
    ctx.translate(8, 10)
    lettering(ctx, "GLONKS", left, 168, unit, weight, [rgb("05070d")], 9, gap)
    ctx.restore()
    lettering(ctx, "GLONKS", left, 168, unit, weight, colours, 8, gap)
    floor = ellipse(512, 700, 470, 52)
    fill(ctx, floor, (.01, .015, .03), .6)
    p = {**pieces.PIECES, **pieces.FRUIT}
    back = ["rock_01", "bauble", "slammer", "gorgon", "bowlingball", "calculator_01", "rock_03"]
    for i, name in enumerate(back):
        pieces.place(ctx, p[name], 92 + i * 122, 452 + 26 * ((i - 3) / 3) ** 2, 108, turn=(i - 3) * 3)
    front = ["bomb", "glonk_01", "glonk_02", "glonk_03", "glonk_04", "diamond"]
    for i, name in enumerate(front):
        pieces.place(ctx, p[name], 76 + i * 150, 566 - 14 * math.sin(i / 5 * math.pi), 138, turn=(-6, 5, -3, 4, -5, 6)[i])
    return canvas.opaque(.9)


def new_game_page():
    """Drawn in the menu's own small pixels, four picture pixels each."""
    canvas = Canvas(964, 1352, 2)
    ctx = canvas.ctx
    ctx.scale(4, 4)
    backdrop(ctx, 241, 338, 60, 20, rgb("27406e"))
    rng = random.Random(9)
    for _ in range(26):
        x, y = rng.choice(((rng.uniform(0, 10), rng.uniform(0, 338)), (rng.uniform(231, 241), rng.uniform(0, 338)),
                           (rng.uniform(0, 150), rng.uniform(286, 338)), (rng.uniform(130, 241), rng.uniform(0, 30))))
        stroke(ctx, circle(x, y, rng.uniform(2, 9)), rgb("6ea8ff"), .5, .16)
    lettering(ctx, "New Game", 17, 5.5, 2.55, 3.2, [AMBER], .8, 2)
    for y, height in ((32, 21), (64, 57), (160, 119)):      # quiet wells under the controls
        sloped(ctx, box(13.5, y - 2.5, 214, height + 5, 3), rgb("0c111f"), rgb("101729"), .7, rgb("31466f"))
    lettering(ctx, "Level", 17, 145, 1.35, 1.5, [rgb("cfe0ff")], .3, .9)
    for i, draw in enumerate(creatures.GLONKS.values()):
        pieces.place(ctx, draw, 142 + i * 21, 131, 20)
    for i, draw in enumerate((pieces.bomb, pieces.diamond, pieces.bauble)):
        pieces.place(ctx, draw, 18 + i * 40, 296, 33, turn=(-5, 4, -3)[i])
    x, y, w, h = 152, 296, 73, 33
    fill(ctx, box(x, y, w, h, 5), rgb("2b1402"))
    sloped(ctx, box(x + .8, y + .8, w - 1.6, h - 1.6, 4.4), rgb("ffd46a"), rgb("d9730c"), 0, diagonal=False)
    fill(ctx, box(x + 2.4, y + 2, w - 4.8, h * .4, 3.6), (1, 1, 1), .22)
    width = text_width("Play", 2.3, 3, 1.5)
    lettering(ctx, "Play", x + (w - width) / 2, y + 6.6, 2.3, 3, [rgb("fff6e0")], .9, 1.5)
    return canvas.opaque(.6)
