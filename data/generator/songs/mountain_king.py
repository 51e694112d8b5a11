"""Grieg's march of the trolls, three times through: on tiptoe, at a walk, and running. The tempo
creeps up from the first bar to the last."""

import accompaniment as acc
import songs
from song import Song

FILE_NAME = "In the Hall of the Mountain King.mid"

# Four bars each: the theme, and its answer a fifth higher.
THEME = """b2:e' c#3' d' e' f#' d' f#:q' | f:e' c#' f:q' e:e' c' e:q'
    | b2:e' c#3' d' e' f#' d' f#' b' | a' f#' d' f#' a:h"""
ANSWER = """f#3:e' g#' a#' b' c#4' a#3' c#4:q' | d:e' a#3' d4:q' c#:e' a#3' c#4:q'
    | f#3:e' g#' a#' b' c#4' a#3' c#4:q' | d:e' a#3' d4:q' c#:h"""
PERIOD = (THEME, THEME, ANSWER, ANSWER, THEME, THEME)
PERIOD_LENGTH = 24 * 4.0

# What the horns and trombones hold under theme and answer.
UNDER = {THEME: "b2+f#3+b3:w | b2+g#3:h b2+g3 | b2+f#3+b3:w | d3+f#3+a3:w",
         ANSWER: "f#2+c#3+f#3:w | f#2+d3:h f#2+c#3 | f#2+c#3+f#3:w | f#2+d3:h f#2+a#2+c#3"}
LOW = {THEME: "b1:q f#2 b1 f#2 | b1 f#2 b1 f#2 | b1 f#2 b1 f#2 | d2 a1 d2 a1",
       ANSWER: "f#1:q c#2 f#1 c#2 | f#1 c#2 f#1 c#2 | f#1 c#2 f#1 c#2 | f#1 c#2 f#1 f#1"}
AFTER_BEAT = {THEME: "r:e f#4+b4 r f#+b r f#+b r f#+b | r g#+b r g#+b r g+b r g+b"
                     "| r f#+b r f#+b r f#+b r f#+b | r f#+a r f#+a r f#+a r f#+a",
              ANSWER: "r:e f#4+a#4 r f#4+a#4 r f#4+a#4 r f#4+a#4 | r f#4+d5 r f#4+d5"
                      " r f#4+a#4 r f#4+a#4 | r f#4+a#4 r f#4+a#4 r f#4+a#4 r f#4+a#4"
                      "| r f#4+d5 r f#4+d5 r f#4+a#4 r f#4+a#4"}


