// The sessions that the documents show print what they show.

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tool.h"

namespace {

struct Step {
  std::string command;
  std::string output;  // without empty lines at the end
};

void trim(std::string& text) { text.erase(text.find_last_not_of('\n') + 1); }

// A code block whose first line begins with "$ " is a part of the session.
std::vector<Step> session_in(const std::string& document) {
  std::ifstream in(PROJECT_SOURCE_DIR "/" + document);
  EXPECT_TRUE(in) << document;
  std::vector<Step> steps;
  bool inBlock = false;
  bool inSession = false;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("```")) {
      inBlock = !inBlock;
      inSession = false;
    } else if (inBlock && line.starts_with("$ ")) {
      inSession = true;
      steps.push_back({line.substr(2), ""});
    } else if (inSession) {
      steps.back().output += line + '\n';
    }
  }
  for (Step& step : steps) trim(step.output);
  return steps;
}

class DocumentedSessions : public Tool, public testing::WithParamInterface<const char*> {};

TEST_P(DocumentedSessions, PrintWhatIsShown) {
  constexpr char kEnd = '\1';
  std::filesystem::create_directory_symlink(PROJECT_SOURCE_DIR "/examples", folder() / "examples");
  const std::vector<Step> steps = session_in(GetParam());
  ASSERT_FALSE(steps.empty());
  std::string script = "exec 2>&1; qvtcfg() { \"$QVTCFG\" \"$@\"; }\n";
  for (const Step& step : steps) script += step.command + "\nprintf '\\001'\n";
  std::istringstream output(shell(script).out);
  for (const Step& step : steps) {
    std::string printed;
    std::getline(output, printed, kEnd);
    trim(printed);
    EXPECT_EQ(printed, step.output) << step.command;
  }
}

INSTANTIATE_TEST_SUITE_P(All, DocumentedSessions, testing::Values("README.md", "docs/qvtcfg.md"));

}  // namespace
