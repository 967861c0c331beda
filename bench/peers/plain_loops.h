// Peers that the compiler makes: plain loops and algorithms of the standard library. Out of place
// no vector overlaps another.
#ifndef VEKS_BENCH_PEERS_PLAIN_LOOPS_H
#define VEKS_BENCH_PEERS_PLAIN_LOOPS_H

namespace veks::bench::plain {

struct Add {};
struct Sub {};   // second - first, as of two vectors; constant - element
struct SubC {};  // first - second: element - constant
struct Mul {};
struct Div {};   // second / first, as of two vectors; constant / element
struct DivC {};  // element * (1 / constant)
struct Abs {};
struct Sqr {};
struct Sqrt {};
struct And {};
struct Or {};
struct Xor {};
struct Not {};
struct ShiftLeft {};
struct ShiftRight {};
struct SwapBytes {};

// What a call costs at least.
int doNothing(const void* src1, const void* src2, void* dst, int len);

template <class Op, class T>
struct Unary {
  static void separate(const T* src, T* dst, int len);
  static void inPlace(T* srcDst, int len);
};

template <class Op, class S, class T = S>
struct Binary {
  static void separate(const S* src1, const T* src2, T* dst, int len);
  static void inPlace(const S* src, T* srcDst, int len);
};

// Of two vectors of one type into one of another.
template <class Op, class S, class T>
struct Widening {
  static void separate(const S* src1, const S* src2, T* dst, int len);
};

template <class Op, class T, class C = T>
struct WithConstant {
  static void separate(const T* src, C val, T* dst, int len);
  static void inPlace(C val, T* srcDst, int len);
};

template <class T>
struct Accumulate {
  static void addProduct(const T* src1, const T* src2, T* srcDst, int len);
};

// (src - vSub) / vDiv
template <class T, class R = T>
struct Normalize {
  static void separate(const T* src, T* dst, int len, T vSub, R vDiv);
  static void inPlace(T* srcDst, int len, T vSub, R vDiv);
};

template <class T>
struct Reverse {
  static void separate(const T* src, T* dst, int len);
  static void inPlace(T* srcDst, int len);
  static void stdReverseCopy(const T* src, T* dst, int len);
  static void stdReverse(T* srcDst, int len);
};

// len samples of three bytes each.
struct SwapBytes24 {
  static void separate(const unsigned char* src, unsigned char* dst, int len);
  static void inPlace(unsigned char* srcDst, int len);
};

template <class T>
struct Standard {
  static void copy(const T* src, T* dst, int len);
  static void fill(T val, T* dst, int len);
  static void fillZero(T* dst, int len);
};

}  // namespace veks::bench::plain

#endif
