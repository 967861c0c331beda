#include "plot/gnuplot.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "error.h"

namespace veks_wav {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const {
    std::fclose(file);
  }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// A file without a name. Unlike with pipes neither side waits for the other, however much there is.
File nameless() {
  File file(std::tmpfile());
  if (!file) throw systemError("a temporary file", "cannot be created", errno);
  return file;
}

File fileWith(const std::string& text) {
  File file = nameless();
  if (std::fwrite(text.data(), 1, text.size(), file.get()) != text.size() ||
      std::fflush(file.get()) != 0) {
    throw systemError("a temporary file", "cannot be written", errno);
  }
  std::rewind(file.get());
  return file;
}

std::string firstLine(std::FILE* file) {
  std::rewind(file);
  char line[200];
  while (std::fgets(line, sizeof line, file)) {
    line[std::strcspn(line, "\n")] = '\0';
    if (line[std::strspn(line, " \t^")] != '\0') return line;
  }
  return "";
}

std::string reasonOfFailure(int status, std::FILE* errors) {
  if (WIFSIGNALED(status)) return std::string("gnuplot was ended: ") + strsignal(WTERMSIG(status));
  const std::string message = firstLine(errors);
  return message.empty() ? "gnuplot did not complete it" : "gnuplot failed: " + message;
}

pid_t spawnGnuplot(int in, int out, int err) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, err, STDERR_FILENO);

  // Ignored signals would be inherited.
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t restored;
  sigemptyset(&restored);
  sigaddset(&restored, SIGXFSZ);
  posix_spawnattr_setsigdefault(&attributes, &restored);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);

  char program[] = "gnuplot";
  char ownSettings[] = "--default-settings";
  char* arguments[] = {program, ownSettings, nullptr};
  pid_t child = -1;
  const int error = posix_spawnp(&child, program, &actions, &attributes, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  if (error == ENOENT) {
    throw Error("gnuplot", "not found; pictures need the package gnuplot or gnuplot-nox");
  }
  if (error != 0) throw systemError("gnuplot", "cannot be run", error);
  return child;
}

int waitFor(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw systemError("gnuplot", "cannot be waited for", errno);
  }
  return status;
}

bool isPng(int descriptor) {
  constexpr char kSignature[] = "\x89PNG\r\n\x1a\n";
  constexpr char kLastChunk[] = "IEND\xae\x42\x60\x82";
  constexpr size_t kSize = 8;
  char begin[kSize];
  char end[kSize];
  const off_t size = lseek(descriptor, 0, SEEK_END);
  return size > 2 * static_cast<off_t>(kSize) && pread(descriptor, begin, kSize, 0) == kSize &&
         pread(descriptor, end, kSize, size - static_cast<off_t>(kSize)) == kSize &&
         std::memcmp(begin, kSignature, kSize) == 0 && std::memcmp(end, kLastChunk, kSize) == 0;
}

}  // namespace

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) {
    const bool isControl = static_cast<unsigned char>(c) < ' ' || c == '\x7f';
    result += isControl ? '?' : c;
    if (c == '\'') result += c;
  }
  return result + "'";
}

void drawPng(const std::string& script, OutputFile& picture) {
  const File in = fileWith(script);
  const File err = nameless();
  const int status =
      waitFor(spawnGnuplot(fileno(in.get()), picture.descriptor(), fileno(err.get())));
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || !isPng(picture.descriptor())) {
    throw Error(picture.path(), reasonOfFailure(status, err.get()));
  }
  picture.commit();
}

}  // namespace veks_wav
