"""The instruments of the songs: each takes a pitch and a length in seconds."""
import numpy as np

from synth import Synth, pulse_weights, saw_weights, triangle_weights

RATE = 44100
s = Synth(RATE, "instruments")


def _struck(partials, ring):
    def play(pitch, seconds):
        tone = s.modes(pitch, ring, partials) * s.decay(ring, 1e9, .002)
        return s.fade(tone, 0.001, ring * .3)
    return play


music_box = _struck([(1, 1, .7), (2.01, .25, .35), (3.98, .22, .15), (6.3, .08, .05)], 2.2)
glass = _struck([(1, 1, .8), (2.76, .22, .3), (5.4, .08, .1)], 2.4)
marimba = _struck([(1, 1, .22), (3.93, .32, .08), (9.2, .12, .03)], .8)
guitar = _struck([(1, 1, .35), (2, .5, .25), (3, .28, .17), (4, .14, .12), (5, .08, .08)], 1.2)


def drop(pitch, seconds):
    """A rain drop: a short tone that jumps up."""
    return s.sine(s.glide(pitch, pitch * 1.25, .12), .12) * s.decay(.12, .03, .004)


def double_bass(pitch, seconds):
    tone = s.modes(pitch, .9, [(1, 1, .4), (2, .5, .25), (3, .22, .15), (4, .1, .08)])
    return s.fade(tone, .006, .35)


def _detuned(pitch, seconds, count, cutoff, spread):
    return sum(s.harmonics(pitch * d, seconds, saw_weights(count), cutoff)
               for d in (1 - spread, 1, 1 + spread)) / 3


def strings(pitch, seconds):
    length = seconds + .5
    return _detuned(pitch, length, 18, 1000, .004) * s.swell(length, .45, .6)


def reed(pitch, seconds):
    length = seconds + .08
    breath = 1 - .12 * np.cos(2 * np.pi * 5 * s.time(length))
    tone = s.harmonics(pitch, length, [1, .5, .4, .22, .16, .08, .05], 2600)
    tone += .5 * s.harmonics(pitch * 1.004, length, [1, .3, .2], 2600)
    return .6 * tone * breath * s.swell(length, .06, .12)


def electric_piano(pitch, seconds):
    length = seconds + .35
    t = s.time(length)
    bite = (1.1 * np.exp(-t / .25) + .25) * min(1, 330 / pitch)
    angle = 2 * np.pi * pitch * t
    tone = np.sin(angle + bite * np.sin(angle)) + .08 * np.sin(7 * angle) * np.exp(-t / .05)
    return tone * np.exp(-t / 1.6) * s.swell(length, .004, .35)


def synth_bass(pitch, seconds):
    length = seconds + .05
    tone = s.harmonics(pitch, length, saw_weights(10), 350) + .5 * s.sine(pitch, length)
    return tone * s.swell(length, .008, .07) * np.exp(-s.time(length) / 1.5)


def _vibrato(pitch, length, depth):
    t = s.time(length)
    return pitch * (1 + depth * np.sin(2 * np.pi * 5.2 * t) * np.clip((t - .2) / .4, 0, 1))


def warm_lead(pitch, seconds):
    length = seconds + .12
    tone = s.harmonics(_vibrato(pitch, length, .005), length, saw_weights(20), 1500)
    return tone * s.swell(length, .04, .16)


def soft_pulse(pitch, seconds):
    length = seconds * .92
    tone = s.harmonics(_vibrato(pitch, length, .004), length, pulse_weights(24, .25), 1900)
    return tone * s.swell(length, .008, .05) * (.55 + .45 * np.exp(-s.time(length) / .2))


def square_pluck(pitch, seconds):
    tone = s.harmonics(pitch, .25, pulse_weights(16), 1400)
    return tone * s.decay(.25, .07) * s.swell(.25, .002, .1)


def triangle_bass(pitch, seconds):
    length = seconds * .9
    return s.harmonics(pitch, length, triangle_weights(9)) * s.swell(length, .006, .04)


def kick(pitch, seconds):
    return s.sine(s.glide(110, 42, .28), .28) * s.decay(.28, .09) * s.swell(.28, .002, .08)


def _noise(name, seconds, low, high=1e9):
    """The same noise whatever was played before."""
    return Synth(RATE, name).noise(seconds, low, high)


def rim(pitch, seconds):
    knock = s.modes(820, .12, [(1, 1, .02), (1.9, .5, .012)])
    return knock + .5 * _noise("rim", .12, 900, 5000) * s.decay(.12, .03)


def brush(pitch, seconds):
    return _noise("brush", .16, 2500, 8000) * s.swell(.16, .02, .13) ** 2


def hat(pitch, seconds):
    return _noise("hat", .07, 6500) * s.decay(.07, .016)


def shaker(pitch, seconds):
    return _noise("shaker", .08, 5000, 11000) * s.swell(.08, .03, .05)


def tick(pitch, seconds):
    return s.modes(2300, .05, [(1, 1, .008), (1.6, .6, .005)])


def tock(pitch, seconds):
    return s.modes(1500, .06, [(1, 1, .012), (1.6, .6, .006)])
