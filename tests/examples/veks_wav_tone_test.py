"""Tests of the command of veks-wav that writes waves."""

import math
import unittest

from program import ProgramTest


class Tone(ProgramTest):
    def test_sine(self):
        self.succeed("tone", "--freq", "1000", "--rate", "48000", "--seconds", "3", "--level", "0",
                     "--channels", "2", "tone.wav")
        frames = self.read("tone.wav").frames
        self.assertEqual(len(frames), 144000)
        for n, frame in enumerate(frames):
            exact = 32768 * math.sin(2 * math.pi * (n % 48) / 48)
            self.assertAlmostEqual(frame[0], min(exact, 32767), delta=0.6)
            self.assertEqual(frame[0], frame[1])
