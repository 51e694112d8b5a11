"""A waltz of clocks. It is timed by the clock as well: SMPTE time of 25 frames a second, so that a
tick of the file is a thousandth of a second, and the pendulum swings twice in each."""

import accompaniment as acc
import songs
from song import TimedSong

FILE_NAME = "The Clockmaker's Window.mid"
BAR = 3.0

CHORDS_A = ("G | G | D7 | D7 | Am | D7 | G | G, G, D7 | G | E7 | Am | Cm6 | G/D | E7 |"
            "Am, D7, D7 | G")
CHORDS_B = "Em | B7 | Em | E7 | Am | D7 | G | B7 | Em | C | G | A7 | D | A7 | D7 | D7"
TUNE_A = """d5:q g b | b:h a:q | a:q f# d | c6:h a5:q | a:q c6 e | e:q d c | b5:q d6 b5 | g:h d:q
    | d:q g b | d6:h b5:q | c6:q e c | eb:h c:q | d:q b5 g | e6:q d b5 | c6:q a5 f# | g:h."""
TUNE_B = """e5:q g b | a:q f# d# | e:q f# g | g#:h b:q | c6:q b5 a | a:q g f# | b:q a g | f#:h d#:q
    | e:q g b | c6:q g5 e | d:q g b | c#6:h a5:q | d6:q c# d | e:q c# a5 | c6:q a5 f# | d:h."""
# The four quarters, as the clock towers of old play them.
QUARTERS = "e4:q g# f# b3:h. | e4:q f# g# e:h. | g#4:q e f# b3:h. | b3:q f#4 g# e:h."


