#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/DesignFile.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/JsonSchema.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

std::string error_of(const auto& operation) {
  try {
    operation();
  } catch (const DesignFileError& error) {
    return error.what();
  }
  return "no error";
}

std::string parse_error(const std::string& text) {
  return error_of([&] { DesignFile::parse(text, "x.json"); });
}

std::string why_invalid(const std::string& design) {
  static const JsonSchema schema("design-file");
  return schema.why_invalid(design);
}

// A schema cannot tell what is at another place of the design.
bool is_in_schema(std::string_view message) {
  constexpr std::string_view kBeyond[] = {"a second member of this name", "which is no instance",
                                          "expected an instance of class", "expected another name"};
  return std::ranges::none_of(kBeyond, [&](std::string_view part) { return message.find(part) != message.npos; });
}

// A design with a processor, a debug module and a UART, and one more instance after them.
std::string design_with(const std::string& instance) {
  return R"({"instances": [
    {"name": "ovrin_0", "type": "ovrin", "class": "processor", "peripherals": ["uart_0"]},
    {"name": "odm_0", "type": "odm", "class": "debug", "processors": ["ovrin_0"]},
    {"name": "uart_0", "type": "tfb_serial_lite", "class": "peripheral"},
    )" + instance +
         "]}";
}

Names processors(DesignFile& design) {
  Names out;
  design.getProcessorInstances(out, false);
  return out;
}

Names debug_ip(DesignFile& design) {
  Names out;
  design.getIpInstances(out, HW_IP_DEBUG);
  return out;
}

Names of_type(DesignFile& design, const std::string& type) {
  Names out;
  design.getIpInstances(out, type, false);
  return out;
}

Names connected(DesignFile& design, const std::string& debug_instance) {
  Names out;
  design.getOdmConnectedProcessorList(out, debug_instance);
  return out;
}

Names peripherals(DesignFile& design, const std::string& processor) {
  Names out;
  design.getPeripherals(processor, out);
  return out;
}

DesignFile example(const std::string& name) {
  return DesignFile::load(PROJECT_SOURCE_DIR "/examples/designs/" + name + ".json");
}

// A temporary folder, removed after the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = testing::TempDir() + "/design_file_test.XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    m_path = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(m_path); }

  std::string path(const std::string& name) const { return m_path / name; }
  std::string write(const std::string& name, const std::string& text) const {
    std::ofstream(path(name), std::ios::binary) << text;
    return path(name);
  }

 private:
  std::filesystem::path m_path;
};

std::string load_error(const std::string& path) {
  return error_of([&] { DesignFile::load(path); });
}

// --- Answers ---

TEST(DesignFile, IsAHardwareManagerThatCanBeMovedAndCopied) {
  static_assert(std::is_base_of_v<HHSMHwManager, DesignFile>);
  DesignFile copy = example("large");
  {
    const DesignFile design = example("small");
    copy = design;
  }
  DesignFile second = copy;
  DesignFile moved = std::move(second);  // NOLINT(performance-move-const-arg): what a move does is tested
  EXPECT_THAT(processors(copy), ElementsAre("ovrin_0"));
  EXPECT_THAT(processors(moved), ElementsAre("ovrin_0"));
}

TEST(DesignFile, AnswersInTheOrderOfTheFile) {
  DesignFile design = DesignFile::parse(R"({"instances": [
    {"name": "z", "type": "odm", "class": "debug", "processors": ["d", "a", "c"]},
    {"name": "d", "type": "ovrin", "class": "processor", "peripherals": ["q", "p", "r"]},
    {"name": "c", "type": "other_core", "class": "processor"},
    {"name": "a", "type": "ovrin", "class": "processor"},
    {"name": "r", "type": "t", "class": "memory"},
    {"name": "q", "type": "t", "class": "other"},
    {"name": "p", "type": "t", "class": "peripheral"},
    {"name": "b", "type": "jtag_ppc_bridge", "class": "debug"}]})",
                                        "x.json");
  EXPECT_THAT(processors(design), ElementsAre("d", "c", "a"));
  EXPECT_THAT(debug_ip(design), ElementsAre("z", "b"));
  EXPECT_THAT(of_type(design, "ovrin"), ElementsAre("d", "a"));
  EXPECT_THAT(of_type(design, "t"), ElementsAre("r", "q", "p"));
  EXPECT_THAT(connected(design, "z"), ElementsAre("d", "a", "c"));
  EXPECT_THAT(peripherals(design, "d"), ElementsAre("q", "p", "r"));
}

