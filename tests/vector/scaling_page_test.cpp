// The tables of docs/scaling.md. With VEKS_WRITE_DOCS in the environment, writes their results
// instead of comparing them.
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

#include "support.h"
#include "veks/vector/arithmetic.h"

namespace veks::test {
namespace {

using Row = std::function<std::string(const std::vector<long long>&)>;

template <class T>
Row row(VekStatus (*function)(const T*, const T*, T*, int, int)) {
  return [=](const std::vector<long long>& cells) {
    const T first = static_cast<T>(cells.at(0));
    const T second = static_cast<T>(cells.at(1));
    T result = 0;
    EXPECT_EQ(function(&first, &second, &result, 1, static_cast<int>(cells.at(2))), vekStsOk);
    return std::to_string(result);
  };
}

const std::map<std::string, Row> kFunctions = {
    {"veksAdd_8u_Sfs", row(veksAdd_8u_Sfs)},   {"veksAdd_16s_Sfs", row(veksAdd_16s_Sfs)},
    {"veksAdd_64s_Sfs", row(veksAdd_64s_Sfs)}, {"veksSub_8u_Sfs", row(veksSub_8u_Sfs)},
    {"veksSub_16s_Sfs", row(veksSub_16s_Sfs)}, {"veksMul_16s_Sfs", row(veksMul_16s_Sfs)},
    {"veksMul_16u_Sfs", row(veksMul_16u_Sfs)}, {"veksMul_32s_Sfs", row(veksMul_32s_Sfs)}};

// A line of a table with its last cell computed, any other line as it is.
std::string computed(const std::string& line, size_t& rows) {
  const size_t name = line.find("| `veks");
  if (name != 0) return line;
  ++rows;
  const size_t end = line.find('`', 3);
  std::istringstream cells(line.substr(end + 1));
  std::vector<long long> numbers;
  for (char bar; cells >> bar && numbers.size() < 3;) {
    long long number = 0;
    cells >> number;
    numbers.push_back(number);
  }
  const std::string function = line.substr(3, end - 3);
  std::string text = "| `" + function + "` |";
  for (long long number : numbers) text += " " + std::to_string(number) + " |";
  return text + " " + kFunctions.at(function)(numbers) + " |";
}

TEST(ScalingPage, TellsTheResults) {
  std::ifstream page(VEKS_SCALING_PAGE);
  ASSERT_TRUE(page.is_open());
  std::string text;
  size_t rows = 0;
  for (std::string line; std::getline(page, line);) {
    const std::string expected = computed(line, rows);
    text += expected + "\n";
    if (std::getenv("VEKS_WRITE_DOCS") == nullptr) {
      EXPECT_EQ(line, expected);
    }
  }
  EXPECT_GT(rows, 20U);
  if (std::getenv("VEKS_WRITE_DOCS") != nullptr) std::ofstream(VEKS_SCALING_PAGE) << text;
}

}  // namespace
}  // namespace veks::test
