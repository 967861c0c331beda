/**
 * @file
 * Sample types, parameter enumerations and the version record.
 */
#ifndef VEKS_TYPES_H
#define VEKS_TYPES_H

#include <stdint.h>

/** Marks a function that the shared library exports. */
#define VEKS_API __attribute__((visibility("default")))

/** Gives enumerations the same 32-bit representation in C++ as in C. */
#ifdef __cplusplus
#define VEKS_ENUM_BASE : int32_t
#else
#define VEKS_ENUM_BASE
#endif

/**
 * @name Real samples
 * Arrays need the natural alignment of their element type and nothing more.
 * @{
 */
typedef uint8_t Vek8u;
typedef int8_t Vek8s;
typedef uint16_t Vek16u;
typedef int16_t Vek16s;
typedef uint32_t Vek32u;
typedef int32_t Vek32s;
typedef int64_t Vek64s;
typedef float Vek32f;
typedef double Vek64f;
/** @} */

/**
 * @name Complex samples
 * The real part, then the imaginary part, without a gap: an array of `len` complex values is an
 * array of `2 * len` values of the base type.
 * @{
 */
typedef struct {
  Vek8s re;
  Vek8s im;
} Vek8sc;

typedef struct {
  Vek16s re;
  Vek16s im;
} Vek16sc;

typedef struct {
  Vek32s re;
  Vek32s im;
} Vek32sc;

typedef struct {
  Vek64s re;
  Vek64s im;
} Vek64sc;

typedef struct {
  Vek32f re;
  Vek32f im;
} Vek32fc;

typedef struct {
  Vek64f re;
  Vek64f im;
} Vek64fc;
/** @} */

/** Choice between a fast and an accurate kernel; values other than these act as none. */
typedef enum VekHintAlgorithm VEKS_ENUM_BASE {
  vekAlgHintNone = 0,    /**< The library chooses: the accurate kernel. */
  vekAlgHintFast = 1,    /**< The fast kernel. */
  vekAlgHintAccurate = 2 /**< The accurate kernel. */
} VekHintAlgorithm;

/** A comparison. */
typedef enum VekCmpOp VEKS_ENUM_BASE {
  vekCmpLess = 0,      /**< x < y */
  vekCmpLessEq = 1,    /**< x <= y */
  vekCmpEq = 2,        /**< x == y */
  vekCmpGreaterEq = 3, /**< x >= y */
  vekCmpGreater = 4    /**< x > y */
} VekCmpOp;

/** The window of a filter design; any other value applies no window. */
typedef enum VekWinType VEKS_ENUM_BASE {
  vekWinBartlett = 0, /**< Bartlett (triangular). */
  vekWinBlackman = 1, /**< Blackman with the optimal parameter. */
  vekWinHamming = 2,  /**< Hamming. */
  vekWinHann = 3      /**< Hann. */
} VekWinType;

/** The processor classes that vekGetCpuType() tells apart; the numbering is not by capability. */
typedef enum VekCpuType VEKS_ENUM_BASE {
  vekCpuUnknown = 0,     /**< No CPUID instruction, another vendor or another family. */
  vekCpuFam5 = 1,        /**< Family 5 without MMX. */
  vekCpuFam5Mmx = 2,     /**< Family 5 with MMX. */
  vekCpuFam6 = 3,        /**< Family 6 without MMX. */
  vekCpuFam6Mmx = 4,     /**< Family 6 with MMX, without SSE. */
  vekCpuFam6Sse = 5,     /**< Family 6 with SSE, without SSE2. */
  vekCpuFam15Sse2 = 6,   /**< Family 15 with SSE2, without SSE3, one logical processor. */
  vekCpuFam15Sse2Ht = 7, /**< Family 15 with SSE2, without SSE3, several logical processors. */
  vekCpuFam15Sse3 = 8,   /**< Family 15 with SSE2 and SSE3. */
  vekCpuFam6Sse2 = 9,    /**< Family 6 with SSE2. */
  vekCpuEpic64 = 16,     /**< Family 7: a 64-bit EPIC processor executing x86 code. */
  vekCpuEpic64Gen2 = 17  /**< Family 15 without SSE2: its second generation. */
} VekCpuType;

/** The version record of the library, constant and in static storage. */
typedef struct {
  int32_t versionMajor;    /**< 4 */
  int32_t versionMinor;    /**< 0 */
  int32_t buildMajor;      /**< 19 */
  int32_t buildNumber;     /**< 77 */
  char cpuCode[4];         /**< "t7", the code of the processor class, filled up with NUL. */
  const char* libraryName; /**< The library file's own name. */
  const char* versionText; /**< "v4.0" */
  const char* buildDate;   /**< The day of the build, as in "Nov 21 2026". */
} VekLibraryVersion;

#endif
