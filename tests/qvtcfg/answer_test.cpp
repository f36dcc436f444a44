// The answers of qvtcfg in JSON have one shape, which the schema describes: exactly these members, and no others.

#include <gtest/gtest-spi.h>

#include <fstream>
#include <iterator>
#include <set>

#include "answers.h"
#include "tool.h"

namespace {

using Json = nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kMistyped = "connect ov odm -cabel type zarvek_platformusb frequency 12MHz";

class Answers : public Tool {
 protected:
  struct Run {
    std::vector<std::string> arguments;
    int code;
  };

  // Every subcommand, and every kind of error that a command line leads to.
  std::vector<Run> runs() const {
    write_option_file("ovrin_0",
                      "connect ov odm -quiet -cable type zarvek_platformusb -bscan USER3 "
                      "-configdevice devicenr 1 partname p irlength 6 idcode 0x1 -debugdevice deviceNr 2");
    write("bad.opt", kMistyped);
    write_option_file("ovrin_2", "connect ov odm -debugdevice deviceNr 2 cpunr 3");
    return {
        {{"processors"}, 0},
        {{"show", "ovrin_0"}, 0},
        {{"show", "ovrin_3", "--changed"}, 0},
        {{"command", "ovrin_0"}, 0},
        {{"command", "ovrin_2", "--write"}, 0},
        {{"read", "connect ov sim"}, 0},
        {{"read", "connect dcc -uart"}, 0},
        {{"read", "ovrin_2", "connect ov sim", "--write"}, 0},
        {{"set", "ovrin_3", "connection=stub"}, 0},
        {{"set", "ovrin_0", "ppc405_0", "debug-device=3", "--dry-run", "--exit-code"}, 5},
        {{"set", "--all", "icache=0x70000000", "--dry-run"}, 0},
        {{"unset", "ovrin_0", "bscan", "--dry-run"}, 0},
        {{"set", "ovrin_0", "connection=simulator", "--force", "--dry-run"}, 0},
        {{"copy", "ovrin_0", "ppc405_0", "--dry-run"}, 0},
        {{"diff", "ovrin_0"}, 5},
        {{"diff", "ovrin_0", "ovrin_0"}, 0},
        {{"diff", "etc/qvt_ovrin_0.opt", "connect ov sim"}, 5},
        {{"explain", "ovrin_0"}, 0},
        {{"explain", "ovrin_0", "frequency"}, 0},
        {{"check"}, 0},
        {{"check", "ovrin_3"}, 0},
        {{"check", "bad.opt"}, 3},
        {{"check", "bad.opt", "--fix", "--dry-run"}, 3},
        {{"check", "nowhere"}, 4},
        {{"check", "--explain"}, 0},
        {{"check", "--explain", "octal-number"}, 0},
        {{"cables"}, 0},
        {{"cable", "parse", "-cable type zarvek_parallel3 -configdevice devicenr 1 isfpga 1"}, 0},
        {{"cable", "format", "--type", "zarvek_platformusb"}, 0},
        // Errors.
        {{}, 2},
        {{"cabels"}, 2},
        {{"show"}, 2},
        {{"--format=json", "show"}, 2},
        {{"check", "--format", "jsn"}, 2},
        {{"check", "--format", "sarif"}, 2},
        {{"check", "--explain", "octl-number"}, 2},
        {{"set", "ovrin_0"}, 2},
        {{"set", "ovrin_0", "debug-device=x"}, 2},
        {{"set", "ovrin_0", "debug-devise=1"}, 2},
        {{"set", "ovrin_0", "connection=simulator"}, 1},
        {{"set", "ovrin_0", "module=m"}, 1},
        {{"show", "ovrin_9"}, 1},
        {{"diff", "bad.opt", "ovrin_1"}, 3},
        {{"read", "connect ov odm \xff"}, 3},
        {{"-C", "nowhere", "cables"}, 4},
        {{"--design", "nowhere", "processors"}, 4},
    };
  }

  std::string answer(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "--json");
    return qvtcfg(std::move(arguments)).out;
  }
};

// qvtcfg() checks the answer.
TEST_F(Answers, OfEverySubcommandAndErrorAreValid) {
  std::set<std::string> codes;
  for (const Run& run : runs()) {
    std::vector<std::string> arguments = run.arguments;
    arguments.emplace_back("--json");
    const Result result = qvtcfg(arguments);
    EXPECT_EQ(result.code, run.code) << result.out;
    const Json answer = Json::parse(result.out);
    const bool checks = answer["subcommand"] == "check";
    EXPECT_EQ(answer.contains("error"), run.code != 0 && run.code != 5 && !(checks && run.code != 2)) << result.out;
    if (answer.contains("error")) codes.insert(answer["error"]["code"]);
  }
  EXPECT_EQ(codes, (std::set<std::string>{"file", "invalidValue", "noSuchProcessor", "noSuchSetting", "notUnderstood",
                                          "refused", "usage", "wouldLose"}));
}

