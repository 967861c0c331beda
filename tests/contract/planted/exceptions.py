"""What planted.h does not tell the contract sweep."""

from rules import (
    INT_MIN,
    LeastLength,
    LengthFirst,
    MayBeNull,
    NoPartner,
    ScalarsFirst,
    SourceAtStart,
    Span,
    TargetsDiffer,
    Values,
)

EXCEPTIONS = (
    MayBeNull(
        r"veksPlanted(Optional|Required)Indx_16s",
        parameters=r"pIndx",
        reason="only the value is asked for; the second rejects that",
    ),
    Span(
        r"veksPlantedPair_8u",
        parameters=r"pDst",
        fixed=2,
        reason="two results",
    ),
    Span(
        r"veksPlantedHalf(RoundedUp)?_16s",
        parameters=r"pSrc",
        fixed=1,
        per_two=1,
        reason="the first half and one more; the second reads another one for odd lengths",
    ),
    SourceAtStart(
        r"veksPlantedExpand(Up|Down)_8sc_I",
        reason="real values become complex ones; the first overwrites some before it reads them",
    ),
    Values(
        r"veksPlanted\w*Shift\w*_16u",
        parameters=r"val",
        valid=range(16),
        bad={"vekErrShift": (-1, INT_MIN)},
        reason="bit counts",
    ),
    NoPartner(
        r"veksPlanted(Negate_32s|WriteBefore_8u)_I",
        reason="exist in place only",
    ),
    LengthFirst(
        r"veksPlantedLengthFirst_8u|veksPlantedPointerFirst_8u",
        reason="the length is checked first; the second does not",
    ),
    LeastLength(
        r"veksPlanted(TwoOrMore|OneOrMore)_8u",
        least=2,
        reason="the length must be 2; the second accepts 1",
    ),
    ScalarsFirst(
        r"veksPlantedShift(Before|After)_16u",
        reason="the bit count is checked first; the second does not",
    ),
    TargetsDiffer(
        r"veksPlantedLastBits_32f",
        reason="shows that the difference of PlantedTarget can be allowed",
    ),
)