TEST(DesignFile, AppendsToWhatTheListHolds) {
  DesignFile design = example("small");
  Names out = {"before"};
  design.getProcessorInstances(out, false);
  design.getIpInstances(out, HW_IP_DEBUG);
  design.getIpInstances(out, "tfb_serial_lite", false);
  design.getOdmConnectedProcessorList(out, "odm_0");
  design.getPeripherals("ovrin_0", out);
  EXPECT_THAT(out, ElementsAre("before", "ovrin_0", "odm_0", "uart_0", "ovrin_0", "bram_0", "uart_0"));
}

TEST(DesignFile, KnowsOnlyTheDebugClassByNumber) {
  DesignFile design = example("large");
  for (const int number : {-1, 0, 1, 2, 3, 4, 6, 7, 1000}) {
    Names out;
    design.getIpInstances(out, static_cast<HwIpType>(number));
    EXPECT_THAT(out, IsEmpty()) << number;
  }
}

TEST(DesignFile, AnswersNothingForWhatTheDesignDoesNotHave) {
  DesignFile design = example("small");
  EXPECT_THAT(of_type(design, "ovri"), IsEmpty());
  EXPECT_THAT(of_type(design, "OVRIN"), IsEmpty());
  EXPECT_THAT(of_type(design, ""), IsEmpty());
  for (const char* name : {"", "nobody", "OVRIN_0", "ovrin_0 "}) {
    EXPECT_EQ(design.getIpName(name), "") << name;
    EXPECT_EQ(design.getParameterValue(name, "FPU"), "") << name;
    EXPECT_THAT(connected(design, name), IsEmpty()) << name;
    EXPECT_THAT(peripherals(design, name), IsEmpty()) << name;
  }
  EXPECT_THAT(connected(design, "ovrin_0"), IsEmpty());
  EXPECT_THAT(peripherals(design, "odm_0"), IsEmpty());
  EXPECT_EQ(design.getParameterValue("ovrin_0", "FP"), "");
  EXPECT_EQ(design.getParameterValue("bram_0", "FPU"), "");
}

TEST(DesignFile, GivesParametersByteForByte) {
  DesignFile design = DesignFile::parse(
      R"({"instances": [{"name": "a", "type": "t", "class": "other",
          "parameters": {"": "empty name", "PX": "", "px": " 1 ", "\u00E4": "\u0000\"\n\u20ac"}}]})",
      "x.json");
  EXPECT_EQ(design.getParameterValue("a", ""), "empty name");
  EXPECT_EQ(design.getParameterValue("a", "PX"), "");
  EXPECT_EQ(design.getParameterValue("a", "px"), " 1 ");
  EXPECT_EQ(design.getParameterValue("a", "\xC3\xA4"), std::string("\0\"\n\xE2\x82\xAC", 6));
}

TEST(DesignFile, KnowsNamesHoweverTheyAreWritten) {
  DesignFile design = DesignFile::parse(
      R"({"instances": [{"name": "\u0070", "type": "ov\u0072in", "class": "pr\u006fcessor", "peripherals": ["\u006D"],
                         "p\u0061rameters": {"\u0041": "\ud83d\uDE00"}},
                        {"name": "\u006d", "type": "t", "class": "memory"}]})",
      "x.json");
  EXPECT_THAT(processors(design), ElementsAre("p"));
  EXPECT_THAT(of_type(design, "ovrin"), ElementsAre("p"));
  EXPECT_THAT(peripherals(design, "p"), ElementsAre("m"));
  EXPECT_EQ(design.getIpName("p"), "ovrin");
  EXPECT_EQ(design.getParameterValue("p", "A"), "\xF0\x9F\x98\x80");
  EXPECT_EQ(parse_error(design_with(R"({"parameters": {"A": "", "\u0041": ""}})")),
            "x.json: /instances/3/parameters/A: found a second member of this name, expected one");
}

TEST(DesignFile, KnowsEachNameOfALongList) {
  std::string parameters;
  for (int i = 0; i < 40; ++i) parameters += "\"P" + std::to_string(i) + "\": \"" + std::to_string(i) + "\", ";
  DesignFile design = DesignFile::parse(
      R"({"instances": [{"name": "a", "type": "t", "class": "other", "parameters": {)" + parameters + R"("P": ""}}]})",
      "x.json");
  for (int i = 0; i < 40; ++i) {
    EXPECT_EQ(design.getParameterValue("a", "P" + std::to_string(i)), std::to_string(i));
  }
  for (const char* const name : {"P0", "P15", "P16", "P39"}) {
    EXPECT_EQ(
        parse_error(design_with("{\"parameters\": {" + parameters + '"' + name + "\": \"\"}}")),
        std::string("x.json: /instances/3/parameters/") + name + ": found a second member of this name, expected one");
  }
}

