"""The three bonus songs, of the same form as the four: intro, A, A, B, A, ending."""
import instruments as play
from arranger import Part, Song, chords


def _walk(chord, before, after):
    """Four notes of a walking bass, the last a half step from the next root."""
    root, goal = chord.bass(33), after.bass(33)
    third, fifth = root + chord.steps[1], root + chord.steps[2]
    steps = (root + 12, fifth, third) if before.root == chord.root else (root, third, fifth)
    return (*steps, goal + 1 if steps[-1] > goal else goal - 1)


def snowed_in_sideways():
    """A brisk jazz tune that keeps slipping a half step sideways, its last A and all."""
    intro = "G6 Abmaj7 G6 Abmaj7"
    verse = "G6 G6 Abmaj7 Abmaj7 Am7 D9 Bm7 E7b9 Am7 Bbmaj7 Am7 D7b9 G6 Abmaj7 G6 D9"
    bridge = "Cm9 F9 Bbmaj7 Bbmaj7 Bbm7 Eb9 Abmaj7 Abmaj7 Am7b5 D7b9 Gm7 C9 Am7 Bbmaj7 Am7 D9"
    ending = "G6 Abmaj7 G6 Abmaj7"
    motif = "r:2 B4:.5 D5:.5 E5:1 | r:2 C5:.5 Eb5:.5 F5:1 | r:2 B4:.5 D5:.5 E5:1 | F5:.5 Eb5:.5 C5:.5 Ab4:.5 r:2"
    tune = """r:.5 D5:.5 E5:.5 G5:.5 B5:1 A5:.5 G5:.5 | E5:1.5 D5:.5 r:2 |
        r:.5 Eb5:.5 F5:.5 Ab5:.5 C6:1 Bb5:.5 Ab5:.5 | F5:1.5 Eb5:.5 r:2 |
        r:.5 E5:.5 G5:.5 A5:.5 B5:.5 C6:.5 A5:1 | F#5:1.5 E5:.5 C5:1 r:1 |
        r:.5 D5:.5 F#5:.5 A5:.5 B5:1 A5:1 | G#5:1.5 F5:.5 D5:1 r:1 |
        r:.5 C5:.5 E5:.5 G5:.5 C6:1 B5:.5 A5:.5 | r:.5 D5:.5 F5:.5 A5:.5 C6:1 Bb5:.5 A5:.5 |
        G5:1 E5:.5 G5:1.5 E5:.5 C5:.5 | Eb5:1.5 D5:.5 C5:.5 Eb5:.5 D5:1 |
        r:.5 B4:.5 D5:.5 E5:.5 G5:1.5 E5:.5 | r:.5 C5:.5 Eb5:.5 F5:.5 Ab5:1.5 F5:.5 |
        D5:1 E5:.5 G5:1.5 r:1 | r:1.5 F#5:.5 E5:.5 C5:.5 A4:1"""
    varied = """r:.5 D5:.5 E5:.5 G5:.5 B5:.5 A5:.5 G5:.5 E5:.5 | D5:1 E5:.5 G5:.5 r:2 |
        r:.5 Eb5:.5 F5:.5 Ab5:.5 C6:.5 Bb5:.5 Ab5:.5 F5:.5 | Eb5:1 F5:.5 Ab5:.5 r:2 |
        E5:.5 G5:.5 A5:.5 C6:.5 B5:.5 G5:.5 E5:1 | F#5:.5 A5:.5 E5:.5 F#5:.5 C5:1 r:1 |
        D5:.5 F#5:.5 A5:.5 D6:.5 B5:1 F#5:1 | G#5:.5 F5:.5 D5:.5 B4:.5 G#4:1 r:1 |
        r:.5 C5:.5 E5:.5 G5:.5 B5:1 C6:.5 A5:.5 | r:.5 D5:.5 F5:.5 A5:.5 C6:1 D6:.5 Bb5:.5 |
        C6:1 A5:.5 G5:1.5 E5:1 | Eb5:.5 F#5:.5 A5:.5 C6:.5 Bb5:.5 A5:.5 F#5:1 |
        r:.5 B4:.5 D5:.5 E5:.5 G5:.5 A5:.5 B5:1 | r:.5 C5:.5 Eb5:.5 F5:.5 Ab5:.5 Bb5:.5 C6:1 |
        B5:.5 G5:.5 E5:.5 D5:.5 G5:2 | r:1 E5:.5 F#5:.5 A5:1 C6:1"""
    answers = """r:4 | r:2 B4:.5 D5:.5 E5:1 | r:4 | r:2 C5:.5 Eb5:.5 F5:1 |
        r:4 | r:3 F#4:.5 A4:.5 | D5:2 F#4:2 | B4:2 G#4:2 | A4:3 r:1 | D5:3 r:1 |
        C5:2 E4:2 | F#4:2 A4:2 | B4:3 r:1 | C5:3 r:1 | B4:2 D5:2 | F#4:3 r:1"""
    middle = """G5:1.5 F5:.5 Eb5:1 D5:1 | Eb5:1.5 C5:.5 A4:2 | D5:1 F5:.5 A5:1.5 G5:1 | F5:3 r:1 |
        F5:1.5 Eb5:.5 Db5:1 C5:1 | Db5:1.5 Bb4:.5 G4:2 | C5:1 Eb5:.5 G5:1.5 F5:1 | Eb5:3 r:1 |
        r:.5 C5:.5 Eb5:.5 G5:.5 A5:1 G5:.5 Eb5:.5 | F#5:1.5 Eb5:.5 C5:1 r:1 |
        r:.5 Bb4:.5 D5:.5 F5:.5 G5:1 F5:.5 D5:.5 | E5:1.5 D5:.5 Bb4:1 r:1 |
        C5:.5 E5:.5 G5:.5 E5:.5 A5:1 r:1 | D5:.5 F5:.5 A5:.5 F5:.5 Bb5:1 r:1 |
        A5:1 G5:.5 E5:.5 C5:1 r:1 | E5:.5 F#5:.5 A5:.5 C6:.5 D6:1 r:1"""
    sidesteps = """r:.5 B4:.5 D5:.5 E5:.5 G5:1.5 E5:.5 | r:.5 C5:.5 Eb5:.5 F5:.5 Ab5:1.5 F5:.5 |
        r:.5 B4:.5 D5:.5 E5:.5 G5:1.5 E5:.5 | r:.5 C5:.5 Eb5:.5 F5:.5 Ab5:.5 Bb5:.5 C6:1"""
    way_back = "r:.5 D5:.5 E5:.5 G5:.5 B5:1 A5:.5 G5:.5 | D6:4"

    song = Song("Snowed In Sideways", tempo=168, beats=4, bars=74, tail=3, swing=.64, pair=1, loose=.005)
    vibes = Part(song, play.vibraphone, .36, .15, hall=.25)
    comping = Part(song, play.vibraphone, .1, .35, hall=.3)
    clarinet = Part(song, play.clarinet, .3, -.25, hall=.3)
    guitar = Part(song, play.short_guitar, .2, -.45, hall=.12)
    bass = Part(song, play.double_bass, .47, 0, hall=.06)
    ride = Part(song, play.ride, .125, .35, hall=.12)
    sweep = Part(song, play.sweep, .13, -.15, hall=.1)
    brush = Part(song, play.brush, .17, -.1, hall=.12)
    kick = Part(song, play.kick, .3, hall=.03)
    bells = Part(song, play.sleigh, .08, .45, hall=.3)

    harmony = chords(" ".join([intro, verse, verse, bridge])) + chords(" ".join([verse, ending]), 1) + chords("G6 G6")
    for bar, chord in enumerate(harmony):
        at, last = 4 * bar, bar == 73
        if last:
            bass.note(at, chord.bass(33), 4)
            for number in chord.voices(55):
                comping.note(at, number, 6, 1.8)
            bells.hits(bar, "9...")
            ride.hits(bar, "9...")
            continue
        bridging, turning = 36 <= bar < 52, bar in (19, 35, 51, 67)
        walk = _walk(chord, harmony[bar - 1], harmony[bar + 1])
        if bar < 4 or turning:
            bass.note(at, walk[0], 1.5)
            bass.note(at + 2.5, walk[3], 1, .8)
        else:
            for beat, number in enumerate(walk):
                bass.note(at + beat, number, 1, (1, .85, .95, .85)[beat])
        if bar >= 2:
            for beat in range(1 if turning else 4):
                for number in chord.voices(52):
                    guitar.note(at + beat, number, accent=(.6, 1, .65, .95)[beat])
        if bridging or bar >= 52:
            for beat in ((.5, 3) if bar % 2 else (1.5,)):
                for number in chord.voices(59):
                    comping.note(at + beat, number, .5)
        sweep.hits(bar, "7.9." if not turning else "9...")
        if bar >= 4:
            brush.hits(bar, "..7...8." if not turning else "8..7.878")
            ride.hits(bar, "7.857.85" if not turning else "8.......")
            kick.hits(bar, "5.4.5.4." if not turning else "7..6....")
        if bridging:
            bells.hits(bar, "8.6.")
        elif bar >= 52 or bar < 4:
            bells.hits(bar, "8576")
    clarinet.tune(0, motif)
    vibes.tune(4, tune)
    vibes.tune(20, varied)
    clarinet.tune(20, answers)
    clarinet.tune(36, middle, accent=1.25)
    vibes.tune(52, tune, 1)
    clarinet.tune(52, tune, 1 - 12, 1.1)
    vibes.tune(68, sidesteps, 1)
    clarinet.tune(68, sidesteps, 1, .6)
    vibes.tune(72, way_back)
    clarinet.tune(72, way_back, -12)
    return song


