"""The lifeless pieces: rocks, tools, treasures and fruit, each on 90x90."""
import math
import cairo
from . import creatures, glyphs
from .shapes import (blob, box, circle, curve, darker, ellipse, fill, glossy, lighter, line,
                     polygon, rgb, sloped, star, stroke, tube)

STEEL, GOLD = rgb("8d99a8"), rgb("f2b632")


def within(ctx, path, draw):
    """Draws only what lies inside a path."""
    ctx.save()
    path(ctx)
    ctx.clip()
    draw()
    ctx.restore()


def facets(ctx, outline, faces, colour):
    """A chipped stone: flat faces, each with its own amount of light."""
    sloped(ctx, polygon(outline, 6), lighter(colour, .15), darker(colour, .5), 0)

    def chipped():
        for points, light in faces:
            shade = lighter(colour, light) if light > 0 else darker(colour, -light)
            fill(ctx, polygon(points), shade)
            stroke(ctx, polygon(points), darker(colour, .55), 1)

    within(ctx, polygon(outline, 6), chipped)
    stroke(ctx, polygon(outline, 6), darker(colour, .86), 3.4)


def rock_round(ctx):
    """A squat boulder."""
    outline = [(20, 27), (56, 20), (82, 34), (87, 60), (70, 85), (24, 86), (3, 68), (5, 46)]
    facets(ctx, outline, [
        ([(20, 27), (56, 20), (50, 40), (24, 46)], .85), ([(56, 20), (82, 34), (66, 52), (50, 40)], .3),
        ([(20, 27), (24, 46), (15, 63), (3, 68), (5, 46)], .55),
        ([(24, 46), (50, 40), (66, 52), (48, 69), (15, 63)], -.3),
        ([(82, 34), (87, 60), (70, 85), (48, 69), (66, 52)], -.68),
        ([(15, 63), (48, 69), (70, 85), (24, 86), (3, 68)], -.1)], rgb("8a8f98"))
    stroke(ctx, line((37, 50), (45, 55), (41, 62)), (.1, .1, .12), 2)


def rock_pile(ctx):
    """Three stones, a brown one on top of a pale and a dark one."""
    tan = rgb("a8794e")
    for x, y, w, h, tone in ((5, 48, 42, 37, lighter(tan, .66)), (42, 52, 43, 33, darker(tan, .5)),
                             (22, 20, 46, 36, darker(tan, .05))):
        path = blob([(x + w * u, y + h * v) for u, v in
                     ((.2, .08), (.62, 0), (.95, .3), (1, .72), (.7, 1), (.25, .98), (0, .66), (.03, .3))])
        glossy(ctx, path, tone, 3.2, .35, rgb("1c120c"))
        for u, v in ((.55, .55), (.3, .72), (.74, .66)):
            fill(ctx, ellipse(x + w * u, y + h * v, 2.6, 1.8), darker(tone, .5))


def rock_peak(ctx):
    """A summit under snow, with a lit and a dark flank."""
    outline = [(42, 2), (55, 18), (64, 15), (71, 46), (81, 60), (80, 86), (12, 86), (9, 64), (20, 50), (27, 22)]
    facets(ctx, outline, [
        ([(42, 2), (55, 18), (47, 60), (35, 40)], .02), ([(42, 2), (35, 40), (20, 50), (27, 22)], .25),
        ([(55, 18), (64, 15), (71, 46), (47, 60)], -.4), ([(71, 46), (81, 60), (80, 86), (56, 86), (47, 60)], -.6),
        ([(20, 50), (35, 40), (47, 60), (28, 86), (12, 86), (9, 64)], .48), ([(47, 60), (56, 86), (28, 86)], -.08)],
        rgb("566079"))
    snow = [(42, -2), (55, 16), (66, 11), (74, 48), (66, 38), (60, 51), (52, 37), (45, 56), (38, 41), (31, 54),
            (26, 43), (15, 53), (25, 18)]

    def cap():
        fill(ctx, polygon(snow, 2), rgb("f4f8ff"))
        fill(ctx, polygon(snow[1:7], 2), rgb("b9c6de"))
        stroke(ctx, polygon(snow, 2), rgb("1d2436"), 1.4)

    within(ctx, polygon(outline, 6), cap)
    stroke(ctx, polygon(outline, 6), rgb("0c0f1a"), 3.4)


