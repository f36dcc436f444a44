// A configuration has no truth of its own: over random texts and settings it says what an engine used by hand says.

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "by_hand.h"
#include "edit_check.h"
#include "random_edits.h"
#include "tests/compare/texts.h"

namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::parse_value;
using SdkDebugDialog::Setting;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::TextKind;
using SdkDebugDialog::value_text;

EditBench& bench() {
  static EditBench bench;
  return bench;
}

// What random.h and texts.h make of one number; smaller numbers are no smaller cases, so nothing is gained by
// shrinking.
Random any_random() {
  return Random(*rc::gen::noShrink(rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>())));
}

std::string any_processor(Random& random) { return random.pick(kProcessors); }

void expect_values(const Configuration& c, const State& state) {
  for (const Setting& setting : settings()) {
    // Without a design every connection of the family is admitted, not only those that the texts told.
    if (setting.name == "connections" && c.processor().hardware() == nullptr) continue;
    if (c.value(setting) == value_in(state, setting.name)) continue;
    RC_FAIL(std::string(setting.name) + " is " + value_text(setting, c.value(setting)) + ", by hand " +
            value_text(setting, value_in(state, setting.name)));
  }
}

// The records, field by field, and the command.
void expect_same(const Configuration& c, ByHand& hand) {
  expect_values(c, hand.state());
  ByHand kept(bench().hardware(), c.processor().name());
  *kept.imp().currentProcessor = c.record();
  *kept.imp().cable = c.cable();
  kept.imp().cpuJtag = c.cpu_jtag() ? 1 : 0;
  kept.set("devices", c.chain());
  RC_ASSERT(differing(kept.state(), hand.state()).empty());

  const std::string written = hand.command();
  const auto command = c.command();
  RC_ASSERT(static_cast<bool>(command) == !written.empty());
  if (command) {
    RC_ASSERT(*command == written);
  } else {
    std::string error;
    hand.engine().GetErrorStr(error);
    RC_ASSERT(command.error().engineText == error);
  }
}

RC_GTEST_PROP(ConfigurationProperty, ReadsATextLikeAnEngineUsedByHand, ()) {
  Random random = any_random();
  const std::string name = any_processor(random);
  const bool file = random.chance(40);
  const std::string text = file ? random_file(random) : random_text(random, Start::command);
  const TextKind kind = file ? TextKind::optionFile : TextKind::command;
  RC_LOG() << name << ": " << text << "\n";

  ByHand hand(bench().hardware(), name);
  const bool isRead = hand.read(text, kind);
  const auto c = Configuration::read(bench().processor(name), text, kind);
  RC_ASSERT(static_cast<bool>(c) == isRead);
  RC_CLASSIFY(isRead, "read");
  if (c) {
    expect_same(*c, hand);
    if (kind == TextKind::optionFile) RC_ASSERT(c->text().value() == text);
  } else {
    std::string error;
    hand.engine().GetErrorStr(error);
    RC_ASSERT(c.error().code == SdkDebugDialog::ErrorCode::notUnderstood);
    RC_ASSERT(!c.error().message.empty());
    RC_ASSERT(c.error().engineText == error);
  }
}

RC_GTEST_PROP(ConfigurationProperty, ReadsCableAndChainLikeAnEngineUsedByHand, ()) {
  Random random = any_random();
  const std::string text = random_text(random, Start::jtag);
  RC_LOG() << text << "\n";
  ByHand hand(bench().hardware(), "");
  const bool isRead = hand.read(text, TextKind::cableText);
  const auto c = Configuration::read({}, text, TextKind::cableText);
  RC_ASSERT(static_cast<bool>(c) == isRead);
  if (c) expect_values(*c, hand.state());
}

// A configuration of a processor, read from a random text if there is one that it understands.
Configuration any_configuration(Random& random, const std::string& name) {
  for (int i = 0; i < 5; ++i) {
    auto c = Configuration::read(bench().processor(name), random_text(random, Start::command));
    if (c) return *c;
  }
  return Configuration(bench().processor(name));
}

