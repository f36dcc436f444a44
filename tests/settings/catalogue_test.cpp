// The catalogue of settings, as forms, command lines and scripts depend on it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Settings.h"
#include "platform/DesignFile.h"
#include "tests/support/DesignedEngine.h"

namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::parse_value;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::setting_groups;
using SdkDebugDialog::SettingGroup;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::value_text;

// Scripts and files use these names: none may go or change.
const char* const kNames[] = {"name",
                              "family",
                              "variant",
                              "cpu",
                              "connections",
                              "fpu",         //
                              "connection",  //
                              "stub",
                              "stub-port",
                              "stub-baud",
                              "stub-timeout",  //
                              "memory-size",
                              "config-file",
                              "sim-host",
                              "sim-port",  //
                              "configured",
                              "cycle-approximate",  //
                              "enabled",
                              "hardware-simulator-host",
                              "hardware-simulator-port",  //
                              "debug-device",
                              "bscan",
                              "uart",
                              "cpu-version",
                              "odm-version",
                              "cpu-count",  //
                              "address-map",
                              "icache",
                              "itag",
                              "dcache",
                              "dtag",
                              "tlb",
                              "dcr",  //
                              "isocm",
                              "isocm-size",
                              "isocm-dcr",
                              "rom",
                              "rom-size",  //
                              "cable",
                              "frequency",
                              "port",
                              "esn",
                              "svf-file",
                              "svf-file-named",
                              "module",
                              "module-arguments",
                              "url",  //
                              "cpu-jtag",
                              "devices"};

TEST(Catalogue, HasEverySettingOnce) {
  std::vector<std::string> names;
  for (const Setting& setting : settings()) names.emplace_back(setting.name);
  EXPECT_THAT(names, testing::UnorderedElementsAreArray(kNames));
}

TEST(Catalogue, FindsASettingByItsNameAlone) {
  for (const Setting& setting : settings()) EXPECT_EQ(find_setting(setting.name), &setting);
  for (const char* const name : {"", "Frequency", "frequency ", "freq", "host", "-cable"}) {
    EXPECT_EQ(find_setting(name), nullptr) << name;
  }
}

TEST(Catalogue, TellsWhatAFormNeeds) {
  for (const Setting& setting : settings()) {
    SCOPED_TRACE(setting.name);
    EXPECT_NE(setting.group, "");
    EXPECT_NE(setting.label, "");
    EXPECT_THAT(std::string(setting.label), testing::Not(testing::EndsWith(".")));
    EXPECT_THAT(std::string(setting.meaning), testing::EndsWith("."));
    EXPECT_EQ(setting.meaning.find('\n'), std::string_view::npos);
    EXPECT_THAT(std::string(setting.unit), testing::AnyOf("", "Hz", "baud", "bytes", "bits"));
    if (setting.kind == SettingKind::frequency) {
      EXPECT_TRUE(setting.unit == "Hz" || setting.unit == "baud");
    }
    if (setting.kind == SettingKind::size) {
      EXPECT_EQ(setting.unit, "bytes");
    }
  }
}

TEST(Catalogue, KeepsTheSettingsOfAGroupTogether) {
  std::set<std::string_view> done;
  std::string_view group;
  for (const Setting& setting : settings()) {
    if (setting.group == group) continue;
    EXPECT_TRUE(done.insert(setting.group).second) << setting.group << " begins again at " << setting.name;
    group = setting.group;
  }
}

TEST(Catalogue, HasALabelForEveryGroupInTheOrderOfTheSettings) {
  std::vector<std::string_view> groups;
  for (const Setting& setting : settings()) {
    if (groups.empty() || groups.back() != setting.group) groups.push_back(setting.group);
  }
  std::vector<std::string_view> named;
  std::set<std::string_view> labels;
  for (const SettingGroup& group : setting_groups()) {
    named.push_back(group.name);
    EXPECT_NE(group.label, "") << group.name;
    EXPECT_TRUE(labels.insert(group.label).second) << "two groups are called " << group.label;
  }
  EXPECT_EQ(named, groups);
  EXPECT_EQ(setting_groups().front().label, "Processor");
  EXPECT_EQ(setting_groups().back().label, "JTAG chain");
}

TEST(Catalogue, NamesWhatFollowsASetting) {
  for (const Setting& setting : settings()) {
    std::string_view rest = setting.follows;
    while (!rest.empty()) {
      const std::size_t blank = std::min(rest.find(' '), rest.size());
      const std::string_view name = rest.substr(0, blank);
      EXPECT_NE(find_setting(name), nullptr) << setting.name << ": " << name;
      EXPECT_NE(name, setting.name);
      rest.remove_prefix(std::min(blank + 1, rest.size()));
    }
  }
  EXPECT_THAT(std::string(find_setting("cable")->follows), testing::HasSubstr("frequency"));
  EXPECT_THAT(std::string(find_setting("cable")->follows), testing::HasSubstr("port"));
  EXPECT_THAT(std::string(find_setting("icache")->follows), testing::HasSubstr("address-map"));
}

TEST(Catalogue, ComesInTheOrderInWhichChangesAreApplied) {
  const auto place = [](std::string_view name) { return find_setting(name) - settings().data(); };
  EXPECT_LT(place("connection"), place("stub"));
  EXPECT_LT(place("stub"), place("stub-port"));
  for (const char* const name : {"frequency", "port", "esn", "module", "module-arguments"}) {
    EXPECT_LT(place("cable"), place(name)) << name;
  }
}

TEST(Catalogue, MarksWhatCannotBeSet) {
  std::vector<std::string> names;
  for (const Setting& setting : settings()) {
    if (setting.readOnly) names.emplace_back(setting.name);
  }
  EXPECT_THAT(names, testing::UnorderedElementsAre("name", "family", "connections", "svf-file-named"));
}