def slammer(ctx):
    """An I-shaped press: it closes a row from either end."""
    web = box(22, 20, 46, 50)
    sloped(ctx, web, rgb("ffcf33"), rgb("e0a010"), 0)
    ctx.save()
    web(ctx)
    ctx.clip()
    for i in range(-4, 6):
        x = 22 + i * 20
        fill(ctx, polygon([(x, 72), (x + 10, 72), (x + 64, 18), (x + 54, 18)]), rgb("17171c"))
    ctx.restore()
    stroke(ctx, web, rgb("101015"), 3.2)
    for y in (4, 64):
        sloped(ctx, box(4, y, 82, 22, 5), lighter(STEEL, .5), darker(STEEL, .45), 3.2, diagonal=False)
        stroke(ctx, line((9, y + 4), (80, y + 4)), (.95, .97, 1), 2, .6)
        for x in (15, 45, 75):
            glossy(ctx, circle(x, y + 12, 4.4), rgb("59636f"), 1.8)


def bomb(ctx):
    tube(ctx, curve(58, 24, 62, 10, 72, 6, 76, 15), rgb("c9a26a"), 4, 2.4)
    stroke(ctx, star(75, 17, 8, 12.2, 6.4), rgb("4a1600"), 5)
    fill(ctx, star(75, 17, 8, 12.2, 6.4), rgb("ff9a1f"))
    fill(ctx, circle(75, 17, 5.2), rgb("fff2b0"))
    glossy(ctx, circle(40, 52, 33.5), rgb("41444f"), edge=rgb("08080b"), shine=.75)
    ctx.save()
    ctx.translate(58, 27)
    ctx.rotate(math.radians(38))
    sloped(ctx, box(-11, -6, 22, 12, 3), lighter(STEEL, .5), darker(STEEL, .4), diagonal=False)
    ctx.restore()
    glossy(ctx, star(40, 57, 3, 18.5, 9.6, 2, 90), rgb("ff5a3c"), 2, .3)


def bauble(ctx):
    """Pale glass with two dark segments."""
    glass, pale, edge = rgb("a31c78"), rgb("ffe2f2"), rgb("3a0829")
    stroke(ctx, ellipse(45, 10.5, 5, 5), rgb("241a04"), 6.5)
    stroke(ctx, ellipse(45, 10.5, 5, 5), GOLD, 2.8)
    sloped(ctx, box(33, 13, 24, 13, 3), lighter(GOLD, .5), darker(GOLD, .4), edge=rgb("2b1c02"), diagonal=False)
    ball = circle(45, 54, 33)
    glossy(ctx, ball, pale, 0)
    for half, colour in ((24, glass), (10, pale)):
        segment = ellipse(45, 54, half, 33)
        within(ctx, segment, lambda: glossy(ctx, ball, colour, 0, .8))
        stroke(ctx, segment, edge, 2.2)
    stroke(ctx, ball, edge, 3)


def diamond(ctx):
    ice = rgb("46c8e8")
    top, mid, low = 17, 39, 85
    xs, ts = (4, 25, 45, 65, 86), (20, 45, 70)
    tri = [
        ([(xs[0], mid), (ts[0], top), (xs[1], mid)], .55), ([(ts[0], top), (ts[1], top), (xs[1], mid)], .82),
        ([(ts[1], top), (xs[1], mid), (xs[3], mid)], .4), ([(ts[1], top), (ts[2], top), (xs[3], mid)], .6),
        ([(ts[2], top), (xs[4], mid), (xs[3], mid)], .05), ([(xs[0], mid), (xs[1], mid), (45, low)], .35),
        ([(xs[1], mid), (xs[3], mid), (45, low)], -.02), ([(xs[3], mid), (xs[4], mid), (45, low)], -.45)]
    for points, light in tri:
        fill(ctx, polygon(points), lighter(ice, light) if light > 0 else darker(ice, -light))
        stroke(ctx, polygon(points), lighter(ice, .8), 1.1, .8)
    stroke(ctx, polygon([(4, mid), (20, top), (70, top), (86, mid), (45, low)], 2), rgb("04202c"), 3.2)
    fill(ctx, star(25, 27, 4, 9, 2), (.98, .98, .98))


