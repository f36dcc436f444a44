#pragma once

// The answer of a run with --json: one document, of the same shape for every subcommand and every error. The JSON
// Schema docs/qvtcfg-answer.schema.json describes it.

#include <cstddef>
#include <string>

#include "failure.h"
#include "lines.h"
#include "output.h"

namespace qvtcfg {

// Rises when a member changes its meaning or goes; new members may come at any time.
inline constexpr int kFormatVersion = 1;

// The subcommand is empty if none was recognised.
Json answer(const std::string& subcommand, ExitCode code, Json result);
Json answer(const std::string& subcommand, const Failure& failure);

// --- Parts of the results of several subcommands ---

// An empty text stands for none.
Json text_or_null(const std::string& text);

// Lines and columns count from 1, bytes from 0; the end is the first byte behind.
Json place_json(std::size_t begin, std::size_t end, const Lines& lines);

}  // namespace qvtcfg