TEST(DesignFile, AcceptsTheSmallestDesign) {
  DesignFile design = DesignFile::parse(R"({"instances":[]})", "x.json");
  EXPECT_THAT(processors(design), IsEmpty());
  EXPECT_THAT(debug_ip(design), IsEmpty());
}

TEST(DesignFile, AcceptsMembersInAnyOrder) {
  DesignFile design = DesignFile::parse(
      R"({"instances": [{"processors": ["p"], "parameters": {}, "class": "debug", "type": "odm", "name": "d"},
                        {"peripherals": [], "class": "processor", "name": "p", "type": "ovrin"}], "name": ""})",
      "x.json");
  EXPECT_THAT(connected(design, "d"), ElementsAre("p"));
}

TEST(DesignFile, AcceptsAByteOrderMarkAndEveryKindOfWhiteSpace) {
  DesignFile design = DesignFile::parse(
      "\xEF\xBB\xBF \t\r\n{\r\n\t\"instances\" : [ {\"name\":\"p\",\"type\":\"t\",\"class\":\"processor\"} ] }\r\n",
      "x.json");
  EXPECT_THAT(processors(design), ElementsAre("p"));
}

TEST(DesignFile, AcceptsNamesOf200Characters) {
  const std::string name(200, 'n');
  DesignFile design = DesignFile::parse(
      R"({"instances": [{"name": ")" + name + R"(", "type": ")" + name + R"(", "class": "processor"}]})", "x.json");
  EXPECT_THAT(processors(design), ElementsAre(name));
  EXPECT_EQ(design.getIpName(name), name);
}

// --- The example designs ---

TEST(DesignFile, HasASchemaForTheExamples) {
  for (const char* const name : {"small", "large", "old-bus"}) {
    std::ifstream in(PROJECT_SOURCE_DIR "/examples/designs/" + std::string(name) + ".json", std::ios::binary);
    EXPECT_EQ(why_invalid({std::istreambuf_iterator<char>(in), {}}), "") << name;
  }
}

TEST(DesignFile, AnswersForTheSmallExample) {
  DesignFile design = example("small");
  EXPECT_THAT(processors(design), ElementsAre("ovrin_0"));
  EXPECT_THAT(debug_ip(design), ElementsAre("odm_0"));
  EXPECT_THAT(connected(design, "odm_0"), ElementsAre("ovrin_0"));
  EXPECT_THAT(peripherals(design, "ovrin_0"), ElementsAre("bram_0", "uart_0"));
  EXPECT_EQ(design.getIpName("ovrin_0"), "ovrin");
  EXPECT_EQ(design.getIpName("odm_0"), "odm");
  EXPECT_EQ(design.getIpName("bram_0"), "lmb_ocram_port");
  EXPECT_EQ(design.getIpName("uart_0"), "tfb_serial_lite");
  EXPECT_EQ(design.getParameterValue("uart_0", "BAUD"), "115200");
}

TEST(DesignFile, AnswersForTheLargeExample) {
  DesignFile design = example("large");
  EXPECT_THAT(processors(design), ElementsAre("ppc405_0", "ppc440_0", "cortexa9_0", "cortexa9_1", "ovrin_0", "ovrin_1",
                                              "ovrin_2", "ovrin_3", "vecdsp_0"));
  EXPECT_THAT(debug_ip(design), ElementsAre("odm_0", "jtag_ppc_0", "trace_0", "odm_1", "jtag_ppc_1"));
  EXPECT_THAT(connected(design, "odm_0"), ElementsAre("ovrin_0", "ovrin_1"));
  EXPECT_THAT(connected(design, "odm_1"), ElementsAre("ovrin_2"));
  EXPECT_THAT(connected(design, "jtag_ppc_0"), ElementsAre("ppc405_0"));
  EXPECT_THAT(connected(design, "jtag_ppc_1"), ElementsAre("ppc440_0"));
  EXPECT_THAT(connected(design, "trace_0"), ElementsAre("vecdsp_0"));
  EXPECT_THAT(of_type(design, "ovrin"), ElementsAre("ovrin_0", "ovrin_1", "ovrin_2", "ovrin_3"));
  EXPECT_THAT(of_type(design, "hc9_cortexa9"), ElementsAre("cortexa9_0", "cortexa9_1"));
  EXPECT_THAT(of_type(design, "tfb_serial_lite"), ElementsAre("uart_0", "uart_1"));
  EXPECT_THAT(peripherals(design, "ppc440_0"),
              ElementsAre("apu_flt_1", "ppc440_ddr_0", "sram_0", "eth_0", "uart_2", "intc_0"));
  EXPECT_THAT(peripherals(design, "ovrin_1"), ElementsAre("lmb_bram_1", "mpdc_0", "gpio_0", "mailbox_0"));
  EXPECT_EQ(design.getIpName("ppc405_0"), "ppc405_varnel4");
  EXPECT_EQ(design.getIpName("ppc440_0"), "ppc440_varnel5");
  EXPECT_EQ(design.getIpName("apu_flt_0"), "apu_flt");
  EXPECT_EQ(design.getIpName("apu_flt_1"), "apu_flt_varnel5");
  EXPECT_EQ(design.getParameterValue("apu_flt_1", "C_DOUBLE_PRECISION"), "1");
}

