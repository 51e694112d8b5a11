"""Melodies, chords and words as text.

A melody is a row of notes: "c5:q. d:e e-g:h r:q | f#". Pitch is a letter, an accidental and an
octave (middle C is c4); octave and length stay until changed. Lengths: w h q e s t (whole note to
thirty-second), dots, "3" for a triplet, "+" for a sum ("h+e"). "e4+g4" sounds together, "r" is a
rest. A trailing "!" is an accent, "'" staccato, "_" full length. "|" is a bar line, and where the
bar's length is given, each bar is checked against it.
"""

import re

LETTERS = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "b": 11}
LENGTHS = {"w": 4.0, "h": 2.0, "q": 1.0, "e": 0.5, "s": 0.25, "t": 0.125}
TOKEN = re.compile(r"^([^:!'_]+)(?::([whqest.3+]+))?([!'_]*)$")
PITCH = re.compile(r"^([a-g])(##|bb|#|b)?(-?\d)?$")

CHORDS = {
    "": (0, 4, 7), "m": (0, 3, 7), "5": (0, 7), "dim": (0, 3, 6), "aug": (0, 4, 8),
    "sus2": (0, 2, 7), "sus4": (0, 5, 7), "add9": (0, 4, 7, 14), "madd9": (0, 3, 7, 14),
    "6": (0, 4, 7, 9), "m6": (0, 3, 7, 9), "69": (0, 4, 7, 9, 14),
    "7": (0, 4, 7, 10), "m7": (0, 3, 7, 10), "maj7": (0, 4, 7, 11), "7sus4": (0, 5, 7, 10),
    "m7b5": (0, 3, 6, 10), "dim7": (0, 3, 6, 9),
    "9": (0, 4, 7, 10, 14), "m9": (0, 3, 7, 10, 14), "maj9": (0, 4, 7, 11, 14),
    "7b9": (0, 4, 7, 10, 13), "13": (0, 4, 10, 14, 21), "9sus4": (0, 5, 7, 10, 14),
}
CHORD_NAME = re.compile(r"^([A-G][#b]?)([a-z0-9]*)(?:/([A-G][#b]?))?$")


class Note:
    """A note, chord or rest of a melody; places and lengths in quarter notes."""

    def __init__(self, begin, length, pitches, marks=""):
        self.begin = begin
        self.length = length
        self.pitches = pitches
        self.marks = marks


def length_of(text):
    total = 0.0
    for part in text.split("+"):
        length = LENGTHS[part[0]]
        dots = part.count(".")
        length *= 2 - 0.5 ** dots
        total += length * 2 / 3 if "3" in part else length
    return total


def pitch_of(text, octave=4):
    """The key number of "c#5"; without an octave the one given."""
    match = PITCH.match(text)
    if not match:
        raise ValueError(f"not a pitch: {text}")
    letter, accidental, own_octave = match.groups()
    shift = {"#": 1, "##": 2, "b": -1, "bb": -2, None: 0}[accidental]
    octave = octave if own_octave is None else int(own_octave)
    return 12 * (octave + 1) + LETTERS[letter] + shift


def melody(text, bar=None, pickup=None):
    """The notes of a melody. `bar` is the length that each bar must have, `pickup` that of the
    first, if it is not a whole one. The last bar may be short."""
    notes = []
    now = 0.0
    octave = 4
    length = 1.0
    bars = text.split("|")
    for index, content in enumerate(bars):
        bar_begin = now
        for token in content.split():
            match = TOKEN.match(token)
            if not match:
                raise ValueError(f"not a note: {token}")
            names, length_text, marks = match.groups()
            if length_text:
                length = length_of(length_text)
            pitches = []
            if names != "r":
                for name in names.split("+"):
                    pitches.append(pitch_of(name, octave))
                    digits = re.search(r"\d$", name)
                    octave = int(digits.group()) if digits else octave
                notes.append(Note(now, length, pitches, marks))
            now += length
        expected = pickup if index == 0 and pickup is not None else bar
        is_short_end = index == len(bars) - 1 and expected and now - bar_begin < expected
        if expected and not is_short_end and abs(now - bar_begin - expected) > 1e-6:
            raise ValueError(f"bar {index + 1} has {now - bar_begin} beats: {content}")
    return notes


