// What "qvtcfg complete" answers. Words are those of the command line, without the program.

#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <sstream>

#include "tool.h"

namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::StartsWith;

class Complete : public Tool {
 protected:
  // The lines of the answer for the last word, or for the one with the index.
  std::vector<std::string> lines(std::vector<std::string> words, std::size_t index = 0) const {
    if (index == 0) index = words.size();
    words.insert(words.begin(), {"complete", std::to_string(index), "qvtcfg"});
    const Result result = qvtcfg(words);
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    std::vector<std::string> lines;
    std::istringstream in(result.out);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }

  // Without the words about the candidates.
  std::vector<std::string> candidates(std::vector<std::string> words, std::size_t index = 0) const {
    std::vector<std::string> found = lines(std::move(words), index);
    for (std::string& line : found) {
      if (!line.starts_with('\t')) line.resize(std::min(line.find('\t'), line.size()));
    }
    return found;
  }
};

TEST_F(Complete, OffersCommandsWithTheirPurpose) {
  EXPECT_THAT(lines({"c"}), ElementsAre("command\tPrint the connect command of a processor",
                                        "copy\tCopy the settings of a processor to others",
                                        "check\tFind what is wrong with option files and connect commands",
                                        "cables\tList the cables that are known",
                                        "cable\tRead and write the options of cable and chain, without a design"));
  EXPECT_THAT(candidates({"cable", ""}), ElementsAre("parse", "format"));
  EXPECT_THAT(candidates({"--design", "design.json", "-C", ".", "proc"}), ElementsAre("processors"));
  EXPECT_THAT(candidates({""}), Not(Contains("complete")));
}

TEST_F(Complete, OffersTheOptionsThatCanStillBeGiven) {
  EXPECT_THAT(candidates({"show", "ovrin_0", "-"}),
              ElementsAre("--help", "--changed", "--all", "-C", "--design", "--json"));
  EXPECT_THAT(candidates({"show", "ovrin_0", "--all", ""}), Contains("--changed"));
  EXPECT_THAT(candidates({"show", "ovrin_0", "--all", "-"}), Not(Contains("--all")));
  EXPECT_THAT(candidates({"set", "--d"}), ElementsAre("--dry-run", "--design"));
  EXPECT_THAT(candidates({"set", "--e"}), IsEmpty());
  EXPECT_THAT(candidates({"set", "--dry-run", "--e"}), ElementsAre("--exit-code"));
  EXPECT_THAT(candidates({"set", "--e", "--dry-run"}, 2), ElementsAre("--exit-code"));
  EXPECT_THAT(candidates({"--v"}), ElementsAre("--version"));
  EXPECT_THAT(candidates({"show", "--v"}), IsEmpty());
  EXPECT_THAT(candidates({"cable", "format", "--device", "1,a,2,3", "--dev"}), ElementsAre("--device"));
  EXPECT_THAT(candidates({"show", "--", "-"}), IsEmpty());
}

TEST_F(Complete, OffersTheValuesOfOptions) {
  EXPECT_THAT(candidates({"check", "--format", ""}), ElementsAre("text", "short", "json", "sarif"));
  EXPECT_THAT(candidates({"check", "--format=s"}), ElementsAre("--format=short", "--format=sarif"));
  EXPECT_THAT(candidates({"check", "--as", "c"}), ElementsAre("command", "cable"));
  EXPECT_THAT(lines({"check", "--explain", "unit-"}), ElementsAre("unit-ignored\tunit that is ignored"));
  EXPECT_THAT(candidates({"check", "--explain=unit-"}), ElementsAre("--explain=unit-ignored"));
  EXPECT_THAT(candidates({"check", "--explain", "--fo"}), ElementsAre("--format"));
  EXPECT_THAT(candidates({"cable", "format", "--type", "zarvek_pla"}), ElementsAre("zarvek_platformusb"));
  EXPECT_THAT(candidates({"cable", "format", "--type", "zarvek_platformusb", "--frequency", "1"}),
              ElementsAre("1.5MHz", "12MHz"));
  EXPECT_THAT(candidates({"cable", "format", "--port", "", "--type=zarvek_parallel4"}, 4), Contains("LPT1"));
  EXPECT_THAT(candidates({"cable", "format", "--esn", ""}), IsEmpty());
}

