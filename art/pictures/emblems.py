"""Drawings that only the menu has, each on the 90x90 of a piece."""
from . import frames, pieces
from .shapes import (blob, box, circle, curve, darker, ellipse, fill, glossy, lighter, line, polygon, rgb, sloped, star,
                     stroke, tube)


def midnight(ctx):
    """A pin under the moon."""
    fill(ctx, circle(45, 45, 41), rgb("16234a"))
    stroke(ctx, circle(45, 45, 41), rgb("5d7fc4"), 3)
    pieces.place(ctx, frames.moon, 43, 11, 36)
    for x, y in ((20, 32), (30, 16), (74, 60), (13, 54)):
        fill(ctx, star(x, y, 4, 4.5, 1.6), rgb("fff6d0"))
    pieces.place(ctx, pieces.pin, 9, 20, 60)


def bonus_song(ctx):
    pieces.music(ctx)
    glossy(ctx, star(68, 66, 5, 22, 10, 2), rgb("ffc93d"), 3)


def guitar(ctx):
    wood = rgb("e0702a")
    stroke(ctx, line((40, 50), (76, 14)), rgb("1a0a04"), 11)
    stroke(ctx, line((40, 50), (76, 14)), rgb("5a3216"), 6)
    sloped(ctx, polygon([(70, 10), (80, 2), (88, 10), (80, 20)], 2), rgb("f2d29a"), rgb("a8763a"), 2.6)
    glossy(ctx, blob([(30, 36), (46, 34), (50, 46), (57, 52), (56, 64), (42, 72), (30, 86), (12, 84), (4, 74),
                      (6, 58), (20, 48)]), wood, 3.2)
    fill(ctx, circle(38, 53, 7.5), darker(wood, .8))
    stroke(ctx, line((16, 66), (25, 75)), darker(wood, .85), 4)
    for d in (-1.6, 1.6):
        stroke(ctx, line((20 + d, 71 + d), (77 + d, 13 + d)), rgb("fff4d8"), 1, .8)


def drum(ctx):
    shell = rgb("d23a4c")
    glossy(ctx, curve(8, 42, 8, 30, 82, 30, 82, 42, 82, 58, 82, 66, 82, 72, 80, 90, 10, 90, 8, 72, 8, 60, 8, 50, 8, 42),
           shell, 3.2)
    for x in range(-30, 31, 20):
        stroke(ctx, line((45 + x - 10, 56), (45 + x, 78), (45 + x + 10, 56)), rgb("ffe0a0"), 2.2)
    for y in (46, 74):
        tube(ctx, curve(8, y, 10, y + 15, 80, y + 15, 82, y), rgb("f2b632"), 3.6, 1.6)
    sloped(ctx, ellipse(45, 43, 37, 11), rgb("fffaf0"), rgb("cfc4b4"), 3, darker(shell, .84))
    for x, tip in ((12, 36), (78, 54)):
        tube(ctx, line((x, 8), (tip, 38)), rgb("d9a860"), 3.6, 2)
        glossy(ctx, ellipse(tip, 39, 4.6, 3.6), rgb("f0d09a"), 1.8)


def microphone(ctx):
    tube(ctx, line((45, 44), (45, 84)), rgb("8d99a8"), 4, 2.4)
    glossy(ctx, ellipse(45, 84, 20, 4.5), rgb("59636f"), 2.6)
    sloped(ctx, polygon([(35, 32), (55, 32), (50, 52), (40, 52)], 2), rgb("5a6478"), rgb("20242e"), 2.8)
    ball = circle(45, 20, 16.5)
    glossy(ctx, ball, rgb("9aa7ba"), 0, .8)
    ctx.save()
    ball(ctx)
    ctx.clip()
    for d in range(-30, 31, 7):
        stroke(ctx, line((45 + d - 20, 0), (45 + d + 20, 40)), rgb("2a3040"), 1.3, .6)
        stroke(ctx, line((45 + d + 20, 0), (45 + d - 20, 40)), rgb("2a3040"), 1.3, .6)
    ctx.restore()
    stroke(ctx, ball, rgb("12151d"), 2.8)
    sloped(ctx, box(29, 29, 32, 6, 2.5), lighter(rgb("f2b632"), .3), rgb("b07a10"), 2.2)
