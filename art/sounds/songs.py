"""The four songs, of the form intro, A, A, B, A, ending, and the table of all songs with the bonus ones."""
import instruments as play
from arranger import Part, Song, chords
from bonussongs import last_boat_at_midnight, snowed_in_sideways, warm_bread_waltz


def slow_parade():
    """A calm waltz for music box and reeds."""
    intro = "F Dm Bb C7"
    verse = "F Am Dm Am Bb F Gm C7 F A7 Dm Bb Gm C7 F F"
    bridge = "Dm Gm C F Bb Gm A7 A7 Dm Gm C F Bb Gm C7 C7"
    ending = "Bb C7 F F"
    tune = """A4:2 C5:1 | E5:2 C5:1 | D5:1.5 E5:.5 F5:1 | E5:3 |
        D5:2 F5:1 | C5:2 A4:1 | Bb4:1 A4:1 G4:1 | C5:3 |
        A4:2 C5:1 | E5:2 C#5:1 | F5:1.5 E5:.5 D5:1 | F5:2 D5:1 |
        Bb4:1 D5:1 G5:1 | E5:2 Bb4:1 | A4:2 C5:1 | A4:3"""
    varied = """A4:1 Bb4:1 C5:1 | E5:1.5 D5:.5 C5:1 | D5:1 E5:.5 D5:.5 F5:1 | E5:2 r:1 |
        D5:1 F5:1 D5:1 | C5:1.5 Bb4:.5 A4:1 | Bb4:1 A4:.5 Bb4:.5 G4:1 | C5:3 |
        A4:1 C5:1 F5:1 | E5:2 C#5:1 | F5:1 E5:.5 F5:.5 D5:1 | F5:1 D5:1 Bb4:1 |
        Bb4:1 D5:1 G5:1 | E5:1.5 D5:.5 C5:1 | F5:3 | F5:2 r:1"""
    middle = """F5:1 E5:1 D5:1 | G5:2 D5:1 | E5:1 D5:1 C5:1 | F5:2 C5:1 |
        D5:1 C5:1 Bb4:1 | D5:2 Bb4:1 | A4:1 C#5:1 E5:1 | A5:3 |
        F5:1 E5:1 D5:1 | G5:2 A5:1 | G5:1 E5:1 C5:1 | A5:2 F5:1 |
        D5:1 F5:1 Bb5:1 | A5:1 G5:1 D5:1 | E5:2 D5:1 | C5:3"""
    answer = "D5:1 F5:1 A5:1 | G5:1 E5:1 C5:1 | F5:3 | F4:3"

    song = Song("Slow Parade", tempo=120, beats=3, bars=72, tail=3, loose=.006)
    box = Part(song, play.music_box, .4, .15, hall=.22)
    reed = Part(song, play.reed, .36, -.2, hall=.22)
    guitar = Part(song, play.guitar, .23, .35, hall=.2)
    bass = Part(song, play.double_bass, .45, -.05, hall=.08)
    strings = Part(song, play.strings, .13, -.3, hall=.3)
    brush = Part(song, play.brush, .1, .3, hall=.15)
    kick = Part(song, play.kick, .38, hall=.05)

    for bar, chord in enumerate(chords(" ".join([intro, verse, verse, bridge, verse, ending]))):
        at, last = 3 * bar, bar >= 70
        bass.note(at, chord.fifth() - 12 if bar % 2 and not last else chord.bass(), 2)
        if not last:
            for beat, accent in ((1, 1), (2, .8)):
                for number in chord.voices(55):
                    guitar.note(at + beat, number, accent=accent)
        if bar >= 20:
            for number in chord.voices(57):
                strings.note(at, number, 3)
            if not last:
                brush.hits(bar, ".97" if bar % 4 < 3 else "597")
                kick.hits(bar, "7..")
    box.tune(4, tune)
    box.tune(20, varied)
    reed.tune(20, tune, -12, .6)
    reed.tune(36, middle)
    box.tune(36, middle, 12, .3)
    box.tune(52, varied)
    reed.tune(52, varied, 0, .7)
    box.tune(68, answer)
    return song


