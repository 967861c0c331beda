"""Compares the exports of a shared library with its headers, and its imports with a list.

A missing or an undeclared export breaks the binary interface. An import tells what the library does
behind its caller's back: it must not print, exit, abort, lock or throw.
"""

import argparse
import re
import subprocess
import sys
from pathlib import Path

from declarations import parse_files

IMPORTS = {
    r"malloc|free": "the Malloc functions, states and work buffers",
    r"mem(cpy|move|set|cmp)|bcmp": "made by compilers from loops and copies",
    r"sysconf": "the size of the last cache, asked for once when the library is loaded",
    r"omp_get_\w+|GOMP_parallel|__kmpc_\w+": "threads of filters",
    r"sin|cos|sincos": "tables of transforms, the optimal Blackman window",
    r"floor": "phases of tones, where it is no instruction of the baseline",
    r"expl": "the constant factor of Kaiser windows, once for each call",
    r"__cxa_finalize|__gmon_start__|_ITM_\w+": "start-up code of every shared library",
    r"__[at]san_\w+|__ubsan_\w+|_ZTVN10__cxxabiv1\w+": "builds with sanitizers",
}


def symbols(nm, library, kind):
    command = [nm, "--dynamic", kind, "--format=posix", str(library)]
    listing = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return {line.split()[0].split("@")[0] for line in listing.splitlines()}


def check(nm, library, headers):
    """Gives the findings, one line each."""
    declared = {function.name for function in parse_files(headers)}
    exported = symbols(nm, library, "--defined-only")
    imported = symbols(nm, library, "--undefined-only")
    allowed = re.compile("|".join(IMPORTS))
    return (
        [f"declared, but not exported: {name}" for name in sorted(declared - exported)]
        + [f"exported, but not declared: {name}" for name in sorted(exported - declared)]
        + [f"imported: {name}" for name in sorted(imported) if not allowed.fullmatch(name)]
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--library", type=Path, required=True)
    parser.add_argument("headers", type=Path, nargs="+")
    options = parser.parse_args()
    findings = check(options.nm, options.library, options.headers)
    sys.exit("\n".join(findings) or 0)


if __name__ == "__main__":
    main()
