"""Supersampled drawing surfaces and the ways a finished picture leaves them."""
import cairo
import numpy as np
from PIL import Image

DENSITY = 2     # pixels of a game picture to a logical one, each way


class Canvas:
    """A transparent sheet of logical pixels, drawn `scale` times as fine as the picture that comes of it."""

    def __init__(self, width, height, scale=4, density=1):
        self.scale = scale
        fine = scale * density
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width * fine, height * fine)
        self.ctx = cairo.Context(self.surface)
        self.ctx.scale(fine, fine)
        self.ctx.set_line_join(cairo.LINE_JOIN_ROUND)
        self.ctx.set_line_cap(cairo.LINE_CAP_ROUND)

    def _reduced(self):
        """Colour (straight) and alpha, both 0..255, at the final size."""
        self.surface.flush()
        size = (self.surface.get_width(), self.surface.get_height())
        raw = Image.frombuffer("RGBA", size, self.surface.get_data(), "raw", "RGBA", 0, 1)
        bgra = np.asarray(raw.reduce(self.scale)).astype(np.float32)
        alpha = bgra[..., 3:]
        colour = bgra[..., 2::-1] * 255.0 / np.maximum(alpha, 1)
        return colour.clip(0, 255), alpha[..., 0]

    def transparent(self):
        """The drawing alone, with soft edges."""
        colour, alpha = self._reduced()
        pixels = np.dstack([colour, alpha]).round().astype(np.uint8)
        return Image.fromarray(pixels, "RGBA")

    def indexed(self):
        """Whole picture in 256 colours of its own: as good to the eye, at a third of the size."""
        return in_few_colours(self.opaque())

    def opaque(self, grain=0.0, seed=1):
        """Whole picture; a little grain hides the banding of dark gradients."""
        colour, _ = self._reduced()
        return to_image(colour, grain, seed)


def in_few_colours(picture):
    return picture.quantize(256, method=Image.Quantize.LIBIMAGEQUANT)


def to_image(colour, grain=0.0, seed=1):
    noise = np.random.default_rng(seed).normal(0, 1, colour.shape[:2])[..., None] * grain
    return Image.fromarray((colour + noise).clip(0, 255).round().astype(np.uint8), "RGB")


def draw_icon(draw, size):
    """A piece of 90 by 90 as a picture of its own, in any size."""
    canvas = Canvas(size, size)
    canvas.ctx.scale(size / 90, size / 90)
    draw(canvas.ctx)
    return canvas.transparent()


def draw_sharp(draw, width=90, height=90):
    """A picture of the game, with soft edges."""
    canvas = Canvas(width, height, density=DENSITY)
    draw(canvas.ctx)
    return canvas.transparent()
