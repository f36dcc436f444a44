// qvtcfg processors

#include <unordered_map>
#include <utility>

#include "command_line.h"
#include "output.h"
#include "print.h"
#include "session.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Processor;

constexpr const char* kShown[] = {"family", "variant", "cpu", "fpu", "connections"};

std::vector<std::string> row(const std::string& name, const Processor* processor) {
  if (processor == nullptr) return {name, "-", "-", "-", "-", "cannot be debugged"};
  const Configuration defaults(*processor);
  std::vector<std::string> cells = {name};
  for (const char* setting : kShown) {
    cells.push_back(shown_value(*find_setting(setting), defaults.value(*find_setting(setting))));
  }
  return cells;
}

Json member(const std::string& name, const Processor* processor) {
  Json object = {{"processor", name}, {"debuggable", processor != nullptr}};
  const Configuration defaults(processor != nullptr ? *processor : Processor());
  for (const char* name_of_setting : kShown) {
    const auto& setting = *find_setting(name_of_setting);
    object[name_of_setting] = processor != nullptr ? json_value(setting, defaults.value(setting)) : Json();
  }
  return object;
}

}  // namespace

ExitCode run_processors(const Arguments& arguments, Output& out) {
  const Design design = load_design(arguments);
  std::unordered_map<std::string, Processor> debuggable;
  for (const Processor& processor : design.processors()) debuggable.emplace(processor.name(), processor);
  const auto found = [&](const std::string& name) {
    const auto processor = debuggable.find(name);
    return processor != debuggable.end() ? &processor->second : nullptr;
  };
  if (arguments.json) {
    Json list = Json::array();
    for (const std::string& name : design.names()) list.push_back(member(name, found(name)));
    out.result({{"processors", std::move(list)}});
    return kDone;
  }
  std::vector<std::vector<std::string>> rows = {{"NAME", "FAMILY", "VARIANT", "CPU", "FPU", "CONNECTIONS"}};
  for (const std::string& name : design.names()) rows.push_back(row(name, found(name)));
  out.table(rows);
  return kDone;
}

}  // namespace qvtcfg