def build():
    song = TimedSong("The Clockmaker's Window", songs.OWN_TUNE, tempo=120, bar=BAR,
                     signature=(3, 4), key=("G", "major"), loudness=1.2)
    song.text("Timed in milliseconds: SMPTE division, 25 frames of 40 ticks.")
    song.text("The hour bell plays the Cambridge quarters (William Crotch, 1793).")
    box = song.part("Music Box", 1, 10, "Music box", volume=116, pan=44, reverb=70)
    celesta = song.part("Celesta", 2, 8, "Celesta", volume=104, pan=88, reverb=70)
    plucked = song.part("Pizzicato", 3, 45, "Pizzicato strings", volume=116, pan=64, reverb=50)
    clarinet = song.part("Clarinet", 4, 71, "Clarinet", volume=96, pan=78, reverb=60,
                         breathes=True)
    strings = song.part("Strings", 5, 48, "String ensemble", volume=84, pan=56, reverb=80)
    chimes = song.part("Chimes", 6, 14, "Tubular bells", volume=92, pan=64, reverb=100)
    glock = song.part("Glockenspiel", 7, 9, "Glockenspiel", volume=84, pan=30, reverb=80)
    bassoon = song.part("Bassoon", 8, 70, "Bassoon", volume=92, pan=92, reverb=60)
    clocks = song.part("Clocks", 10, 0, "Blocks, claves, ratchet", volume=100, reverb=50,
                       timing=0.0, spread=2)

    lead_in = 6 * BAR
    places = [lead_in + index * 16 * BAR for index in range(5)]
    chime_at = places[3]
    last = chime_at + 15 * BAR
    close = last + 16 * BAR
    names = ((0, "Winding up"), (places[0], "Music box"), (places[1], "Pizzicato and clarinet"),
             (places[2], "Music box and strings"), (chime_at, "It strikes four"),
             (last, "All the clocks"), (close, "The spring runs down"))
    for place, name in names:
        song.marker(place, name)

    # The spring runs down at the end: each beat comes later than the one before.
    song.run_down(close, 0.045)
    end = close + 8 * BAR
    for index in range(3):
        for step in range(5):
            clocks.note(index * 1.5 + step * 0.12, 0.1, acc.DRUMS["high block"], 46 + 5 * step)
    for beat in range(6, round(end)):
        clocks.note(beat, 0.2, acc.DRUMS["high block" if beat % 2 else "low block"],
                    50 if beat < close else 44)
    for beat in range(round(2 * places[2]), round(2 * chime_at)):
        clocks.note(beat / 2, 0.1, acc.DRUMS["claves"], 26)
    for beat in range(round(2 * last), round(2 * close)):
        clocks.note(beat / 2, 0.1, acc.DRUMS["claves"], 34)

    def waltz(part, row, velocity, low=43):
        acc.bass(part, row, ((0, 0.8, "1"),), low=low, velocity=velocity + 8, period=BAR)
        acc.rhythm(part, row, ((1, 0.5, 0), (2, 0.5, -4)), centre=62, velocity=velocity, size=3,
                   period=BAR)

    row = acc.chord_row(CHORDS_A, BAR, places[0])
    box.play(TUNE_A, at=places[0], velocity=82, bar=BAR, phrase=12, transpose=12, gate=1.2)
    waltz(box, row, 52, low=55)
    row = acc.chord_row(CHORDS_B, BAR, places[1])
    clarinet.play(TUNE_B, at=places[1], velocity=80, bar=BAR, phrase=12)
    waltz(plucked, row, 66)
    celesta.play("r:q e6:e g b e7 | r:q d#6:e f# b d#7 | r:q e6:e g b e7 | r:q d6:e e g# b",
                 at=places[1], velocity=54, bar=BAR)
    row = acc.chord_row(CHORDS_A, BAR, places[2])
    celesta.play(TUNE_A, at=places[2], velocity=78, bar=BAR, phrase=12, transpose=12, gate=1.2)
    clarinet.play("b4:h. | d5 | c | a4 | c5 | a4 | b | g:h a:q | b:h. | g# | a | eb5 | b4 | b"
                  "| c5:q c c | b4:h.", at=places[2], velocity=62, bar=BAR, phrase=12)
    waltz(plucked, row, 64)
    acc.pad(strings, row, centre=62, velocity=48, size=3, gate=1.0)

    # Four o'clock: the quarters in E, then four strokes, while everything else waits.
    chimes.cue(chime_at, "The tower clock")
    chimes.play(QUARTERS, at=chime_at, velocity=78, gate=3.0, arch=4)
    for stroke in range(4):
        chimes.note(chime_at + 24 + stroke * 3, 5, 52, 92)
    acc.broken(glock, acc.chord_row("B7 | D7", BAR, chime_at + 39), (0, 1, 2, 3, 4, 5), step=0.5,
               low=74, count=6, velocity=44, ring=2)

    row = acc.chord_row(CHORDS_A, BAR, last)
    box.play(TUNE_A, at=last, velocity=88, bar=BAR, phrase=12, transpose=12, gate=1.2)
    glock.play(TUNE_A, at=last, velocity=56, bar=BAR, phrase=12, transpose=12)
    strings.play(TUNE_A, at=last, velocity=72, bar=BAR, phrase=12)
    waltz(plucked, row, 72)
    acc.bass(bassoon, row, ((0, 0.8, "1"), (1, 0.4, "5"), (2, 0.4, "5")), low=43, velocity=66,
             period=BAR)
    acc.broken(celesta, row, (2, 4, 5, 6, 5, 4), step=0.5, low=60, count=7, velocity=46, ring=1.5)

    row = acc.chord_row("G | Cm6 | G | D7 | G | D7 | G | G", BAR, close)
    box.play("d6:q g b | eb7:h c:q | b6:q g d | c:q a5 f# | g:q b d6 | c:h a5:q | g:h. | r",
             at=close, velocity=66, bar=BAR, gate=1.2)
    waltz(plucked, row[:-2], 46)
    box.chord(end - 2 * BAR, 5, (67, 74, 79), 42, spread=0.4)
    glock.note(end, 2, 91, 40)
    return song.build(tail=1)
