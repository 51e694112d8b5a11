#!/usr/bin/env python3
"""Checks the demo songs and reset sequences as they are kept in data/, and that the generator
beside them still makes exactly these files. Needs the Python standard library only."""

import io
import pathlib
import struct
import sys
import unittest
import wave

ROOT = pathlib.Path(__file__).resolve().parents[2]
SONGS = ROOT / "data" / "songs"
RESETS = ROOT / "data" / "reset"
sys.dont_write_bytecode = True
sys.path[:0] = [str(pathlib.Path(__file__).resolve().parent), str(ROOT / "data" / "generator")]

import make_songs  # noqa: E402
from midi_reader import MidiFile  # noqa: E402

TEXT, COPYRIGHT, TRACK_NAME, INSTRUMENT, LYRIC, MARKER, CUE = 1, 2, 3, 4, 5, 6, 7
TEMPO, TIME_SIGNATURE = 0x51, 0x58
NOTE_OFF, NOTE_ON, CONTROL, PROGRAM, BEND = 0x80, 0x90, 0xB0, 0xC0, 0xE0
DRUM_CHANNEL = 9


def midi_songs():
    paths = sorted(path for path in SONGS.iterdir() if path.suffix in (".mid", ".rmi"))
    return {path.name: MidiFile(path.read_bytes()) for path in paths}


def seconds(song):
    return song.seconds(song.end_tick)


class Generator(unittest.TestCase):
    def test_makes_the_committed_files_byte_for_byte(self):
        made = make_songs.all_files()
        kept = {f"{folder.name}/{path.name}" for folder in (SONGS, RESETS)
                for path in folder.iterdir() if path.suffix != ".md"}
        self.assertEqual(set(made), kept)
        for name, data in made.items():
            # Compared as a truth value: the difference of two binaries is no help to anybody.
            self.assertTrue((ROOT / "data" / name).read_bytes() == data, f"{name} differs")


