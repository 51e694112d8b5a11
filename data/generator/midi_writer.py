"""Writes Standard MIDI Files 1.0 (formats 0 and 1) and the RIFF wrapper of ".rmi" files.

Events are kept as (tick, order, bytes). `order` decides between events of the same tick: a note's
end comes before set-up events, and those before the beginning of the next note.
"""

ORDER_NOTE_OFF = 0
ORDER_META = 1
ORDER_CONTROL = 2
ORDER_NOTE_ON = 3

META_TEXT = 1
META_COPYRIGHT = 2
META_TRACK_NAME = 3
META_INSTRUMENT_NAME = 4
META_LYRIC = 5
META_MARKER = 6
META_CUE = 7

MAJOR_KEYS = ("Cb", "Gb", "Db", "Ab", "Eb", "Bb", "F", "C", "G", "D", "A", "E", "B", "F#", "C#")
MINOR_KEYS = ("Ab", "Eb", "Bb", "F", "C", "G", "D", "A", "E", "B", "F#", "C#", "G#", "D#", "A#")


def variable_length(value):
    """The variable-length quantity of a number from 0 to 0x0FFFFFFF."""
    groups = [value & 0x7F]
    value >>= 7
    while value:
        groups.append(0x80 | (value & 0x7F))
        value >>= 7
    return bytes(reversed(groups))


def meta(kind, data):
    return bytes([0xFF, kind]) + variable_length(len(data)) + data


class Track:
    """One track: events in any order, written in the order of time."""

    def __init__(self, name=None):
        self.events = []
        if name is not None:
            self.text(0, META_TRACK_NAME, name)

    def add(self, tick, order, data):
        if tick < 0:
            raise ValueError(f"event before the start of the song: {tick}")
        self.events.append((tick, order, data))

    def text(self, tick, kind, text):
        # Plain ASCII is what every player can show.
        self.add(tick, ORDER_META, meta(kind, text.encode("ascii")))

    def tempo(self, tick, beats_per_minute):
        microseconds = round(60_000_000 / beats_per_minute)
        self.add(tick, ORDER_META, meta(0x51, microseconds.to_bytes(3, "big")))

    def time_signature(self, tick, count, unit):
        clocks = 36 if unit == 8 and count % 3 == 0 else 96 // unit
        self.add(tick, ORDER_META, meta(0x58, bytes([count, unit.bit_length() - 1, clocks, 8])))

    def key_signature(self, tick, key, mode):
        keys = MINOR_KEYS if mode == "minor" else MAJOR_KEYS
        sharps = keys.index(key) - 7
        # Last of its tick: D minor is the bytes FF 01, and a program that only searches for texts
        # would take a following delta time of 0 for an empty one.
        self.add(tick, ORDER_CONTROL, meta(0x59, bytes([sharps & 0xFF, mode == "minor"])))

    def system_exclusive(self, tick, data):
        """`data` is all that follows F0, with its closing F7."""
        self.add(tick, ORDER_CONTROL, b"\xF0" + variable_length(len(data)) + data)

    def program(self, tick, channel, program):
        self.add(tick, ORDER_CONTROL, bytes([0xC0 | channel, program]))

    def control(self, tick, channel, controller, value):
        self.add(tick, ORDER_CONTROL, bytes([0xB0 | channel, controller, value]))

    def bend(self, tick, channel, value):
        """`value` from -8192 to 8191."""
        value += 8192
        self.add(tick, ORDER_CONTROL, bytes([0xE0 | channel, value & 0x7F, value >> 7]))

    def note(self, begin, end, channel, key, velocity):
        self.add(begin, ORDER_NOTE_ON, bytes([0x90 | channel, key, velocity]))
        self.add(end, ORDER_NOTE_OFF, bytes([0x80 | channel, key, 64]))

    def last_tick(self):
        return max((event[0] for event in self.events), default=0)

    def chunk(self, end_tick):
        data = bytearray()
        now = 0
        # Python's sort keeps the order of equal keys, so set-up events stay as they were given.
        for tick, _, event in sorted(self.events, key=lambda event: event[:2]):
            data += variable_length(tick - now) + event
            now = tick
        data += variable_length(end_tick - now) + meta(0x2F, b"")
        return b"MTrk" + len(data).to_bytes(4, "big") + bytes(data)


def ticks_per_quarter(ticks):
    return ticks.to_bytes(2, "big")


def ticks_per_frame(frames_per_second, ticks):
    return bytes([256 - frames_per_second, ticks])


def midi_file(file_format, division, tracks, end_tick):
    """The bytes of a file. Format 0 takes all tracks' events into one; every track ends at the
    same tick, so that the last notes can ring out."""
    if file_format == 0:
        merged = Track()
        for track in tracks:
            merged.events += track.events
        tracks = [merged]
    header = b"MThd" + (6).to_bytes(4, "big") + file_format.to_bytes(2, "big")
    header += len(tracks).to_bytes(2, "big") + division
    return header + b"".join(track.chunk(end_tick) for track in tracks)


def riff_chunk(kind, data):
    return kind + len(data).to_bytes(4, "little") + data + b"\0" * (len(data) % 2)


def rmid_file(midi, title, copyright_text):
    """A MIDI file in its RIFF wrapper, with the usual list of facts behind it."""
    facts = riff_chunk(b"INAM", title.encode("ascii") + b"\0")
    facts += riff_chunk(b"ICOP", copyright_text.encode("ascii") + b"\0")
    content = b"RMID" + riff_chunk(b"data", midi) + riff_chunk(b"LIST", b"INFO" + facts)
    return riff_chunk(b"RIFF", content)