def clockwork_rain():
    """Two marimbas that interlock over the ticking of a clock."""
    intro = "Am7 Am7 Fmaj7 G"
    verse = "Am7 Am7 Fmaj7 Fmaj7 C Em7 Dm7 G"
    bridge = "Fmaj7 G Am7 Em7 Fmaj7 C Dm7 E7"
    ending = "Am7 Fmaj7 Am7 Am7"
    tune = """E5:1.5 D5:.5 E5:1 G5:1 | A5:3 G5:1 | E5:1.5 D5:.5 E5:1 C5:1 | A4:3 r:1 |
        G4:1.5 C5:.5 D5:1 E5:1 | D5:2 B4:2 | C5:1.5 D5:.5 F5:1 E5:1 | D5:3 r:1"""
    varied = """E5:1 D5:.5 E5:.5 G5:1 E5:1 | A5:2.5 B5:.5 G5:1 | E5:1 D5:.5 E5:.5 C5:1 D5:1 |
        A4:2 C5:1 E5:1 | G5:1.5 E5:.5 D5:1 C5:1 | D5:1.5 E5:.5 B4:2 |
        C5:1 D5:.5 F5:.5 E5:1 C5:1 | B4:3 r:1"""
    middle = """A5:2 G5:1 F5:1 | G5:1.5 D5:.5 B4:2 | C5:1 E5:1 A5:2 | G5:3 r:1 |
        A5:1.5 G5:.5 F5:1 C5:1 | E5:2 G5:2 | F5:1 E5:1 D5:1 C5:1 | B4:2 G#4:2"""
    farewell = "E5:1.5 D5:.5 E5:1 G5:1 | A5:4 | E5:1.5 D5:.5 C5:1 B4:1 | A4:4"

    song = Song("Clockwork Rain", tempo=108, beats=4, bars=40, tail=3)
    left = Part(song, play.marimba, .42, -.45, hall=.2)
    right = Part(song, play.marimba, .32, .45, hall=.2)
    glass = Part(song, play.glass, .34, .1, hall=.3, echo=.25)
    low_glass = Part(song, play.glass, .2, -.2, hall=.4)
    bass = Part(song, play.double_bass, .48, 0, hall=.08)
    strings = Part(song, play.strings, .11, 0, hall=.4)
    tick = Part(song, play.tick, .22, .3, hall=.12)
    tock = Part(song, play.tock, .22, -.3, hall=.12)
    shaker = Part(song, play.shaker, .06, .2, hall=.1)
    kick = Part(song, play.kick, .5, hall=.04)
    drop = Part(song, play.drop, .2, 0, hall=.7, echo=.5)

    rng = song.synth.rng
    up_and_down, rolling = (0, 2, 1, 3), (2, 0, 3)
    for bar, chord in enumerate(chords(" ".join([intro, verse, verse, bridge, verse, ending]))):
        at, last, bridging = 4 * bar, bar == 39, 20 <= bar < 28
        high = (chord.voices(57) + [chord.voices(57)[0] + 12])[:4]
        for eighth in range(1 if last else 8):
            left.note(at + eighth / 2, high[up_and_down[eighth % 4]], .5,
                      1 if eighth in (0, 3, 6) else .7)
            if bar >= 4 and not last:
                number = high[rolling[(bar * 8 + eighth) % 3]] + 12 * bridging
                right.note(at + eighth / 2 + .25, number, .5, .8 if eighth % 3 else 1)
        if bar >= 2:
            bass.note(at, chord.bass(33), 2)
            if not last:
                bass.note(at + 2.5, chord.fifth(33) if bar % 2 else chord.bass(33), 1, .7)
        if bar >= 12:
            for number in chord.voices(55):
                strings.note(at, number, 4)
        if not last:
            tick.hits(bar, ".7.6.7.6" if not bridging else ".7.67766")
            tock.hits(bar, "9.7.8.7.")
        if 12 <= bar < 38:
            shaker.hits(bar, "8364836483648365")
            kick.hits(bar, "8...6..." if bar % 4 < 3 else "8...6..5")
        for _ in range(2):
            number = rng.choice([81, 84, 86, 88, 91, 93])
            drop.note(at + rng.integers(16) / 4, number, accent=rng.uniform(.4, 1))
    glass.tune(4, tune)
    glass.tune(12, varied)
    low_glass.tune(12, varied, -12)
    glass.tune(20, middle)
    glass.tune(28, varied)
    low_glass.tune(28, varied, -12)
    glass.tune(36, farewell)
    return song


