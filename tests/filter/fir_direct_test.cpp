// Filters without a state.
#include <limits>

#include "filter/fir_walks.h"

namespace veks::test::fir {
namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

TEST(FirDirect, FollowsTheRuleOfOneSample) {
  DirectVectors vectors;
  for (const Row& row : directRows()) {
    for (size_t taps : Sizes{1, 2, 3, 4, 7, 8, 11, 12, 15, 16, 17, 31, 33, 64, 65, 127}) {
      const size_t lengths[] = {1, 2 * taps + 3, 1, 5, taps, 3, 2, taps + 1, 8, 17, 300, 1, 70};
      const Stream stream(row, taps, 1000);
      onEveryTarget([&] {
        for (size_t index : {size_t{0}, taps / 2, taps - 1}) {
          DirectWalk walk(stream, index, vectors);
          for (size_t n : lengths) {
            walk.next(n, walk.left() % 2 == 0 ? DirectWalk::kBlock : DirectWalk::kInPlace);
            walk.next(1, DirectWalk::kOne);
            walk.next(1, DirectWalk::kOneInPlace);
            if (testing::Test::HasFailure()) return;
          }
        }
      });
    }
  }
}

TEST(FirDirect, FiltersLongVectors) {
  DirectVectors vectors;
  for (const Row& row : directRows()) {
    for (size_t taps : Sizes{5, 600}) {
      const Stream stream(row, taps, 6000);
      DirectWalk walk(stream, taps / 3, vectors);
      walk.next(3500, DirectWalk::kBlock);
      walk.next(walk.left(), DirectWalk::kInPlace);
    }
  }
}

// The last bits are the same in place, and of one sample as of a block of one.
TEST(FirDirect, AllFormsGiveTheSame) {
  for (const Row& row : directRows()) {
    for (size_t taps : Sizes{1, 3, 13, 40}) {
      const Stream stream(row, taps, 50);
      const int tapsLen = static_cast<int>(taps);
      const int factor = stream.signal().tapsFactor;
      const int scale = stream.signal().scaleFactor;
      const size_t bytes = stream.sampleBytes();
      Bytes results[3] = {};
      for (size_t form = 0; form < 3; ++form) {
        Bytes& all = results[form];
        all.assign(stream.samples(0), stream.samples(0) + stream.size() * bytes);
        Bytes line(2 * taps * bytes);
        int index = 0;
        if (form == 0) {
          row.direct(stream.samples(0), all.data(), 50, stream.taps().data(), tapsLen, factor,
                     line.data(), &index, scale);
        } else if (form == 1) {
          row.directInPlace(all.data(), 50, stream.taps().data(), tapsLen, factor, line.data(),
                            &index, scale);
        } else {
          for (size_t i = 0; i < stream.size(); ++i) {
            row.oneDirectInPlace(&all[i * bytes], stream.taps().data(), tapsLen, factor,
                                 line.data(), &index, scale);
          }
        }
      }
      EXPECT_EQ(results[0], results[1]) << row.name << ", " << taps << " taps";
      EXPECT_EQ(results[0], results[2]) << row.name << ", " << taps << " taps";
    }
  }
}

// 2^30 + 1 - 2^30, which single precision cannot sum.
TEST(FirDirect, SumsInDoublePrecision) {
  DirectVectors vectors;
  for (const Row& row : rows()) {
    if (row.hasIntegerTaps()) continue;
    for (size_t taps : Sizes{3, 9, 24}) {
      Signal signal;
      signal.tapsLen = taps;
      signal.isExact = true;
      signal.taps.resize(row.lanes * taps);
      signal.taps[0] = int64_t{1} << 30;
      signal.taps[row.lanes * (taps / 2)] = 1;
      signal.taps[row.lanes * (taps - 1)] = -(int64_t{1} << 30);
      signal.past.assign(row.lanes * taps, 1);
      signal.samples.assign(row.lanes * 40, 1);
      const Stream stream(row, signal);
      onEveryTarget([&] {
        DirectWalk walk(stream, 1, vectors);
        for (int i = 0; i < 4; ++i) {
          walk.next(8, DirectWalk::kBlock);
          walk.next(1, DirectWalk::kOne);
        }
      });
    }
  }
}

// Arguments of a call, and what it may write.
struct Call {
  alignas(16) unsigned char dst[32];
  alignas(16) unsigned char line[64];
  int index = 1;

