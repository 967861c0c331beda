"""What the headers do not tell the contract sweep. An entry that matches nothing is an error."""

from rules import (
    INT_MAX,
    INT_MIN,
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

EXCEPTIONS = (
    NotSwept(
        r"vekGet\w+|vekSet\w+|veksGetLibVersion|veksMalloc_\w+|veksFree",
        reason="services: no vector result; see tests/core/services_test.cpp",
    ),
    NotSwept(
        r"veksFFT(InitAlloc|Free|GetBufSize)_[CR]_\w+",
        reason="contexts; see tests/transform/fft_contexts_test.cpp",
    ),
    NotSwept(
        r"veksFFT(Fwd|Inv)_(CToC|RTo(Pack|Perm|CCS)|(Pack|Perm|CCS)ToR)_\w+",
        reason="a context has the length; see tests/transform/fft_calls_test.cpp",
    ),
    NotSwept(
        r"veks(Tone|Triangle)\w+",
        reason="a phase or a state goes in and out; see tests/gen",
    ),
    NotSwept(
        r"veksFIRGen\w+",
        reason="parameters first, and a least length; see tests/filter/design_test.cpp",
    ),
    NotSwept(
        r"veksFIR(GetStateSize|Init|InitAlloc|Free|(Get|Set)(Taps|DlyLine))(\d|_)\w+",
        reason="states; see tests/filter/fir_states_test.cpp",
    ),
    NotSwept(
        r"veksFIR(One)?(\d+[sf]c?)?_\d+[sf]c?(_I|_I?Sfs)?",
        reason="a state has the taps and the delay line; see tests/filter/fir_values_test.cpp",
    ),
    NotSwept(
        r"veksFIR(One)?(\d+[sf]c?)?_Direct_\w+",
        reason="the index is memory that has to fit the number of taps, and vectors, lengths and "
        "taps are checked in turns; see tests/filter/fir_direct_test.cpp",
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
    NoPartner(
        r"veksMulPackConj_\w+",
        reason="multiplies its destination; there is no other form",
    ),
    Span(
        r"veksConjCCS_\w+",
        parameters=r"pSrc",
        fixed=2,
        per_two=2,
        reason="len / 2 + 1 complex values, rounded down: a spectrum from 0 to its middle",
    ),
    SourceAtStart(
        r"veksConj(Pack|Perm|CCS)_\d+[sf]c_I",
        reason="a packed spectrum becomes the full one",
    ),
    MayBeNull(
        r"veks(Min|Max)Indx_\w+",
        parameters=r"pIndx",
        reason="the value alone may be asked for",
    ),
    NoPartner(
        r"veks(Min|Max)Every_\w+",
        reason="exist in place only",
    ),
    LengthFirst(
        r"veksMaxOrder_\w+",
        reason="so documented",
    ),
    NotSwept(
        r"veksJoin_32f16s_D2L",
        reason="an array of pointers; see tests/vector/join_test.cpp",
    ),
    NoPartner(
        r"veks(AddC|SubC|MulC)_16s_I|veksAdd_16s32s_I",
        reason="there is no out-of-place form without a scale factor",
    ),
    NoPartner(
        r"veksSort(Ascend|Descend)_\w+",
        reason="sorting is in place only",
    ),
    Values(
        r".*_I?Sfs",
        parameters=r"scaleFactor",
        valid=(0, 1, 3, -2, -6, -7, -9, 60, -60, 128, -128, 1100, INT_MIN, INT_MAX),
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
    Values(
        r"veksNormalize_(32|64)fc?(_I)?",
        parameters=r"vDiv",
        valid=(3, -0.75, 1e9),
        bad={"vekErrDivByZero": (0, -0.0)},
        reason="divisors",
    ),
    Values(
        r"veksNormalize_16sc?_I?Sfs",
        parameters=r"vDiv",
        valid=(1, -3, 700, INT_MAX, INT_MIN),
        bad={"vekErrDivByZero": (0,)},
        reason="divisors",
    ),
    Values(
        r"veksNormalize_\w+",
        parameters=r"vSub",
        valid=(0, 1, -700, 20000),
        reason="any value is valid",
    ),
    Values(
        r"veksThreshold_LTValGTVal_\w+",
        parameters=r"levelLT",
        valid=(-1000, 0),
        bad={"vekErrThreshBounds": (3000,)},
        reason="not above levelGT",
    ),
    Values(
        r"veksThreshold_LTValGTVal_\w+",
        parameters=r"levelGT",
        valid=(0, 2000),
        bad={"vekErrThreshBounds": (-3000,)},
        reason="not below levelLT",
    ),
    Values(
        r"veksThreshold(_(LT|GT)(Val)?)?_\d+[sf]c(_I)?|veksThreshold_(LTAbs|GTAbs|LTInv)_\w+",
        parameters=r"level",
        valid=(0, 1, 2000, 20000),
        bad={"vekErrThreshNegLevel": (-1, -20000)},
        reason="levels of magnitudes",
    ),
    Values(
        r"veksThreshold\w*",
        parameters=r"level|value\w*",
        valid=(0, 1, -2000, 20000),
        reason="any value is valid",
    ),
    Values(
        r"veksThreshold_\w+",
        parameters=r"relOp",
        valid=(0, 4),
        bad={"vekErrBadArg": (1, 2, 3, 5, -1, INT_MIN)},
        reason="one of two comparisons",
    ),
    LeastLength(
        r"veksStdDev_\w+",
        least=2,
        reason="one element has no deviation",
    ),
    TargetsDiffer(
        r"veks(Sum|Mean)_(32fc|64fc?|32f)|veksStdDev_(32|64)f|veksDotProd_\d+f\w*",
        reason="partial sums for each lane of a vector; accurate sums of 32f are the same",
    ),
    Values(
        r"veks(Sum|Mean|StdDev)_32f",
        parameters=r"hint",
        valid=(0, 1, 2, INT_MIN),
        reason="1 is the fast kernel, every other value the accurate one",
    ),
    LeastLength(
        r"veksWin(Bartlett|Hann|Hamming|Blackman(Std|Q15)?)_\w+",
        least=3,
        reason="two ends and a middle",
    ),
    LeastLength(
        r"veksWinBlackmanOpt_\w+",
        least=4,
        reason="its alpha is infinite for 3",
    ),
    LengthFirst(
        r"veksWinBlackmanOpt_\w+",
        reason="so documented",
    ),
    NoPartner(
        r"veksWinBlackmanQ15_16s_ISfs",
        reason="the only window with a scale factor",
    ),
    TargetsDiffer(
        r"veksWin\w+",
        reason="fused operations where there are any",
    ),
    Values(
        r"veksWinBlackman_\w+",
        parameters=r"alpha",
        valid=(-0.16, 0, -0.25, -0.3, 0.7, 30),
        reason="any value is valid",
    ),
    Values(
        r"veksWinBlackmanQ15_\w+",
        parameters=r"alphaQ15",
        valid=(-5243, 0, -9000, INT_MAX, INT_MIN),
        reason="any value is valid",
    ),
    Values(
        r"veksWinKaiser_\w+",
        parameters=r"alpha",
        valid=(0.01, 0, -0.018),
        bad={"vekErrKaiserHuge": (89, -1e9)},
        reason="times half of the longest length below 38; of the shortest beyond 308",
    ),
    Values(
        r"veksWinKaiserQ15_\w+",
        parameters=r"alphaQ15",
        valid=(300, 0, -4000),
        bad={"vekErrKaiserHuge": (INT_MAX, INT_MIN)},
        reason="times half of the longest length below 308 * 32768",
    ),
)