// --- In a configuration ---

using Faults = std::set<std::string>;

// Adds what is wrong with the state of a setting.
void check_state(const Configuration& configuration, const Setting& setting, const SettingState& state,
                 Faults& faults) {
  const auto expect = [&](bool holds, const std::string& what) {
    if (!holds) faults.insert(std::string(setting.name) + ": " + what);
  };
  expect(state.value == configuration.value(setting), "another value");
  expect(state.changeable == state.whyNot.empty(), "changeable, or a reason: " + state.whyNot);
  expect(state.applies || !state.changeable, "changeable where it does not apply");
  expect(state.written == state.whyNotWritten.empty(), "written, or a reason: " + state.whyNotWritten);
  expect(!setting.readOnly || !state.changeable, "changeable, but read-only");
  expect(state.freeText || !state.choices.empty(), "no choice and no free text");

  for (const std::string& choice : state.choices) {
    const auto parsed = parse_value(setting, choice);
    expect(static_cast<bool>(parsed), "a choice that is no value: " + choice);
    if (!parsed || !state.changeable) continue;
    Configuration changed = configuration;
    const auto set = changed.set(setting.name, choice);
    expect(static_cast<bool>(set), "a choice that is refused: " + choice);
    expect(!set || changed.value(setting) == *parsed, "a choice that is not what it is set to: " + choice);
  }

  // The value that it has is no change, whether or not it applies; only the stub's link selects the stub as well.
  Configuration same = configuration;
  expect(static_cast<bool>(same.set(setting, state.value)), "its own value is refused");
  const bool selects = setting.name == "stub" && state.applies;
  expect(selects || differences(configuration, same).empty(), "its own value changes something");

  const std::string text = value_text(setting, state.value);
  const auto parsed = parse_value(setting, text);
  expect(parsed && *parsed == state.value, "not read back: " + text);
}

// With every connection, stub and cable that the processor admits.
void expect_states(const Processor& processor) {
  Faults faults;
  const auto each = [](const Configuration& from, const char* name, const auto& use) {
    use(from);
    const SettingState state = from.state(*find_setting(name));
    if (!state.changeable) return;
    for (const std::string& choice : state.choices) {
      Configuration changed = from;
      if (changed.set(name, choice)) use(changed);
    }
  };
  each(Configuration(processor), "connection", [&](const Configuration& connected) {
    each(connected, "stub", [&](const Configuration& reached) {
      each(reached, "cable", [&](const Configuration& through) {
        const std::vector<SettingState> states = through.states();
        ASSERT_EQ(states.size(), settings().size());
        for (std::size_t i = 0; i < states.size(); ++i) check_state(through, settings()[i], states[i], faults);
      });
    });
  });
  EXPECT_THAT(faults, testing::IsEmpty()) << "processor '" << processor.name() << "'";
}

TEST(Catalogue, StatesAgreeForEveryKindOfProcessor) {
  FakeHardware hardware = one_of_each();
  const SdkDebugDialog::Design design(hardware);
  EXPECT_EQ(design.processors().size(), 5U);
  for (const Processor& processor : design.processors()) expect_states(processor);
}

TEST(Catalogue, StatesAgreeForALargeDesign) {
  DesignFile hardware = DesignFile::load(PROJECT_SOURCE_DIR "/examples/designs/large.json");
  const SdkDebugDialog::Design design(hardware);
  EXPECT_GT(design.processors().size(), 5U);
  for (const Processor& processor : design.processors()) expect_states(processor);
}

TEST(Catalogue, StatesAgreeWithoutADesign) { expect_states(Processor()); }

TEST(Catalogue, OffersWhatTheProcessorAdmits) {
  FakeHardware hardware = one_of_each();
  const SdkDebugDialog::Design design(hardware);
  const auto choices = [&](const char* processor, std::string_view name) {
    return Configuration(design.find(processor).value()).state(*find_setting(name)).choices;
  };
  EXPECT_THAT(choices("ovrin_0", "connection"), testing::UnorderedElementsAre("simulator", "hardware", "stub"));
  EXPECT_THAT(choices("ovrin_1", "connection"), testing::ElementsAre("simulator", "hardware"));
  EXPECT_THAT(choices("ppc405_0", "connection"), testing::UnorderedElementsAre("simulator", "hardware"));
  EXPECT_THAT(choices("a9_0", "connection"), testing::ElementsAre("hardware"));
  EXPECT_THAT(choices("ovrin_0", "bscan"), testing::ElementsAre("USER1", "USER2", "USER3", "USER4"));
}

TEST(Catalogue, FixesInADesignWhatTheDesignTells) {
  FakeHardware hardware = one_of_each();
  const SdkDebugDialog::Design design(hardware);
  const Configuration designed(design.find("ppc405_0").value());
  const Configuration alone = Configuration::read({}, "connect ppc hw").value();
  for (const char* const name : {"variant", "cpu", "fpu"}) {
    EXPECT_FALSE(designed.state(*find_setting(name)).changeable) << name;
    EXPECT_TRUE(alone.state(*find_setting(name)).changeable) << name;
  }
}

TEST(Catalogue, OffersTheFrequenciesOfTheCable) {
  Configuration c = Configuration::read({}, "connect ov odm").value();
  ASSERT_TRUE(c.set("cable", "zarvek_parallel4"));
  EXPECT_THAT(c.state(*find_setting("frequency")).choices,
              testing::ElementsAre("200 kHz", "625 kHz", "2.5 MHz", "5 MHz"));
  ASSERT_TRUE(c.set("cable", "digilent_plugin"));
  EXPECT_FALSE(c.state(*find_setting("frequency")).applies);
}

}  // namespace
