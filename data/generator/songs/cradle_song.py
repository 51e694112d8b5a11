"""Brahms's lullaby: a music box, then voice-like flute and strings, then all together and asleep.
The words are new; they are lyric events in the melody's track."""

import accompaniment as acc
import songs
from song import Song

FILE_NAME = "Cradle Song.mid"
BAR = 3.0

CHORDS = ("F | F | F, Bb, F | Gm7, C7, C7 | C7 | C7 | C7, C7, C7 | F | Bb | F | Gm7, C7, C7 | F |"
          "Bb | F | Gm7, F/C, C7 | F")
TUNE = """a4:e a | c5:q. a4:e a:q | c5:h a4:e c5 | f:q e:q. d:e | d:q c g4:e a | bb:q g g:e a
    | bb:h g:e bb | e5:e d c:q e | f:h f4:e f | f5:h d:e bb4 | c5:h a4:e f | bb:q c5 d | c:h f4:e f
    | f5:h d:e bb4 | c5:h a4:e f | bb:q a g | f:h"""
HARMONY = """r:q | f:h. | f:q. e:e f:q | a:q bb a | bb:h. | g:q e e | e:h. | g:q g bb | a:h.
    | bb:h f:q | a:h f:q | f:q e e | f:h. | bb:h f:q | a:h f:q | g:q f e | f:h"""

VERSES = ("""Close your eyes, drift a- way, / for _ done is the day, _ / and _ moon- light so _
             white / keeps _ watch _ through the night. / When the sun climbs the hill, / you will
             wake, warm and still; / when the sun climbs the hill, / you will wake, warm and
             still.""",
          """In the dark, safe and deep, / the _ lambs are a- sleep, _ / and _ ships on the _ foam
             / have _ all _ wan- dered home. / When the morn- ing bells ring, / ev- 'ry bird wakes
             to sing; / when the morn- ing bells ring, / ev- 'ry bird wakes to sing.""")


def build():
    song = Song("Cradle Song", songs.arrangement_of("Johannes Brahms (1833-1897)"), tempo=76,
                bar=BAR, signature=(3, 4), key=("F", "major"), loudness=1.36)
    song.text("Opus 49 no. 4, with new words.")
    flute = song.part("Melody", 1, 73, "Flute", volume=108, pan=60, reverb=80, breathes=True)
    box = song.part("Music Box", 2, 10, "Music box", volume=112, pan=74, reverb=70)
    harp = song.part("Harp", 3, 46, "Orchestral harp", volume=108, pan=44, reverb=70)
    strings = song.part("Strings", 4, 49, "Slow strings", volume=92, pan=64, reverb=90,
                        breathes=True)
    clarinet = song.part("Clarinet", 5, 71, "Clarinet", volume=88, pan=88, reverb=70,
                         breathes=True)
    cello = song.part("Cello", 6, 42, "Cello", volume=92, pan=78, reverb=70, breathes=True)
    choir = song.part("Choir", 7, 52, "Choir, ah", volume=80, pan=64, reverb=100)
    bells = song.part("Celesta", 8, 8, "Celesta", volume=96, pan=90, reverb=90)

    verse = 16 * BAR
    first, second, third = 4 * BAR, 4 * BAR + verse, 5 * BAR + 2 * verse
    end = third + verse
    song.marker(0, "Music box")
    harp.play("f3:e c4 f a", at=0, velocity=50, gate=3.0)
    box.play("a5:e a | c6:q. a5:e a:q | c6:h a5:e c6 | bb5:q g e | f:h", at=2.0, velocity=62,
             bar=BAR, pickup=1.0, phrase=12)
    acc.broken(box, acc.chord_row("F | F | C7 | F", BAR, at=3.0), (0, 2, 3), step=1.0, low=65,
               count=4, velocity=48, ring=1.5)

    def harp_for(at, velocity):
        row = acc.chord_row(CHORDS, BAR, at)
        for begin, length, name in row:
            order = (0, 2, 3, 4, 3, 2) if length == BAR else (0, 3)
            acc.broken(harp, [(begin, length, name)], order, step=0.5, low=41, count=5,
                       velocity=velocity, ring=2.5)
        return row

    song.marker(first, "First verse")
    harp_for(first, 54)
    notes = flute.play(TUNE, at=first - 1, velocity=70, bar=BAR, pickup=1.0, phrase=12)
    flute.lyrics(notes, VERSES[0])

    song.marker(second, "Second verse")
    row = harp_for(second, 56)
    notes = flute.play(TUNE, at=second - 1, velocity=76, bar=BAR, pickup=1.0, phrase=12)
    flute.lyrics(notes, VERSES[1])
    clarinet.play(HARMONY, at=second - 1, velocity=62, bar=BAR, pickup=1.0, phrase=12)
    acc.pad(strings, row, centre=58, velocity=46, size=3, gate=1.0)
    acc.bass(cello, row, ((0, 2.9, "1"),), low=41, velocity=54, period=BAR)

    song.marker(third, "Asleep")
    row = harp_for(third, 52)
    bells.play(TUNE, at=third - 1, velocity=58, bar=BAR, pickup=1.0, phrase=12, transpose=12)
    box.play(HARMONY, at=third - 1, velocity=46, bar=BAR, pickup=1.0, phrase=12, transpose=12)
    acc.pad(choir, row, centre=62, velocity=50, size=3, gate=1.0)
    acc.bass(cello, row, ((0, 2.9, "1"),), low=41, velocity=48, period=BAR)
    flute.play("f5:h. | f | d:q c bb4 | a:h.", at=third + 12 * BAR, velocity=54, bar=BAR)
    for bar in (second - BAR, third - BAR):
        bells.play("f5:e a c6 f a c7", at=bar, velocity=44, bar=BAR, gate=2.0)

    song.ramp_tempo(first - 3, first - 1.5, 76, 66)
    song.tempo(first - 1, 76)
    song.ramp_tempo(third - BAR - 3, third - BAR, 76, 62)
    song.tempo(third - 1, 72)
    song.ramp_tempo(end - 4 * BAR, end - 1, 70, 46)
    song.tempo(end, 58)
    harp.play("f3:e c4 f a c5 f | a:e c6 f:h | f2+c3+f+a:h.", at=end, velocity=48, bar=BAR,
              gate=3.0)
    choir.chord(end, 8.5, [53, 57, 60], 46)
    bells.play("r:h. | r:q c6:e f a:q | c7:h.", at=end, velocity=40, bar=BAR, gate=2.0)
    return song.build(tail=2)
