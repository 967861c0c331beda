#!/usr/bin/env python3
"""Turns the JSON output of veks_bench into tables.

Times are medians in ns per call; GB/s counts the bytes that veks reads and writes. The ratio is the
time of the best peer / the time of veks, so above 1 veks is faster; "+-" is half the interquartile
range of that ratio over the rounds.
"""

import argparse
import itertools
import json
import math
import sys

MARK_BELOW = 0.95
OWN_COUNTERS = {"veks_ns", "overhead_ns"}


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
    return [k.removesuffix("_ns") for k in entry if k.endswith("_ns") and k not in OWN_COUNTERS]


def parts_of(entry):
    """The name without what Google Benchmark appends: function, size, alignment."""
    return entry["name"].split("/")[:3]


def is_low(entry):
    return entry["ratio"] < MARK_BELOW


def comparison_row(entry, peers):
    return [
        *parts_of(entry),
        number(entry["veks_ns"]),
        f"{entry['bytes_per_second'] / 1e9:.1f}",
        *(number(entry[peer + "_ns"]) for peer in peers),
        entry["label"],
        f"{entry['ratio']:.2f}",
        f"{entry['spread'] * entry['ratio'] / 2:.2f}",
        "LOW" if is_low(entry) else "",
    ]


def print_comparisons(entries):
    for peers, group in itertools.groupby(entries, peers_of):
        header = ["function", "size", "alignment", "veks", "GB/s", *peers, "best peer", "ratio", "+-"]
        print_table(header + [""], [comparison_row(entry, peers) for entry in group], 3)
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
    """Prints one Markdown row per function and alignment: GB/s and ratio for each size."""
    sizes = list(dict.fromkeys(parts_of(entry)[1] for entry in entries))
    cells = {}
    for entry in entries:
        function, size, alignment = parts_of(entry)
        text = f"{entry['bytes_per_second'] / 1e9:.0f} ({entry['ratio']:.2f})"
        cells.setdefault((function, alignment), {})[size] = text
    print("| function | vectors |" + "".join(f" {size} |" for size in sizes))
    print("|---|---|" + "---|" * len(sizes))
    for (function, alignment), row in cells.items():
        texts = "".join(f" {row.get(size, '')} |" for size in sizes)
        print(f"| `{function}` | {alignment} |{texts}")


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
