"""The sound effects. Each maker returns a mono signal or a (2, frames) stereo one."""
import numpy as np

from synth import Synth, decibels, note_number, note_pitch, pulse_weights, saw_weights, \
    triangle_weights

RATE = 22050
SINGLE, FREQUENT = -6, -12  # peak levels in dBFS

GLASS = [(1, 1, .16), (2.76, .5, .08), (5.4, .25, .04)]
WOOD = [(1, 1, .035), (2.57, .45, .018), (4.9, .2, .008)]


def pitch(name):
    return note_pitch(note_number(name))


def change_row(s):
    whoosh = s.swept_noise(s.glide(500, 1900, .15), 350, .15) * np.hanning(len(s.time(.15)))
    click = s.modes(1100, .04, WOOD) * s.decay(.04, .02)
    return s.place(.15, [(0, whoosh), (.105, .5 * click)])


def move_row(s):
    return s.modes(900, .06, [(1, 1, .012), (2.1, .3, .006)]) * s.decay(.06, .03)


def game_over(s):
    notes = [("A4", 0, .3), ("F4", .27, .3), ("E4", .54, .3), ("D4", .81, .7)]
    sounds = []
    for name, start, length in notes:
        t = s.time(length)
        bend = 1 + .006 * np.sin(2 * np.pi * 6 * t) * np.minimum(1, t / .2)
        if name == "D4":
            bend *= s.glide(1, .8, length)
        voice = s.harmonics(pitch(name) * bend, length, saw_weights(10), 900)
        low = s.harmonics(pitch(name) * bend / 2, length, triangle_weights(5))
        shape = s.swell(length, .02, length * .6) * s.decay(length, .25)
        sounds.append((start, (voice + .7 * low) * shape))
    return s.place(1.55, sounds)


def connect(tone):
    def make(s):
        body = s.sine(s.glide(tone * 1.25, tone * .9, .12), .12) * s.decay(.12, .025)
        return body + .25 * s.modes(tone * 2.6, .12, [(1, 1, .01)])
    return make


def pop(s):
    thump = s.sine(s.glide(140, 35, .6), .6) * s.decay(.6, .14)
    blast = s.noise(.6, 60, 900) * s.decay(.6, .13)
    crack = s.noise(.6, 900, 6000) * s.decay(.6, .03)
    return np.tanh(1.2 * thump + 1.5 * blast + .8 * crack)


def slam(s):
    tone = s.glide(1900, 160, .3) * (1 + .12 * s.sine(55, .3))
    buzz = s.harmonics(tone, .3, saw_weights(8), 2200)
    return (buzz + .25 * s.noise(.3, 2500)) * s.decay(.3, .08)


def growl(s, start, end, seconds, flutter):
    throat = s.harmonics(s.glide(start, end, seconds), seconds, saw_weights(60))
    voice = 2 * s.band(throat, 250, 600) + s.band(throat, 1000, 1500) + .6 * s.band(throat, 40, 200)
    voice = np.tanh(3 * voice / np.abs(voice).max())
    return voice * (.6 + .4 * s.sine(flutter, seconds))


def gorgon_spawns(s):
    hiss = s.noise(.7, 3000, 8000) * s.swell(.7, .25, .4)
    return growl(s, 62, 105, .7, 27) * s.swell(.7, .15, .3) + .5 * hiss


def gorgon_dies(s):
    hiss = s.noise(.7, 2000, 6000) * s.decay(.7, .2)
    wail = s.sine(s.glide(700, 140, .7) * (1 + .05 * s.sine(13, .7)), .7) * s.swell(.7, .02, .6)
    return growl(s, 190, 42, .7, s.glide(34, 9, .7)) * s.swell(.7, .01, .55) + .3 * hiss + .5 * wail


def coin(s):
    ring = [(1, 1, .07), (1.48, .7, .09), (2.21, .4, .05), (2.95, .25, .03)]
    def clink(tone):
        return s.modes(tone, .28, ring)
    return s.place(.35, [(0, .7 * clink(2350)), (.07, clink(2790))])


def blips(names, gap, duty):
    def make(s):
        def blip(name):
            tone = s.harmonics(pitch(name), gap, pulse_weights(12, duty), 1500)
            return tone * s.swell(gap, .005, gap * .5) * s.decay(gap, .05)
        return s.place(.3, [(i * gap, blip(name)) for i, name in enumerate(names)])
    return make


def bowling(s):
    thud = s.sine(s.glide(120, 70, .4), .4) * s.decay(.4, .05)
    pins = [(0, s.modes(620, .2, WOOD) + .3 * s.noise(.2, 500, 3000) * s.decay(.2, .01))]
    for start in np.sort(s.rng.uniform(.03, .26, 7)):
        knock = s.modes(s.rng.uniform(500, 1050), .13, WOOD)
        pins.append((start, (.65 - 1.6 * start) * knock))
    return s.place(.4, [(0, .8 * thud)] + pins)


def frog(rate_start, rate_end, formant, breaks):
    """A croak is a fast row of throat pulses, in syllables that start at the breaks."""
    def make(s):
        sounds = []
        for start, end in zip(breaks, breaks[1:] + [.31]):
            length = end - start - .015
            throat = s.harmonics(s.glide(rate_start, rate_end, length), length, [1] * 70)
            voice = s.band(throat, formant * .8, formant * 1.2)
            voice += .5 * s.band(throat, formant * 2.2, formant * 2.8)
            voice = np.tanh(3 * voice / np.abs(voice).max())
            sounds.append((start, voice * s.swell(length, .03, length * .5)))
        return s.place(.31, sounds)
    return make