TEST_F(Complete, AsksForFilesAndFolders) {
  EXPECT_THAT(lines({"-C", ""}), ElementsAre("\tfolders"));
  EXPECT_THAT(lines({"--design", ""}), ElementsAre("\tfiles"));
  EXPECT_THAT(lines({"--design=exa"}), ElementsAre("\tfiles"));
  std::filesystem::create_directories(folder() / "a board");
  EXPECT_THAT(lines({"-C", "a board", "--design", ""}), ElementsAre("\tfiles\ta board"));
  EXPECT_THAT(lines({"-Cetc", "check", ""}), ElementsAre("\tfiles\tetc"));
  EXPECT_THAT(lines({"-C", "a board", "-C", ""}), ElementsAre("\tfolders"));
  EXPECT_THAT(lines({"check", "ovrin_3"}), ElementsAre("ovrin_3\tprocessor", "\tfiles"));
  EXPECT_THAT(lines({"diff", "ovrin_0", "ovrin_3"}), ElementsAre("ovrin_3\tprocessor", "\tfiles"));
  EXPECT_THAT(lines({"-C", "no such folder", "check", ""}), IsEmpty());
}

TEST_F(Complete, OffersTheProcessorsOfTheDesignInForce) {
  for (const char* command : {"show", "command", "read", "explain", "set", "unset", "copy"}) {
    EXPECT_THAT(candidates({command, "ovrin_"}), ElementsAre("ovrin_0", "ovrin_1", "ovrin_2", "ovrin_3")) << command;
  }
  EXPECT_THAT(candidates({"show", "ovrin_0", ""}), Not(Contains("ovrin_1")));
  EXPECT_THAT(candidates({"copy", "ovrin_0", "ovrin_"}), ElementsAre("ovrin_1", "ovrin_2", "ovrin_3"));
  EXPECT_THAT(candidates({"set", "ovrin_1", "ovrin_"}), ElementsAre("ovrin_0", "ovrin_2", "ovrin_3"));
  EXPECT_THAT(candidates({"set", "ovrin_1", "bscan=USER1", "ovrin_"}), IsEmpty());
  const std::string small = PROJECT_SOURCE_DIR "/examples/designs/small.json";
  EXPECT_THAT(candidates({"show", "--design", small, ""}), ElementsAre("ovrin_0"));
  EXPECT_THAT(candidates({"show", "", "--design=" + small}, 2), ElementsAre("ovrin_0"));
  std::filesystem::create_directories(folder() / "board");
  std::filesystem::copy_file(small, folder() / "board/design.json");
  EXPECT_THAT(candidates({"-C", "board", "show", ""}), ElementsAre("ovrin_0"));
}

TEST_F(Complete, OffersTheKeysThatApplyToTheProcessor) {
  EXPECT_THAT(lines({"set", "ovrin_0", "bsc"}), ElementsAre("bscan=\tBSCAN register"));
  EXPECT_THAT(candidates({"set", "ovrin_0", "freq"}), IsEmpty());
  EXPECT_THAT(candidates({"set", "ovrin_0", "cable=zarvek_platformusb", "freq"}), ElementsAre("frequency="));
  EXPECT_THAT(candidates({"set", "ovrin_0", "freq", "cable=zarvek_platformusb"}, 3), ElementsAre("frequency="));
  EXPECT_THAT(candidates({"set", "ovrin_0", "cable=zarvek_platformusb", "cab"}), IsEmpty());
  write_option_file("ovrin_0", "connect ov odm -cable type zarvek_platformusb -debugdevice deviceNr 2");
  EXPECT_THAT(candidates({"set", "ovrin_0", "freq"}), ElementsAre("frequency="));
  EXPECT_THAT(candidates({"set", "ovrin_0", "ovrin_1", "freq"}), IsEmpty());
  EXPECT_THAT(candidates({"set", "ovrin_0", "nam"}), IsEmpty());
}

