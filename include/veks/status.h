/**
 * @file
 * The status type that nearly every function returns.
 */
#ifndef VEKS_STATUS_H
#define VEKS_STATUS_H

#include "veks/types.h"

/**
 * The outcome of a call: 0 for success, negative for an error (the outputs are untouched unless
 * the function says otherwise), positive for a warning (the outputs are complete and valid, and
 * some element met a special case). vekGetStatusString() gives the text of a status.
 */
typedef enum VekStatus VEKS_ENUM_BASE {
  vekErrModeNotSupported = -9999, /**< The requested mode is currently not supported. */
  vekErrCpuNotSupported = -9998,  /**< The target cpu is not supported. */
  vekErrToneMagn = -46,           /**< Tone magnitude is less than or equal to zero. */
  vekErrToneFreq = -45,   /**< Tone frequency is negative, or greater than or equal to 0.5. */
  vekErrTonePhase = -44,  /**< Tone phase is negative, or greater than or equal to 2*PI. */
  vekErrTrnglMagn = -43,  /**< Triangle magnitude is less than or equal to zero. */
  vekErrTrnglFreq = -42,  /**< Triangle frequency is negative, or greater than or equal to 0.5. */
  vekErrTrnglPhase = -41, /**< Triangle phase is negative, or greater than or equal to 2*PI. */
  vekErrTrnglAsym =
      -40, /**< Triangle asymmetry is less than -PI, or greater than or equal to PI. */
  vekErrKaiserHuge = -39,   /**< Kaiser window is too huge. */
  vekErrNegMagnitude = -38, /**< Magnitude value is negative. */
  vekErrEpsilon = -36,      /**< Negative epsilon value error. */
  vekErrWtOffset = -35,     /**< Invalid offset value of wavelet filter. */
  vekErrMaskSize = -33,     /**< Invalid mask size. */
  vekErrShift = -32,        /**< Shift value is less than zero. */
  vekErrSampleFactor = -31, /**< Sampling factor is less than or equal to zero. */
  vekErrSamplePhase = -30,  /**< Phase value is out of range: 0 <= phase < factor. */
  vekErrFIRMRFactor = -29,  /**< MR FIR sampling factor is less than or equal to zero. */
  vekErrFIRMRPhase = -28,   /**< MR FIR sampling phase is negative, or greater than or equal to the
                               sampling factor. */
  vekErrRelFreq = -27,      /**< Relative frequency value is out of range. */
  vekErrFIRLen = -26,       /**< Length of a FIR filter is less than or equal to zero. */
  vekErrIIROrder = -25,     /**< Order of an IIR filter is less than or equal to zero. */
  vekErrDlyLineIndex = -24, /**< Invalid value of the delay line sample index. */
  vekErrThreshNegLevel = -19,  /**< Negative value of the level in the threshold operation. */
  vekErrThreshBounds = -18,    /**< Invalid threshold bounds. */
  vekErrContextMatch = -17,    /**< Context parameter doesn't match the operation. */
  vekErrFFTFlag = -16,         /**< Invalid value of the FFT flag parameter. */
  vekErrFFTOrder = -15,        /**< Invalid value of the FFT order parameter. */
  vekErrStep = -14,            /**< Step value is less than or equal to zero. */
  vekErrScaleRange = -13,      /**< Scale bounds are out of the range. */
  vekErrDataType = -12,        /**< Bad or unsupported data type. */
  vekErrOutOfRange = -11,      /**< Argument is out of range or point is outside the image. */
  vekErrDivByZero = -10,       /**< An attempt to divide by zero. */
  vekErrMemAllocTooSmall = -9, /**< Not enough memory allocated for the operation. */
  vekErrNullPtr = -8,          /**< Null pointer error. */
  vekErrBadBounds =
      -7,            /**< Bad values of bounds: the lower bound is greater than the upper bound. */
  vekErrSize = -6,   /**< Wrong value of data size. */
  vekErrBadArg = -5, /**< Function arg/param is bad. */
  vekErrNoMemory = -4,      /**< Not enough memory for the operation. */
  vekErrUnknown = -2,       /**< Unknown/unspecified error. */
  vekStsOk = 0,             /**< No error, it's OK. */
  vekWrnNoOperation = 1,    /**< No operation has been executed. */
  vekWrnMisalignedBuf = 2,  /**< Misaligned pointer in operation in which it must be aligned. */
  vekWrnSqrtNegArg = 3,     /**< Negative value(s) of the argument in the function Sqrt. */
  vekWrnInvThreshZero = 4,  /**< INF result. Zero value was met by InvThresh with zero level. */
  vekWrnEvenMedianMask = 5, /**< Even size of the Median Filter mask was replaced by the odd one. */
  vekWrnDivByZero = 6,      /**< Zero value(s) of the divisor in the function Div. */
  vekWrnLnZeroArg = 7,      /**< Zero value(s) of the argument in the function Ln. */
  vekWrnLnNegArg = 8,       /**< Negative value(s) of the argument in the function Ln. */
  vekWrnNanArg = 9,         /**< Not a Number argument value warning. */
  vekWrnFloored = 11,       /**< All result values are floored. */
  vekWrnOverflow = 12,      /**< Overflow occurred in the operation. */
  vekWrnUnderflow = 17,     /**< Underflow occurred in the operation. */
  vekWrnSingularity = 18,   /**< Singularity occurred in the operation. */
  vekWrnDomain = 19,        /**< Argument is out of the function domain. */
  vekWrnCpuVendor = 20,     /**< The target cpu is not Genuine Orvix. */
  vekWrnCpuNotSet = 21,     /**< The library for given cpu cannot be set. */
  vekWrnNoLibCalls = 22,    /**< Application does not contain VEK functions calls. */
  vekWrnNoNewerLib = 23,    /**< The newest version of VEK dll's not found by dispatcher. */
  vekWrnNoopInDynamic = 24  /**< The function does nothing in the dynamic version of the library. */
} VekStatus;

#endif
