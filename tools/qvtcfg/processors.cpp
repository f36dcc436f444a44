// qvtcfg processors

#include "command_line.h"
#include "output.h"
#include "session.h"
#include "text.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::EngineImp;
using SdkDebugDialog::ProcessorInfoImp;

// The record of a processor with its FPU, without the settings of its option file; null if it cannot be debugged.
const ProcessorInfoImp* described(EngineImp& state, const std::string& name) {
  ProcessorInfoImp* const record = state.FindProcessor(name);
  if (record == nullptr) return nullptr;
  state.currentProcessor = record;
  state.GetFPUType();
  return record;
}

std::string cpu_number(const ProcessorInfoImp& p) { return std::to_string(static_cast<std::int8_t>(p.cpuNr)); }

std::vector<std::string> row(const std::string& name, const ProcessorInfoImp* p) {
  if (p == nullptr) return {name, "-", "-", "-", "-", "cannot be debugged"};
  return {name,           name_of(kFamilies, p->procFamily), name_of(kVariants, p->procVariant),
          cpu_number(*p), name_of(kFpus, p->fpuType),        join(names_in_set(kConnections, p->allowedConnections))};
}

Json member(const std::string& name, const ProcessorInfoImp* p) {
  if (p == nullptr) return {{"name", name}, {"debuggable", false}};
  return {{"name", name},
          {"debuggable", true},
          {"family", name_of(kFamilies, p->procFamily)},
          {"variant", name_of(kVariants, p->procVariant)},
          {"cpu", static_cast<std::int8_t>(p->cpuNr)},
          {"fpu", name_of(kFpus, p->fpuType)},
          {"connections", names_in_set(kConnections, p->allowedConnections)}};
}

}  // namespace

void run_processors(const Arguments& arguments, Output& out) {
  Session session(arguments);
  EngineImp& state = *session.engine().imp;
  if (arguments.json) {
    Json list = Json::array();
    for (const std::string& name : session.processors()) list.push_back(member(name, described(state, name)));
    out.json({{"processors", list}});
    return;
  }
  std::vector<std::vector<std::string>> rows = {{"NAME", "FAMILY", "VARIANT", "CPU", "FPU", "CONNECTIONS"}};
  for (const std::string& name : session.processors()) rows.push_back(row(name, described(state, name)));
  out.table(rows);
}

}  // namespace qvtcfg
