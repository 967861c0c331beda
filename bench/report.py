#!/usr/bin/env python3
"""Turns the JSON output of veks_bench into tables.

Times are medians in ns per call; GB/s counts the bytes that veks reads and writes, GFLOPS the
operations of a fast Fourier transform, 5 N log2 N (2.5 of real signals); of filters it stands ns per
sample. The ratio is the
time of the best peer / the time of veks, so above 1 veks is faster; "+-" is half the interquartile
range of that ratio over the rounds. "stream" is the same ratio for a loop that only moves as many
bytes. "peak" is the same ratio for as many multiply-adds in registers alone, the fraction of the
processor's peak that a filter reaches; "own32f" that for the filter of Vek32f with as many taps.
A peer with "~" rounds differently: its results are close, not the same.
"""

import argparse
import itertools
import json
import math
import sys

MARK_BELOW = 0.95
OWN_COUNTERS = {"veks_ns", "overhead_ns"}
YARDSTICKS = ("stream", "peak", "own32f")


def number(ns):
    return f"{ns:,.0f}" if ns >= 10000 else f"{ns:.1f}" if ns >= 100 else f"{ns:.2f}"


def print_table(header, rows, text_columns):
    """Prints rows of strings, the first text_columns of them flush left."""
    widths = [max(map(len, column)) for column in zip(header, *rows)]
    for row in [header, ["-" * width for width in widths], *rows]:
        cells = (
            cell.ljust(width) if i < text_columns else cell.rjust(width)
            for i, (cell, width) in enumerate(zip(row, widths))
        )
        print("  ".join(cells).rstrip())
    print()


def peers_of(entry):
    names = [k.removesuffix("_ns") for k in entry if k.endswith("_ns") and k not in OWN_COUNTERS]
    return [name for name in names if name not in YARDSTICKS]


def parts_of(entry):
    """The name without what Google Benchmark appends: function, size, alignment."""
    return entry["name"].split("/")[:3]


def is_low(entry):
    return entry["ratio"] < MARK_BELOW


def unit_of(entry):
    if "ns_per_sample" in entry:
        return "ns/sample"
    return "GFLOPS" if "gflops" in entry else "GB/s"


def rate(entry, decimals):
    unit = unit_of(entry)
    if unit == "ns/sample":
        return f"{entry['ns_per_sample']:.3g}"
    value = entry["gflops"] if unit == "GFLOPS" else entry["bytes_per_second"] / 1e9
    return f"{value:.{decimals}f}"


def yardstick_of(entry):
    """Its name, where there is one."""
    return next((name for name in YARDSTICKS if name + "_ratio" in entry), "")


def comparison_row(entry, peers):
    return [
        *parts_of(entry),
        number(entry["veks_ns"]),
        rate(entry, 1),
        *(number(entry[peer + "_ns"]) if peer + "_ns" in entry else "" for peer in peers),
        entry["label"],
        f"{entry['ratio']:.2f}",
        f"{entry['spread'] * entry['ratio'] / 2:.2f}",
        f"{entry[yardstick_of(entry) + '_ratio']:.2f}" if yardstick_of(entry) else "",
        "LOW" if is_low(entry) else "",
    ]


def has_loop(entry):
    """Functions whose peers are those of the C library stand in tables of their own."""
    return bool({"loop", "loop~"} & set(peers_of(entry)))


def table_of(entry):
    unit = unit_of(entry)
    yardstick = yardstick_of(entry) if unit == "ns/sample" else YARDSTICKS[0]
    return has_loop(entry), unit, yardstick


def print_comparisons(entries):
    for (_, unit, yardstick), group in itertools.groupby(entries, table_of):
        group = list(group)
        peers = list(dict.fromkeys(peer for entry in group for peer in peers_of(entry)))
        header = ["function", "size", "vectors", "veks", unit, *peers, "best peer", "ratio"]
        rows = [comparison_row(entry, peers) for entry in group]
        print_table([*header, "+-", yardstick, ""], rows, 3)
    if not entries:
        return
    lowest = min(entries, key=lambda entry: entry["ratio"])
    mean = math.exp(math.fsum(math.log(entry["ratio"]) for entry in entries) / len(entries))
    print(
        f"{len(entries)} comparisons: lowest ratio {lowest['ratio']:.2f}"
        f" ({' '.join(parts_of(lowest))} against {lowest['label']}),"
        f" geometric mean {mean:.2f}, {sum(map(is_low, entries))} below {MARK_BELOW}"
    )


def print_summary(entries):
    """Prints Markdown tables, one for functions of the same sizes: GB/s (GFLOPS) and ratio
    for each size."""
    rows = {}
    for entry in entries:
        function, size, alignment = parts_of(entry)
        text = f"{rate(entry, 0)} ({entry['ratio']:.2f})"
        rows.setdefault((function, alignment), {})[size] = text
    for sizes in dict.fromkeys(tuple(row) for row in rows.values()):
        print("| function | vectors |" + "".join(f" {size} |" for size in sizes))
        print("|---|---|" + "---|" * len(sizes))
        for (function, alignment), row in rows.items():
            if tuple(row) == sizes:
                print(f"| `{function}` | {alignment} | " + " | ".join(row.values()) + " |")
        print()


def print_overheads(entries):
    if not entries:
        return
    rows = [
        [*parts_of(e)[1:], number(e["veks_ns"]), number(e["empty_ns"]), f"{e['overhead_ns']:.2f}"]
        for e in entries
    ]
    print_table(["call overhead", "case", "veks", "empty", "overhead ns"], rows, 2)


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("file", help="from --benchmark_out with --benchmark_out_format=json")
    parser.add_argument(
        "--summary", action="store_true", help="a Markdown table of GB/s (ratio) instead"
    )
    options = parser.parse_args()
    path = options.file
    try:
        with open(path, encoding="utf-8") as file:
            data = json.load(file)
    except (OSError, ValueError) as error:  # a run without a matching benchmark leaves no JSON
        sys.exit(f"report.py: {path}: {error}")

    context = data["context"]
    load = ", ".join(f"{value:.2f}" for value in context["load_avg"])
    print(f"{context['date']}, target {context['veks_target']}, core {context['core']}, load {load}\n")

    entries = [e for e in data["benchmarks"] if e["run_type"] == "iteration"]
    print_overheads([e for e in entries if "overhead_ns" in e])
    show = print_summary if options.summary else print_comparisons
    show([e for e in entries if "ratio" in e])

    failed = [e for e in entries if e.get("error_occurred")]
    for entry in failed:
        print(f"FAILED {' '.join(parts_of(entry))}: {entry['error_message']}")
    return 1 if failed or not entries else 0


if __name__ == "__main__":
    sys.exit(main())
