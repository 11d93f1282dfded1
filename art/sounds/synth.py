"""Oscillators, filters and envelopes shared by the samples and the songs."""
import zlib

import numpy as np

NOTE_STEPS = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
SHIFTS = {"#": 1, "b": -1}


def note_number(name):
    """'A4' is 69; sharps and flats as in 'C#5', 'Bb3'."""
    return NOTE_STEPS[name[0]] + SHIFTS.get(name[1], 0) + 12 * (int(name[-1]) + 1)


def note_pitch(number):
    return 440.0 * 2 ** ((number - 69) / 12)


def decibels(level):
    return 10 ** (level / 20)


def convolve(signal, response):
    size = len(signal) + len(response) - 1
    room = 1 << (size - 1).bit_length()
    spectrum = np.fft.rfft(signal, room) * np.fft.rfft(response, room)
    return np.fft.irfft(spectrum, room)[:len(signal)]


# Strengths of the harmonics 1, 2, 3... of the classic waves.
def saw_weights(count):
    return [1 / k for k in range(1, count + 1)]


def pulse_weights(count, duty=0.5):
    return [np.sin(np.pi * k * duty) / k for k in range(1, count + 1)]


def triangle_weights(count):
    return [np.sin(np.pi * k / 2) / k ** 2 for k in range(1, count + 1)]


class Synth:
    """Makes mono signals at one sample rate; its noise depends on its name only."""

    def __init__(self, rate, name):
        self.rate = rate
        self.rng = np.random.default_rng(zlib.crc32(name.encode()))

    def time(self, seconds):
        return np.arange(int(round(seconds * self.rate))) / self.rate

    def glide(self, start, end, seconds):
        """A pitch moving evenly, in musical steps, from start to end."""
        return start * (end / start) ** (self.time(seconds) / seconds)

    def phase(self, pitch, seconds):
        steps = np.broadcast_to(pitch, len(self.time(seconds)))
        return 2 * np.pi * np.cumsum(steps) / self.rate

    def sine(self, pitch, seconds):
        return np.sin(self.phase(pitch, seconds))

    def harmonics(self, pitch, seconds, weights, cutoff=1e9):
        """A tone of whole harmonics, softened above the cutoff and free of aliases."""
        phase = self.phase(pitch, seconds)
        highest, usual = np.max(pitch), np.mean(pitch)
        tone = np.zeros(len(phase))
        for k, weight in enumerate(weights, 1):
            if abs(weight) > 1e-6 and k * highest < 0.45 * self.rate:
                tone += weight / (1 + (k * usual / cutoff) ** 2) * np.sin(k * phase)
        return tone

    def modes(self, pitch, seconds, partials):
        """A struck body. Partials are (ratio, strength, seconds to fall to a third)."""
        t = self.time(seconds)
        tone = np.zeros(len(t))
        for ratio, strength, fall in partials:
            if ratio * pitch < 0.45 * self.rate:
                tone += strength * np.exp(-t / fall) * np.sin(2 * np.pi * ratio * pitch * t)
        return tone

    def noise(self, seconds, low=0, high=1e9):
        return self.band(self.rng.standard_normal(len(self.time(seconds))), low, high)

    def swept_noise(self, pitch, width, seconds):
        """Noise of the given width around a moving pitch."""
        return self.noise(seconds, 0, width) * self.sine(pitch, seconds)

    def band(self, signal, low=0, high=1e9):
        """Lets the frequencies between low and high through, with smooth shoulders."""
        room = len(signal) + self.rate // 10
        f = np.fft.rfftfreq(room, 1 / self.rate)
        gain = 1 / np.sqrt(1 + (f / high) ** 6)
        if low:
            slope = (f / low) ** 3
            gain *= slope / np.sqrt(1 + slope ** 2)
        return np.fft.irfft(np.fft.rfft(signal, room) * gain, room)[:len(signal)]

    def decay(self, seconds, fall, attack=0.002):
        t = self.time(seconds)
        return np.minimum(1, t / attack) * np.exp(-t / fall)

    def swell(self, seconds, attack, release):
        t = self.time(seconds)
        return np.clip(np.minimum(t / attack, (seconds - t) / release), 0, 1)

    def place(self, seconds, sounds):
        """Adds up (start, sound) pairs in a signal of the given length."""
        result = np.zeros(len(self.time(seconds)))
        for start, sound in sounds:
            first = int(start * self.rate)
            end = min(len(result), first + len(sound))
            result[first:end] += sound[:end - first]
        return result

    def fade(self, signal, fade_in, fade_out):
        """Fades the ends of a mono or stereo signal to exactly zero."""
        window = np.ones(signal.shape[-1])
        for seconds, part in ((fade_in, slice(None)), (fade_out, slice(None, None, -1))):
            count = int(seconds * self.rate)
            window[part][:count] *= 0.5 - 0.5 * np.cos(np.pi * np.arange(count) / count)
        return signal * window
