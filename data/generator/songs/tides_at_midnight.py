"""Twelve minutes by the sea: one theme in seven states, from low water to first light. The theme
and its harmony are written; droplets, arpeggios and shifting patterns grow out of the chords."""

import math

import accompaniment as acc
import notation
import songs
from song import EXPRESSION, PAN, Song

FILE_NAME = "Tides at Midnight.mid"

THEME = "e5:h. d:q | b4:h. g:q | a:q b d5 e | b4:w | c5:h. b4:q | a:h e5 | d:q. c:e b4:q a | b:w"
THEME_CHORDS = "Em7 | G | D69 | Em7 | C6 | Am7 | D | Em7"
MIRRORED = "b4:h. d5:q | e:h. g:q | f#:q e d a4 | b:w | e5:h. g:q | e:h c | a4:q. b:e d5:q f# | e:w"
IN_MAJOR = """f#5:h. e:q | d:h. a4:q | b:q d5 e f# | a:w | g:h. f#:q | e:h b4
    | d5:q. e:e f#:q e | d:w"""
MAJOR_CHORDS = "D | Bm7 | Gmaj7 | D | Em7 | Em7 | A9sus4 | D6"
COUNTER = "g4:w | d5 | f#4:h a | g:w | e:h g | c5:w | a4:h f# | g:w"
CLIMAX = "g5:h. f#:q | a:h. f#:q | f#:q d b4 f#5 | g:h e | e:q g a b | a:h. f#:q | g:w | g:w"
CLIMAX_CHORDS = "Cmaj7 | D | Bm7 | Em7 | Am7 | D | Cmaj9 | G"


def augmented(text):
    """A melody at half speed, as notation notes."""
    notes = notation.melody(text)
    for note in notes:
        note.begin *= 2
        note.length *= 2
    return notes


def droplets(part, row, low, high, velocity, density):
    """Single chord tones at random, each near the last; `density` maps the place in the row, from
    0 to 1, to the chance of a drop on each half beat."""
    begin, end = row[0][0], row[-1][0] + row[-1][1]
    last = (low + high) // 2
    for chord_begin, length, name in row:
        tones = [key for key in range(low, high + 1)
                 if key % 12 in notation.mellow_tones(name)]
        for step in range(round(length * 2)):
            now = chord_begin + step * 0.5
            if part.chance.random() >= density((now - begin) / (end - begin)):
                continue
            near = sorted(tones, key=lambda key: abs(key - last))
            last = near[1 + int(part.chance.random() * min(4, len(near) - 1))]
            part.note(now, min(3.0, chord_begin + length - now), last,
                      velocity + part.stray(10))


def swells(part, row, centre, velocity, size=3):
    """Held chords that come and go like waves, each a little different from the last."""
    voicings = acc.pad(part, row, centre=centre, velocity=velocity, size=size, gate=1.02)
    for begin, length, _ in row:
        height = 96 + part.stray(20)
        for step in range(16):
            place = step / 16
            value = 70 + (height - 44) * math.sin(math.pi * place) ** 2
            part.control(begin + length * place, EXPRESSION, round(value))
    return voicings


def shifting(first, second, row, low, velocity):
    """Two players of one pattern of eight; the second one slips an eighth with every chord."""
    for index, (begin, length, name) in enumerate(row):
        keys = notation.chord_tones_from(name, low, 6)
        pattern = [keys[choice] for choice in (0, 3, 1, 4, 2, 5, 3, 1)]
        for step in range(round(length * 2)):
            now = begin + step * 0.5
            loud = velocity + 8 * math.sin(math.pi * step / 16) + (4 if step % 8 == 0 else 0)
            first.note(now, 0.5, pattern[step % 8], loud)
            second.note(now, 0.5, pattern[(step + index) % 8] + 12, loud - 8)