def calculator(ctx, body, display, key, sign, is_plus):
    sloped(ctx, box(14, 4, 62, 82, 9), lighter(body, .3), darker(body, .35))
    stroke(ctx, line((22, 8), (68, 8)), (1, 1, 1), 2, .4)
    sloped(ctx, box(19, 12, 52, 38, 4), lighter(display, .3), darker(display, .25), 2.6, rgb("0a0a0a"))
    fill(ctx, box(27.5, 26, 35, 10), sign)
    if is_plus:
        fill(ctx, box(40, 15.5, 10, 31), sign)
    for row in range(2):
        for col in range(4):
            sloped(ctx, box(19 + col * 13.6, 57 + row * 13, 11, 9.5, 2.5), lighter(key, .4), darker(key, .2), 1.4)


def calculator_plus(ctx):
    calculator(ctx, rgb("d9dde2"), rgb("16402a"), rgb("66707e"), rgb("8dff7a"), True)


def calculator_minus(ctx):
    calculator(ctx, rgb("2c2f3a"), rgb("ffa78c"), rgb("dfe3ea"), rgb("3a0808"), False)


def shifter(ctx):
    teal = rgb("0a7580")
    glossy(ctx, box(3, 20, 84, 50, 25), teal, shine=.4)
    arrow = polygon([(8, 45), (29, 25), (29, 37), (61, 37), (61, 25), (82, 45),
                     (61, 65), (61, 53), (29, 53), (29, 65)], 1.5)
    sloped(ctx, arrow, rgb("fffbe8"), rgb("ffd98a"), 2.4, rgb("033635"))


def bowling_ball(ctx):
    """Two-toned: the holes lie in the pale part."""
    edge, ball = rgb("0a0620"), circle(45, 45, 40.5)
    glossy(ctx, ball, rgb("3c2a92"), 0, .75)
    pale = curve(-4, 64, 20, 44, 44, 62, 60, 40, 72, 24, 66, 10, 70, -4, 40, -10, -10, -10, -4, 64)

    def upper_part():
        glossy(ctx, ball, rgb("cfc4ff"), 0, .75)
        stroke(ctx, pale, rgb("1d1260"), 4)

    within(ctx, ball, lambda: within(ctx, pale, upper_part))
    stroke(ctx, ball, edge, 3)
    for x, y in ((36, 20), (52, 26), (36, 40)):
        fill(ctx, ellipse(x, y, 7.6, 7.2), (1, 1, 1), .8)
        fill(ctx, ellipse(x - .8, y - .8, 6.8, 6.4), edge)


def money(ctx):
    """A twelve-sided coin, dark within its rim, with a bar through its letter."""
    def coin(x, y, r):
        return polygon([(x + r * math.cos(math.radians(15 + 30 * i)), y + r * math.sin(math.radians(15 + 30 * i)))
                        for i in range(12)], 3)
    glossy(ctx, coin(47.5, 48, 38.5), darker(GOLD, .45), edge=rgb("2c1a02"))
    glossy(ctx, coin(43, 43, 38.5), rgb("ffd866"), shine=.5, edge=rgb("2c1a02"))
    sloped(ctx, coin(43, 43, 28.5), rgb("2e1a02"), rgb("5c390a"), 2.4, rgb("2c1a02"))
    for y in (19.5, 60.5):
        stroke(ctx, line((44, y), (44, y + 6)), rgb("ffdc7a"), 6.4)
    glyphs.letter(ctx, "G", 32.5, 27.5, 5.2, 9.4, rgb("ffdc70"), 0)


