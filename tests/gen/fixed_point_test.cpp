// Generators with arguments in Q15: tones and triangle waves, with a state and without.
#include <climits>
#include <functional>

#include "gen/reference_waves.h"
#include "heap.h"

namespace veks::test {
namespace {

struct Parameters {
  Vek16s magn;
  int freqQ15;
  int phaseQ15;
  int asymQ15;
};

// The documented layout, at the same offsets in both kinds of states.
struct Layout {
  size_t bytes;
  const char* id;
  size_t counter;
};

// A kind of generator: its functions without the types of their states.
struct Kind {
  const char* name;
  Layout layout;
  bool hasAsymmetry;
  VekStatus badMagnitude;
  VekStatus badFrequency;
  VekStatus badPhase;
  VekStatus (*size)(int*);
  std::function<VekStatus(void**, const Parameters&)> allocate;
  std::function<VekStatus(void*, const Parameters&)> init;
  std::function<VekStatus(void*)> release;
  std::function<VekStatus(Vek16s*, int, void*)> generate;
  std::function<VekStatus(Vek16s*, int, const Parameters&, int*)> direct;
  std::function<long double(long double, const Parameters&)> wave;
};

template <class State>
State** placeOf(void** state) {
  return reinterpret_cast<State**>(state);
}

const Kind& tones() {
  using State = VeksToneState_16s;
  static const Kind kind = {
      "tone",
      {48, "ZSML", 32},
      false,
      vekErrToneMagn,
      vekErrToneFreq,
      vekErrTonePhase,
      veksToneGetStateSizeQ15_16s,
      [](void** state, const Parameters& p) {
        return veksToneInitAllocQ15_16s(placeOf<State>(state), p.magn, p.freqQ15, p.phaseQ15);
      },
      [](void* state, const Parameters& p) {
        return veksToneInitQ15_16s(static_cast<State*>(state), p.magn, p.freqQ15, p.phaseQ15);
      },
      [](void* state) { return veksToneFree(static_cast<State*>(state)); },
      [](Vek16s* dst, int len, void* state) {
        return veksToneQ15_16s(dst, len, static_cast<State*>(state));
      },
      [](Vek16s* dst, int len, const Parameters& p, int* phase) {
        return veksToneQ15_Direct_16s(dst, len, p.magn, p.freqQ15, phase);
      },
      [](long double turns, const Parameters& /*p*/) { return std::cos(2 * kPiL * turns); }};
  return kind;
}

const Kind& triangles() {
  using State = VeksTriangleState_16s;
  static const Kind kind = {
      "triangle",
      {136, "[SML", 120},
      true,
      vekErrTrnglMagn,
      vekErrTrnglFreq,
      vekErrTrnglPhase,
      veksTriangleGetStateSizeQ15_16s,
      [](void** state, const Parameters& p) {
        return veksTriangleInitAllocQ15_16s(placeOf<State>(state), p.magn, p.freqQ15, p.phaseQ15,
                                            p.asymQ15);
      },
      [](void* state, const Parameters& p) {
        return veksTriangleInitQ15_16s(static_cast<State*>(state), p.magn, p.freqQ15, p.phaseQ15,
                                       p.asymQ15);
      },
      [](void* state) { return veksTriangleFree(static_cast<State*>(state)); },
      [](Vek16s* dst, int len, void* state) {
        return veksTriangleQ15_16s(dst, len, static_cast<State*>(state));
      },
      [](Vek16s* dst, int len, const Parameters& p, int* phase) {
        return veksTriangleQ15_Direct_16s(dst, len, p.magn, p.freqQ15, p.asymQ15, phase);
      },
      [](long double turns, const Parameters& p) {
        const long double asym = p.asymQ15 / 32768.0L;
        const long double angle = 2 * kPiL * turns;
        return angle <= kPiL + asym ? 1 - 2 * angle / (kPiL + asym)
                                    : 1 - 2 * (2 * kPiL - angle) / (kPiL - asym);
      }};
  return kind;
}

const std::vector<const Kind*> kKinds = {&tones(), &triangles()};

constexpr Parameters kSets[] = {{32767, 1234, 0, 0},       {1, 16383, 205886, 100},
                                {1000, 0, 65536, -102943}, {30000, 4096, 1, 102943},
                                {777, 8192, 102944, 5000}, {20000, 1, 200000, -70000}};

// Sample k of the stream.
testing::AssertionResult isSampleOf(const Kind& kind, const Parameters& p, uint64_t k, Vek16s got) {
  const long double turns = turnsAt(p.freqQ15 / 32768.0, p.phaseQ15 / 32768.0, k);
  return isSample(got, p.magn * kind.wave(turns, p), 0, 0, ToInteger::kHalfAwayFromZero);
}

TEST(FixedPointStates, ContinueTheirStream) {
  onEveryTarget([] {
    for (const Kind* kind : kKinds) {
      SCOPED_TRACE(kind->name);
      for (const Parameters& p : kSets) {
        void* state = nullptr;
        ASSERT_EQ(kind->allocate(&state, p), vekStsOk);
        std::vector<Vek16s> whole(40000);
        ASSERT_EQ(kind->generate(whole.data(), 40000, state), vekStsOk);
        ASSERT_EQ(kind->release(state), vekStsOk);
        for (size_t k = 0; k < whole.size(); k += k < 1000 ? 1 : 37) {
          ASSERT_TRUE(isSampleOf(*kind, p, k, whole[k])) << "sample " << k;
        }
        // The state in calls of many lengths, at an odd address.
        unsigned char memory[160];
        void* const odd = memory + 1 + static_cast<size_t>(p.magn % 8);
        ASSERT_EQ(kind->init(odd, p), vekStsOk);
        std::vector<Vek16s> parts(whole.size());
        size_t done = 0;
        for (int len = 1; done + static_cast<size_t>(len) <= parts.size(); len = len % 150 + 1) {
          ASSERT_EQ(kind->generate(parts.data() + done, len, odd), vekStsOk);
          done += static_cast<size_t>(len);
        }
        parts.resize(done);
        whole.resize(done);
        EXPECT_TRUE(sameBits(whole, parts));
      }
    }
  });
}

TEST(FixedPointStates, HaveNoEnd) {
  for (const Kind* kind : kKinds) {
    const Parameters p = {30000, 4321, 100000, 50000};
    for (uint32_t before : {0x7FFFFFF0U, 0xFFFFFFF0U}) {
      unsigned char state[136];
      ASSERT_EQ(kind->init(state, p), vekStsOk);
      std::vector<Vek16s> samples(100);
      ASSERT_EQ(kind->generate(samples.data(), 1, state), vekStsOk);
      std::memcpy(state + kind->layout.counter, &before, sizeof(before));
      for (size_t i = 0; i < samples.size(); i += 20) {
        ASSERT_EQ(kind->generate(samples.data() + i, 20, state), vekStsOk);
      }
      uint32_t after = 0;
      std::memcpy(&after, state + kind->layout.counter, sizeof(after));
      EXPECT_EQ(after, before + 100U);
      for (size_t i = 0; i < samples.size(); ++i) {
        ASSERT_TRUE(isSampleOf(*kind, p, uint64_t{before} + i, samples[i])) << kind->name << i;
      }
    }
  }
}

TEST(FixedPointStates, HaveTheDocumentedLayout) {
  for (const Kind* kind : kKinds) {
    int bytes = 0;
    ASSERT_EQ(kind->size(&bytes), vekStsOk);
    ASSERT_EQ(static_cast<size_t>(bytes), kind->layout.bytes);
    const size_t end = kind->layout.bytes;
    std::vector<unsigned char> state(end + 1, 0xCC);
    ASSERT_EQ(kind->init(state.data(), {1000, 8192, 32768, -16384}), vekStsOk);
    EXPECT_EQ(state[end], 0xCC);
    EXPECT_EQ(std::memcmp(state.data(), kind->layout.id, 4), 0);
    std::vector<double> numbers((kind->layout.counter - 8) / 8);
    std::memcpy(numbers.data(), state.data() + 8, numbers.size() * 8);
    std::vector<double> expected = {1000, 0.25, 1};
    if (kind->hasAsymmetry) expected.push_back(-0.5);
    expected.resize(numbers.size());
    EXPECT_TRUE(sameBits(expected, numbers));
    int32_t words[3];  // counter, whether owned, whether started
    const auto expectWords = [&](const void* from, int counter, int owned, int started) {
      std::memcpy(words, static_cast<const char*>(from) + kind->layout.counter, sizeof(words));
      EXPECT_EQ(words[0], counter);
      EXPECT_EQ(words[1], owned);
      EXPECT_EQ(words[2], started);
    };
    expectWords(state.data(), 0, 0, 0);
    Vek16s samples[9];
    ASSERT_EQ(kind->generate(samples, 9, state.data()), vekStsOk);
    expectWords(state.data(), 9, 0, 1);
    void* owned = nullptr;
    ASSERT_EQ(kind->allocate(&owned, kSets[0]), vekStsOk);
    expectWords(owned, 0, 1, 0);
    ASSERT_EQ(kind->release(owned), vekStsOk);
  }
}

TEST(FixedPointStates, AreReleasedIfTheyWereAllocated) {
  for (const Kind* kind : kKinds) {
    const size_t live = heap.live;
    void* state = nullptr;
    ASSERT_EQ(kind->allocate(&state, kSets[0]), vekStsOk);
    EXPECT_EQ(heap.live, live + 1);
    EXPECT_EQ(kind->release(state), vekStsOk);
    EXPECT_EQ(heap.live, live);

    unsigned char buffer[136];
    ASSERT_EQ(kind->init(buffer, kSets[0]), vekStsOk);
    EXPECT_EQ(kind->release(buffer), vekStsOk);
    Vek16s sample = 0;
    EXPECT_EQ(kind->generate(&sample, 1, buffer), vekStsOk) << "stays as it is";

    void* const untouched = &state;
    state = untouched;
    heap.callsUntilFailure = 0;
    EXPECT_EQ(kind->allocate(&state, kSets[0]), vekErrMemAllocTooSmall);
    heap.callsUntilFailure = Heap::kNever;
    EXPECT_EQ(state, untouched);
  }
}

TEST(FixedPointStates, CheckTheirArgumentsInOrder) {
  for (const Kind* kind : kKinds) {
    SCOPED_TRACE(kind->name);
    unsigned char buffer[136] = {};
    const auto expect = [&](VekStatus status, const Parameters& p) {
      void* state = buffer;
      EXPECT_EQ(kind->allocate(&state, p), status);
      EXPECT_EQ(kind->init(buffer, p), status);
      EXPECT_EQ(kind->allocate(nullptr, p), vekErrNullPtr);
      EXPECT_EQ(kind->init(nullptr, p), vekErrNullPtr);
      EXPECT_EQ(state, buffer);
    };
    for (Vek16s magn : {Vek16s{0}, Vek16s{-32768}})
      expect(kind->badMagnitude, {magn, -1, -1, INT_MIN});
    for (int freq : {-1, 16384, INT_MIN, INT_MAX}) {
      expect(kind->badFrequency, {1, freq, -1, INT_MIN});
    }
    for (int phase : {-1, 205887, INT_MIN, INT_MAX}) {
      expect(kind->badPhase, {1, 0, phase, INT_MIN});
    }
    for (int asym : {-102944, 102944, INT_MIN, INT_MAX}) {
      if (kind->hasAsymmetry) expect(vekErrTrnglAsym, {1, 0, 0, asym});
    }
    EXPECT_EQ(kind->size(nullptr), vekErrNullPtr);
    EXPECT_EQ(kind->release(nullptr), vekErrNullPtr);
    EXPECT_EQ(kind->release(buffer), vekErrContextMatch) << "no identifier";
    Vek16s sample = 7;
    EXPECT_EQ(kind->generate(nullptr, 0, buffer), vekErrNullPtr);
    EXPECT_EQ(kind->generate(&sample, 0, nullptr), vekErrNullPtr);
    EXPECT_EQ(kind->generate(&sample, 0, buffer), vekErrSize);
    EXPECT_EQ(kind->generate(&sample, 1, buffer), vekErrContextMatch);
    const Kind& other = kind == kKinds[0] ? *kKinds[1] : *kKinds[0];
    ASSERT_EQ(other.init(buffer, kSets[0]), vekStsOk);
    EXPECT_EQ(kind->generate(&sample, 1, buffer), vekErrContextMatch);
    EXPECT_EQ(kind->release(buffer), vekErrContextMatch);
    EXPECT_EQ(sample, 7);
  }
}

TEST(FixedPointDirect, FollowsTheFormulaAndRoundsThePhase) {
  onEveryTarget([] {
    for (const Kind* kind : kKinds) {
      for (Parameters p : kSets) {
        for (int len : {1, 2, 63, 64, 65, 700}) {
          std::vector<Vek16s> samples(static_cast<size_t>(len));
          int phase = p.phaseQ15;
          ASSERT_EQ(kind->direct(samples.data(), len, p, &phase), vekStsOk);
          for (size_t k = 0; k < samples.size(); ++k) {
            ASSERT_TRUE(isSampleOf(*kind, p, k, samples[k])) << kind->name << ", sample " << k;
          }
          const long double exact =
              turnsAt(p.freqQ15 / 32768.0, p.phaseQ15 / 32768.0, static_cast<uint64_t>(len)) * 2 *
              kPiL * 32768;
          const long double turn = 2 * kPiL * 32768;
          EXPECT_LE(std::fabs(std::remainder(phase - exact, turn)), 0.7085L);
          EXPECT_TRUE(phase >= 0 && phase <= 205886);
          p.phaseQ15 = phase;
        }
      }
    }
  });
}

TEST(FixedPointDirect, ChecksItsArgumentsInOrder) {
  for (const Kind* kind : kKinds) {
    SCOPED_TRACE(kind->name);
    Vek16s sample = 7;
    const auto expect = [&](VekStatus status, Vek16s* dst, int len, const Parameters& p) {
      int phase = p.phaseQ15;
      EXPECT_EQ(kind->direct(dst, len, p, &phase), status);
      EXPECT_EQ(phase, p.phaseQ15);
      EXPECT_EQ(sample, 7);
    };
    EXPECT_EQ(kind->direct(&sample, 1, {0, -1, -1, INT_MIN}, nullptr), vekErrNullPtr);
    expect(kind->badMagnitude, nullptr, 0, {0, -1, -1, INT_MIN});
    expect(kind->badFrequency, nullptr, 0, {1, 16384, -1, INT_MIN});
    if (kind->hasAsymmetry) expect(vekErrTrnglAsym, nullptr, 0, {1, 0, -1, 102944});
    expect(kind->badPhase, nullptr, 0, {1, 0, 205887, 0});
    expect(vekErrNullPtr, nullptr, 0, {1, 0, 0, 0});
    expect(vekErrSize, &sample, 0, {1, 0, 0, 0});
  }
}

}  // namespace
}  // namespace veks::test
