#include "fft_peer.h"

namespace veks::bench {
namespace {

std::vector<FftPeers>& optionalPeers() {
  static std::vector<FftPeers> peers;
  return peers;
}

std::string& wisdom() {
  static std::string path;
  return path;
}

}  // namespace

OptionalFftPeers::OptionalFftPeers(FftPeers peers) {
  optionalPeers().push_back(peers);
}

bool thereAreFftPeers() {
  return !optionalPeers().empty();
}

std::vector<FftPeer> peersOf(const FftCase& fft) {
  std::vector<FftPeer> all;
  for (const FftPeers peers : optionalPeers()) {
    for (FftPeer& peer : peers(fft)) all.push_back(std::move(peer));
  }
  return all;
}

void setFftWisdom(const std::string& path) {
  wisdom() = path;
}

const std::string& fftWisdom() {
  return wisdom();
}

}  // namespace veks::bench
