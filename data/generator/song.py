"""A song in the making: parts that play like people, and a conductor's track above them.

Places and lengths are in quarter notes from the beginning of the song. Chance is seeded by the
names of song and part, so that a song comes out the same each time, and a change to one part
leaves the others alone. Only Random.random() is used: its sequence is the same in every Python.
"""

import math
import random
import zlib

import midi_writer as smf
import notation

VOLUME, PAN, EXPRESSION, SUSTAIN, REVERB, CHORUS, MODULATION = 7, 10, 11, 64, 91, 93, 1


class Part:
    """One instrument on its own track and channel."""

    def __init__(self, song, name, channel, program, instrument, settings):
        self.song = song
        self.name = name
        self.channel = channel
        self.track = smf.Track(name)
        self.notes = []
        self.chance = random.Random(zlib.crc32(f"{song.title}/{name}".encode()))
        # How far notes stray from the beat (in quarter notes) and from their loudness.
        self.timing_spread = settings.get("timing", 0.010)
        self.velocity_spread = settings.get("spread", 4)
        # Whether long notes swell and fade, as with winds and bows.
        self.breathes = settings.get("breathes", False)
        if instrument:
            self.track.text(0, smf.META_INSTRUMENT_NAME, instrument)
        self.track.program(0, channel, program)
        first_controls = ((VOLUME, settings.get("volume", 96)), (PAN, settings.get("pan", 64)),
                          (EXPRESSION, 110), (REVERB, settings.get("reverb", 48)),
                          (CHORUS, settings.get("chorus", 0)))
        for controller, value in first_controls:
            self.track.control(0, channel, controller, value)

    def stray(self, spread):
        """A number between -spread and spread, more often near 0."""
        return (self.chance.random() + self.chance.random() - 1) * spread

    def note(self, begin, length, key, velocity):
        """One note, a little off in time and loudness. Notes of a chord each stray alone."""
        begin = max(0.0, begin + self.stray(self.timing_spread))
        velocity = round(velocity + self.stray(self.velocity_spread))
        velocity = max(1, min(127, velocity))
        if not 0 <= key <= 127:
            raise ValueError(f"{self.name}: no such key: {key}")
        self.notes.append((begin, begin + length, key, velocity))

    def chord(self, begin, length, keys, velocity, spread=0.0):
        """Keys together, or rolled from the first to the last within `spread` quarter notes."""
        for index, key in enumerate(keys):
            delay = spread * index / max(1, len(keys) - 1)
            top = 4 if key == max(keys) else 0
            self.note(begin + delay, length - delay, key, velocity + top)

    def play(self, text, at, velocity=80, gate=0.94, phrase=None, bar=None, pickup=None,
             transpose=0, arch=9):
        """A melody in notation, shaped: strong beats lead, each phrase of `phrase` quarter notes
        rises and falls by `arch`, and higher notes come out a little more. Returns its notes, in
        the places of the song."""
        notes = notation.melody(text, bar, pickup)
        sounding = [note for note in notes if note.pitches]
        if not sounding:
            return []
        total = notes[-1].begin + notes[-1].length
        phrase = phrase or total
        centre = sum(max(note.pitches) for note in sounding) / len(sounding)
        for note in sounding:
            note.pitches = [key + transpose for key in note.pitches]
            place = (note.begin % phrase) / phrase
            loudness = velocity + arch * (math.sin(math.pi * place) - 0.5)
            loudness += self.song.accent(at + note.begin)
            loudness += 0.5 * (max(note.pitches) - transpose - centre)
            loudness += 14 * note.marks.count("!")
            share = 0.5 if "'" in note.marks else 1.0 if "_" in note.marks else gate
            begin = self.song.swung(at + note.begin)
            length = share * (self.song.swung(at + note.begin + note.length) - begin)
            self.chord(begin, length, note.pitches, loudness)
            if self.breathes and note.length >= 1.5:
                self.breathe(begin, begin + length)
            note.begin += at
        return sounding

    def breathe(self, begin, end):
        """Expression over a long note: a quick swell to two fifths, then a slow fade."""
        steps = max(4, min(12, round((end - begin) * 3)))
        for step in range(steps + 1):
            place = step / steps
            height = place / 0.4 if place < 0.4 else 1 - (place - 0.4) / 0.6
            self.control(begin + (end - begin) * place * 0.98, EXPRESSION, round(98 + 24 * height))
        self.control(end, EXPRESSION, 110)

    def control(self, at, controller, value):
        self.track.control(self.song.tick(at), self.channel, controller, max(0, min(127, value)))

    def ramp(self, begin, end, controller, first, last, steps=16):
        for step in range(steps + 1):
            place = step / steps
            value = round(first + (last - first) * place)
            self.control(begin + (end - begin) * place, controller, value)

    def program(self, at, program):
        self.track.program(self.song.tick(at), self.channel, program)

    def bend(self, at, semitones):
        """Pitch, for the usual range of two semitones either way."""
        value = max(-8192, min(8191, round(semitones * 4096)))
        self.track.bend(self.song.tick(at), self.channel, value)

    def slide(self, begin, end, first, last, steps=8):
        for step in range(steps + 1):
            self.bend(begin + (end - begin) * step / steps, first + (last - first) * step / steps)

    def pedal(self, begin, end):
        self.control(begin, SUSTAIN, 127)
        self.control(end, SUSTAIN, 0)

    def cue(self, at, text):
        self.track.text(self.song.tick(at), smf.META_CUE, text)

    def lyrics(self, notes, words):
        """Words under notes, a lyric event a syllable. A blank ends a word, a line feed a line."""
        for syllable in notation.align_words(notes, words):
            text = syllable.text + (" " if syllable.ends_word else "")
            text = text.rstrip() + "\n" if syllable.ends_line else text
            self.track.text(self.song.tick(syllable.begin), smf.META_LYRIC, text)


