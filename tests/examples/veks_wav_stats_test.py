"""Tests of veks-wav stats against figures computed here."""

import collections
import math
import random
import re
import statistics
import unittest

from program import ProgramTest
from veks_wav_levels_test import value_of
from wav_files import KINDS, Sound, bits_of, sample_range

NUMBER = r"(-?(?:inf|\d+\.\d+))"
CHANNEL = re.compile(
    rf"Channel (\d+)\n  Peak:         {NUMBER} \({NUMBER} dBFS\) at frame (\d+) \({NUMBER} s\)\n"
    rf"  RMS:          {NUMBER} \({NUMBER} dBFS\)\n  Crest factor: (none|{NUMBER})\n"
    rf"  DC offset:    {NUMBER}\n  Median:       {NUMBER}\n  Quartiles:    {NUMBER} to {NUMBER}\n"
    rf"  Levels:      ((?: +(?:from|below) -?\d+ dBFS: \d+ \(\d+\.\d\d %\)\n)+)")
LEVEL = re.compile(r" +(from|below) (-?\d+) dBFS: (\d+) \((\d+\.\d\d) %\)\n")


def uneven_sound(kind, channels, length):
    source = random.Random(f"{kind} {channels} {length}")
    if kind in ("f32", "f64"):
        code = {"f32": "fI", "f64": "dQ"}[kind]
        choose = lambda: bits_of(source.betavariate(2, 5) * 3 - 1, code)
    else:
        low, high = sample_range(kind)
        choose = lambda: low + int((high - low) * source.betavariate(2, 5))
    return Sound(kind, channels, [tuple(choose() for _ in range(channels)) for _ in range(length)])


def decibels(amplitude):
    return 20 * math.log10(amplitude) if amplitude > 0 else -math.inf


def levels_of(values):
    """How many there are of each level, in the words of the program."""
    counts = collections.Counter()
    for value in values:
        steps = [step for step in range(0, -91, -10) if abs(value) >= 10 ** (step / 20)]
        counts[("from", steps[0]) if steps else ("below", -90)] += 1
    return counts


class StatsTest(ProgramTest):
    def expect(self, sound):
        self.write("in.wav", sound)
        output = self.succeed("stats", "in.wav")
        found = list(CHANNEL.finditer(output))
        self.assertEqual("".join(match[0] for match in found), output)
        self.assertEqual(len(found), sound.channels)
        for channel, match in enumerate(found):
            values = [value_of(frame[channel], sound.kind) for frame in sound.frames]
            peak = max(values, key=abs)
            frame = values.index(peak)
            rms = math.sqrt(math.fsum(x * x for x in values) / len(values))
            quartiles = (statistics.quantiles(values, n=4, method="inclusive")
                         if len(values) > 1 else values * 3)
            self.assertEqual((int(match[1]), int(match[4])), (channel + 1, frame))
            numbers = {2: peak, 5: frame / sound.rate, 6: rms, 10: statistics.fmean(values),
                       11: quartiles[1], 12: quartiles[0], 13: quartiles[2]}
            for group, expected in numbers.items():
                self.assertAlmostEqual(float(match[group]), expected, delta=2e-6, msg=group)
            for group, amplitude in {3: abs(peak), 7: rms}.items():
                if amplitude == 0:
                    self.assertEqual(match[group], "-inf")
                else:
                    self.assertAlmostEqual(float(match[group]), decibels(amplitude), delta=0.006)
            if rms > 0:
                self.assertAlmostEqual(float(match[8]), abs(peak) / rms, delta=0.006)
            else:
                self.assertEqual(match[8], "none")

            levels = {(word, int(level)): int(count)
                      for word, level, count, _ in LEVEL.findall(match[14])}
            self.assertEqual(levels, levels_of(values))
            for _, _, count, percent in LEVEL.findall(match[14]):
                self.assertAlmostEqual(float(percent), 100 * int(count) / len(values), delta=0.006)

    def test_levels(self):
        frames = [(32767,), (-32768,), (-10363,), (10362,), (3277,), (1,), (0,), (0,)]
        self.write("in.wav", Sound("pcm16", 1, frames))
        lines = self.succeed("stats", "in.wav").splitlines()[-4:]
        self.assertEqual(lines, [
            "  Levels:       from 0 dBFS: 1 (12.50 %)",
            "                from -10 dBFS: 2 (25.00 %)",
            "                from -20 dBFS: 2 (25.00 %)",
            "                below -90 dBFS: 3 (37.50 %)",
        ])

    def test_all_encodings(self):
        for kind in KINDS:
            for channels, length in ((1, 1), (2, 2), (3, 999), (1, 70001)):
                with self.subTest(kind=kind, channels=channels, length=length):
                    self.expect(uneven_sound(kind, channels, length))

    def test_silence_and_full_scale(self):
        self.expect(Sound("pcm16", 2, [(0, -32768)] * 100))
        self.expect(Sound("pcm16", 1, [(5,), (-9,), (9,), (-9,)]))

    def test_failures(self):
        self.write("in.wav", Sound("pcm16", 1, []))
        self.fail_with(["in.wav"], "stats", "in.wav")
        self.write("in.wav", Sound("f32", 2, [(0, 0)] * 50 + [(0, 0x7FC12345)] + [(0, 0)] * 50))
        self.fail_with(["in.wav", "NaN"], "stats", "in.wav")
        self.fail_with(["none.wav"], "stats", "none.wav")
        (self.dir / "text.wav").write_text("no sound")
        self.fail_with(["text.wav"], "stats", "text.wav")


if __name__ == "__main__":
    unittest.main()
