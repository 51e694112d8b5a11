"""An easy bossa nova in F: flute, vibraphone, nylon guitar, strings, bass and drums."""

import accompaniment as acc
import songs
from song import Song

FILE_NAME = "Lanterns on the Harbour.mid"

CHORDS_A1 = "Fmaj7 | Dm7 | Gm7 | C9 | Am7 | D7b9 | Gm7 | C9"
CHORDS_A2 = "Fmaj7 | Dm7 | Gm7 | C9 | Am7, D7 | Gm7, C7 | F69 | "
CHORDS_B = "Bbmaj7 | Eb9 | Fmaj7 | D7 | Gm7 | G7 | Gm7 | C9sus4, C7"

TUNE_A1 = """c5:q. a4:e c5:q d | f:h. e:e d | d:q. bb4:e d5:q f | e:h. r:q
    | e:q. c:e e:q g | f#:q. d:e c:q a4 | bb:q. c5:e d:q f | e:h g"""
TUNE_A2 = """a5:q. g:e f:q c | d:h. c:e d | f:q. d:e bb4:q d5 | e:h. r:q
    | e:q. d:e f#:q a | g:q. f:e e:q d | f:w | r:h. c:q"""
TUNE_B = """d5:q. f:e a:q f | g:h. f:e eb | c:q. e:e a:q g | f#:h. e:e d
    | bb4:q. d5:e g:q f | f:q e d b4 | bb:q. d5:e f:q a | g:h. r:q"""
TUNE_END = """a5:q. g:e f:q c | d:h. c:e d | f:q. d:e bb4:q d5 | e:h. r:q
    | e:q. d:e f#:q a | g:q. f:e e:q bb | ab:w | bb:h. ab:q"""

SOLO = """r:e a5:e c6:q a:e g e:q | f:e a c6:q e6:e d c:q | bb5:e d6 f:q d:e c a5:q
    | bb:e g e d c:q r | r:e g5 c6:q e:e d c a5 | c6:e a5 f# d eb:q. d:e
    | f:q. g:e bb:q d6 | c:e bb5 a g e:q r
    | a5:s c6 e:e e:q c:e a5 g:q | f:e e f a c6:q. a5:e | bb:e a bb d6 f:q. d:e
    | e:e d bb5 g e:q r | c6:e b5 c6 a5 f# a c6 eb | d:e bb5 g bb e g bb c6
    | a5:h. c6:q | r:w"""

STRINGS_B = """f5:h d | db:h bb4 | a:h c5 | c:h. a4:q | bb:h d5 | b4:h d5 | d:h c | bb4:h. r:q"""


