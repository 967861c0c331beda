"""Compares the responses of FIR designs with those of SciPy's: scipy_test.py LIBRARY"""

import ctypes
import sys
import unittest

SKIPPED = 77

try:
    import numpy as np
    from scipy import signal
except ImportError as error:
    print(f"skipped: {error}")
    sys.exit(SKIPPED)

WINDOWS = {"bartlett": 0, "hamming": 2, "hann": 3, "boxcar": 7}
LENGTHS = (5, 6, 21, 64, 101, 256)


class Designs(unittest.TestCase):
    library = None

    def taps(self, kind, edges, length, window, normal=1):
        taps = np.zeros(length)
        function = getattr(self.library, f"veksFIRGen{kind}_64f")
        status = function(
            *(ctypes.c_double(edge) for edge in edges),
            taps.ctypes.data_as(ctypes.POINTER(ctypes.c_double)),
            length,
            WINDOWS[window],
            normal,
        )
        self.assertEqual(status, 0)
        return taps

    def check(self, kind, edges, lengths, pass_zero):
        for length in lengths:
            for window in WINDOWS:
                with self.subTest(kind=kind, length=length, window=window):
                    cutoff = edges[0] if len(edges) == 1 else edges
                    peer = signal.firwin(length, cutoff, window=window, pass_zero=pass_zero, fs=1)
                    own = self.taps(kind, edges, length, window)
                    frequencies = np.linspace(0, 0.5, 513)
                    expected = np.abs(signal.freqz(peer, worN=frequencies, fs=1)[1])
                    got = np.abs(signal.freqz(own, worN=frequencies, fs=1)[1])
                    np.testing.assert_allclose(got, expected, atol=1e-12)

    def test_lowpass(self):
        self.check("Lowpass", (0.17,), LENGTHS, True)

    def test_highpass(self):
        odd = [length for length in LENGTHS if length % 2 == 1]
        self.check("Highpass", (0.17,), odd, False)

    def test_bandpass(self):
        self.check("Bandpass", (0.12, 0.34), LENGTHS, False)

    def test_bandstop(self):
        odd = [length for length in LENGTHS if length % 2 == 1]
        self.check("Bandstop", (0.12, 0.34), odd, True)


if __name__ == "__main__":
    Designs.library = ctypes.CDLL(sys.argv.pop())
    unittest.main()
