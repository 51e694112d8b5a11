"""Pictures of 256 colours drawn by hand, and an AVI file of them: run-length coded frames (the
bitmap format's RLE8) interleaved with 16-bit sound. Every frame is a key frame."""

import functools
import struct

import midi_writer as smf
import sound


class Canvas:
    """Bytes are colour numbers; (0, 0) is the upper left."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.rows = [bytearray(width) for _ in range(height)]

    def span(self, y, left, right, colour):
        """Pixels from `left` up to but not `right`; whatever lies outside is left out."""
        left, right = max(0, round(left)), min(self.width, round(right))
        if 0 <= y < self.height and left < right:
            self.rows[y][left:right] = bytes([colour]) * (right - left)

    def box(self, left, top, right, bottom, colour):
        for y in range(round(top), round(bottom)):
            self.span(y, left, right, colour)

    def disc(self, x, y, radius, colour):
        for row in range(int(y - radius), int(y + radius) + 1):
            inside = radius * radius - (row - y) ** 2
            if inside > 0:
                self.span(row, x - inside ** 0.5, x + inside ** 0.5, colour)

    def polygon(self, points, colour, every=1):
        """A filled polygon, by scan lines through the pixels' middles. With `every` above 1 the
        lines between are left out, so that what is behind shines through."""
        top = int(min(y for _, y in points))
        bottom = int(max(y for _, y in points)) + 1
        for row in range(top - top % every, bottom + 1, every):
            middle = row + 0.5
            cuts = []
            for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
                if (y1 <= middle) != (y2 <= middle):
                    cuts.append(x1 + (middle - y1) * (x2 - x1) / (y2 - y1))
            cuts.sort()
            for left, right in zip(cuts[::2], cuts[1::2]):
                self.span(row, left, right, colour)


@functools.lru_cache(maxsize=4096)
def row_runs(row):
    """Runs of up to 255 pixels. Most rows of a film have been seen before."""
    data = bytearray()
    at = 0
    while at < len(row):
        end = at + 1
        while end < len(row) and end - at < 255 and row[end] == row[at]:
            end += 1
        data += bytes([end - at, row[at]])
        at = end
    return bytes(data)


def run_lengths(canvas):
    """The frame in RLE8, from the lowest row up."""
    rows = [row_runs(bytes(row)) for row in reversed(canvas.rows)]
    return b"\0\0".join(rows) + b"\0\0\0\1"


def list_chunk(kind, *chunks):
    return smf.riff_chunk(b"LIST", kind + b"".join(chunks))


def stream_header(kind, handler, scale, rate, length, buffer_size, sample_size, width, height):
    return struct.pack("<4s4sIHHIIIIIIII4H", kind, handler, 0, 0, 0, 0, scale, rate, 0, length,
                       buffer_size, 0xFFFFFFFF, sample_size, 0, 0, width, height)


def avi_file(frames, palette, width, height, frame_rate, pcm):
    """`frames` are RLE8 data, `palette` (red, green, blue) each, `pcm` sound of the same length."""
    per_frame = sound.RATE * 2 // frame_rate // 2 * 2
    largest = max(len(frame) for frame in frames)
    colours = b"".join(bytes([blue, green, red, 0]) for red, green, blue in palette)
    main = struct.pack("<14I", 1_000_000 // frame_rate, 0, 0, 0x110, len(frames), 0, 2, largest,
                       width, height, 0, 0, 0, 0)
    bitmap = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 8, 1, largest, 0, 0, len(palette),
                         0) + colours
    video = list_chunk(
        b"strl",
        smf.riff_chunk(b"strh", stream_header(b"vids", b"mrle", 1, frame_rate, len(frames),
                                              largest, 0, width, height)),
        smf.riff_chunk(b"strf", bitmap))
    audio = list_chunk(
        b"strl",
        smf.riff_chunk(b"strh", stream_header(b"auds", b"\0\0\0\0", 2, sound.RATE * 2,
                                              len(pcm) // 2, per_frame, 2, 0, 0)),
        smf.riff_chunk(b"strf", sound.wave_format()))
    header = list_chunk(b"hdrl", smf.riff_chunk(b"avih", main), video, audio)

    movie, index = b"movi", b""
    for number, frame in enumerate(frames):
        last = number == len(frames) - 1
        piece = pcm[number * per_frame:None if last else (number + 1) * per_frame]
        for kind, data in ((b"01wb", piece), (b"00dc", frame)):
            index += struct.pack("<4sIII", kind, 0x10, len(movie), len(data))
            movie += smf.riff_chunk(kind, data)
    content = b"AVI " + header + smf.riff_chunk(b"LIST", movie) + smf.riff_chunk(b"idx1", index)
    return smf.riff_chunk(b"RIFF", content)
