"""A strict reader of Standard MIDI Files for the checks of the demo songs: anything out of order
is an error. It shares no code with the generator that writes them."""

import struct


class Damaged(Exception):
    pass


class Event:
    """`kind` is the status byte without its channel (0x80 to 0xE0), 0xF0, 0xF7 or 0xFF. For a meta
    event `number` is its type, else the channel; `data` are the bytes that follow."""

    def __init__(self, tick, track, kind, number, data):
        self.tick = tick
        self.track = track
        self.kind = kind
        self.number = number
        self.data = data


class Note:
    def __init__(self, begin, end, track, channel, key, velocity):
        self.begin, self.end = begin, end
        self.track, self.channel, self.key, self.velocity = track, channel, key, velocity


def unwrap(data):
    """The MIDI file in a RIFF RMID wrapper."""
    kind, size, form = struct.unpack("<4sI4s", data[:12])
    if kind != b"RIFF" or form != b"RMID" or size != len(data) - 8:
        raise Damaged("not a RIFF RMID file of its own length")
    name, length = struct.unpack("<4sI", data[12:20])
    if name != b"data" or 20 + length > len(data):
        raise Damaged("no MIDI data in the wrapper")
    return data[20:20 + length]


class MidiFile:
    """All events in the order of the tracks, the notes paired, and times in seconds."""

    def __init__(self, data):
        if data[:4] == b"RIFF":
            data = unwrap(data)
        if data[:8] != b"MThd\0\0\0\6":
            raise Damaged("no header")
        self.format, self.track_count, division = struct.unpack(">HHH", data[8:14])
        self.is_smpte = division >= 0x8000
        if self.is_smpte:
            self.ticks_per_second = (256 - (division >> 8)) * (division & 0xFF)
        self.ticks_per_quarter = division
        self.events = []
        self.end_tick = 0
        position = 14
        for track in range(self.track_count):
            position = self.read_track(data, position, track)
        if position != len(data):
            raise Damaged(f"{len(data) - position} bytes after the last track")
        self.tempos = sorted((event.tick, int.from_bytes(event.data, "big"))
                             for event in self.metas(0x51))

    def read_track(self, data, position, track):
        if data[position:position + 4] != b"MTrk":
            raise Damaged(f"no track {track}")
        end = position + 8 + int.from_bytes(data[position + 4:position + 8], "big")
        position += 8
        tick = 0

        def quantity():
            nonlocal position
            value = 0
            for _ in range(4):
                byte = data[position]
                position += 1
                value = value << 7 | byte & 0x7F
                if byte < 0x80:
                    return value
            raise Damaged("a number of more than four bytes")

        while position < end:
            tick += quantity()
            status = data[position]
            position += 1
            if status < 0x80:
                raise Damaged("running status, which the generator never writes")
            if status == 0xFF:
                number = data[position]
                position += 1
                size = quantity()
            elif status in (0xF0, 0xF7):
                number, size = 0, quantity()
            elif status < 0xF0:
                number, size = status & 15, 1 if status & 0xF0 in (0xC0, 0xD0) else 2
                status &= 0xF0
            else:
                raise Damaged(f"status {status:02X} in a file")
            content = data[position:position + size]
            position += size
            if status < 0xF0 and any(byte > 127 for byte in content):
                raise Damaged("a data byte above 127")
            self.events.append(Event(tick, track, status, number, content))
            if status == 0xFF and number == 0x2F:
                if position != end:
                    raise Damaged("an end of track before the end")
                self.end_tick = max(self.end_tick, tick)
                return position
        raise Damaged("a track without an end")

    def metas(self, number):
        return [event for event in self.events if event.kind == 0xFF and event.number == number]

    def texts(self, number):
        return [event.data.decode("ascii") for event in self.metas(number)]

    def seconds(self, tick):
        if self.is_smpte:
            return tick / self.ticks_per_second
        now, last, tempo = 0.0, 0, 500_000
        for at, following in self.tempos:
            if at >= tick:
                break
            now += (at - last) * tempo
            last, tempo = at, following
        return (now + (tick - last) * tempo) / self.ticks_per_quarter / 1e6

    def notes(self):
        """The notes of all channels by their beginning; a note that never ends, an end without a
        note, and a key struck while it sounds are errors."""
        notes, sounding = [], {}

        def order(event):
            is_end = event.kind == 0x80
            return event.tick, 0 if is_end else 1

        keys = [event for event in self.events if event.kind in (0x80, 0x90)]
        for event in sorted(keys, key=order):
            key = event.number, event.data[0]
            if event.kind == 0x90 and event.data[1]:
                if key in sounding:
                    raise Damaged(f"key {key} struck twice at tick {event.tick}")
                sounding[key] = Note(event.tick, None, event.track, *key, event.data[1])
            elif key not in sounding:
                raise Damaged(f"end of a note {key} that does not sound at tick {event.tick}")
            else:
                note = sounding.pop(key)
                note.end = event.tick
                notes.append(note)
        if sounding:
            raise Damaged(f"notes that never end: {sorted(sounding)}")
        return sorted(notes, key=lambda note: (note.begin, note.key))
