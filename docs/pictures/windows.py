#!/usr/bin/env python3
"""Draws the windows of the library and their spectra, and measures them for docs/windows.md.

The library computes both: the weights are what a vector of ones becomes, the spectra are its own
Fourier transforms. Needs gnuplot.
"""

import argparse
import ctypes
import math
import subprocess
from dataclasses import dataclass
from pathlib import Path

HERE = Path(__file__).resolve().parent
PAGE = HERE.parent / "windows.md"
BEGIN, END = "<!-- measured -->\n", "<!-- end -->\n"
LENGTH = 512
ORDER = 16  # of the transform, padded with zeros
PER_BIN = 2**ORDER // LENGTH
FLOOR = -140


@dataclass(frozen=True)
class Window:
    label: str
    function: str
    color: str
    beta: float | None = None


WINDOWS = (
    Window("Bartlett", "veksWinBartlett_64f_I", "#E69F00"),
    Window("Hann", "veksWinHann_64f_I", "#0072B2"),
    Window("Hamming", "veksWinHamming_64f_I", "#009E73"),
    Window("BlackmanStd", "veksWinBlackmanStd_64f_I", "#D55E00"),
    Window("BlackmanOpt", "veksWinBlackmanOpt_64f_I", "#CC79A7"),
    Window("Kaiser, beta 6", "veksWinKaiser_64f_I", "#000000", 6),
)
NO_WINDOW = Window("none", "", "#999999")
KAISERS = tuple(
    Window(f"Kaiser, beta {beta}", "veksWinKaiser_64f_I", color, beta)
    for beta, color in ((2, "#E69F00"), (6, "#000000"), (8.6, "#0072B2"), (14, "#D55E00"))
)


class Library:
    def __init__(self, path):
        self._library = ctypes.CDLL(str(path))
        self._context = ctypes.c_void_p()
        self._call("veksFFTInitAlloc_R_64f", ctypes.byref(self._context), ORDER, 8, 0)

    def _call(self, name, *arguments):
        status = getattr(self._library, name)(*arguments)
        if status != 0:
            raise RuntimeError(f"{name} gives {status}")

    def weights(self, window, length=LENGTH):
        vector = (ctypes.c_double * length)(*[1.0] * length)
        if window.beta is not None:
            alpha = ctypes.c_float(2 * window.beta / (length - 1))
            self._call(window.function, vector, length, alpha)
        elif window.function:
            self._call(window.function, vector, length)
        return list(vector)

    def decibels(self, window):
        """The magnitudes at multiples of 1 / PER_BIN bins, relative to that at 0."""
        size = 2**ORDER
        vector = (ctypes.c_double * (size + 2))(*self.weights(window))
        self._call("veksFFTFwd_RToCCS_64f", vector, vector, self._context, None)
        magnitudes = [math.hypot(*vector[i : i + 2]) for i in range(0, size + 2, 2)]
        return [20 * math.log10(max(m / magnitudes[0], 1e-20)) for m in magnitudes]


def position_below(decibels, level):
    """Where the main lobe comes down to the level, in bins."""
    i = next(i for i, value in enumerate(decibels) if value < level)
    above, below = decibels[i - 1], decibels[i]
    return (i - (level - below) / (above - below)) / PER_BIN


def side_lobes(decibels):
    """Positions in bins and levels of the maxima beside the main lobe."""
    return [
        (i / PER_BIN, decibels[i])
        for i in range(1, len(decibels) - 1)
        if decibels[i - 1] < decibels[i] >= decibels[i + 1]
    ]


def first_minimum(decibels):
    return next(i for i in range(1, len(decibels)) if decibels[i] < decibels[i + 1]) / PER_BIN


def measured_row(library, window):
    decibels = library.decibels(window)
    weights = library.weights(window)
    lobes = side_lobes(decibels)
    near, far = (
        max(level for at, level in lobes if start <= at < start + 2) for start in (16, 64)
    )
    noise = len(weights) * sum(w * w for w in weights) / sum(weights) ** 2
    cells = (
        f"{2 * first_minimum(decibels):.2f}",
        f"{2 * position_below(decibels, -3):.2f}",
        f"{max(level for _, level in lobes):.1f} dB",
        f"{(far - near) / 2:.0f} dB",
        f"{noise:.2f}",
        f"{decibels[PER_BIN // 2]:.2f} dB",
    )
    return f"| {window.label} | " + " | ".join(cells) + " |\n"


def measured_table(library):
    return (
        "| window | main lobe | at -3 dB | highest side lobe | per octave | noise | halfway |\n"
        "|---|---|---|---|---|---|---|\n"
        + "".join(measured_row(library, w) for w in (NO_WINDOW, *WINDOWS[:-1], *KAISERS))
    )


def rewrite_page(table):
    text = PAGE.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    _, after = rest.split(END)
    PAGE.write_text(before + BEGIN + table + END + after, encoding="utf-8")


def data_block(name, points):
    lines = "".join(f"{x:.5g} {y:.5g}\n" for x, y in points)
    return f"${name} << EOD\n{lines}EOD\n"


