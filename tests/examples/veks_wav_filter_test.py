"""Tests of veks-wav filter against filters that are designed and applied here."""

import math
import os
import re
import shutil
import unittest

from program import ProgramTest
from veks_wav_levels_test import finite_sound, sample_of, value_of
from veks_wav_plot_test import blue_pixels, picture_of, rows_of
from wav_files import FLOAT_BYTES, KINDS, PCM_BYTES, Sound, bits_of

RATE = 8000
SHOWN = re.compile(r"Filter:      (.+)\nDelay:       (\S+) frames, (\S+) ms(, taken out)?\n"
                   r"Real time:   (\d+\.\d) x in the filter, (\d+\.\d) x with reading and writing\n")


def bessel(x):
    term = total = 1.0
    for k in range(1, 200):
        term *= (x / (2 * k)) ** 2
        total += term
    return total


def weights_of(window, size, beta=8):
    last = size - 1
    turn = lambda k, n: math.cos(2 * math.pi * k * n / last)
    alpha = (0.5 / math.cos(math.pi / last)) ** 2
    weight = {
        "none": lambda n: 1,
        "bartlett": lambda n: 1 - abs(2 * n / last - 1),
        "hann": lambda n: 0.5 - 0.5 * turn(1, n),
        "hamming": lambda n: 0.54 - 0.46 * turn(1, n),
        "blackman": lambda n: (1 - alpha) / 2 - 0.5 * turn(1, n) + alpha / 2 * turn(2, n),
        "kaiser": lambda n: bessel(beta * math.sqrt(1 - (2 * n / last - 1) ** 2)) / bessel(beta),
    }[window]
    return [weight(n) for n in range(size)]


def taps_of(kind, size, window, low, high=0.0, beta=8):
    def lowpass(edge, distance):
        if distance == 0:
            return 2 * edge
        return math.sin(2 * math.pi * edge * distance) / (math.pi * distance)

    ideal = {
        "lowpass": lambda d: lowpass(low, d),
        "highpass": lambda d: lowpass(0.5, d) - lowpass(low, d),
        "bandpass": lambda d: lowpass(high, d) - lowpass(low, d),
        "bandstop": lambda d: lowpass(0.5, d) - lowpass(high, d) + lowpass(low, d),
    }[kind]
    taps = [weight * ideal(n - (size - 1) / 2)
            for n, weight in enumerate(weights_of(window, size, beta))]
    middle = {"highpass": 0.5, "bandpass": (low + high) / 2}.get(kind, 0)
    turn = lambda n: 2 * math.pi * middle * (n - (size - 1) / 2)
    factor = sum(tap * math.cos(turn(n)) for n, tap in enumerate(taps))
    return [tap / abs(factor) for tap in taps]


def filtered(samples, taps, first):
    """As many samples of the result as there are, from one on."""
    return [sum(tap * samples[n - k] for k, tap in enumerate(taps) if 0 <= n - k < len(samples))
            for n in range(first, first + len(samples))]


