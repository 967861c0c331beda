// The number of threads of OpenMP teams, where there is OpenMP.
#ifndef VEKS_TESTS_OPENMP_H
#define VEKS_TESTS_OPENMP_H

#if __has_include(<omp.h>)
#include <omp.h>
#endif

namespace veks::test {

// For the calling thread, and while it exists.
class Threads {
 public:
#if __has_include(<omp.h>)
  explicit Threads(int n) : before_(omp_get_max_threads()) {
    omp_set_num_threads(n);
  }
  ~Threads() {
    omp_set_num_threads(before_);
  }
#else
  explicit Threads(int /*n*/) {}
#endif
  Threads(const Threads&) = delete;
  Threads& operator=(const Threads&) = delete;

 private:
  [[maybe_unused]] int before_ = 1;
};

}  // namespace veks::test

#endif
