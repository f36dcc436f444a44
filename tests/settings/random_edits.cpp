#include "random_edits.h"

#include <algorithm>

#include "tests/compare/texts.h"

using SdkDebugDialog::Change;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::TextKind;

namespace {

template <class... Texts>
std::string one_of(Random& random, Texts... texts) {
  const char* const all[] = {texts...};
  return random.pick(all);
}

}  // namespace

std::string random_value(Random& random, const Setting& setting, const SettingState& state) {
  if (random.chance(4)) return random_field(random);
  if (!state.choices.empty() && random.chance(85)) return random.pick(state.choices);
  switch (setting.kind) {
    case SettingKind::flag:
      return one_of(random, "on", "off");
    case SettingKind::frequency:
      return one_of(random, "12M", "6000000", "200 kHz", "750000", "2.5 MHz", "1234", "0", "24e6");
    case SettingKind::size:
      return one_of(random, "64K", "0x100", "16", "4096", "1M", "0");
    case SettingKind::address:
      return one_of(random, "0x70000000", "0x10000", "64K", "0x12345", "none", "0", "0xffff0000");
    case SettingKind::text:
      return one_of(random, "a", "USB22", "LPT2", "probe", "host1", "x;y", "-5", "/dev/ttyS1", "a:b", "type", "");
    case SettingKind::devices:
      return one_of(random, "none", "1,prom32,16,0xa5059093", "1,prom32,16,0xa5059093:2,fpga,10,0x0a001093",
                    "3,p,6,1,1,ppc405,2");
    default:
      return one_of(random, "0", "1", "2", "3", "127", "200", "9600", "0x1c200", "-1", "7000", "65536", "115_200");
  }
}

namespace {

void put_text(Random& random, EditCase& c) {
  if (c.kind == TextKind::command) c.text = random_text(random, Start::command);
  if (c.kind == TextKind::optionFile) c.text = random_file(random);
  if (c.kind == TextKind::cableText) c.text = random_text(random, Start::jtag);
}

}  // namespace

EditCase random_edit(Random& random, const EditBench& bench) {
  constexpr TextKind kKinds[] = {TextKind::command, TextKind::command, TextKind::optionFile, TextKind::optionFile,
                                 TextKind::cableText};
  EditCase c;
  c.kind = random.pick(kKinds);
  if (c.kind != TextKind::cableText) c.processor = random.pick(kProcessors);
  const Processor processor = bench.processor(c.processor);
  put_text(random, c);
  auto read = Configuration::read(processor, c.text, c.kind);
  // Most texts are for another processor.
  for (int i = 0; i < 12 && !read && random.chance(95); ++i) {
    put_text(random, c);
    read = Configuration::read(processor, c.text, c.kind);
  }
  const Configuration now = read ? *read : Configuration(processor);
  const auto& all = SdkDebugDialog::settings();
  const std::vector<SettingState> states = now.states();
  for (std::size_t i = random.between(1, random.chance(70) ? 1 : 4); i > 0;) {
    const std::size_t place = random.below(all.size());
    const Setting& setting = all[place];
    const SettingState& state = states[place];
    if (!state.changeable && random.chance(95)) continue;
    --i;
    if (std::ranges::find(c.changes, setting.name, &Change::setting) != c.changes.end()) continue;
    const bool toDefault = random.chance(20);
    c.changes.push_back({std::string(setting.name), toDefault ? "" : random_value(random, setting, state), toDefault});
  }
  return c;
}