class FilterTest(ProgramTest):
    def expect(self, sound, taps, *options):
        """Nearly the same: other sums, other approximations of the windows."""
        self.write("in.wav", sound)
        shown = self.succeed("filter", "--taps", len(taps), *options, "in.wav", "out.wav")
        got = self.read("out.wav")
        self.assertEqual((got.kind, got.channels, got.rate), (sound.kind, sound.channels, RATE))
        self.assertEqual(len(got.frames), len(sound.frames))
        first = len(taps) // 2 if "--align" in options else 0
        step = 0 if sound.kind in FLOAT_BYTES else 2.0 ** (1 - 8 * PCM_BYTES[sound.kind])
        for channel in range(sound.channels):
            samples = [value_of(frame[channel], sound.kind) for frame in sound.frames]
            peak = max(map(abs, samples))
            wanted = filtered(samples, taps, first)
            for n, value in enumerate(wanted):
                nearest = value_of(sample_of(value, sound.kind), sound.kind)
                result = value_of(got.frames[n][channel], sound.kind)
                self.assertLessEqual(abs(result - nearest), 1.01 * step + 4e-6 * peak, (channel, n))
        return shown

    def test_results_are_those_of_the_definition(self):
        edges = {"lowpass": (1000,), "highpass": (700.5,), "bandpass": (900, 2000.25),
                 "bandstop": (500, 3500)}
        for kind in KINDS:
            for name, hertz in edges.items():
                for size, window, shape in ((5, "none", (1, 1)), (31, "blackman", (2, 50)),
                                            (65, "kaiser", (3, 40))):
                    with self.subTest(kind=kind, filter=name, taps=size, window=window):
                        taps = taps_of(name, size, window, *(x / RATE for x in hertz))
                        options = ["--type", name, "--freq", hertz[0], "--window", window]
                        options += ["--freq2", hertz[1]] if len(hertz) > 1 else []
                        sound = finite_sound(kind, *shape)
                        self.expect(sound, taps, *options)
                        self.expect(sound, taps, *options, "--align")

    def test_windows_and_even_numbers_of_taps(self):
        sound = finite_sound("f64", 1, 100)
        for window in ("none", "bartlett", "hann", "hamming", "blackman", "kaiser"):
            for size in (5, 6, 40, 41):
                with self.subTest(window=window, taps=size):
                    self.expect(sound, taps_of("lowpass", size, window, 0.1), "--type", "lowpass",
                                "--freq", 800, "--window", window)
        self.expect(sound, taps_of("bandpass", 30, "kaiser", 0.1, 0.2, 2.5), "--type", "bandpass",
                    "--freq", 800, "--freq2", 1600, "--window", "kaiser", "--kaiser-beta", 2.5)
        self.expect(sound, taps_of("lowpass", 30, "hamming", 0.1), "--type", "lowpass",
                    "--freq", 800)

    def test_long_sounds_and_long_filters(self):
        for kind, channels, length, size in (("pcm16", 1, 70000, 7), ("f64", 2, 40000, 5),
                                             ("pcm16", 2, 1500, 129), ("pcm24", 1, 1500, 129),
                                             ("pcm16", 1, 100, 601)):
            with self.subTest(kind=kind, channels=channels, length=length, taps=size):
                taps = taps_of("highpass", size, "hann", 0.2)
                self.expect(finite_sound(kind, channels, length), taps, "--type", "highpass",
                            "--freq", 1600, "--window", "hann", "--align")

    def test_sines_stay_in_place_or_vanish(self):
        sine = lambda hertz, n: bits_of(0.5 * math.sin(2 * math.pi * hertz * n / RATE), "dQ")
        frames = [(sine(100, n), sine(3000, n)) for n in range(6000)]
        self.write("in.wav", Sound("f64", 2, frames))
        self.succeed("filter", "--type", "lowpass", "--freq", 1000, "--taps", 255, "--window",
                     "blackman", "--align", "in.wav", "in.wav")
        for n, frame in list(enumerate(self.read("in.wav").frames))[200:-200]:
            self.assertAlmostEqual(value_of(frame[0], "f64"), value_of(frames[n][0], "f64"), 4)
            self.assertLess(abs(value_of(frame[1], "f64")), 1e-4)

    def test_what_is_shown(self):
        self.write("in.wav", finite_sound("pcm16", 2, 4000))
        cases = [(("--type", "bandstop", "--freq", 250, "--freq2", "1e3", "--taps", 41, "--align"),
                  "bandstop 250 to 1000 Hz, 41 taps, window hamming", "20", "2.5", ", taken out"),
                 (("--type", "lowpass", "--freq", 99.5, "--taps", 6, "--window", "kaiser"),
                  "lowpass 99.5 Hz, 6 taps, window kaiser 8", "2.5", "0.3125", None)]
        for options, *wanted in cases:
            match = SHOWN.fullmatch(self.succeed("filter", *options, "in.wav", "out.wav"))
            self.assertEqual(list(match.groups()[:4]), wanted)
            self.assertGreater(float(match[5]), float(match[6]))
            self.assertGreater(float(match[6]), 0)

    def test_wrong_arguments(self):
        self.write("in.wav", Sound("pcm16", 2, [(1, 2)] * 100))
        self.write("none.wav", Sound("pcm16", 2, []))
        for name in ("old.wav", "old.png"):
            (self.dir / name).write_text("old")
        band = ("--type", "bandpass", "--freq", 100)
        low = ("--type", "lowpass", "--freq", 100)
        cases = [
            ((*low,), ["--taps"]), ((*low, "--taps", 4), ["4"]), ((*low, "--taps", 65537), []),
            ((*low, "--taps", "x"), []), (("--freq", 1, "--taps", 9), ["--type"]),
            (("--type", "lowpass", "--taps", 9), ["--freq"]),
            (("--type", "low", "--freq", 1, "--taps", 9), ["low"]),
            ((*low, "--taps", 9, "--window", "square"), ["square"]),
            ((*low, "--taps", 9, "--window", "hann", "--kaiser-beta", 8), ["--kaiser-beta"]),
            ((*low, "--taps", 9, "--window", "kaiser", "--kaiser-beta", 301), ["301", "0 to 300"]),
            ((*low, "--taps", 9, "--freq2", 200), ["--freq2", "bandpass"]),
            ((*low, "--taps", 10, "--align"), ["--taps", "odd", "--align"]),
            ((*band, "--taps", 9), ["--freq2", "required"]),
            ((*band, "--taps", 9, "--freq2", 100), ["--freq2", "above --freq"]),
            ((*band, "--taps", 9, "--freq2", 4000), ["in.wav", "--freq2", "below 4000 Hz"]),
            (("--type", "highpass", "--freq", 100, "--taps", 10), ["--taps", "odd", "highpass"]),
            (("--type", "bandstop", "--freq", 1, "--freq2", 2, "--taps", 10), ["odd", "bandstop"]),
            (("--type", "highpass", "--freq", 4000, "--taps", 9), ["in.wav", "below 4000 Hz"]),
            ((*low, "--taps", 9, "--plot", "x.txt"), ["x.txt", ".png"]),
            ((*low, "--taps", 9, "--plot", "none/x.png"), ["none/x.png", "No such file"]),
        ]
        cases += [(("--type", "lowpass", "--freq", hertz, "--taps", 9), ["frequency above 0"])
                  for hertz in ("0", "-1", "nan", "inf", "x", "")]
        for options, words in cases:
            with self.subTest(options=options):
                self.fail_with(words, "filter", *options, "in.wav", "old.wav")
        self.fail_with(["none.wav", "no frames"], "filter", *low, "--taps", 9, "none.wav", "x.wav")
        self.fail_with(["gnuplot"], "filter", *low, "--taps", 9, "--plot", "old.png", "in.wav",
                       "old.wav", env={**os.environ, "PATH": str(self.dir)})


