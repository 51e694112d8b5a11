"""A tango: accordion and violin over marching piano and bass, with a middle part in the major."""

import accompaniment as acc
import notation
import songs
from song import Song

FILE_NAME = "The Last Tram.mid"

CHORDS_A = "Dm | Dm | A7 | A7 | A7 | A7 | Dm | Dm | D7 | D7 | Gm | Gm | Dm | A7 | Dm | Dm, A7"
CHORDS_B = "D | D | Em | Em | A7 | A7 | D | D | D | D7 | G | Gm6 | D/A | B7 | Em, A7 | D"
TUNE_A = """r:e a4 d5 e f:e. e:s d:e f | a:q. g#:e a:h | r:e a bb a g:e. f:s e:e g | bb:q. a:e e:h
    | r:e e a g f:e. e:s c#:e e | g:q. f:e e:h | r:e d f e d:e. c#:s d:e e | f:q a4:e' a' a:q r
    | r:e a4 d5 f# a:e. g:s f#:e a | c6:q. b5:e c6:h | r:e d5 g a bb:e. a:s g:e bb
    | d6:q. c#:e d:h | r:e d c# d a5:e. f:s d:e f | e f e c# a4 b c#5 e | d:q. a4:e d5:q a4'
    | d5:q r:h."""
TUNE_B = """f#5:h. e:e f# | a:h f# | g:h. f#:e g | b:h e | e:q. f#:e g:q c#6 | b5:h a | a:h. g:e f#
    | f#:h d:q r | f#:h. e:e f# | a:q. b:e c6:h | b5:h. a:e g | bb:h g | a:q. f#:e d:q f#
    | a:q. f#:e d#:h | e:q g c#6 a5 | d6:h. r:q"""
COUNTER_A = """d4:w | f:h e | c#:w | e:h c# | g:w | e:h g | f:w | f:q f' f' d | f#:w | a:h f# | g:w
    | bb:h g | a:w | g:h e | f:q. e:e d:q a3' | d4:q r:h."""
# The violin's flourish between the accordion's phrases.
ANSWERS = ((1, "r:h r:e d5:s e f g a bb"), (3, "r:h r:e e5:s f g a bb c#6"),
           (9, "r:h r:e d6:s c b5 a g f#"), (11, "r:h r:e g5:s a bb c6 d eb"))


