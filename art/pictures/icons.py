"""The program's icon for desktops, in their usual sizes and as outlines."""
import io
import re
import cairo
from . import creatures
from .canvas import draw_icon

SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def outlines():
    """The icon as SVG."""
    written = io.BytesIO()
    with cairo.SVGSurface(written, 90, 90) as surface:
        surface.set_document_unit(cairo.SVGUnit.PX)
        ctx = cairo.Context(surface)
        ctx.set_line_join(cairo.LINE_JOIN_ROUND)
        ctx.set_line_cap(cairo.LINE_CAP_ROUND)
        creatures.glonk_round(ctx)
    # Their number counts all surfaces that the process has drawn on before.
    return re.sub(rb'"surface\d+"', b'"icon"', written.getvalue())


def icons(folder):
    """Writes <size>.png for each size and scalable.svg."""
    folder.mkdir(parents=True, exist_ok=True)
    for size in SIZES:
        draw_icon(creatures.glonk_round, size).save(folder / f"{size}.png")
    (folder / "scalable.svg").write_bytes(outlines())
