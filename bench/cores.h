// The cores that the process runs on.
#ifndef VEKS_BENCH_CORES_H
#define VEKS_BENCH_CORES_H

#include <sched.h>

namespace veks::bench {

// Pins the process to the last of the cores that it may use: the first serves most interrupts.
// Returns the core, -1 if that failed.
int pinToOneCore();

// Lets the calling thread, and those that it starts, use all of them again for as long as the
// object lives.
class AllCores {
 public:
  AllCores();
  AllCores(const AllCores&) = delete;
  AllCores& operator=(const AllCores&) = delete;
  ~AllCores();

  int count() const;

 private:
  cpu_set_t before_;
};

}  // namespace veks::bench

#endif
