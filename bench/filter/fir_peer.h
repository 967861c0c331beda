// Comparisons of finite impulse response filters: other libraries keep states of their own.
#ifndef VEKS_BENCH_FILTER_FIR_PEER_H
#define VEKS_BENCH_FILTER_FIR_PEER_H

#include <functional>
#include <vector>

#include "compare.h"

namespace veks::bench {

// How the samples come: in blocks of a few thousand, as one long signal, or one by one.
enum class FirWork { kBlock, kSignal, kSamples };

// A call filters `len` samples. Source and destination start at multiples of 64 bytes. There are
// `tapsLen` zeros before the source, of which peers without a state make use, and as many elements
// of room on both sides of the destination.
template <class T>
struct FirCase {
  FirWork work;
  const T* taps;
  int tapsLen;
  const T* src;
  T* dst;
  int len;
};

// reset() gives a state that filters like one that is new.
struct FirPeer {
  Contestant contestant;
  std::function<void()> reset = [] {};
};

// Libraries that may be missing: a file of the build ends in such objects where one is found.
template <class T>
using FirPeers = std::vector<FirPeer> (*)(const FirCase<T>& fir);

template <class T>
std::vector<FirPeers<T>>& optionalFirPeers() {
  static std::vector<FirPeers<T>> peers;
  return peers;
}

template <class T>
struct OptionalFirPeers {
  explicit OptionalFirPeers(FirPeers<T> peers) {
    optionalFirPeers<T>().push_back(peers);
  }
};

template <class T>
std::vector<FirPeer> peersOf(const FirCase<T>& fir) {
  std::vector<FirPeer> all;
  for (const FirPeers<T> peers : optionalFirPeers<T>()) {
    for (FirPeer& peer : peers(fir)) all.push_back(std::move(peer));
  }
  return all;
}

}  // namespace veks::bench

#endif
