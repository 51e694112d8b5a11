"""A twelve-bar blues in B flat for muted trumpet, piano, walking bass and drums, swung."""

import accompaniment as acc
import songs
from song import Song

FILE_NAME = "Blue Lamp Blues.mid"
CHORUS = 48.0

CHORDS = ("Bb7 | Eb9 | Bb7 | Fm7, Bb7 | Eb9 | Edim7 | Bb7 | G7b9 | Cm7 | F9 | Bb7, G7b9 | Cm7, F9")
HEAD = """r:e f4 bb d5 f:q. d:e | db:e bb4 g:q r:h | r:e f bb d5 f:q. ab:e | f:e d bb4:q r:h
    | r:e bb4 eb5 g bb:q. g:e | g:e e db:q r:h | f:e d bb4 f5 r d r:q | ab:e f d b4 r:h
    | r:e c5 eb g bb:q a:e g | a:e f eb c a4:q r | bb:q r:e d5 f d b4:q | c5:q r:e eb c:q a4"""
TRUMPET_SOLO = """r:q f5:e ab bb:q. ab:e | g:e f db:q r:e bb4 db5 e | f:e d f ab bb:h
    | r:e bb c6 ab f d ab:q | g:q. bb:e db6:q bb5:e g | e:e g bb g e:q r:q
    | r:e d f ab c6 bb5 ab f | b:e ab f d b4:q r | r:e c5 eb g bb:q g:e eb | c6:e a5 f eb g:q. f:e
    | d:e f bb d6 b5 ab f d | eb:e c5 bb4 g a:q r"""
PIANO_SOLO = """f5+bb:e d r f+bb:e r d f ab | g:e bb db6 bb5 g:q r | d+f:e d+f r d+f r f ab bb
    | c6:e bb5 ab f d:q r | eb:e3 g bb db6 bb5 g eb:q r | e:e3 g bb db6 bb5 g e:q r
    | bb5:e f d bb4 ab f d f | b:e d5 f ab b:q. ab:e | g:e eb c g eb6 d c bb5
    | a:e c6 eb c a5 f eb c | d:e f ab bb b:e ab f d | c:q eb:e g f:q r"""
WALKS = ("""bb1:q d2 f g | eb d eb e | f d bb1 d2 | f ab bb e | eb g bb g | e g bb e | f d bb1 ab2
    | g b d3 db | c bb2 g eb | f a c3 a2 | bb f g b | c3 g2 f a1""",
         """bb1:q c2 db d | eb bb1 eb2 a1 | bb1 f2 ab f | c eb d e | eb f g bb | e g db3 bb2
    | bb ab f d | g d b1 g | c2 d eb g | f eb c f1 | bb1 d2 g f | eb c f1 a""")
STABS = ((0.5, 0.4, 4), (2.5, 0.9, -4), (4, 1.2, 0), (7.5, 0.4, 4))


