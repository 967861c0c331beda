// A file that comes into being only when it is complete.
#ifndef VEKS_WAV_OUTPUT_FILE_H
#define VEKS_WAV_OUTPUT_FILE_H

#include <cstddef>
#include <string>

namespace veks_wav {

// Writing goes to a temporary file in the directory of the output. commit() renames it to its
// name; without that the destructor removes it, and so does a signal that ends the program. There
// are at most two such files at a time.
class OutputFile {
 public:
  explicit OutputFile(const std::string& path);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  int descriptor() const {
    return descriptor_;
  }
  const std::string& path() const {
    return path_;
  }

  // Where the content is until then.
  const std::string& temporary() const {
    return temporary_;
  }

  void commit();

 private:
  void finish();

  std::string path_;
  std::string target_;
  std::string temporary_;
  int descriptor_ = -1;
  size_t place_ = 0;
  bool isUnfinished_ = false;
};

}  // namespace veks_wav

#endif
