// A configuration as a value: what it says, what it refuses, and what it stores.

#include "SdkDebugDialog/Configuration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/DesignFile.h"
#include "tests/options/work_folder.h"
#include "tests/support/DesignedEngine.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/run_together.h"

namespace {

using SdkDebugDialog::Change;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::Difference;
using SdkDebugDialog::Edit;
using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::Expected;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Loss;
using SdkDebugDialog::OnLoss;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::TextKind;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

namespace fs = std::filesystem;

static_assert(std::is_nothrow_move_constructible_v<Configuration> && std::is_nothrow_move_assignable_v<Configuration>);

constexpr char kUsb[] =
    "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 cpunr 1";

// The processors of one_of_each.
class ConfigurationTest : public testing::Test {
 protected:
  Processor processor(std::string_view name) const { return m_design.find(name).value(); }
  Configuration initial(std::string_view name) const { return Configuration(processor(name)); }
  Configuration read(std::string_view name, std::string_view text) const {
    return Configuration::read(processor(name), text).value();
  }
  const SdkDebugDialog::Design& design() const { return m_design; }

 private:
  FakeHardware m_hardware = one_of_each();
  SdkDebugDialog::Design m_design{m_hardware};
};

const Setting& setting(std::string_view name) { return *find_setting(name); }

template <class Value>
ErrorCode code_of(const Expected<Value>& result) {
  EXPECT_FALSE(result);
  EXPECT_NE(result.error().message, "");
  EXPECT_EQ(result.error().message.find('\n'), std::string::npos) << result.error().message;
  return result.error().code;
}

// "frequency: 6 MHz -> 12 MHz"
std::vector<std::string> told(const std::vector<Difference>& differences) {
  std::vector<std::string> lines;
  lines.reserve(differences.size());
  for (const Difference& d : differences) {
    lines.push_back(std::string(d.setting->name) + ": " + value_text(*d.setting, d.before) + " -> " +
                    value_text(*d.setting, d.after));
  }
  return lines;
}

std::vector<std::string> told(const std::vector<Loss>& losses) {
  std::vector<std::string> lines;
  for (const Loss& loss : losses) {
    EXPECT_NE(loss.why, "") << loss.what;
    lines.push_back(loss.what);
  }
  return lines;
}

void expect_set(Configuration& configuration, const std::vector<std::pair<const char*, const char*>>& values) {
  for (const auto& [name, value] : values) {
    const auto set = configuration.set(name, value);
    ASSERT_TRUE(set) << name << "=" << value << ": " << set.error().message;
    EXPECT_THAT(*set, testing::IsEmpty()) << name;
  }
}

// The message; the configuration must be as it was.
std::string refusal(Configuration& configuration, const char* name, const std::string& value, ErrorCode code) {
  const Configuration before = configuration;
  const auto set = configuration.set(name, value);
  EXPECT_EQ(configuration, before);
  if (set) {
    ADD_FAILURE() << name << "=" << value << " was accepted";
    return {};
  }
  EXPECT_EQ(code_of(set), code) << name << "=" << value << ": " << set.error().message;
  return set.error().message;
}

// --- Processors ---

using DesignTest = ConfigurationTest;

TEST_F(DesignTest, ListsItsProcessors) {
  EXPECT_THAT(design().names(), ElementsAre("ovrin_0", "ovrin_1", "ppc405_0", "ppc440_0", "a9_0"));
  std::vector<std::string> names;
  for (const Processor& processor : design().processors()) {
    names.push_back(processor.name());
    EXPECT_NE(processor.hardware(), nullptr);
  }
  EXPECT_THAT(names, testing::UnorderedElementsAre("ovrin_0", "ovrin_1", "ppc405_0", "ppc440_0", "a9_0"));
}

TEST_F(DesignTest, NamesTheNearestProcessor) {
  const auto found = design().find("ovrin_O");
  EXPECT_EQ(code_of(found), ErrorCode::noSuchProcessor);
  EXPECT_THAT(found.error().message, AllOf(HasSubstr("ovrin_O"), HasSubstr("ovrin_0")));
  EXPECT_EQ(code_of(design().find("")), ErrorCode::noSuchProcessor);
}

TEST_F(DesignTest, IdentifiesTheProcessorOfACommand) {
  EXPECT_EQ(design().identify("connect ppc hw -debugdevice cpunr 2").value().name(), "ppc440_0");
  EXPECT_EQ(design().identify("connect ov odm").value().name(), "ovrin_0");
  EXPECT_EQ(design().identify("connect ov odm -debugdevice cpunr 77").value().name(), "");
  EXPECT_EQ(code_of(design().identify("connect ov odm -")), ErrorCode::notUnderstood);
  EXPECT_EQ(code_of(design().identify("hello")), ErrorCode::notUnderstood);
}

TEST(Design, OutlivesWhatItWasMadeOf) {
  const Configuration configuration = [] {
    const SdkDebugDialog::Design design(std::make_shared<FakeHardware>(one_of_each()));
    return Configuration::read(design.find("ppc440_0").value(), "connect ppc hw").value();
  }();
  EXPECT_EQ(value_text(setting("fpu"), configuration.value(setting("fpu"))), "dp");
  EXPECT_EQ(configuration.processor().name(), "ppc440_0");
}

// --- A value ---

TEST_F(ConfigurationTest, IsCopiedComparedAndMoved) {
  const Configuration now = read("ovrin_0", kUsb);
  Configuration edited = now;
  EXPECT_EQ(edited, now);
  expect_set(edited, {{"frequency", "12M"}, {"devices", "2,prom32,16,0xa5059093"}});
  EXPECT_NE(edited, now);
  EXPECT_TRUE(now.chain().empty());
  EXPECT_EQ(now.cable().frequency, 6000000U);

  Configuration moved = std::move(edited);
  EXPECT_EQ(moved.cable().frequency, 12000000U);
  EXPECT_EQ(moved.chain().size(), 1U);
  Configuration assigned(processor("a9_0"));
  assigned = moved;
  EXPECT_EQ(assigned, moved);
  assigned = now;
  EXPECT_EQ(assigned, now);
  assigned = std::move(moved);
  EXPECT_EQ(assigned.chain().size(), 1U);
  const Configuration& same = assigned;
  assigned = same;
  EXPECT_EQ(assigned.chain().size(), 1U);
}

TEST_F(ConfigurationTest, IsAnotherOneForAnotherProcessorOrAnotherText) {
  EXPECT_NE(initial("ovrin_0"), initial("ppc405_0"));
  EXPECT_EQ(read("ovrin_0", kUsb), read("ovrin_0", kUsb));
  EXPECT_NE(read("ovrin_0", "connect ov odm -quiet"), read("ovrin_0", "connect ov odm"));
  EXPECT_TRUE(differences(read("ovrin_0", "connect ov odm -quiet"), read("ovrin_0", "connect ov odm")).empty());
}

TEST_F(ConfigurationTest, IsAnotherOneWhenAnotherTextWouldBeStored) {
  const Configuration now = read("ovrin_0", "connect ov odm -debugdevice deviceNr 0 cpunr 1");
  Configuration edited = now;
  ASSERT_TRUE(edited.reset(setting("debug-device")));
  EXPECT_TRUE(differences(now, edited).empty());
  EXPECT_EQ(edited.text().value(), "connect ov odm -debugdevice cpunr 1");
  EXPECT_NE(edited, now);
}

TEST_F(ConfigurationTest, SetBackAgainIsTheSame) {
  const Configuration now = read("ovrin_0", kUsb);
  Configuration edited = now;
  expect_set(edited, {{"frequency", "12M"}, {"frequency", "6M"}});
  EXPECT_EQ(edited, now);
}

TEST_F(ConfigurationTest, BeginsWithTheDefaultsOfItsProcessor) {
  const Configuration c = initial("ovrin_0");
  EXPECT_EQ(c.path(), "");
  EXPECT_EQ(c.processor().name(), "ovrin_0");
  EXPECT_EQ(c.record().name, "ovrin_0");
  EXPECT_FALSE(c.cpu_jtag());
  EXPECT_EQ(c.command().value(), "connect ov odm -debugdevice cpunr 1");
  EXPECT_EQ(c.text().value(), "");
  for (const Setting& s : SdkDebugDialog::settings()) EXPECT_EQ(c.state(s).initial, c.value(s)) << s.name;
}

// --- Reading ---

TEST_F(ConfigurationTest, ReadsACommand) {
  const Configuration c = read("ovrin_0", kUsb);
  EXPECT_EQ(c.value(setting("cable")), SettingValue("zarvek_platformusb"));
  EXPECT_EQ(c.value(setting("frequency")), SettingValue(std::int64_t{6000000}));
  EXPECT_EQ(c.value(setting("debug-device")), SettingValue(std::int64_t{2}));
  EXPECT_EQ(c.value(setting("address-map")), SettingValue());
  EXPECT_EQ(c.value(setting("uart")), SettingValue(false));
  EXPECT_EQ(c.command().value(), kUsb);
  EXPECT_EQ(c.text().value(), kUsb);
}

TEST_F(ConfigurationTest, ReadsCableAndChainAlone) {
  const auto c =
      Configuration::read({}, "-configdevice devicenr 1 partname p -cable type zarvek_parallel3", TextKind::cableText);
  ASSERT_TRUE(c) << c.error().message;
  EXPECT_EQ(c->cable().frequency, 200000U);
  ASSERT_EQ(c->chain().size(), 1U);
  EXPECT_EQ(c->chain()[0].partname, "p");
}

TEST_F(ConfigurationTest, SaysWhatItDoesNotUnderstand) {
  const struct {
    const char* text;
    TextKind kind;
    const char* engineText;
  } kRows[] = {
      {"connect ov odm -quiet -foo", TextKind::command, "UNKNOWN Option '-foo'"},
      {"connect ov odm -", TextKind::command, ""},
      {"connect ov odm -cable port -", TextKind::command, ""},
      {"", TextKind::command, ""},
      {"hello", TextKind::command, ""},
      {"connect ppc stub", TextKind::command, ""},
      {"connect ov odm -debugdevice cpunr 7", TextKind::command, ""},
      {"qconnect ov odm", TextKind::optionFile, ""},
      {"\r\nconnect ov odm", TextKind::optionFile, ""},
      {"-cable type", TextKind::cableText, ""},
      {"-cable type zarvek_platformusb frequency 1", TextKind::cableText,
       "UnSupported Zarvek PlatformUSB Cable Frequency - 1\n"
       "Supported Frequencies: 750000, 1500000, 3000000, 6000000, 12000000, 24000000"},
  };
  const GlobalLocale classic;
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.text);
    const auto c = Configuration::read(processor("ovrin_0"), row.text, row.kind);
    ASSERT_EQ(code_of(c), ErrorCode::notUnderstood);
    EXPECT_EQ(c.error().engineText, row.engineText);
  }
}

