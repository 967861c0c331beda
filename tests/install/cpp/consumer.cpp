#include <veks.h>

#include <iostream>
#include <vector>

int main() {
  const std::vector<Vek32u> src = {1, 2, 3, 4};
  std::vector<Vek32u> dst(src.size());
  if (veksAndC_32u(src.data(), 1, dst.data(), 4) != vekStsOk) return 1;
  for (Vek32u x : dst) std::cout << x << ' ';
  std::cout << "on " << vekGetTargetName() << '\n';
  std::cout << "from " << veksGetLibVersion()->libraryName << '\n';
  return 0;
}
