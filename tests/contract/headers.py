"""Compiles each header on its own, included twice, in the languages that users write."""

import argparse
import shlex
import subprocess
import sys
from pathlib import Path

LANGUAGES = (("c", "c99"), ("c", "c11"), ("c++", "c++11"), ("c++", "c++20"))
FLAGS = ("-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only")


def check(compilers, include_dir, header):
    """Gives what the compilers say about a header; `compilers` has a command for each language."""
    source = f'#include "{header.relative_to(include_dir)}"\n' * 2
    findings = []
    for language, standard in LANGUAGES:
        command = [*shlex.split(compilers[language]), *FLAGS, f"-I{include_dir}"]
        command += [f"-x{language}", f"-std={standard}", "-"]
        result = subprocess.run(command, input=source, capture_output=True, text=True)
        if result.returncode != 0:
            findings.append(f"{header} as {standard}:\n{result.stderr}")
    return findings


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cc", required=True, help="the C compiler and its options")
    parser.add_argument("--cxx", required=True, help="the C++ compiler and its options")
    parser.add_argument("--include-dir", type=Path, required=True)
    parser.add_argument("headers", type=Path, nargs="+")
    options = parser.parse_args()
    compilers = {"c": options.cc, "c++": options.cxx}
    findings = [
        finding
        for header in options.headers
        for finding in check(compilers, options.include_dir, header)
    ]
    sys.exit("\n".join(findings) or 0)


if __name__ == "__main__":
    main()