def chord_pitches(name):
    """(bass, tones): pitch class of the bass and intervals' pitch classes, root first."""
    match = CHORD_NAME.match(name)
    if not match or match.group(2) not in CHORDS:
        raise ValueError(f"not a chord: {name}")
    root = pitch_of(match.group(1)[0].lower() + match.group(1)[1:], -1)
    bass = match.group(3)
    bass = pitch_of(bass[0].lower() + bass[1:], -1) if bass else root
    return bass % 12, [(root + step) % 12 for step in CHORDS[match.group(2)]]


def bass_note(name, low):
    """The lowest key from `low` upwards that is the chord's bass."""
    bass, _ = chord_pitches(name)
    return low + (bass - low) % 12


def mellow_tones(name):
    """The chord's pitch classes without those a semitone above another one, such as the root of a
    major seventh: they grate when they ring on above it."""
    _, tones = chord_pitches(name)
    return [tone for tone in tones if (tone - 1) % 12 not in tones]


def chord_tones_from(name, low, count):
    """`count` chord tones going up from the key `low`."""
    tones = mellow_tones(name)
    keys = []
    key = low
    while len(keys) < count:
        if key % 12 in tones:
            keys.append(key)
        key += 1
    return keys


def voicing(name, centre, previous=None, size=4):
    """A close position of the chord near `centre`, with the least movement from `previous`.
    A chord of more than `size` tones leaves its root, and then its third, to others."""
    _, tones = chord_pitches(name)
    tones = tones[max(0, len(tones) - size):]
    best, best_cost = None, None
    for turn in range(len(tones)):
        order = tones[turn:] + tones[:turn]
        for low in range(centre - 12, centre + 5):
            if low % 12 != order[0]:
                continue
            keys = [low]
            for tone in order[1:]:
                keys.append(keys[-1] + ((tone - keys[-1]) % 12 or 12))
            cost = abs(sum(keys) / len(keys) - centre) * 1.5
            if keys[-1] - keys[0] > 14:
                cost += 20
            # A semitone between neighbours sounds harsh.
            cost += 15 * sum(high - low <= 1 for low, high in zip(keys, keys[1:]))
            if previous:
                cost += sum(min(abs(key - old) for old in previous) for key in keys)
            if best_cost is None or cost < best_cost:
                best, best_cost = keys, cost
    return best


class Syllable:
    """A syllable on a note: its text without blank, and its place in word and line."""

    def __init__(self, begin, text, ends_word, starts_line, starts_paragraph, ends_line):
        self.begin = begin
        self.text = text
        self.ends_word = ends_word
        self.starts_line = starts_line
        self.starts_paragraph = starts_paragraph
        self.ends_line = ends_line


def align_words(notes, words):
    """Lays words under notes, one syllable a note. A syllable ending with "-" goes on in the next
    one; "_" holds the last one for a further note; "/" ends a line, "//" a paragraph."""
    syllables = []
    remaining = iter(notes)
    line, paragraph = True, True
    for token in words.split():
        if token in ("/", "//"):
            line, paragraph = True, token == "//"
            syllables[-1].ends_line = True
            continue
        note = next(remaining, None)
        if note is None:
            raise ValueError(f"no note for the syllable {token}")
        if token == "_":
            continue
        goes_on = token.endswith("-")
        text = token[:-1] if goes_on else token
        syllables.append(Syllable(note.begin, text, not goes_on, line, paragraph, False))
        line = paragraph = False
    left = len(list(remaining))
    if left:
        raise ValueError(f"{left} notes without a syllable")
    syllables[-1].ends_line = True
    return syllables
