/**
 * @file
 * Library services: status texts, version, aligned memory, processor, denormal modes.
 */
#ifndef VEKS_CORE_SERVICES_H
#define VEKS_CORE_SERVICES_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Gives the message of a status.
 *
 * @param code any value
 * @return a constant text, "Unknown Status Code" for a value that is no status; never null
 */
VEKS_API const char* vekGetStatusString(VekStatus code);

/**
 * Tells the class of the processor, from CPUID leaf 0 (vendor) and leaf 1 (base family and feature
 * bits), afresh on every call. Only processors of the vendor "GenuineOrvix" have a class; nothing
 * in the library depends on it. See vekGetTargetName() for the instructions that are in use.
 *
 * @return the class, #vekCpuUnknown if there is none
 */
VEKS_API VekCpuType vekGetCpuType(void);

/**
 * Names the SIMD instruction set that the kernels use: the best one of this build that the
 * processor has, chosen once when the library is loaded.
 *
 * @return a constant text: "EMU128" (plain code for 128-bit blocks), "SSE4", "AVX2" or "AVX3"
 */
VEKS_API const char* vekGetTargetName(void);

/**
 * Reads the processor's time-stamp counter (RDTSC), neither serialised nor converted to time.
 *
 * @return the 64-bit count
 */
VEKS_API unsigned long long vekGetCpuClocks(void);

/**
 * @name Denormal modes
 * Setting the denormal modes of the floating-point unit is not supported: the calls read no
 * argument, write nothing and leave the unit as it is. The vector functions run under the mode
 * that the calling thread has set, for example with `_MM_SET_FLUSH_ZERO_MODE`.
 *
 * @return #vekErrCpuNotSupported, always
 * @{
 */
VEKS_API VekStatus vekSetFlushToZero(int value, unsigned int* pUMask);
VEKS_API VekStatus vekSetDenormAreZeros(int value);
/** @} */

/**
 * Gives the version record.
 *
 * @return the same constant record on every call
 */
VEKS_API const VekLibraryVersion* veksGetLibVersion(void);

/**
 * @name Malloc
 * Allocates `len` elements, aligned to 32 bytes, with `malloc`. Release the block with veksFree().
 * On 32-bit builds the size is computed modulo 2^32: a `len` whose block exceeds the address space
 * gives a block that is too small.
 *
 * @param len the number of elements
 * @return the block; null if `len <= 0` or there is no memory
 * @{
 */
VEKS_API Vek8u* veksMalloc_8u(int len);
VEKS_API Vek8s* veksMalloc_8s(int len);
VEKS_API Vek16s* veksMalloc_16s(int len);
VEKS_API Vek16u* veksMalloc_16u(int len);
VEKS_API Vek8sc* veksMalloc_8sc(int len);
VEKS_API Vek32f* veksMalloc_32f(int len);
VEKS_API Vek32s* veksMalloc_32s(int len);
VEKS_API Vek32u* veksMalloc_32u(int len);
VEKS_API Vek16sc* veksMalloc_16sc(int len);
VEKS_API Vek64f* veksMalloc_64f(int len);
VEKS_API Vek64s* veksMalloc_64s(int len);
VEKS_API Vek32fc* veksMalloc_32fc(int len);
VEKS_API Vek32sc* veksMalloc_32sc(int len);
VEKS_API Vek64fc* veksMalloc_64fc(int len);
VEKS_API Vek64sc* veksMalloc_64sc(int len);
/** @} */

/**
 * Releases a block of one of the Malloc functions.
 *
 * @param ptr the block; null is ignored
 */
VEKS_API void veksFree(void* ptr);

#ifdef __cplusplus
}
#endif

#endif