def build():
    song = Song("Lanterns on the Harbour", songs.OWN_TUNE, tempo=112, key=("F", "major"),
                loudness=1.2)
    song.text("An easy bossa nova: the boats are in, and the lamps are lit one by one.")
    song.text("Made for the demo songs of Zephyne.")
    flute = song.part("Flute", 1, 73, "Flute", volume=116, pan=58, reverb=70, breathes=True)
    vibes = song.part("Vibraphone", 2, 11, "Vibraphone", volume=112, pan=78, reverb=64, chorus=20)
    guitar = song.part("Nylon Guitar", 3, 24, "Nylon-string guitar", volume=110, pan=40, reverb=44)
    piano = song.part("Electric Piano", 4, 4, "Electric piano", volume=84, pan=84, chorus=40)
    strings = song.part("Strings", 5, 48, "String ensemble", volume=90, pan=64, reverb=84,
                        breathes=True)
    bass = song.part("Bass", 6, 32, "Acoustic bass", volume=120, reverb=20)
    drums = song.part("Drums", 10, 0, "Standard kit with rim and shaker", volume=110, reverb=36)

    form = [("Intro", "Gm9 | C9 | Fmaj7, Dm9 | Gm7, C9"), ("Verse", CHORDS_A1),
            ("Verse", CHORDS_A2), ("Bridge", CHORDS_B), ("Verse", CHORDS_A2),
            ("Vibraphone solo", CHORDS_A1), ("Vibraphone solo", CHORDS_A2),
            ("Bridge", CHORDS_B), ("Last verse", CHORDS_A2.replace("F69 | ", "Dbmaj7 | Gb69")),
            ("Coda", "Fmaj7 | Gm9 | Fmaj7 | F69")]
    places, row, at = [], [], 0.0
    for name, chords in form:
        song.marker(at, name)
        places.append(at)
        part_row = acc.chord_row(chords, at=at)
        row.append(part_row)
        at = part_row[-1][0] + part_row[-1][1]
    whole = [chord for part_row in row for chord in part_row]
    end = at

    bossa = ((0, 1.4, 4), (1.5, 0.4, -4), (2.5, 0.9, 0), (4, 0.9, 2), (5.5, 0.9, 2), (7, 0.8, -3))
    acc.rhythm(guitar, whole[:-1], bossa, centre=58, velocity=66, size=3,
               period=8.0, spread=0.05)
    guitar.chord(end - 4, 4.0, [41, 53, 57, 60, 62, 67], 62, spread=0.5)
    acc.bass(bass, whole[:-1], ((0, 1.45, "1"), (1.5, 0.45, "5"), (2, 1.45, "5"),
                                (3.5, 0.45, "5")), low=29, velocity=80)
    bass.note(end - 4, 4, 29, 74)
    acc.pad(piano, [chord for part_row in row[2:-1] for chord in part_row], centre=65, velocity=50,
            size=3)

    acc.drums(drums, places[0] + 8, 2, {"shaker": "xoXoxoXoxoXoxoXo"}, velocity=52)
    groove = {"kick": "X..xx..xX..xx..x", "rim": "x..x..x...x..x..", "hat": "x.x.x.x.x.x.x.x.",
              "shaker": "xoXoxoXoxoXoxoXo"}
    rest = (end - 16 - places[1]) / 4
    acc.drums(drums, places[1], rest, {"kick": groove["kick"]}, velocity=62)
    acc.drums(drums, places[1], rest, {"rim": "x..x..x...x..x..|..x...x..x..x..."}, velocity=72)
    acc.drums(drums, places[1], rest, {"hat": groove["hat"]}, velocity=46)
    acc.drums(drums, places[1], rest, {"shaker": groove["shaker"]}, velocity=50)
    acc.drums(drums, end - 16, 3, {"shaker": groove["shaker"]}, velocity=42)
    for place in (places[3], places[5], places[7], places[9]):
        acc.roll(drums, place - 1, place, "low tom", 50, 76, per_beat=4)
        acc.hit(drums, place, "ride", 78)
    acc.hit(drums, end - 4, "splash", 58)
    acc.hit(drums, 8, "triangle", 60)

    flute.play("r:h. c5:q", at=places[1] - 4, velocity=74)
    vibes.play("r:e d5+f:e r:q c+e:h | r:e bb4+d5:e r:q a4+c5:h | g4+a:q. a+c5:e a+c:h"
               "| bb4+d5:q. g4+bb:e bb+e5:h", at=0, velocity=62, bar=4)
    for index, tune, loud in ((1, TUNE_A1, 80), (2, TUNE_A2, 82), (3, TUNE_B, 86),
                              (4, TUNE_A2, 82), (7, TUNE_B, 88), (8, TUNE_END, 86)):
        flute.play(tune, at=places[index], velocity=loud, phrase=16, bar=4)
    vibes.cue(places[5], "Vibraphone takes the solo")
    vibes.play(SOLO, at=places[5], velocity=84, phrase=16, bar=4, gate=1.0)
    for index in (3, 7):
        strings.play(STRINGS_B, at=places[index], velocity=66, phrase=32, bar=4, gate=1.0)
    acc.pad(strings, row[4] + row[6], centre=69, velocity=46, size=3)
    strings.cue(places[8], "Strings fade in for the last verse")
    acc.pad(strings, row[8] + row[9], centre=70, velocity=54, size=3)
    for bar, keys in ((1, (81, 84)), (3, (82, 86)), (6, (84, 89))):
        vibes.chord(places[8] + bar * 4 + 1, 1.5, keys, 54, spread=0.1)
    vibes.play("r:e a5 g f c:h | r:e bb4 d5 f a:h | r:e a g f c:h | c4+g+a+d5+f:w",
               at=places[9], velocity=62, bar=4)
    song.ramp_tempo(end - 12, end - 4, 112, 78)
    return song.build(tail=3)