TEST(DesignFile, AnswersForTheOldBusExample) {
  DesignFile design = example("old-bus");
  EXPECT_THAT(processors(design), ElementsAre("ppc405_0", "ovrin_0", "ovrin_1"));
  EXPECT_THAT(debug_ip(design), ElementsAre("opb_odm_0", "jtag_ppc_0"));
  EXPECT_THAT(connected(design, "opb_odm_0"), ElementsAre("ovrin_0", "ovrin_1"));
  EXPECT_THAT(connected(design, "jtag_ppc_0"), ElementsAre("ppc405_0"));
  EXPECT_THAT(of_type(design, "opb_serial_lite"), ElementsAre("uart_0"));
  EXPECT_THAT(peripherals(design, "ovrin_0"),
              ElementsAre("lmb_bram_0", "opb_bram_0", "flash_0", "uart_0", "timer_0", "gpio_0"));
  EXPECT_EQ(design.getIpName("opb_odm_0"), "opb_odm");
  EXPECT_EQ(design.getIpName("ppc405_0"), "ppc405");
}

// --- Size ---

TEST(DesignFile, LoadsAndAnswersForAHundredThousandInstances) {
  constexpr int kProcessors = 50'000;
  std::string text = R"({"instances": [)";
  std::string all;
  const auto add = [](std::string& to, std::string_view part, const std::string& number) {  // replaces # by number
    for (const char c : part) c == '#' ? to += number : to += c;
  };
  for (int i = 0; i < kProcessors; ++i) {
    const std::string n = std::to_string(i);
    add(text, R"({"name": "p#", "type": "ovrin", "class": "processor", "peripherals": ["u#"]},)", n);
    add(text, R"({"name": "u#", "type": "uart", "class": "peripheral", "parameters": {"N": "#"}},)", n);
    add(all, i > 0 ? R"(, "p#")" : R"("p#")", n);
  }
  text += R"({"name": "odm_0", "type": "odm", "class": "debug", "processors": [)" + all + "]}]}";
  DesignFile design = DesignFile::parse(text, "x.json");
  EXPECT_EQ(processors(design).size(), 50'000U);
  EXPECT_EQ(connected(design, "odm_0").size(), 50'000U);
  for (const std::string& name : of_type(design, "ovrin")) {
    const Names uart = peripherals(design, name);
    ASSERT_EQ(uart.size(), 1U);
    ASSERT_EQ(design.getIpName(uart[0]), "uart");
    ASSERT_EQ(design.getParameterValue(uart[0], "N"), name.substr(1));
  }
}

// --- Broken JSON ---

TEST(DesignFile, NamesThePlaceInBrokenJson) {
  const struct {
    std::string_view text;
    const char* message;
  } cases[] = {
      {" \n\t", "line 2, column 2: found the end of the file, expected a value"},
      {"{", "line 1, column 2: found the end of the file, expected a member name in double quotes"},
      {"{\"instances\"", "line 1, column 13: found the end of the file, expected ':'"},
      {"{\"instances\":", "line 1, column 14: found the end of the file, expected a value"},
      {"{\"instances\":[", "line 1, column 15: found the end of the file, expected a value"},
      {"{\"instances\":[]", "line 1, column 16: found the end of the file, expected ',' or '}'"},
      {"{\n  \"instances\": [\n", "line 3, column 1: found the end of the file, expected a value"},
      {"{\"name\": \"ovr", "line 1, column 14: found the end of the file, expected a closing quote"},
      {"{name: 1}", "line 1, column 2: found \"name\", expected a member name in double quotes"},
      {"{'name': 1}", "line 1, column 2: found \"'\", expected a member name in double quotes"},
      {"{\"name\" \"a\"}", "line 1, column 11: found a string literal, expected ':'"},
      {"{\"name\" 12}", "line 1, column 10: found a number literal, expected ':'"},
      {"{\"name\" true}", "line 1, column 12: found a true literal, expected ':'"},
      {"{\"name\": \"a\" \"b\"}", "line 1, column 16: found a string literal, expected ',' or '}'"},
      {"{\"name\": }", "line 1, column 10: found '}', expected a value"},
      {"{\"instances\": [}", "line 1, column 16: found '}', expected a value"},
      {"{\"instances\": []\n,}", "line 2, column 2: found '}', expected a member name in double quotes"},
      {"{\"instances\": True}", "line 1, column 15: found \"True\", expected a value"},
      {"{\"name\": nul}", "line 1, column 10: found \"nul}\", expected a value"},
      {"{\"name\": -}", "line 1, column 11: found \"}\", expected a digit"},
      {"{\"name\": 1.}", "line 1, column 12: found \"}\", expected a digit"},
      {"{\"name\": 1e+}", "line 1, column 13: found \"}\", expected a digit"},
      {"{\"name\": \"a\nb\"}",
       "line 1, column 12: found \"\\x0A\", expected control characters written as escapes such as \\n"},
      {"{\"name\": \"a\tb\"}",
       "line 1, column 12: found \"\\x09\", expected control characters written as escapes such as \\n"},
      {"{\"name\": \"\\x\"}", "line 1, column 12: found \"x\", expected an escape such as \\n or \\u000A"},
      {"{\"name\": \"\\u12\"}", "line 1, column 15: found \"\\\"\", expected four hexadecimal digits after \\u"},
      {"{\"name\": \"\\ud800\"}", "line 1, column 17: found \"\\\"\", expected a pair of surrogates"},
      {"{\"name\": \"\\udc00\"}", "line 1, column 16: found \"0\", expected a pair of surrogates"},
      {"{\"name\": \"a\xFF\"}", "line 1, column 12: found \"\\xFF\", expected UTF-8"},
      {"{\"name\": \"\xC0\xAF\"}", "line 1, column 11: found \"\\xC0\", expected UTF-8"},
      {"{\"name\": \"\xED\xA0\x80\"}", "line 1, column 12: found \"\\xA0\", expected UTF-8"},
      {"\xFF\xFE{", "line 1, column 1: found \"\\xFF\", expected a value"},
      {"\xEF\xBB{", "line 1, column 3: found \"{\", expected a value"},
      {"\x7F"
       "ELF\x02",
       "line 1, column 1: found \"\\x7F\", expected a value"},
      {"// no comments\n{}", "line 1, column 1: found \"/\", expected a value"},
      {"{\"instances\": []} x", "line 1, column 19: found \"x\", expected the end of the file"},
      {"{\"instances\": []}\n{}", "line 2, column 1: found '{', expected the end of the file"},
      {"{\"instances\": []}]", "line 1, column 18: found ']', expected the end of the file"},
      {"{\"instances\": []} \"; expected ':'",
       "line 1, column 34: found the end of the file, expected a closing quote"},
      {"\xEF", "line 1, column 2: found the end of the file, expected a value"},
      {"\xEF\xBB\xBF{", "line 1, column 5: found the end of the file, expected a member name in double quotes"},
      {"{\"name\" nul", "line 1, column 12: found the end of the file, expected ':'"},
      {"{\"instances\": []} nul", "line 1, column 22: found the end of the file, expected a value"},
      {"{\"name\" 1e999}", "line 1, column 13: found a number literal, expected ':'"},
      {"{\"name\" null}", "line 1, column 12: found a null literal, expected ':'"},
      {"{\"name\" false}", "line 1, column 13: found a false literal, expected ':'"},
      {"{\"name\" -}", "line 1, column 10: found \"}\", expected a digit"},
      {"{\"name\" \"\\udc00\"}", "line 1, column 15: found \"0\", expected a pair of surrogates"},
      {"{\"name\": \"\\udc00\xFF\"}", "line 1, column 16: found \"0\", expected a pair of surrogates"},
      {"{\"name\": \"\\\\udc00\xFF\"}", "line 1, column 18: found \"\\xFF\", expected UTF-8"},
      {"{\"name\": \"\\ud83d\\uDE00\xFF\"}", "line 1, column 23: found \"\\xFF\", expected UTF-8"},
      {"{\"name\": \"\\ud800", "line 1, column 17: found the end of the file, expected a pair of surrogates"},
      {"{\"name\": \"\\ud800\\n\"}", "line 1, column 18: found \"n\", expected a pair of surrogates"},
      {"{\"name\": \"\\ud800\\u0041\"}", "line 1, column 22: found \"1\", expected a pair of surrogates"},
      {"{\"name\": \"\\ud800\\u00g1\"}", "line 1, column 21: found \"g\", expected four hexadecimal digits after \\u"},
      {"{\"name\": \"\\u00",
       "line 1, column 15: found the end of the file, expected four hexadecimal digits after \\u"},
      {"{\"name\": \"\\", "line 1, column 12: found the end of the file, expected an escape such as \\n or \\u000A"},
      {"{\"name\": \"\xE2\x82\"}", "line 1, column 13: found \"\\\"\", expected UTF-8"},
      {"{\"name\": \"\xF0\x9F\x98", "line 1, column 14: found the end of the file, expected UTF-8"},
      {"{\"name\": \"\xF4\x90\x80\x80\"}", "line 1, column 12: found \"\\x90\", expected UTF-8"},
      {"{\"name\": \"\xE0\x9F\x80\"}", "line 1, column 12: found \"\\x9F\", expected UTF-8"},
      {"{\"name\": NaN}", "line 1, column 10: found \"NaN\", expected a value"},
      {"{\"name\": -Infinity}", "line 1, column 11: found \"I\", expected a digit"},
      {"{\"name\": /**/ \"a\"}", "line 1, column 10: found \"/\", expected a value"},
      {std::string_view("{\"instances\": []}\0x", 19), "line 1, column 18: found \"\\x00\", expected JSON text"},
      {std::string_view("\0", 1), "line 1, column 1: found \"\\x00\", expected JSON text"},
  };
  for (const auto& [text, message] : cases) {
    EXPECT_EQ(parse_error(std::string(text)), std::string("x.json: ") + message) << text;
  }
}

// --- Wrong members ---

TEST(DesignFile, NamesThePlaceOfWhatIsNoDesign) {
  constexpr const char* kMembers = "name, type, class, parameters, processors or peripherals";
  const struct {
    std::string text;
    const char* message;
  } cases[] = {
      {"[]", "top level: found an array, expected an object"},
      {"\"design\"", "top level: found a text, expected an object"},
      {"null", "top level: found null, expected an object"},
      {"{}", "/instances: found nothing, expected an array"},
      {R"({"name": "x"})", "/instances: found nothing, expected an array"},
      {R"({"name": 1, "instances": []})", "/name: found a number, expected a text"},
      {R"({"name": -1, "instances": []})", "/name: found a number, expected a text"},
      {R"({"name": 1e999, "instances": []})", "/name: found a number, expected a text"},
      {R"({"name": 99999999999999999999999, "instances": []})", "/name: found a number, expected a text"},
      {R"({"instances": {}})", "/instances: found an object, expected an array"},
      {R"({"instances": null})", "/instances: found null, expected an array"},
      {R"({"instances": [[]]})", "/instances/0: found an array, expected an object"},
      {R"({"instances": [], "instances": []})", "/instances: found a second member of this name, expected one"},
      {R"({"Name": "x", "instances": []})", "/Name: found an unknown member, expected name or instances"},
      {R"({"": {}, "instances": []})", "/: found an unknown member, expected name or instances"},
      {R"({"a/b~c": {}, "instances": []})", "/a~1b~0c: found an unknown member, expected name or instances"},
      {R"({"a\n\"\u001b[31m\\": {}, "instances": []})",
       R"(/a\x0A\"\x1B[31m\\: found an unknown member, expected name or instances)"},
  };
  for (const auto& [text, message] : cases) {
    EXPECT_EQ(parse_error(text), std::string("x.json: ") + message) << text;
    EXPECT_TRUE(!is_in_schema(message) || !why_invalid(text).empty()) << text;
  }
  EXPECT_EQ(parse_error(design_with(R"({"name": "a", "type": "t", "class": "other", "colour": "red"})")),
            std::string("x.json: /instances/3/colour: found an unknown member, expected ") + kMembers);
}

TEST(DesignFile, NamesThePlaceInAWrongInstance) {
  const struct {
    std::string instance;
    std::string message;
  } cases[] = {
      // Members.
      {R"("uart_0")", "/instances/3: found a text, expected an object"},
      {R"({"type": "t", "class": "other"})", "/instances/3/name: found nothing, expected a text"},
      {R"({"name": "a", "class": "other"})", "/instances/3/type: found nothing, expected a text"},
      {R"({"name": "a", "type": "t"})", "/instances/3/class: found nothing, expected a text"},
      {R"({"name": 7})", "/instances/3/name: found a number, expected a text"},
      {R"({"name": "a", "type": ["t"]})", "/instances/3/type: found an array, expected a text"},
      {R"({"name": "a", "class": 5})", "/instances/3/class: found a number, expected a text"},
      {R"({"name": "a", "name": "a"})", "/instances/3/name: found a second member of this name, expected one"},
      // Names.
      {R"({"name": ""})", R"(/instances/3/name: found "", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": "../a"})", R"(/instances/3/name: found "../a", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": "a b"})", R"(/instances/3/name: found "a b", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": "a\u0000"})",
       R"(/instances/3/name: found "a\x00", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": "a\n"})", R"(/instances/3/name: found "a\x0A", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": "\u00e4"})",
       R"(/instances/3/name: found "\xC3\xA4", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": ")" + std::string(201, 'n') + R"("})",
       "/instances/3/name: found \"" + std::string(60, 'n') +
           "...\", expected 1 to 200 letters, digits or underscores"},
      {R"({"type": "a-b"})", R"(/instances/3/type: found "a-b", expected 1 to 200 letters, digits or underscores)"},
      {R"({"name": "odm_0"})", R"(/instances/3/name: found "odm_0", expected another name than that of /instances/1)"},
      // Classes.
      {R"({"name": "a", "class": "cpu"})",
       R"(/instances/3/class: found "cpu", expected processor, debug, peripheral, memory or other)"},
      {R"({"name": "a", "class": "Debug"})",
       R"(/instances/3/class: found "Debug", expected processor, debug, peripheral, memory or other)"},
      // Parameters.
      {R"({"parameters": []})", "/instances/3/parameters: found an array, expected an object"},
      {R"({"parameters": {"PX": 1}})", "/instances/3/parameters/PX: found a number, expected a text"},
      {R"({"parameters": {"PX": true}})", "/instances/3/parameters/PX: found true or false, expected a text"},
      {R"({"parameters": {"P/X": {}}})", "/instances/3/parameters/P~1X: found an object, expected a text"},
      {R"({"parameters": {"PX": "1", "PY": "", "PX": "1"}})",
       "/instances/3/parameters/PX: found a second member of this name, expected one"},
      // Lists in the wrong class.
      {R"({"name": "a", "type": "t", "class": "processor", "processors": ["ovrin_0"]})",
       "/instances/3/processors: found it in class processor, expected it in class debug only"},
      {R"({"processors": [], "name": "a", "type": "t", "class": "other"})",
       "/instances/3/processors: found it in class other, expected it in class debug only"},
      {R"({"name": "a", "type": "t", "class": "debug", "peripherals": []})",
       "/instances/3/peripherals: found it in class debug, expected it in class processor only"},
      {R"({"processors": "ovrin_0"})", "/instances/3/processors: found a text, expected an array"},
      {R"({"processors": ["ovrin_0", 1]})", "/instances/3/processors/1: found a number, expected a text"},
      // References.
      {R"({"processors": ["ovrin_0", "ovrin_0"]})",
       R"(/instances/3/processors/1: found "ovrin_0" again, expected each name once)"},
      {R"({"name": "a", "type": "t", "class": "debug", "processors": ["ovrin_0", "ovrin_9"]})",
       R"(/instances/3/processors/1: found "ovrin_9", which is no instance, expected an instance of class processor)"},
      {R"({"name": "a", "type": "t", "class": "debug", "processors": ["uart_0"]})",
       R"(/instances/3/processors/0: found "uart_0" of class peripheral, expected an instance of class processor)"},
      {R"({"name": "a", "type": "t", "class": "debug", "processors": ["\r\n"]})",
       R"(/instances/3/processors/0: found "\x0D\x0A", which is no instance, )"
       "expected an instance of class processor"},
      {R"({"name": "a", "type": "t", "class": "processor", "peripherals": ["uart_0", "uart_9"]})",
       R"(/instances/3/peripherals/1: found "uart_9", which is no instance, )"
       "expected an instance of class peripheral, memory or other"},
      {R"({"name": "a", "type": "t", "class": "processor", "peripherals": ["odm_0"]})",
       R"(/instances/3/peripherals/0: found "odm_0" of class debug, )"
       "expected an instance of class peripheral, memory or other"},
      {R"({"name": "a", "type": "t", "class": "processor", "peripherals": ["a"]})",
       R"(/instances/3/peripherals/0: found "a" of class processor, )"
       "expected an instance of class peripheral, memory or other"},
  };
  for (const auto& [instance, message] : cases) {
    EXPECT_EQ(parse_error(design_with(instance)), "x.json: " + message) << instance;
    EXPECT_TRUE(!is_in_schema(message) || !why_invalid(design_with(instance)).empty()) << instance;
  }
}