TEST_F(Complete, OffersTheValuesThatTheProcessorAdmitsNow) {
  EXPECT_THAT(lines({"set", "ovrin_0", "bscan="}),
              ElementsAre("bscan=USER1", "bscan=USER2\tnow, default", "bscan=USER3", "bscan=USER4"));
  EXPECT_THAT(candidates({"set", "ovrin_0", "cable=zarvek_platformusb", "frequency=1"}),
              ElementsAre("frequency=1.5MHz", "frequency=12MHz"));
  EXPECT_THAT(candidates({"set", "ovrin_0", "cable=zarvek_parallel3", "frequency="}), ElementsAre("frequency=200kHz"));
  EXPECT_THAT(candidates({"set", "ovrin_0", "cable=zarvek_parallel3", "port="}), Contains("port=LPT1"));
  EXPECT_THAT(candidates({"set", "ovrin_0", "frequency="}), IsEmpty());
  EXPECT_THAT(candidates({"set", "--all", "bscan=USER3"}), ElementsAre("bscan=USER3"));
  EXPECT_THAT(candidates({"set", "ovrin_0", "nothing="}), IsEmpty());
  write_option_file("ovrin_0",
                    "connect ov odm -cable type zarvek_platformusb frequency 3000000 -debugdevice deviceNr 2");
  EXPECT_THAT(lines({"set", "ovrin_0", "frequency="}), Contains("frequency=3MHz\tnow"));
  EXPECT_THAT(lines({"set", "ovrin_0", "debug-device="}),
              ElementsAre("debug-device=2\tnow", "debug-device=0\tdefault"));
}

// The chain with the device would have it twice.
TEST_F(Complete, OffersNothingToAppend) {
  write_option_file("ovrin_0", "connect ov odm -configdevice devicenr 1 partname a irlength 4 idcode 0x1");
  EXPECT_THAT(candidates({"set", "ovrin_0", "devices="}), Contains("devices=1,a,4,0x00000001"));
  EXPECT_THAT(lines({"set", "ovrin_0", "devices+="}), IsEmpty());
}

TEST_F(Complete, SaysOfAValueWhatIsTrueForEveryProcessor) {
  write_option_file("ovrin_0", "connect ov odm -bscan USER3 -debugdevice deviceNr 2");
  EXPECT_THAT(lines({"set", "ovrin_0", "bscan="}), IsSupersetOf({"bscan=USER2\tdefault", "bscan=USER3\tnow"}));
  for (const std::vector<std::string>& processors :
       std::vector<std::vector<std::string>>{{"ovrin_0", "ovrin_1"}, {"ovrin_1", "ovrin_0"}, {"--all"}}) {
    std::vector<std::string> words = processors;
    words.insert(words.begin(), "set");
    words.emplace_back("bscan=");
    EXPECT_THAT(lines(words), ElementsAre("bscan=USER1", "bscan=USER2\tdefault", "bscan=USER3", "bscan=USER4"));
  }
  EXPECT_THAT(lines({"set", "ovrin_1", "ovrin_2", "bscan=USER2"}), ElementsAre("bscan=USER2\tnow, default"));
}

TEST_F(Complete, OffersTheTypesOfCableThatFormatWrites) {
  const std::vector<std::string> types = candidates({"cable", "format", "--type", ""});
  EXPECT_THAT(types, ElementsAre("zarvek_parallel4", "zarvek_platformusb", "zarvek_parallel3", "zarvek_plugin",
                                 "digilent_plugin"));
  EXPECT_EQ(candidates({"cable", "format", "--type="}).size(), types.size());
  for (const std::string& type : types) {
    std::vector<std::string> words = {"cable", "format", "--type", type};
    if (type == "zarvek_plugin") words.insert(words.end(), {"--module", "m"});
    EXPECT_EQ(qvtcfg(words).code, 0) << type;
  }
  EXPECT_THAT(lines({"cable", "format", "--type", "zarvek_platformusb", "--frequency", "6"}),
              ElementsAre("6MHz\tdefault"));
}

// What is offered for a key is accepted.
TEST_F(Complete, OffersValuesThatSetAccepts) {
  for (const char* processor : {"ovrin_0", "ppc405_0", "cortexa9_0"}) {
    for (const std::string& key : candidates({"set", processor, ""})) {
      if (!key.ends_with('=')) continue;
      for (const std::string& change : candidates({"set", processor, key})) {
        const Result result = qvtcfg({"set", processor, change, "--dry-run", "--force"});
        EXPECT_THAT(result.code, testing::AnyOf(0, 1)) << change << ": " << result.err;
      }
    }
  }
}