class Songs(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.songs = midi_songs()

    def test_every_kind_that_the_jukebox_plays_is_there(self):
        songs = self.songs.values()
        kinds = {
            "ten songs": len(self.songs) >= 10,
            "a RIFF file": any(name.endswith(".rmi") for name in self.songs),
            "format 0": any(song.format == 0 for song in songs),
            "format 1": any(song.format == 1 for song in songs),
            "SMPTE time": any(song.is_smpte for song in songs),
            "more than ten minutes": any(seconds(song) > 600 for song in songs),
            "triple metre": any(event.data[0] == 3 for song in songs
                                for event in song.metas(TIME_SIGNATURE)),
            "a changing tempo": any(len({tempo for _, tempo in song.tempos}) > 20
                                    for song in songs),
            "lyrics": any(song.texts(LYRIC) for song in songs),
            "cue points": any(song.texts(CUE) for song in songs),
            "pitch bends": any(event.kind == BEND for song in songs for event in song.events),
            "a wave file": any(SONGS.glob("*.wav")),
            "a film": any(SONGS.glob("*.avi")),
        }
        self.assertEqual([kind for kind, found in kinds.items() if not found], [])
        self.assertLess(sum(path.stat().st_size for path in SONGS.iterdir()), 1_500_000)

    def test_every_note_ends_and_sounds_on_a_channel_that_was_set_up(self):
        for name, song in self.songs.items():
            with self.subTest(name):
                notes = song.notes()  # raises for a note without its end, or struck twice
                programs = {event.number: event.tick for event in reversed(song.events)
                            if event.kind == PROGRAM}
                for note in notes:
                    self.assertLess(note.begin, note.end)
                    self.assertLessEqual(programs[note.channel], note.begin)
                    if note.channel == DRUM_CHANNEL:
                        self.assertTrue(35 <= note.key <= 81, f"no such drum: {note.key}")
                    else:
                        self.assertTrue(21 <= note.key <= 108, f"off the keyboard: {note.key}")
                self.assertGreaterEqual(song.end_tick, max(note.end for note in notes))

    def test_songs_begin_at_once_and_never_fall_silent(self):
        for name, song in self.songs.items():
            with self.subTest(name):
                until = 0.0
                for note in song.notes():
                    begin = song.seconds(note.begin)
                    self.assertLess(begin - until, 2.0, f"silence from {until:.1f} s")
                    until = max(until, song.seconds(note.end))
                self.assertLess(seconds(song) - until, 6.0)

    def test_controllers_are_left_at_rest(self):
        for name, song in self.songs.items():
            with self.subTest(name):
                last = {}
                for event in sorted(song.events, key=lambda event: event.tick):
                    if event.kind == CONTROL and event.data[0] == 64:
                        last[event.number, "pedal"] = event.data[1]
                    if event.kind == BEND:
                        last[event.number, "bend"] = (event.data[0] | event.data[1] << 7) - 8192
                self.assertEqual({place for place, value in last.items() if value}, set())

    def test_each_song_tells_its_title_rights_and_sections(self):
        for name, song in self.songs.items():
            with self.subTest(name):
                self.assertEqual(song.texts(TRACK_NAME)[0], pathlib.Path(name).stem)
                self.assertEqual(len(song.texts(COPYRIGHT)), 1)
                self.assertGreaterEqual(len(song.texts(MARKER)), 4)
                self.assertTrue(song.texts(TEXT))
                self.assertTrue(song.texts(INSTRUMENT))
                for event in song.events:
                    if event.kind == 0xFF and 1 <= event.number <= 15:
                        text = event.data.decode("ascii")
                        self.assertTrue(text.replace("\n", "").isprintable(), text)

    def test_the_long_song_is_no_loop(self):
        for name, song in self.songs.items():
            with self.subTest(name):
                if seconds(song) < 600:
                    continue
                bars = {}
                for note in song.notes():
                    # To the nearest eighth, so that a shaky hand alone makes no new bar.
                    step = round(note.begin * 2 / song.ticks_per_quarter)
                    bars.setdefault(step // 8, set()).add((step % 8, note.channel, note.key))
                self.assertGreater(len(bars), 0.9 * song.end_tick / (4 * song.ticks_per_quarter))
                different = {frozenset(content) for content in bars.values()}
                self.assertGreater(len(different), 0.9 * len(bars))

    def test_the_words_of_the_lullaby_can_be_read(self):
        lyrics = "".join(self.songs["Cradle Song.mid"].texts(LYRIC))
        self.assertEqual(lyrics.splitlines()[:2], ["Close your eyes, drift away,",
                                                   "for done is the day,"])
        self.assertEqual(len(lyrics.splitlines()), 16)

    def test_the_karaoke_file_follows_the_custom(self):
        path = SONGS / "Auld Lang Syne.mid"
        song = self.songs[path.name]
        self.assertEqual(song.format, 1)
        names = {event.data: event.track for event in song.metas(TRACK_NAME)}
        texts = {}
        for event in song.metas(TEXT):
            texts.setdefault(event.track, []).append((event.tick, event.data.decode("ascii")))
        self.assertEqual(texts[names[b"Soft Karaoke"]][0], (0, "@KMIDI KARAOKE FILE"))
        self.assertLess(path.read_bytes().find(b"\x03\x0cSoft Karaoke"), 8192)
        words = [text for _, text in texts[names[b"Words"]]]
        self.assertEqual(words[:2], ["@LENGL", "@TAuld Lang Syne"])
        sung = [text for text in words if not text.startswith("@")]
        lines = "".join(sung).replace("\\", "\n\n").replace("/", "\n").strip().split("\n")
        self.assertEqual(lines[0], "Should auld acquaintance be forgot,")
        self.assertEqual(lines.count("For auld lang syne, my dear,"), 3)
        # Each syllable is sung: a note of the melody begins with it.
        melody = [note.begin for note in song.notes() if note.track == names[b"Melody"]]
        for tick, text in texts[names[b"Words"]]:
            if not text.startswith("@"):
                nearest = min(abs(begin - tick) for begin in melody)
                self.assertLess(nearest, song.ticks_per_quarter // 8, text)


class OtherMedia(unittest.TestCase):
    def test_the_wave_file_is_short_and_loud_enough(self):
        for path in SONGS.glob("*.wav"):
            self.assertLess(path.stat().st_size, 400_000)
            with wave.open(str(path)) as file:
                self.assertEqual((file.getframerate(), file.getsampwidth()), (22050, 2))
                count = file.getnframes()
                data = file.readframes(count)
            self.assertTrue(3.0 <= count / 22050 <= 6.0)
            samples = struct.unpack(f"<{len(data) // 2}h", data)
            self.assertGreater(max(samples), 16000)
            self.assertLess(max(abs(sample) for sample in samples), 32700)

    def test_every_frame_of_the_film_decodes_and_its_sound_is_as_long(self):
        for path in SONGS.glob("*.avi"):
            data = path.read_bytes()
            self.assertLess(len(data), 1_200_000)
            self.assertEqual(struct.unpack("<4sI4s", data[:12]), (b"RIFF", len(data) - 8, b"AVI "))
            avih = data.index(b"avih") + 8
            frame_time, frames = struct.unpack_from("<I12xI", data, avih)
            width, height = struct.unpack_from("<II", data, avih + 32)
            movi, index = data.index(b"movi"), data.index(b"idx1")
            pictures, sound = 0, 0
            for at in range(index + 8, len(data), 16):
                kind, _, offset, size = struct.unpack_from("<4sIII", data, at)
                self.assertEqual(data[movi + offset:movi + offset + 4], kind)
                chunk = data[movi + offset + 8:movi + offset + 8 + size]
                if kind == b"01wb":
                    sound += size // 2
                else:
                    pictures += 1
                    self.assertEqual(self.rows(chunk), [width] * height)
            self.assertEqual(pictures, frames)
            length = frames * frame_time / 1e6
            self.assertTrue(2.0 <= length <= 4.0)
            self.assertAlmostEqual(sound / 22050, length, delta=frame_time / 1e6)

    def rows(self, frame):
        """The widths of the rows in a run-length coded picture."""
        widths, width, stream = [], 0, io.BytesIO(frame)
        while True:
            count, value = stream.read(2)
            if count:
                width += count
            else:
                widths.append(width)
                width = 0
                self.assertIn(value, (0, 1))
                if value:
                    self.assertEqual(stream.read(), b"")
                    return widths[:-1] if widths[-1] == 0 else widths


class Resets(unittest.TestCase):
    GM = bytes.fromhex("7E7F0901F7")
    XG = bytes.fromhex("43104C00007E00F7")
    GS = bytes.fromhex("411042124000 7F0041F7")

    def sequence(self, name):
        song = MidiFile((RESETS / name).read_bytes())
        messages = [(song.seconds(event.tick), event.data) for event in song.events
                    if event.kind == 0xF0]
        return song, messages

    def test_each_lasts_at_most_a_tenth_of_a_second(self):
        for path in RESETS.glob("*.aut"):
            song = MidiFile(path.read_bytes())
            self.assertEqual((song.format, song.track_count), (0, 1))
            self.assertLessEqual(seconds(song), 0.1)

    def test_each_sends_its_own_message(self):
        for name, expected in (("gm_reset.aut", [self.GM]), ("xg_reset.aut", [self.GM, self.XG]),
                               ("gs_reset.aut", [self.GS])):
            _, messages = self.sequence(name)
            self.assertEqual([data for _, data in messages], expected)
        _, messages = self.sequence("xg_reset.aut")
        self.assertGreaterEqual(messages[1][0] - messages[0][0], 0.04)

    def test_each_channel_is_restored_once_the_message_has_been_taken(self):
        wanted = {7: 100, 10: 64, 11: 127, 6: 2, 38: 0, 32: 0, 120: 0, 121: 0}
        for name in ("gm_reset.aut", "xg_reset.aut", "gs_reset.aut"):
            song, messages = self.sequence(name)
            for channel in range(16):
                events = [event for event in song.events if event.number == channel
                          and event.kind in (CONTROL, PROGRAM, BEND)
                          and song.seconds(event.tick) >= messages[-1][0] + 0.01]
                order = [event.data[0] for event in events if event.kind == CONTROL]
                values = {event.data[0]: event.data[1] for event in events
                          if event.kind == CONTROL}
                for controller, value in wanted.items():
                    self.assertEqual(values[controller], value, f"{name}, channel {channel}")
                # The range of the bend is set while its number is selected, and only then.
                self.assertEqual(order[order.index(101):order.index(101) + 6],
                                 [101, 100, 6, 38, 101, 100])
                drums_of_xg = name.startswith("xg") and channel == DRUM_CHANNEL
                self.assertEqual(values[0], 127 if drums_of_xg else 0)
                kinds = [event.kind for event in events]
                self.assertEqual(events[kinds.index(PROGRAM)].data, b"\0")
                self.assertEqual(events[kinds.index(BEND)].data, b"\x00\x40")


if __name__ == "__main__":
    unittest.main()