def build():
    song = Song("In the Hall of the Mountain King",
                songs.arrangement_of("Edvard Grieg (1843-1907), Peer Gynt suite no. 1"),
                tempo=116, key=("B", "minor"), loudness=0.94)
    song.text("One tune, three times, and the tempo never rests.")
    common = {"timing": 0.008, "reverb": 70}
    bassoon = song.part("Bassoon", 1, 70, "Bassoon", volume=110, pan=74, **common)
    plucked = song.part("Pizzicato", 2, 45, "Pizzicato strings", volume=112, pan=54, **common)
    violins = song.part("Violins", 3, 48, "String ensemble", volume=100, pan=36, **common)
    winds = song.part("Oboes", 4, 68, "Oboe", volume=84, pan=60, **common)
    horns = song.part("Horns", 5, 60, "French horn", volume=92, pan=44, breathes=True, **common)
    brass = song.part("Trombones", 6, 57, "Trombone", volume=88, pan=84, **common)
    low = song.part("Basses", 7, 43, "Contrabass", volume=112, pan=88, **common)
    timpani = song.part("Timpani", 8, 47, "Timpani", volume=112, pan=64, **common)
    trumpet = song.part("Trumpets", 9, 56, "Trumpet", volume=88, pan=70, **common)
    drums = song.part("Percussion", 10, 48, "Orchestra kit", volume=104, reverb=80)

    lead_in = 4.0
    horns.note(0, 3.8, 54, 58)
    horns.note(0, 3.8, 66, 50)
    low.play("f#1:h' f#'", at=0, velocity=50)
    rounds = [lead_in + index * PERIOD_LENGTH for index in range(3)]
    end = rounds[2] + PERIOD_LENGTH
    for place, name in zip(rounds, ("On tiptoe", "At a walk", "Running")):
        song.marker(place, name)
    song.ramp_tempo(lead_in, rounds[1], 116, 132, step=4.0)
    song.ramp_tempo(rounds[1], rounds[2], 132, 172, step=2.0)
    song.ramp_tempo(rounds[2], end, 172, 236, step=1.0)

    for turn, begin in enumerate(rounds):
        for index, tune in enumerate(PERIOD):
            at = begin + index * 16.0
            rise = index * 2
            if turn == 0:
                # Basses and bassoons take turns, as if from two sides of the cave.
                voice, shift = ((plucked, 0), (bassoon, 0))[index % 2]
                voice.play(tune, at=at, velocity=58 + rise, bar=4, transpose=shift, arch=4)
                low.play(LOW[tune].replace(" f#2", " r").replace(" c#2", " r").replace(" a1", " r"),
                         at=at, velocity=48 + rise, bar=4, gate=0.4)
            elif turn == 1:
                plucked.play(tune, at=at, velocity=72 + rise, bar=4, transpose=24, arch=4)
                bassoon.play(tune, at=at, velocity=62 + rise, bar=4, transpose=12, arch=4)
                winds.play(AFTER_BEAT[tune], at=at, velocity=52 + rise, bar=4, gate=0.5)
                low.play(LOW[tune], at=at, velocity=66 + rise, bar=4, gate=0.5)
                horns.play(UNDER[tune], at=at, velocity=48 + rise, bar=4)
            else:
                violins.play(tune, at=at, velocity=80 + rise, bar=4, transpose=24, arch=4)
                violins.play(tune, at=at, velocity=68 + rise, bar=4, transpose=36, arch=4)
                plucked.play(tune, at=at, velocity=70 + rise, bar=4, transpose=12, arch=4)
                trumpet.play(AFTER_BEAT[tune], at=at, velocity=58 + rise, bar=4, gate=0.5)
                winds.play(AFTER_BEAT[tune], at=at, velocity=58 + rise, bar=4, gate=0.5,
                           transpose=12)
                low.play(LOW[tune], at=at, velocity=80 + rise, bar=4, gate=0.6)
                horns.play(UNDER[tune], at=at, velocity=62 + rise, bar=4)
                brass.play(UNDER[tune], at=at, velocity=62 + rise, bar=4, gate=0.9)
                root = 47 if tune == THEME else 42
                timpani.play(" | ".join(["b2:q b:e b b:q b"] * 4), at=at, velocity=68 + rise,
                             transpose=root - 47)
                acc.drums(drums, at, 4, {"bass drum": "X...x...X...x..."}, velocity=56 + rise)
                acc.hit(drums, at, "crash", 70 + rise)
        if turn:
            acc.roll(drums, begin - 4, begin, "snare", 24, 60 + 20 * turn)

    # Crashes, with breathless runs in between.
    song.marker(end, "Out!")
    song.tempo(end, 200)
    tutti = ((violins, (71, 74, 78, 83)), (winds, (78, 83)), (trumpet, (66, 71, 74)),
             (horns, (54, 59, 62)), (brass, (47, 54, 59)), (low, (35,)), (timpani, (47,)))

    def crash(at, length, velocity=88):
        for part, keys in tutti:
            part.chord(at, length, keys, velocity)
        acc.hit(drums, at, "crash", velocity)
        acc.hit(drums, at, "bass drum", velocity)

    run = "b2:s c#3 d e f# g# a# b c#4 d e f# g# a# b c#5"
    for index in range(2):
        at = end + index * 8
        crash(at, 0.5)
        crash(at + 1, 0.5)
        plucked.play(run, at=at + 3, velocity=92, transpose=12, arch=0)
        violins.play(run, at=at + 3, velocity=96, transpose=12, arch=0)
        bassoon.play(run, at=at + 3, velocity=80, arch=0)
    at = end + 16
    for step in (0, 1, 2, 2.5, 3, 3.5):
        crash(at + step, 0.4, 80 + round(3 * step))
    acc.roll(drums, at + 4, at + 8, "snare", 40, 92)
    for step in range(32):
        timpani.note(at + 4 + step / 8, 0.12, 42 if step < 16 else 47, 60 + step * 2)
    crash(at + 8, 0.6, 94)
    crash(at + 10, 1.8, 98)
    song.ramp_tempo(at + 4, at + 8, 200, 150)
    return song.build(tail=4)