def night_bus_home():
    """A mellow groove with electric piano and a warm lead."""
    intro = "Ebmaj9 Bb9sus"
    verse = "Ebmaj9 Cm9 Abmaj9 Bb9sus Gm7 Cm9 Fm9 Bb9sus"
    bridge = "Abmaj9 Bb9sus Gm7 Cm9 Abmaj9 Abm6 Ebmaj9 Bb9sus"
    ending = "Abmaj9 Abm6 Ebmaj9 Ebmaj9"
    tune = """r:1 G4:.5 Bb4:.5 D5:1.5 C5:.5 | Bb4:1.5 G4:.5 Eb4:2 |
        r:1 C5:.5 Eb5:.5 G5:1.5 F5:.5 | Eb5:1 C5:1 F5:2 |
        r:1 Bb4:.5 D5:.5 F5:1.5 Eb5:.5 | D5:1.5 Bb4:.5 G4:2 |
        r:.5 Ab4:.5 C5:.5 Eb5:.5 G5:1 F5:1 | Eb5:1 F5:1 Bb4:2"""
    varied = """r:.5 Eb4:.5 G4:.5 Bb4:.5 D5:1 Eb5:.5 C5:.5 | Bb4:1 C5:.5 G4:.5 Eb4:2 |
        r:.5 Ab4:.5 C5:.5 Eb5:.5 G5:1 Ab5:.5 F5:.5 | Eb5:1 C5:.5 Eb5:.5 F5:2 |
        r:1 Bb4:.5 D5:.5 F5:.5 G5:.5 F5:.5 Eb5:.5 | D5:1 Eb5:.5 Bb4:.5 G4:2 |
        r:.5 Ab4:.5 C5:.5 Eb5:.5 G5:1.5 F5:.5 | Eb5:1.5 C5:.5 Bb4:2"""
    middle = """G5:2 F5:1 Eb5:1 | F5:1.5 Eb5:.5 C5:2 | D5:1 F5:1 Bb5:2 | G5:3 r:1 |
        G5:1.5 Ab5:.5 G5:1 Eb5:1 | F5:1.5 Eb5:.5 B4:2 | Bb4:1 D5:1 G5:2 | F5:2 r:2"""
    farewell = "G5:1.5 Ab5:.5 G5:1 Eb5:1 | F5:1.5 Eb5:.5 B4:2 | Bb4:1 D5:1 G5:2 | r:4"

    song = Song("Night Bus Home", tempo=88, beats=4, bars=38, tail=4, swing=.58, loose=.006)
    piano = Part(song, play.electric_piano, .17, -.25, hall=.3)
    bass = Part(song, play.synth_bass, .27, 0, hall=.03)
    lead = Part(song, play.warm_lead, .33, .12, hall=.35, echo=.3)
    bells = Part(song, play.glass, .2, .4, hall=.4, echo=.4)
    pad = Part(song, play.strings, .11, .25, hall=.45)
    kick = Part(song, play.kick, .6, hall=.04)
    rim = Part(song, play.rim, .22, -.1, hall=.25)
    hat = Part(song, play.hat, .1, .3, hall=.08)
    shaker = Part(song, play.shaker, .05, -.35, hall=.1)

    groove = ((0, 1.25), (1.5, .4), (2.5, .9), (3.5, .4))
    for bar, chord in enumerate(chords(" ".join([intro, verse, verse, bridge, verse, ending]))):
        at, last = 4 * bar, bar >= 36
        for number in chord.voices(53):
            piano.note(at, number, 4 if last else 2.25)
            if not last:
                piano.note(at + 2.5, number, 1.4, .75)
            if bar >= 10:
                pad.note(at, number, 4)
        low = chord.bass(31)
        if last:
            bass.note(at, low, 3)
            continue
        for (beat, beats), number in zip(groove, (low, low, low + 7, low + 12 if bar % 2 else low)):
            bass.note(at + beat, number, beats, 1 if beat == 0 else .8)
        if bar >= 2:
            kick.hits(bar, "9.....4.7..7...." if bar % 2 else "9.....4.7.......")
            rim.hits(bar, "....8.......8..." if bar % 4 < 3 else "....8..3....8.4.")
            hat.hits(bar, "7.6.8.6.7.6.8.64")
        if bar >= 10:
            shaker.hits(bar, "6383638363836383")
        if bar >= 10 and bar % 2:
            for step, number in enumerate(chord.voices(72)[:3]):
                bells.note(at + 2 + step / 2, number, 1)
    lead.tune(2, tune)
    lead.tune(10, varied)
    lead.tune(18, middle)
    bells.tune(18, middle, 12, .5)
    lead.tune(26, varied)
    lead.tune(34, farewell)
    return song


