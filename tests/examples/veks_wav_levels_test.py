"""Tests of the commands of veks-wav that calculate with samples."""

import math
import pathlib
import struct
import unittest

from program import ProgramTest
from veks_wav_test import LONG_SHAPES, RECORDINGS
from wav_files import FLOAT_BYTES, KINDS, PCM_BYTES, Sound, bits_of, random_sound, read, silence

SHAPES = [(1, 1), (2, 7), (3, 333), (7, 2)]
WIDTH = [*PCM_BYTES, *FLOAT_BYTES]  # the kinds, wider ones later
FORMATS = dict(zip(KINDS, ("u8", "s16", "s24", "s32", "f32", "f64")))


def single(value):
    try:
        return struct.unpack("<f", struct.pack("<f", value))[0]
    except OverflowError:
        return math.copysign(math.inf, value)


def precision_for(*kinds):
    """What a result is rounded to before it becomes a sample."""
    return float if {"pcm24", "pcm32", "f64"} & set(kinds) else single


def value_of(sample, kind):
    """A sample as a number, full scale being -1 to 1."""
    if kind in FLOAT_BYTES:
        value, bits = {"f32": "fI", "f64": "dQ"}[kind]
        return struct.unpack("<" + value, struct.pack("<" + bits, sample))[0]
    return (sample - silence(kind)) / (1 << (8 * PCM_BYTES[kind] - 1))


def sample_of(value, kind):
    if kind in FLOAT_BYTES:
        return bits_of(single(value)) if kind == "f32" else bits_of(value, "dQ")
    scale = 1 << (8 * PCM_BYTES[kind] - 1)
    nearest = round(max(-2, min(2, value)) * scale)  # ties to even
    return max(-scale, min(scale - 1, nearest)) + silence(kind)


def finite_sound(kind, channels, length, seed=1):
    """A sum or product with infinity or NaN may be any NaN."""
    sound = random_sound(kind, channels, length, seed)
    keep = lambda sample: sample if math.isfinite(value_of(sample, kind)) else 0
    return Sound(kind, channels, [tuple(map(keep, frame)) for frame in sound.frames])


def changed(sound, kind, change):
    frames = [tuple(sample_of(change(value_of(sample, sound.kind)), kind) for sample in frame)
              for frame in sound.frames]
    return Sound(kind, sound.channels, frames, sound.rate)


