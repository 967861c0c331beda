// Lengths up to 2^31 - 1, on address ranges that repeat a few pages of memory.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "support.h"
#include "veks/stats/extremes.h"
#include "veks/stats/norms.h"
#include "veks/vector/initialisation.h"
#include "veks/vector/logical.h"

namespace veks::test {
namespace {

// `bytes` bytes with memory of their own for the first and the last block only; the blocks between
// share one. The range ends kAfter bytes before an inaccessible page.
class LongRange {
 public:
  explicit LongRange(size_t bytes) : bytes_(bytes) {
    const size_t blocks = (bytes + kAfter + kBlock - 1) / kBlock;
    size_ = blocks * kBlock;
    void* const reserved = mmap(nullptr, size_ + kBlock, PROT_NONE,
                                MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (reserved == MAP_FAILED) return;
    base_ = static_cast<uint8_t*>(reserved);
    const int file = memfd_create("long_test", 0);
    good_ = file >= 0 && ftruncate(file, 3 * kBlock) == 0;
    for (size_t block = 0; good_ && block < blocks; ++block) {
      const size_t part = block == 0 ? 0 : (block == blocks - 1 ? 2 : 1);
      good_ = mmap(base_ + block * kBlock, kBlock, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED,
                   file, static_cast<off_t>(part * kBlock)) != MAP_FAILED;
    }
    close(file);
  }
  ~LongRange() {
    if (base_ != nullptr) munmap(base_, size_ + kBlock);
  }
  LongRange(const LongRange&) = delete;
  LongRange& operator=(const LongRange&) = delete;

  bool good() const {
    return good_;
  }
  template <class T>
  T* begin() const {
    return reinterpret_cast<T*>(base_ + size_ - kAfter - bytes_);
  }
  template <class T>
  T* end() const {
    return reinterpret_cast<T*>(base_ + size_ - kAfter);
  }

  // All elements, and what lies around them.
  template <class T>
  void fill(T value) const {
    const size_t count = kBlock / sizeof(T);
    for (uint8_t* const block : {base_, base_ + kBlock, base_ + size_ - kBlock}) {
      std::fill_n(reinterpret_cast<T*>(block), count, value);
    }
  }

  static constexpr size_t kAfter = 64;

 private:
  static constexpr size_t kBlock = size_t{1} << 22;
  size_t bytes_;
  size_t size_ = 0;
  uint8_t* base_ = nullptr;
  bool good_ = false;
};

constexpr int kMaxLen = std::numeric_limits<int>::max();

// The shared block stays in the caches; past them the test would wait for memory.
class LongVectors : public testing::Test {
 protected:
  void SetUp() override {
    streamingBytes = std::numeric_limits<size_t>::max();
  }
  void TearDown() override {
    streamingBytes = saved_;
  }

 private:
  size_t saved_ = streamingBytes;
};

TEST_F(LongVectors, SetBeyondFourGiB) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "8 GiB do not fit the address space";
  const LongRange dst(static_cast<size_t>(kMaxLen) * sizeof(Vek32f));
  ASSERT_TRUE(dst.good());
  ASSERT_EQ(veksSet_32f(1.5F, dst.begin<Vek32f>(), kMaxLen), vekStsOk);
  EXPECT_EQ(dst.begin<Vek32f>()[0], 1.5F);
  EXPECT_EQ(dst.begin<Vek32f>()[kMaxLen / 2], 1.5F);
  EXPECT_EQ(dst.end<Vek32f>()[-1], 1.5F);
  EXPECT_EQ(dst.end<Vek32f>()[0], 0.0F);
}

TEST_F(LongVectors, InPlaceAtTheLargestLength) {
  const LongRange range(static_cast<size_t>(kMaxLen));
  if (!range.good()) GTEST_SKIP() << "2 GiB do not fit the address space";
  Vek8u* const srcDst = range.begin<Vek8u>();
  srcDst[0] = 1;
  srcDst[1] = 2;
  range.end<Vek8u>()[-2] = 3;
  range.end<Vek8u>()[-1] = 4;
  ASSERT_EQ(veksFlip_8u_I(srcDst, kMaxLen), vekStsOk);
  EXPECT_EQ(srcDst[0], 4);
  EXPECT_EQ(srcDst[1], 3);
  EXPECT_EQ(range.end<Vek8u>()[-2], 2);
  EXPECT_EQ(range.end<Vek8u>()[-1], 1);

  ASSERT_EQ(veksXorC_8u_I(0xF0, srcDst, kMaxLen), vekStsOk);
  EXPECT_EQ(srcDst[0], 0xF4);
  EXPECT_EQ(range.end<Vek8u>()[-1], 0xF1);
  EXPECT_EQ(range.end<Vek8u>()[0], 0);

  ASSERT_EQ(veksMove_8u(srcDst, srcDst + 1, kMaxLen - 1), vekStsOk);
  EXPECT_EQ(srcDst[1], 0xF4);
  EXPECT_EQ(range.end<Vek8u>()[-1], 0xF2);
}

TEST_F(LongVectors, NormsOfTheLargestLength) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "8 GiB do not fit the address space";
  const LongRange low(static_cast<size_t>(kMaxLen) * sizeof(Vek16s));
  const LongRange high(static_cast<size_t>(kMaxLen) * sizeof(Vek16s));
  ASSERT_TRUE(low.good() && high.good());
  low.fill(Vek16s{-32768});
  high.fill(Vek16s{32767});
  const Vek16s* const src1 = low.begin<Vek16s>();
  const Vek16s* const src2 = high.begin<Vek16s>();
  Vek32s sum = 0;
  ASSERT_EQ(veksNormDiff_L1_16s32s_Sfs(src1, src2, kMaxLen, &sum, 17), vekStsOk);
  EXPECT_EQ(sum, 1073725440);  // (2^31 - 1) (2^16 - 1) / 2^17 = 2^30 - 2^14 - 1/2 + 2^-17
  Vek32f root = 0;
  ASSERT_EQ(veksNormDiff_L2_16s32f(src1, src2, kMaxLen, &root), vekStsOk);
  EXPECT_EQ(root, static_cast<Vek32f>(65535 * std::sqrt(double{kMaxLen})));
  low.end<Vek16s>()[-1] = 5;
  Vek16s max = 0;
  int index = 0;
  ASSERT_EQ(veksMaxIndx_16s(src1, kMaxLen, &max, &index), vekStsOk);
  EXPECT_EQ(max, 5);
  EXPECT_EQ(index, kMaxLen - 1);
}

}  // namespace
}  // namespace veks::test