class Song:
    """`settings`: tempo (quarter notes a minute), bar (in quarter notes), pulse (1.5 in six-eight),
    signature, key as ("F", "major"), swing (where the second eighth of a beat falls, 0.5 is
    even), loudness (a factor of all velocities, to bring the songs to one level), format."""

    def __init__(self, title, rights, **settings):
        self.title = title
        self.bar = settings.get("bar", 4.0)
        self.pulse = settings.get("pulse", 1.0)
        self.swing = settings.get("swing", 0.5)
        self.loudness = settings.get("loudness", 1.0)
        self.format = settings.get("format", 1)
        self.parts = []
        self.text_tracks = []
        self.rights = rights
        self.conductor = smf.Track(title)
        self.conductor.text(0, smf.META_COPYRIGHT, rights)
        self.set_clock(settings["tempo"])
        self.conductor.time_signature(0, *settings.get("signature", (4, 4)))
        self.conductor.key_signature(0, *settings["key"])

    def set_clock(self, tempo):
        """480 ticks a quarter note, and a tempo map."""
        self.ticks_per_beat = 480
        self.division = smf.ticks_per_quarter(480)
        self.tempo(0, tempo)

    def tick(self, at):
        return round(at * self.ticks_per_beat)

    def tempo(self, at, beats_per_minute):
        self.conductor.tempo(self.tick(at), beats_per_minute)

    def ramp_tempo(self, begin, end, first, last, step=0.5):
        count = max(1, round((end - begin) / step))
        for index in range(count + 1):
            place = index / count
            self.tempo(begin + (end - begin) * place, first * (last / first) ** place)

    def text(self, text, at=0):
        self.conductor.text(self.tick(at), smf.META_TEXT, text)

    def marker(self, at, text):
        self.conductor.text(self.tick(at), smf.META_MARKER, text)

    def part(self, name, channel, program, instrument=None, **settings):
        """A part on a MIDI channel counted from 1, with a General MIDI program counted from 0."""
        part = Part(self, name, channel - 1, program, instrument, settings)
        self.parts.append(part)
        return part

    def text_track(self, name):
        """A track without notes, such as the words of a karaoke file."""
        track = smf.Track(name)
        self.text_tracks.append(track)
        return track

    def accent(self, at):
        """How much louder a note is for its place in the bar."""
        place = (at + 1e-6) % self.bar
        if place < 0.01:
            return 6
        if place % self.pulse < 0.01:
            return 2
        return -2 if place % (self.pulse / 2) < 0.01 else -5

    def swung(self, at):
        """A place moved for swing: halves and quarters of a beat go later, triplets stay."""
        whole, part = divmod(at + 1e-6, 1.0)
        if abs(part * 3 - round(part * 3)) < 0.01:
            return at
        if part < 0.5:
            return whole + part * self.swing * 2
        return whole + self.swing + (part - 0.5) * (1 - self.swing) * 2

    def place_notes(self):
        """Hands the notes to the tracks. Where a key is struck again on a channel while it still
        sounds, the first note gives way, so that every note has its own end."""
        by_key = {}
        for part in self.parts:
            for begin, end, key, velocity in part.notes:
                ticks = [self.tick(begin), max(self.tick(begin) + 1, self.tick(end))]
                by_key.setdefault((part.channel, key), []).append((ticks, velocity, part))
        for (channel, key), notes in by_key.items():
            notes.sort(key=lambda note: note[0][0])
            for note, following in zip(notes, notes[1:] + [None]):
                (begin, end), velocity, part = note
                velocity = max(1, min(127, round(velocity * self.loudness)))
                if following:
                    end = min(end, following[0][0])
                if end > begin:
                    part.track.note(begin, end, channel, key, velocity)

    def build(self, tail=2.0):
        """The bytes of the file; it ends `tail` quarter notes after its last event."""
        self.place_notes()
        tracks = [self.conductor] + self.text_tracks + [part.track for part in self.parts]
        end = max(track.last_tick() for track in tracks) + self.tick(tail)
        return smf.midi_file(self.format, self.division, tracks, end)


class TimedSong(Song):
    """A song clocked in milliseconds: 25 frames a second of 40 ticks. It has no tempo map."""

    def set_clock(self, tempo):
        self.ticks_per_beat = 60_000 / tempo
        self.division = smf.ticks_per_frame(25, 40)
        self.conductor.add(0, smf.ORDER_META, smf.meta(0x54, bytes([0x20, 0, 0, 0, 0])))
        self.slow_from, self.slowing = None, 0.0

    def run_down(self, at, slowing):
        """From `at` on each quarter note is longer than the last by twice `slowing`, in parts of
        the first. Tempo events mean nothing here, so the places themselves move."""
        self.slow_from, self.slowing = at, slowing

    def tick(self, at):
        if self.slow_from is not None and at > self.slow_from:
            at += self.slowing * (at - self.slow_from) ** 2
        return round(at * self.ticks_per_beat)
