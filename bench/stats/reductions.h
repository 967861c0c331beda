// Comparisons of functions that make a value of vectors.
#ifndef VEKS_BENCH_STATS_REDUCTIONS_H
#define VEKS_BENCH_STATS_REDUCTIONS_H

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "agreement.h"
#include "comparisons.h"

namespace veks::bench {

// The place of a second result.
struct Dst2 {};
inline constexpr Dst2 kDst2;
inline constexpr size_t kResultBytes = 8;

template <class P>
P argumentAt(const Vectors& v, Dst2 /*place*/) {
  return reinterpret_cast<P>(v.dst() + kResultBytes);
}

// Peers of the call shapes of the library, with the scale factor of all comparisons.
template <class T, class R, class Status>
Peer reduction(const char* name, Status (*function)(const T*, int, R*)) {
  return peerWith(name, function, kSrc1, kLen, kDst);
}
template <class T, class R, class Status>
Peer reduction(const char* name, Status (*function)(const T*, int, R*, int)) {
  return peerWith(name, function, kSrc1, kLen, kDst, kScale);
}
template <class T, class R1, class R2, class Status>
Peer reduction(const char* name, Status (*function)(const T*, int, R1*, R2*)) {
  return peerWith(name, function, kSrc1, kLen, kDst, kDst2);
}
template <class T1, class T2, class R, class Status>
Peer reduction(const char* name, Status (*function)(const T1*, const T2*, int, R*)) {
  return peerWith(name, function, kSrc1, kSrc2, kLen, kDst);
}
template <class T1, class T2, class R, class Status>
Peer reduction(const char* name, Status (*function)(const T1*, const T2*, int, R*, int)) {
  return peerWith(name, function, kSrc1, kSrc2, kLen, kDst, kScale);
}

// Sums in another order: the library's is close to the exact one, long loops of floats are not.
template <class T>
Agreement sumAgreement() {
  return withinRelative<T>(sizeof(T) == 4 ? 1e-2 : 1e-9);
}

// The bytes of the elements of the sources.
template <class Status, class T, class... P>
Elements sourcesOf(Status (*)(const T*, int, P...)) {
  return {sizeof(T), 0, 0};
}
template <class Status, class T1, class T2, class... P>
Elements sourcesOf(Status (*)(const T1*, const T2*, int, P...)) {
  return {sizeof(T1), sizeof(T2), 0};
}

template <class Function>
void compareReduction(const char* name, Function function, std::vector<Peer> peers,
                      const Content& content = {}) {
  peers.insert(peers.begin(), reduction("veks", function));
  VectorCase settings;
  settings.content = content;
  settings.resultBytes = 2 * kResultBytes;
  addVectorCases(name, std::move(peers), sourcesOf(function), settings,
                 {Placement::kAligned, Placement::kOffset});
}

}  // namespace veks::bench

#endif