TEST_F(Complete, OffersTheSettingsThatCanBePutBack) {
  EXPECT_THAT(candidates({"unset", "ovrin_0", "b"}), IsEmpty());
  write_option_file("ovrin_0", "connect ov odm -cable type zarvek_platformusb -bscan USER3 -debugdevice deviceNr 2");
  EXPECT_THAT(candidates({"unset", "ovrin_0", ""}), IsSupersetOf({"bscan", "cable", "debug-device"}));
  EXPECT_THAT(candidates({"unset", "ovrin_0", "bscan", "b"}), IsEmpty());
}

TEST_F(Complete, OffersTheSettingsToExplain) {
  EXPECT_THAT(lines({"explain", "ovrin_0", "bs"}), ElementsAre("bscan\tBSCAN register"));
  EXPECT_THAT(candidates({"explain", "ovrin_0", "freq"}), IsEmpty());
  EXPECT_THAT(candidates({"explain", "--all", "ovrin_0", "freq"}), ElementsAre("frequency"));
}

TEST_F(Complete, IsSilentAboutWhatCannotBeRead) {
  write("design.json", "{");
  EXPECT_THAT(lines({"show", ""}), IsEmpty());
  EXPECT_THAT(lines({"set", "ovrin_0", "b"}), IsEmpty());
  EXPECT_THAT(candidates({"sh"}), ElementsAre("show"));
  use_design("large");
  write_option_file("ovrin_0", "connect ov odm -cabel");
  EXPECT_THAT(candidates({"set", "ovrin_0", "bscan=USER1"}), ElementsAre("bscan=USER1"));
  EXPECT_THAT(lines({"show", "nobody", "x"}), IsEmpty());
  EXPECT_THAT(lines({"nonsense", ""}), Each(Not(StartsWith("ovrin"))));
}

// A pipe that nobody writes to would keep a reader waiting.
TEST_F(Complete, DoesNotWaitForAPipe) {
  std::filesystem::remove(folder() / "design.json");
  ASSERT_EQ(mkfifo((folder() / "design.json").c_str(), 0600), 0);
  EXPECT_THAT(lines({"show", ""}), IsEmpty());
  std::filesystem::remove(folder() / "design.json");
  use_design("small");
  ASSERT_EQ(mkfifo((folder() / "etc/qvt_ovrin_0.opt").c_str(), 0600), 0);
  EXPECT_THAT(candidates({"set", "ovrin_0", "bscan=USER1"}), ElementsAre("bscan=USER1"));
}

TEST_F(Complete, WritesNothing) {
  std::filesystem::remove(folder() / "etc");
  candidates({"set", "ovrin_0", "bscan=USER1", "debug-device="});
  EXPECT_FALSE(exists("etc"));
}

TEST_F(Complete, IsFastWithTenThousandProcessors) {
  std::string instances;
  std::string names;
  for (int i = 0; i < 10000; ++i) {
    const std::string name = "\"ovrin_" + std::to_string(i) + '"';
    instances += R"({"name": )" + name + R"(, "type": "ovrin", "class": "processor"},)";
    names += (i == 0 ? "" : ",") + name;
  }
  write("design.json", R"({"instances": [)" + instances +
                           R"({"name": "odm_0", "type": "odm", "class": "debug", "processors": [)" + names + "]}]}");
  EXPECT_EQ(candidates({"show", ""}).size(), 10000U);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_THAT(candidates({"set", "ovrin_9876", "cable=zarvek_platformusb", "frequency=12"}),
              ElementsAre("frequency=12MHz"));
  // A hundredth of that in a release build; the sanitizers and a busy machine take their time.
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(3));
}

TEST_F(Complete, HasAHelp) {
  for (const char* flag : {"-h", "--help"}) {
    const Result result = qvtcfg({"complete", flag});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, testing::HasSubstr("\nqvtcfg complete INDEX WORD...\n"));
  }
}

TEST_F(Complete, RefusesAnIndexThatIsNone) {
  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{}, {"1"}, {"x", "qvtcfg"}, {"0", "qvtcfg"}, {"2", "qvtcfg"}}) {
    std::vector<std::string> words = arguments;
    words.insert(words.begin(), "complete");
    const Result result = qvtcfg(words);
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, IsComplaint("complete: expected INDEX WORD..."));
  }
}

}  // namespace
