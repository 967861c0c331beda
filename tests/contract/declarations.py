"""Reads the function declarations of C headers."""

import re
from dataclasses import dataclass
from pathlib import Path


class DeclarationError(Exception):
    """A declaration or a rule that the contract checks cannot make sense of."""


@dataclass(frozen=True)
class Parameter:
    type: str
    name: str


@dataclass(frozen=True)
class Function:
    name: str
    result: str
    parameters: tuple[Parameter, ...]


def _normalised(type_text):
    return re.sub(r"\s*\*", "*", " ".join(type_text.split()))


def _parameter(text):
    match = re.fullmatch(r"(.*[\s*])(\w+)", text.strip(), re.DOTALL)
    if not match:
        raise DeclarationError(f"cannot read the parameter '{text.strip()}'")
    return Parameter(_normalised(match[1]), match[2])


def parse(text):
    """Gives the functions that `text` declares, in order."""
    text = re.sub(r"/\*.*?\*/|//[^\n]*", " ", text, flags=re.DOTALL)
    text = re.sub(r"^[ \t]*#(?:\\\n|[^\n])*", "", text, flags=re.MULTILINE)
    functions = []
    for declaration in re.findall(r"\bVEKS_API\b([^;]*);", text):
        match = re.fullmatch(r"(.*[\s*])(\w+)\s*\(([^()]*)\)\s*", declaration, re.DOTALL)
        if not match:
            raise DeclarationError(f"cannot read the declaration '{' '.join(declaration.split())}'")
        listed = match[3].strip()
        parameters = () if listed in ("", "void") else tuple(map(_parameter, listed.split(",")))
        functions.append(Function(match[2], _normalised(match[1]), parameters))

    known = [function.name for function in functions]
    for name in re.findall(r"\b(veks?[A-Z]\w*)\s*\(", text):
        if name not in known:
            raise DeclarationError(f"{name} is declared without VEKS_API")
    return functions


def parse_files(headers):
    """Gives the functions of all headers."""
    functions = []
    for header in headers:
        try:
            functions += parse(Path(header).read_text(encoding="utf-8"))
        except DeclarationError as error:
            raise DeclarationError(f"{header}: {error}") from None
    return functions