TEST_F(Answers, NameTheSubcommandThatWasRecognised) {
  EXPECT_EQ(Json::parse(answer({"show", "ovrin_9"}))["subcommand"], "show");
  EXPECT_EQ(Json::parse(answer({"cable", "parse", "-foo 1"}))["subcommand"], "cable parse");
  EXPECT_EQ(Json::parse(answer({"show"}))["subcommand"], "show");
  EXPECT_EQ(Json::parse(answer({"show", "ovrin_0", "--bad"}))["subcommand"], "show");
  EXPECT_EQ(Json::parse(answer({"copy", "ovrin_0"}))["subcommand"], "copy");
  EXPECT_EQ(Json::parse(answer({"read", "x"}))["subcommand"], "read");
  EXPECT_EQ(Json::parse(answer({"cable", "format", "--type"}))["subcommand"], "cable format");
  EXPECT_TRUE(Json::parse(answer({}))["subcommand"].is_null());
  EXPECT_TRUE(Json::parse(answer({"cabels"}))["subcommand"].is_null());
  EXPECT_TRUE(Json::parse(answer({"cable"}))["subcommand"].is_null());
}

TEST_F(Answers, HaveTheWarnings) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 1 " + std::string(1100, ' ') + "cpunr 1");
  const Result result = qvtcfg({"--json", "command", "ovrin_0"});
  EXPECT_THAT(result.err, StartsWith("qvtcfg: warning: etc/qvt_ovrin_0.opt: the command is longer than 1023 "));
  EXPECT_EQ("qvtcfg: warning: " + Json::parse(result.out)["warnings"][0].get<std::string>() + "\n", result.err);
}

// Each program can be asked for its version without one that reads JSON.
TEST_F(Answers, AreTextForHelpAndVersion) {
  EXPECT_EQ(qvtcfg({"--json", "--version"}).out, qvtcfg({"--version"}).out);
  EXPECT_EQ(qvtcfg({"--json", "show", "--help"}).out, qvtcfg({"show", "--help"}).out);
}

TEST_F(Answers, AreUtf8ForAnyBytes) {
  write("\xff.opt", "connect ov odm '\xff\x01' -cabel \xc3 -debugdevice deviceNr=\xfe");
  EXPECT_THAT(answer({"check", "\xff.opt"}), HasSubstr("\"file\": \"\xEF\xBF\xBD.opt\""));
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{"show", "\xff"},
                                             {"set", "ovrin_0", "port=\xff"},
                                             {"diff", "\xff.opt"},
                                             {"diff", "\xff"},
                                             {"\xff"},
                                             {"-C", "\xff", "cables"},
                                             {"--design", "\xff", "processors"},
                                             {"cable", "format", "--module-arg", "\xff", "--type", "zarvek_plugin"}}) {
    answer(arguments);
  }
}

// An output that ends early is not followed by another document.
TEST_F(Answers, EndWithTheFirstErrorOfStandardOutput) {
  const Result full = shell("exec \"$QVTCFG\" --json cables > /dev/full");
  EXPECT_EQ(full.code, 4);
  EXPECT_THAT(full.err, IsComplaint("standard output: No space left on device"));
  const Result limited = shell("trap '' XFSZ; ulimit -f 1; \"$QVTCFG\" --json show ovrin_0 > answer; echo code $?");
  EXPECT_EQ(limited.out, "code 4\n");
  EXPECT_EQ(read("answer"), answer({"show", "ovrin_0"}).substr(0, read("answer").size()));
}

TEST_F(Answers, AreThereWhenMemoryRunsOut) {
  if (shell("ulimit -v 4000000 && \"$QVTCFG\" --version").code != 0) GTEST_SKIP() << "memory cannot be limited here";
  Json design = {{"instances", Json::array()}};
  for (int i = 0; i < 1000; ++i) {
    design["instances"].push_back({{"name", "ovrin_" + std::to_string(i)}, {"type", "ovrin"}, {"class", "processor"}});
  }
  write("design.json", design.dump());
  // How much the program needs to get as far as its command depends on the build.
  write("empty.json", R"({"instances": []})");
  // It can also be ended by a signal before that; the shell turns this into an exit code.
  const auto within = [&](int limit, const std::string& arguments) {
    return shell("ulimit -v " + std::to_string(limit) + "; \"$QVTCFG\" --json " + arguments + "; exit $?");
  };
  int least = 8000;
  while (within(least, "--design empty.json processors").code != 0) least += 500;
  std::set<std::string> codes;
  for (int limit = least; limit < least + 30000; limit += 1500) {
    const Result result = within(limit, "set --all connection=simulator --dry-run");
    expect_answer(result.out, result.code);
    codes.insert(result.code == 0 ? "done" : error_of(result.out)["code"].get<std::string>());
  }
  EXPECT_EQ(codes, (std::set<std::string>{"done", "outOfMemory"}));
}

// --- The schema ---