TEST(DesignFile, EndsNestingAtOnceHoweverDeep) {
  std::string nesting;
  nesting.resize(100'000'000, '[');
  EXPECT_EQ(parse_error(nesting), "x.json: top level: found an array, expected an object");
  EXPECT_EQ(parse_error(R"({"instances": )" + nesting), "x.json: /instances/0: found an array, expected an object");
  EXPECT_EQ(parse_error(R"({"colour": )" + nesting),
            "x.json: /colour: found an unknown member, expected name or instances");
  EXPECT_EQ(parse_error(design_with(R"({"parameters": {"PX": )" + nesting)),
            "x.json: /instances/3/parameters/PX: found an array, expected a text");
}

TEST(DesignFile, KeepsTheMessageShortHoweverLongTheFaultyText) {
  const std::string text(1'000'000, 'x');
  const std::string echo(60, 'x');
  EXPECT_EQ(parse_error("{" + text),
            "x.json: line 1, column 2: found \"" + echo + "...\", expected a member name in double quotes");
  EXPECT_EQ(parse_error("{\"name\": \"" + text),
            "x.json: line 1, column 1000011: found the end of the file, expected a closing quote");
  EXPECT_EQ(parse_error("{\"name\" \"" + text + "\"}"),
            "x.json: line 1, column 1000010: found a string literal, expected ':'");
  EXPECT_EQ(parse_error("{\"" + text + "\": 1}"),
            "x.json: /" + echo + "...: found an unknown member, expected name or instances");
  EXPECT_EQ(
      parse_error(design_with(R"({"class": ")" + text + "\"}")),
      "x.json: /instances/3/class: found \"" + echo + "...\", expected processor, debug, peripheral, memory or other");
}