def warm_bread_waltz():
    """A quick country dance in the dorian mode, for accordion and mandolins."""
    intro = "Em A Em D Em A Bm Em"
    verse = "Em A Em D G D A Bm Em A Em D G D Bm Em"
    bridge = "G D Em C G D Am D G D Em Bm C G"
    ending = "G D A Bm G A E E"
    tune = """E5:1.5 F#5:.5 G5:1 | A5:1 E5:1 C#5:1 | B4:1 E5:.5 F#5:.5 G5:1 | F#5:1.5 E5:.5 D5:1 |
        B5:1 A5:.5 G5:.5 D5:1 | A5:1 F#5:.5 E5:.5 D5:1 | E5:.5 F#5:.5 E5:.5 D5:.5 C#5:1 | D5:1 B4:2 |
        E5:1.5 F#5:.5 G5:1 | A5:1 C#6:1 A5:1 | B5:1 G5:.5 F#5:.5 E5:1 | F#5:.5 G5:.5 A5:1 D5:1 |
        B5:.5 A5:.5 G5:.5 A5:.5 B5:1 | A5:.5 G5:.5 F#5:1 D5:1 | F#5:1 D5:1 B4:1 | E5:3"""
    varied = """E5:.5 B4:.5 E5:.5 F#5:.5 G5:.5 E5:.5 | A5:.5 E5:.5 C#5:.5 E5:.5 A5:1 |
        G5:.5 F#5:.5 E5:.5 F#5:.5 G5:.5 B5:.5 | A5:.5 F#5:.5 D5:.5 E5:.5 F#5:1 |
        B5:.5 D6:.5 A5:.5 G5:.5 D5:1 | A5:.5 B5:.5 A5:.5 F#5:.5 D5:1 |
        C#5:.5 D5:.5 E5:.5 F#5:.5 E5:.5 C#5:.5 | D5:.5 C#5:.5 B4:2 |
        E5:.5 B4:.5 E5:.5 F#5:.5 G5:.5 E5:.5 | A5:.5 B5:.5 C#6:1 A5:1 |
        B5:.5 A5:.5 G5:.5 F#5:.5 E5:1 | F#5:.5 G5:.5 A5:.5 F#5:.5 D5:1 |
        G5:.5 A5:.5 B5:.5 A5:.5 G5:1 | F#5:.5 G5:.5 A5:.5 G5:.5 F#5:.5 D5:.5 |
        F#5:.5 E5:.5 D5:.5 C#5:.5 B4:.5 D5:.5 | E5:2 B4:1"""
    middle = """D5:1 G5:1 B5:1 | A5:1.5 G5:.5 F#5:1 | G5:.5 A5:.5 G5:.5 F#5:.5 E5:1 | E5:1 C5:2 |
        D5:1 B4:.5 C5:.5 D5:1 | A5:2 F#5:1 | C5:1 E5:1 A5:1 | F#5:3 |
        D5:1 G5:1 B5:1 | A5:1 C6:.5 B5:.5 A5:1 | B5:1 G5:1 E5:1 | F#5:1 D5:1 B4:1 |
        E5:.5 G5:.5 E5:1 C5:1 | D5:.5 G5:.5 D5:1 B4:1 |"""
    below = """B4:1 D5:1 G5:1 | F#5:1.5 E5:.5 D5:1 | E5:.5 F#5:.5 E5:.5 D5:.5 B4:1 | C5:1 G4:2 |
        B4:1 G4:.5 A4:.5 B4:1 | F#5:2 D5:1 | A4:1 C5:1 E5:1 | D5:3 |
        B4:1 D5:1 G5:1 | F#5:1 A5:.5 G5:.5 F#5:1 | G5:1 E5:1 B4:1 | D5:1 B4:1 F#4:1 |
        C5:.5 E5:.5 C5:1 G4:1 | B4:.5 D5:.5 B4:1 G4:1 |"""
    first_close, first_below = "A4:.5 D5:.5 F#5:.5 A5:.5 F#5:1 | G5:3", "F#4:.5 A4:.5 D5:.5 F#5:.5 D5:1 | D5:3"
    second_close, second_below = "C5:1 E5:1 A5:1 | B5:1 A5:.5 F#5:.5 D#5:1", "A4:1 C5:1 E5:1 | F#5:2 B4:1"
    farewell = """B5:.5 A5:.5 G5:.5 A5:.5 B5:1 | A5:.5 G5:.5 F#5:1 D5:1 | E5:.5 F#5:.5 E5:.5 D5:.5 C#5:1 |
        D5:1 B4:2 | B4:1 D5:1 G5:1 | A5:1.5 F#5:.5 C#5:1 | E5:3 | r:3"""

    song = Song("Warm Bread Waltz", tempo=172, beats=3, bars=96, tail=3, loose=.006)
    accordion = Part(song, play.accordion, .42, -.15, hall=.2)
    second = Part(song, play.accordion, .23, -.4, hall=.22)
    drone = Part(song, play.accordion, .1, -.3, hall=.25)
    mandolin = Part(song, play.mandolin, .32, .3, hall=.2)
    strum = Part(song, play.mandolin, .075, .5, hall=.18)
    guitar = Part(song, play.guitar, .17, -.5, hall=.15)
    bass = Part(song, play.double_bass, .47, 0, hall=.06)
    drum = Part(song, play.frame_drum, .42, .05, hall=.1)
    jingle = Part(song, play.tambourine, .16, .3, hall=.15)
    spoons = Part(song, play.spoons, .22, -.3, hall=.12)

    harmony = chords(" ".join([intro, verse, verse, bridge, "D G", bridge, "Am B7", verse, ending]))
    crossing = (0, 2, 1, 2, 0, 1)
    for bar, chord in enumerate(harmony):
        at, last = 3 * bar, bar >= 94
        low, high = chord.bass(35), [number + 12 for number in chord.voices(52)]
        if bar < 8:
            for number in (52, 59):
                drone.note(at, number, 3)
            for eighth in range(6):
                mandolin.note(at + eighth / 2, high[crossing[eighth]], .5, .7 if eighth % 3 else .9)
        if last:
            if bar == 94:
                bass.note(at, low, 4)
                for step, number in enumerate([40, *chord.voices(52), *high]):
                    mandolin.note(at + step / 24, number, 6, .7)
                for number in (52, 59, 64):
                    drone.note(at, number, 9, 1.3)
                drum.hits(bar, "9.....")
            continue
        if bar >= 4:
            crossed = bar % 8 in (6, 7) and bar >= 8  # three groups of two beats over these two bars
            for beat in ((1,) if bar % 2 else (0, 2)) if crossed else (0,):
                bass.note(at + beat, low + 7 if bar % 2 and not crossed else low, 1.5)
                if crossed:
                    drum.note(at + beat)
            if not crossed:
                bass.note(at + 2, low if bar % 2 else low + 7, .75, .7)
                drum.hits(bar, "8...56" if bar % 2 else "8..65.")
        if bar >= 8:
            for beat, accent in ((1, 1), (1.5, .5), (2, .8)):
                for number in chord.voices(52):
                    guitar.note(at + beat, number, accent=accent)
            jingle.hits(bar, "..8.5." if bar < 40 else "4.8.65")
        if bar >= 24:
            for eighth, accent in enumerate((.8, .5, 1, .6, .8, .6)):
                for number in high:
                    strum.note(at + eighth / 2, number, accent=accent)
        if bar >= 72:
            spoons.hits(bar, "8.6775" if bar % 2 else "7.6.85")
            for number in (52, 59):
                drone.note(at, number, 3, .6)
    accordion.tune(8, tune)
    mandolin.tune(24, varied)
    second.tune(24, tune, -12)
    mandolin.tune(40, middle + first_close)
    second.tune(40, below + first_below, -12)
    accordion.tune(56, middle + second_close)
    second.tune(56, below + second_below)
    accordion.tune(72, tune)
    mandolin.tune(72, varied)
    accordion.tune(88, farewell)
    mandolin.tune(88, farewell, -12, .8)
    return song