@unittest.skipUnless(shutil.which("gnuplot"), "gnuplot is not installed")
class PictureTest(ProgramTest):
    def draw(self, sound, *options):
        self.write("in.wav", sound)
        self.succeed("filter", *options, "in.wav", "out.wav", "--plot", "out.png")
        self.assertEqual(set(self.files()), {"in.wav", "out.wav", "out.png"})
        return picture_of((self.dir / "out.png").read_bytes())

    def test_the_sound_after_the_filter_is_low_where_it_stops(self):
        picture = self.draw(finite_sound("pcm16", 1, 30000), "--type", "lowpass", "--freq", 500,
                            "--taps", 301, "--window", "blackman")
        self.assertEqual(picture[:2], (1600, 688))
        upper = rows_of(picture)[95:95 + 120]
        edge = 3 * (120 + int(1440 * math.log(500 / 1.953) / math.log(4000 / 1.953)))
        self.assertGreater(blue_pixels([row[:edge] for row in upper]), 1000)
        self.assertEqual(blue_pixels([row[edge + 150:] for row in upper]), 0)

    def test_sounds_that_are_hard_to_draw(self):
        for sound in (Sound("pcm16", 1, [(0,)] * 300), Sound("f32", 1, [(0x7FC00000,)] * 50),
                      Sound("f64", 1, [(0x7FEFFFFFFFFFFFFF,)] * 5000),
                      Sound("pcm16", 20, [tuple(range(20))] * 100)):
            with self.subTest(kind=sound.kind, channels=sound.channels):
                picture = self.draw(sound, "--type", "bandpass", "--freq", 500, "--freq2", 600,
                                    "--taps", 9)
                self.assertEqual(picture[0], 1600)


if __name__ == "__main__":
    unittest.main()