TEST_F(ConfigurationTest, OpensAnOptionFileAnywhere) {
  const WorkFolder folder;
  fs::create_directories(folder.path() / "some" / "where");
  const std::string path = folder.path() / "some" / "where" / "my file";
  WorkFolder::write(path, "\n\nConnect OV odm -quiet\nmore\n");
  const auto c = Configuration::open(processor("ovrin_0"), path);
  ASSERT_TRUE(c) << c.error().message;
  EXPECT_EQ(c->path(), path);
  EXPECT_EQ(c->text().value(), "\n\nConnect OV odm -quiet\nmore\n");
  EXPECT_EQ(c->command().value(), "connect ov odm -debugdevice cpunr 1");
  EXPECT_EQ(Configuration::open(processor("ovrin_0"), "some/where/my file").value(), *c);
}

TEST_F(ConfigurationTest, OpensWhatIsNotThereAsTheDefaults) {
  const WorkFolder folder;
  EXPECT_TRUE(
      differences(Configuration::open(processor("ovrin_0"), "etc/none.opt").value(), initial("ovrin_0")).empty());
  WorkFolder::write("etc/empty.opt", "\n\n");
  EXPECT_TRUE(
      differences(Configuration::open(processor("ovrin_0"), "etc/empty.opt").value(), initial("ovrin_0")).empty());
}