TEST(DesignFile, KeepsTheMessageOnOneLineWhateverTheFileIsCalled) {
  EXPECT_EQ(error_of([] { DesignFile::parse("[]", "a\nb\x1B[31m\xC3\xA4.json"); }),
            "a?b?[31m\xC3\xA4.json: top level: found an array, expected an object");
}

// --- Files ---

TEST(DesignFile, LoadsAFileAndNamesItInErrors) {
  const TemporaryFolder folder;
  const std::string good = folder.write("good.json", R"({"instances": []})");
  EXPECT_EQ(load_error(good), "no error");
  const std::string bad = folder.write("bad.json", "{\"instances\": [\n7]}");
  EXPECT_EQ(load_error(bad), bad + ": /instances/0: found a number, expected an object");
  std::filesystem::create_symlink(good, folder.path("link.json"));
  EXPECT_EQ(load_error(folder.path("link.json")), "no error");
}

TEST(DesignFile, RefusesAnEmptyFile) {
  const TemporaryFolder folder;
  const std::string path = folder.write("empty.json", "");
  EXPECT_EQ(load_error(path), path + ": found nothing, expected a JSON object");
}

TEST(DesignFile, RefusesAMissingFile) {
  const GlobalLocale classic;
  const TemporaryFolder folder;
  const std::string path = folder.path("missing.json");
  EXPECT_EQ(load_error(path), path + ": cannot be read: No such file or directory");
  EXPECT_EQ(load_error(""), ": cannot be read: No such file or directory");
  const std::string file = folder.write("file.json", "");
  EXPECT_EQ(load_error(file + "/x"), file + "/x: cannot be read: Not a directory");
}

