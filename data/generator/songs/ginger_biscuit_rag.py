"""A piano rag in the classic form: introduction, A A B B A, a trio in the subdominant, and a last
A. The left hand strides between bass and chord; the right hand is syncopated over it."""

import notation
import songs
from song import Song

FILE_NAME = "Ginger Biscuit Rag.mid"
BAR = 2.0

STRAIN_A = ("C | C | G7 | G7 | C | C7 | D7 | G7 | C | C | G7 | C, C7 | F, F#dim7 | C/G, A7 |"
            "D7, G7 | C")
TUNE_A = """e5:s g:e e:s c:e a4 | g:s c5:e e:s d:e c | d:s f:e d:s b4:e g | a:s b d5 f e d:e.
    | e:s g:e e:s c:e a4 | c5:s e:e bb:s a:e g | f#:s a:e f#:s d:e c | b4:s d5 g:e f:s d b4 g
    | e5:s g:e e:s c:e a4 | g:s c5:e e:s g:e c6 | b5:s g:e f:s d:e b4 | c5:s e:e g:s bb:q
    | a:s f:e c:s c6:e a5 | g:s e:e g:s e:e c# | d:s f#:e a:s g f d b4 | c5:s e g e c6:e r"""

STRAIN_B = ("G7 | G9 | C | C | G7 | G7 | C | A7 | Dm | Dm, A7 | Dm | Fm6 | C | A7 | D7, G7 | C")
TUNE_B = """b5:s g:e d:s f:e d | b4:s d5 f a g f:e. | c6:s g5:e e:s g:e e | c:s e g a g e:e.
    | b:s g:e d:s f:e d | a:s f:e d:s b4 c5 d f | e:s c:e e:s g:e e | g:s e:e c#:s e g a:e
    | f:s a:e f:s d:e a4 | d5:s f a d6 c# a5:e. | d6:s a5:e f:s a:e d | ab:s f:e d:s c:e ab4
    | g:s c5:e e:s g:e e | a:s g e c# e g:e. | f#:s a:e f#:s f d b4 g | c5:e e:s g c6:e r"""

TRIO = ("F | F | C7 | C7 | C7 | C7 | F | F, Abdim7 | F | F7 | Bb | Bdim7 | F/C | D7 | G7, C7 | F")
TUNE_TRIO = """a4:e c5:s f:e. a:e | g:s f:e d:s c:q | bb4:e c5:s e:e. g:e | f:s e:e d:s c:q
    | bb4:s d5:e c:s g:e e | bb:s g e c d e:e. | f:s a:e c6:s a5:e f | c6:s a5:e f:s ab:q
    | a4:e c5:s f:e. a:e | c6:s a5:e f:s eb:q | d:s f:e bb:s d6:e bb5 | b:s d6:e b5:s ab:e f
    | c6:s a5:e f:s c:e a4 | a:s c5 d f# a f#:e. | g:s b:e g:s bb g e c | f:e a:s c6 f6:e r"""

INTRO = "g5:s a g e c:e a4 | g:s a g e c:e a3 | g3+g4:e a3+a4:s b3+b4:e. c4+c5:e | g3+b3+f4+g4:q r"


def stride(piano, at, chords, velocity):
    """Low octave, chord, low fifth, chord: in eighths. Where two chords share a bar, each has its
    own root."""
    bars = chords.split("|")
    previous = None
    for index, content in enumerate(bars):
        names = [name.strip() for name in content.split(",")]
        names = names * 2 if len(names) == 1 else names
        for half, name in enumerate(names):
            now = at + index * BAR + half
            low = notation.bass_note(name, 33)
            octave = [low, low + 12]
            if half == 1 and names[0] == name:
                fifth = notation.chord_pitches(name)[1][2]
                octave = [40 + (fifth - 40) % 12]
            last = index == len(bars) - 1 and half == 1
            piano.chord(now, 0.42, octave, velocity + (4 if half == 0 else 0))
            if not last:
                previous = notation.voicing(name, 57, previous, 3)
                piano.chord(now + 0.5, 0.3, previous, velocity - 12)


def right_hand(piano, at, tune, chords, velocity, octaves):
    """The tune, with a chord tone below its accented notes, or in octaves."""
    notes = piano.play(tune, at, velocity=velocity, phrase=8.0, bar=BAR, gate=0.9)
    row = [[name.strip() for name in content.split(",")] for content in chords.split("|")]
    for note in notes:
        place = note.begin - at
        names = row[int(place // BAR)]
        name = names[int(place % BAR * len(names) / BAR)]
        key = max(note.pitches)
        _, tones = notation.chord_pitches(name)
        is_tone = key % 12 in tones
        if note.length >= 0.5 and is_tone:
            below = [key - step for step in range(3, 10) if (key - step) % 12 in tones]
            keys = below[:1] + ([key - 12] if octaves else [])
            piano.chord(note.begin, note.length * 0.85, keys, velocity - 12)


def build():
    song = Song("Ginger Biscuit Rag", songs.OWN_TUNE, tempo=88, bar=BAR, signature=(2, 4),
                key=("C", "major"), format=0, loudness=1.2)
    song.text("A piano rag. Not fast!")
    piano = song.part("Piano", 1, 0, "Acoustic grand piano", volume=127, reverb=46, timing=0.006,
                      spread=5)
    song.marker(0, "Introduction")
    piano.play(INTRO, at=0, velocity=86, bar=BAR, gate=0.9)
    piano.play("g4:s a g e c:e a3 | g:s a g e c:e a2 | r:q r:q | g2:q r", at=0, velocity=78,
               bar=BAR, gate=0.9)
    strains = [("A", STRAIN_A, TUNE_A, 84, False), ("A again", STRAIN_A, TUNE_A, 76, True),
               ("B", STRAIN_B, TUNE_B, 84, False), ("B again", STRAIN_B, TUNE_B, 90, True),
               ("A once more", STRAIN_A, TUNE_A, 84, True),
               ("Trio", TRIO, TUNE_TRIO, 68, False), ("Trio again", TRIO, TUNE_TRIO, 86, True),
               ("Last A", STRAIN_A, TUNE_A, 92, True)]
    at = 4 * BAR
    for name, chords, tune, velocity, octaves in strains:
        song.marker(at, name)
        if name == "Trio":
            song.conductor.key_signature(song.tick(at), "F", "major")
        if name == "Last A":
            song.conductor.key_signature(song.tick(at), "C", "major")
        stride(piano, at, chords, velocity - 8)
        right_hand(piano, at, tune, chords, velocity, octaves)
        at += 16 * BAR
    song.ramp_tempo(at - 3 * BAR, at - 0.5, 88, 74, step=0.25)
    song.tempo(at, 92)
    piano.play("c3+g4+c5+e:s g3+g4+c5+e:e g4+c5+e:s a4+c5+e:e r | c6+e6+g6+c7:e c2+c3:e r:q", at=at,
               velocity=96, bar=BAR)
    return song.build(tail=1.5)
