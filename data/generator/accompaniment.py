"""Ways to accompany: drum patterns, held chords, broken chords, bass lines.

Chords come as a row of names, one a bar, or several with "," between them: "F | Dm7 | Gm7, C7".
"""

import notation

DRUMS = {
    "kick": 36, "rim": 37, "snare": 38, "clap": 39, "snare2": 40, "low tom": 45, "mid tom": 47,
    "high tom": 50, "hat": 42, "pedal hat": 44, "open hat": 46, "crash": 49, "ride": 51,
    "bell": 53, "tambourine": 54, "cowbell": 56, "high bongo": 60, "low bongo": 61,
    "open conga": 63, "low conga": 64, "shaker": 70, "maracas": 70, "guiro": 73, "claves": 75,
    "high block": 76, "low block": 77, "cabasa": 69, "triangle": 81,
    "low drum": 41, "bass drum": 35, "brush": 40, "splash": 55, "mute conga": 62,
}
STEP_LOUDNESS = {"X": 20, "x": 0, "o": -24}


def chord_row(text, bar=4.0, at=0.0):
    """[(begin, length, name), ...] of a row of chords. Chords of one bar share it evenly; an empty
    bar repeats the last chord."""
    row = []
    for index, content in enumerate(text.split("|")):
        names = [name.strip() for name in content.split(",") if name.strip()] or [row[-1][2]]
        share = bar / len(names)
        for place, name in enumerate(names):
            row.append((at + index * bar + place * share, share, name))
    return row


def drums(part, at, bars, pattern, velocity=84, steps=4, swing=True):
    """`pattern` gives each drum a row of steps, `steps` to a quarter note: "X" loud, "x" normal,
    "o" soft, anything else silent. A row repeats until the bars are full."""
    total = round(bars * part.song.bar * steps)
    for name, row in pattern.items():
        row = row.replace(" ", "").replace("|", "")
        for step in range(total):
            mark = row[step % len(row)]
            if mark in STEP_LOUDNESS:
                place = at + step / steps
                place = part.song.swung(place) if swing else place
                part.note(place, 0.9 / steps, DRUMS[name], velocity + STEP_LOUDNESS[mark])


def hit(part, at, name, velocity=100):
    part.note(at, 0.25, DRUMS[name], velocity)


def roll(part, begin, end, name, first, last, per_beat=8):
    """A drum roll from one loudness to another."""
    count = round((end - begin) * per_beat)
    for index in range(count):
        part.note(begin + index / per_beat, 0.9 / per_beat, DRUMS[name],
                  first + (last - first) * index / count)


def pad(part, row, centre=60, velocity=60, size=4, gate=0.98, swell=False):
    """Held chords that move as little as they can. Returns the voicings."""
    previous = None
    voicings = []
    for begin, length, name in row:
        previous = notation.voicing(name, centre, previous, size)
        part.chord(begin, length * gate, previous, velocity)
        if swell and length >= 1.5:
            part.breathe(begin, begin + length * gate)
        voicings.append(previous)
    return voicings


def rhythm(part, row, strokes, centre=60, velocity=70, size=4, period=4.0, spread=0.0):
    """Chords struck in a rhythm: `strokes` are (place, length, louder) within a `period`; each
    stroke takes the chord of its time. A stroke just before a bar takes the coming chord."""
    begin, end = row[0][0], row[-1][0] + row[-1][1]
    voicings, previous = [], None
    for _, _, name in row:
        previous = notation.voicing(name, centre, previous, size)
        voicings.append(previous)
    start = begin
    while start < end - 1e-6:
        for place, length, louder in strokes:
            now = start + place
            if now >= end - 1e-6:
                continue
            coming = now + 0.5
            chosen = voicings[-1]
            for (chord_begin, chord_length, _), keys in zip(row, voicings):
                anticipates = place % 1 and coming == chord_begin
                if anticipates or chord_begin <= now < chord_begin + chord_length:
                    chosen = keys
            swung = part.song.swung(now)
            part.chord(swung, part.song.swung(now + length) - swung, chosen, velocity + louder,
                       spread)
        start += period


def broken(part, row, order, step=0.5, low=48, count=5, velocity=64, ring=1.0, gate=None):
    """Broken chords: `order` picks among `count` chord tones from `low` up, one a step, over and
    over; None is a rest. Each chord begins the order anew. `ring` lengthens the notes."""
    for begin, length, name in row:
        keys = notation.chord_tones_from(name, low, count)
        for index in range(round(length / step)):
            choice = order[index % len(order)]
            if choice is None:
                continue
            now = begin + index * step
            sound = min(step * ring, begin + length - now) if gate is None else gate
            part.note(now, sound, keys[choice], velocity + part.song.accent(now))


def bass(part, row, strokes, low=33, velocity=84, period=4.0):
    """A bass line: `strokes` are (place, length, interval) within each `period`, where the interval
    is "1", "5", "8" (root above) or "n" (a semitone below the next root)."""
    end = row[-1][0] + row[-1][1]
    start = row[0][0]
    while start < end - 1e-6:
        for place, length, interval in strokes:
            now = start + place
            if now >= end - 1e-6:
                continue
            index = max(i for i, chord in enumerate(row) if chord[0] <= now + 1e-6)
            root = notation.bass_note(row[index][2], low)
            chord_begins = abs(row[index][0] - now) < 1e-6
            if interval == "5" and not chord_begins:
                _, tones = notation.chord_pitches(row[index][2])
                fifth = next((tone for tone in tones if (tone - tones[0]) % 12 in (6, 7, 8)),
                             tones[0])
                key = root + (fifth - root) % 12
                key -= 12 if key > low + 12 else 0
            elif interval == "8":
                key = root + 12
            elif interval == "n":
                following = row[min(index + 1, len(row) - 1)][2]
                key = notation.bass_note(following, low) - 1
            else:
                key = root
            begin_swung = part.song.swung(now)
            part.note(begin_swung, part.song.swung(now + length * 0.95) - begin_swung, key,
                      velocity + part.song.accent(now))
        start += period