def build():
    song = Song("Blue Lamp Blues", songs.OWN_TUNE, tempo=132, key=("Bb", "major"), swing=2 / 3,
                loudness=1.2)
    song.text("A twelve-bar blues after closing time.")
    trumpet = song.part("Muted Trumpet", 1, 59, "Muted trumpet", volume=104, pan=56, reverb=60,
                        breathes=True, timing=0.02)
    piano = song.part("Piano", 2, 0, "Acoustic grand piano", volume=112, pan=40, reverb=44,
                      timing=0.02)
    bass = song.part("Bass", 3, 32, "Acoustic bass", volume=122, pan=70, reverb=24, timing=0.012)
    sax = song.part("Tenor Saxophone", 4, 66, "Tenor sax", volume=88, pan=88, reverb=56,
                    breathes=True, timing=0.02)
    drums = song.part("Drums", 10, 32, "Jazz kit", volume=108, pan=64, reverb=40, timing=0.008)

    lead_in = 16.0
    song.marker(0, "Four bars to start")
    bass.play("f1:q c2 f eb | d db c bb1 | a1 c2 eb gb | f c a1 b", at=0, velocity=82)
    acc.rhythm(piano, acc.chord_row("F9 | F9 | F9 | F9"), STABS, centre=60, velocity=56, size=3,
               period=8.0)
    plan = ["Head", "Head again", "Trumpet solo", "Piano solo", "Head out"]
    end = lead_in + CHORUS * len(plan)
    acc.drums(drums, 0, (end - 4) / 4, {"pedal hat": "...x.."}, velocity=66, steps=3,
              swing=False)
    # The ride rests on triplets already, so it is not swung again.
    acc.drums(drums, 0, (end - 4) / 4, {"ride": "x..x.xx..x.x"}, velocity=66, steps=3, swing=False)
    for index, name in enumerate(plan):
        at = lead_in + CHORUS * index
        song.marker(at, name)
        row = acc.chord_row(CHORDS, at=at)
        bass.play(WALKS[index % 2], at=at, velocity=86 + 2 * index, bar=4, phrase=16, gate=0.88)
        acc.drums(drums, at, 12, {"snare": "......o....o|.....o......|........o...|..o..o....ox"},
                  velocity=60 + 3 * index, steps=3, swing=False)
        acc.drums(drums, at, 12, {"kick": "o.....o.....|o.......o..."}, velocity=66, steps=3,
                  swing=False)
        acc.hit(drums, at, "crash", 66 + 4 * index)
        acc.hit(drums, at + 47 - 1 / 3, "high tom", 70)
        acc.hit(drums, at + 47, "mid tom", 74)
        acc.hit(drums, at + 47 + 2 / 3, "low tom", 80)
        if name == "Piano solo":
            left = ((0, 1.8, 0), (4, 1.8, 0))
            acc.rhythm(piano, row, left, centre=54, velocity=50, size=3, period=8.0)
            piano.play(PIANO_SOLO, at=at, velocity=88, bar=4, phrase=16, gate=0.9)
            acc.pad(sax, acc.chord_row(CHORDS, at=at)[4:6], centre=55, velocity=42, size=1)
            continue
        acc.rhythm(piano, row, STABS, centre=59, velocity=58 + 2 * index, size=3, period=8.0,
                   spread=0.02)
        tune = TRUMPET_SOLO if name == "Trumpet solo" else HEAD
        trumpet.play(tune, at=at, velocity=84 + 2 * index, bar=4, phrase=16, gate=0.9)
        if name in ("Head again", "Head out"):
            sax.play(HEAD, at=at, velocity=80, bar=4, phrase=16, gate=0.88, transpose=-12)
        if name == "Trumpet solo":
            trumpet.cue(at, "Trumpet steps forward")
            # Notes that are scooped up from below.
            for bar in (0, 2, 4, 8):
                trumpet.slide(at + 4 * bar + 2, at + 4 * bar + 2.25, -0.8, 0)
    song.marker(end, "Tag")
    row = acc.chord_row("Bb7, G7b9 | Cm7, F9 | Bb7, G7b9 | Cm7, F9", at=end)
    acc.rhythm(piano, row, STABS, centre=59, velocity=62, size=3, period=8.0)
    bass.play("bb1:q f2 g b | c3 g2 f a1 | d2 f g b1 | c2 e f f1", at=end, velocity=90)
    acc.drums(drums, end, 4, {"ride": "x..x.xx..x.x", "pedal hat": "...x.."}, velocity=66,
              steps=3, swing=False)
    trumpet.play("bb4:q r:e d5 f d b4:q | c5:q r:e eb c:q a4 | bb:q r:e d5 f d b4:q"
                 "| c5:e eb g bb a:q' gb:q'", at=end, velocity=84, bar=4)
    sax.play("r:w | r | bb3:q r:e d4 f d b3:q | c4:e eb g bb a:q' gb:q'", at=end, velocity=76,
             bar=4)
    last = end + 16
    song.ramp_tempo(end + 10, last, 132, 96)
    piano.chord(last, 5, (50, 56, 60, 67, 72), 70, spread=0.3)
    trumpet.note(last, 5, 77, 82)
    trumpet.breathe(last, last + 5)
    sax.note(last, 5, 62, 70)
    bass.note(last, 5, 34, 92)
    acc.hit(drums, last, "crash", 74)
    acc.roll(drums, last, last + 4, "ride", 46, 24)
    return song.build(tail=2)
