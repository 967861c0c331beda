// Fourier transforms in long double: slow, plain and accurate.
#ifndef VEKS_TESTS_TRANSFORM_REFERENCE_FFT_H
#define VEKS_TESTS_TRANSFORM_REFERENCE_FFT_H

#include <cmath>
#include <cstddef>
#include <vector>

namespace veks::test {

struct Point {
  long double re;
  long double im;
};
using Points = std::vector<Point>;

inline Point operator+(Point a, Point b) {
  return {a.re + b.re, a.im + b.im};
}
inline Point operator-(Point a, Point b) {
  return {a.re - b.re, a.im - b.im};
}
inline Point operator*(Point a, Point b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
inline Point operator*(long double factor, Point a) {
  return {factor * a.re, factor * a.im};
}
inline Point conj(Point a) {
  return {a.re, -a.im};
}

// exp(-2 pi i k / n)
inline Point rootOfUnity(size_t k, size_t n) {
  constexpr long double kTwoPi = 6.283185307179586476925286766559L;
  const long double angle = kTwoPi * static_cast<long double>(k) / static_cast<long double>(n);
  return {std::cos(angle), -std::sin(angle)};
}

// The spectrum of n values, a stride apart; `roots` are those of n * stride.
inline void transformPart(const Point* in, size_t stride, const Points& roots, Point* out,
                          size_t n) {
  if (n == 1) {
    out[0] = in[0];
    return;
  }
  const size_t half = n / 2;
  transformPart(in, 2 * stride, roots, out, half);
  transformPart(in + stride, 2 * stride, roots, out + half, half);
  for (size_t k = 0; k < half; ++k) {
    const Point even = out[k];
    const Point odd = roots[k * stride] * out[half + k];
    out[k] = even + odd;
    out[half + k] = even - odd;
  }
}

// Forward and without a factor.
inline Points transformed(const Points& in) {
  const size_t n = in.size();
  // Kept for the next transform of that length.
  static Points roots;
  if (roots.size() != n / 2 + 1) {
    roots.resize(n / 2 + 1);
    for (size_t k = 0; k < roots.size(); ++k) roots[k] = rootOfUnity(k, n);
  }
  Points out(n);
  transformPart(in.data(), 1, roots, out.data(), n);
  return out;
}

inline Points transformed(Points in, bool isInverse) {
  if (!isInverse) return transformed(in);
  for (Point& p : in) p = conj(p);
  Points out = transformed(in);
  for (Point& p : out) p = conj(p);
  return out;
}

inline long double norm(const Points& points) {
  long double squares = 0;
  for (const Point& p : points) squares += p.re * p.re + p.im * p.im;
  return std::sqrt(squares);
}

inline long double distance(const Points& a, const Points& b) {
  long double squares = 0;
  for (size_t i = 0; i < a.size(); ++i) {
    const Point difference = a[i] - b[i];
    squares += difference.re * difference.re + difference.im * difference.im;
  }
  return std::sqrt(squares);
}

}  // namespace veks::test

#endif