def curve(library, window):
    weights = library.weights(window, 201)
    return [(n / 200, w) for n, w in enumerate(weights)]


BINS = 20


def spectrum(library, window, steps=16):
    decibels = library.decibels(window)
    step = PER_BIN // steps
    return [(i / PER_BIN, max(decibels[i], FLOOR - 9)) for i in range(0, BINS * PER_BIN + 1, step)]


HEAD = """
set border 3 linecolor '#666666'
set tics nomirror scale 0.5 textcolor '#333333'
set grid linecolor '#DDDDDD' linewidth 1 linetype 1
set style data lines
"""


def plot_of(entries):
    """Lines of (data, title, color)."""
    return "plot " + ", \\\n     ".join(
        f"${data} title '{title}' linecolor '{color}' linewidth 2" for data, title, color in entries
    )


def shapes_script(library):
    blocks = "".join(data_block(f"w{i}", curve(library, w)) for i, w in enumerate(WINDOWS))
    entries = [(f"w{i}", w.label, w.color) for i, w in enumerate(WINDOWS)]
    return (
        HEAD
        + blocks
        + "set key outside right center reverse Left samplen 2 spacing 1.3\n"
        + "set xlabel 'n / (N - 1)'\nset ylabel 'weight'\nset xrange [0:1]\nset yrange [0:1.02]\n"
        + plot_of(entries)
        + "\n"
    )


def spectra_script(library):
    peaks = [peak for peak in side_lobes(library.decibels(NO_WINDOW)) if peak[0] < BINS + 1]
    script = HEAD + data_block("none", peaks)
    script += "set multiplot layout 3, 2 margins 0.085, 0.985, 0.07, 0.955 spacing 0.07, 0.085\n"
    script += f"unset key\nset yrange [{FLOOR}:0]\nset ytics 40\nset xrange [0:{BINS}]\nset xtics 4\n"
    for i, window in enumerate(WINDOWS):
        script += data_block(f"s{i}", spectrum(library, window))
        script += f"set title '{window.label}' offset 0, -0.6\n"
        script += f"set ylabel '{'dB' if i % 2 == 0 else ''}' offset 1\n"
        script += f"set xlabel '{'bins' if i >= 4 else ''}' offset 0, 0.5\n"
        script += plot_of([(f"s{i}", "", window.color)])
        script += f", $none notitle linecolor '{NO_WINDOW.color}' linewidth 1.5 dashtype 2\n"
    return script + "unset multiplot\n"


def kaiser_script(library):
    script = HEAD + "set multiplot layout 1, 2 margins 0.085, 0.905, 0.16, 0.96 spacing 0.1, 0\n"
    script += "unset key\nset xlabel 'n / (N - 1)'\nset ylabel 'weight' offset 1\n"
    for i, window in enumerate(KAISERS):
        script += data_block(f"w{i}", curve(library, window))
        script += data_block(f"s{i}", spectrum(library, window))
    script += "set xrange [0:1]\nset yrange [0:1.02]\n"
    script += plot_of([(f"w{i}", "", w.color) for i, w in enumerate(KAISERS)]) + "\n"
    for window in KAISERS:
        lobes = side_lobes(library.decibels(window))
        level = max(level for at, level in lobes if BINS - 2 <= at <= BINS)
        label = window.label.removeprefix("Kaiser, ")
        script += f"set label '{label}' at {BINS + 0.4}, {level:.1f} textcolor '{window.color}'\n"
    script += f"set xlabel 'bins'\nset ylabel 'dB' offset 1\nset xrange [0:{BINS}]\nset xtics 4\n"
    script += f"set ytics 40\nset yrange [{FLOOR}:0]\n"
    script += plot_of([(f"s{i}", "", w.color) for i, w in enumerate(KAISERS)]) + "\n"
    return script + "unset multiplot\n"


def draw(script, path, size):
    terminal = {
        ".svg": f"svg size {size} dynamic background '#FFFFFF' font 'sans-serif,14'",
        ".png": f"pngcairo size {size} font 'sans,11'",
    }[path.suffix]
    text = f"set terminal {terminal}\nset output '{path}'\n{script}"
    subprocess.run(["gnuplot", "--default-settings"], input=text, text=True, check=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("library", type=Path, help="libveks.so")
    parser.add_argument("--into", type=Path, help="draw PNG there, to look at; change no page")
    options = parser.parse_args()
    library = Library(options.library)
    pictures = {
        "windows": (shapes_script(library), "800, 380"),
        "window-spectra": (spectra_script(library), "800, 780"),
        "window-kaiser": (kaiser_script(library), "800, 340"),
    }
    for name, (script, size) in pictures.items():
        suffix = ".png" if options.into else ".svg"
        draw(script, (options.into or HERE) / (name + suffix), size)
    if options.into:
        print(measured_table(library), end="")
    else:
        rewrite_page(measured_table(library))


if __name__ == "__main__":
    main()
