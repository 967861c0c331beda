// The subcommands. Each function adds one to the program, with its options and what it runs.
#ifndef VEKS_WAV_COMMANDS_COMMANDS_H
#define VEKS_WAV_COMMANDS_COMMANDS_H

namespace CLI {
class App;
}

namespace veks_wav {

void addInfo(CLI::App& app);
void addReverse(CLI::App& app);
void addConcat(CLI::App& app);
void addCrush(CLI::App& app);
void addPad(CLI::App& app);
void addGain(CLI::App& app);
void addLimit(CLI::App& app);
void addMix(CLI::App& app);
void addConvert(CLI::App& app);
void addFilter(CLI::App& app);
void addSpectrum(CLI::App& app);
void addStats(CLI::App& app);
void addTone(CLI::App& app);

}  // namespace veks_wav

#endif
