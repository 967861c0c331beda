#!/usr/bin/env python3
"""Turns the JSON output of veks_bench into tables.

Times are medians in ns per call; GB/s counts the bytes that veks reads and writes, GFLOPS the
operations of a fast Fourier transform, 5 N log2 N (2.5 of real signals). The ratio is the
time of the best peer / the time of veks, so above 1 veks is faster; "+-" is half the interquartile
range of that ratio over the rounds. "stream" is the same ratio for a loop that only moves as many
bytes. A peer with "~" rounds differently: its results are close, not the same.
"""

import argparse
import itertools
import json
import math
import sys

MARK_BELOW = 0.95
OWN_COUNTERS = {"veks_ns", "overhead_ns"}
YARDSTICK = "stream"


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
    return [name for name in names if name != YARDSTICK]


def parts_of(entry):
    """The name without what Google Benchmark appends: function, size, alignment."""
    return entry["name"].split("/")[:3]


def is_low(entry):
    return entry["ratio"] < MARK_BELOW


def has_operations(entry):
    return "gflops" in entry


def rate(entry, decimals):
    value = entry["gflops"] if has_operations(entry) else entry["bytes_per_second"] / 1e9
    return f"{value:.{decimals}f}"


def comparison_row(entry, peers):
    return [
        *parts_of(entry),
        number(entry["veks_ns"]),
        rate(entry, 1),
        *(number(entry[peer + "_ns"]) if peer + "_ns" in entry else "" for peer in peers),
        entry["label"],
        f"{entry['ratio']:.2f}",
        f"{entry['spread'] * entry['ratio'] / 2:.2f}",
        f"{entry[YARDSTICK + '_ratio']:.2f}" if YARDSTICK + "_ratio" in entry else "",
        "LOW" if is_low(entry) else "",
    ]


def has_loop(entry):
    """Functions whose peers are those of the C library stand in tables of their own."""
    return bool({"loop", "loop~"} & set(peers_of(entry)))


def print_comparisons(entries):
    for key, group in itertools.groupby(entries, lambda e: (has_loop(e), has_operations(e))):
        group = list(group)
        unit = "GFLOPS" if key[1] else "GB/s"
        peers = list(dict.fromkeys(peer for entry in group for peer in peers_of(entry)))
        header = ["function", "size", "vectors", "veks", unit, *peers, "best peer", "ratio"]
        rows = [comparison_row(entry, peers) for entry in group]
        print_table([*header, "+-", YARDSTICK, ""], rows, 3)
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
