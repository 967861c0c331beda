"""What the headers do not tell the contract sweep. An entry that matches nothing is an error."""

from rules import INT_MAX, INT_MIN, LengthFirst, NoPartner, NotSwept, ScalarsFirst, Span, Values

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
    ScalarsFirst(
        r"veksDivC_(32|64)fc?(_I)?",
        reason="the constant is checked before it is inverted, the rest by the multiplication",
    ),
    Values(
        r"veksDivC_\w+",
        parameters=r"val",
        valid=(1, 3, 100, 2),
        bad={"vekErrDivByZero": (0,)},
        reason="divisors",
    ),
    Values(
        r"veksDivCRev_\w+",
        parameters=r"val",
        valid=(1, 3, 100, 2),
        reason="a zero dividend fills without a look at the source; see tests/vector/quotients_test.cpp",
    ),
    NoPartner(
        r"veksAddProduct_\w+",
        reason="adds to its destination; there is no other form",
    ),
    NotSwept(
        r"veksJoin_32f16s_D2L",
        reason="an array of pointers; see tests/vector/join_test.cpp",
    ),
    NoPartner(
        r"veks(AddC|SubC|MulC)_16s_I|veksAdd_16s32s_I",
        reason="there is no out-of-place form without a scale factor",
    ),
    Values(
        r".*_I?Sfs",
        parameters=r"scaleFactor",
        valid=(0, 1, 3, -2, -9, 60, -60, 128, -128, 1100, INT_MIN, INT_MAX),
        reason="every value is valid; these take all paths",
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
)
