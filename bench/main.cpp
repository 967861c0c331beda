// The benchmarks of veks. Besides the options of Google Benchmark: --rounds=N for every benchmark,
// in place of 31 (11 for the largest vectors), and --fftw-wisdom=FILE, which keeps the plans of
// FFTW in files whose names begin so.
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "comparisons.h"
#include "cores.h"
#include "fft_peer.h"
#include "veks.h"

namespace {

// Takes the options of this program out of the arguments. Returns whether all was well.
bool readOptions(int* argc, char** argv) {
  constexpr std::string_view kRounds = "--rounds=";
  constexpr std::string_view kWisdom = "--fftw-wisdom=";
  int kept = 1;
  for (int i = 1; i < *argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument.substr(0, kRounds.size()) == kRounds) {
      char* end = nullptr;
      const long rounds = std::strtol(argv[i] + kRounds.size(), &end, 10);
      if (*end != '\0' || rounds < 1 || rounds > 1'000'000) return false;
      veks::bench::setRounds(static_cast<int>(rounds));
    } else if (argument.substr(0, kWisdom.size()) == kWisdom) {
      veks::bench::setFftWisdom(argv[i] + kWisdom.size());
    } else {
      argv[kept++] = argv[i];
    }
  }
  argv[kept] = nullptr;
  *argc = kept;
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (!readOptions(&argc, argv)) {
    std::cerr << "--rounds needs a number from 1 to 1000000\n";
    return EXIT_FAILURE;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  const int core = veks::bench::pinToOneCore();
  if (core < 0) {
    std::cerr << "cannot pin the process to one core\n";
    return EXIT_FAILURE;
  }
  benchmark::AddCustomContext("veks_target", vekGetTargetName());
  benchmark::AddCustomContext("core", std::to_string(core));
  veks::bench::addAllSuites();
  const std::string idle = veks::bench::functionsWithoutSuite();
  if (!idle.empty()) benchmark::AddCustomContext("peers_without_suite", idle);
  return benchmark::RunSpecifiedBenchmarks() > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
