"""How loud a song is to the ear: the integrated, gated loudness of ITU-R BS.1770."""
import numpy as np

OFFSET = -.691  # so that a full sine of 1 kHz in one channel has -3 LUFS
SILENCE = -70  # LUFS; what lies below counts as a pause
GATE = 10  # LU; blocks this far below the average don't count either


def _response(f, rate, numerator, denominator):
    z = np.exp(-2j * np.pi * f / rate)
    return np.polyval(numerator[::-1], z) / np.polyval(denominator[::-1], z)


def _weighting(f, rate):
    """A shelf lifts the trebles, as a head does, and a high pass drops the lowest basses."""
    k, q, gain = np.tan(np.pi * 1681.974450955533 / rate), 0.7071752369554196, 10 ** (3.999843853973347 / 20)
    middle = gain ** 0.4996667741545416
    shelf = _response(f, rate, (gain + middle * k / q + k * k, 2 * (k * k - gain), gain - middle * k / q + k * k),
                      (1 + k / q + k * k, 2 * (k * k - 1), 1 - k / q + k * k))
    k, q = np.tan(np.pi * 38.13547087602444 / rate), 0.5003270373238773
    whole = 1 + k / q + k * k
    return shelf * _response(f, rate, (1, -2, 1), (1, 2 * (k * k - 1) / whole, (1 - k / q + k * k) / whole))


def loudness(signal, rate):
    """In LUFS, of a stereo signal that is not all silence."""
    frames = signal.shape[1]
    room = 1 << (frames + rate - 1).bit_length()
    weights = _weighting(np.fft.rfftfreq(room, 1 / rate), rate)
    power = sum(np.fft.irfft(np.fft.rfft(side, room) * weights, room)[:frames] ** 2 for side in signal)
    step = rate // 10
    tenths = power[:frames // step * step].reshape(-1, step).mean(axis=1)
    blocks = np.convolve(tenths, np.full(4, 1 / 4), "valid")

    def average(over):
        return OFFSET + 10 * np.log10(np.mean(blocks[OFFSET + 10 * np.log10(blocks + 1e-30) > over]))
    return average(average(SILENCE) - GATE)
