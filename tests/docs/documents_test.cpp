// The documents say what the tables of the syntax and the kinds of findings say, and their examples and links are
// right.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "docs/tables/markdown.h"
#include "docs/tables/parts.h"
#include "options/QvtOption_Parser.h"
#include "options/syntax.h"
#include "tests/support/Blocks.h"
#include "tests/support/SelectedEngine.h"
#include "tools/qvtcfg/description.h"

namespace SdkDebugDialog {
namespace {

std::string content(const std::string& document) {
  std::ifstream in(PROJECT_SOURCE_DIR "/" + document, std::ios::binary);
  EXPECT_TRUE(in) << document;
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(Documents, SayWhatTheTablesOfTheSyntaxSay) {
  for (const char* const document : kDocuments) {
    const std::string text = content(document);
    const std::string printed = with_parts(text);
    const auto differs = static_cast<std::size_t>(std::ranges::mismatch(text, printed).in1 - text.begin());
    EXPECT_TRUE(text == printed) << document << " is not up to date: run scripts/docs. The first difference is in line "
                                 << std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(differs),
                                               '\n') +
                                        1;
  }
}

TEST(Documents, PrintAPartBetweenItsLinesAndLeaveTheRest) {
  EXPECT_EQ(with_parts("before\n"
                       "# printed from the syntax: `ov sim`: -memsize\n"
                       "an older table\n"
                       "# end\n"
                       "after\n"),
            "before\n"
            "# printed from the syntax: `ov sim`: -memsize\n"
            "| option | value | default | without a value | written |\n"
            "|---|---|---|---|---|\n"
            "| `-memsize` | number: memory | 16 | error; an option in its place is its value | no: `ov sim` is written "
            "alone |\n"
            "# end\n"
            "after\n");
}

TEST(Documents, PrintTheKindsOfFindings) {
  const std::string text = with_parts(
      "<!-- printed from the kinds of findings: table -->\n<!-- end -->\n"
      "<!-- printed from the kinds of findings: descriptions -->\n<!-- end -->\n");
  EXPECT_NE(
      text.find("\n| [`byte-order-mark`](#byte-order-mark) | error | byte-order mark in front of the command |\n"),
      text.npos);
  EXPECT_NE(text.find("\n### byte-order-mark\n\nerror: **byte-order mark in front of the command**\n\n"), text.npos);
  EXPECT_NE(text.find("\nAn option file:\n\n```\n\\xEF\\xBB\\xBFconnect ov odm -debugdevice deviceNr 2\n```\n"),
            text.npos);
  EXPECT_NE(text.find("\n```\n\\t\nconnect ov odm -debugdevice deviceNr 2\n```\n"), text.npos);
  EXPECT_NE(text.find("\n```\nconnect ov odm -debugdevice deviceNr 2\\r\n```\n"), text.npos);
  EXPECT_NE(text.find("\nThere are no comments in an option file. "), text.npos);
}

TEST(Documents, PrintListsInManPages) {
  EXPECT_EQ(with_parts(".\\\" printed from the syntax: `ov sim`: -memsize\n"
                       ".\\\" end\n"),
            ".\\\" printed from the syntax: `ov sim`: -memsize\n"
            ".Bl -tag -width Ds\n"
            ".It \\fB\\-memsize\\fR\n"
            "Number: memory.\n"
            "Default: 16.\n"
            "Without a value: error; an option in its place is its value.\n"
            "Written: no: \\fBov sim\\fR is written alone.\n"
            ".El\n"
            ".\\\" end\n");
}

TEST(Documents, PrintTheCommandLine) {
  EXPECT_EQ(with_parts(".\\\" printed from the command line: synopsis unset\n.\\\" end\n"),
            ".\\\" printed from the command line: synopsis unset\n"
            ".Sh NAME\n"
            ".Nm qvtcfg-unset\n"
            ".Nd put settings of a processor back to their defaults\n"
            ".Sh SYNOPSIS\n"
            ".Nm qvtcfg\n"
            ".Op Fl C Ar DIR\n"
            ".Op Fl \\-design Ar FILE\n"
            ".Op Fl \\-json\n"
            ".Cm unset\n"
            ".Op Ar PROC ...\n"
            ".Ar NAME ...\n"
            ".Op Fl \\-all\n"
            ".Op Fl \\-force\n"
            ".Op Fl \\-dry-run Op Fl \\-exit-code\n"
            ".\\\" end\n");
  const std::string text = with_parts(
      ".\\\" printed from the command line: options check\n.\\\" end\n"
      ".\\\" printed from the settings: keys\n.\\\" end\n");
  EXPECT_NE(text.find("\n.It Fl \\-explain Op Ar CODE\nExplain the findings with this code; all codes without it.\n"),
            text.npos);
  EXPECT_NE(text.find("\nOnly with\n.Fl \\-fix .\n"), text.npos);
  EXPECT_NE(text.find("\n.It Cm frequency= Ns Ar FREQUENCY\nJTAG clock of the cable.\nIn Hz.\n"), text.npos);
}

TEST(Documents, HaveCommandsAndOptionsAsTablesInMarkdown) {
  const std::string commands = with_parts("<!-- printed from the command line: commands -->\n<!-- end -->\n");
  EXPECT_NE(commands.find("\n| command | does |\n|---|---|\n| `processors` | List the processors of the design |\n"),
            commands.npos);
  EXPECT_NE(commands.find("\n| `unset [PROC...] NAME... [--all] [--force] [--dry-run [--exit-code]]` | Put "),
            commands.npos);
  EXPECT_NE(commands.find("\n| `cable parse TEXT [--changed] [--all]` | "), commands.npos);
  EXPECT_EQ(commands.find("\n| `cable` "), commands.npos);
  const std::string options = with_parts(
      "<!-- printed from the command line: options copy -->\n<!-- end -->\n"
      "<!-- printed from the command line: options cable format -->\n<!-- end -->\n");
  EXPECT_NE(
      options.find("\n| argument | meaning |\n|---|---|\n| `FROM` | Name of the processor that has the settings |\n"
                   "| `TO...` | Names of the processors that get them |\n"),
      options.npos);
  EXPECT_NE(options.find("\n| `--exit-code` | Exit with 5 when something would change; only with `--dry-run` |\n"),
            options.npos);
  EXPECT_NE(
      options.find("\n| option | meaning |\n|---|---|\n| `--type NAME` | Type of the cable, see `qvtcfg cables` |\n"),
      options.npos);
}

TEST(Documents, HaveAManPageForEveryCommand) {
  for (const qvtcfg::CommandDescription& command : qvtcfg::describe().commands) {
    const std::string page = "docs/man/qvtcfg-" + command.name + ".1";
    EXPECT_TRUE(std::ranges::find(kDocuments, page) != std::end(kDocuments)) << page;
    const std::string text = content(page);
    EXPECT_NE(text.find(" printed from the command line: synopsis " + command.name + '\n'), text.npos) << page;
    const auto expect_options = [&](const qvtcfg::CommandDescription& c) {
      const bool none = c.arguments.empty() && c.options.size() == 1;  // --help
      EXPECT_NE(none, text.find(" printed from the command line: options " + c.name + '\n') != text.npos) << page;
    };
    if (command.commands.empty()) expect_options(command);
    std::ranges::for_each(command.commands, expect_options);
  }
}

TEST(Documents, DescribeEveryOptionInTheManPageOfTheFile) {
  const std::string text = content("docs/man/qvt_option_file.5");
  for (const Option& option : options()) {
    const std::string name = "\\-" + std::string(option.name.text().substr(1));
    EXPECT_TRUE(text.find("\n.It \\fB" + name + "\\fR\n") != text.npos ||
                text.find("\n.Ss " + name + '\n') != text.npos || text.find("\n.Cm " + name + "\n") != text.npos)
        << name;
  }
}

TEST(Documents, RefuseAPartThatThereIsNot) {
  for (const char* const part : {"foo\n# end\n", "synopsis foo\n# end\n", "heads\n", "nowhere: -cable\n# end\n",
                                 "general: -foo\n# end\n", "option index\n# end\n"}) {
    EXPECT_THROW(with_parts(std::string("# printed from the syntax: ") + part), std::runtime_error) << part;
  }
}

// Only the targets odm and dcc take it, and no option file has them.
TEST(Documents, MarkTheOptionThatNoOptionFileHas) {
  std::vector<std::string> notInAFile;
  for (const std::string& line : lines_of(content("docs/connect-command.md"))) {
    if (line.starts_with("| [`-") && line.find(" | no | ") != std::string::npos) {
      notInAFile.push_back(line.substr(0, line.find(']')));
    }
  }
  EXPECT_EQ(notInAFile, std::vector<std::string>{"| [`-uart`"});
}

// --- Examples ---

struct Example {
  std::string read;
  std::string written;
};

// Those of the code blocks that are marked: pairs of lines with an empty line between them.
std::vector<Example> examples() {
  const std::vector<std::string> lines = lines_of(content("docs/connect-command.md"));
  std::vector<Example> found;
  for (auto line = lines.begin();
       (line = std::find(line, lines.end(), "<!-- examples: read, written -->")) != lines.end();) {
    const auto first = std::find(line, lines.end(), "```");
    if (first == lines.end()) break;
    const auto last = std::find(first + 1, lines.end(), "```");
    for (line = first + 1; last - line >= 2; line += std::min<std::ptrdiff_t>(3, last - line)) {
      EXPECT_TRUE(last - line == 2 || line[2].empty()) << "no empty line after " << line[1];
      found.push_back({line[0], line[1]});
    }
  }
  return found;
}

TEST(Documents, ShowWhatIsWrittenAfterReading) {
  for (const Example& example : examples()) {
    SCOPED_TRACE(example.read);
    SelectedEngine e;
    EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(example.read, e.imp), 0) << e.error();
    std::string written;
    EXPECT_EQ(QvtOption_Parser::WriteQvtCmdString(e.imp, written), 0) << e.error();
    EXPECT_EQ(written, example.written);
  }
}

TEST(Documents, HaveAnExampleForEveryTargetAndConnection) {
  const std::vector<Example> all = examples();
  const auto expect_example = [&](const std::string& begin) {
    EXPECT_TRUE(std::ranges::any_of(all, [&](const Example& e) { return e.read.starts_with(begin + ' '); })) << begin;
  };
  for (const Target& target : targets()) {
    const std::string begin = (target.virtualPlatform ? "vpconnect " : "connect ") + std::string(target.name.text());
    if (target.connections.empty()) expect_example(begin);
    for (const Connection& connection : target.connections) {
      expect_example(begin + ' ' + std::string(connection.name.text()));
    }
  }
}

// --- Links ---

std::set<std::string> headings(const std::string& document) {
  std::set<std::string> found;
  for (const std::string& line : lines_of(content(document))) {
    if (line.starts_with('#')) found.insert(markdown::link_to(line));
  }
  return found;
}

TEST(Documents, LinkToHeadings) {
  EXPECT_EQ(markdown::link_to("### -comm, -port"), "#-comm--port");
  EXPECT_EQ(markdown::link_to("### Virtual platform: `vpconnect ov`"), "#virtual-platform-vpconnect-ov");

  // "](file#heading)", one of them or both; what is elsewhere begins with a scheme.
  const std::regex link(R"(\]\(([a-zA-Z0-9_./-]*)(#[^)]*)?\))");
  for (const std::string& document : all_documents()) {
    SCOPED_TRACE(document);
    const std::filesystem::path root = PROJECT_SOURCE_DIR;
    const std::string text = content(document);
    for (std::sregex_iterator found(text.begin(), text.end(), link), end; found != end; ++found) {
      const std::string file = (*found)[1];
      const std::string heading = (*found)[2];
      const std::filesystem::path target =
          file.empty() ? std::filesystem::path(document) : std::filesystem::path(document).parent_path() / file;
      EXPECT_TRUE(exists(root / target)) << found->str();
      EXPECT_TRUE(heading.empty() || headings(target.string()).contains(heading)) << found->str();
    }
  }
}

}  // namespace
}  // namespace SdkDebugDialog
