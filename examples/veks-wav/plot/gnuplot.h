// Drawing with gnuplot, which runs as a child process.
#ifndef VEKS_WAV_PLOT_GNUPLOT_H
#define VEKS_WAV_PLOT_GNUPLOT_H

#include <string>

#include "output_file.h"

namespace veks_wav {

// A text as a string constant of gnuplot.
std::string quoted(const std::string& text);

// Runs a script whose terminal makes PNG and commits the picture. The script names no file:
// gnuplot reads it from its standard input and draws to its standard output.
void drawPng(const std::string& script, OutputFile& picture);

}  // namespace veks_wav

#endif
