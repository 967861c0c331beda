#include "cores.h"

namespace veks::bench {
namespace {

// Of the process when it started.
const cpu_set_t& allowed() {
  static const cpu_set_t cores = [] {
    cpu_set_t set;
    CPU_ZERO(&set);
    sched_getaffinity(0, sizeof(set), &set);
    return set;
  }();
  return cores;
}

}  // namespace

int pinToOneCore() {
  int core = CPU_SETSIZE - 1;
  while (core >= 0 && !CPU_ISSET(core, &allowed())) --core;
  if (core < 0) return -1;
  cpu_set_t one;
  CPU_ZERO(&one);
  CPU_SET(core, &one);
  return sched_setaffinity(0, sizeof(one), &one) == 0 ? core : -1;
}

AllCores::AllCores() {
  sched_getaffinity(0, sizeof(before_), &before_);
  sched_setaffinity(0, sizeof(cpu_set_t), &allowed());
}

AllCores::~AllCores() {
  sched_setaffinity(0, sizeof(before_), &before_);
}

int AllCores::count() const {
  return CPU_COUNT(&allowed());
}

}  // namespace veks::bench
