"""Tests of the spectra of veks-wav."""

import cmath
import math
import shutil
import unittest

from program import ProgramTest
from veks_wav_filter_test import weights_of
from veks_wav_levels_test import finite_sound, value_of
from veks_wav_plot_test import blue_pixels, picture_of, rows_of
from wav_files import KINDS, SPECIAL, Sound, bits_of, silence


def levels_of(samples, order, window="none"):
    """The levels in dB at all points, from the definition of the transform."""
    size = 1 << order
    weights = weights_of(window, size)
    padded = samples + [0.0] * (size - len(samples))
    starts = range(0, len(padded) - size + 1, size // 2)
    turns = [cmath.exp(-2j * math.pi * k / size) for k in range(size)]
    levels = []
    for point in range(size // 2 + 1):
        power = sum(abs(sum(padded[start + i] * weights[i] * turns[i * point % size] for i in range(size))) ** 2
                    for start in starts) / len(starts)
        scale = (1 if point in (0, size // 2) else 2) / sum(weights)
        levels.append(10 * math.log10(power * scale ** 2) if power else -math.inf)
    return levels


class SpectrumTest(ProgramTest):
    def table_of(self, sound, *options):
        self.write("in.wav", sound)
        shown = self.succeed("spectrum", "in.wav", "--csv", "out.csv", *options)
        lines = (self.dir / "out.csv").read_text().splitlines()
        table = [list(map(float, line.split(","))) for line in lines[1:]]
        return shown, lines[0], list(zip(*table))

    def test_levels_are_those_of_the_definition(self):
        for kind in KINDS:
            for channels, length, order in ((1, 16, 4), (2, 100, 5), (3, 40, 4), (2, 20, 6)):
                with self.subTest(kind=kind, channels=channels, length=length):
                    sound = finite_sound(kind, channels, length)
                    clean = [tuple(x if abs(value_of(x, kind)) <= 1 else silence(kind)
                                   for x in frame) for frame in sound.frames]
                    sound = Sound(kind, channels, clean)
                    shown, _, columns = self.table_of(sound, "--order", order)
                    blocks = max(1, 1 + (length - (1 << order)) // (1 << (order - 1)))
                    self.assertIn(f"Blocks:      {blocks} of {1 << order} samples\n", shown)
                    self.assertEqual(columns[0], tuple(8000 * k / (1 << order)
                                                       for k in range((1 << (order - 1)) + 1)))
                    for channel, levels in enumerate(columns[1:]):
                        samples = [value_of(frame[channel], kind) for frame in clean]
                        for got, wanted in zip(levels, levels_of(samples, order)):
                            self.assertTrue(abs(got - wanted) < 1e-5 or got == wanted, (got, wanted))

    def test_windows(self):
        samples = [tuple(bits_of(math.sin(i * i / 70 + c)) for c in range(2)) for i in range(100)]
        for window in ("bartlett", "hann", "hamming", "blackman", "kaiser"):
            with self.subTest(window=window):
                _, _, columns = self.table_of(Sound("f32", 2, samples), "--order", 5, "--window",
                                              window)
                for channel, levels in enumerate(columns[1:]):
                    values = [value_of(frame[channel], "f32") for frame in samples]
                    for got, wanted in zip(levels, levels_of(values, 5, window)):
                        self.assertAlmostEqual(got, wanted, delta=1e-3)

    def test_a_sine_has_its_level_at_its_frequency(self):
        tone = lambda i, level, hertz: bits_of(level * math.sin(2 * math.pi * i * hertz / 8000))
        sound = Sound("f32", 2, [(tone(i, 1, 1000), tone(i, 0.1, 3000)) for i in range(9000)])
        shown, header, columns = self.table_of(sound)
        self.assertEqual(header, "Frequency (Hz),Left (dB),Right (dB)")
        self.assertIn("Blocks:      3 of 4096 samples\nResolution:  1.953 Hz\n", shown)
        self.assertRegex(shown, r"Peak:        1000\.000 Hz, -?0\.00 dB \(Left\)\n"
                                r"Peak:        3000\.000 Hz, -20\.00 dB \(Right\)\n\Z")
        self.assertEqual(len(columns[0]), 2049)
        for levels, point, level in ((columns[1], 512, 0), (columns[2], 1536, -20)):
            self.assertAlmostEqual(levels[point], level, places=4)
            self.assertLess(max(levels[:point] + levels[point + 1:]), -120)

    def test_silence_and_special_samples(self):
        shown, header, columns = self.table_of(Sound("pcm16", 1, [(0,)] * 100), "--order", 4)
        self.assertEqual(header, "Frequency (Hz),Level (dB)")
        self.assertIn("Peak:        none\n", shown)
        self.assertEqual(set(columns[1]), {-math.inf})
        nan = Sound("f32", 1, [(bits,) for bits in SPECIAL["f32"]] * 4)
        shown, _, columns = self.table_of(nan, "--order", "4", "--window", "none")
        self.assertIn("Peak:        none\n", shown)
        self.assertTrue(all(map(math.isnan, columns[1])))

    def test_failures_leave_no_traces(self):
        self.write("in.wav", Sound("pcm16", 2, [(1, 2)] * 100))
        self.write("none.wav", Sound("pcm16", 2, []))
        for name in ("old.csv", "old.png"):
            (self.dir / name).write_text("old")
        cases = [(("--order", "3"), []), (("--order", "17"), []), (("--order", "x"), []),
                 (("--window", "square"), ["square"]),
                 (("--window", "hann", "--kaiser-beta", "1"), ["--kaiser-beta"]), (("--csv",), []), (("--plot",), []),
                 (("--plot", "x.txt"), ["x.txt", ".png"]),
                 (("--csv", "in.wav"), ["in.wav", "sound file itself"]),
                 (("--plot", "x.png", "--csv", "./x.png"), ["./x.png", "picture itself"]),
                 (("--csv", "none/x.csv"), ["none/x.csv", "No such file"]),
                 (("--plot", "old.png", "--csv", "none/x.csv"), ["none/x.csv", "No such file"]),
                 (("--plot", "none/x.png", "--csv", "old.csv"), ["none/x.png", "No such file"])]
        for options, words in cases:
            with self.subTest(options=options):
                self.fail_with(words, "spectrum", "in.wav", *options)
        self.fail_with(["none.wav", "no frames"], "spectrum", "none.wav", "--csv", "old.csv")
        self.fail_with(["gnuplot"], "spectrum", "in.wav", "--plot", "old.png", "--csv", "old.csv",
                       env={"PATH": str(self.dir)})


@unittest.skipUnless(shutil.which("gnuplot"), "gnuplot is not installed")
class PictureTest(ProgramTest):
    def draw(self, sound, *options):
        self.write("in.wav", sound)
        self.succeed("spectrum", "in.wav", "--plot", "out.png", *options)
        return picture_of((self.dir / "out.png").read_bytes())

    def test_the_picture_shows_where_the_sound_is(self):
        tone = lambda i: int(9000 * math.sin(2 * math.pi * i * 0.3)) + i * 7919 % 13
        picture = self.draw(Sound("pcm16", 2, [(tone(i), tone(i)) for i in range(9000)]),
                            "--csv", "out.csv")
        self.assertEqual(picture[:2], (1600, 688))
        self.assertEqual(set(self.files()), {"in.wav", "out.png", "out.csv"})
        rows = rows_of(picture)
        # The tone is the only thing in the upper third of a panel, near its right end.
        upper = rows[95:95 + 70]
        right = 3 * 1300
        self.assertGreater(blue_pixels([row[right:] for row in upper]), 30)
        self.assertEqual(blue_pixels([row[:right] for row in upper]), 0)

    def test_sounds_that_are_hard_to_draw(self):
        for sound in (Sound("pcm16", 1, [(0,)] * 300),
                      Sound("f32", 1, [(bits,) for bits in SPECIAL["f32"]] * 1000),
                      Sound("f64", 1, [(0x7FEFFFFFFFFFFFFF,)] * 5000),
                      Sound("f64", 1, [(1,), (2,)] * 5000),
                      Sound("pcm16", 20, [tuple(range(20))] * 100)):
            with self.subTest(kind=sound.kind, channels=sound.channels):
                self.assertEqual(self.draw(sound)[0], 1600)


if __name__ == "__main__":
    unittest.main()
