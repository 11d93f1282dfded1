#!/usr/bin/python3
"""Writes every sound of the game to assets/sounds and every song to assets/music.

Needs numpy, and oggenc from vorbis-tools. Always writes the same files.
Give names (or parts of names) to make only those: make_sounds.py _frog Parade
"""
import sys
from pathlib import Path

sys.dont_write_bytecode = True
HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE / "sounds"))

from output import write_song, write_wav  # noqa: E402
from samples import SAMPLES, make_sample  # noqa: E402
from songs import SONGS  # noqa: E402

ASSETS = HERE.parent / "assets"


def main(wanted):
    def chosen(name):
        return not wanted or any(part in name for part in wanted)

    (ASSETS / "sounds").mkdir(parents=True, exist_ok=True)
    (ASSETS / "music").mkdir(parents=True, exist_ok=True)
    for name in filter(chosen, SAMPLES):
        write_wav(ASSETS / "sounds" / f"{name}.wav", *make_sample(name))
        print(name)
    for name in filter(chosen, SONGS):
        write_song(ASSETS / "music" / name, *SONGS[name]().master())
        print(name)


if __name__ == "__main__":
    main(sys.argv[1:])
