"""Writes the table of descriptors that the contract sweep works through.

A parameter gets its role from its type and name. What cannot be classified that way needs an entry
in the table of exceptions; without one the build stops here, so that no function is left out.
"""

import argparse
import re
import runpy
import sys
from pathlib import Path

from declarations import DeclarationError, parse_files
from rules import (
    LeastLength,
    LengthFirst,
    MayBeNull,
    NoPartner,
    NotSwept,
    ScalarsFirst,
    SourceAtStart,
    Span,
    TargetsDiffer,
    Values,
)

SAMPLE = r"Vek\d+[usf]c?"
ROLES = (
    (rf"const {SAMPLE}\*", r"pSrc(?!Dst)\w*", "source"),
    (rf"{SAMPLE}\*", r"pDst\w*", "destination"),
    (rf"{SAMPLE}\*", r"pSrcDst\w*", "sourceDestination"),
    (rf"({SAMPLE}|int)\*", r"p(Sum|Mean|StdDev|Min|Max|Indx|Norm|Dp|Order|Val)", "result"),
    (r"int", r"len|lenDst", "length"),
    (SAMPLE, r"val", "scalar"),
)


def element_of(parameter):
    return parameter.type.removeprefix("const ").rstrip("*")


class RuleBook:
    """The table of exceptions; notes which entries have been of use."""

    def __init__(self, rules):
        self.rules = rules
        self._used = set()

    def find(self, kind, function, parameter=None):
        for rule in self.rules:
            if not isinstance(rule, kind) or not re.fullmatch(rule.functions, function.name):
                continue
            if parameter is None or re.fullmatch(rule.parameters, parameter.name):
                self._used.add(id(rule))
                return rule
        return None

    def check_all_used(self):
        for rule in self.rules:
            if id(rule) not in self._used:
                raise DeclarationError(f"no function needs the exception {rule}")


class Swept:
    """A function of the sweep with the roles of its parameters."""

    def __init__(self, function, book):
        self.function = function
        self.name = function.name
        self.roles = [self._role(parameter, book) for parameter in function.parameters]
        if function.result != "VekStatus" or self.roles.count("length") != 1:
            raise DeclarationError(f"{self.name} has no vector shape; it needs an exception")

    def _role(self, parameter, book):
        for type_pattern, name_pattern, role in ROLES:
            by_type = re.fullmatch(type_pattern, parameter.type)
            if by_type and re.fullmatch(name_pattern, parameter.name):
                return role
        if parameter.type.count("*") == 1 and book.find(Span, self.function, parameter):
            return "source" if parameter.type.startswith("const ") else "destination"
        if "*" not in parameter.type and book.find(Values, self.function, parameter):
            return "scalar"
        raise DeclarationError(
            f"{self.name}: cannot classify '{parameter.type} {parameter.name}'; "
            "it needs a familiar name or an exception"
        )

    def inputs(self):
        """The types of the vectors that it reads and of its scalars, each in order."""
        both = list(zip(self.roles, map(element_of, self.function.parameters)))
        vectors = [element for role, element in both if role.startswith("source")]
        return vectors, [element for role, element in both if role == "scalar"]

    def is_in_place(self):
        return "sourceDestination" in self.roles or self.out_of_place_name() != self.name

    def out_of_place_name(self):
        return re.sub(r"_I(?=_|$)|(?<=_)I(?=Sfs$)", "", self.name)


def partner_index(swept, table, book):
    """Gives the position of the out-of-place form of `swept`, or None if there need not be one."""
    if not swept.is_in_place() or book.find(NoPartner, swept.function):
        return None
    name = swept.out_of_place_name()
    inputs = swept.inputs()
    if book.find(SourceAtStart, swept.function):
        inputs = ([element.removesuffix("c") for element in inputs[0]], inputs[1])
    for index, other in enumerate(table):
        if other.name == name and other is not swept and other.inputs() == inputs:
            return index
    raise DeclarationError(f"{swept.name} is the in-place form of nothing; it needs an exception")


