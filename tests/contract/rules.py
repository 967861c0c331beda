"""The kinds of entries in a table of exceptions. Names are regular expressions, matched in full."""

from collections.abc import Mapping, Sequence
from dataclasses import dataclass, field

INT_MIN = -(2**31)
INT_MAX = 2**31 - 1


@dataclass(frozen=True)
class Rule:
    """`functions` differ from what their declarations tell, for the given reason."""

    functions: str
    reason: str


@dataclass(frozen=True)
class NotSwept(Rule):
    """No vector shape: tested elsewhere."""


@dataclass(frozen=True)
class NoPartner(Rule):
    """In-place functions without an out-of-place function that they equal."""


@dataclass(frozen=True)
class SourceAtStart(Rule):
    """In-place functions that find the real source of their out-of-place form at the start of the
    complex destination."""


@dataclass(frozen=True)
class TargetsDiffer(Rule):
    """Results may differ between SIMD targets in the last bits."""


@dataclass(frozen=True)
class LengthFirst(Rule):
    """The length is checked before the pointers."""


@dataclass(frozen=True)
class ScalarsFirst(Rule):
    """Scalars are checked before the pointers."""


@dataclass(frozen=True, kw_only=True)
class LeastLength(Rule):
    """Lengths below `least` are errors, not only those below 1."""

    least: int


@dataclass(frozen=True, kw_only=True)
class ParameterRule(Rule):
    parameters: str


@dataclass(frozen=True, kw_only=True)
class Span(ParameterRule):
    """Pointers to `per_len * len + fixed + per_two * (len // 2)` elements instead of `len`."""

    per_len: int = 0
    fixed: int = 0
    per_two: int = 0


@dataclass(frozen=True, kw_only=True)
class MayBeNull(ParameterRule):
    """Pointers that a caller may leave out."""


@dataclass(frozen=True, kw_only=True)
class MayBeNull(ParameterRule):
    """Pointers that a caller may leave out."""


@dataclass(frozen=True, kw_only=True)
class Values(ParameterRule):
    """Scalars with their valid values, and bad ones by the name of their status."""

    valid: Sequence
    bad: Mapping[str, Sequence] = field(default_factory=dict)