TEST_F(ConfigurationTest, OpensNothingElse) {
  const WorkFolder folder;
  EXPECT_EQ(code_of(Configuration::open(processor("ovrin_0"), "etc")), ErrorCode::file);
  ASSERT_EQ(::mkfifo("etc/pipe", 0600), 0);
  EXPECT_EQ(code_of(Configuration::open(processor("ovrin_0"), "etc/pipe")), ErrorCode::file);
  WorkFolder::write("etc/wrong.opt", "connect ov hw");
  const auto wrong = Configuration::open(processor("ovrin_0"), "etc/wrong.opt");
  EXPECT_EQ(code_of(wrong), ErrorCode::notUnderstood);
  EXPECT_THAT(wrong.error().message, HasSubstr("etc/wrong.opt"));
}

// --- Setting ---

TEST_F(ConfigurationTest, SetsTextAndTypedValuesAlike) {
  Configuration a = initial("ovrin_0");
  Configuration b = a;
  expect_set(a, {{"cable", "Zarvek_PlatformUSB"}, {"frequency", "12 MHz"}, {"debug-device", "0x2"}});
  ASSERT_TRUE(b.set(setting("cable"), std::string("zarvek_platformusb")));
  ASSERT_TRUE(b.set(setting("frequency"), std::int64_t{12000000}));
  ASSERT_TRUE(b.set(setting("debug-device"), std::int64_t{2}));
  EXPECT_EQ(a, b);
  EXPECT_EQ(a.command().value(),
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice deviceNr 2 "
            "cpunr 1");
}

TEST_F(ConfigurationTest, RefusesAValueOfAnotherKind) {
  Configuration c = read("ovrin_0", kUsb);
  const Configuration before = c;
  EXPECT_EQ(code_of(c.set(setting("frequency"), std::string("12M"))), ErrorCode::invalidValue);
  EXPECT_EQ(code_of(c.set(setting("port"), std::int64_t{1})), ErrorCode::invalidValue);
  EXPECT_EQ(code_of(c.set(setting("cable"), true)), ErrorCode::invalidValue);
  EXPECT_EQ(code_of(c.set(setting("devices"), SettingValue())), ErrorCode::invalidValue);
  EXPECT_EQ(c, before);
}

TEST_F(ConfigurationTest, NamesTheNearestSetting) {
  Configuration c = initial("ovrin_0");
  EXPECT_THAT(refusal(c, "frequenzy", "12M", ErrorCode::noSuchSetting), HasSubstr("frequency"));
  EXPECT_THAT(refusal(c, "debug_device", "1", ErrorCode::noSuchSetting), HasSubstr("debug-device"));
}

TEST_F(ConfigurationTest, NamesBothNeighboursOfAnUnsupportedFrequency) {
  Configuration c = read("ovrin_0", kUsb);
  EXPECT_THAT(refusal(c, "frequency", "10M", ErrorCode::refused), AllOf(HasSubstr("6 MHz"), HasSubstr("12 MHz")));
  EXPECT_THAT(refusal(c, "frequency", "1234", ErrorCode::refused), HasSubstr("750 kHz"));
  EXPECT_THAT(refusal(c, "frequency", "25M", ErrorCode::refused), HasSubstr("24 MHz"));
  EXPECT_EQ(c.command().value(), kUsb);
}

TEST_F(ConfigurationTest, RefusesATextThatWouldNotSurvive) {
  Configuration c = read("ovrin_0", kUsb);
  for (const char* const text : {"a b", "a\tb", " a", "a ", "-foo", "-", "--", "a\n", "\va", "a\nb"}) {
    SCOPED_TRACE(text);
    for (const char* const name : {"port", "esn"}) {
      const auto set = Configuration(c).set(name, text);
      ASSERT_FALSE(set) << name;
      EXPECT_NE(set.error().message, "");
    }
  }
  refusal(c, "port", "", ErrorCode::invalidValue);
  expect_set(c, {{"port", "-5"}, {"esn", "x;y"}, {"esn", ""}});
  EXPECT_EQ(read("ovrin_0", c.command().value()).cable().port, "-5");
}

