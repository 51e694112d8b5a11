"""Greensleeves as an air with divisions, as lutenists played it: lute alone, then recorder and
gamba, then strings and harp with a running variation, then lute alone again."""

import accompaniment as acc
import midi_writer as smf
import songs
from song import Song

FILE_NAME = "Greensleeves.rmi"
BAR = 3.0

VERSE = """c5:q d:e e:e. f#:s e:e | d:q b4:e g:e. a:s b:e | c5:q a4:e a:e. g#:s a:e
    | b:q g#:e e:q a:e | c5:q d:e e:e. f#:s e:e | d:q b4:e g:e. a:s b:e
    | c5:e. b4:s a:e g#:e. f#:s g#:e | a:q. a:q."""
REFRAIN = """g5:q. g:e. f#:s e:e | d:q b4:e g:e. a:s b:e | c5:q a4:e a:e. g#:s a:e
    | b:q g#:e e:q. | g5:q. g:e. f#:s e:e | d:q b4:e g:e. a:s b:e
    | c5:e. b4:s a:e g#:e. f#:s g#:e | a:q. a:q."""
# The divisions: the same tune broken into running notes.
VERSE_RUN = """c5:s b4 c5 d e d e f# g f# e:e | d:s c b4 c5 d b4 g a b c5 d b4
    | c5:s b4 a b c5 a4 e f# g# a b a | b:s a g# a b g# e f# g# b e5 d
    | c:s b4 c5 d e d e f# g f# e:e | d:s e f# d b4 d5 g4 a b c5 d b4
    | c5:s d c b4 a c5 b4 a g# f# e g# | a:s e a b c5 e a:q."""
REFRAIN_RUN = """g5:s f# g a g f# g a g f# e:e | d:s e d c b4 d5 g4 b d5 g d b4
    | c5:s e c b4 a c5 e4 a c5 e c a4 | b:s e b a g# b e5 d b4 g# e:e
    | g5:s e g c6 b5 a g a g f# e d | d:s g d b4 g b d5 b4 g a b d5
    | c:s e a e c a4 b d5 e d b4 g# | a:s c5 e a e c a4:q."""
SECOND = """a4:q. c5:q. | b4:q. d:q. | e:q. c:q. | e:q g#:e b:q. | a:q. c5:q. | b4:q. d:q.
    | e:q. b3:q. | c4:q. c:q."""
SECOND_REFRAIN = """e5:q. e:e. d:s c:e | b4:q g:e d:q. | e:q. c:q. | g#:q e:e b3:q.
    | e5:q. e:e. d:s c:e | b4:q g:e d:q. | e:q. b3:q. | c4:q. c:q."""

VERSE_CHORDS = "Am | G | Am | E | Am | G | Am, E | Am"
REFRAIN_CHORDS = "C | G | Am | E | C | G | Am, E | Am"


