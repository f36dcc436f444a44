// qvtcfg processors

#include <string_view>
#include <unordered_map>

#include "command_line.h"
#include "output.h"
#include "session.h"
#include "text.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::EngineImp;
using SdkDebugDialog::ProcessorInfoImp;

// The records of the debuggable processors, by name, with the FPU filled in. Their option files are not read.
std::unordered_map<std::string_view, const ProcessorInfoImp*> described(EngineImp& state) {
  std::unordered_map<std::string_view, const ProcessorInfoImp*> records;
  for (ProcessorInfoImp* const record : state.processorList) {
    state.currentProcessor = record;
    state.GetFPUType();
    records.emplace(record->name, record);
  }
  return records;
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
  const auto records = described(*session.engine().imp);
  const auto record = [&](const std::string& name) {
    const auto found = records.find(name);
    return found != records.end() ? found->second : nullptr;
  };
  if (arguments.json) {
    Json list = Json::array();
    for (const std::string& name : session.processors()) list.push_back(member(name, record(name)));
    out.json({{"processors", list}});
    return;
  }
  std::vector<std::vector<std::string>> rows = {{"NAME", "FAMILY", "VARIANT", "CPU", "FPU", "CONNECTIONS"}};
  for (const std::string& name : session.processors()) rows.push_back(row(name, record(name)));
  out.table(rows);
}

}  // namespace qvtcfg
