// What a configuration dialog does, without its windows: dialog DESIGN PROCESSOR OPTION-FILE

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/platform/DesignFile.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

using namespace SdkDebugDialog;

namespace {

// A heading for each group, a line for each setting, and what a combo box would offer.
void print_form(const Configuration& configuration) {
  std::string_view group;
  for (const Setting& setting : settings()) {
    const SettingState state = configuration.state(setting);
    if (!state.applies) continue;
    if (setting.group != group) std::cout << '[' << setting.group << "]\n";
    group = setting.group;
    std::cout << "  " << setting.label << ": " << value_text(setting, state.value);
    if (!state.changeable) std::cout << " [fixed]";
    for (const std::string& choice : state.choices) {
      if (state.changeable) std::cout << (&choice == &state.choices[0] ? " (" : ", ") << choice;
    }
    std::cout << (state.changeable && !state.choices.empty() ? ")\n" : "\n");
  }
}

// What a person enters; a mistake is shown beside the field.
void enter(Configuration& edited, std::string_view name, std::string_view text) {
  std::cout << "> " << name << " = " << text << '\n';
  const auto set = edited.set(name, text);
  if (!set) std::cout << "refused: " << set.error().message << '\n';
}

void print_differences(const Configuration& before, const Configuration& after) {
  for (const Difference& d : differences(before, after)) {
    std::cout << "  " << d.setting->label << ": " << value_text(*d.setting, d.before) << " -> "
              << value_text(*d.setting, d.after) << '\n';
  }
}

int run(const std::string& designPath, const std::string& name, const std::string& path) {
  const Design design(std::make_shared<DesignFile>(DesignFile::load(designPath)));
  const Configuration now = Configuration::open(design.find(name).value(), path).value();
  print_form(now);

  Configuration edited = now;
  enter(edited, "frequency", "10 MHz");
  enter(edited, "frequency", "12 MHz");
  enter(edited, "bscan", "USER4");
  enter(edited, "debug-device", "2");
  print_differences(now, edited);

  const Setting& bscan = *find_setting("bscan");
  std::cout << "cancelled: " << bscan.label << '\n';
  edited.set(bscan, now.value(bscan)).value();
  print_differences(now, edited);

  const auto stored = edited.store();
  if (!stored) std::cout << "not stored: " << stored.error().message << '\n';
  std::cout << "the file:\n" << std::ifstream(path).rdbuf();
  return stored ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) try {
  return argc == 4 ? run(argv[1], argv[2], argv[3]) : 2;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
