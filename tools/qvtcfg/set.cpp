// qvtcfg set

#include <algorithm>

#include "command_line.h"
#include "keys.h"
#include "output.h"
#include "session.h"
#include "text.h"
#include "word_diff.h"

namespace qvtcfg {
namespace {

// A line of the difference: the sign, then the words, with every run of changed words in brackets.
std::string marked(const char* sign, const std::vector<MarkedWord>& words, Style style, const Output& out) {
  std::vector<std::string> runs = {sign};
  for (auto word = words.begin(); word != words.end();) {
    std::vector<std::string> run;
    const bool changed = word->changed;
    for (; word != words.end() && word->changed == changed; ++word) run.push_back(visible(word->word));
    const std::string text = join(run, " ");
    runs.push_back(changed ? out.styled(style, "[" + text + "]") : text);
  }
  return join(runs, " ");
}

void print_difference(const OptionFile& before, const std::string& after, Output& out) {
  if (!before.exists) {
    out.line("+ " + out.styled(Style::kAdded, visible(after)));
    return;
  }
  const WordDiff diff = word_diff(before.command, after);
  const auto is_changed = [](const MarkedWord& word) { return word.changed; };
  if (std::ranges::none_of(diff.before, is_changed) && std::ranges::none_of(diff.after, is_changed)) {
    out.line("  " + visible(after));
    out.line("nothing changes");
    return;
  }
  out.line(marked("-", diff.before, Style::kRemoved, out));
  out.line(marked("+", diff.after, Style::kAdded, out));
}

Json difference_json(const Arguments& arguments, const Session& session, const OptionFile& before,
                     const std::string& after) {
  return {{"processor", session.processor()},
          {"file", session.option_file_name()},
          {"old", before.exists ? Json(before.command) : Json()},
          {"new", after},
          {"dryRun", arguments.dry_run}};
}

}  // namespace

void run_set(const Arguments& arguments, Output& out) {
  const std::vector<Change> changes = parse_changes(arguments.changes);
  Session session(arguments);
  const OptionFile& before = session.read_option_file(Purpose::kChange);
  apply_changes(session.engine(), changes);

  const std::string after = session.command();
  if (arguments.json) {
    out.json(difference_json(arguments, session, before, after));
  } else {
    print_difference(before, after, out);
  }
  out.flush();  // first, so that an output error leaves the option file unchanged
  if (arguments.dry_run) return;
  session.write_option_file();
  if (!arguments.json) out.line(visible("written to " + session.option_file_name()));
}

}  // namespace qvtcfg
