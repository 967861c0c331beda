// The element operations of the vector kernels, as tags that are the same for every SIMD target.
// The *-inl.h files specialise Operation for them.
#ifndef VEKS_VECTOR_OPERATIONS_H
#define VEKS_VECTOR_OPERATIONS_H

namespace veks {

// Sub subtracts the first operand from the second, SubFrom the second from the first.
struct Add {};
struct Sub {};
struct SubFrom {};
struct Mul {};
struct Abs {};
struct Sqr {};
struct AddProduct {};

struct And {};
struct Or {};
struct Xor {};
struct Not {};

struct SwapBytes {};

}  // namespace veks

#endif
