"""Everything with a face: the four glonks, the gorgon and the frog."""
import math
from .shapes import (blob, box, circle, curve, darker, ellipse, eye, fill, glossy, lighter, line,
                     polygon, rgb, star, stroke, tube)

RED, BLUE, GREEN, YELLOW = rgb("e2342f"), rgb("2f74e6"), rgb("2fae55"), rgb("f7c325")
INK = (.07, .03, .08)


def glonk_round(ctx):
    horn = rgb("ffc58a")
    for x in (26, 64):
        glossy(ctx, ellipse(x, 80.5, 16, 6.5), horn, edge=rgb("3a0d0a"))
    for x, tip in ((37, 26), (53, 64)):
        tube(ctx, line((x, 16), (tip, 9)), RED, 3.4, 2)
        glossy(ctx, circle(tip, 9, 6.2), horn, 2.4, edge=rgb("3a0d0a"))
    glossy(ctx, circle(45, 48, 35.5), rgb("c62020"))
    eye(ctx, 32, 39, 11)
    eye(ctx, 58, 39, 11)
    mouth = curve(18, 55, 22, 86, 68, 86, 72, 55, 58, 60, 32, 60, 18, 55)
    fill(ctx, mouth, (.2, .01, .05))
    ctx.save()
    mouth(ctx)
    ctx.clip()
    fill(ctx, ellipse(45, 77, 15, 8.5), rgb("ff9c92"))
    fill(ctx, curve(22, 53, 30, 66, 60, 66, 68, 53, 58, 60, 32, 60, 22, 53), (.97, .97, .95))
    ctx.restore()
    stroke(ctx, mouth, INK, 2.6)


def glonk_square(ctx):
    for x in (12, 66):
        glossy(ctx, box(x, 4, 12, 22, 4), darker(BLUE, .25))
    glossy(ctx, box(5, 13, 80, 72, 13), rgb("1f56b8"), shine=.3)
    fill(ctx, ellipse(45, 39, 29.5, 21.2), darker(BLUE, .72))
    eye(ctx, 45, 39, 19.2, (.1, .12), rgb("1f9a9a"))
    stroke(ctx, line((20, 17.5), (45, 22.5), (70, 17.5)), INK, 6.4)
    mouth = box(10.5, 62, 69, 18, 5)
    fill(ctx, mouth, (.05, .05, .22))
    for x in (13.5, 30, 46.5, 63):
        fill(ctx, box(x, 63.5, 14, 11, 2.5), (.96, .96, .93))
    stroke(ctx, mouth, INK, 2.4)


def glonk_triangle(ctx):
    glossy(ctx, polygon([(45, -6), (94, 86), (-4, 86)], 19), rgb("a4f06e"), edge=rgb("06280f"))
    eye(ctx, 45, 27, 7.5, (0, .3))
    eye(ctx, 31, 48, 8.5)
    eye(ctx, 59, 48, 8.5)
    mouth = curve(14, 62, 30, 68, 60, 68, 76, 62, 82, 89, 8, 89, 14, 62)
    fill(ctx, mouth, rgb("082d18"))
    ctx.save()
    mouth(ctx)
    ctx.clip()
    fill(ctx, ellipse(45, 83, 16, 7), rgb("e2566a"))
    for x in (25, 53):
        fill(ctx, polygon([(x, 62), (x + 12, 62), (x + 6, 80)]), (.97, .97, .93))
    ctx.restore()
    stroke(ctx, mouth, INK, 2.6)


def glonk_star(ctx):
    glossy(ctx, star(45, 48, 5, 45, 23.8, 7), rgb("ffd040"), edge=rgb("402604"))
    eye(ctx, 36, 39, 8, (0, -.1))
    eye(ctx, 54, 39, 8, (0, -.1))
    fill(ctx, ellipse(45, 61, 10.5, 12.5), (.32, .1, .02))
    fill(ctx, ellipse(45, 67, 6.4, 4.6), rgb("ff7a5a"))
    for x in (25.5, 64.5):
        fill(ctx, ellipse(x, 52, 4.5, 2.8), rgb("ff7f2a"), .7)


