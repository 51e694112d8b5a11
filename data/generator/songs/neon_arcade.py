"""Synth-pop in A minor with pitch bends, vibrato by the modulation wheel, side-chained pads, and a
last chorus a tone higher."""

import accompaniment as acc
import notation
import songs
from song import EXPRESSION, MODULATION, Song

FILE_NAME = "Neon Arcade.mid"
SECTION = 32.0

VERSE = "Am | F | C | G | Am | F | C | G"
CHORUS = "F | G | Em | Am | F | G | C | E7"
BRIDGE = "Dm | Dm | Am | Am | Bb | Bb | Esus4 | E7"
TUNE_VERSE = """e5:q. d:e c:q a4 | c5:q. d:e c:h | e:q. d:e c:q g4 | b:h. r:q
    | e5:q. d:e c:q e | f:q. e:e c:h | g:q e d c | d:h. b4:q"""
TUNE_CHORUS = """a5:q. g:e f:q c6 | b5:q. a:e g:h | g:q. a:e b:q g | a:h. e:q
    | f:q a c6 a5 | b:q d6 b5 g | c6:q. b5:e g:q e | g#:h b"""
UNDER_CHORUS = """f5:q. e:e c:q f | d:q. d:e d:h | e:q. e:e e:q e | c:h. c:q
    | c:q f f f | g:q g g d | e:q. e:e e:q c | e:h g#"""
SOLO = """a5:s c6 e a5 c6 e a e c a5 e a c6 a5 e c | f:s a c6 f5 a c6 f c a5 f a c6 f e c a5
    | g:s c6 e g e c g5 c6 e c g5 e g:q | b:e d6 g:q f#:e d b5 g
    | a:s b c6 b5 a e c e a b c6 d e:q | f:s e c a5 f a c6 e f:q c
    | g:s f e c e c g5 e c e g c6 e:q | d:e b5 g b d6:h"""
TUNE_BRIDGE = "a5:w | f:h d | e:w | c:h e | f:w | d:h f | e:h. f:e e | g#:w"


