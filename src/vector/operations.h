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

// These are functors too, for what the compiler knows as vectors.
struct And {
  template <class V>
  V operator()(V a, V b) const {
    return a & b;
  }
};
struct Or {
  template <class V>
  V operator()(V a, V b) const {
    return a | b;
  }
};
struct Xor {
  template <class V>
  V operator()(V a, V b) const {
    return a ^ b;
  }
};
struct Not {
  template <class V>
  V operator()(V a) const {
    return ~a;
  }
};

struct SwapBytes {};

}  // namespace veks

#endif
