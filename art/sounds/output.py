"""Writing of finished signals: float arrays of shape (2, frames) within -1..1."""
import subprocess
import tempfile
import wave
import zlib
from pathlib import Path

import numpy as np


def write_wav(path, signal, rate):
    frames = np.round(signal.T * 32767).astype("<i2")
    with wave.open(str(path), "wb") as file:
        file.setnchannels(2)
        file.setsampwidth(2)
        file.setframerate(rate)
        file.writeframes(frames.tobytes())


def write_song(path, signal, rate):
    """The file name is "<Band> - <Title>", without an extension."""
    band, title = path.name.split(" - ")
    serial = zlib.crc32(path.name.encode()) & 0x7FFFFFFF
    with tempfile.TemporaryDirectory() as folder:
        plain = Path(folder) / "song.wav"
        write_wav(plain, signal, rate)
        subprocess.run(["oggenc", "--quiet", "--quality", "3", "--serial", str(serial),
                        "--artist", band, "--title", title,
                        "--output", str(path), str(plain)], check=True)
