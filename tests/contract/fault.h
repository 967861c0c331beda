// Calls that survive their own crashes.
#ifndef CONTRACT_FAULT_H
#define CONTRACT_FAULT_H

#include <signal.h>

#include <iterator>
#include <optional>

#include "contract/descriptor.h"

namespace veks::contract {

struct Fault {
  int signal;
  const void* address;
  std::optional<bool> isWrite;  // known on x86 only
};

// While one exists, callGuarded() can be used.
class FaultHandlers {
 public:
  FaultHandlers();
  ~FaultHandlers();
  FaultHandlers(const FaultHandlers&) = delete;
  FaultHandlers& operator=(const FaultHandlers&) = delete;

  // Lets faults happen again after a handler that has not returned.
  static void unblock();

 private:
  static constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL};
  struct sigaction previous_[std::size(kSignals)];
};

// Calls the function: its status, or the fault that ended it.
std::optional<Fault> callGuarded(const Descriptor& function, const Value* values,
                                 VekStatus& status);

}  // namespace veks::contract

#endif
