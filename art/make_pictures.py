#!/usr/bin/python3
"""Draws every picture of the game into assets/. Same input, same bytes."""
import sys
from functools import partial
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from pictures import creatures, effects, frames, glyphs, icons, menu, pieces, plates, screens, sidewindows  # noqa: E402
from pictures.canvas import draw_icon, draw_sharp  # noqa: E402

ROOT = Path(__file__).resolve().parent.parent


def save(picture, name, folder="assets"):
    path = ROOT / folder / name
    path.parent.mkdir(parents=True, exist_ok=True)
    picture.save(path)


def image(name, picture):
    save(picture, f"images/{name}.png")


def main():
    for name, draw in {**pieces.PIECES, **pieces.FRUIT}.items():
        image(name, draw_sharp(draw))
    for phase in range(len(creatures.FROG_PHASES)):
        image(f"frog{phase + 1:02}", draw_sharp(partial(creatures.frog, phase=phase), 100, 100))
    image("pointer", draw_sharp(effects.pointer, 70, 45))
    image("zap_h", draw_sharp(effects.zap_horizontal, 80, 80))
    image("zap_v", draw_sharp(effects.zap_vertical, 80, 80))
    image("explosion", draw_sharp(effects.explosion, 300, 300))
    for name, picture in glyphs.glyph_pictures().items():
        image(name, picture)
    for name in frames.MOODS:
        image(name, frames.frame(name))
    image("loading", screens.loading())
    for (theme, name), picture in plates.theme_pictures().items():
        save(picture, f"themes/{theme}/{name}.png")
    for name, draw in {**menu.PAGES, **sidewindows.WINDOWS}.items():
        save(draw(), f"forms/{name}.png")
    save(draw_icon(creatures.glonk_round, 64), "forms/icon.png")
    icons.icons(ROOT / "packaging/icons")
    for name, draw in {**pieces.PIECES, **pieces.FRUIT, "detonator": pieces.detonator}.items():
        save(draw_icon(draw, 112), f"pictures/{name}.png", "manual")


if __name__ == "__main__":
    main()
