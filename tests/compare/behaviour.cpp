// Shows what the readers and writers do with random texts, so that two revisions of them can be compared: a line for
// each text with a hash of all that was seen, or all that was seen of one text. Run by scripts/compare.
//
// The headers of this folder are included without it: those of the library may be another revision's, which may have
// such a folder too.
//
//   behaviour FIRST COUNT FOLDER [LOCALE]   the texts FIRST to FIRST + COUNT - 1; FOLDER is for option files
//   behaviour --show N FOLDER [LOCALE]      text N

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <locale>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "SdkDebugDialog/CableCatalogue.h"
#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "design.h"
#include "observation.h"
#include "options/QvtOption_Parser.h"
#include "platform/ComMsgMgr.h"
#include "random.h"
#include "state.h"
#include "texts.h"

using namespace SdkDebugDialog;

namespace {

using P = QvtOption_Parser;
using Chain = std::vector<JtagOption*>;

// --- Engines ---

void release(Chain& chain) {
  for (const JtagOption* const device : chain) delete device;
  chain.clear();
}

// An engine that knows no hardware, or one that has listed the processors of a design.
struct Subject {
  explicit Subject(Design* design) {
    imp.currentProcessor = &alone;
    if (design != nullptr) engine.GetProcessorList(design);
  }
  ~Subject() {
    release(imp.jtagChain);
    for (const ProcessorInfoImp* const processor : imp.processorList) delete processor;
  }
  Subject(const Subject&) = delete;
  Subject& operator=(const Subject&) = delete;

  Engine engine;
  EngineImp& imp = *engine.imp;
  ProcessorInfoImp alone;
};

// --- What is seen ---

constexpr const char* kOlderOption = "-older";

std::string* g_messages = nullptr;

void keep_message(int type, const char* id, unsigned int mask, const char* text) {
  g_messages->append(std::to_string(type) + ' ' + id + ' ' + std::to_string(mask) + ' ' + text);
}

class Watch {
 public:
  explicit Watch(Observation& seen) : m_seen(seen) {}

  // Calls something that answers a status, which is returned; -1 for an exception.
  template <class Call>
  int operator()(std::string_view what, Call call) {
    m_seen.begin(what);
    newoption_token = kOlderOption;
    std::string messages;
    g_messages = &messages;
    int status = -1;
    try {
      status = call();
      m_seen.put("status", status);
    } catch (const std::exception& e) {
      m_seen.put("exception", typeid(e).name());
      m_seen.put("what", e.what());
    }
    if (newoption_token != kOlderOption) m_seen.put("newoption_token", newoption_token);
    if (!messages.empty()) m_seen.put("messages", messages);
    return status;
  }

  template <class Value>
  void put(std::string_view what, const Value& value) {
    m_seen.put(what, value);
  }

  template <class Record>
  void fields(Record& record) {
    each_field(record, [&](const char* name, const auto& value) { m_seen.put(name, value); });
  }

  void chain(const Chain& chain) {
    m_seen.put("devices", chain.size());
    for (JtagOption* const device : chain) fields(*device);
  }

  void info(const ProcessorInfo& info) {
    m_seen.put("info variant", info.procVariant);
    m_seen.put("info family", info.procFamily);
    m_seen.put("info connections", info.allowedConnections);
  }

  void state(EngineImp& imp) {
    m_seen.put("error", imp.errorStr);
    m_seen.put("cpuJtag", imp.cpuJtag);
    m_seen.put("hardware", imp.hwManager != nullptr);
    fields(*imp.cable);
    chain(imp.jtagChain);
    if (imp.currentProcessor == nullptr) {
      m_seen.put("selected", "none");
    } else {
      fields(*imp.currentProcessor);
    }
  }

  // Everything that can be written of a state.
  void writers(EngineImp& imp);