def music(ctx):
    violet = rgb("ef6fd0")
    parts = [ellipse(23, 72, 16, 11.5, -20), ellipse(66, 63, 16, 11.5, -20),
             polygon([(30, 18), (38, 16), (38, 72), (30, 72)]), polygon([(73, 8), (81, 6), (81, 63), (73, 63)]),
             polygon([(30, 15), (81, 5), (81, 22), (30, 32)], 2)]
    for path in parts:
        stroke(ctx, path, rgb("2a0624"), 6)
    for path in parts[2:4]:
        sloped(ctx, path, lighter(violet, .1), darker(violet, .3), 0)
    sloped(ctx, parts[4], lighter(violet, .6), violet, 0)
    for path in parts[:2]:
        glossy(ctx, path, violet, 0)


def detonator(ctx):
    """Plunger box; only ever an icon."""
    sloped(ctx, box(40, 18, 10, 40), lighter(STEEL, .5), darker(STEEL, .3))
    sloped(ctx, box(12, 5, 66, 15, 6), rgb("ff6a4a"), rgb("a01c14"), 3.4)
    sloped(ctx, polygon([(14, 46), (76, 46), (84, 86), (6, 86)], 4), rgb("e8b04a"), rgb("8a5a18"), 3.4)
    fill(ctx, polygon([(47, 50), (34, 68), (43, 68), (39, 82), (56, 63), (47, 63)]), rgb("2a1604"))


def b_type(ctx):
    """Hexagonal tile with a B cut into it."""
    tile = [(45, 3), (83, 24), (83, 66), (45, 87), (7, 66), (7, 24)]
    glossy(ctx, polygon(tile, 6), rgb("17a06a"), 4)
    face = polygon([(45 + (x - 45) * .8, 45 + (y - 45) * .8) for x, y in tile], 5)
    sloped(ctx, face, rgb("f4fff0"), rgb("9fe6bd"), 2, rgb("06351f"))
    for shift, colour in ((1.4, rgb("ffffff")), (0, rgb("06402a"))):
        ctx.save()
        ctx.translate(33.5 + shift, 26 + shift)
        ctx.scale(6.3, 6.3)
        glyphs.trace(ctx, "B")
        ctx.restore()
        ctx.set_source_rgb(*colour)
        ctx.set_line_width(9)
        ctx.stroke()


# How far down, half the width there. A pin stands on the next one's head.
PIN_PROFILE = ((4, 5), (5.5, 10), (12, 14.5), (20, 13.5), (28.5, 10.8), (36, 13.2), (43, 20), (50, 26), (58, 29),
               (66, 28.8), (74, 25), (81, 18.5), (85.5, 14), (86.5, 9))


def pin(ctx):
    ivory, red = rgb("f3ecdf"), rgb("e2342f")
    body = blob([(45 + half, y) for y, half in PIN_PROFILE] + [(45 - half, y) for y, half in reversed(PIN_PROFILE)])
    glossy(ctx, body, ivory, 0)
    ctx.save()
    body(ctx)
    ctx.clip()
    for y in (24.5, 34):
        stroke(ctx, curve(25, y - 2, 36, y + 2, 54, y + 2, 65, y - 2), red, 5.4)
    shade = cairo.LinearGradient(18, 0, 72, 10)
    for at, alpha in ((0, .3), (.2, 0), (.5, 0), (1, .52)):
        shade.add_color_stop_rgba(at, *rgb("2b1d4a"), alpha)
    ctx.set_source(shade)
    ctx.paint()
    ctx.restore()
    for path, alpha in ((ellipse(34, 58, 4.6, 10, 14), .95), (ellipse(39, 13, 3.2, 4.6, 20), .95)):
        fill(ctx, path, (1, 1, 1), alpha)
    stroke(ctx, body, rgb("1d1426"), 3)


