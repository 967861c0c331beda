"""Tests of what the commands of veks-wav do; VEKS_WAV is the path of the program."""

import glob
import os
import pathlib
import shutil
import struct
import unittest

import wav_files
from program import ProgramTest
from wav_files import (KINDS, PCM_BYTES, Sound, bits_of, chunks, format_chunk, random_sound,
                       silence, write_riff)

RECORDINGS = sorted(glob.glob(
    os.environ.get("VEKS_WAV_RECORDINGS", "/usr/share/sounds/alsa") + "/*.wav"))

# Channels and frames.
SHAPES = [(1, 1), (1, 2), (1, 1001), (2, 1), (2, 7), (2, 500), (3, 1), (3, 333), (4, 9), (5, 8),
          (6, 1), (6, 101), (7, 2), (8, 25), (16, 3)]
# More than the blocks that the program works in.
LONG_SHAPES = [(1, 131075), (2, 65539), (3, 43691)]


class SamplesTest(ProgramTest):
    def for_all_sounds(self, check, kinds=KINDS):
        for kind in kinds:
            for channels, length in SHAPES + (LONG_SHAPES if kind in ("pcm16", "f64") else []):
                with self.subTest(kind=kind, channels=channels, length=length):
                    sound = random_sound(kind, channels, length)
                    self.write("in.wav", sound)
                    check(sound)

    def expect(self, sound, frames):
        self.assertEqual(self.read("out.wav"), Sound(sound.kind, sound.channels, frames))

    def test_reverse(self):
        def check(sound):
            self.succeed("reverse", "in.wav", "out.wav")
            self.expect(sound, sound.frames[::-1])

        self.for_all_sounds(check)

    def test_crush(self):
        def check(sound):
            width = 8 * PCM_BYTES[sound.kind]
            middle = silence(sound.kind)
            for bits in (1, width // 2 + 1, width - 1, width):
                self.succeed("crush", "--bits", bits, "in.wav", "out.wav")
                step = 1 << (width - bits)
                self.expect(sound, [tuple((sample - middle) // step * step + middle
                                          for sample in frame) for frame in sound.frames])

        self.for_all_sounds(check, PCM_BYTES)

    def test_concat(self):
        def check(sound):
            second = random_sound(sound.kind, sound.channels, 77, seed=2)
            self.write("b.wav", second)
            self.succeed("concat", "in.wav", "b.wav", "out.wav")
            self.expect(sound, sound.frames + second.frames)

        self.for_all_sounds(check)

    def test_pad(self):
        def check(sound):
            frame = (silence(sound.kind),) * sound.channels
            for options, before, after in ((("--before", "0.125"), 1000, 0),
                                           (("--after", "0.00012"), 0, 1),
                                           (("--before", "0", "--after", "0"), 0, 0),
                                           (("--after", "2e-1", "--before=0.001"), 8, 1600)):
                self.succeed("pad", *options, "in.wav", "out.wav")
                self.expect(sound, [frame] * before + sound.frames + [frame] * after)

        self.for_all_sounds(check)

    def test_pad_with_more_than_a_block(self):
        self.write("in.wav", Sound("pcm16", 1, [(7,)]))
        self.succeed("pad", "--before", "10", "--after", "20", "in.wav", "out.wav")
        self.assertEqual(self.read("out.wav").frames, [(0,)] * 80000 + [(7,)] + [(0,)] * 160000)


class ConversionTest(ProgramTest):
    def test_concat_converts_to_the_format_of_the_first(self):
        cases = [
            ("pcm8", "pcm16", [-32768, -1, 0, 32767], [0, 127, 128, 255]),
            ("pcm16", "pcm8", [0, 127, 128, 255], [-32768, -256, 0, 32512]),
            ("pcm16", "pcm24", [-1, 255, 256, 0x7FFFFF], [-1, 0, 1, 32767]),
            ("pcm24", "pcm16", [-32768, 1], [-0x800000, 256]),
            ("pcm32", "pcm24", [-0x800000, 1], [-0x80000000, 256]),
            ("f32", "pcm16", [-32768, 16384], [bits_of(-1.0), bits_of(0.5)]),
            ("f64", "f32", [bits_of(-0.75)], [bits_of(-0.75, "dQ")]),
            ("pcm16", "f32", [bits_of(x) for x in (0.5, -1.0, 1.0, -3.0, 1e30)],
             [16384, -32768, 32767, -32768, 32767]),
        ]
        for first, second, given, converted in cases:
            with self.subTest(first=first, second=second):
                start = random_sound(first, 1, 3)
                self.write("a.wav", start)
                self.write("b.wav", Sound(second, 1, [(x,) for x in given]))
                self.succeed("concat", "a.wav", "b.wav", "out.wav")
                expected = start.frames + [(x,) for x in converted]
                self.assertEqual(self.read("out.wav"), Sound(first, 1, expected))

    def test_other_containers_hold_the_same_samples(self):
        cases = [(kind, extension)
                 for kind in KINDS for extension in ("w64", "rf64", "aiff", "aif", "au", "caf")]
        cases += [(kind, "flac") for kind in ("pcm8", "pcm16", "pcm24")]
        for kind, extension in cases:
            with self.subTest(kind=kind, extension=extension):
                sound = random_sound(kind, 2, 1000)
                self.write("in.wav", sound)
                self.succeed("reverse", "in.wav", f"other.{extension}")
                self.assertNotEqual((self.dir / f"other.{extension}").read_bytes()[:4], b"RIFF")
                self.succeed("reverse", f"other.{extension}", "out.wav")
                # 8 bits are unsigned in WAV and signed in the others.
                self.assertEqual(self.read("out.wav"), sound)

    def test_lossy_containers(self):
        sound = random_sound("pcm16", 2, 5000)
        self.write("in.wav", sound)
        for extension, name in (("ogg", "Vorbis"), ("oga", "Vorbis"), ("opus", "Opus"),
                                ("mp3", "MPEG Layer III")):
            with self.subTest(extension=extension):
                self.succeed("reverse", "in.wav", f"out.{extension}")
                shown = self.succeed("info", f"out.{extension}")
                self.assertIn(f"Encoding:    {name}\n", shown)
                self.assertIn("Frames:      5000\n", shown)
                self.succeed("reverse", f"out.{extension}", "out.wav")
                decoded = self.read("out.wav")
                self.assertEqual((decoded.kind, len(decoded.frames)), ("f32", 5000))

    def test_companded_samples_stay_companded(self):
        # Without the second code for zero.
        codes = bytes(code for code in range(255) if code != 0x7F)
        for tag, name in ((7, "U-Law"), (6, "A-Law")):
            with self.subTest(name):
                write_riff(self.dir / "in.wav", format_chunk(tag, 2, 8000, 1), (b"data", codes))
                self.assertIn(f"Encoding:    {name}\n", self.succeed("info", "in.wav"))
                self.succeed("reverse", "in.wav", "out.wav")
                expected = b"".join(codes[i:i + 2] for i in range(len(codes) - 2, -1, -2))
                self.assertEqual(chunks(self.dir / "out.wav")["data"], expected)
                self.succeed("reverse", "out.wav", "out.flac")
                self.assertIn("Signed 16 bit PCM", self.succeed("info", "out.flac"))

    def test_channel_map_is_kept(self):
        fmt = struct.pack("<HHIIHHHHIH", 0xFFFE, 4, 8000, 64000, 8, 16, 22, 16, 0x33, 1)
        fmt += b"\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71"
        write_riff(self.dir / "in.wav", (b"fmt ", fmt), (b"data", bytes(range(48))))
        self.succeed("reverse", "in.wav", "out.wav")
        found = chunks(self.dir / "out.wav")
        self.assertEqual(found["fmt "], fmt)
        self.assertEqual(list(found["data"][::8]), [40, 32, 24, 16, 8, 0])

    def test_texts_are_kept(self):
        texts = b"INFOINAM" + struct.pack("<I", 8) + b"A title\0"
        write_riff(self.dir / "in.wav", format_chunk(1, 1, 8000, 2), (b"LIST", texts),
                   (b"data", bytes(8)))
        self.succeed("pad", "--before", "1", "in.wav", "out.flac")
        self.assertIn(b"title=A title", (self.dir / "out.flac").read_bytes())
        self.succeed("pad", "--before", "1", "out.flac", "out.wav")
        self.assertIn(texts[4:], chunks(self.dir / "out.wav")["LIST"])


class FilesTest(ProgramTest):
    def test_info(self):
        self.write("in.wav", random_sound("pcm24", 3, 2001))
        self.assertEqual(self.succeed("info", "in.wav").splitlines(), [
            "File:        in.wav", "Format:      WAV (Microsoft)",
            "Encoding:    Signed 24 bit PCM", "Sample rate: 8000 Hz", "Channels:    3",
            "Frames:      2001", "Duration:    0.250125 s"])

    def test_sound_without_frames(self):
        self.write("none.wav", Sound("pcm16", 2, []))
        self.assertIn("Frames:      0\n", self.succeed("info", "none.wav"))
        self.succeed("pad", "--after", "0.001", "none.wav", "out.wav")
        self.assertEqual(self.read("out.wav").frames, [(0, 0)] * 8)
        self.succeed("concat", "none.wav", "out.wav", "both.wav")
        self.assertEqual(self.read("both.wav").frames, [(0, 0)] * 8)

    def test_output_may_be_an_input(self):
        sound = random_sound("pcm16", 2, 70000)
        self.write("in.wav", sound)
        self.succeed("reverse", "in.wav", "in.wav")
        self.succeed("concat", "in.wav", "in.wav", "in.wav")
        self.assertEqual(self.read("in.wav").frames, sound.frames[::-1] * 2)
        self.assertEqual(list(self.files()), ["in.wav"])

    def test_output_keeps_links_and_permissions(self):
        self.write("in.wav", random_sound("pcm16", 1, 10))
        (self.dir / "old.wav").write_text("old")
        (self.dir / "old.wav").chmod(0o640)
        (self.dir / "link.wav").symlink_to("old.wav")
        self.succeed("pad", "--after", "0", "in.wav", "link.wav")
        self.assertTrue((self.dir / "link.wav").is_symlink())
        self.assertEqual(self.read("old.wav"), self.read("in.wav"))
        self.assertEqual((self.dir / "old.wav").stat().st_mode & 0o777, 0o640)
        self.succeed("pad", "--after", "0", "in.wav", "new.wav", umask=0o027)
        self.assertEqual((self.dir / "new.wav").stat().st_mode & 0o777, 0o640)

    def test_unusual_names(self):
        self.write("in.wav", random_sound("pcm16", 1, 10))
        for name in ("-", "-x.wav", "a b'c\"d`e$f.wav", "\u00fc\u4e2d.wav", "n" * 251 + ".wav"):
            with self.subTest(name=name):
                self.succeed("reverse", "--", "in.wav", name)
                self.succeed("reverse", "--", name, "back.wav")
                self.assertEqual(self.read("back.wav"), self.read("in.wav"))

    def test_help(self):
        for command in ((), ("info",), ("reverse",), ("concat",), ("mix",), ("gain",), ("limit",),
                        ("crush",), ("pad",), ("convert",)):
            self.assertIn("Usage: veks-wav", self.succeed(*command, "--help"))


@unittest.skipUnless(RECORDINGS, "no recordings of speech here")
class RecordingsTest(ProgramTest):
    def test_reverse_twice(self):
        for recording in RECORDINGS:
            with self.subTest(recording=recording):
                self.succeed("reverse", recording, "once.wav")
                self.succeed("reverse", "once.wav", "twice.wav")
                original = wav_files.read(pathlib.Path(recording))
                self.assertEqual(self.read("once.wav").frames, original.frames[::-1])
                self.assertEqual(self.read("twice.wav"), original)

    def test_crushed_between_silences(self):
        for recording in RECORDINGS:
            with self.subTest(recording=recording):
                self.succeed("crush", "--bits", "6", recording, "crushed.wav")
                self.succeed("pad", "--before", "0.5", "--after", "0.25", "crushed.wav", "out.wav")
                original = wav_files.read(pathlib.Path(recording))
                crushed = [tuple(sample // 1024 * 1024 for sample in frame)
                           for frame in original.frames]
                silent = [(0,) * original.channels] * (original.rate // 4)
                self.assertEqual(self.read("out.wav").frames, silent * 2 + crushed + silent)

    def test_all_after_one_another(self):
        shutil.copy(RECORDINGS[0], self.dir / "all.wav")
        frames = wav_files.read(pathlib.Path(RECORDINGS[0])).frames
        for recording in RECORDINGS[1:]:
            self.succeed("concat", "all.wav", recording, "all.wav")
            frames += wav_files.read(pathlib.Path(recording)).frames
        self.assertEqual(self.read("all.wav").frames, frames)


if __name__ == "__main__":
    unittest.main()