TEST_F(ConfigurationTest, RefusesATextWithANulCharacter) {
  Configuration c = read("ovrin_0", kUsb);
  const Configuration before = c;
  const auto set = c.set("port", std::string_view("a\0b", 3));
  if (set) {
    EXPECT_EQ(read("ovrin_0", c.text().value()).cable().port, std::string("a\0b", 3));
  } else {
    EXPECT_EQ(c, before);
  }
}

TEST_F(ConfigurationTest, RefusesNumbersOutOfRange) {
  Configuration soft = read("ovrin_0", kUsb);
  EXPECT_THAT(refusal(soft, "debug-device", "300", ErrorCode::invalidValue), HasSubstr("127"));
  refusal(soft, "debug-device", "-1", ErrorCode::invalidValue);
  refusal(soft, "debug-device", "128", ErrorCode::invalidValue);
  refusal(soft, "debug-device", "010", ErrorCode::invalidValue);
  refusal(soft, "debug-device", "two", ErrorCode::invalidValue);
  refusal(soft, "rom-size", "5G", ErrorCode::invalidValue);
  refusal(soft, "rom", "0x1_0000_0000", ErrorCode::invalidValue);

  Configuration stub = read("ovrin_0", "connect ov stub -comm serial");
  refusal(stub, "stub-baud", "-5", ErrorCode::invalidValue);
  refusal(stub, "stub-baud", "5G", ErrorCode::invalidValue);

  Configuration ppc = read("ppc405_0", "connect ppc hw");
  EXPECT_THAT(refusal(ppc, "icache", "0x12345", ErrorCode::refused), HasSubstr("64 KB"));
  refusal(ppc, "dcr", "0x100000000", ErrorCode::invalidValue);
}

TEST_F(ConfigurationTest, RefusesWhatDoesNotApply) {
  Configuration sim = read("ovrin_0", "connect ov sim");
  refusal(sim, "cable", "zarvek_platformusb", ErrorCode::refused);
  refusal(sim, "debug-device", "1", ErrorCode::refused);
  refusal(sim, "devices", "1,p,1,1", ErrorCode::refused);
  refusal(sim, "icache", "0x10000", ErrorCode::refused);
  refusal(sim, "stub-port", "COM2", ErrorCode::refused);
  // The value that it has anyway is no change.
  EXPECT_TRUE(sim.set("cable", "none"));
  Configuration soft = initial("ovrin_1");
  EXPECT_THAT(refusal(soft, "connection", "stub", ErrorCode::refused), HasSubstr("simulator"));
  EXPECT_THAT(refusal(soft, "connection", "bluetooth", ErrorCode::invalidValue), HasSubstr("simulator"));
  refusal(soft, "name", "cpu0", ErrorCode::refused);
}

TEST_F(ConfigurationTest, WarnsOfADebugDeviceThatNoDeviceHas) {
  Configuration c = initial("ovrin_0");
  ASSERT_TRUE(c.set("devices", "1,prom32,16,0xa5059093:2,fpga,10,0x0a001093"));
  const auto right = c.set("debug-device", "2");
  ASSERT_TRUE(right);
  EXPECT_THAT(*right, testing::IsEmpty());
  const auto odd = c.set("debug-device", "5");
  ASSERT_TRUE(odd);
  ASSERT_EQ(odd->size(), 1U);
  EXPECT_THAT(odd->front(), HasSubstr("5"));
  EXPECT_EQ(c.record().debugDevice, 5);
}

TEST_F(ConfigurationTest, TakesASerialStubInAnyOrder) {
  const std::vector<std::vector<std::pair<const char*, const char*>>> orders = {
      {{"stub", "serial"}},
      {{"connection", "stub"}, {"stub", "serial"}},
      {{"stub", "serial"}, {"connection", "stub"}},
      {{"stub", "serial"}, {"stub", "serial"}},
  };
  for (const auto& order : orders) {
    Configuration c = read("ovrin_0", kUsb);
    for (const auto& [name, value] : order) EXPECT_TRUE(c.set(name, value)) << name;
    EXPECT_EQ(c.command().value(), "connect ov stub -comm serial -port /dev/ttyS0  -baud  0 -timeout 20000");
    expect_set(c, {{"stub-baud", "115.2k"}, {"stub-port", "COM2"}});
    EXPECT_EQ(c.command().value(), "connect ov stub -comm serial -port COM2  -baud  115200 -timeout 20000");
    expect_set(c, {{"connection", "hardware"}});
    EXPECT_THAT(c.command().value(), HasSubstr("connect ov odm -cable type zarvek_platformusb"));
  }
  Configuration none = initial("ppc405_0");
  refusal(none, "stub", "serial", ErrorCode::refused);
}

TEST_F(ConfigurationTest, TheCableBringsPortAndFrequency) {
  Configuration c = read("ovrin_0", "connect ov odm -cable type zarvek_platformusb port X esn 7 url u -debugdevice");
  const Configuration before = c;
  expect_set(c, {{"cable", "zarvek_parallel4"}});
  EXPECT_THAT(told(differences(before, c)),
              ElementsAre("cable: zarvek_platformusb -> zarvek_parallel4", "frequency: 0 Hz -> 5 MHz",
                          "port: X -> LPT1", "esn: 7 -> ", "url: u -> "));
}