 private:
  Observation& m_seen;
};

int write_cable_text(std::string& out, EngineImp& imp) { return P::WriteJtagCableOptionsString(imp, out); }
int write_command(std::string& out, EngineImp& imp) { return imp.engine->GenerateCmdString(out); }
int write_zarvek(std::string& out, EngineImp& imp) { return P::write_zarvek_cableoptions(out, *imp.cable); }
int write_digilent(std::string& out, EngineImp& imp) { return P::write_digilent_cableoptions(out, *imp.cable); }
int write_plugin(std::string& out, EngineImp& imp) { return P::write_plugin_cableoptions(out, *imp.cable); }
int write_of_plugin(std::string& out, EngineImp& imp) { return imp.engine->GetPluginCableOptions(out); }
int write_of_record(std::string& out, EngineImp& imp) { return Engine::Get3rdPartyCableOptions(out, *imp.cable); }
int write_of_records(std::string& out, EngineImp& imp) {
  const auto device = static_cast<char>(imp.currentProcessor->debugDevice);
  const int status = Engine::GenerateJtagCableCmdString(out, *imp.cable, imp.jtagChain, device);
  const CableOption& cable = *imp.cable;
  return 10 * status +
         Engine::GenerateJtagCableCmdString(out, cable.type, cable.frequency, cable.port, imp.jtagChain, device);
}

constexpr struct {
  const char* name;
  int (*write)(std::string& out, EngineImp& imp);
} kWriters[] = {
    {"GenerateCmdString", write_command},
    {"write_ovoptions", P::write_ovoptions},
    {"write_ppcoptions", P::write_ppcoptions},
    {"write_vpoptions", P::write_vpoptions},
    {"write_ppcsim_options", P::write_ppcsim_options},
    {"write_jtagoptions", P::write_jtagoptions},
    {"write_debugdeviceoptions", P::write_debugdeviceoptions},
    {"write_commoptions", P::write_commoptions},
    {"write_ovfsloptions", P::write_ovfsloptions},
    {"WriteJtagCableOptionsString", write_cable_text},
    {"write_zarvek_cableoptions", write_zarvek},
    {"write_digilent_cableoptions", write_digilent},
    {"write_plugin_cableoptions", write_plugin},
    {"GetPluginCableOptions", write_of_plugin},
    {"Get3rdPartyCableOptions", write_of_record},
    {"GenerateJtagCableCmdString", write_of_records},
};

void Watch::writers(EngineImp& imp) {
  for (const auto& [name, write] : kWriters) {
    std::string out = "before";
    (*this)(name, [&, &write = write] { return write(out, imp); });
    put("written", out);
    put("error", imp.errorStr);
  }
  put("command", imp.currentProcessor->command);
}

// --- Commands ---

bool observe_command(Random& random, Observation& seen) {
  const std::string text = random_text(random, Start::command);
  seen.put("text", text);
  Watch watch(seen);
  bool accepted = false;
  {
    Subject subject(nullptr);
    if (random.chance(20)) change_state(random, subject.imp);
    accepted |= watch("ReadQvtCommand", [&] { return P::ReadQvtCommand(text, subject.imp); }) == 0;
    watch.state(subject.imp);
    watch.writers(subject.imp);
  }
  {
    Design design;
    Subject subject(&design);
    if (random.chance(2)) design.fail();
    const char* const name = random.chance(2) ? "nobody" : random.pick(Design::kProcessors);
    ProcessorInfo info = {7, 8, 9};
    accepted |= watch("ParseProcessorInfo", [&] { return subject.engine.ParseProcessorInfo(name, info, text); }) == 0;
    watch.info(info);
    watch.state(subject.imp);
    std::string out = "before";
    watch("GenerateCmdString after ParseProcessorInfo", [&] { return subject.engine.GenerateCmdString(out); });
    watch.put("written", out);
    for (ProcessorInfoImp* const processor : subject.imp.processorList) watch.fields(*processor);
  }
  {
    Design design;
    Subject subject(random.chance(70) ? &design : nullptr);
    if (random.chance(2)) design.fail();
    ProcessorInfoImp* record = nullptr;
    accepted |= watch("GetProcessorInfo", [&] {
                  record = subject.imp.GetProcessorInfo(text);
                  return record != nullptr ? 0 : 1;
                }) == 0;
    watch.put("selected", subject.imp.currentProcessor == record);
    watch.state(subject.imp);
    std::string out = "before";
    watch("GenerateCmdString after GetProcessorInfo", [&] { return subject.engine.GenerateCmdString(out); });
    watch.put("written", out);
    delete record;
  }
  return accepted;
}

// --- Groups ---

struct Group {
  const char* name;
  Start start;
  int (*read)(std::string& text, EngineImp& imp);
};

constexpr Group kGroups[] = {
    {"parse_cable", Start::cable, P::parse_cable},
    {"parse_configdevice", Start::configdevice, P::parse_configdevice},
    {"parse_debugdevice", Start::debugdevice, P::parse_debugdevice},
    {"parse_ovfsloptions", Start::pfsl, P::parse_ovfsloptions},
    {"parse_modelsim_options", Start::modelsim, P::parse_modelsim_options},
    {"parse_odmbscan", Start::bscan, P::parse_odmbscan},
    {"parse_options", Start::options, P::parse_options},
    {"parse_ovoptions", Start::ov, P::parse_ovoptions},
    {"parse_odmoptions", Start::odm, P::parse_odmoptions},
    {"parse_ppcoptions", Start::ppc, P::parse_ppcoptions},
    {"parse_armoptions", Start::arm, P::parse_armoptions},
    {"parse_armr5options", Start::arm, P::parse_armr5options},
    {"parse_dapoptions", Start::arm, P::parse_dapoptions},
    {"parse_dccoptions", Start::dcc, P::parse_dccoptions},
    {"parse_qmtcoptions", Start::qmtc, P::parse_qmtcoptions},
    {"parse_vpoptions", Start::vp, P::parse_vpoptions},
    {"parse_ppcsim_options", Start::ppcsim, P::parse_ppcsim_options},
    {"ReadJtagCableOptions", Start::jtag, P::ReadJtagCableOptions},
};

// At times another group's reader goes on with what is left.
bool observe_group(Random& random, Observation& seen, bool stub) {
  const Group& group = random.pick(kGroups);
  const std::string text = random_text(random, stub ? Start::stub : group.start);
  const std::string option = stub ? random_stub_option(random) : "";
  const Group& next = random.pick(kGroups);
  const bool readOn = random.chance(30);
  const bool changed = random.chance(40);
  const Random state = random;
  const char* const processor = random.pick(Design::kProcessors);
  seen.put("text", text);
  if (stub) seen.put("option", option);

  Watch watch(seen);
  bool accepted = false;
  Design design;
  for (Design* const known : {static_cast<Design*>(nullptr), &design}) {
    Subject subject(known);
    EngineImp& imp = subject.imp;
    if (known != nullptr)
      imp.currentProcessor = *std::ranges::find(imp.processorList, processor, &ProcessorInfoImp::name);
    if (Random again = state; changed) change_state(again, imp);
    std::string rest = text;
    const int status = watch(stub ? "parse_commoptions" : group.name,
                             [&] { return stub ? P::parse_commoptions(rest, option, imp) : group.read(rest, imp); });
    // Elsewhere 1 and 3 tell what ended a group.
    const bool whole = stub || group.read == P::ReadJtagCableOptions;
    accepted |= status == 0 || (!whole && (status == 1 || status == 3));
    watch.put("rest", rest);
    watch.state(imp);
    if (readOn && status != -1) {
      watch(next.name, [&] { return next.read(rest, imp); });
      watch.put("rest", rest);
      watch.state(imp);
    }
    watch.writers(imp);
  }
  return accepted;
}

bool observe_option_group(Random& random, Observation& seen) { return observe_group(random, seen, false); }
bool observe_stub_option(Random& random, Observation& seen) { return observe_group(random, seen, true); }

// --- Cable and chain alone ---

bool observe_cable_text(Random& random, Observation& seen) {
  const std::string text = random_text(random, Start::jtag);
  seen.put("text", text);
  Watch watch(seen);
  bool accepted = false;
  {
    CableOption cable;
    change_fields(random, cable, 30);
    Chain chain;
    int cpuJtag = 7;
    char debugDevice = 8;
    accepted |= watch("ParseJtagCableInfo",
                      [&] { return Engine::ParseJtagCableInfo(text, cable, chain, cpuJtag, debugDevice); }) == 0;
    watch.put("cpuJtag", cpuJtag);
    watch.put("debugDevice", static_cast<int>(static_cast<signed char>(debugDevice)));
    watch.fields(cable);
    watch.chain(chain);
    release(chain);
  }
  {
    CableOption cable;
    change_fields(random, cable, 30);
    watch("Set3rdPartyCableOptions", [&] { return Engine::Set3rdPartyCableOptions(cable, text); });
    watch.fields(cable);
  }
  {
    Subject subject(nullptr);
    if (random.chance(30)) change_state(random, subject.imp);
    if (random.chance(85)) subject.imp.cable->type = Engine::ZARVEK_PLUGIN;
    watch("SetPluginCableOptions", [&] { return subject.engine.SetPluginCableOptions(text); });
    watch.state(subject.imp);
    watch.writers(subject.imp);
  }
  return accepted;
}

// --- Tokens ---

bool observe_tokens(Random& random, Observation& seen) {
  std::string text = random_text(random, Start::command);
  seen.put("text", text);
  Watch watch(seen);
  std::string first = "before";
  std::string second = "before";
  const unsigned pairs = random.chance(50) ? 0 : 60;
  int status = 0;
  for (std::size_t i = text.size() + 2; i > 0 && status != 3 && status != -1; --i) {
    if (random.chance(pairs)) {
      status = watch("get_tokenpair", [&] { return P::get_tokenpair(text, first, second); });
      watch.put("value", second);
    } else {
      status = watch("get_token", [&] { return P::get_token(text, first); });
    }
    watch.put("token", first);
    watch.put("rest", text);
  }
  return status == 3;
}

// --- States that no text leads to ---

bool observe_state(Random& random, Observation& seen) {
  Watch watch(seen);
  Design design;
  Subject subject(random.chance(50) ? &design : nullptr);
  change_state(random, subject.imp);
  subject.imp.errorStr = "an older text";
  watch.state(subject.imp);
  watch.writers(subject.imp);
  const Engine::CableType type = subject.imp.cable->type;
  watch.put("default frequency", setcable_default_frequency(type));
  watch.put("default port", setcable_default_port(type));
  watch.put("supported frequencies", getcable_supported_frequency(type));
  for (const int useDefault : {0, static_cast<int>(random_number(random))}) {
    watch("setcable_frequency", [&] { return P::setcable_frequency(subject.imp, useDefault); });
    watch.state(subject.imp);
  }
  return true;
}

// --- Option files ---

namespace fs = std::filesystem;

void put_file(Watch& watch, const fs::path& path) {
  const fs::file_status status = fs::symlink_status(path);
  watch.put("file", path.string());
  watch.put("type", status.type());
  watch.put("permissions", status.permissions());
  if (!fs::is_regular_file(path)) return;
  std::ifstream file(path, std::ios::binary);
  watch.put("content", std::string(std::istreambuf_iterator<char>(file), {}));
}

void put_folder(Watch& watch) {
  std::vector<fs::path> paths;
  if (fs::exists("etc")) paths.assign(fs::recursive_directory_iterator("etc"), {});
  std::ranges::sort(paths);
  for (const fs::path& path : paths) put_file(watch, path);
}

// What may stand where the option file is.
void make_file(Random& random, const std::string& path, const std::string& content) {
  fs::remove_all("etc");
  if (random.chance(4)) return;
  fs::create_directory("etc");
  const std::size_t what = random.below(30);
  if (what == 0) return;
  if (what == 1) {
    fs::create_directory(path);
    return;
  }
  const std::string file = what == 2 ? "etc/elsewhere" : path;
  std::ofstream(file, std::ios::binary) << content;
  if (what == 2) fs::create_symlink("elsewhere", path);
  if (what == 3) fs::permissions(path, fs::perms::owner_read);
  if (what == 4) fs::permissions(path, fs::perms::owner_all);
}

bool observe_file(Random& random, Observation& seen) {
  Watch watch(seen);
  bool accepted = false;
  const std::string name = random.pick(Design::kProcessors);
  const auto make = [&] {
    const std::string content = random_file(random);
    seen.put("text", content);
    make_file(random, "etc/qvt_" + name + ".opt", content);
  };
  {
    make();
    Design design;
    Subject subject(&design);
    ProcessorInfo info = {7, 8, 9};
    accepted |= watch("SetProcessor", [&] { return subject.engine.SetProcessor(name, info); }) == 0;
    watch.info(info);
    watch.state(subject.imp);
    watch("Generate", [&] { return subject.engine.Generate(); });
    watch.put("error", subject.imp.errorStr);
    put_folder(watch);
  }
  {
    make();
    Subject subject(nullptr);
    if (random.chance(50)) change_state(random, subject.imp);
    accepted |= watch("ReadQvtOptFile", [&] { return P::ReadQvtOptFile(name, subject.imp); }) == 0;
    watch.state(subject.imp);
    // A name with a slash would lead out of the folder.
    if (subject.alone.name.find('/') == std::string::npos) {
      watch("WriteQvtOptFile", [&] { return P::WriteQvtOptFile(subject.imp); });
      watch.state(subject.imp);
      put_folder(watch);
    }
  }
  return accepted;
}

// --- One text after the other ---

// The shares are out of a thousand.
constexpr struct Kind {
  const char* name;
  bool (*observe)(Random& random, Observation& seen);  // whether a reader accepted the text
  unsigned share;
} kKinds[] = {
    {"command", observe_command, 480}, {"group", observe_option_group, 280}, {"stub", observe_stub_option, 30},
    {"cable", observe_cable_text, 90}, {"tokens", observe_tokens, 30},       {"state", observe_state, 70},
    {"file", observe_file, 20},
};

const Kind& kind_of(std::size_t share) {
  const Kind* kind = kKinds;
  while (share >= kind->share) share -= (kind++)->share;
  return *kind;
}

struct Result {
  const Kind& kind;
  bool accepted;
  Observation seen;
};

Result observe(std::uint64_t number) {
  // An endless loop ends the program.
  ::alarm(5);
  Random random(number);
  Result result = {kind_of(random.below(1000)), false, {}};
  result.accepted = result.kind.observe(random, result.seen);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return EXIT_FAILURE;
  const bool show = std::string_view(argv[1]) == "--show";
  const std::uint64_t first = std::strtoull(argv[show ? 2 : 1], nullptr, 10);
  const std::uint64_t count = show ? 1 : std::strtoull(argv[2], nullptr, 10);
  fs::current_path(argv[3]);
  if (argc > 4) std::locale::global(std::locale(argv[4]));
  ComMsgMgr::setSink(keep_message);
  for (std::uint64_t number = first; number < first + count; ++number) {
    const Result result = observe(number);
    const std::size_t hash = std::hash<std::string>()(result.seen.text());
    // Flushed, so that the last line tells at which text a program ended before its time.
    if (show) {
      std::cout << result.seen.text();
    } else {
      std::cout << std::to_string(number) + ' ' + result.kind.name + (result.accepted ? " accepted " : " refused ") +
                       std::to_string(hash) + '\n'
                << std::flush;
    }
  }
  return EXIT_SUCCESS;
}
