"""Bach's first prelude of the Well-Tempered Clavier (BWV 846): each bar is one chord, broken the
same way twice. Dynamics follow the tension of the harmony; the pedal changes with each bar."""

import notation
import songs
from song import Song

FILE_NAME = "Prelude in C.mid"

# One chord a bar, from the lowest note up, and how loud it is on a scale of its own.
BARS = """c4 e g c5 e = 50; c4 d a d5 f = 52; b3 d4 g d5 f = 54; c4 e g c5 e = 50;
    c4 e a e5 a = 58; c4 d f# a d5 = 55; b3 d4 g d5 g = 58; b3 c4 e g c5 = 54;
    a3 c4 e g c5 = 50; d3 a d4 f# c5 = 53; g3 b d4 g b = 48; g3 bb e4 g c#5 = 56;
    f3 a d4 a d5 = 52; f3 ab d4 f b = 55; e3 g c4 g c5 = 49; e3 f a c4 f = 50;
    d3 f a c4 f = 52; g2 d3 g b f4 = 54; c3 e g c4 e = 48; c3 g bb c4 e = 54;
    f2 f3 a c4 e = 56; f#2 c3 a c4 eb = 63; ab2 f3 b c4 d = 67; g2 f3 g b d4 = 64;
    g2 e3 g c4 e = 62; g2 d3 g c4 f = 65; g2 d3 g b f4 = 63; g2 eb3 a c4 f# = 72;
    g2 e3 g c4 g = 70; g2 d3 g c4 f = 66; g2 d3 g b f4 = 60; c2 c3 g bb e4 = 56"""
CLOSE = ("c3 f3 a c4 f c a3 c4 a3 f a f d f d", "b2 g4 b d5 f d b4 d5 b4 g b d f e d")


def build():
    song = Song("Prelude in C", songs.arrangement_of("Johann Sebastian Bach (1685-1750)"),
                tempo=66, key=("C", "major"), format=0, loudness=1.75)
    song.text("BWV 846, for piano. One track, one channel: MIDI format 0.")
    piano = song.part("Piano", 1, 0, "Acoustic grand piano", volume=127, pan=64, reverb=64,
                      timing=0.008, spread=3)
    bars = [bar.split("=") for bar in BARS.split(";")]
    for index, (chord, loudness) in enumerate(bars):
        at = 4.0 * index
        keys = [note.pitches[0] for note in notation.melody(chord)]
        for half in (0.0, 2.0):
            echo = float(loudness) - (3 if half else 0)
            # The two low notes are held, the three upper ones ripple above them.
            piano.note(at + half, 2.0, keys[0], echo + 6)
            piano.note(at + half + 0.25, 1.75, keys[1], echo - 2)
            for step, choice in enumerate((2, 3, 4, 2, 3, 4)):
                lift = 3 if choice == 4 else 0
                piano.note(at + half + 0.5 + step * 0.25, 0.27, keys[choice], echo - 3 + lift)
        piano.pedal(at + 0.06, at + 3.95)
    at = 4.0 * len(bars)
    for index, run in enumerate(CLOSE):
        piano.note(at, 4.0, 36, 54 - 4 * index)
        for step, note in enumerate(notation.melody(run)):
            length = 3.75 if step == 0 else 0.3
            piano.note(at + 0.25 + step * 0.25, length, note.pitches[0], 52 - 4 * index)
        piano.pedal(at + 0.06, at + 3.95)
        at += 4.0
    piano.pedal(at + 0.06, at + 5.5)
    piano.chord(at, 5.4, (36, 48, 64, 67, 72), 46, spread=0.5)
    # The player leans into the long dominant and lets the end come slowly.
    song.ramp_tempo(80, 92, 66, 70)
    song.ramp_tempo(92, 124, 70, 64)
    song.ramp_tempo(at - 8, at, 62, 40)
    for at_bar, name in ((0, "Opening"), (19, "Turn to the subdominant"), (23, "Dominant pedal"),
                         (31, "Tonic pedal"), (34, "Last chord")):
        song.marker(at_bar * 4.0, name)
    return song.build(tail=1.5)
