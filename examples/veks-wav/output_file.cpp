#include "output_file.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <filesystem>

#include "error.h"

namespace veks_wav {
namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<const char*> unfinished[2];
static_assert(std::atomic<const char*>::is_always_lock_free, "read by a signal handler");

void removeUnfinished(int signal) {
  for (const std::atomic<const char*>& file : unfinished) {
    if (const char* path = file) unlink(path);
  }
  // The handler was reset on entry: this time the signal ends the program.
  raise(signal);
}

void handleEndingSignals() {
  struct sigaction action = {};
  action.sa_handler = removeUnfinished;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
  for (int signal : kEndingSignals) {
    struct sigaction old = {};
    sigaction(signal, nullptr, &old);
    if (old.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
  }
  // A file that outgrows the limit of the process becomes a failing write.
  signal(SIGXFSZ, SIG_IGN);
}

// Keeps the ending signals out of a scope.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t held;
    sigemptyset(&held);
    for (int signal : kEndingSignals) sigaddset(&held, signal);
    sigprocmask(SIG_BLOCK, &held, &before_);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld() {
    sigprocmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t before_;
};

// The permissions of a new file, which are known only by changing them.
mode_t modeOfNewFiles() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

OutputFile::OutputFile(const std::string& path) : path_(path), target_(path) {
  handleEndingSignals();
  mode_t mode = modeOfNewFiles();
  struct stat status;
  if (stat(path.c_str(), &status) == 0) {
    // Devices and directories must not be renamed over; a link stays and its target is replaced.
    if (!S_ISREG(status.st_mode)) throw Error(path, "is not a regular file");
    if (access(path.c_str(), W_OK) != 0) throw systemError(path, "cannot be replaced", errno);
    target_ = std::filesystem::canonical(path).string();
    mode = status.st_mode & 07777;
  }
  temporary_ = (std::filesystem::path(target_).parent_path() / ".veks-wav-XXXXXX").string();
  const SignalsHeld held;
  descriptor_ = mkostemp(temporary_.data(), O_CLOEXEC);
  if (descriptor_ < 0) throw systemError(path, "cannot be created", errno);
  place_ = unfinished[0] == nullptr ? 0 : 1;
  unfinished[place_] = temporary_.c_str();
  isUnfinished_ = true;
  fchmod(descriptor_, mode);
}

OutputFile::~OutputFile() {
  close(descriptor_);
  if (isUnfinished_) {
    unlink(temporary_.c_str());
    finish();
  }
}

void OutputFile::commit() {
  if (fsync(descriptor_) != 0) throw systemError(path_, "cannot be written", errno);
  if (rename(temporary_.c_str(), target_.c_str()) != 0) {
    throw systemError(path_, "cannot be replaced", errno);
  }
  finish();
}

void OutputFile::finish() {
  unfinished[place_] = nullptr;
  isUnfinished_ = false;
}

}  // namespace veks_wav