TEST(DesignFile, RefusesAFileThatItMayNotRead) {
  const GlobalLocale classic;
  const TemporaryFolder folder;
  const std::string path = folder.write("secret.json", R"({"instances": []})");
  ASSERT_EQ(::chmod(path.c_str(), 0), 0);
  std::filesystem::permissions(folder.path(""), std::filesystem::perms::all);
  constexpr uid_t kNobody = 65534;
  const bool root = ::geteuid() == 0;  // root may read every file
  if (root && ::seteuid(kNobody) != 0) GTEST_SKIP() << "cannot become another user";
  const std::string error = load_error(path);
  if (root) {
    ASSERT_EQ(::seteuid(0), 0);
  }
  EXPECT_EQ(error, path + ": cannot be read: Permission denied");
}

TEST(DesignFile, RefusesWhatIsNoRegularFileWithoutOpeningIt) {
  const TemporaryFolder folder;
  EXPECT_EQ(load_error(folder.path("")), folder.path("") + ": found a directory, expected a regular file");
  EXPECT_EQ(load_error("/dev/null"), "/dev/null: found a character device, expected a regular file");
  EXPECT_EQ(load_error("/dev/zero"), "/dev/zero: found a character device, expected a regular file");

  const std::string pipe = folder.path("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(load_error(pipe), pipe + ": found a pipe, expected a regular file");

  // Relative, because the path of a socket must be short.
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path(""));
  const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = "socket"};
  EXPECT_EQ(::bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(load_error("socket"), "socket: found a socket, expected a regular file");
  ::close(server);
  std::filesystem::current_path(before);
}

TEST(DesignFile, RefusesAFileFarLargerThanAnyDesign) {
  const TemporaryFolder folder;
  const std::string path = folder.write("large.json", "");
  std::filesystem::resize_file(path, 134'217'729);  // a sparse file
  EXPECT_EQ(load_error(path), path + ": found 134217729 bytes, expected at most 128 MiB");
}

}  // namespace