TEST_F(ConfigurationTest, TheBaseOfTheInstructionCacheIsThatOfTheMap) {
  Configuration c = read("ppc405_0", "connect ppc hw");
  const Configuration before = c;
  expect_set(c, {{"icache", "0x70000000"}});
  EXPECT_THAT(told(differences(before, c)),
              testing::UnorderedElementsAre("icache:  -> 0x70000000", "address-map:  -> 0x70000000"));
  expect_set(c, {{"icache", "none"}});
  EXPECT_EQ(c.command().value(), before.command().value());
}

TEST_F(ConfigurationTest, SetsWhatTheEngineHasNoSetterFor) {
  Configuration c = initial("ovrin_0");
  expect_set(c, {{"bscan", "user1"}});
  EXPECT_THAT(c.command().value(), HasSubstr("-bscan USER1"));
  Configuration ppc = read("ppc405_0", "connect ppc sim");
  expect_set(ppc, {{"config-file", "a.icf"}});
  EXPECT_EQ(ppc.command().value(), "connect ppc sim -icf a.icf");
  ASSERT_TRUE(ppc.reset(setting("config-file")));
  expect_set(ppc, {{"sim-host", "host1"}, {"sim-port", "7000"}});
  EXPECT_EQ(ppc.command().value(), "connect ppc sim -ipcport host1:7000");
}

TEST_F(ConfigurationTest, TheOwnPinsAreWrittenInAFormThatIsNotReadBack) {
  Configuration c = initial("ovrin_0");
  ASSERT_TRUE(c.set("cpu-jtag", "on"));
  EXPECT_TRUE(c.cpu_jtag());
  const auto edit = c.edited();
  ASSERT_TRUE(edit) << edit.error().message;
  EXPECT_NE(edit->notReadBack, "");
  EXPECT_FALSE(edit->is_safe());
  ASSERT_TRUE(c.set("cpu-jtag", "off"));
  EXPECT_TRUE(c.edited()->is_safe());
}

// --- Back to the defaults ---