def build():
    song = Song("The Last Tram", songs.OWN_TUNE, tempo=118, key=("D", "minor"), loudness=1.0)
    song.text("A tango for the way home.")
    accordion = song.part("Bandoneon", 1, 23, "Tango accordion", volume=104, pan=48, reverb=50)
    violin = song.part("Violin", 2, 40, "Violin", volume=100, pan=84, reverb=60, breathes=True)
    piano = song.part("Piano", 3, 0, "Acoustic grand piano", volume=114, pan=60, reverb=40)
    strings = song.part("Strings", 4, 48, "String ensemble", volume=86, pan=72, reverb=70)
    pizzicato = song.part("Pizzicato", 5, 45, "Pizzicato strings", volume=96, pan=30, reverb=50)
    bass = song.part("Double Bass", 6, 32, "Acoustic bass", volume=118, reverb=24)

    march = ((0, 0.35, 10), (1, 0.3, -6), (2, 0.35, 6), (3, 0.3, -6))
    syncopated = ((0, 1.3, 10), (1.5, 0.4, 0), (2.5, 0.4, -2), (3, 0.9, 4))
    habanera = ((0, 1.3, 6), (1.5, 0.4, -4), (2, 0.9, 2), (3, 0.9, -2))
    bass_march = ((0, 0.8, "1"), (1, 0.5, "5"), (2, 0.8, "1"), (3, 0.5, "5"))
    bass_habanera = ((0, 1.45, "1"), (1.5, 0.45, "5"), (2, 0.9, "8"), (3, 0.9, "5"))

    def accompany(at, chords, strokes, low, loud):
        row = acc.chord_row(chords, at=at)
        acc.rhythm(piano, row, strokes, centre=57, velocity=loud)
        acc.bass(bass, row, low, low=28, velocity=loud + 18)
        # The bow drags up to the bar, the tango's sigh.
        for begin, _, name in row[4::4]:
            bass.note(begin - 0.25, 0.24, notation.bass_note(name, 28) - 1, loud + 4)
        return row

    song.marker(0, "Introduction")
    accompany(0, "Dm | Gm6 | A7 | A7", march, bass_march, 66)
    accordion.play("a4+d5+f:e' a4+d5+f:e' r:q a4+d5+f:e. e5:s d:e c#:e | d5+e+bb:q. a5:e g:h"
                   "| c#5+e+a:e' c#+e+a' r:q g5:e. f:s e:e d | c#5:e e g bb a:q' a4:q'", at=0,
                   velocity=84, bar=4)
    places = [16.0, 80.0, 144.0, 208.0, 272.0]
    for place, name in zip(places, ("A", "B: in the major", "A: violin leads", "B: everybody",
                                    "Last A")):
        song.marker(place, name)
    for place in (80.0, 208.0):
        song.conductor.key_signature(song.tick(place), "D", "major")
        song.conductor.key_signature(song.tick(place + 64), "D", "minor")

    accompany(places[0], CHORDS_A, march, bass_march, 64)
    accordion.play(TUNE_A, at=places[0], velocity=86, bar=4, phrase=16)
    for bar, run in ANSWERS:
        violin.play(run, at=places[0] + 4 * bar, velocity=74)

    row = accompany(places[1], CHORDS_B, habanera, bass_habanera, 56)
    violin.play(TUNE_B, at=places[1], velocity=82, bar=4, phrase=16)
    acc.pad(strings, row, centre=62, velocity=50, size=3)
    acc.rhythm(accordion, row, ((1.5, 0.4, 0), (3, 0.8, 2)), centre=67, velocity=50, size=3)

    row = accompany(places[2], CHORDS_A, syncopated, bass_march, 66)
    violin.play(TUNE_A, at=places[2], velocity=88, bar=4, phrase=16)
    accordion.play(COUNTER_A, at=places[2], velocity=66, bar=4, phrase=16)
    acc.rhythm(pizzicato, row, ((1, 0.4, 0), (3, 0.4, 0)), centre=62, velocity=62, size=3)

    row = accompany(places[3], CHORDS_B, habanera, bass_habanera, 66)
    accordion.play(TUNE_B, at=places[3], velocity=82, bar=4, phrase=16)
    violin.play(TUNE_B, at=places[3], velocity=76, bar=4, phrase=16, transpose=12)
    acc.pad(strings, row, centre=60, velocity=58, size=3)
    acc.broken(pizzicato, row, (0, 1, 2, 3, 2, 1, 2, 1), step=0.5, low=57, count=4, velocity=56)

    row = accompany(places[4], CHORDS_A[:CHORDS_A.rindex("|")], march, bass_march, 74)
    accordion.play(TUNE_A[:TUNE_A.rindex("|")], at=places[4], velocity=92, bar=4, phrase=16)
    violin.play(TUNE_A[:TUNE_A.rindex("|")], at=places[4], velocity=82, bar=4, phrase=16,
                transpose=12)
    acc.rhythm(strings, row, ((0, 0.4, 6), (1, 0.4, -4), (2, 0.4, 4), (3, 0.4, -4)), centre=62,
               velocity=58, size=3)
    end = places[4] + 60
    # Chan - chan.
    song.ramp_tempo(end - 8, end, 118, 84)
    for at, length, keys, low, loud in ((end, 0.6, (57, 61, 64, 67), 33, 92),
                                        (end + 1.5, 1.6, (57, 62, 65, 69), 38, 66)):
        for part in (piano, accordion, strings):
            part.chord(at, length, keys, loud)
        violin.note(at, length, keys[2] + 12, loud)
        bass.note(at, length, low, loud + 8)
    return song.build(tail=3)