def last_boat_at_midnight():
    """A slow, dark shuffle: a trembling guitar that zigzags over bass and echoes."""
    intro = "Bm Bm Em F#7"
    verse = "Bm Bm Em Bm G C#m7b5 F#7 Bm"
    bridge = "Gmaj7 A Dmaj7 Bm7 Em7 A Cmaj7 F#7"
    ending = "Em F#7 Bm Bm"
    call = "r:4 | r:2 F#4:.5 D4:.5 B3:1 | r:2 G4:.5 E4:.5 B3:1 | r:2 E4:.5 C#4:.5 A#3:1"
    tune = """F#4:1.5 D4:.5 G4:.5 D4:.5 F#4:1 | B3:1 D4:.5 C#4:.5 B3:2 |
        G4:1.5 E4:.5 A4:.5 E4:.5 G4:1 | F#4:3 r:1 |
        B4:1 G4:.5 A4:.5 B4:.5 D5:.5 B4:1 | B4:1 G4:.5 E4:.5 G4:1 C#4:1 |
        A#3:.5 C#4:.5 E4:.5 C#4:.5 F#4:1 E4:1 | D4:1.5 C#4:.5 B3:2"""
    varied = """F#4:.5 B4:.5 F#4:.5 D4:.5 G4:.5 D4:.5 F#4:1 | D4:.5 C#4:.5 B3:1 F#4:.5 E4:.5 D4:1 |
        G4:.5 B4:.5 G4:.5 E4:.5 A4:.5 E4:.5 G4:1 | F#4:2 B4:1 r:1 |
        D5:1 B4:.5 D5:.5 G5:.5 B4:.5 D5:1 | E5:1 B4:.5 G4:.5 B4:1 E4:1 |
        C#5:.5 A#4:.5 E5:.5 C#5:.5 A#4:1 F#4:1 | B4:1.5 F#4:.5 B3:2"""
    middle = """B4:2 D5:1 F#5:1 | E5:1.5 C#5:.5 A4:2 | A4:1 C#5:1 F#5:2 | D5:3 r:1 |
        G5:1.5 F#5:.5 E5:1 D5:1 | C#5:1.5 E5:.5 A4:2 | B4:1 E5:1 G5:2 | F#5:1 E5:1 C#5:1 A#4:1"""
    replies = """r:3 F#4:.5 D4:.5 | r:4 | r:3 A4:.5 F#4:.5 | r:1 F#4:.5 A4:.5 D4:2 |
        r:4 | r:3 E4:.5 C#4:.5 | r:4 | r:2 C#4:.5 E4:.5 A#3:1"""
    farewell = "G4:1.5 E4:.5 A4:.5 E4:.5 G4:1 | F#4:1.5 C#4:.5 E4:.5 A#3:.5 C#4:1 | B3:1 F#4:.5 D4:.5 B3:2 | r:4"

    song = Song("Last Boat at Midnight", tempo=80, beats=4, bars=40, tail=2, swing=2 / 3, pair=1, loose=.004,
                echo_beats=2 / 3)
    lead = Part(song, play.twang, .38, .12, hall=.4, echo=.3)
    picked = Part(song, play.twang, .17, -.3, hall=.35, echo=.15)
    organ = Part(song, play.organ, .3, -.2, hall=.35, echo=.2)
    pad = Part(song, play.organ, .075, -.35, hall=.45)
    bubble = Part(song, play.organ, .11, -.4, hall=.2, echo=.1)
    skank = Part(song, play.chop, .2, .45, hall=.25, echo=.25)
    bass = Part(song, play.dub_bass, .42, 0, hall=.02)
    kick = Part(song, play.kick, .6, hall=.05)
    rim = Part(song, play.rim, .26, -.1, hall=.35)
    thrown = Part(song, play.rim, .2, .1, hall=.6, echo=.9)
    hat = Part(song, play.hat, .14, .3, hall=.08)
    horn = Part(song, play.fog_horn, .24, -.1, hall=.7, echo=.3)
    waves = Part(song, play.sea, .09, .3, hall=.3)

    # Beat, step in (root, third, fifth, octave) and beats of each note of the bass, in bars by turns.
    lines = (((0, 0, 1.2), (1.5, 2, .4), (2, 3, .7), (3.5, 2, .4)),
             ((0, 0, .8), (1, 0, .4), (2.5, 2, .9), (3.5, 1, .4)))
    even_sixths = (0, .125, .25, .375, .5, .75)  # of a beat, as the swing stretches its first half
    for bar, chord in enumerate(chords(" ".join([intro, verse, verse, bridge, verse, ending]))):
        at, last, low = 4 * bar, bar >= 38, chord.bass(31)
        dropped = bar in (16, 17, 27)
        if bar % 4 == 0 or bar < 3 or last:
            waves.note(at, beats=6)
        if bar in (0, 37):
            for number, accent in ((42, 1), (47, .7)):
                horn.note(at + 2 * (bar > 0), number, 4, accent)
        if last:
            if bar == 38:
                bass.note(at, low, 4)
                kick.hits(bar, "8...")
                for number in chord.voices(54):
                    organ.note(at, number, 5, .35)
            thrown.hits(bar, "..7." if bar == 38 else "....")
            continue
        if bar >= 1 and not dropped:
            for beat, step, beats in lines[bar % 2]:
                number = low + (*chord.steps[:3], 12)[step]
                if beat < 2 or bar >= 2:
                    bass.note(at + beat, number - 12 * (number > 47), beats, 1 if beat == 0 else .85)
        if dropped:
            thrown.hits(bar, "7.......")
            hat.hits(bar, "5.5.5.5.")
        elif bar >= 2:
            kick.hits(bar, "....9..." if bar % 4 < 3 else "....9.57")
            rim.hits(bar, "....8..." if bar % 2 else "....8..4")
            hat.hits(bar, "6.846.84")
        if bar % 8 == 3:
            thrown.note(at + 3.5)
        if bar >= 1:
            for beat in (1, 3):
                for number in chord.voices(59):
                    skank.note(at + beat, number, accent=.6 if dropped else 1)
        if bar >= 4 and not dropped:
            for beat in (.5, 1.5, 2.5, 3.5):
                for number in chord.voices(57):
                    bubble.note(at + beat, number, .2, 1 if beat in (1.5, 3.5) else .75)
        if bar >= 12:
            for number in chord.voices(54):
                pad.note(at, number, 4)
        if 28 <= bar < 36:
            top = chord.voices(62)
            for beat in range(4):
                for step in even_sixths:
                    picked.note(at + beat + step, top[beat % 3], .2, 1 if step == 0 else .65)
    lead.tune(0, call)
    lead.tune(4, tune)
    lead.tune(12, varied)
    organ.tune(20, middle)
    lead.tune(20, replies, 0, .8)
    lead.tune(28, varied)
    organ.tune(28, tune, 12, .35)
    lead.tune(36, farewell)
    return song
