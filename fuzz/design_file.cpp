// Fuzz target: design files. Compares which files are accepted with a simple validator, and checks the messages and the
// answers of accepted designs.

#include <algorithm>
#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "fuzz/check.h"
#include "platform/DesignFile.h"
#include "tests/support/SelectedEngine.h"

using namespace SdkDebugDialog;
using nlohmann::json;

namespace {

// --- The format ---

bool is_identifier(const json& value) {
  if (!value.is_string()) return false;
  const auto& text = value.get_ref<const std::string&>();
  return !text.empty() && text.size() <= 200 && std::ranges::all_of(text, [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
  });
}

bool has_only(const json& object, const std::set<std::string>& members) {
  return object.is_object() &&
         std::ranges::all_of(object.items(), [&](const auto& m) { return members.contains(m.key()); });
}

bool are_texts(const json& values) {
  return std::ranges::all_of(values, [](const json& value) { return value.is_string(); });
}

// Whether a list names only instances of the allowed classes, each at most once.
bool is_list(const json& instance, const char* list, const std::map<std::string, std::string>& classes,
             const std::set<std::string>& allowed) {
  if (!instance.contains(list)) return true;
  if (!instance[list].is_array() || !are_texts(instance[list])) return false;
  std::set<std::string> seen;
  return std::ranges::all_of(instance[list], [&](const json& name) {
    const auto found = classes.find(name);
    return seen.insert(name).second && found != classes.end() && allowed.contains(found->second);
  });
}

bool is_instance(const json& i) {
  const std::set<std::string> classes = {"processor", "debug", "peripheral", "memory", "other"};
  if (!has_only(i, {"name", "type", "class", "parameters", "processors", "peripherals"})) return false;
  if (!i.contains("name") || !is_identifier(i["name"]) || !i.contains("type") || !is_identifier(i["type"]))
    return false;
  if (!i.contains("class") || !i["class"].is_string() || !classes.contains(i["class"])) return false;
  if (i.contains("parameters") && (!i["parameters"].is_object() || !are_texts(i["parameters"]))) return false;
  return (i["class"] == "debug" || !i.contains("processors")) &&
         (i["class"] == "processor" || !i.contains("peripherals"));
}

bool is_design(const json& design) {
  if (!has_only(design, {"name", "instances"}) || !design.contains("instances")) return false;
  if (design.contains("name") && !design["name"].is_string()) return false;
  const json& instances = design["instances"];
  if (!instances.is_array() || !std::ranges::all_of(instances, is_instance)) return false;
  std::map<std::string, std::string> classes;
  for (const json& instance : instances) {
    if (!classes.emplace(instance["name"], instance["class"]).second) return false;
  }
  return std::ranges::all_of(instances, [&](const json& instance) {
    return is_list(instance, "processors", classes, {"processor"}) &&
           is_list(instance, "peripherals", classes, {"peripheral", "memory", "other"});
  });
}

// Whether the text is a valid design, without duplicate members.
bool is_design_text(const std::string& text) {
  if (text.find('\0') != text.npos) return false;
  bool twice = false;
  std::vector<std::set<std::string>> open;
  const json design = json::parse(
      text,
      [&](int /*depth*/, json::parse_event_t event, json& value) {
        if (event == json::parse_event_t::object_start) open.emplace_back();
        if (event == json::parse_event_t::object_end) open.pop_back();
        if (event == json::parse_event_t::key && !open.back().insert(value).second) twice = true;
        return true;
      },
      false);
  return !design.is_discarded() && !twice && is_design(design);
}

// --- The answers ---

void check_message(std::string_view message) {
  expect(message.starts_with("design.json: "), "the file's name in front", message);
  expect(message.find(": found ") != message.npos && message.find(", expected ") != message.npos,
         "what was found and expected", message);
  expect(std::ranges::all_of(message, [](char c) { return c >= ' ' && c <= '~'; }), "one printable line", message);
  // The message quotes at most 60 bytes of the file twice, each written with up to four characters.
  expect(message.size() < 1000, "a bounded text", message);
}

void check_answers(DesignFile& design) {
  DiscoveredEngine engine;
  std::vector<std::string> names;
  expect(engine.engine.GetProcessorList(&design, names) == 0, "0");
  std::vector<std::string> processors;
  design.getProcessorInstances(processors, false);
  expect(names == processors, "every processor's name");
  for (const ProcessorInfoImp* const record : engine.imp.processorList) {
    expect(std::ranges::find(names, record->name) != names.end(), "a record of a processor of the design",
           record->name);
    expect(engine.engine.GetProcessorNr(record->name) >= 0, "a number of every record");
    expect(record->allowedConnections != 0 && record->procFamily <= 2, "a kind and connections of every record");
    std::vector<std::string> peripherals;
    design.getPeripherals(record->name, peripherals);
    for (const std::string& peripheral : peripherals) {
      expect(!design.getIpName(peripheral).empty(), "a type of every peripheral");
    }
    ProcessorInfo info;
    expect(engine.engine.ParseProcessorInfo(record->name, info, "") == 3, "3 for an empty command");
    expect(engine.imp.GetFPUType() >= 0 && engine.imp.currentProcessor->fpuType <= 2, "a kind of FPU");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const bool expected = is_design_text(text);
  try {
    DesignFile design = DesignFile::parse(text, "design.json");
    expect(expected, "this text to be refused", text);
    check_answers(design);
  } catch (const DesignFileError& error) {
    expect(!expected, "this text to be accepted", error.what());
    check_message(error.what());
  }
  return 0;
}
