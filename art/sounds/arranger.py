"""Songs as bars of notes: parsing of melodies and chords, mixing and mastering."""
import numpy as np

from instruments import RATE
from loudness import loudness
from synth import Synth, convolve, decibels, note_number, note_pitch

CHORDS = {
    "": [0, 4, 7], "m": [0, 3, 7], "7": [0, 4, 7, 10], "m7": [0, 3, 7, 10],
    "maj7": [0, 4, 7, 11], "m6": [0, 3, 7, 9], "maj9": [0, 4, 7, 11, 14],
    "m9": [0, 3, 7, 10, 14], "9sus": [0, 5, 7, 10, 14], "add9": [0, 4, 7, 14],
    "6": [0, 4, 7, 9], "9": [0, 4, 7, 10, 14], "7b9": [0, 4, 7, 10, 13], "m7b5": [0, 3, 6, 10],
}
LOUDNESS = -18  # LUFS, of every song
PEAK = -4.5  # dBFS


class Chord:
    def __init__(self, name, shift=0):
        split = 2 if name[1:2] in ("#", "b") else 1
        self.root = (note_number(name[:split] + "0") + shift) % 12
        self.steps = CHORDS[name[split:]]

    def bass(self, low=36):
        """The root, as the first such note from low upwards."""
        return low + (self.root - low) % 12

    def fifth(self, low=36):
        return self.bass(low) + 7

    def voices(self, low):
        """All notes of the chord within the octave above low, so that changes move little."""
        return sorted(low + (self.root + step - low) % 12 for step in self.steps)


def chords(text, shift=0):
    return [Chord(name, shift) for name in text.split()]


def melody(text, beats):
    """'A4:2 r:1 | ...' as (beat, note number, beats); every bar must be full."""
    notes = []
    for index, bar in enumerate(text.split("|")):
        now = 0.0
        for name, length in (word.split(":") for word in bar.split()):
            if name != "r":
                notes.append((index * beats + now, note_number(name), float(length)))
            now += float(length)
        assert now == beats, f"bar {index + 1} has {now} beats: {bar}"
    return notes


class Song:
    """Two swung notes take pair beats together; swing is the share of the first one."""

    def __init__(self, name, tempo, beats, bars, tail=4.0, swing=.5, pair=.5, loose=.003, echo_beats=.75):
        self.synth = Synth(RATE, name)
        self.beats, self.swing, self.pair, self.loose = beats, swing, pair, loose
        self.echo_beats = echo_beats
        self.beat_seconds = 60 / tempo
        frames = int((bars * beats * self.beat_seconds + tail) * RATE)
        self.dry, self.hall, self.echo = (np.zeros((2, frames)) for _ in range(3))

    def seconds_at(self, beat):
        whole, part = divmod(beat / self.pair, 1)
        if part < .5:
            part *= 2 * self.swing
        else:
            part = self.swing + (part - .5) * 2 * (1 - self.swing)
        return (whole + part) * self.pair * self.beat_seconds

    def add(self, sound, beat, gain, pan, hall, echo):
        when = self.seconds_at(beat) + abs(self.synth.rng.normal(0, self.loose))
        first = int(when * RATE)
        sound = sound[:self.dry.shape[1] - first]
        angle = (pan + 1) * np.pi / 4
        both = gain * np.outer((np.cos(angle), np.sin(angle)), sound)
        for bus, send in ((self.dry, 1), (self.hall, hall), (self.echo, echo)):
            if send:
                bus[:, first:first + len(sound)] += send * both

    def _reverb(self):
        t = self.synth.time(1.8)
        sides = []
        for side in self.hall:
            response = self.synth.noise(1.8, 250, 4000) * np.exp(-t / .35) * np.minimum(1, t / .015)
            sides.append(convolve(side, response / np.sqrt(np.sum(response ** 2))))
        return np.array(sides)

    def _echoes(self):
        """Repeats that change sides."""
        result = np.zeros_like(self.echo)
        step = int(self.echo_beats * self.beat_seconds * RATE)
        for count in range(1, 5):
            moved = self.echo[::-1] if count % 2 else self.echo
            result[:, count * step:] += .5 ** count * moved[:, :-count * step]
        return result

    def master(self):
        """The limiter takes away some loudness, so the level is set once before and corrected after it."""
        mix = self.dry + self._reverb() + self._echoes()
        mix = np.array([self.synth.band(side, 35, 15000) for side in mix])
        mix = self.synth.fade(mix, .01, 7)
        mix *= decibels(LOUDNESS - loudness(mix, RATE))
        mix *= decibels(LOUDNESS - loudness(_limited(mix), RATE))
        return _limited(mix), RATE


def _limited(mix):
    """Bends what is loud below the peak; what is soft stays as it is."""
    top = decibels(PEAK)
    knee = .6 * top
    over = np.maximum(0, np.abs(mix) - knee) / (top - knee)
    return np.sign(mix) * (np.minimum(np.abs(mix), knee) + (top - knee) * np.tanh(over))


class Part:
    """One instrument of a song, with its place in the mix."""

    def __init__(self, song, instrument, gain, pan=0.0, hall=.2, echo=0.0):
        self.song, self.instrument = song, instrument
        self.mix = (pan, hall, echo)
        self.gain = gain
        self.known = {}

    def note(self, beat, number=60, beats=1.0, accent=1.0):
        key = (number, beats)
        if key not in self.known:
            self.known[key] = self.instrument(note_pitch(number), beats * self.song.beat_seconds)
        touch = accent * self.song.synth.rng.uniform(.9, 1.05)
        self.song.add(self.known[key], beat, self.gain * touch, *self.mix)

    def tune(self, bar, text, shift=0, accent=1.0):
        start = bar * self.song.beats
        for beat, number, beats in melody(text, self.song.beats):
            self.note(start + beat, number + shift, beats, accent)

    def hits(self, bar, pattern):
        """One bar of a rhythm: a digit 1..9 is a hit of that strength, a dot a rest."""
        step = self.song.beats / len(pattern)
        for index, mark in enumerate(pattern):
            if mark != ".":
                self.note(bar * self.song.beats + index * step, accent=int(mark) / 9)
