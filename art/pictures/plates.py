"""The theme plates: quiet, dark grounds, computed pixel by pixel."""
import colorsys
import numpy as np
from PIL import Image
from .canvas import DENSITY, in_few_colours, to_image

WIDTH, HEIGHT = 500, 350


def noise(rng, cells):
    """Smooth noise in -1..1 with features about 1/cells of the width."""
    grid = rng.uniform(-1, 1, (max(2, cells * HEIGHT // WIDTH) + 2, cells + 2)).astype(np.float32)
    return np.asarray(Image.fromarray(grid).resize((DENSITY * WIDTH, DENSITY * HEIGHT), Image.BICUBIC))


def layered(rng, cells, octaves):
    return sum(noise(rng, cells << k) / 2 ** k for k in range(octaves))


def step(low, high, x):
    t = np.clip((x - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def hue(h, s, v):
    return np.array(colorsys.hsv_to_rgb(h % 1, s, v), dtype=np.float32) * 255


def ramp(t, stops):
    """Colours along 0..1 through evenly spaced stops."""
    at = np.linspace(0, 1, len(stops))
    return np.stack([np.interp(t, at, [s[c] for s in stops]) for c in range(3)], axis=-1)


def grid():
    """y and x of each pixel."""
    return np.mgrid[0:HEIGHT:1 / DENSITY, 0:WIDTH:1 / DENSITY].astype(np.float32)


def vignette():
    y, x = grid()
    d = np.hypot((x - WIDTH * .45) / WIDTH, (y - HEIGHT * .42) / HEIGHT)
    return (1.08 - .62 * d ** 1.6)[..., None]


def cells(seed, h):
    """Soft living cells: walls, lit membranes and a nucleus in each."""
    rng = np.random.default_rng(seed)
    y, x = grid()
    x, y = x + 13 * layered(rng, 5, 2), y + 13 * layered(rng, 5, 2)
    pitch = 76
    centres = np.array([(cx + (ry % 2) * pitch / 2 + rng.uniform(-15, 15), ry * pitch * .87 + rng.uniform(-14, 14))
                        for ry in range(-1, 8) for cx in range(-pitch, WIDTH + pitch, pitch)])
    distance = np.hypot(x[..., None] - centres[:, 0], y[..., None] - centres[:, 1])
    owner = distance.argmin(axis=-1)
    near = distance.min(axis=-1)
    pull = np.exp((near[..., None] - distance) / 9).sum(axis=-1) - 1
    gap = -9 * np.log(pull.clip(1e-9))      # to all neighbours at once, which rounds the corners
    dx, dy = x - centres[owner, 0], y - centres[owner, 1]
    inside = step(0, 9, gap)
    tone = rng.uniform(-.045, .045, len(centres))[owner]
    light = .5 - (dx + dy) / 110 + .5 * tone
    body = ramp(np.clip(.28 + .5 * light, 0, 1), [hue(h + .03, .8, .1), hue(h, .66, .27), hue(h - .03, .5, .42)])
    wall = hue(h + .05, .7, .07)
    picture = wall + (body - wall) * inside[..., None]
    rim = np.exp(-((gap - 9) / 4.5) ** 2) * np.clip(.5 - (dx + dy) / 60, .05, 1)
    picture += rim[..., None] * hue(h - .05, .4, .26)
    nucleus = 1 - step(.75, 1.05, np.hypot(dx - 3, (dy - 2) * 1.15) / rng.uniform(8, 13, len(centres))[owner])
    picture += (nucleus * (.35 - (dx + dy) / 45))[..., None] * hue(h + .09, .55, .3)
    picture += (noise(rng, 60) * 4 * inside)[..., None]
    return in_few_colours(to_image(picture * vignette() * .84, 1.6, seed))


def embers(seed, h, heat, scale):
    """Dark crust drifting on a glow, with sparks that rise from it."""
    rng = np.random.default_rng(seed)
    y, x = grid()
    a, b = layered(rng, scale, 4), layered(rng, scale, 4)
    crack = np.maximum(np.exp(-(np.abs(a) * 7.5) ** .9), .7 * np.exp(-(np.abs(b) * 9) ** .9))
    drift = step(-.7, .8, layered(rng, 2, 2) + (y / HEIGHT - .5) * .9)
    glow = crack * (.15 + heat * drift) + .18 * heat * drift
    relief = layered(rng, 14, 4)
    slope = np.roll(relief, (-2 * DENSITY, -2 * DENSITY), (0, 1)) - relief
    stops = [hue(h + .01, .7, .12), hue(h, .86, .26), hue(h + .02, .88, .56), hue(h + .06, .8, .82), hue(h + .1, .5, .95)]
    picture = ramp(np.clip(glow, 0, 1), stops) * (1 + .55 * slope * (1 - crack))[..., None].clip(.3, 1.7)
    for _ in range(46):
        sx, sy, r = rng.uniform(0, WIDTH), rng.uniform(0, HEIGHT), rng.uniform(.8, 2.1)
        spot = np.exp(-((x - sx) ** 2 + ((y - sy) * .7) ** 2) / (2 * r * r))
        halo = np.exp(-((x - sx) ** 2 + (y - sy) ** 2) / (2 * (r * 5) ** 2))
        picture += (.75 * spot)[..., None] * hue(h + .1, .45, .8) + (.17 * halo)[..., None] * hue(h + .03, .85, .7)
    return in_few_colours(to_image(picture * vignette() * .8, 1.6, seed))


def theme_pictures():
    """Plates by theme and file name."""
    pictures = {}
    for i, h in enumerate((.55, .44, .76, .92, .63)):
        pictures["Cells", f"plate_{i + 1:02}"] = cells(20 + i, h)
    moods = ((.01, .6, 3), (.97, .6, 4), (.05, .55, 5), (.58, .6, 3), (.83, .6, 4))
    for i, (h, heat, scale) in enumerate(moods):
        pictures["Embers", f"plate_{i + 1:02}"] = embers(40 + i, h, heat, scale)
    return pictures