def detonate(s):
    click = s.modes(1700, .05, WOOD) + s.noise(.05, 1500) * s.decay(.05, .004)
    rumble = s.noise(.5, 30, 160) * s.swell(.5, .03, .42)
    boom = s.sine(s.glide(75, 38, .5), .5) * s.decay(.5, .2, .01)
    grit = s.noise(.5, 200, 900) * s.decay(.5, .15, .02)
    return s.place(.6, [(0, .6 * click), (.045, .4 * click),
                        (.1, np.tanh(2.5 * rumble + .9 * boom + .35 * grit))])


def arpeggio(s):
    harp = [(1, 1, .16), (2, .4, .09), (3, .2, .05), (4, .1, .03)]
    names = ["C5", "E5", "G5", "B5", "D6", "G6"]
    return s.place(.65, [(.06 * i, s.modes(pitch(n), .5, harp)) for i, n in enumerate(names)])


def glass_breaks(s):
    sounds = [(0, .8 * s.noise(.1, 3000) * s.decay(.1, .012))]
    for start in s.rng.exponential(.07, 26):
        shard = s.modes(s.rng.uniform(2000, 5200), .2, [(1, 1, .03), (1.71, .6, .02)])
        sounds.append((start, s.rng.uniform(.2, .6) * np.exp(-start / .15) * shard))
    return s.place(.4, sounds)


def glass_chime(s):
    names = ["E6", "B6", "G#6", "E7"]
    return s.place(.75, [(.085 * i, s.modes(pitch(n), .6, GLASS)) for i, n in enumerate(names)])


def clapping(people, gap, brightness, cheer):
    """Everybody claps at an own pace, from an own place, with own hands."""
    def make(s):
        seconds = 3.0
        sides = [[], []]
        for _ in range(people):
            pace = gap * s.rng.uniform(.8, 1.25)
            right = s.rng.uniform(.15, .85)
            tone = brightness * s.rng.uniform(.7, 1.5)
            hands = s.noise(.06, tone * .7, tone * 1.5) * s.decay(.06, .011, .001)
            when = s.rng.uniform(0, pace) + s.rng.uniform(0, .3)
            while when < seconds - .1:
                clap = s.rng.uniform(.6, 1) * hands
                sides[0].append((when, (1 - right) * clap))
                sides[1].append((when + .0006 * (right - .5) + .0003, right * clap))
                when += pace * s.rng.normal(1, .06)
        crowd = np.array([s.place(seconds, side) for side in sides])
        crowd /= np.abs(crowd).max()
        if cheer:
            crowd += cheer * np.array([s.noise(seconds, 500, 1300) for _ in sides])
        return s.fade(np.tanh(2.5 * crowd), .15, 1.4)
    return make


SAMPLES = {
    "_changerow": (change_row, SINGLE),
    "_moverow": (move_row, FREQUENT),
    "_gameover": (game_over, SINGLE),
    "_connect01": (connect(210), FREQUENT),
    "_connect02": (connect(250), FREQUENT),
    "_connect03": (connect(300), FREQUENT),
    "_pop01": (pop, SINGLE),
    "_slam01": (slam, FREQUENT),
    "_gorgon01": (gorgon_spawns, SINGLE),
    "_gorgon02": (gorgon_dies, SINGLE),
    "_coin01": (coin, SINGLE),
    "_calculate01": (blips(["D5", "G#4"], .14, .5), SINGLE),
    "_calculate02": (blips(["C5", "F5", "A5"], .095, .25), SINGLE),
    "_bowling01": (bowling, SINGLE),
    "_frog01": (frog(48, 62, 620, [0]), SINGLE),
    "_frog02": (frog(70, 58, 800, [0, .13]), SINGLE),
    "_frog03": (frog(90, 120, 1050, [0, .1, .2]), SINGLE),
    "_detonate": (detonate, SINGLE),
    "_music01": (arpeggio, SINGLE),
    "_bauble01": (glass_breaks, SINGLE),
    "_bauble02": (glass_chime, SINGLE),
    "_clapping01": (clapping(6, .27, 1300, 0), SINGLE),
    "_clapping02": (clapping(22, .22, 1000, 0), SINGLE),
    "_clapping03": (clapping(80, .19, 850, .12), SINGLE),
}


def widen(s, sound):
    """Gives a mono sound a little room: each side hears one faint early echo of its own."""
    def echo(delay):
        shift = int(delay * s.rate)
        return np.concatenate([np.zeros(shift), sound[:-shift]])
    return np.array([sound + .12 * echo(.007), sound + .12 * echo(.011)])


def make_sample(name):
    maker, peak = SAMPLES[name]
    s = Synth(RATE, name)
    sound = maker(s)
    sides = sound if sound.ndim == 2 else widen(s, sound)
    sides = np.array([s.band(side, 30) for side in sides])
    sides = s.fade(sides, .002, .012)
    window = s.fade(np.ones(sides.shape[1]), .002, .012)
    sides -= sides.mean(axis=1, keepdims=True) / window.mean() * window
    return sides * decibels(peak) / np.abs(sides).max(), RATE