def gorgon(ctx):
    snake, skin = rgb("4cb944"), rgb("a779d8")
    curls = [((22, 50), (4, 58), (20, 70), (9, 79)), ((24, 36), (10, 28), (16, 46), (8, 40)),
             ((32, 26), (18, 24), (28, 12), (15, 13)), ((45, 22), (36, 14), (54, 12), (45, 8)),
             ((58, 26), (72, 24), (62, 12), (75, 13)), ((66, 36), (80, 28), (74, 46), (82, 40)),
             ((68, 50), (86, 58), (70, 70), (81, 79))]
    for a, b, c, d in curls:
        tube(ctx, curve(*a, *b, *c, *d), snake, 6, 2.4)
    for _, _, c, (x, y) in curls:
        glossy(ctx, circle(x, y, 5.6), lighter(snake, .1), 2.2)
        fill(ctx, circle(x - 2, y - 1, 1.5), rgb("fff3a0"))
        fill(ctx, circle(x + 2, y - 1, 1.5), rgb("fff3a0"))
    glossy(ctx, blob([(45, 21), (64, 30), (68, 50), (59, 72), (45, 84), (31, 72), (22, 50), (26, 30)]), skin)
    for x, slant in ((35, 1), (55, -1)):
        fill(ctx, ellipse(x, 48, 8, 5.5, 14 * slant), INK)
        fill(ctx, ellipse(x, 48, 6.4, 4.2, 14 * slant), rgb("ffe45c"))
        fill(ctx, ellipse(x, 48, 1.7, 4.2), INK)
        stroke(ctx, line((x - 8 * slant, 38), (x + 7 * slant, 43)), INK, 3.4)
    stroke(ctx, line((45, 52), (42.5, 59), (47, 60)), darker(skin, .6), 2.2)
    fill(ctx, blob([(34, 67), (45, 65), (56, 67), (45, 75)]), rgb("5c0d2a"))
    for x in (38.5, 47.5):
        fill(ctx, polygon([(x, 66.5), (x + 4, 66.5), (x + 2, 72)]), (.97, .97, .93))


# Each phase: body centre, radii and tilt; hind leg from hip to toe; fore leg from shoulder to hand.
FROG_PHASES = [
    ((54, 64, 27, 19, 22), [(72, 72), (50, 76), (78, 88), (54, 90)], [(40, 72), (32, 82), (25, 90)]),
    ((44, 44, 26, 16, 38), [(60, 56), (80, 58), (72, 76), (90, 91)], [(32, 48), (24, 58), (17, 56)]),
    ((44, 40, 28, 15, 6), [(66, 42), (80, 54), (84, 36), (95, 50)], [(30, 50), (18, 56), (8, 52)]),
    ((46, 50, 27, 16, -16), [(68, 42), (88, 42), (72, 26), (90, 20)], [(34, 62), (22, 74), (12, 82)]),
    ((50, 70, 31, 15, 4), [(74, 74), (52, 74), (86, 88), (62, 91)], [(32, 78), (20, 84), (10, 90)]),
]


def frog(ctx, phase):
    (x, y, rx, ry, tilt), hind, fore = FROG_PHASES[phase]
    skin, belly = rgb("6cc23a"), rgb("e6eda0")
    far = darker(skin, .35)

    def leg(points, colour, width):
        path = line(*points)
        tube(ctx, path, colour, width, 2.6)
        tx, ty = points[-1]
        for dx in (-6, -1):
            tube(ctx, line((tx, ty), (tx + dx, ty + 3 + dx * .3)), colour, 3, 2)

    ctx.save()
    ctx.translate(5, -4)
    leg(fore, far, 5)
    leg(hind, far, 6)
    ctx.restore()
    a = math.radians(tilt)
    hx, hy = x - rx * .74 * math.cos(a), y - rx * .74 * math.sin(a) - 2

    def along(forward, up):
        return (hx - forward * math.cos(a) + up * math.sin(a), hy - forward * math.sin(a) - up * math.cos(a))

    glossy(ctx, ellipse(*along(-7, 13), 7.5, 7.5), skin)
    glossy(ctx, ellipse(x, y, rx, ry, tilt), skin)
    fill(ctx, ellipse(x - 2 + 6 * math.sin(a), y + ry * .5, rx * .62, ry * .4, tilt), belly, .9)
    glossy(ctx, ellipse(hx, hy, 16, 13, tilt), skin)
    ex, ey = along(2, 12)
    glossy(ctx, circle(ex, ey, 8), skin)
    eye(ctx, ex, ey, 5.2, (-.3, .15))
    stroke(ctx, line(along(15, -2), along(6, -6), along(-8, -4)), INK, 2.4)
    leg(fore, skin, 5.5)
    leg(hind, skin, 7)
    glossy(ctx, ellipse(hind[0][0], hind[0][1] - 2, 12, 9.5, tilt + 25), skin)


GLONKS = {"glonk_01": glonk_round, "glonk_02": glonk_square,
          "glonk_03": glonk_triangle, "glonk_04": glonk_star}
