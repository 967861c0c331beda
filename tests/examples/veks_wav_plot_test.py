"""Tests of the pictures of veks-wav."""

import math
import os
import shutil
import struct
import unittest
import zlib

from program import ProgramTest
from wav_files import SPECIAL, Sound


def wave_of(kind, channels, length):
    return Sound(kind, channels, [tuple(int(9000 * (c + 1) / channels * math.sin(i / 20))
                                        for c in range(channels)) for i in range(length)])


def picture_of(content):
    """Width, height and filtered rows of a PNG of 8-bit RGB; each checksum is verified."""
    assert content[:8] == b"\x89PNG\r\n\x1a\n", content[:8]
    offset = 8
    data = b""
    header = None
    name = None
    while offset < len(content):
        size, name = struct.unpack(">I4s", content[offset:offset + 8])
        body = content[offset + 8:offset + 8 + size]
        assert struct.unpack(">I", content[offset + 8 + size:offset + 12 + size])[0] == zlib.crc32(
            name + body)
        offset += 12 + size
        header = body if name == b"IHDR" else header
        data += body if name == b"IDAT" else b""
    assert name == b"IEND"
    width, height, depth, colour = struct.unpack(">IIBB", header[:10])
    assert (depth, colour) == (8, 2), (depth, colour)
    data = zlib.decompress(data)
    assert len(data) == (3 * width + 1) * height
    return width, height, data


def rows_of(picture):
    width, height, data = picture
    stride = 3 * width
    rows = []
    above = bytes(stride)
    for y in range(height):
        start = y * (stride + 1)
        kind = data[start]
        row = bytearray(data[start + 1:start + 1 + stride])
        if kind:
            for x in range(stride):
                left = row[x - 3] if x >= 3 else 0
                corner = above[x - 3] if x >= 3 else 0
                row[x] = row[x] + predicted(kind, left, above[x], corner) & 255
        rows.append(bytes(row))
        above = rows[-1]
    return rows


def predicted(kind, left, up, corner):
    if kind < 4:
        return (0, left, up, (left + up) // 2)[kind]
    return min((abs(up - corner), 0, left), (abs(left - corner), 1, up),
               (abs(left + up - 2 * corner), 2, corner))[2]


def blue_pixels(rows):
    return sum(row[x] < 100 and row[x + 2] > 130 for row in rows for x in range(0, len(row), 3))


@unittest.skipUnless(shutil.which("gnuplot"), "gnuplot is not installed")
class PlotTest(ProgramTest):
    def draw(self, sound, name="in.wav"):
        self.write(name, sound)
        shown = self.succeed("info", "--plot", "out.png", "--", name)
        self.assertIn(f"Frames:      {len(sound.frames)}\n", shown)
        self.assertEqual(set(self.files()), {name, "out.png"})
        return (self.dir / "out.png").read_bytes()

    def test_picture_grows_with_channels_and_shows_the_wave(self):
        for channels, length, height in ((1, 50000, 590), (2, 5000, 688), (6, 3000, 1140)):
            with self.subTest(channels=channels):
                picture = picture_of(self.draw(wave_of("pcm16", channels, length)))
                self.assertEqual(picture[:2], (1600, height))
                self.assertGreater(blue_pixels(rows_of(picture)), 10000)

    def test_loud_half_is_where_it_sounds(self):
        loud = wave_of("pcm16", 1, 20000)
        sound = Sound("pcm16", 1, [(0,)] * 20000 + loud.frames)
        rows = rows_of(picture_of(self.draw(sound)))
        middle = 3 * (120 + (1600 - 120 - 40) // 2)
        first = blue_pixels([row[:middle] for row in rows])
        second = blue_pixels([row[middle:] for row in rows])
        self.assertGreater(second, 20 * first)

    def test_sounds_that_are_hard_to_draw(self):
        cases = [Sound("pcm16", 1, [(1000,)]),
                 Sound("pcm16", 2, [(0, 0)] * 3000),
                 Sound("f32", 1, [(bits,) for bits in SPECIAL["f32"]] * 1000),
                 Sound("f64", 1, [(SPECIAL["f64"][-1],)] * 100),
                 Sound("f64", 1, [(1,), (2,)] * 1000),
                 Sound("f64", 1, [(0x7FEFFFFFFFFFFFFF,), (0xFFEFFFFFFFFFFFFF,)] * 1000),
                 wave_of("pcm16", 40, 100)]
        for sound in cases:
            with self.subTest(kind=sound.kind, channels=sound.channels):
                self.assertEqual(picture_of(self.draw(sound))[0], 1600)

    def test_file_names_are_only_text(self):
        sound = wave_of("pcm16", 1, 100)
        for name in ("a'b\"c`touch x`$(touch y)@z.wav", "-a\nset output 'x'\n\\.wav", "{^_}.wav"):
            with self.subTest(name=name):
                picture_of(self.draw(sound, name))
                (self.dir / name).unlink()


class GnuplotFailureTest(ProgramTest):
    def test_failures(self):
        self.write("in.wav", wave_of("pcm16", 1, 100))
        (self.dir / "old.png").write_text("old")
        cases = [("missing", None, ["gnuplot: not found", "package"]),
                 ("failing", "echo '  ^' >&2; echo no terminal >&2; exit 1", ["no terminal"]),
                 ("mute", "exit 0", ["did not complete"]),
                 ("killed", "printf '\\211PNG\\r\\n\\032\\n'; kill -9 $$", ["Killed"])]
        for name, script, words in cases:
            with self.subTest(name):
                tools = self.dir / name
                tools.mkdir()
                if script is not None:
                    (tools / "gnuplot").write_text("#!/bin/sh\n" + script + "\n")
                    (tools / "gnuplot").chmod(0o755)
                for picture in ("old.png", "new.png"):
                    names = [] if script is None else [picture]
                    self.fail_with(words + names, "info", "in.wav", "--plot", picture,
                                   env={**os.environ, "PATH": str(tools)})
