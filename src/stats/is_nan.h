#ifndef VEKS_STATS_IS_NAN_H
#define VEKS_STATS_IS_NAN_H

namespace veks {

template <class T>
constexpr bool isNan(T x) {
  return x != x;
}

}  // namespace veks

#endif
