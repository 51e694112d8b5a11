"""Pachelbel's Canon: three violins play one melody, each two bars behind the one before, over a
bass of eight notes that never changes. The melody is written once here."""

import accompaniment as acc
import songs
from song import Song

FILE_NAME = "Canon in D.mid"

GROUND = "d3:q a2 b2 f#2 | g2 d2 g2 a2"
LOW_GROUND = "d2:q a1 b1 f#1 | g1 d2 g1 a1"
HARMONY = "D, A, Bm, F#m | G, D/F#, G, A"
PERIOD = 8.0

# The variations, two bars each.
MELODY = [
    "f#5:q e d c# | b4 a b c#5",
    "d5:q c# b4 a | g f# g e",
    "d4:e f# a g f# d f# e | d b3 d4 a g b a g",
    "f#4:e d e c#5 d f# a a4 | b g a f# d d5 d5:e. c#:s",
    "d5:s c# d d4 c# a e f# d d5 c# b4 c#5 f# a b | g f# e g f# e d c# b4 a g f# e g f# e",
    "d4:s e f# g a e a g f# b a g a g f# e | d b3 b4 c#5 d c# b4 a g f# e b a b a g",
    "f#4:e f#5 f# e r d r f# | r b r a r g r e",
    """a5:s f#:t g a:s f#:t g a a4 b c#5 d e f# g f#:s d:t e f#:s f#4:t g a b a g a f# g a
     | g:s b:t a g:s f#:t e f# e d e f# g a b g:s b:t a b:s c#5:t d a4 b c#5 d e f# g a""",
    """f#5:s d:t e f#:s e:t d e c# d e f# e d c# d:s b4:t c#5 d:s d4:t e f# g f# e f# d5 c# d
     | b4:s d5:t c# b4:s a:t g a g f# g a b c#5 d b4:s d5:t c# d:s c#:t b4 c#5 d e d c# d b4 c#5""",
    "d5:q c#:e e f#:q. a:e | g:q f#:e a g:q e:e c#",
    "a4:e f#5 a4 e5 f#4 d5 f#4 c#5 | d4 b4 d a d b e c#5",
    "f#5:e a e a4 d5 f# c# f# | b4 d5 a4 d5 b4 d5 c# e",
    "a5:h f# | d:h. e:q",
    "d5:q c# b4 a | g a b c#5",
]


def build():
    song = Song("Canon in D", songs.arrangement_of("Johann Pachelbel (1653-1706)"), tempo=56,
                key=("D", "major"), loudness=0.92)
    song.text("Three violins in canon over a ground bass, with harpsichord and a quiet organ.")
    violins = [song.part(f"Violin {name}", index + 1, 48 if index == 1 else 40, "Violin",
                         volume=volume, pan=pan, reverb=80, breathes=True, timing=0.006)
               for index, (name, pan, volume) in enumerate((("I", 34, 104), ("II", 64, 110),
                                                            ("III", 94, 104)))]
    cello = song.part("Cello", 4, 42, "Cello", volume=108, pan=76, reverb=70, timing=0.006)
    bass = song.part("Double Bass", 5, 43, "Contrabass", volume=90, pan=70, reverb=60)
    keys = song.part("Harpsichord", 6, 6, "Harpsichord", volume=76, pan=50, reverb=56)
    organ = song.part("Organ", 7, 19, "Church organ", volume=44, pan=64, reverb=90)

    # The lead-in of ground alone, every variation, and two more grounds for the followers.
    turns = 1 + len(MELODY) + 2
    end = turns * PERIOD
    song.marker(0, "Ground")
    for index in range(len(MELODY)):
        song.marker((index + 1) * PERIOD, f"Variation {index + 1}")
    song.marker(end, "Close")
    for turn in range(turns):
        cello.play(GROUND, at=turn * PERIOD, velocity=72, bar=4, gate=1.0)
        bass.play(LOW_GROUND, at=turn * PERIOD, velocity=62, bar=4, gate=0.7)
    row = acc.chord_row(" | ".join([HARMONY] * turns))
    # The harpsichord breaks its chords while the violins are slow and rolls them when they run.
    running = (5 * PERIOD, 12 * PERIOD)
    for begin, length, name in row:
        if running[0] <= begin < running[1]:
            acc.rhythm(keys, [(begin, length, name)], ((0, 0.9, 0),), centre=62, velocity=60,
                       period=1.0, spread=0.08)
        else:
            acc.broken(keys, [(begin, length, name)], (0, 1, 2, 1), step=0.25, low=57, count=4,
                       velocity=56, ring=2.0)
    acc.pad(organ, row[8:], centre=62, velocity=52, size=3, gate=1.0)

    for voice, violin in enumerate(violins):
        violin.cue((voice + 1) * PERIOD, f"{violin.name} enters")
        for index, variation in enumerate(MELODY):
            at = (index + 1 + voice) * PERIOD
            loudness = 76 + min(index, 8) * 1.8 - max(0, index - 10) * 3 - 3 * voice
            violin.play(variation, at=at, velocity=loudness, bar=4, gate=0.98)
    # Those who have finished hold the harmony until the last violin is through.
    violins[0].play("f#5:q e d c# | b4 d5 d e | a e f# f# | g f# g e", at=end - 2 * PERIOD,
                    velocity=66, bar=4, gate=1.0)
    violins[1].play("f#5:q e d c# | b4 d5 b4 a", at=end - PERIOD, velocity=62, bar=4, gate=1.0)
    for part, key in zip(violins + [cello, bass], (78, 69, 74, 50, 38)):
        part.note(end, 4.5, key, 68)
        part.breathe(end, end + 4.5)
    organ.chord(end, 4.5, [57, 62, 66], 52)
    keys.chord(end, 4.5, [50, 57, 62, 66, 69, 74], 58, spread=0.6)
    song.ramp_tempo(end - 4, end, 56, 40)
    return song.build(tail=2)
