#include "comparisons.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string>

#include "peers/stream.h"

namespace veks::bench {
namespace {

struct Size {
  const char* name;
  size_t count;
  bool isLong;
};
// Call overhead, the first-level cache, the caches behind it, memory.
constexpr Size kBytes[] = {{"64B", 64, false},
                           {"4KiB", 4 << 10, false},
                           {"256KiB", 256 << 10, false},
                           {"64MiB", 64 << 20, true}};
constexpr Size kElements[] = {{"48", 48, false}, {"1Ki", 1 << 10, false}, {"32Mi", 32 << 20, true}};

Sizes sizesOfSuite = Sizes::kBytes;

std::vector<Size> sizes() {
  if (sizesOfSuite == Sizes::kBytes) return {std::begin(kBytes), std::end(kBytes)};
  if (sizesOfSuite == Sizes::kFrame) return {{"4Ki", 4 << 10, false}};
  // What a reduction does after its loop is most of the time of a short vector.
  return {std::begin(kElements) + (sizesOfSuite == Sizes::kReductions ? 0 : 1),
          std::end(kElements)};
}

std::multimap<std::string, Peer>& optionalPeers() {
  static std::multimap<std::string, Peer> peers;
  return peers;
}

std::set<std::string>& functionsInSuites() {
  static std::set<std::string> names;
  return names;
}

const char* nameOf(Placement placement) {
  switch (placement) {
    case Placement::kAligned:
      return "aligned";
    case Placement::kOffset:
      return "off1";
    case Placement::kUp:
      return "up1";
    case Placement::kDown:
      return "down1";
  }
  return "";
}

// What one call reads and writes.
size_t trafficOf(const Vectors& v, Destination destination) {
  const size_t dst = v.elements().dst * (destination == Destination::kUpdated ? 2 : 1);
  return static_cast<size_t>(v.len()) * (v.elements().src1 + v.elements().src2 + dst);
}

// The loop of the same traffic that does next to nothing.
void addYardstick(std::vector<Contestant>& contestants, const Vectors& v, Destination destination) {
  const Elements& e = v.elements();
  const bool updated = destination == Destination::kUpdated;
  const plain::Stream stream =
      plain::streamOf(e.src1, e.src2, e.dst, updated, static_cast<size_t>(v.len()));
  if (stream.run == nullptr) return;
  Contestant yardstick =
      contestant("stream", stream.run, v.src1(), v.src2(), v.dst(), stream.steps);
  yardstick.isYardstick = true;
  contestants.push_back(std::move(yardstick));
}

}  // namespace

VectorSuite::VectorSuite(Sizes sizes, void (*addCases)()) {
  Suite([=] {
    sizesOfSuite = sizes;
    addCases();
  });
}

OptionalPeers::OptionalPeers(const std::vector<OptionalPeer>& peers) {
  for (const OptionalPeer& p : peers) optionalPeers().emplace(p.function, p.peer);
}

std::string functionsWithoutSuite() {
  std::set<std::string> names;
  for (const auto& [name, peer] : optionalPeers()) names.insert(name);
  std::string list;
  for (const std::string& name : names) {
    if (functionsInSuites().count(name) == 0) list += (list.empty() ? "" : " ") + name;
  }
  return list;
}

void addVectorCases(const char* name, std::vector<Peer> contestants, const Elements& elements,
                    const VectorCase& settings, const std::vector<Placement>& placements) {
  functionsInSuites().insert(name);
  const auto [first, last] = optionalPeers().equal_range(name);
  for (auto found = first; found != last; ++found) contestants.push_back(found->second);
  for (const Size& size : sizes()) {
    const size_t unit = sizesOfSuite == Sizes::kBytes ? elements.dst : 1;
    const int len = static_cast<int>(size.count / unit);
    for (const Placement placement : placements) {
      const auto run = [=](benchmark::State& state) {
        const Vectors v(len, elements, placement, settings.content);
        std::vector<Contestant> all(contestants.size());
        std::transform(contestants.begin(), contestants.end(), all.begin(),
                       [&v](const Peer& peer) { return peer(v); });
        const bool overlaps = placement == Placement::kUp || placement == Placement::kDown;
        if (size.isLong && !overlaps) addYardstick(all, v, settings.destination);
        const auto prepare = [&] {
          v.fillOutput();
          std::memset(v.dst(), 0, settings.resultBytes);
        };
        const size_t outputBytes = v.outputBytes() + settings.resultBytes;
        compare(state, {all, prepare, v.output(), outputBytes, trafficOf(v, settings.destination)});
      };
      addBenchmark(std::string(name) + '/' + size.name + '/' + nameOf(placement),
                   size.isLong ? 11 : 31, run);
    }
  }
}

}  // namespace veks::bench