def sea(part, begin, end, velocity):
    """Waves of noise that roll from one side to the other."""
    at, side = begin, 1
    while at < end:
        length = 9.0 + part.stray(2.0)
        part.note(at, length, 60, velocity)
        part.ramp(at, at + length * 0.45, EXPRESSION, 30, 110, 12)
        part.ramp(at + length * 0.45, at + length * 0.97, EXPRESSION, 110, 30, 14)
        part.ramp(at, at + length * 0.97, PAN, 64 - 36 * side, 64 + 36 * side, 12)
        at += length
        side = -side


def play_notes(part, notes, at, velocity, transpose):
    for note in notes:
        begin, length = at + note.begin, note.length * 0.97
        part.note(begin, length, note.pitches[0] + transpose, velocity)
        part.breathe(begin, begin + length)


def chords(text, at, length=8.0):
    return acc.chord_row(text, length, at)


def build():
    song = Song("Tides at Midnight", songs.OWN_TUNE, tempo=60, key=("E", "minor"), loudness=1.0)
    song.text("Twelve minutes by the sea, from low water to first light.")
    quiet = {"reverb": 100, "chorus": 30}
    pad = song.part("Warm Pad", 1, 89, "Warm pad", volume=92, **quiet)
    piano = song.part("Piano", 2, 0, "Acoustic grand piano", volume=112, pan=54, reverb=90)
    flute = song.part("Flute", 3, 75, "Pan flute", volume=96, pan=44, reverb=100, breathes=True)
    harp = song.part("Harp", 4, 46, "Orchestral harp", volume=108, pan=84, reverb=90)
    near = song.part("Marimba Near", 5, 12, "Marimba", volume=108, pan=30, reverb=70)
    far = song.part("Marimba Far", 6, 11, "Vibraphone", volume=92, pan=98, reverb=90)
    cello = song.part("Cello", 7, 42, "Cello", volume=108, pan=74, reverb=90, breathes=True)
    choir = song.part("Choir", 8, 52, "Choir, ah", volume=88, **quiet)
    strings = song.part("Strings", 9, 48, "String ensemble", volume=100, pan=64, reverb=90,
                        breathes=True)
    horn = song.part("Horn", 11, 60, "French horn", volume=96, pan=40, reverb=90, breathes=True)
    bells = song.part("Bells", 12, 14, "Tubular bells", volume=84, pan=64, reverb=110)
    bass = song.part("Bass", 13, 35, "Fretless bass", volume=104, reverb=40)
    waves = song.part("Sea", 14, 122, "Seashore", volume=72, reverb=60)
    birds = song.part("Birds", 15, 123, "Bird tweet", volume=44, pan=100, reverb=100)
    drums = song.part("Drums", 10, 48, "Orchestra kit", volume=92, reverb=90)

    lengths = (("Low water", 88), ("Moonrise", 104), ("The lighthouse", 104), ("Far bells", 96),
               ("High tide", 128), ("Ebb", 96), ("First light", 92))
    starts, at = [], 0.0
    for name, length in lengths:
        song.marker(at, name)
        starts.append(at)
        at += length
    end = at
    low_water, moonrise, lighthouse, far_bells, high_tide, ebb, first_light = starts

    # Low water: waves, a pad, and drops that gather.
    sea(waves, 0, moonrise + 10, 84)
    row = chords("Em7 | Cmaj9 | Am7 | Em7 | Cmaj9 | G6 | D69 | Em7 | Cmaj9 | Bm7 | Em7", low_water)
    swells(pad, row, 60, 66)
    droplets(piano, row[1:], 64, 88, 56, lambda place: 0.12 + 0.3 * place)
    acc.bass(bass, row[3:], ((0, 7.5, "1"),), low=28, velocity=58, period=8.0)

    # Moonrise: the theme, and then its mirror image.
    row = chords("Em7 | Cmaj9", moonrise) + chords(THEME_CHORDS, moonrise + 16, 4.0)
    row += chords(THEME_CHORDS, moonrise + 48, 4.0) + chords("Am7 | Cmaj9 | D69", moonrise + 80)
    swells(pad, row, 58, 58)
    acc.broken(harp, row, (0, 2, 3, 4, 5, 4, 3, 2), step=0.5, low=45, count=6, velocity=54, ring=3)
    acc.bass(bass, row, ((0, 3.6, "1"),), low=28, velocity=62)
    flute.play(THEME, at=moonrise + 16, velocity=72, bar=4, phrase=16)
    far.play(MIRRORED, at=moonrise + 48, velocity=62, bar=4, phrase=16, gate=1.3)
    flute.play("r:w | r:h. b4:q | e5:h. f#:q | e:w", at=moonrise + 48, velocity=60, bar=4)
    droplets(far, row[-3:], 67, 86, 50, lambda place: 0.35 - 0.2 * place)

    # The lighthouse: patterns turn against each other, a beam of strings sweeps across.
    row = chords("Em7 | Em7 | G6 | G6 | Cmaj7 | Cmaj7 | D69 | D69 | Am7 | Cmaj7 | Bm7 | Em7 | Em7",
                 lighthouse)
    shifting(near, far, row, 52, 60)
    acc.bass(bass, row, ((0, 1.4, "1"), (1.5, 0.9, "5"), (4, 1.4, "1"), (5.5, 2.0, "8")), low=28,
             velocity=70, period=8.0)
    acc.pad(strings, row[2:], centre=66, velocity=52, size=3, swell=True)
    for index, (begin, length, _) in enumerate(row[2:]):
        sweep = (10, 118) if index % 2 else (118, 10)
        strings.ramp(begin, begin + length, PAN, *sweep, steps=24)
    acc.drums(drums, lighthouse + 16, 20, {"triangle": "x......."}, velocity=50, steps=1)
    piano.play("r:h b5:e' e6:h+q. r:h | r:h d6:e' b5:h+q. r:h | r:h e6:e' c7:h+q.",
               at=lighthouse + 48, velocity=58, gate=1.0)

    # Far bells: choir, and the theme at half speed in the cello, a fifth lower.
    strings.control(far_bells, PAN, 64)
    row = chords("Fmaj9 | G6 | Fmaj9 | Em7 | Am7 | C6 | G6 | Am7 | F6 | Dm7 | G | Am7", far_bells)
    swells(choir, row, 62, 62)
    swells(pad, row, 55, 50)
    for index, (begin, _, name) in enumerate(row):
        tones = notation.chord_tones_from(name, 55, 3)
        bells.note(begin + 0.02, 7, tones[index % 3], 66)
        if index % 2:
            bells.note(begin + 5, 3, tones[(index + 1) % 3] + 12, 48)
    play_notes(cello, augmented(THEME), far_bells + 32, 74, -19)
    droplets(harp, row[4:], 64, 84, 46, lambda place: 0.15 + 0.15 * place)
    acc.bass(bass, row[4:], ((0, 7.5, "1"),), low=28, velocity=60, period=8.0)

    # High tide: four waves, each higher than the one before.
    rows = [chords("Em7 | Cmaj9 | G6 | D69", high_tide), chords(THEME_CHORDS, high_tide + 32, 4.0),
            chords("Am7 | C6 | G6 | Am7 | F6 | Dm7 | G | Am7", high_tide + 64, 4.0),
            chords(CLIMAX_CHORDS, high_tide + 96, 4.0)]
    for wave, row in enumerate(rows):
        loud = 4 * wave
        acc.broken(piano, row, (0, 2, 3, 4, 5, 4, 3, 2) if wave < 3 else (0, 3, 5, 4, 6, 5, 4, 3),
                   step=0.5 if wave == 0 else 0.25, low=45, count=7, velocity=50 + loud, ring=2)
        acc.bass(bass, row, ((0, 1.9, "1"), (2, 1.9, "5")), low=28, velocity=70 + loud)
        acc.pad(strings, row, centre=60, velocity=50 + loud, size=3)
        swells(pad, row, 57, 50 + loud)
        begin = row[0][0]
        acc.roll(drums, begin + 28, begin + 32, "bass drum", 24, 60 + loud, per_beat=4)
        acc.hit(drums, begin, "crash", 46 + 2 * loud)
        acc.drums(drums, begin, 8, {"bass drum": "x...........o..."}, velocity=56 + loud)
    flute.play(THEME, at=high_tide + 32, velocity=74, bar=4, phrase=16)
    strings.play(THEME, at=high_tide + 32, velocity=72, bar=4, phrase=16)
    horn.play(COUNTER, at=high_tide + 32, velocity=62, bar=4, phrase=16)
    strings.play(THEME, at=high_tide + 64, velocity=72, bar=4, phrase=16, transpose=5)
    horn.play(THEME, at=high_tide + 64, velocity=62, bar=4, phrase=16, transpose=-7)
    strings.play(CLIMAX, at=high_tide + 96, velocity=74, bar=4, phrase=32)
    strings.play(CLIMAX, at=high_tide + 96, velocity=62, bar=4, phrase=32, transpose=12)
    horn.play(CLIMAX, at=high_tide + 96, velocity=68, bar=4, phrase=32, transpose=-12)
    acc.pad(choir, rows[3], centre=64, velocity=60, size=3)

    # Ebb: the piano alone, then fragments, while the sea comes back.
    theme_row = chords(THEME_CHORDS, ebb, 4.0)
    acc.broken(piano, theme_row, (0, 2, 3, 4, 3, 2, 3, 2), step=0.5, low=40, count=5, velocity=46,
               ring=2)
    piano.play(THEME, at=ebb, velocity=66, bar=4, phrase=16, gate=1.0)
    mirror_row = chords(THEME_CHORDS, ebb + 32, 4.0)
    acc.broken(piano, mirror_row, (0, 2, 4, None, 3, None, 2, None), step=0.5, low=40, count=5,
               velocity=42, ring=3)
    piano.play(MIRRORED, at=ebb + 32, velocity=60, bar=4, phrase=16, gate=1.0, transpose=12)
    row = chords("Em7 | Cmaj9 | Am7 | A9sus4", ebb + 64)
    swells(pad, row, 60, 54)
    droplets(piano, row, 64, 86, 50, lambda place: 0.32 - 0.22 * place)
    cello.play("e3:w | d3:h b2 | c3:w | g2:h b2 | a2:w | c3:h a2 | a2:w+w", at=ebb + 64,
               velocity=58, phrase=16)
    sea(waves, ebb + 60, end - 6, 70)

    # First light: the theme in the major, and the first birds.
    song.conductor.key_signature(song.tick(first_light), "D", "major")
    row = chords("Dmaj9 | Gmaj9", first_light) + chords(MAJOR_CHORDS, first_light + 16, 4.0)
    row += chords("Gmaj9 | Dmaj9 | Gmaj9 | Dmaj9", first_light + 48)
    swells(pad, row, 60, 62)
    acc.broken(harp, row[:-2], (0, 2, 4, 5, 4, 2), step=1.0, low=45, count=6, velocity=52, ring=4)
    flute.play(IN_MAJOR, at=first_light + 16, velocity=74, bar=4, phrase=16)
    acc.pad(choir, row[2:], centre=64, velocity=48, size=3, gate=1.0)
    acc.bass(bass, row[2:10], ((0, 3.6, "1"),), low=28, velocity=58)
    droplets(far, row[-4:], 69, 90, 46, lambda place: 0.35 * (1 - place))
    for index in range(7):
        birds.note(first_light + 30 + index * 7 + birds.stray(2), 1.2, 72 + index % 3 * 2, 60)
    harp.chord(end - 12, 10, (38, 45, 57, 61, 66, 69, 76), 46, spread=2.0)
    pad.chord(end - 12, 11, (57, 61, 64, 66), 54)
    pad.ramp(end - 10, end - 1, EXPRESSION, 100, 20, 24)

    song.ramp_tempo(high_tide, high_tide + 96, 60, 68, step=4)
    song.ramp_tempo(high_tide + 116, ebb, 68, 54)
    song.ramp_tempo(ebb + 56, first_light, 54, 58, step=4)
    song.ramp_tempo(end - 20, end - 8, 58, 50)
    return song.build(tail=2)