def leaf(ctx, x, y, degrees, size=1.0):
    ctx.save()
    ctx.translate(x, y)
    ctx.rotate(math.radians(degrees))
    ctx.scale(size, size)
    glossy(ctx, curve(0, 0, 6, -12, 20, -12, 28, 0, 20, 9, 8, 9, 0, 0), rgb("58b53c"), 2.8)
    stroke(ctx, line((4, 0), (21, -1)), rgb("1c4a12"), 1.6)
    ctx.restore()


def apple(ctx):
    tube(ctx, curve(45, 24, 44, 16, 42, 12, 38, 7), rgb("8a5a2a"), 4, 2.4)
    glossy(ctx, blob([(45, 24), (62, 17), (80, 28), (83, 50), (72, 76), (58, 86), (45, 82), (32, 86),
                      (18, 76), (7, 50), (10, 28), (28, 17)]), rgb("b81f2d"), shine=.75)
    leaf(ctx, 47, 17, -18)


def orange(ctx):
    """A whole fruit with a cut half in front of it."""
    peel = rgb("f58a1c")
    glossy(ctx, circle(41, 44, 36), peel)
    for i in range(16):
        a, r = i * 2.4, 8 + 1.5 * i
        fill(ctx, circle(38 + r * math.cos(a), 46 + r * math.sin(a), 1.1), darker(peel, .35), .7)
    leaf(ctx, 40, 13, -10, .85)
    fill(ctx, circle(62, 62, 25.5), darker(peel, .84))
    fill(ctx, circle(62, 62, 22.5), peel)
    fill(ctx, circle(62, 62, 19.5), rgb("fff0cf"))
    for i in range(8):
        a, b = math.radians(i * 45 + 4), math.radians(i * 45 + 41)
        fill(ctx, polygon([(62 + 2.5 * math.cos((a + b) / 2), 62 + 2.5 * math.sin((a + b) / 2)),
                           (62 + 17.5 * math.cos(a), 62 + 17.5 * math.sin(a)),
                           (62 + 17.5 * math.cos(b), 62 + 17.5 * math.sin(b))], 2.5), rgb("ffa336"))


def cherry(ctx):
    for x in (24, 65):
        tube(ctx, curve(x, 56, x, 38, 46, 26, 54, 9), rgb("7d9a3a"), 3.4, 2.3)
    glossy(ctx, circle(23, 64, 20), rgb("d81e3f"), shine=.85)
    glossy(ctx, circle(66, 66, 19.5), rgb("d81e3f"), shine=.85)
    leaf(ctx, 54, 11, 14)


def grapes(ctx):
    tube(ctx, curve(45, 20, 46, 12, 50, 8, 54, 6), rgb("8a6a3a"), 4, 2.4)
    for y, xs in ((76, (45,)), (62, (35, 55)), (47, (25, 45, 65)), (32, (16, 35, 55, 74)), (24, (27, 45, 63))):
        for x in xs:
            glossy(ctx, circle(x, y, 11), rgb("7b45c4"), 2.6, .85)
    leaf(ctx, 44, 17, -168, .9)


PIECES = {
    **creatures.GLONKS, "gorgon": creatures.gorgon,
    "rock_01": rock_round, "rock_02": rock_pile, "rock_03": rock_peak,
    "slammer": slammer, "bomb": bomb, "bauble": bauble, "diamond": diamond,
    "calculator_01": calculator_plus, "calculator_02": calculator_minus, "shifter": shifter,
    "bowlingball": bowling_ball, "money": money, "music": music, "btype": b_type, "pin": pin,
}
FRUIT = {"apple": apple, "orange": orange, "cherry": cherry, "grapes": grapes}


def place(ctx, draw, x, y, size, alpha=1.0, turn=0):
    """Draws a piece with its 90x90 box scaled to `size`, top left at (x, y)."""
    ctx.save()
    ctx.translate(x + size / 2, y + size / 2)
    ctx.rotate(math.radians(turn))
    ctx.scale(size / 90, size / 90)
    ctx.translate(-45, -45)
    if alpha < 1:
        ctx.push_group()
    draw(ctx)
    if alpha < 1:
        ctx.pop_group_to_source()
        ctx.paint_with_alpha(alpha)
    ctx.restore()
