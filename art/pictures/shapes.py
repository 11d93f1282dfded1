"""Paths and shading. A path is a function that traces itself on a context.

All shading follows one light from the top left.
"""
import math
import cairo


def rgb(text):
    return tuple(int(text[i:i + 2], 16) / 255 for i in (0, 2, 4))


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def lighter(colour, t):
    return mix(colour, (1, 1, 1), t)


def darker(colour, t):
    return mix(colour, (0.02, 0.01, 0.05), t)


def ellipse(x, y, rx, ry, degrees=0):
    def trace(ctx):
        ctx.save()
        ctx.translate(x, y)
        ctx.rotate(math.radians(degrees))
        ctx.scale(rx, ry)
        ctx.new_sub_path()
        ctx.arc(0, 0, 1, 0, 2 * math.pi)
        ctx.close_path()
        ctx.restore()
    return trace


def circle(x, y, r):
    return ellipse(x, y, r, r)


def polygon(points, radius=0):
    """Closed polygon with softened corners."""
    def trace(ctx):
        count = len(points)
        ctx.new_sub_path()
        for i, (x, y) in enumerate(points):
            for near, is_start in ((points[i - 1], True), (points[(i + 1) % count], False)):
                length = math.dist((x, y), near)
                t = min(radius / length, 0.5)
                px, py = x + (near[0] - x) * t, y + (near[1] - y) * t
                if is_start:
                    ctx.line_to(px, py)
                    sx, sy = px, py
                else:
                    ctx.curve_to(sx + (x - sx) * .6, sy + (y - sy) * .6,
                                 px + (x - px) * .6, py + (y - py) * .6, px, py)
        ctx.close_path()
    return trace


def box(x, y, w, h, radius=0):
    return polygon([(x, y), (x + w, y), (x + w, y + h), (x, y + h)], radius)


def star(x, y, tips, outer, inner, radius=0, turn=-90):
    points = []
    for i in range(tips * 2):
        a = math.radians(turn + 180 * i / tips)
        r = outer if i % 2 == 0 else inner
        points.append((x + r * math.cos(a), y + r * math.sin(a)))
    return polygon(points, radius)


def blob(points):
    """Closed smooth curve through the points."""
    def trace(ctx):
        count = len(points)
        ctx.move_to(*points[0])
        for i in range(count):
            p0, p1 = points[i - 1], points[i]
            p2, p3 = points[(i + 1) % count], points[(i + 2) % count]
            ctx.curve_to(p1[0] + (p2[0] - p0[0]) / 6, p1[1] + (p2[1] - p0[1]) / 6,
                         p2[0] - (p3[0] - p1[0]) / 6, p2[1] - (p3[1] - p1[1]) / 6, *p2)
        ctx.close_path()
    return trace


def line(*points):
    def trace(ctx):
        ctx.move_to(*points[0])
        for p in points[1:]:
            ctx.line_to(*p)
    return trace


def curve(x, y, *rest):
    def trace(ctx):
        ctx.move_to(x, y)
        for i in range(0, len(rest), 6):
            ctx.curve_to(*rest[i:i + 6])
    return trace


def fill(ctx, path, colour, alpha=1.0):
    path(ctx)
    ctx.set_source_rgba(*colour, alpha)
    ctx.fill()


def stroke(ctx, path, colour, width, alpha=1.0):
    path(ctx)
    ctx.set_source_rgba(*colour, alpha)
    ctx.set_line_width(width)
    ctx.stroke()


def tube(ctx, path, colour, width, outline=3.0):
    """A rounded rope or limb with its dark edge and a light along it."""
    stroke(ctx, path, darker(colour, .82), width + 2 * outline)
    stroke(ctx, path, darker(colour, .2), width)
    ctx.save()
    ctx.translate(-width * .12, -width * .12)
    stroke(ctx, path, lighter(colour, .2), width * .45)
    ctx.restore()


def glossy(ctx, path, colour, outline=3.0, shine=.6, edge=None):
    """Fills a path as a rounded shiny body and draws its dark edge."""
    path(ctx)
    x0, y0, x1, y1 = ctx.fill_extents()
    w, h = x1 - x0, y1 - y0
    shade = cairo.RadialGradient(x0 + .3 * w, y0 + .25 * h, 0,
                                 x0 + .42 * w, y0 + .42 * h, .72 * max(w, h))
    shade.add_color_stop_rgb(0, *lighter(colour, .42))
    shade.add_color_stop_rgb(.42, *colour)
    shade.add_color_stop_rgb(1, *darker(colour, .68))
    ctx.set_source(shade)
    ctx.fill()
    ctx.save()
    path(ctx)
    ctx.clip()
    glow = cairo.RadialGradient(x0 + .72 * w, y0 + .86 * h, 0, x0 + .72 * w, y0 + .86 * h, .3 * max(w, h))
    glow.add_color_stop_rgba(0, *lighter(colour, .5), .38)
    glow.add_color_stop_rgba(1, *lighter(colour, .5), 0)
    ctx.set_source(glow)
    ctx.paint()
    gloss = cairo.LinearGradient(0, y0 + .04 * h, 0, y0 + .36 * h)
    gloss.add_color_stop_rgba(0, 1, 1, 1, shine)
    gloss.add_color_stop_rgba(1, 1, 1, 1, 0)
    ellipse(x0 + .38 * w, y0 + .2 * h, .3 * w, .14 * h, -14)(ctx)
    ctx.set_source(gloss)
    ctx.fill()
    ctx.restore()
    if outline:
        stroke(ctx, path, edge or darker(colour, .84), outline)


def sloped(ctx, path, top, bottom, outline=3.0, edge=None, diagonal=True):
    """Fills a path with a flat slope of light, for plates and machined parts."""
    path(ctx)
    x0, y0, x1, y1 = ctx.fill_extents()
    shade = cairo.LinearGradient(x0, y0, x1 if diagonal else x0, y1)
    shade.add_color_stop_rgb(0, *top)
    shade.add_color_stop_rgb(1, *bottom)
    ctx.set_source(shade)
    ctx.fill()
    if outline:
        stroke(ctx, path, edge or darker(bottom, .84), outline)


def eye(ctx, x, y, r, look=(.25, .25), iris=(.05, .04, .1)):
    fill(ctx, circle(x, y, r + 1.6), (.05, .03, .1))
    fill(ctx, circle(x, y, r), (.97, .97, .95))
    px, py = x + look[0] * r, y + look[1] * r
    fill(ctx, circle(px, py, r * .58), iris)
    fill(ctx, circle(px, py, r * .36), (.03, .02, .06))
    fill(ctx, circle(px - r * .2, py - r * .24, r * .2), (.98, .98, .98))