def build():
    song = Song("Neon Arcade", songs.OWN_TUNE, tempo=126, key=("A", "minor"), loudness=1.2)
    song.text("Insert coin.")
    common = {"timing": 0.0, "spread": 3}
    lead = song.part("Lead", 1, 81, "Saw lead", volume=88, pan=64, reverb=60, chorus=50, **common)
    second = song.part("Second Lead", 2, 80, "Square lead", volume=66, pan=88, reverb=60,
                       chorus=40, **common)
    arp = song.part("Arpeggio", 3, 87, "Bass and lead", volume=70, pan=34, reverb=50, **common)
    pad = song.part("Pad", 4, 90, "Polysynth pad", volume=84, pan=64, reverb=90, chorus=60)
    bass = song.part("Bass", 5, 38, "Synth bass", volume=108, pan=64, reverb=10, **common)
    stabs = song.part("Stabs", 6, 62, "Synth brass", volume=80, pan=44, reverb=60, **common)
    bells = song.part("Bells", 7, 98, "Crystal", volume=84, pan=96, reverb=90, chorus=40, **common)
    drums = song.part("Drums", 10, 25, "Electronic kit", volume=106, reverb=30, **common)

    plan = ("Intro", "Verse", "Verse", "Chorus", "Break", "Verse", "Chorus", "Bridge", "Solo",
            "Chorus", "Last chorus")
    starts = [index * SECTION for index in range(len(plan))]
    end = len(plan) * SECTION

    def beat(at, loud, full):
        acc.drums(drums, at, 8, {"kick": "X...x...x...x..." if full else "X.......x.x....."},
                  velocity=88 + loud)
        acc.drums(drums, at, 8, {"snare2": "....X.......X..."}, velocity=70 + loud)
        acc.drums(drums, at, 8, {"hat": "x.o.x.o.x.o.x.oo"}, velocity=56 + loud)
        if full:
            acc.drums(drums, at, 8, {"open hat": "..x...x...x...x."}, velocity=52 + loud)
            acc.drums(drums, at, 8, {"clap": "....x.......x..."}, velocity=70 + loud)
        acc.drums(drums, at + 30, 0.5, {"snare": "x.xxxxXX"}, velocity=74 + loud)
        acc.hit(drums, at, "crash", 84 + loud)

    def pump(at, row, velocity):
        """A pad that ducks on every beat, as if the kick drum pushed it down."""
        acc.pad(pad, row, centre=62, velocity=velocity, size=3)
        for index in range(32):
            for step, value in enumerate((60, 84, 104, 116)):
                pad.control(at + index + step * 0.22, EXPRESSION, value)

    def driving_bass(row, velocity):
        for begin, length, name in row:
            root = notation.bass_note(name, 28)
            for step in range(round(length * 2)):
                key = root + (12 if step % 2 else 0)
                bass.note(begin + step * 0.5, 0.4, key, velocity + (6 if step % 2 == 0 else -4))

    def sing(part, tune, at, velocity, transpose=0):
        """Long notes get vibrato once they stand; the first of a phrase is bent up to its place."""
        for note in part.play(tune, at=at, velocity=velocity, bar=4, phrase=16, gate=0.96,
                              transpose=transpose):
            if note.length >= 2:
                part.ramp(note.begin + 0.5, note.begin + note.length * 0.9, MODULATION, 0, 70, 8)
                part.control(note.begin + note.length * 0.97, MODULATION, 0)
            if (note.begin - at) % 16 < 0.01:
                part.slide(note.begin, note.begin + 0.2, -1.0, 0.0, 6)

    for at, name in zip(starts, plan):
        song.marker(at, name)
        shift = 2 if name == "Last chorus" else 0
        chords = {"Chorus": CHORUS, "Last chorus": "G | A | F#m | Bm | G | A | D | F#7",
                  "Bridge": BRIDGE}.get(name, VERSE)
        row = acc.chord_row(chords, at=at)
        if name == "Last chorus":
            song.conductor.key_signature(song.tick(at), "B", "minor")
        if name != "Bridge":
            acc.broken(arp, row, (0, 2, 4, 2, 3, 5, 4, 2), step=0.25, low=57, count=6,
                       velocity=60 if name in ("Intro", "Break") else 54, gate=0.2)
        if name == "Intro":
            arp.ramp(at, at + 24, EXPRESSION, 50, 110, 24)
            acc.drums(drums, at + 16, 4, {"hat": "x.o.x.o.x.o.x.oo"}, velocity=52)
            acc.drums(drums, at + 16, 4, {"kick": "x...x...x...x..."}, velocity=70)
            acc.roll(drums, at + 28, at + 32, "snare2", 36, 96, per_beat=4)
            bells.play("e6:h a:q b | c7:h a6 | g:h e | d:w", at=at + 16, velocity=58, bar=4,
                       gate=1.5)
            continue
        if name == "Break":
            acc.pad(pad, row, centre=62, velocity=66, size=3)
            bells.play("e6:h a:q b | c7:h a6 | g:h e | d:w | e6:h a:q c7 | a6:h f | g:q e d c"
                       "| d:w", at=at, velocity=64, bar=4, gate=1.5)
            acc.drums(drums, at + 16, 4, {"kick": "x...x...x...x..."}, velocity=80)
            acc.roll(drums, at + 28, at + 32, "snare2", 36, 100, per_beat=4)
            driving_bass(row[4:], 76)
            continue
        if name == "Bridge":
            acc.pad(pad, row, centre=60, velocity=76, size=3)
            acc.broken(bells, row, (0, 2, 3, 5, 4, 3, 2, 3), step=0.5, low=69, count=6, velocity=50,
                       ring=1.5)
            acc.bass(bass, row, ((0, 3.8, "1"),), low=28, velocity=84)
            acc.drums(drums, at, 8, {"kick": "X.........x.....", "snare2": "........X......."},
                      velocity=78)
            acc.roll(drums, at + 28, at + 32, "mid tom", 60, 104, per_beat=4)
            sing(lead, TUNE_BRIDGE, at, 82)
            continue
        full = name != "Verse"
        beat(at, 6 if full else 0, full)
        pump(at, row, 70 if full else 58)
        driving_bass(row, 92 if full else 84)
        if full:
            acc.rhythm(stabs, row, ((0, 0.3, 6), (0.75, 0.25, 0), (1.5, 0.4, 0), (3, 0.4, 0)),
                       centre=64, velocity=66, size=3)
        if name == "Verse":
            sing(lead, TUNE_VERSE, at, 80)
        elif name == "Solo":
            lead.cue(at, "Solo")
            sing(lead, SOLO, at, 88)
        else:
            sing(lead, TUNE_CHORUS, at, 88 + shift, shift)
            sing(second, UNDER_CHORUS, at, 74, shift)
    song.marker(end, "Game over")
    row = acc.chord_row("Bm | Bm", at=end)
    acc.broken(arp, row, (0, 2, 4, 2, 3, 5, 4, 2), step=0.25, low=59, count=6, velocity=52,
               gate=0.2)
    arp.ramp(end, end + 8, EXPRESSION, 110, 30, 16)
    pad.control(end, EXPRESSION, 110)
    pad.chord(end, 8, (59, 62, 66), 62)
    lead.play("b5:w", at=end, velocity=84)
    lead.slide(end + 2.2, end + 3.6, 0, -2, 12)
    lead.bend(end + 4.2, 0)
    bass.note(end, 3.5, 35, 96)
    acc.hit(drums, end, "crash", 96)
    acc.hit(drums, end, "kick", 104)
    bells.play("b5:e d6 f# b d7:h b6 r:q b7:h", at=end + 0.5, velocity=52, gate=1.5)
    return song.build(tail=3)
