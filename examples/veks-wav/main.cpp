// veks-wav: processes sound files with veks.
#include <veks.h>

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "commands/commands.h"

namespace {

constexpr void (*kCommands[])(CLI::App&) = {
    veks_wav::addInfo,    veks_wav::addReverse,  veks_wav::addConcat, veks_wav::addMix,
    veks_wav::addGain,    veks_wav::addLimit,    veks_wav::addCrush,  veks_wav::addPad,
    veks_wav::addConvert, veks_wav::addSpectrum, veks_wav::addStats,  veks_wav::addTone,
    veks_wav::addFilter,
};

constexpr int kFailure = 1;
constexpr int kUsageError = 2;

// Help without the type of each file name.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter() {
    column_width(24);
  }

  std::string make_option_opts(const CLI::Option* option) const override {
    const bool hasValue = !option->get_positional() && option->get_type_size() != 0;
    return hasValue ? " " + option->get_type_name() : "";
  }

  std::string make_option_desc(const CLI::Option* option) const override {
    const bool needed = !option->get_positional() && option->get_required();
    return option->get_description() + (needed ? " (required)" : "");
  }
};

std::string version() {
  const VekLibraryVersion* library = veksGetLibVersion();
  return std::string("veks-wav " VEKS_WAV_VERSION " (") + library->libraryName + " " +
         library->versionText + ", " + vekGetTargetName() + ")";
}

int report(const std::string& reason, int exitCode) {
  std::cerr << "veks-wav: " << reason << std::endl;
  return exitCode;
}

int run(int argc, char** argv) {
  CLI::App app("Process sound files: WAV, AIFF, FLAC, Ogg and others.", "veks-wav");
  app.formatter(std::make_shared<HelpFormatter>());
  app.set_version_flag("--version", version, "Print the version and exit");
  app.require_subcommand(1);
  app.footer("veks-wav COMMAND --help describes a command.");
  for (const auto add : kCommands) add(app);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    const std::vector<std::string> unknown = app.remaining();
    if (app.get_subcommands().empty() && !unknown.empty()) {
      return report(unknown.front() + ": is not a command", kUsageError);
    }
    return report(error.what(), kUsageError);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::bad_alloc&) {
    return report("out of memory", kFailure);
  } catch (const std::exception& error) {
    return report(error.what(), kFailure);
  }
}