TEST_F(Answers, CheckFailsForAWrongOne) {
  const Result good = qvtcfg({"--json", "cables"});
  Json wrong = Json::parse(good.out);
  wrong["result"]["cables"][0].erase("port");
  EXPECT_NONFATAL_FAILURE(expect_answer(wrong.dump(), 0), "oneOf at #");
  EXPECT_NONFATAL_FAILURE(expect_answer(good.out, 1), "");
  EXPECT_NE(why_invalid(""), "");
  EXPECT_NE(why_invalid("{}"), "");
  EXPECT_NE(why_invalid(good.out + good.out), "");
  EXPECT_NE(why_invalid("qvtcfg: no JSON\n" + good.out), "");
}

// Each change of one member, at any depth. Settings are left out with --changed.
class Changes {
 public:
  explicit Changes(Json answer) : m_answer(std::move(answer)) {}

  // The changed answers that are valid all the same.
  std::vector<std::string> unnoticed() {
    visit(m_answer, "");
    return m_unnoticed;
  }
  int count() const { return m_count; }

 private:
  void expect_invalid(const std::string& change) {
    ++m_count;
    if (why_invalid(m_answer.dump()).empty()) m_unnoticed.push_back(change);
  }

  static bool is_group(const std::string& path) {
    return path.substr(0, path.find_last_of('/')).ends_with("/settings");
  }

  void visit(Json& value, const std::string& path) {
    if (value.is_object()) visit_object(value, path);
    if (value.is_array() && !value.empty()) visit(value[0], path + "/0");
  }

  void visit_object(Json& object, const std::string& path) {
    object["unknown"] = nullptr;
    expect_invalid(path + ": a member more");
    object.erase("unknown");
    const Json before = object;
    const bool optional = path.ends_with("/settings") || is_group(path);
    for (const auto& [name, value] : before.items()) {
      const std::string member = std::string(path).append("/").append(name);
      if (!optional) {
        object.erase(name);
        expect_invalid(member + ": missing");
      }
      object[name] = Json::array({Json::array()});
      expect_invalid(member + ": another type");
      object[name] = value;
      visit(object[name], member);
      if (is_group(path)) break;  // one setting stands for all of its group
    }
  }

  Json m_answer;
  std::vector<std::string> m_unnoticed;
  int m_count = 0;
};

TEST_F(Answers, AreDescribedWithoutGaps) {
  int count = 0;
  for (const Run& run : runs()) {
    Changes changes(Json::parse(answer(run.arguments)));
    EXPECT_THAT(changes.unnoticed(), IsEmpty()) << testing::PrintToString(run.arguments);
    count += changes.count();
  }
  EXPECT_GT(count, 1500);
  RecordProperty("changes", count);
}

TEST(AnswerSchema, HasAResultForEverySubcommand) {
  std::ifstream in(PROJECT_SOURCE_DIR "/docs/qvtcfg-answer.schema.json");
  const Json schema = Json::parse(in);
  std::multiset<Json> described = {nullptr};
  for (const Json& branch : schema["oneOf"]) {
    const Json& members = branch["properties"];
    if (members.contains("subcommand"))
      described.insert(members["subcommand"]["enum"].begin(), members["subcommand"]["enum"].end());
  }
  const Json& all = schema["definitions"]["subcommand"]["enum"];
  EXPECT_EQ(described, std::multiset<Json>(all.begin(), all.end()));
}

// --- Another validator ---

TEST_F(Answers, AreValidForAnIndependentValidator) {
  if (shell("python3 -c 'import jsonschema'").code != 0) {
    GTEST_SKIP() << "python3-jsonschema is not installed";
  }
  const std::filesystem::path answers = folder() / "answers";
  std::filesystem::create_directory(answers);
  for (const Run& run : runs()) {
    std::ofstream(answers / (std::to_string(std::distance(std::filesystem::directory_iterator(answers), {})) + ".json"))
        << answer(run.arguments);
  }
  write("validate.py", R"(
import glob, json, sys
from jsonschema.validators import validator_for
def validator(name):
    with open(sys.argv[1] + "/docs/" + name + ".schema.json", encoding="utf-8") as file:
        schema = json.load(file)
    validator_for(schema).check_schema(schema)
    return validator_for(schema)(schema)
def content(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)
answers = validator("qvtcfg-answer")
paths = glob.glob("answers/*.json")
for path in paths:
    for error in answers.iter_errors(content(path)):
        print(path, error.message)
wrong = content(paths[0])
wrong["formatVersion"] = 2
print(len(paths), "answers;", "a wrong one is", "valid" if answers.is_valid(wrong) else "invalid")
designs = validator("design-file")
for path in glob.glob(sys.argv[1] + "/examples/designs/*.json"):
    for error in designs.iter_errors(content(path)):
        print(path, error.message)
)");
  const Result result = shell("python3 validate.py '" PROJECT_SOURCE_DIR "'");
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out, std::to_string(runs().size()) + " answers; a wrong one is invalid\n");
}

}  // namespace
