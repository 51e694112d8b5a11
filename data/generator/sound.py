"""A small synthesizer for the demo files that are not MIDI: struck, decaying tones and noise, mixed
into a list of samples from -1 to 1, and written as 16-bit PCM."""

import math
import random
import struct

import midi_writer as smf
import notation

RATE = 22050
# Partials of a struck bar: frequency ratio, strength, how much faster than the first it dies.
CHIME = ((1.0, 1.0, 1.0), (2.0, 0.35, 1.6), (3.01, 0.22, 2.5), (4.2, 0.10, 4.0))
SOFT = ((1.0, 1.0, 1.0), (2.0, 0.18, 1.2), (3.0, 0.06, 1.5))


def frequency(key):
    return 440.0 * 2.0 ** ((key - 69) / 12)


def strike(samples, at, key, strength, decay, partials=CHIME):
    """Adds a tone at `at` seconds that falls to a third in `decay` seconds. Each partial is a
    resonator: a damped sine made from its last two values."""
    first = round(at * RATE)
    for ratio, level, haste in partials:
        step = 2 * math.pi * frequency(key) * ratio / RATE
        fall = math.exp(-haste / (decay * RATE))
        turn, damp = 2 * fall * math.cos(step), fall * fall
        before, now = 0.0, strength * level * math.sin(step)
        end = min(len(samples), first + round(decay * RATE * 6 / haste))
        for index in range(first, end):
            samples[index] += now * min(1.0, (index - first) / 60)
            before, now = now, turn * now - damp * before


def play(samples, text, at, seconds_per_quarter, strength, decay, partials=CHIME):
    for note in notation.melody(text):
        for key in note.pitches:
            strike(samples, at + note.begin * seconds_per_quarter, key, strength, decay, partials)


def surf(samples, period, strength):
    """Soft noise that comes and goes once a `period` in seconds."""
    chance = random.Random(1)
    smooth = 0.0
    for index in range(len(samples)):
        smooth += 0.08 * (chance.random() * 2 - 1 - smooth)
        wave = 0.5 - 0.5 * math.cos(2 * math.pi * index / (period * RATE))
        samples[index] += strength * smooth * (0.25 + wave)


def echo(samples, delay, level):
    shift = round(delay * RATE)
    for index in range(shift, len(samples)):
        samples[index] += level * samples[index - shift]


def pcm(samples, peak=0.8, fade=0.25):
    """16-bit samples, levelled to `peak`, faded out over the last `fade` seconds."""
    factor = 32767 * peak / max(abs(sample) for sample in samples)
    tail = round(fade * RATE)
    data = []
    for index, sample in enumerate(samples):
        left = min(1.0, (len(samples) - index) / tail)
        data.append(round(sample * factor * left))
    return struct.pack(f"<{len(data)}h", *data)


def wave_format():
    """The format block of 16-bit mono PCM at RATE."""
    return struct.pack("<HHIIHH", 1, 1, RATE, RATE * 2, 2, 16)


def wave_file(data):
    content = b"WAVE" + smf.riff_chunk(b"fmt ", wave_format()) + smf.riff_chunk(b"data", data)
    return smf.riff_chunk(b"RIFF", content)