def seven_rows():
    """Soft pulse waves; the main motif has seven notes."""
    intro = "D Bm G A"
    verse = "D Bm G A D F#m Em A"
    bridge = "G A F#m Bm Em F#m G A7"
    ending = "G A Dadd9 Dadd9"
    tune = """F#5:.5 A5:.5 F#5:.5 E5:.5 D5:.5 E5:.5 F#5:1 | D5:1.5 B4:.5 F#4:1 r:1 |
        G4:.5 B4:.5 D5:.5 E5:.5 D5:.5 B4:.5 D5:1 | E5:1.5 C#5:.5 A4:1 r:1 |
        F#5:.5 A5:.5 F#5:.5 E5:.5 D5:.5 E5:.5 F#5:1 | A5:1.5 F#5:.5 C#5:1 r:1 |
        G5:.5 F#5:.5 E5:.5 D5:.5 B4:.5 D5:.5 E5:1 | C#5:1 E5:1 A4:1 r:1"""
    varied = """F#5:.5 A5:.5 F#5:.5 E5:.5 D5:.5 E5:.5 F#5:1 | D5:1 B4:.5 D5:.5 F#5:.5 D5:.5 B4:1 |
        G4:.5 B4:.5 D5:.5 E5:.5 D5:.5 B4:.5 D5:1 | E5:1 C#5:.5 E5:.5 A5:1 r:1 |
        F#5:.5 A5:.5 B5:.5 A5:.5 F#5:.5 E5:.5 F#5:1 | A5:1 F#5:.5 E5:.5 C#5:1 r:1 |
        G5:.5 F#5:.5 E5:.5 D5:.5 B4:.5 D5:.5 E5:1 | C#5:.5 D5:.5 E5:1 A4:1 r:1"""
    middle = """B5:1.5 A5:.5 G5:1 D5:1 | A5:1.5 G5:.5 E5:1 C#5:1 |
        C#5:.5 E5:.5 F#5:.5 A5:.5 F#5:.5 E5:.5 C#5:1 | D5:2 F#5:1 r:1 |
        G5:1.5 F#5:.5 E5:1 B4:1 | A5:1.5 F#5:.5 E5:1 C#5:1 |
        B4:.5 D5:.5 E5:.5 G5:.5 E5:.5 D5:.5 B4:1 | C#5:1 E5:1 G5:1 A5:1"""
    farewell = """G4:.5 B4:.5 D5:.5 E5:.5 D5:.5 B4:.5 D5:1 | E5:1.5 C#5:.5 A4:1 r:1 |
        F#5:.5 A5:.5 F#5:.5 E5:.5 D5:.5 E5:.5 F#5:1 | D5:4"""

    song = Song("Seven Rows", tempo=112, beats=4, bars=40, tail=3, loose=.001)
    lead = Part(song, play.soft_pulse, .34, .1, hall=.15, echo=.3)
    second = Part(song, play.soft_pulse, .16, -.4, hall=.2, echo=.2)
    pluck = Part(song, play.square_pluck, .22, -.35, hall=.15, echo=.25)
    pad = Part(song, play.strings, .12, .3, hall=.4)
    bass = Part(song, play.triangle_bass, .27, 0, hall=.03)
    kick = Part(song, play.kick, .45, hall=.03)
    snare = Part(song, play.brush, .18, .1, hall=.2)
    hat = Part(song, play.hat, .09, .3, hall=.05)

    for bar, chord in enumerate(chords(" ".join([intro, verse, verse, bridge, verse, ending]))):
        at, last, bridging = 4 * bar, bar >= 38, 20 <= bar < 28
        tones = chord.voices(62)
        arpeggio = [*tones, tones[0] + 12] if len(tones) == 3 else tones
        for step in range(16 if not bridging else 8):
            pluck.note(at + step * (.25 if not bridging else .5), arpeggio[step % 4], .25,
                       1 if step % 4 == 0 else .7)
        for number in chord.voices(54) if bar >= 12 else ():
            pad.note(at, number, 4)
        low = chord.bass(33)
        if last:
            bass.note(at, low, 4)
            continue
        if bar >= 2:
            walk = (low, low, low + 7, low + 12) if bridging else (low, low + 12, low + 7, low + 12)
            for step, number in enumerate(walk):
                bass.note(at + step, number, .75)
            bass.note(at + 3.5, low + 7, .4, .8)
        if bar >= 4:
            kick.hits(bar, "9...7..." if bridging else "9..57...")
            snare.hits(bar, "..8...8." if bar % 4 < 3 else "..8...85")
            hat.hits(bar, "7.5.7.5.7.5.7.55")
    lead.tune(4, tune)
    lead.tune(12, varied)
    second.tune(12, tune, -12)
    lead.tune(20, middle)
    second.tune(20, middle, -12)
    lead.tune(28, varied)
    second.tune(28, varied, -12)
    lead.tune(36, farewell)
    return song


SONGS = {
    "Paper Lanterns - Slow Parade": slow_parade,
    "The Tin Orchard - Clockwork Rain": clockwork_rain,
    "Velvet Gears - Night Bus Home": night_bus_home,
    "Low Tide Radio - Seven Rows": seven_rows,
    "Winter Kiosk - Snowed In Sideways": snowed_in_sideways,
    "Yonder Bakery - Warm Bread Waltz": warm_bread_waltz,
    "Zigzag Ferry - Last Boat at Midnight": last_boat_at_midnight,
}
