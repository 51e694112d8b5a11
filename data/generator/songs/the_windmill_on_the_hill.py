"""Two jigs in the Irish manner, each twice through: whistle, fiddle, accordion, guitar, drum."""

import accompaniment as acc
import songs
from song import Song

FILE_NAME = "The Windmill on the Hill.mid"
BAR = 3.0

# Tune, chords; all notes are eighths unless they say otherwise.
WINDMILL_A = ("""g5:e f# g d b4 d5 | e f# g e c e | d b4 g b d5 g | a g f# e d c
    | b4 d5 g f# g a | b a g e f# g | a f# d e d c | b4 g a g:q.""",
              "G | C | G | Am, D | G | C | D | G")
WINDMILL_B = ("""e5:e b4 e5 g f# e | f# d f# a g f# | g e g c6 b5 a | b g d b4:q d5:e
    | e b4 e5 g f# e | f# g a d6 c a5 | g e c d f# a | g d b4 g:q.""",
              "Em | D | C | G | Em | D | C, D | G")
OTTER_A = ("""d5:e f# a d6 a5 f# | g b d6 b5 g b | a f# d f# a d6 | c# b5 a e c# e
    | f# d f# a f# a | b g b d6 c# b5 | a c#6 b5 a g e | f# d e d:q.""",
           "D | G | D | A | D | G | A | D")
OTTER_B = ("""b5:e f# b d6 c# b5 | a e a c#6 b5 a | g d g b a g | f# d a4 d5:q e:e
    | f# b d6 c# b5 f# | g b d6 e d b5 | c#6 a5 e g f# e | d f# e d:q.""",
           "Bm | A | G | D | Bm | G | A | D")


def build():
    song = Song("The Windmill on the Hill", songs.OWN_TUNE, tempo=172, bar=BAR, pulse=1.5,
                signature=(6, 8), key=("G", "major"), loudness=1.25)
    song.text("Two jigs: The Windmill on the Hill, and The Otter's Holiday.")
    whistle = song.part("Whistle", 1, 72, "Tin whistle (piccolo)", volume=96, pan=46, reverb=60)
    fiddle = song.part("Fiddle", 2, 110, "Fiddle", volume=92, pan=86, reverb=50)
    accordion = song.part("Accordion", 3, 21, "Accordion", volume=84, pan=28, reverb=50)
    guitar = song.part("Guitar", 4, 25, "Steel-string guitar", volume=104, pan=70, reverb=40)
    bass = song.part("Bass", 5, 32, "Acoustic bass", volume=112, reverb=20)
    drone = song.part("Drone", 6, 109, "Pipe drone", volume=52, pan=64, reverb=70)
    drum = song.part("Frame Drum", 10, 0, "Frame drum, spoons", volume=108, reverb=50)

    half = 8 * BAR
    strum = ((0, 0.45, 8), (0.5, 0.3, -10), (1, 0.45, 0), (1.5, 0.45, 5), (2, 0.3, -10),
             (2.5, 0.45, 0))
    at = 2 * BAR
    acc.drums(drum, 0, 2, {"low conga": "X.xx.x", "mute conga": ".o..o."}, velocity=66, steps=2)
    guitar.play("g2+d3+g+b+d4+g:e r r r:q. | a3+d4+f#:e r d3+a+d4+f#:e r r d3+a+d4:e", at=0,
                velocity=66)

    def cut(part, notes, velocity):
        """A flick from the note above on every second strong beat."""
        for note in notes:
            if (note.begin - at) % BAR < 0.01 and part.chance.random() < 0.6:
                part.note(note.begin - 0.1, 0.09, note.pitches[0] + 2, velocity)

    plan = [("The Windmill on the Hill", WINDMILL_A, WINDMILL_B, 1),
            ("The Windmill, everybody", WINDMILL_A, WINDMILL_B, 2),
            ("The Otter's Holiday", OTTER_A, OTTER_B, 2),
            ("The Otter's Holiday, with drone", OTTER_A, OTTER_B, 3)]
    for name, first, second, players in plan:
        song.marker(at, name)
        if first is OTTER_A:
            song.conductor.key_signature(song.tick(at), "D", "major")
        for index, (tune, chords) in enumerate((first, first, second, second)):
            row = acc.chord_row(chords, BAR, at)
            again = index % 2
            octave = 0 if first is OTTER_A else 12
            notes = whistle.play(tune, at=at, velocity=78, bar=BAR, phrase=12, transpose=octave)
            cut(whistle, notes, 60)
            if players > 1 or again:
                fiddle.play(tune, at=at, velocity=76 if players > 1 else 60, bar=BAR, phrase=12)
            if players > 1:
                acc.bass(bass, row, ((0, 1.3, "1"), (1.5, 1.2, "5")), low=28, velocity=82,
                         period=BAR)
                acc.rhythm(accordion, row, ((0.5, 0.4, 0), (1, 0.4, 2), (2, 0.4, 0),
                           (2.5, 0.4, 2)), centre=62, velocity=52, size=3, period=BAR)
            if players > 2:
                accordion.play(tune, at=at, velocity=76, bar=BAR, phrase=12)
                drone.chord(at, half - 0.1, (50, 57), 54)
            acc.rhythm(guitar, row, strum, centre=58, velocity=62, period=BAR, spread=0.06)
            if players > 1 or index >= 2:
                acc.drums(drum, at, 8, {"low conga": "X.xx.x", "mute conga": ".oo.oo"},
                          velocity=66 + 4 * players, steps=2)
            if players > 1 and again:
                acc.drums(drum, at, 8, {"high block": "o.ox.o"}, velocity=62, steps=2)
            if players > 2:
                acc.drums(drum, at, 8, {"bass drum": "x..o..", "tambourine": "o.ox.o"},
                          velocity=64, steps=2)
            at += half
    song.marker(at, "Last chord")
    for part, keys, loud in ((whistle, (86,), 84), (fiddle, (74, 78), 82), (bass, (38,), 88),
                             (accordion, (62, 66, 69), 70)):
        part.chord(at, 2.4, keys, loud)
    guitar.chord(at, 2.8, (38, 45, 50, 57, 62, 66), 78, spread=0.15)
    acc.hit(drum, at, "low conga", 104)
    song.ramp_tempo(at - 3, at, 172, 140)
    return song.build(tail=3)
