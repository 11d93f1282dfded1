"""The program's icon for desktops, in their usual sizes, as outlines, and for Windows."""
import io
import re
import struct
import cairo
from . import creatures
from .canvas import draw_icon

SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
WINDOWS_SIZES = (16, 24, 32, 48, 64, 128, 256)  # at most 256


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


def windows_icon(files):
    """An .ico with the pictures of these PNG files, as they are."""
    pictures = [file.read_bytes() for file in files]
    head, place = struct.pack("<HHH", 0, 1, len(pictures)), 6 + 16 * len(pictures)
    for picture in pictures:
        size = int.from_bytes(picture[16:20], "big") % 256  # 0 stands for 256
        head += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    return head + b"".join(pictures)


def icons(folder):
    """Writes <size>.png for each size, scalable.svg and glonks.ico."""
    folder.mkdir(parents=True, exist_ok=True)
    for size in SIZES:
        draw_icon(creatures.glonk_round, size).save(folder / f"{size}.png")
    (folder / "scalable.svg").write_bytes(outlines())
    (folder / "glonks.ico").write_bytes(windows_icon([folder / f"{size}.png" for size in WINDOWS_SIZES]))
