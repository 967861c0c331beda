// The scale-factor rule, scalar and vector form, against sign-and-magnitude arithmetic.
#include "core/scale.h"

#include <limits>
#include <numeric>

#include "support.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "core/scale_kernels-inl.h"
#include <hwy/foreach_target.h>

#include "core/scale_kernels-inl.h"

namespace veks::test {
namespace {

// r * 2^-s, ties to even, saturated to Dst, from the magnitude of r in unsigned arithmetic.
template <class Dst, class Wide = int64_t>
int64_t expected(Wide r, int s) {
  const bool negative = r < Wide{0};
  const uint64_t magnitude = negative ? ~static_cast<uint64_t>(r) + 1 : static_cast<uint64_t>(r);
  const uint64_t limit = negative
                             ? ~static_cast<uint64_t>(int64_t{std::numeric_limits<Dst>::min()}) + 1
                             : static_cast<uint64_t>(std::numeric_limits<Dst>::max());
  uint64_t scaled = magnitude;
  if (s > 64) {
    scaled = 0;
  } else if (s == 64) {
    scaled = magnitude > (uint64_t{1} << 63) ? 1 : 0;
  } else if (s > 0) {
    scaled = magnitude >> s;
    const uint64_t rest = magnitude - (scaled << s);
    const uint64_t half = uint64_t{1} << (s - 1);
    if (rest > half || (rest == half && scaled % 2 == 1)) ++scaled;
  } else if (s < 0) {
    for (int64_t doublings = -int64_t{s}; doublings > 0 && scaled != 0 && scaled <= limit;
         --doublings) {
      scaled = scaled > limit / 2 ? limit + 1 : 2 * scaled;
    }
  }
  if (scaled > limit) scaled = limit;
  return static_cast<int64_t>(negative ? ~scaled + 1 : scaled);
}

std::vector<int> scaleFactors() {
  std::vector<int> all(141);
  std::iota(all.begin(), all.end(), -70);
  for (int s : {std::numeric_limits<int>::min(), std::numeric_limits<int>::min() + 1, -1000, 1000,
                std::numeric_limits<int>::max() - 1, std::numeric_limits<int>::max()}) {
    all.push_back(s);
  }
  return all;
}

// Every value of 16 bits and more; beyond, the neighbourhoods of all powers of two and random
// values of every magnitude.
template <class Wide>
std::vector<Wide> intermediates() {
  std::vector<Wide> all;
  const int64_t reach = sizeof(Wide) == 2 ? 32768 : 1 << 17;
  for (int64_t r = -reach; r < reach; ++r) all.push_back(static_cast<Wide>(r));
  if (sizeof(Wide) == 2) return all;  // 65536 values
  std::mt19937_64 random(7);
  using Unsigned = std::make_unsigned_t<Wide>;
  for (int bit = 0; bit < kWidth<Wide>; ++bit) {
    for (int offset = -3; offset <= 3; ++offset) {
      const auto r = static_cast<Unsigned>((Unsigned{1} << bit) + static_cast<Unsigned>(offset));
      all.push_back(static_cast<Wide>(r));
      all.push_back(static_cast<Wide>(Unsigned{0} - r));
    }
    for (int i = 0; i < 500; ++i) {
      all.push_back(static_cast<Wide>(static_cast<Wide>(random()) >> bit));
    }
  }
  while (all.size() % 64 != 0) all.push_back(0);
  return all;
}

template <class Dst_, class Wide_>
struct Types {
  using Dst = Dst_;
  using Wide = Wide_;
};

template <class T>
class ScaleRule : public testing::Test {};

using Combinations =
    testing::Types<Types<Vek8u, int16_t>, Types<Vek8s, int16_t>, Types<Vek16s, int16_t>,
                   Types<Vek8u, int32_t>, Types<Vek16s, int32_t>, Types<Vek16u, int32_t>,
                   Types<Vek32s, int32_t>, Types<Vek16s, int64_t>, Types<Vek32s, int64_t>,
                   Types<Vek32u, int64_t>, Types<Vek64s, int64_t>, Types<Vek8u, uint16_t>,
                   Types<Vek8u, uint8_t>, Types<Vek16u, uint32_t>, Types<Vek16u, uint16_t>>;
TYPED_TEST_SUITE(ScaleRule, Combinations);

TYPED_TEST(ScaleRule, IsExact) {
  using Dst = typename TypeParam::Dst;
  using Wide = typename TypeParam::Wide;
  const std::vector<Wide> src = intermediates<Wide>();
  std::vector<Wide> wanted(src.size());
  std::vector<Wide> scaled(src.size());
  for (int s : scaleFactors()) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    for (size_t i = 0; i < src.size(); ++i)
      wanted[i] = static_cast<Wide>(expected<Dst, Wide>(src[i], s));

    const Scale scale = chooseScale<Dst>(s, kMagnitude<Wide>);
    for (size_t i = 0; i < src.size(); ++i)
      scaled[i] = static_cast<Wide>(scaleTo<Dst>(src[i], scale));
    ASSERT_TRUE(sameBits(wanted, scaled)) << "scalar form";

    onEveryTarget([&] {
      const auto scaleVector = VEKS_KERNEL(ScaleVector<Dst, Wide>);
      ASSERT_EQ(scaleVector(src.data(), s, scaled.data(), src.size()), vekStsOk);
      ASSERT_TRUE(sameBits(wanted, scaled)) << "vector form";
    });
    if (this->HasFatalFailure()) return;
  }
}

// The reference itself on published values.
TEST(ScaleRuleReference, RoundsTiesToEvenAndSaturates) {
  const struct {
    int64_t r;
    int s;
    int64_t result;
  } cases[] = {{1, 1, 0},        {3, 1, 2},         {5, 1, 2},         {-1, 1, 0},
               {-3, 1, -2},      {65534, 0, 32767}, {65534, 1, 32767}, {-65536, 1, -32768},
               {-65536, 17, 0},  {1, -16, 32767},   {-1, -16, -32768}, {0, -16, 0},
               {1 << 30, 30, 1}, {1 << 30, 31, 0},  {7, -2, 28}};
  for (const auto& c : cases) {
    EXPECT_EQ(expected<Vek16s>(c.r, c.s), c.result) << c.r << " scaled by " << c.s;
  }
}

}  // namespace
}  // namespace veks::test
