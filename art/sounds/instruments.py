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
short_guitar = _struck([(1, 1, .13), (2, .55, .1), (3, .3, .07), (4, .14, .05)], .45)
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


def vibraphone(pitch, seconds):
    """The turning lids make it swell and fade; the damper comes down soon after the note."""
    length = min(seconds, 2.2) + .45
    tone = s.modes(pitch, length, [(1, 1, 1.1), (3.98, .16, .3), (9.9, .05, .05)])
    lids = 1 - .16 * (1 - np.cos(2 * np.pi * 5.4 * s.time(length)))
    return s.fade(tone * lids, .002, .4)


def clarinet(pitch, seconds):
    length = seconds + .04
    tone = s.harmonics(_vibrato(pitch, length, .003), length, [1, .05, .6, .06, .34, .07, .16, .05, .08], 2200)
    return .7 * tone * s.swell(length, .035, .07)


def ride(pitch, seconds):
    ping = s.modes(3170, .5, [(1, .5, .06), (1.47, .4, .05), (2.09, .3, .12), (2.56, .2, .1)])
    return s.fade(.3 * ping + .5 * _noise("ride", .5, 5500) * s.decay(.5, .1, .003), .001, .2)


def sweep(pitch, seconds):
    """A brush drawn over the snare."""
    return _noise("sweep", .3, 1800, 6000) * s.swell(.3, .12, .17) ** 1.5


def sleigh(pitch, seconds):
    """A handful of small bells, never quite together."""
    bells = s.modes(4100, .2, [(1, 1, .03), (1.18, .8, .04), (1.43, .7, .03), (1.71, .5, .02)])
    return s.place(.3, [(late, level * bells) for late, level in ((0, 1), (.014, .6), (.033, .8), (.061, .35))])


def accordion(pitch, seconds):
    """Two reeds that beat against each other, over a softer one an octave below."""
    length = seconds * .94 + .06
    weights = [1, .75, .6, .42, .34, .22, .16, .12, .08, .05]
    tone = s.harmonics(pitch * .9975, length, weights, 2300) + s.harmonics(pitch * 1.0025, length, weights, 2300)
    tone += .45 * s.harmonics(pitch / 2, length, weights[:6], 1500)
    bellows = .8 + .2 * np.exp(-s.time(length) / .15)
    return .35 * tone * bellows * s.swell(length, .022, .05)


def mandolin(pitch, seconds):
    """A pair of wires, plucked near the bridge."""
    wire = [(k, abs(np.sin(.62 * k)) / k, .5 / k ** .6) for k in range(1, 11)]
    tone = s.modes(pitch, .9, wire) + s.modes(pitch * 1.0018, .9, wire)
    return s.fade(.6 * tone, .001, .4)


def frame_drum(pitch, seconds):
    skin = s.sine(s.glide(105, 72, .35), .35) * s.decay(.35, .11, .003)
    return s.fade(skin + .12 * _noise("frame drum", .35, 300, 1600) * s.decay(.35, .03), .001, .15)


def tambourine(pitch, seconds):
    jingles = s.modes(5200, .2, [(1, .5, .04), (1.31, .5, .05), (1.83, .4, .03)])
    return .4 * jingles + .6 * _noise("tambourine", .2, 5000, 12000) * s.decay(.2, .035)


def spoons(pitch, seconds):
    return s.modes(1180, .06, [(1, 1, .01), (2.3, .6, .006), (3.9, .3, .004)])


def twang(pitch, seconds):
    """A guitar string struck hard beside the bridge, through an amplifier that trembles."""
    length = min(seconds, 2.5) + .5
    t = s.time(length)
    phase = s.phase(_vibrato(pitch, length, .004) * (1 + .006 * np.exp(-t / .03)), length)
    tone = sum(np.sin(.45 * k) / k ** .8 * np.exp(-t * k ** .65 / 1.1) * np.sin(k * phase)
               for k in range(1, 15) if k * pitch < 5500)
    return s.fade(tone * (1 - .14 * (1 - np.cos(2 * np.pi * 6.1 * t))), .002, .4)


def chop(pitch, seconds):
    """The same guitar with the hand on its strings."""
    return s.fade(s.modes(pitch, .16, [(k, abs(np.sin(.9 * k)) / k, .06) for k in range(1, 9)]), .001, .08)


def organ(pitch, seconds):
    """Drawbars over a turning horn."""
    length = seconds + .06
    turn = np.sin(2 * np.pi * 6.3 * s.time(length))
    tone = s.harmonics(pitch / 2 * (1 + .002 * turn), length, [.7, 1, .6, .5, 0, .3, 0, .18], 2600)
    return .5 * tone * (1 + .12 * turn) * s.swell(length, .012, .07)


def dub_bass(pitch, seconds):
    length = seconds + .06
    tone = s.harmonics(pitch, length, [1, .45, .16, .06], 300)
    return tone * s.swell(length, .012, .08) * np.exp(-s.time(length) / 1.8)


def fog_horn(pitch, seconds):
    length = seconds + .9
    return _detuned(pitch, length, 14, 420, .006) * s.swell(length, .35, 1)


def sea(pitch, seconds):
    """A wave that comes in and runs out."""
    wave = _noise("sea", seconds, 250, 1800)
    return wave * np.sin(np.pi * s.time(seconds) / seconds) ** 2
