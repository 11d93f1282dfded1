"""Supersampled drawing surfaces and the ways a finished picture leaves them."""
import cairo
import numpy as np
from PIL import Image

KEY = (255, 255, 255)   # transparent wherever a picture is drawn keyed
BRIGHTEST = 250         # no drawn pixel may ever equal the key


class Canvas:
    """A transparent sheet; `ctx` is in final pixels whatever the scale."""

    def __init__(self, width, height, scale=4):
        self.scale = scale
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width * scale, height * scale)
        self.ctx = cairo.Context(self.surface)
        self.ctx.scale(scale, scale)
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

    def keyed(self):
        """Hard-edged picture on the key colour."""
        colour, alpha = self._reduced()
        pixels = colour.clip(0, BRIGHTEST).round().astype(np.uint8)
        drawn = alpha >= 127.5
        around = np.pad(drawn, 1)
        pinhole = around[:-2, 1:-1] & around[2:, 1:-1] & around[1:-1, :-2] & around[1:-1, 2:]
        drawn |= pinhole & (alpha > 0)      # a lone gap would only look like a white speck
        pixels[~drawn] = KEY
        return Image.fromarray(pixels, "RGB")

    def transparent(self):
        """The drawing alone, with soft edges."""
        colour, alpha = self._reduced()
        pixels = np.dstack([colour, alpha]).round().astype(np.uint8)
        return Image.fromarray(pixels, "RGBA")

    def indexed(self):
        """Whole picture in 256 colours of its own: as good to the eye, at a third of the size."""
        return self.opaque().quantize(256, method=Image.Quantize.LIBIMAGEQUANT)

    def opaque(self, grain=0.0, seed=1):
        """Whole picture; a little grain hides the banding of dark gradients."""
        colour, _ = self._reduced()
        return to_image(colour, grain, seed)


def to_image(colour, grain=0.0, seed=1):
    noise = np.random.default_rng(seed).normal(0, 1, colour.shape[:2])[..., None] * grain
    return Image.fromarray((colour + noise).clip(0, BRIGHTEST).round().astype(np.uint8), "RGB")


def draw_icon(draw, size):
    """A piece of 90 by 90 as a picture of its own, in any size."""
    canvas = Canvas(size, size)
    canvas.ctx.scale(size / 90, size / 90)
    draw(canvas.ctx)
    return canvas.transparent()


def draw_keyed(draw, width=90, height=90):
    canvas = Canvas(width, height)
    draw(canvas.ctx)
    return canvas.keyed()
