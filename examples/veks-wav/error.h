// What a command reports when it fails: one line that names the file and the reason.
#ifndef VEKS_WAV_ERROR_H
#define VEKS_WAV_ERROR_H

#include <stdexcept>
#include <string>
#include <system_error>

namespace veks_wav {

class Error : public std::runtime_error {
 public:
  Error(const std::string& subject, const std::string& reason)
      : std::runtime_error(subject + ": " + reason) {}
};

// With the text of an errno value.
inline Error systemError(const std::string& subject, const std::string& what, int number) {
  return Error(subject, what + ": " + std::generic_category().message(number));
}

}  // namespace veks_wav

#endif
