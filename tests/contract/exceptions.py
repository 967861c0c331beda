"""What the headers do not tell the contract sweep. An entry that matches nothing is an error."""

from rules import INT_MIN, LengthFirst, NoPartner, NotSwept, Span, Values

EXCEPTIONS = (
    NotSwept(
        r"vekGet\w+|vekSet\w+|veksGetLibVersion|veksMalloc_\w+|veksFree",
        reason="services: no vector result; see tests/core/services_test.cpp",
    ),
    Span(
        r"veksSwapBytes_24u(_I)?",
        parameters=r"p\w+",
        per_len=3,
        reason="a packed sample is three elements of Vek8u",
    ),
    Span(
        r"veksConvert_24[su]32[suf]",
        parameters=r"pSrc",
        per_len=3,
        reason="a packed sample is three elements of Vek8u",
    ),
    Span(
        r"veksConvert_32[suf]24[su]_Sfs",
        parameters=r"pDst",
        per_len=3,
        reason="a packed sample is three elements of Vek8u",
    ),
    LengthFirst(
        r"veks(Add|Sub)_(32|64)fc(_I)?",
        reason="the real form on twice the length, after a check of the length",
    ),
    NoPartner(
        r"veksAddProduct_\w+",
        reason="adds to its destination; there is no other form",
    ),
    Values(
        r"veks[LR]ShiftC_\w+",
        parameters=r"val",
        valid=range(41),
        bad={"vekErrShift": (-1, INT_MIN)},
        reason="bit counts; those beyond the element width are valid",
    ),
    Values(
        r"veksConvert_\w+",
        parameters=r"rndMode",
        valid=(0, 1, INT_MIN),
        reason="0 truncates, every other value rounds to nearest",
    ),
    Values(
        r"veksConvert_\w+_Sfs",
        parameters=r"scaleFactor",
        valid=(0, 1, -1, 5, -9, 60, -60, 128, -128, 1100, INT_MIN, 2**31 - 1),
        reason="every value is valid; these take all paths",
    ),
)