def build():
    song = Song("Greensleeves", songs.arrangement_of("Traditional (16th century)"), tempo=84,
                bar=BAR, pulse=1.5, signature=(6, 8), key=("A", "minor"), loudness=1.15)
    song.text("An air with divisions, in a RIFF MIDI file.")
    lute = song.part("Lute", 1, 24, "Lute (nylon-string guitar)", volume=120, pan=52, reverb=64)
    recorder = song.part("Recorder", 2, 74, "Recorder", volume=96, pan=76, reverb=76,
                         breathes=True)
    gamba = song.part("Viola da gamba", 3, 42, "Cello", volume=100, pan=84, reverb=70,
                      breathes=True)
    strings = song.part("Consort", 4, 48, "String ensemble", volume=86, pan=40, reverb=84,
                        breathes=True)
    harp = song.part("Harp", 5, 46, "Orchestral harp", volume=104, pan=32, reverb=70)
    oboe = song.part("Shawm", 6, 68, "Oboe", volume=84, pan=92, reverb=76, breathes=True)
    drum = song.part("Drum and Tambourine", 10, 0, "Frame drum and tambourine", volume=90,
                     reverb=60)

    lead_in = 2 * BAR
    half = 8 * BAR
    lute.play("a2:e e3 a c4 e a | a:e e c a3 e a2", at=0, velocity=64, gate=2.0, bar=BAR)
    places = [lead_in + index * half for index in range(9)]
    names = ("Lute: air", "Lute: refrain", "Recorder: air", "Recorder: refrain",
             "Divisions: air", "Divisions: refrain", "All: refrain", "Lute alone: air")
    for place, name in zip(places, names):
        song.marker(place, name)

    def under(part, at, chords, velocity, order=(0, 2, 3, 4, 3, 2), low=45):
        row = acc.chord_row(chords, BAR, at)
        for begin, length, name in row:
            acc.broken(part, [(begin, length, name)], order[:round(length * 2)], step=0.5,
                       low=low, count=5, velocity=velocity, ring=2.0)
        return row

    # Lute alone.
    for at, tune, chords in ((places[0], VERSE, VERSE_CHORDS),
                             (places[1], REFRAIN, REFRAIN_CHORDS)):
        lute.play("a4:e", at=at - 0.5, velocity=68)
        lute.play(tune, at=at, velocity=80, bar=BAR, phrase=12)
        under(lute, at, chords, 54, order=(0, 2, None, 1, 2, None))
    # Recorder over the lute, the gamba below.
    for at, tune, lower, chords in ((places[2], VERSE, SECOND, VERSE_CHORDS),
                                    (places[3], REFRAIN, SECOND_REFRAIN, REFRAIN_CHORDS)):
        recorder.play(tune, at=at, velocity=78, bar=BAR, phrase=12, transpose=12)
        gamba.play(lower, at=at, velocity=62, bar=BAR, phrase=12, transpose=-12)
        row = under(lute, at, chords, 60)
        acc.drums(drum, at, 8, {"low conga": "x..o.."}, velocity=52, steps=2)
    # Divisions on the harp, tune in the oboe, strings beneath.
    for at, tune, run, chords in ((places[4], VERSE, VERSE_RUN, VERSE_CHORDS),
                                  (places[5], REFRAIN, REFRAIN_RUN, REFRAIN_CHORDS)):
        harp.play(run, at=at, velocity=76, bar=BAR, phrase=12, transpose=12, gate=1.5)
        oboe.play(tune, at=at, velocity=72, bar=BAR, phrase=12)
        row = under(lute, at, chords, 52)
        acc.pad(strings, row, centre=60, velocity=54, size=3, gate=1.0)
        acc.bass(gamba, row, ((0, 1.4, "1"), (1.5, 1.4, "5")), low=40, velocity=62, period=BAR)
        acc.drums(drum, at, 8, {"low conga": "X..x.o", "tambourine": "x.oxoo"}, velocity=56,
                  steps=2)
    # Everybody.
    at = places[6]
    strings.cue(at, "All join in")
    recorder.play(REFRAIN_RUN, at=at, velocity=80, bar=BAR, phrase=12, transpose=12)
    oboe.play(REFRAIN, at=at, velocity=80, bar=BAR, phrase=12)
    strings.play(REFRAIN, at=at, velocity=78, bar=BAR, phrase=12)
    strings.play(SECOND_REFRAIN, at=at, velocity=66, bar=BAR, phrase=12)
    row = under(lute, at, REFRAIN_CHORDS, 62)
    under(harp, at, REFRAIN_CHORDS, 58, order=(0, 1, 2, 3, 2, 1), low=57)
    acc.bass(gamba, row, ((0, 1.4, "1"), (1.5, 1.4, "5")), low=40, velocity=74, period=BAR)
    acc.drums(drum, at, 8, {"low conga": "X.ox.o", "tambourine": "XoxXox"}, velocity=60, steps=2)
    song.ramp_tempo(places[7] - 3, places[7] - 0.5, 84, 66)
    # And the lute is left alone.
    at = places[7]
    song.tempo(at, 76)
    lute.play(VERSE, at=at, velocity=70, bar=BAR, phrase=12)
    under(lute, at, VERSE_CHORDS, 48, order=(0, 2, None, 1, 2, None))
    acc.pad(strings, acc.chord_row("G | Am, E | Am", BAR, at=at + 15), centre=57, velocity=38,
            size=3, gate=1.0)
    end = places[8]
    song.ramp_tempo(end - 6, end, 74, 46)
    lute.chord(end, 5.0, [45, 52, 57, 61, 64, 69], 58, spread=0.9)
    strings.chord(end, 5.0, [57, 61, 64], 40)
    return smf.rmid_file(song.build(tail=2), song.title, song.rights)
