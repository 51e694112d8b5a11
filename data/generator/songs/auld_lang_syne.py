"""The old song of parting as a Soft Karaoke file: a quiet first verse at the piano, the band from
the first chorus on, and a last chorus a tone higher."""

import accompaniment as acc
import midi_writer as smf
import notation
import songs
from song import Song

FILE_NAME = "Auld Lang Syne.mid"

CHORDS = "F | C7 | F, F7 | Bb, Bdim7 | F/C | C7, A7 | Gm7, C7 | F"
VERSE = """c4:q | f:q. f:e f:q a | g:q. f:e g:q a | f:q. f:e a:q c5 | d:h. d:q
    | c:q. a4:e a:q f | g:q. f:e g:q a | f:q. d:e d:q c | f:h."""
CHORUS = """d5:q | c:q. a4:e a:q f | g:q. f:e g:q d5 | c:q. a4:e a:q c5 | d:h. d:q
    | c:q. a4:e a:q f | g:q. f:e g:q a | f:q. d:e d:q c | f:h."""
HARMONY = """a4:q | a:q. f:e f:q c | e:q. d:e e:q bb | a:q. f:e f:q a | bb:h. g#:q
    | a:q. f:e f:q c | e:q. d:e e:q c# | d:q. bb3:e bb:q bb | a:h."""

WORDS = [("Verse 1", "verse", """Should auld ac- quain- tance be for- got, / and nev- er brought to
              mind? / Should auld ac- quain- tance be for- got, / and auld _ lang _ syne? //"""),
         ("Chorus", "chorus", """For auld _ lang _ syne, my dear, / for auld _ lang _ syne, / we'll
              tak' a cup o' kind- ness yet, / for auld _ lang _ syne. //"""),
         ("Verse 2", "verse", """We twa hae run a- bout the braes, / and pu'd the gow- ans fine; /
              we've wan- der'd mon- y'a wea- ry fit / sin' auld _ lang _ syne. //"""),
         ("Chorus", "chorus", None),
         ("Verse 3", "verse", """And there's a hand, my trus- ty fiere, / and gie's a hand o'
              thine, / we'll tak' a right guid- wil- lie waught / for auld _ lang _ syne. //"""),
         ("Last chorus", "last chorus", None)]


def karaoke_tracks(song):
    header = song.text_track("Soft Karaoke")
    for line in ("@KMIDI KARAOKE FILE", "@V0100", "@ITraditional Scottish tune",
                 "@IWords by Robert Burns (1759-1796)", "@IArranged for the Zephyne demo songs"):
        header.text(0, smf.META_TEXT, line)
    words = song.text_track("Words")
    for line in ("@LENGL", "@TAuld Lang Syne", "@TRobert Burns"):
        words.text(0, smf.META_TEXT, line)
    return words


def add_words(song, track, notes, words):
    """Karaoke syllables: a backslash opens a verse, a slash a line, a blank ends a word."""
    for syllable in notation.align_words(notes, words):
        sign = "\\" if syllable.starts_paragraph else "/" if syllable.starts_line else ""
        blank = " " if syllable.ends_word and not syllable.ends_line else ""
        track.text(song.tick(syllable.begin), smf.META_TEXT, sign + syllable.text + blank)