TEST_F(ConfigurationTest, PutsOneSettingBack) {
  Configuration c = read("ovrin_0", kUsb);
  ASSERT_TRUE(c.reset(setting("debug-device")));
  EXPECT_EQ(c.command().value(),
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice cpunr 1");
  expect_set(c, {{"frequency", "12M"}});
  ASSERT_TRUE(c.reset(setting("frequency")));
  EXPECT_EQ(c.cable().frequency, 6000000U);
  EXPECT_EQ(code_of(c.reset(setting("name"))), ErrorCode::refused);
}

TEST_F(ConfigurationTest, PutsBackWhatDoesNotApply) {
  Configuration c = read("ovrin_0", "connect ov stub -comm serial -port COM2 -cable type zarvek_platformusb");
  ASSERT_TRUE(c.reset(setting("cable")));
  EXPECT_EQ(c.cable().type, 0U);
}

TEST_F(ConfigurationTest, PutsEverythingBack) {
  Configuration c = read("ovrin_0", "connect ov odm -quiet -bscan USER1 -configdevice devicenr 1");
  c.reset();
  EXPECT_TRUE(differences(c, initial("ovrin_0")).empty());
  EXPECT_EQ(c.text().value(), "connect ov odm -quiet");
}

// --- Differences and copies of another processor's settings ---

TEST_F(ConfigurationTest, TellsTheDifferencesInTheOrderOfTheCatalogue) {
  const Configuration a = read("ovrin_0", kUsb);
  Configuration b = a;
  EXPECT_TRUE(differences(a, b).empty());
  expect_set(b, {{"devices", "2,prom32,16,0xa5059093"}, {"frequency", "12M"}, {"bscan", "USER3"}});
  EXPECT_THAT(told(differences(a, b)), ElementsAre("bscan: USER2 -> USER3", "frequency: 6 MHz -> 12 MHz",
                                                   "devices: none -> 2,prom32,16,0xa5059093"));
  EXPECT_THAT(told(differences(b, a)), ElementsAre("bscan: USER3 -> USER2", "frequency: 12 MHz -> 6 MHz",
                                                   "devices: 2,prom32,16,0xa5059093 -> none"));
}

TEST_F(ConfigurationTest, TellsThatProcessorsDiffer) {
  const auto lines = told(differences(initial("ppc405_0"), initial("ppc440_0")));
  EXPECT_THAT(lines, testing::IsSupersetOf({"name: ppc405_0 -> ppc440_0", "variant: ppc405 -> ppc440", "cpu: 1 -> 2"}));
}

TEST_F(ConfigurationTest, CopiesTheSettingsOfAnotherProcessorAsFarAsTheyApply) {
  const Configuration from = read("ppc405_0",
                                  "connect ppc hw -cable type zarvek_platformusb port USB22 frequency 12000000 "
                                  "-debugdevice deviceNr 3 icacheStartAdr 0x70000000");
  Configuration ppc = initial("ppc440_0");
  EXPECT_THAT(ppc.copy_settings(from), testing::IsEmpty());
  EXPECT_EQ(ppc.command().value(),
            "connect ppc hw -cable type zarvek_platformusb port USB22 frequency 12000000 -debugdevice deviceNr 3 cpunr "
            "2 icacheStartAdr 0x70000000 fpuType dp");

  Configuration soft = initial("ovrin_0");
  const auto losses = soft.copy_settings(from);
  EXPECT_THAT(told(losses), testing::Contains(HasSubstr("0x70000000")));
  EXPECT_THAT(losses, testing::Contains(testing::Field(&Loss::setting, &setting("icache"))));
  EXPECT_EQ(soft.command().value(),
            "connect ov odm -cable type zarvek_platformusb port USB22 frequency 12000000 -debugdevice deviceNr 3 cpunr "
            "1");

  ppc = initial("ppc440_0");
  EXPECT_THAT(told(ppc.copy_settings(read("ovrin_0", "connect ov stub -comm serial"))),
              testing::Contains("connection stub"));
  EXPECT_EQ(ppc, initial("ppc440_0"));
}

// --- Text ---

TEST_F(ConfigurationTest, EditsTheTextThatWasRead) {
  Configuration c =
      Configuration::read(processor("ovrin_0"),
                          "\nCONNECT  ov odm -quiet -Cable Type zarvek_platformusb\t-bscan USER3\r\nrest\n",
                          TextKind::optionFile)
          .value();
  expect_set(c, {{"bscan", "USER4"}});
  const auto edit = c.edited();
  ASSERT_TRUE(edit) << edit.error().message;
  EXPECT_EQ(edit->text, "\nCONNECT  ov odm -quiet -Cable Type zarvek_platformusb\t-bscan USER4\r\nrest\n");
  EXPECT_FALSE(edit->anew);
  EXPECT_TRUE(edit->is_safe());
  EXPECT_THAT(told(edit->differences), ElementsAre("bscan: USER3 -> USER4"));
}

TEST_F(ConfigurationTest, ListsWhatATextWrittenAnewLoses) {
  const auto edit = read("ovrin_0", "connect ov odm -quiet -bscan USER3 -debugdevice deviceNr 2").written_anew();
  ASSERT_TRUE(edit) << edit.error().message;
  EXPECT_TRUE(edit->anew);
  EXPECT_EQ(edit->text, "connect ov odm -debugdevice deviceNr 2 cpunr 1");
  EXPECT_THAT(told(edit->losses), testing::UnorderedElementsAre("-quiet", "bscan USER3"));
}

TEST_F(ConfigurationTest, SaysWhatCannotBeWritten) {
  Configuration c = read("ovrin_0", "connect ov odm -cable type zarvek_tcf");
  const auto command = c.command();
  EXPECT_EQ(code_of(command), ErrorCode::cannotBeWritten);
  EXPECT_EQ(command.error().engineText, "Invalid Cable Type");
  EXPECT_EQ(c.text().value(), "connect ov odm -cable type zarvek_tcf");
  expect_set(c, {{"frequency", "750k"}});
  EXPECT_EQ(c.text().value(), "connect ov odm -cable type zarvek_tcf frequency 750000");
}

TEST_F(ConfigurationTest, ACommandBecomesTheContentOfAFile) {
  const auto stored = [&](const char* text) { return read("ovrin_0", text).for_file().value(); };
  EXPECT_EQ(stored("qconnect ov odm -bscan USER1").text, "connect ov odm -bscan USER1 -debugdevice cpunr 1");
  EXPECT_TRUE(stored("qconnect ov odm -bscan USER1").is_safe());
  EXPECT_EQ(stored("connect  ov odm -bscan USER1").text, "connect  ov odm -bscan USER1");
  EXPECT_EQ(stored("connect ov odm -bscan USER1 \n -quiet").text, "connect ov odm -bscan USER1 -debugdevice cpunr 1");
  EXPECT_THAT(told(stored("connect ov odm -bscan USER1 \n -quiet").losses), ElementsAre("-quiet"));
  EXPECT_THAT(told(stored("qconnect ov odm -bscan USER3").losses), ElementsAre("bscan USER3"));
  const std::string blanks(1100, ' ');
  EXPECT_EQ(stored(("connect ov odm" + blanks + "-bscan USER1").c_str()).text,
            "connect ov odm -bscan USER1 -debugdevice cpunr 1");
}

// --- Storing ---

class Store : public ConfigurationTest {
 protected:
  static constexpr char kPath[] = "etc/qvt_ovrin_0.opt";

  Configuration opened(const std::string& content) {
    WorkFolder::write(kPath, content);
    // So long ago that a new time stamp is another one.
    fs::last_write_time(kPath, fs::file_time_type::clock::now() - std::chrono::hours(1));
    m_written = fs::last_write_time(kPath);
    return Configuration::open(processor("ovrin_0"), kPath).value();
  }
  bool is_touched() const { return fs::last_write_time(kPath) != m_written; }
  static std::string content(const std::string& path = kPath) { return WorkFolder::read(path); }

 private:
  WorkFolder m_folder;
  fs::file_time_type m_written;
};

TEST_F(Store, KeepsEveryOtherByte) {
  Configuration c =
      opened("\n connect  OV odm  -quiet -cable type zarvek_platformusb esn 1 port P -bscan USER3 \r\n\nx");
  expect_set(c, {{"esn", "2"}});
  const auto stored = c.store();
  ASSERT_TRUE(stored) << stored.error().message;
  EXPECT_EQ(content(), "\n connect  OV odm  -quiet -cable type zarvek_platformusb esn 2 port P -bscan USER3 \r\n\nx");
  EXPECT_EQ(stored->text, content());
  EXPECT_THAT(told(stored->differences), ElementsAre("esn: 1 -> 2"));
}

TEST_F(Store, WritesNothingWhenNothingChanges) {
  Configuration c = opened(kUsb);
  ASSERT_TRUE(c.store());
  expect_set(c, {{"frequency", "12M"}, {"frequency", "6 MHz"}});
  ASSERT_TRUE(c.store());
  EXPECT_FALSE(is_touched());
  expect_set(c, {{"frequency", "12M"}});
  ASSERT_TRUE(c.store());
  EXPECT_TRUE(is_touched());
}

TEST_F(Store, GoesOnFromWhatWasStored) {
  Configuration c = opened(kUsb);
  expect_set(c, {{"frequency", "12M"}});
  ASSERT_TRUE(c.store());
  expect_set(c, {{"frequency", "24M"}});
  const auto second = c.store();
  ASSERT_TRUE(second) << second.error().message;
  EXPECT_THAT(told(second->differences), ElementsAre("frequency: 12 MHz -> 24 MHz"));
  EXPECT_EQ(Configuration::open(processor("ovrin_0"), kPath).value(), c);
}

TEST_F(Store, RefusesAFileThatHasChanged) {
  Configuration c = opened(kUsb);
  expect_set(c, {{"frequency", "12M"}});
  WorkFolder::write(kPath, "connect ov sim");
  EXPECT_EQ(code_of(c.store()), ErrorCode::changedMeanwhile);
  EXPECT_EQ(content(), "connect ov sim");
  fs::remove(kPath);
  EXPECT_EQ(code_of(c.store()), ErrorCode::changedMeanwhile);
  EXPECT_FALSE(fs::exists(kPath));
}

TEST_F(Store, RefusesAFileThatHasAppeared) {
  Configuration c = Configuration::open(processor("ovrin_0"), kPath).value();
  expect_set(c, {{"debug-device", "2"}});
  WorkFolder::write(kPath, "connect ov sim");
  EXPECT_EQ(code_of(c.store()), ErrorCode::changedMeanwhile);
  EXPECT_EQ(content(), "connect ov sim");
  fs::remove(kPath);
  ASSERT_TRUE(c.store());
  EXPECT_EQ(content(), "connect ov odm -debugdevice deviceNr 2 cpunr 1");
}

TEST_F(Store, RefusesAnotherFileThatIsThere) {
  Configuration c = opened(kUsb);
  WorkFolder::write("etc/other", "precious");
  EXPECT_EQ(code_of(c.store("etc/other")), ErrorCode::changedMeanwhile);
  EXPECT_EQ(content("etc/other"), "precious");
  ASSERT_TRUE(c.store("etc/other", OnLoss::goOn));
  EXPECT_EQ(content("etc/other"), kUsb);
  ASSERT_TRUE(c.store("etc/new"));
  EXPECT_EQ(content("etc/new"), kUsb);
  EXPECT_FALSE(is_touched());
}

TEST_F(Store, KnowsItsFileByAnotherPath) {
  Configuration c = opened(kUsb);
  expect_set(c, {{"frequency", "12M"}});
  ASSERT_TRUE(c.store(std::string("etc/../") + kPath));
  expect_set(c, {{"frequency", "24M"}});
  WorkFolder::write(kPath, "connect ov sim");
  EXPECT_EQ(code_of(c.store(fs::absolute(kPath).string(), OnLoss::goOn)), ErrorCode::changedMeanwhile);
  EXPECT_EQ(content(), "connect ov sim");
}

TEST_F(Store, RefusesToLoseAnything) {
  Configuration c = opened("connect ov odm -quiet -bscan USER3");
  expect_set(c, {{"connection", "simulator"}});
  const auto stored = c.store();
  EXPECT_EQ(code_of(stored), ErrorCode::wouldLose);
  EXPECT_THAT(stored.error().message, AllOf(HasSubstr("-quiet"), HasSubstr("USER3")));
  EXPECT_FALSE(is_touched());
  const auto forced = c.store(OnLoss::goOn);
  ASSERT_TRUE(forced);
  EXPECT_TRUE(forced->anew);
  EXPECT_EQ(content(), "connect ov sim");
}

TEST_F(Store, RefusesWhatIsNotReadBack) {
  Configuration c = opened("connect ov odm");
  ASSERT_TRUE(c.set("cpu-jtag", "on"));
  EXPECT_EQ(code_of(c.store()), ErrorCode::wouldLose);
  EXPECT_FALSE(is_touched());
  ASSERT_TRUE(c.store(OnLoss::goOn));
  EXPECT_THAT(content(), HasSubstr("jtagpin cpujtag"));
  EXPECT_EQ(code_of(Configuration::open(processor("ovrin_0"), kPath)), ErrorCode::notUnderstood);
  const auto edit =
      SdkDebugDialog::edit(processor("ovrin_0"), content(), TextKind::optionFile, {{"cpu-jtag", "", true}});
  ASSERT_TRUE(edit) << edit.error().message;
  EXPECT_TRUE(edit->is_safe());
  EXPECT_TRUE(Configuration::read(processor("ovrin_0"), edit->text, TextKind::optionFile));
}

TEST_F(Store, RefusesALineThatIsNotReadToItsEnd) {
  Configuration c = opened("connect ov odm");
  std::string devices;
  for (int i = 1; i <= 20; ++i) {
    devices += (devices.empty() ? "" : ":") + std::to_string(i) + ",a_device_with_a_name,10,0xa5059093";
  }
  ASSERT_TRUE(c.set("devices", devices));
  EXPECT_EQ(code_of(c.store()), ErrorCode::wouldLose);
  EXPECT_FALSE(is_touched());
}

TEST_F(Store, KeepsASymbolicLinkAndTheMode) {
  Configuration c = opened(kUsb);
  fs::permissions(kPath, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("qvt_ovrin_0.opt", "etc/link");
  Configuration through = Configuration::open(processor("ovrin_0"), "etc/link").value();
  expect_set(through, {{"frequency", "12M"}});
  ASSERT_TRUE(through.store());
  EXPECT_TRUE(fs::is_symlink("etc/link"));
  EXPECT_THAT(content(), HasSubstr("frequency 12000000"));
  EXPECT_EQ(fs::status(kPath).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(code_of(c.store()), ErrorCode::changedMeanwhile);
}

TEST_F(Store, SaysThatAFileCannotBeWritten) {
  Configuration c = initial("ovrin_0");
  EXPECT_EQ(code_of(c.store()), ErrorCode::file);
  const auto stored = c.store("no/such/folder/file");
  EXPECT_EQ(code_of(stored), ErrorCode::file);
  EXPECT_THAT(stored.error().message, HasSubstr("no/such/folder/file"));
}

// --- Edits of a text ---

using EditTest = ConfigurationTest;

TEST_F(EditTest, RefusesAsSettingDoes) {
  const auto code = [&](std::string_view text, const Change& change) {
    return code_of(SdkDebugDialog::edit(processor("ovrin_0"), text, TextKind::command, {change}));
  };
  EXPECT_EQ(code(kUsb, {"frequenzy", "1"}), ErrorCode::noSuchSetting);
  EXPECT_EQ(code(kUsb, {"frequency", "fast"}), ErrorCode::invalidValue);
  EXPECT_EQ(code(kUsb, {"frequency", "1234"}), ErrorCode::refused);
  EXPECT_EQ(code(kUsb, {"name", "", true}), ErrorCode::refused);
  EXPECT_EQ(code("connect ov odm -", {"bscan", "USER1"}), ErrorCode::notUnderstood);
  EXPECT_EQ(code("connect ov sim", {"frequency", "12M"}), ErrorCode::refused);
}

TEST_F(EditTest, WithoutAChangeIsTheText) {
  const auto edit = SdkDebugDialog::edit(processor("ovrin_0"), " connect OV\todm ", TextKind::command, {});
  ASSERT_TRUE(edit);
  EXPECT_EQ(edit->text, " connect OV\todm ");
  EXPECT_FALSE(edit->anew);
}

TEST_F(EditTest, AppliesTheChangesInTheOrderOfTheCatalogue) {
  const auto edit = SdkDebugDialog::edit(processor("ovrin_0"), "connect ov odm", TextKind::command,
                                         {{"port", "USB22"}, {"frequency", "750k"}, {"cable", "zarvek_platformusb"}});
  ASSERT_TRUE(edit) << edit.error().message;
  EXPECT_EQ(edit->text, "connect ov odm -cable type zarvek_platformusb port USB22 frequency 750000");
}

// --- Threads ---

constexpr int kThreads = 8;

TEST(ConfigurationThreads, WorkOnCopiesOfOneConfiguration) {
  const WorkFolder folder;
  const SdkDebugDialog::Design design(
      std::make_shared<DesignFile>(DesignFile::load(PROJECT_SOURCE_DIR "/examples/designs/large.json")));
  const Configuration shared = Configuration::read(design.find("ppc405_0").value(), "connect ppc hw -quiet").value();
  run_together(kThreads, [&](int thread) {
    const std::string number = std::to_string(thread + 1);
    const std::string devices = number + ",part" + number + ",10,0x1";
    for (int i = 0; i < 40; ++i) {
      Configuration c = shared;
      ASSERT_TRUE(c.set("cable", "zarvek_platformusb"));
      ASSERT_TRUE(c.set("debug-device", number));
      ASSERT_TRUE(c.set("devices", devices));
      const auto edit = c.edited();
      ASSERT_TRUE(edit);
      ASSERT_THAT(edit->text, HasSubstr("deviceNr " + number));
      const auto again = Configuration::read(c.processor(), c.command().value());
      ASSERT_TRUE(again);
      ASSERT_TRUE(differences(c, *again).empty());
      ASSERT_FALSE(c.set("frequency", "1234"));
      for (const Setting& s : SdkDebugDialog::settings()) ASSERT_EQ(c.state(s).value, c.value(s));
      ASSERT_TRUE(design.find("ppc440_0"));
    }
  });
  EXPECT_EQ(shared.text().value(), "connect ppc hw -quiet");
}

TEST(ConfigurationThreads, StoreAFileOnlyAsTheyReadIt) {
  const WorkFolder folder;
  WorkFolder::write("etc/file", "connect ov odm -debugdevice deviceNr 100");
  const Configuration shared = Configuration::open({}, "etc/file").value();
  std::atomic<int> stored = 0;
  run_together(kThreads, [&](int thread) {
    Configuration c = shared;
    ASSERT_TRUE(c.set("debug-device", std::to_string(thread + 1)));
    const auto result = c.store();
    if (result) {
      ++stored;
    } else {
      ASSERT_EQ(result.error().code, ErrorCode::changedMeanwhile) << result.error().message;
    }
  });
  EXPECT_EQ(stored, 1);
}

}  // namespace
