#include "contract/fault.h"

#include <setjmp.h>
#include <ucontext.h>

// Leaves the signals to the handler below in builds with the address sanitizer, which gives the
// name. NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" __attribute__((used, visibility("default"))) const char* __asan_default_options() {
  return "allow_user_segv_handler=1:handle_segv=0:handle_sigbus=0:handle_sigfpe=0:handle_sigill=0";
}

namespace veks::contract {
namespace {

sigjmp_buf beforeCall;
volatile sig_atomic_t inCall = 0;
Fault lastFault;

std::optional<bool> triedToWrite([[maybe_unused]] const void* context) {
#if defined(__x86_64__) || defined(__i386__)
  constexpr greg_t kWrite = 2;  // bit of the error code of a page fault
  return (static_cast<const ucontext_t*>(context)->uc_mcontext.gregs[REG_ERR] & kWrite) != 0;
#else
  return std::nullopt;
#endif
}

void onFault(int signal, siginfo_t* info, void* context) {
  if (!inCall) {
    // The same instruction faults again, without this handler.
    ::signal(signal, SIG_DFL);
    return;
  }
  lastFault = {signal, info->si_addr, triedToWrite(context)};
  siglongjmp(beforeCall, 1);
}

}  // namespace

FaultHandlers::FaultHandlers() {
  struct sigaction action = {};
  action.sa_sigaction = onFault;
  action.sa_flags = SA_SIGINFO;
  for (size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &action, &previous_[i]);
}

FaultHandlers::~FaultHandlers() {
  for (size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &previous_[i], nullptr);
}

void FaultHandlers::unblock() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : kSignals) sigaddset(&signals, signal);
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

// The signal mask is only set right after a fault: saving it takes longer than most calls.
std::optional<Fault> callGuarded(const Descriptor& function, const Value* values,
                                 VekStatus& status) {
  if (sigsetjmp(beforeCall, 0) != 0) {
    inCall = 0;
    FaultHandlers::unblock();
    return lastFault;
  }
  inCall = 1;
  status = function.call(values);
  inCall = 0;
  return std::nullopt;
}

}  // namespace veks::contract
