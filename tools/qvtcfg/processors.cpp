// qvtcfg processors

#include <unordered_map>

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
  if (processor == nullptr) return {{"name", name}, {"debuggable", false}};
  const Configuration defaults(*processor);
  Json object = {{"name", name}, {"debuggable", true}};
  for (const char* setting : kShown) {
    object[setting] = json_value(*find_setting(setting), defaults.value(*find_setting(setting)));
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
    out.json({{"processors", list}});
    return kDone;
  }
  std::vector<std::vector<std::string>> rows = {{"NAME", "FAMILY", "VARIANT", "CPU", "FPU", "CONNECTIONS"}};
  for (const std::string& name : design.names()) rows.push_back(row(name, found(name)));
  out.table(rows);
  return kDone;
}

}  // namespace qvtcfg