RC_GTEST_PROP(ConfigurationProperty, SetsLikeAnEngineUsedByHand, ()) {
  Random random = any_random();
  const std::string name = any_processor(random);
  const std::string text = random_text(random, Start::command);
  ByHand hand(bench().hardware(), name);
  const auto read = Configuration::read(bench().processor(name), text);
  if (read) hand.read(text, TextKind::command);
  Configuration c = read ? *read : Configuration(bench().processor(name));
  RC_LOG() << name << ": " << (read ? text : "(the defaults)") << "\n";

  for (std::size_t i = random.between(1, 6); i > 0; --i) {
    const Setting& setting = random.pick(settings());
    const std::string value = random_value(random, setting, c.state(setting));
    const Configuration before = c;
    const auto set = c.set(setting.name, value);
    RC_LOG() << setting.name << "=" << value << (set ? "" : " refused: " + set.error().message) << "\n";
    if (!set) {
      RC_ASSERT(!set.error().message.empty());
      RC_ASSERT(c == before);
      continue;
    }
    const SettingValue parsed = parse_value(setting, value).value();
    RC_ASSERT(c.value(setting) == parsed);
    if (!differences(before, c).empty()) hand.set(setting.name, parsed);
    expect_same(c, hand);
  }
}

RC_GTEST_PROP(ConfigurationProperty, TellsEveryValueAsATextThatIsThatValue, ()) {
  Random random = any_random();
  const Configuration c = any_configuration(random, any_processor(random));
  for (const Setting& setting : settings()) {
    const SettingValue value = c.value(setting);
    const auto parsed = parse_value(setting, value_text(setting, value));
    RC_LOG() << setting.name << "=" << value_text(setting, value) << "\n";
    // A record may hold what no text can give.
    if (parsed) RC_ASSERT(*parsed == value);
  }
}

RC_GTEST_PROP(ConfigurationProperty, ReadsBackEverySettingFromItsText, ()) {
  Random random = any_random();
  const std::string name = any_processor(random);
  const Configuration start = any_configuration(random, name);
  for (const Setting& setting : settings()) {
    const SettingState state = start.state(setting);
    if (!state.applies || !state.changeable) continue;
    Configuration c = start;
    const std::string value = random_value(random, setting, state);
    if (!c.set(setting.name, value)) continue;
    RC_LOG() << setting.name << "=" << value << "\n";
    const auto edit = c.edited();
    if (!edit) {
      RC_ASSERT(edit.error().code == SdkDebugDialog::ErrorCode::cannotBeWritten);
      continue;
    }
    if (!edit->is_safe()) continue;
    RC_LOG() << "  text " << edit->text << "\n";
    const TextKind kind = edit->text.empty() ? TextKind::optionFile : TextKind::command;
    const auto again = Configuration::read(start.processor(), edit->text, kind);
    RC_ASSERT(static_cast<bool>(again));
    RC_ASSERT(differences(c, *again).empty());
  }
}

RC_GTEST_PROP(ConfigurationProperty, ReadsBackFromTheCommandWhatIsSaidToBeWritten, ()) {
  Random random = any_random();
  const std::string name = any_processor(random);
  const Configuration start = any_configuration(random, name);
  for (const Setting& setting : settings()) {
    const SettingState before = start.state(setting);
    if (!before.applies || !before.changeable) continue;
    Configuration c = start;
    const std::string value = random_value(random, setting, before);
    if (!c.set(setting.name, value)) continue;
    RC_LOG() << setting.name << "=" << value << "\n";
    const auto command = c.command();
    if (!command) continue;
    const auto anew = c.written_anew();
    RC_ASSERT(static_cast<bool>(anew));
    const auto again = Configuration::read(start.processor(), *command);
    RC_ASSERT(static_cast<bool>(again) || !anew->notReadBack.empty());
    if (!again) continue;
    for (const Setting& other : settings()) {
      const SettingState state = c.state(other);
      RC_ASSERT(state.written == state.whyNotWritten.empty());
      const bool isLost = std::ranges::find(anew->losses, &other, &SdkDebugDialog::Loss::setting) != anew->losses.end();
      if (!state.written || isLost || !anew->notReadBack.empty()) continue;
      RC_LOG() << "  written: " << other.name << " in " << *command << "\n";
      RC_ASSERT(again->value(other) == state.value);
    }
  }
}

}  // namespace