class LevelsTest(ProgramTest):
    def for_all_sounds(self, check):
        for kind in KINDS:
            for channels, length in SHAPES + (LONG_SHAPES[:2] if kind == "pcm24" else []):
                with self.subTest(kind=kind, channels=channels, length=length):
                    sound = finite_sound(kind, channels, length)
                    self.write("in.wav", sound)
                    check(sound)

    def test_gain(self):
        def check(sound):
            precision = precision_for(sound.kind)
            for decibels in (0, -6.5, 9, -200):
                self.succeed("gain", decibels, "in.wav", "out.wav")
                factor = precision(10 ** (decibels / 20))
                self.assertEqual(self.read("out.wav"), changed(
                    sound, sound.kind, lambda x: precision(x * factor)), decibels)

        self.for_all_sounds(check)

    def test_limit(self):
        def check(sound):
            precision = precision_for(sound.kind)
            for given in (1, 0.5, 0.3, 1e-9):
                self.succeed("limit", given, "in.wav", "out.wav")
                level = precision(given)
                self.assertEqual(self.read("out.wav"), changed(
                    sound, sound.kind, lambda x: max(-level, min(level, x))), given)

        self.for_all_sounds(check)

    def test_convert(self):
        def check(sound):
            for kind, name in FORMATS.items():
                self.succeed("convert", "--format", name, "in.wav", "out.wav")
                self.assertEqual(self.read("out.wav"), changed(sound, kind, lambda x: x), name)

        self.for_all_sounds(check)

    def expect_mix(self, a, b):
        self.write("a.wav", a)
        self.write("b.wav", b)
        self.succeed("mix", "a.wav", "b.wav", "out.wav")
        channels = max(a.channels, b.channels)
        precision = precision_for(a.kind, b.kind)
        rows = []
        for sound in (a, b):
            spread = channels // sound.channels
            rows.append([[value_of(sample, sound.kind) for sample in frame * spread]
                         for frame in sound.frames])
        length = max(map(len, rows))
        padded = [row + [[0.0] * channels] * (length - len(row)) for row in rows]
        kind = max(a.kind, b.kind, key=WIDTH.index)
        frames = [tuple(sample_of(precision(x + y), kind) for x, y in zip(*pair))
                  for pair in zip(*padded)]
        self.assertEqual(self.read("out.wav"), Sound(kind, channels, frames))

    def test_mix(self):
        for first in KINDS:
            for second in KINDS:
                for channels, lengths in (((2, 2), (9, 500)), ((1, 3), (77, 5)), ((4, 1), (6, 9))):
                    with self.subTest(first=first, second=second, channels=channels):
                        self.expect_mix(finite_sound(first, channels[0], lengths[0]),
                                        finite_sound(second, channels[1], lengths[1], seed=2))

    def test_mix_of_more_than_a_block(self):
        for lengths in ((70000, 10), (66000, 131073)):
            self.expect_mix(finite_sound("pcm16", 1, lengths[0]),
                            finite_sound("pcm16", 2, lengths[1], seed=2))
        self.write("none.wav", Sound("pcm16", 2, []))
        self.succeed("mix", "none.wav", "a.wav", "out.wav")
        self.assertEqual(self.read("out.wav").frames,
                         [frame * 2 for frame in self.read("a.wav").frames])

    def test_values(self):
        def expect(args, given, result, kinds=("pcm16", "pcm16")):
            self.write("in.wav", Sound(kinds[0], 1, [(x,) for x in given]))
            self.succeed(*args, "in.wav", "out.wav")
            self.assertEqual(self.read("out.wav"), Sound(kinds[1], 1, [(x,) for x in result]))

        expect(("gain", "20"), [1, -1, 3276, 3277, -3277], [10, -10, 32760, 32767, -32768])
        expect(("gain", "-20"), [5, 15, -25, 32767], [0, 2, -2, 3277])
        expect(("limit", "0.5"), [16383, 16385, -16385, 32767], [16383, 16384, -16384, 16384])
        expect(("limit", "1"), [32767, -32768], [32767, -32768])
        nan, infinity = 0x7FC12345, 0x7F800000
        expect(("convert", "--format", "s16"),
               [bits_of(x) for x in (1.0, -1.0, 0.5 / 32768, 1.5 / 32768, -3e38)] + [infinity, nan],
               [32767, -32768, 0, 2, -32768, 32767, 0], ("f32", "pcm16"))
        expect(("convert", "--format", "s32"), [bits_of(-0.5), infinity, nan],
               [-(1 << 30), (1 << 31) - 1, -(1 << 31)], ("f32", "pcm32"))
        expect(("convert", "--format", "u8"), [128, 384, -32768, 32767], [128, 130, 0, 255],
               ("pcm16", "pcm8"))
        expect(("convert", "--format", "f32"), [nan, infinity], [nan, infinity], ("f32", "f32"))
        expect(("limit", "0.5"), [nan, infinity], [nan, bits_of(0.5)], ("f32", "f32"))

    def test_other_containers(self):
        sound = finite_sound("pcm16", 2, 500)
        self.write("in.wav", sound)
        for extension, name in (("aiff", "u8"), ("flac", "u8"), ("caf", "f64"), ("w64", "s32")):
            with self.subTest(extension=extension):
                kind = {name: kind for kind, name in FORMATS.items()}[name]
                self.succeed("convert", "--format", name, "in.wav", f"out.{extension}")
                self.succeed("reverse", f"out.{extension}", "out.wav")
                expected = changed(sound, kind, lambda x: x)
                self.assertEqual(self.read("out.wav").frames, expected.frames[::-1])
        self.succeed("gain", "-3", "in.wav", "out.ogg")
        self.succeed("convert", "--format", "s16", "out.ogg", "out.wav")
        self.assertEqual(len(self.read("out.wav").frames), 500)

    def test_output_may_be_an_input(self):
        self.write("in.wav", Sound("pcm16", 1, [(100,)] * 70000))
        self.succeed("gain", "20", "in.wav", "in.wav")
        self.succeed("mix", "in.wav", "in.wav", "in.wav")
        self.succeed("limit", "0.03125", "in.wav", "in.wav")
        self.assertEqual(self.read("in.wav").frames, [(1024,)] * 70000)
        self.assertEqual(list(self.files()), ["in.wav"])


@unittest.skipUnless(RECORDINGS, "no recordings of speech here")
class RecordingsTest(ProgramTest):
    def test_mix(self):
        first, second = (read(pathlib.Path(path)) for path in RECORDINGS[:2])
        self.succeed("mix", *RECORDINGS[:2], "out.wav")
        length = max(len(first.frames), len(second.frames))
        rows = [[frame[0] for frame in sound.frames] + [0] * (length - len(sound.frames))
                for sound in (first, second)]
        expected = [(max(-32768, min(32767, x + y)),) for x, y in zip(*rows)]
        self.assertEqual(self.read("out.wav").frames, expected)


if __name__ == "__main__":
    unittest.main()
