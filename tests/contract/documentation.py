"""Checks that each exported function is documented: on its own or in the group of its operation, with
what it returns unless that is nothing."""

import argparse
import re
import sys
from pathlib import Path

from declarations import parse

COMMENT_OR_DECLARATION = re.compile(r"/\*\*.*?\*/|\bVEKS_API\b[^;]*;", re.DOTALL)


def check(text):
    """Gives the names of the functions in `text` whose documentation is missing or incomplete."""
    text = re.sub(r"^[ \t]*#(?:\\\n|[^\n])*", "", text, flags=re.MULTILINE)
    group, own, missing = "", "", []
    for token in COMMENT_OR_DECLARATION.findall(text):
        if not token.startswith("/**"):
            (function,) = parse(token)
            documentation = own or group
            returns = function.result == "void" or "@return" in documentation
            if not documentation or not returns:
                missing.append(function.name)
            own = ""
        elif "@}" in token:
            group = ""
        elif "@{" in token:
            group, own = token, ""
        else:
            own = token
    return missing


def main():
    parser = argparse.ArgumentParser(description=" ".join(__doc__.split()))
    parser.add_argument("headers", type=Path, nargs="+")
    findings = [
        f"{header}: {name} is not documented, or not what it returns"
        for header in parser.parse_args().headers
        for name in check(header.read_text(encoding="utf-8"))
    ]
    sys.exit("\n".join(findings) or 0)


if __name__ == "__main__":
    main()