def parameter_text(swept, position, book):
    function, parameter = swept.function, swept.function.parameters[position]
    role, arguments = swept.roles[position], [f'"{parameter.name}"']
    if role == "length":
        return f"length({arguments[0]})"
    if role == "scalar":
        rule = book.find(Values, function, parameter)
        if rule:
            number = book.rules.index(rule)
            arguments += [f"kValid{number}"] + [f"kBad{number}"] * bool(rule.bad)
    else:
        rule = book.find(Span, function, parameter)
        if rule:
            arguments.append(f"Span{{{rule.per_len}, {rule.fixed}, {rule.per_two}}}")
    text = f"{role}<{element_of(parameter)}>({', '.join(arguments)})"
    return f"mayBeNull({text})" if book.find(MayBeNull, function, parameter) else text


def check_order(swept, book):
    if book.find(LengthFirst, swept.function):
        return "CheckOrder::kLengthFirst"
    if book.find(ScalarsFirst, swept.function):
        return "CheckOrder::kScalarsFirst"
    return "CheckOrder::kPointersFirst"


def least_length(swept, book):
    rule = book.find(LeastLength, swept.function)
    return rule.least if rule else 1


def descriptor_text(swept, table, book):
    partner = partner_index(swept, table, book)
    fields = [
        f'"{swept.name}"',
        f"call<{swept.name}>",
        "nullptr" if partner is None else f"&kFunctions[{partner}]",
        "false" if book.find(TargetsDiffer, swept.function) else "true",
        check_order(swept, book),
        str(least_length(swept, book)),
        str(len(swept.roles)),
    ]
    parameters = [parameter_text(swept, position, book) for position in range(len(swept.roles))]
    return f"    {{{', '.join(fields)},\n     {{{', '.join(parameters)}}}}},\n"


def values_text(number, rule):
    valid = ", ".join(str(float(value)) for value in rule.valid)
    text = f"constexpr double kValid{number}[] = {{{valid}}};\n"
    bad = [f"{{{float(v)}, {status}}}" for status, values in rule.bad.items() for v in values]
    if bad:
        text += f"constexpr BadValue kBad{number}[] = {{{', '.join(bad)}}};\n"
    return text


def generate(functions, rules, includes, accessor):
    """Gives the C++ source that defines `accessor`, a function that returns the table."""
    book = RuleBook(rules)
    table = [Swept(f, book) for f in functions if not book.find(NotSwept, f)]
    descriptors = "".join(descriptor_text(swept, table, book) for swept in table)
    book.check_all_used()
    values = "".join(values_text(n, r) for n, r in enumerate(rules) if isinstance(r, Values))
    return (
        "// Written by tests/contract/generate.py.\n"
        '#include "contract/descriptor.h"\n'
        + "".join(f'#include "{include}"\n' for include in includes)
        + "\nnamespace veks::contract {\nnamespace {\n\n"
        + f"{values}\nconstexpr Descriptor kFunctions[{len(table)}] = {{\n{descriptors}}};\n"
        + "\n}  // namespace\n\n"
        + f"Table {accessor}() {{\n  return kFunctions;\n}}\n\n}}  // namespace veks::contract\n"
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--exceptions", type=Path, required=True, help="the table of exceptions")
    parser.add_argument("--accessor", required=True, help="name of the C++ function to define")
    parser.add_argument("--include-dir", type=Path, required=True, help="where the headers lie")
    parser.add_argument("--output", type=Path, required=True)
    parser.add_argument("headers", type=Path, nargs="+")
    options = parser.parse_args()
    rules = runpy.run_path(str(options.exceptions))["EXCEPTIONS"]
    includes = [header.relative_to(options.include_dir) for header in options.headers]
    try:
        source = generate(parse_files(options.headers), rules, includes, options.accessor)
    except DeclarationError as error:
        sys.exit(f"error: {error}")
    options.output.write_text(source, encoding="utf-8")


if __name__ == "__main__":
    main()
