"""Pointer, lightning and explosion."""
import math
import random
import cairo
from .shapes import circle, fill, glossy, line, polygon, rgb, sloped, stroke


def pointer(ctx):
    arrow = polygon([(4, 14), (34, 14), (34, 3), (67, 22.5), (34, 42), (34, 31), (4, 31), (12, 22.5)], 2.5)
    sloped(ctx, arrow, rgb("ffe79a"), rgb("f08a12"), 3.4, rgb("2c1402"), diagonal=False)
    stroke(ctx, line((12, 17.5), (37, 17.5), (37, 9), (55, 19.5)), (1, 1, .95), 2, .7)
    glossy(ctx, circle(41, 22.5, 5), rgb("c2361a"), 2, .4)


# Across the whole picture and ending where it began, so that bolts join end to end.
BOLT = [(-10, 40), (6, 36), (27, 24), (38, 55), (56, 27), (64, 44), (90, 40)]
FORKS = [[(38, 55), (50, 66), (60, 62)], [(27, 24), (36, 12), (46, 14)]]


def zap_horizontal(ctx):
    for path, scale in [(line(*BOLT), 1)] + [(line(*fork), .5) for fork in FORKS]:
        stroke(ctx, path, rgb("10204e"), 19 * scale)
    for colour, width in ((rgb("2d6cff"), 13), (rgb("7fd0ff"), 8.5), (rgb("c8e8ff"), 4.5)):
        for fork in FORKS:
            stroke(ctx, line(*fork), colour, width * .45)
        stroke(ctx, line(*BOLT), colour, width)


def zap_vertical(ctx):
    ctx.transform(cairo.Matrix(0, 1, 1, 0, 0, 0))
    zap_horizontal(ctx)


def explosion(ctx):
    rng = random.Random(5)

    def burst(tips, outer, inner, turn):
        points = []
        for i in range(tips * 2):
            a = math.radians(turn + 180 * i / tips)
            r = (outer if i % 2 == 0 else inner) * rng.uniform(.84, 1)
            points.append((150 + r * math.cos(a), 150 + r * math.sin(a)))
        return polygon(points, 3)

    for i in range(26):
        a, r = i * 2.39996, rng.uniform(112, 138)
        fill(ctx, circle(150 + r * math.cos(a), 150 + r * math.sin(a), rng.uniform(4, 8)), rgb("3a0c06"))
        fill(ctx, circle(150 + r * math.cos(a), 150 + r * math.sin(a), rng.uniform(2, 4)), rgb("ff9a2e"))
    # Warm, but nowhere near white: an explosion is gone after six frames, and a row of them must not flash.
    layers = [(burst(17, 143, 92, 4), "d23c1c", "8c1410"), (burst(15, 118, 74, 12), "ea741c", "cc480e"),
              (burst(13, 92, 56, 2), "f2a238", "e47f1c"), (burst(11, 62, 38, 9), "ffd98a", "f8b654")]
    for path, _, _ in layers:
        stroke(ctx, path, rgb("2a0606"), 9)
    for path, top, bottom in layers:
        sloped(ctx, path, rgb(top), rgb(bottom), 0)
