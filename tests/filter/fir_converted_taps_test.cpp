// Floating-point taps that become integers and a factor, and back.
#include <cmath>
#include <limits>
#include <random>

#include "filter/fir_streams.h"

namespace veks::test::fir {
namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

// The integers that floating-point taps become, and their factor.
struct Converted {
  std::vector<Vek32s> taps;
  int factor = 0;
};

Converted converted(const std::vector<Vek32f>& taps) {
  long double most = 0;
  for (Vek32f tap : taps) most = std::fmax(most, std::fabs(static_cast<long double>(tap)));
  Converted result;
  if (most > 32767) {
    while (std::ldexp(most, -result.factor) > 32767) ++result.factor;
  } else if (most > 0) {
    while (std::ldexp(most, 1 - result.factor) < 32767) --result.factor;
  }
  for (Vek32f tap : taps) {
    const long double scaled = std::ldexp(static_cast<long double>(tap), -result.factor);
    result.taps.push_back(static_cast<Vek32s>(std::trunc(scaled + (tap >= 0 ? 0.5L : -0.5L))));
  }
  return result;
}

std::vector<std::vector<Vek32f>> floatTaps() {
  const Vek32f belowHalf = 0.49999997F / 16384;
  std::vector<std::vector<Vek32f>> all = {
      {1, -0.25F},         {0.5F, -1},         {32767, 1.5F},
      {32767.5F, -2.5F},   {32768, -32768},    {16383.5F, 0.5F},
      {16383.499F, -0.5F}, {1e6F, -3},         {0, 0},
      {0, -0.0F},          {1e-40F, -7e-41F},  {-1e-45F, 0},
      {3e38F, -1e38F},     {1e38F, 1},         {1, belowHalf},
      {1, -belowHalf},     {1, 0.5F / 16384},  {1, -1.5F / 16384},
      {-32766.5F, 2.5F},   {-0.001F, 0.0009F},
  };
  std::mt19937 random(3);
  for (int i = 0; i < 40; ++i) {
    std::vector<Vek32f> taps(2 * (1 + static_cast<size_t>(i) % 9));
    for (Vek32f& tap : taps) {
      tap = static_cast<Vek32f>(static_cast<int>(random()) >> random() % 20);
      tap = std::ldexp(tap, -i * 2);
    }
    all.push_back(taps);
  }
  return all;
}

template <auto initAlloc, auto init, auto set, auto get, auto size, class S, class T, class D>
void checkConversions(const Row& row, S* /*state*/, T /*tap*/, D /*sample*/) {
  for (const std::vector<Vek32f>& lanes : floatTaps()) {
    const Converted wanted = converted(lanes);
    const int tapsLen = static_cast<int>(lanes.size() / row.lanes);
    std::vector<T> taps(static_cast<size_t>(tapsLen));
    std::memcpy(taps.data(), lanes.data(), lanes.size() * sizeof(Vek32f));
    int bytes = 0;
    ASSERT_EQ(size(tapsLen, &bytes), vekStsOk);
    Bytes buffer(static_cast<size_t>(bytes));
    const std::vector<D> line(taps.size(), D{});
    S* states[3] = {};
    ASSERT_EQ(initAlloc(&states[0], taps.data(), tapsLen, line.data()), vekStsOk);
    ASSERT_EQ(init(&states[1], taps.data(), tapsLen, nullptr, buffer.data()), vekStsOk);
    const Bytes zeros(lanes.size() * sizeof(Vek32s));
    void* made = nullptr;
    ASSERT_EQ(row.initAlloc(&made, zeros.data(), tapsLen, 99, nullptr), vekStsOk);
    states[2] = static_cast<S*>(made);
    ASSERT_EQ(set(taps.data(), states[2]), vekStsOk);
    for (S* state : states) {
      std::vector<Vek32s> integers(lanes.size());
      int factor = -77;
      ASSERT_EQ(row.getTaps(state, integers.data(), &factor), vekStsOk);
      EXPECT_EQ(integers, wanted.taps) << testing::PrintToString(lanes);
      EXPECT_EQ(factor, wanted.factor) << testing::PrintToString(lanes);
      std::vector<T> back(taps.size());
      ASSERT_EQ(get(state, back.data()), vekStsOk);
      for (size_t i = 0; i < lanes.size(); ++i) {
        const auto tap = static_cast<Vek32f>(
            std::ldexp(static_cast<long double>(wanted.taps[i]), wanted.factor));
        EXPECT_EQ(laneAt(Type::k32f, back.data(), i), tap) << testing::PrintToString(lanes);
      }
      EXPECT_EQ(row.release(state), vekStsOk);
    }
  }
}

TEST(FirConvertedTaps, FloatTapsBecomeIntegersOfOneFactor) {
  checkConversions<veksFIRInitAlloc32s_16s32f, veksFIRInit32s_16s32f, veksFIRSetTaps32s_16s32f,
                   veksFIRGetTaps32s_16s32f, veksFIRGetStateSize32s_16s32f>(
      rows()[12], static_cast<VeksFIRState_32s_16s*>(nullptr), Vek32f{}, Vek16s{});
  checkConversions<veksFIRInitAlloc32sc_16sc32fc, veksFIRInit32sc_16sc32fc,
                   veksFIRSetTaps32sc_16sc32fc, veksFIRGetTaps32sc_16sc32fc,
                   veksFIRGetStateSize32sc_16sc32fc>(
      rows()[13], static_cast<VeksFIRState_32sc_16sc*>(nullptr), Vek32fc{}, Vek16sc{});
}

// Any integers with any factor come back rounded once.
TEST(FirConvertedTaps, TapsComeBackAsFloats) {
  const std::vector<Vek32s> taps = {kIntMin, kIntMax, 0, 1, -1, 0x1000001, 0x1000003, -12345};
  for (int factor : {0, 5, -5, 100, -100, 31, -31, -126, 127, 300, -300, kIntMin, kIntMax}) {
    VeksFIRState_32s_16s* state = nullptr;
    ASSERT_EQ(veksFIRInitAlloc32s_16s(&state, taps.data(), 8, factor, nullptr), vekStsOk);
    Vek32f back[8];
    ASSERT_EQ(veksFIRGetTaps32s_16s32f(state, back), vekStsOk);
    for (size_t i = 0; i < 8; ++i) {
      const int limited = factor > 400 ? 400 : (factor < -400 ? -400 : factor);
      EXPECT_EQ(back[i],
                static_cast<Vek32f>(std::ldexp(static_cast<long double>(taps[i]), limited)))
          << taps[i] << " * 2^" << factor;
    }
    EXPECT_EQ(veksFIRFree32s_16s(state), vekStsOk);
  }
}

TEST(FirConvertedTaps, FormsOfFloatTapsCheckTheirArguments) {
  const Vek32f taps[3] = {1, 2, 3};
  VeksFIRState_32s_16s* state = nullptr;
  alignas(16) Vek8u buffer[64] = {};
  for (int n : {3, 0}) {
    EXPECT_EQ(veksFIRInitAlloc32s_16s32f(nullptr, taps, n, nullptr), vekErrNullPtr);
    EXPECT_EQ(veksFIRInitAlloc32s_16s32f(&state, nullptr, n, nullptr), vekErrNullPtr);
    EXPECT_EQ(veksFIRInit32s_16s32f(nullptr, taps, n, nullptr, buffer), vekErrNullPtr);
    EXPECT_EQ(veksFIRInit32s_16s32f(&state, nullptr, n, nullptr, buffer), vekErrNullPtr);
    EXPECT_EQ(veksFIRInit32s_16s32f(&state, taps, n, nullptr, nullptr), vekErrNullPtr);
  }
  EXPECT_EQ(veksFIRInitAlloc32s_16s32f(&state, taps, 0, nullptr), vekErrFIRLen);
  EXPECT_EQ(veksFIRInit32s_16s32f(&state, taps, -1, nullptr, buffer), vekErrFIRLen);
  EXPECT_EQ(state, nullptr);
  Vek32f back[3] = {};
  ASSERT_EQ(veksFIRInitAlloc32s_16s32f(&state, taps, 3, nullptr), vekStsOk);
  auto* const none = reinterpret_cast<VeksFIRState_32s_16s*>(buffer);
  EXPECT_EQ(veksFIRSetTaps32s_16s32f(nullptr, none), vekErrNullPtr);
  EXPECT_EQ(veksFIRSetTaps32s_16s32f(taps, nullptr), vekErrNullPtr);
  EXPECT_EQ(veksFIRSetTaps32s_16s32f(taps, none), vekErrContextMatch);
  EXPECT_EQ(veksFIRGetTaps32s_16s32f(none, nullptr), vekErrNullPtr);
  EXPECT_EQ(veksFIRGetTaps32s_16s32f(nullptr, back), vekErrNullPtr);
  EXPECT_EQ(veksFIRGetTaps32s_16s32f(none, back), vekErrContextMatch);
  EXPECT_EQ(veksFIRFree32s_16s(state), vekStsOk);
}

}  // namespace
}  // namespace veks::test::fir