def build():
    song = Song("Auld Lang Syne", songs.arrangement_of("Traditional, words by Robert Burns"),
                tempo=92, key=("F", "major"), loudness=1.15)
    words = karaoke_tracks(song)
    lead = song.part("Melody", 1, 22, "Harmonica", volume=100, pan=58, reverb=60, breathes=True)
    second = song.part("Second Voice", 2, 71, "Clarinet", volume=84, pan=84, reverb=60,
                       breathes=True)
    piano = song.part("Piano", 3, 0, "Acoustic grand piano", volume=112, pan=44, reverb=50)
    guitar = song.part("Guitar", 4, 25, "Steel-string guitar", volume=92, pan=92, reverb=40)
    strings = song.part("Strings", 5, 48, "String ensemble", volume=88, pan=64, reverb=80)
    bass = song.part("Bass", 6, 33, "Fingered bass", volume=112, reverb=20)
    pipes = song.part("Pipes", 7, 109, "Bagpipe", volume=58, pan=36, reverb=90, timing=0.004)
    drums = song.part("Drums", 10, 0, "Standard kit", volume=106, reverb=40)

    # Four bars of introduction, then the verses; a bar between leads up to the last chorus.
    song.marker(0, "Introduction")
    piano.play("c5:q. a4:e a:q f | g:q. f:e g:q a | f:q. d:e d:q c | f:h. r:q", at=0, velocity=74,
               bar=4)
    row = acc.chord_row("F/C | C7 | Gm7, C7 | F", at=0)
    acc.broken(piano, row, (0, 2, 3, 2), step=0.5, low=41, count=4, velocity=52, ring=1.5)

    at, loud, words_of_chorus = 16.0, 74, WORDS[1][2]
    for index, (name, kind, syllables) in enumerate(WORDS):
        is_last = kind == "last chorus"
        transpose = 2 if is_last else 0
        chords = CHORDS
        if is_last:
            acc.rhythm(piano, acc.chord_row("D7sus4, D7", at=at), ((0, 0.9, 4), (1, 0.9, 0),
                       (2, 0.9, 4), (3, 0.9, 8)), centre=58, velocity=76)
            bass.play("a2:q a g g", at=at, velocity=90)
            acc.roll(drums, at + 1, at + 4, "snare", 40, 96)
            song.marker(at, "Up a tone")
            song.conductor.key_signature(song.tick(at + 4), "G", "major")
            chords = "G | D7 | G, G7 | C, C#dim7 | G/D | D7, B7 | Am7, D7 | G"
            at += 4
        song.marker(at, name)
        row = acc.chord_row(chords, at=at)
        tune = VERSE if kind == "verse" else CHORUS
        notes = lead.play(tune, at=at - 1, velocity=loud, bar=4, pickup=1.0, phrase=16,
                          transpose=transpose)
        add_words(song, words, notes, syllables or words_of_chorus)

        if index == 0:
            acc.broken(piano, row, (0, 2, 3, 4, 3, 2, 3, 2), step=0.5, low=41, count=5,
                       velocity=54, ring=1.5)
        else:
            acc.rhythm(piano, row, ((0, 0.9, 4), (1, 0.9, -4), (2, 0.9, 2), (3, 0.9, -4)),
                       centre=60, velocity=64)
            acc.bass(bass, row, ((0, 1.4, "1"), (1.5, 0.45, "5"), (2, 1.8, "5")), low=29,
                     velocity=84)
            acc.rhythm(guitar, row, ((0, 0.9, 2), (1, 0.45, 4), (1.5, 0.45, -4), (2, 0.9, 2),
                                     (3, 0.45, 4), (3.5, 0.45, -4)), centre=62, velocity=62,
                       spread=0.05)
            acc.drums(drums, at, 8, {"kick": "x.....x.x.......", "snare": "....x.......x..."},
                      velocity=76)
            acc.drums(drums, at, 8, {"hat": "x.o.x.o.x.o.x.o."}, velocity=56)
            acc.roll(drums, at + 15, at + 16, "snare", 44, 72, per_beat=4)
            acc.hit(drums, at, "crash", 76)
        if kind != "verse":
            second.play(HARMONY, at=at - 1, velocity=loud - 10, bar=4, pickup=1.0, phrase=16,
                        transpose=transpose)
        if index >= 2:
            acc.pad(strings, row, centre=67, velocity=52 + 4 * (index > 3), size=3, gate=1.0)
        if is_last:
            pipes.play(CHORUS, at=at - 1, velocity=88, bar=4, pickup=1.0, gate=1.0,
                       transpose=transpose)
        loud = min(92, loud + 4)
        at += 32
    end = at
    song.marker(end, "Farewell")
    row = acc.chord_row("C | G/D, D7 | G | ", at=end)
    acc.pad(strings, row, centre=67, velocity=56, size=3, gate=1.0)
    acc.bass(bass, row[:-1], ((0, 3.8, "1"), (2, 1.9, "5")), low=29, velocity=78)
    lead.play("e5:h. e:q | d:q. b4:e a:q f# | g:w+h.", at=end, velocity=80)
    second.play("c5:h. c:q | b4:q. g:e f#:q c | b3:w+h.", at=end, velocity=68)
    acc.rhythm(piano, row[:-2], ((0, 1.9, 4), (2, 1.9, 0)), centre=60, velocity=62, spread=0.1)
    piano.chord(end + 8, 7.5, [43, 50, 55, 59, 62, 67], 60, spread=0.8)
    bass.note(end + 8, 7, 31, 76)
    song.ramp_tempo(end - 4, end + 7, 92, 60)
    return song.build(tail=2)