  void* dstAt = dst;
  const void* srcAt = line;
  int n = 1;
  const void* taps = line;
  int tapsLen = 2;
  void* lineAt = line;
  int* indexAt = &index;

  Call() {
    std::memset(dst, 0xA5, sizeof(dst));
    std::memset(line, 1, sizeof(line));
  }
  bool isUntouched(int before) const {
    const auto all = [](const auto& bytes, int value) {
      return std::all_of(bytes, bytes + sizeof(bytes), [&](int byte) { return byte == value; });
    };
    return index == before && all(dst, 0xA5) && all(line, 1);
  }
  VekStatus of(const Row& row, int form) {
    switch (form) {
      case 0:
        return row.direct(srcAt, dstAt, n, taps, tapsLen, 0, lineAt, indexAt, 0);
      case 1:
        return row.directInPlace(dstAt, n, taps, tapsLen, 0, lineAt, indexAt, 0);
      case 2:
        return row.oneDirect(line, dstAt, taps, tapsLen, 0, lineAt, indexAt, 0);
      default:
        return row.oneDirectInPlace(dstAt, taps, tapsLen, 0, lineAt, indexAt, 0);
    }
  }
};

// Each bad argument, in the order of the checks; those before it win.
TEST(FirDirect, ChecksArgumentsInOrder) {
  struct Fault {
    void (*apply)(Call&);
    VekStatus status;
    bool inBlocksOnly;
  };
  const Fault faults[] = {
      {[](Call& call) { call.srcAt = call.dstAt = nullptr; }, vekErrNullPtr, false},
      {[](Call& call) { call.n = 0; }, vekErrSize, true},
      {[](Call& call) { call.n = kIntMin; }, vekErrSize, true},
      {[](Call& call) { call.taps = nullptr; }, vekErrNullPtr, false},
      {[](Call& call) { call.tapsLen = 0; }, vekErrFIRLen, false},
      {[](Call& call) { call.tapsLen = kIntMin; }, vekErrFIRLen, false},
      {[](Call& call) { call.lineAt = nullptr; }, vekErrNullPtr, false},
      {[](Call& call) { call.indexAt = nullptr; }, vekErrNullPtr, false},
  };
  for (const Row& row : directRows()) {
    for (int form = 0; form < 4; ++form) {
      SCOPED_TRACE(std::string(row.name) + ", form " + std::to_string(form));
      for (const Fault& first : faults) {
        if (first.inBlocksOnly && form >= 2) continue;
        for (const Fault* second = &first; second != std::end(faults); ++second) {
          Call call;
          first.apply(call);
          second->apply(call);
          // One sample of Q15: all pointers before the number of taps.
          const bool isOfQ15 = row.tap == Type::k16s && form >= 2 &&
                               second->status == vekErrNullPtr && first.status == vekErrFIRLen;
          EXPECT_EQ(call.of(row, form), isOfQ15 ? vekErrNullPtr : first.status);
          EXPECT_TRUE(call.isUntouched(1));
        }
      }
      Call noSource;
      noSource.srcAt = nullptr;
      noSource.n = 0;
      EXPECT_EQ(noSource.of(row, 0), vekErrNullPtr);
    }
  }
}

TEST(FirDirect, ChecksTheIndexOfQ15) {
  for (int form = 0; form < 4; ++form) {
    for (int index : {2, 3, 100, -1, kIntMin, kIntMax}) {
      Call call;
      call.index = index;
      EXPECT_EQ(call.of(rowOfQ15(), form), vekErrDlyLineIndex) << form;
      EXPECT_TRUE(call.isUntouched(index));
      call.tapsLen = 0;
      EXPECT_EQ(call.of(rowOfQ15(), form), vekErrFIRLen) << form;
      call.lineAt = nullptr;
      call.tapsLen = 2;
      EXPECT_EQ(call.of(rowOfQ15(), form), vekErrNullPtr) << form;
      EXPECT_TRUE(call.isUntouched(index));
    }
  }
}

}  // namespace
}  // namespace veks::test::fir
