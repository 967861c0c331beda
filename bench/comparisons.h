// Comparisons of functions on vectors: every size and placement, the arguments taken from the
// signature.
#ifndef VEKS_BENCH_COMPARISONS_H
#define VEKS_BENCH_COMPARISONS_H

#include <cstddef>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "peer.h"
#include "veks.h"

// The name of a function and the function.
#define VEKS_BENCH_NAMED(function) #function, function

namespace veks::bench {

constexpr unsigned char kConstantByte = 0x5A;  // the first one of every constant

// The constant of a function: its bytes all differ.
template <class C>
C constant() {
  C value;
  unsigned char* const bytes = reinterpret_cast<unsigned char*>(&value);
  for (size_t i = 0; i < sizeof(C); ++i) bytes[i] = static_cast<unsigned char>(kConstantByte + i);
  return value;
}

// The constant of a product that is repeated in place: the magnitudes stay.
constexpr float kInPlaceFactor = -1;

// The level of a threshold, which about half of the magnitudes in a vector exceed.
template <class T>
constexpr T level() {
  return std::is_same_v<T, Vek64f>   ? T(0x1p-127)
         : std::is_same_v<T, Vek32f> ? T(0x1p-15)
                                     : std::numeric_limits<T>::max() / 2;
}

// The scale factor by which a comparison brings floating-point samples to integers and back, and
// the one for integers.
constexpr int kToInteger = -14;
constexpr int kScale = 3;

// Bytes of a vector from a call's overhead to memory, or numbers of elements: a typical vector and
// one that fills memory, a short one as well, or a frame of 4096.
enum class Sizes { kBytes, kElements, kReductions, kFrame };

// A suite whose comparisons run at such sizes.
struct VectorSuite {
  VectorSuite(Sizes sizes, void (*addCases)());
};

// Whether a call only writes the destination or reads it too.
enum class Destination { kWritten, kUpdated };

struct VectorCase {
  Destination destination = Destination::kWritten;
  Content content = {};
  Elements elements = {};  // where the signature does not tell them
  size_t resultBytes = 0;  // of what a reduction gives in place of a vector
};
inline constexpr VectorCase kInPlace = {Destination::kUpdated, {}, {}};

// A peer of another library that may be missing: a file of them is added to the build where the
// library is found, and ends in an OptionalPeers object. Each one takes part in the comparison of
// the function that it is named for.
struct OptionalPeer {
  const char* function;
  Peer peer;
};
struct OptionalPeers {
  OptionalPeers(const std::vector<OptionalPeer>& peers);
};

// The functions that have such a peer, but are in no suite.
std::string functionsWithoutSuite();

// Registers NAME/SIZE/PLACEMENT for all sizes. The library is the first contestant; peers that are
// there for the function, and a yardstick where the vectors are long, come last.
void addVectorCases(const char* name, std::vector<Peer> contestants, const Elements& elements,
                    const VectorCase& settings, const std::vector<Placement>& placements);

template <class... P>
Elements elementsOf(const VectorCase& settings) {
  return settings.elements.dst != 0 ? settings.elements : Signature<P...>::elements();
}

// `bound` are the arguments of the function that are neither vectors nor the length.
template <class... P, class... B>
void compareVectors(const char* name, VekStatus (*function)(P...), const VectorCase& settings,
                    std::vector<Peer> peers, B... bound) {
  peers.insert(peers.begin(), peer("veks", function, bound...));
  addVectorCases(name, std::move(peers), elementsOf<P...>(settings), settings,
                 {Placement::kAligned, Placement::kOffset});
}

// The destination overlaps the source.
template <class... P>
void compareOverlapping(const char* name, VekStatus (*function)(P...), std::vector<Peer> peers) {
  peers.insert(peers.begin(), peer("veks", function));
  addVectorCases(name, std::move(peers), Signature<P...>::elements(), {},
                 {Placement::kUp, Placement::kDown});
}

}  // namespace veks::bench

#endif
