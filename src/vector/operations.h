// The element operations of the vector kernels, as tags that are the same for every SIMD target.
// The *-inl.h files specialise Operation for them.
#ifndef VEKS_VECTOR_OPERATIONS_H
#define VEKS_VECTOR_OPERATIONS_H

namespace veks {

// Sub subtracts the first operand from the second, SubFrom the second from the first.
struct Add {};
struct Sub {};
struct SubFrom {};
struct Abs {};
struct AddProduct {};

// MulExact has operands whose products fit, MulUnsigned a first operand of unsigned values in
// signed lanes. Product is a product that was formed already.
struct Mul {};
struct MulExact {};
struct MulUnsigned {};
struct Product {};
struct Sqr {};
struct MulComplex {};
struct SqrComplex {};

struct And {};
struct Or {};
struct Xor {};
struct Not {};

struct SwapBytes {};

}  // namespace veks

#endif
