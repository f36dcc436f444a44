#include "findings/effects.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "SdkDebugDialog/Engine.h"
#include "model/processor_kind.h"
#include "options/groups.h"
#include "options/number.h"
#include "settings/catalogue.h"
#include "settings/number_text.h"
#include "settings/ways.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

std::string name_of(const Said& said) { return quoted(said.row->name.text()); }

// Whether keywords of a cable have no effect because the text does not tell its type.
bool lacks_type(const Said& said, const State& state) {
  return &said.option->group == &kCable && state.cable.type == Engine::CABLE_NONE &&
         why_not(row_named("cable"), state).empty();
}

// Why what was said does not apply; empty if it does.
std::string why_no_effect(const Said& said, const State& state) {
  if (&said.option->group == &kStub && state.processor.connectionType != Engine::STUB) {
    return "it is for the connection 'stub'";
  }
  const Setting* const setting = setting_of(*said.row);
  const std::string why = setting != nullptr ? why_not(row_of(*setting), state) : std::string();
  return !why.empty() && lacks_type(said, state) ? "no type of cable is given" : why;
}

void check_given_twice(const Examined& examined, Report& report) {
  for (const SaidTwice& twice : examined.twice) {
    if (sets_nothing(*twice.option)) continue;
    const std::string name = quoted(twice.row->name.text());
    Finding& finding =
        report.add(Code::givenTwice, twice.first, name + " is given again behind this, so that this one has no effect",
                   "keep one of them");
    finding.remarks.push_back({twice.again.begin, twice.again.end, "this one counts"});
  }
}

void check_port(const Examined& examined, const State& state, Report& report) {
  const Said* const type = examined.said(kCable, "type");
  const Said* const port = examined.said(kCable, "port");
  if (type == nullptr || port == nullptr || port->word.begin > type->word.begin) return;
  const std::string_view ofType = cable_type(state.cable.type).defaultPort;
  if (ofType.empty() || ofType == port->text) return;
  Finding& finding =
      report.add(Code::portBeforeType, port->word,
                 "'type' behind it sets the port to " + quoted(ofType) + ", so that this one has no effect",
                 "write 'port' behind 'type'");
  finding.remarks.push_back({type->word.begin, type->value.end, "the type brings its own port"});
  if (port->group != type->group) return;
  Fix move{"move 'port' behind the type", false, {}};
  // A blank follows the port, since the type does.
  move.replacements.push_back({port->word.begin, port->value.end + 1, ""});
  move.replacements.push_back({type->value.end, type->value.end, " port " + std::string(port->text)});
  finding.fixes.push_back(std::move(move));
}

std::string hertz(std::uint32_t value) { return number_text(value, Scale::decimal, "Hz"); }

// Whether a frequency is given that does not count, since the text ends with another "-cable".
bool check_last_cable(const Examined& examined, const State& state, Report& report) {
  const Said* const frequency = examined.said(kCable, "frequency");
  if (!examined.lastCable || frequency == nullptr || frequency->optionWord == *examined.lastCable) return false;
  const std::uint32_t initial = cable_type(state.cable.type).defaultFrequency;
  if (to_unsigned(frequency->text) == initial) return true;
  const std::string instead = initial != 0 ? "that of its type, " + hertz(initial) : "0";
  Finding& finding = report.add(Code::doesNotApply, frequency->word,
                                "'frequency' has no effect: the last '-cable' has none, which then is " + instead,
                                "write it behind the last '-cable', or remove it");
  finding.remarks.push_back({examined.lastCable->begin, examined.lastCable->end, "the last '-cable'"});
  return true;
}

// A frequency is checked only at the end of the text.
void check_frequency(const Examined& examined, const State& state, Report& report) {
  const CableType& type = cable_type(state.cable.type);
  const Said* const cable = examined.said(kCable, "type");
  if (cable == nullptr || type.accepted.empty() || !state.cable.esn.empty()) return;
  if (!why_not(row_named("frequency"), state).empty() || check_last_cable(examined, state, report)) return;
  const bool isAccepted = std::ranges::find(type.accepted, state.cable.frequency) != type.accepted.end();
  const Said* const frequency = examined.said(kCable, "frequency");
  if (frequency != nullptr && (isAccepted || report.has(frequency->value))) return;
  if (frequency != nullptr) {
    report.set_severity(add_frequency(type, state.cable.frequency, *frequency, report), Severity::warning);
  } else if (state.cable.frequency == 0) {
    Finding& finding =
        report.add(Code::missingFrequency, cable->optionWord, "the cable has no frequency, which then is 0",
                   "write 'frequency' and its value in Hz");
    if (type.defaultFrequency == 0) return;
    const std::string words = "frequency " + std::to_string(type.defaultFrequency);
    finding.remedy = "write " + quoted(words) + ", or put '-cable' at the end";
    finding.fixes.push_back(fix("write " + quoted(words), false, {cable->value.end, cable->value.end}, " " + words));
  }
}

// A module, too, is asked for only at the end of the text.
void check_module(const Examined& examined, const State& state, Report& report) {
  const Said* const type = examined.said(kCable, "type");
  if (type == nullptr || !state.cable.modulename.empty() || !why_not(row_named("module"), state).empty()) return;
  Finding& finding = report.add(Code::missingModule, type->optionWord, "a plug-in cable needs its module",
                                "write 'modulename' and the name of the module");
  report.set_severity(finding, Severity::warning);
}

void check_esn(const Examined& examined, const State& state, Report& report) {
  if (state.cable.esn.empty()) return;
  for (const char* const name : {"port", "frequency"}) {
    if (const Said* const said = examined.said(kCable, name)) {
      report.add(Code::besideEsn, said->word, name_of(*said) + " has no effect beside 'esn', which selects the cable",
                 "remove one of them");
    }
  }
}

// An FPU in the text counts only without a design.
void check_fpu(const Subject& subject, const Examined& examined, const State& state, Report& report) {
  const Said* const fpu = examined.said(kDebugdevice, "fpuType");
  if (fpu == nullptr || !state.hasDesign) return;
  const auto word =
      std::ranges::find_if(fpu->row->words, [&](const Word& w) { return same_word(w.name.text(), fpu->text); });
  if (word == fpu->row->words.end() || word->value == state.processor.fpuType) return;
  const std::string has = state.processor.fpuType == kFpuNone     ? "no FPU"
                          : state.processor.fpuType == kFpuSingle ? "an FPU of single precision"
                                                                  : "an FPU of double precision";
  report.add(Code::fpuFromDesign, fpu->value,
             quoted(subject.processor.name()) + " has " + has + " in the design, which counts",
             "remove 'fpuType', or see whether the text is for another processor");
}

std::string_view meaning_of_family(std::uint32_t family) {
  const auto found = std::ranges::find(targets(), family, &Target::family);
  return found != targets().end() ? found->meaning : "processor";
}

// Whether the target is for another kind of processor. An ARM processor is written as a PowerPC.
bool check_family(const Subject& subject, const Examined& examined, const State& state, Report& report) {
  const Target* const target = examined.target;
  if (!state.hasDesign || target == nullptr || target->admits != 0) return false;
  const std::uint32_t family = subject.processor.identity().procFamily;
  if (target->family == family || (target->family == kFamilyPowerPC && family == kFamilyArm)) return false;
  report.add(Code::otherFamily, examined.targetWord,
             "the target is for another kind of processor (" + std::string(target->meaning) + ") than " +
                 quoted(subject.processor.name()) + " (" + std::string(meaning_of_family(family)) + ")",
             "see whether the text is for another processor");
  return true;
}

// The last "-cable", which has no type or frequency of its own, gives the cable the default frequency.
bool resets_frequency(const Place& option, const Examined& examined) {
  return examined.lastCable == option && examined.said(kCable, "type") != nullptr;
}

// Of those that are repeated each one. An option "-configdevice" adds a device in any case.
void check_sets_something(const Examined& examined, Report& report) {
  const auto add = [&](const Option& option, const Place& place) {
    if (report.has(place)) return;
    report.add(Code::noEffect, place, quoted(option.name.text()) + " is accepted and has no effect", "remove it");
  };
  for (const SaidTwice& twice : examined.twice) {
    if (sets_nothing(*twice.option)) add(*twice.option, twice.optionWord);
  }
  for (const Said& said : examined.lasts) {
    if (sets_nothing(*said.option)) add(*said.option, said.optionWord);
  }
  for (const BareOption& bare : examined.bare) {
    if (sets_nothing(*bare.option)) {
      add(*bare.option, bare.word);
    } else if (&bare.option->group != &kConfigdevice && !resets_frequency(bare.word, examined)) {
      report.add(Code::noEffect, bare.word, quoted(bare.option->name.text()) + " has no effect without a keyword",
                 "write a keyword and its value, or remove it");
    }
  }
}

std::string remedy_of(const Said& said, const State& state) {
  return lacks_type(said, state) ? "write 'type' and the type" : "remove it, or change what it depends on";
}

// Settings that do not apply. A whole option is one finding.
void check_applies(const Examined& examined, const State& state, Report& report) {
  for (auto first = examined.lasts.begin(); first != examined.lasts.end();) {
    const auto isOther = [&](const Said& said) { return said.group != first->group; };
    const auto end = std::find_if(first, examined.lasts.end(), isOther);
    const std::string why = why_no_effect(*first, state);
    if (!why.empty() && std::all_of(first, end, [&](const Said& said) { return why_no_effect(said, state) == why; })) {
      report.add(Code::doesNotApply, first->optionWord, quoted(first->option->name.text()) + " has no effect: " + why,
                 remedy_of(*first, state));
    } else {
      for (auto said = first; said != end; ++said) {
        const std::string reason = why_no_effect(*said, state);
        if (reason.empty()) continue;
        report.add(Code::doesNotApply, said->word, name_of(*said) + " has no effect: " + reason,
                   remedy_of(*said, state));
      }
    }
    first = end;
  }
}

}  // namespace

Finding& add_frequency(const CableType& type, std::uint32_t hz, const Said& frequency, Report& report) {
  std::string all;
  for (const std::uint32_t accepted : type.accepted) {
    all.append(all.empty() ? "" : ", ").append(std::to_string(accepted));
  }
  const std::optional<Finding> misread = report.take_warning(frequency.value);
  Finding& finding =
      report.add(Code::unsupportedFrequency, frequency.value,
                 "a cable of the type " + quoted(type.names.back().text()) + " does not run at " + hertz(hz),
                 "accepted here: " + all);
  const auto propose = [&](std::uint32_t value) {
    finding.fixes.push_back(fix("write " + std::to_string(value) + " (" + hertz(value) + ")", false, frequency.value,
                                std::to_string(value)));
  };
  std::uint32_t wanted = hz;
  if (misread) {
    // A value that is not what it seems; the last guess is what was meant.
    finding.remarks.push_back({0, 0, misread->message});
    if (misread->fixes.empty()) return finding;
    wanted = static_cast<std::uint32_t>(to_unsigned(misread->fixes.back().replacements.front().text));
  }
  const auto above = std::ranges::upper_bound(type.accepted, wanted);
  if (above != type.accepted.begin() && *std::prev(above) == wanted) {
    propose(wanted);
    return finding;
  }
  if (above != type.accepted.begin()) propose(*std::prev(above));
  if (above != type.accepted.end()) propose(*above);
  return finding;
}

void check_effects(const Subject& subject, const Examined& examined, const State& state, Report& report) {
  check_given_twice(examined, report);
  check_port(examined, state, report);
  check_frequency(examined, state, report);
  check_module(examined, state, report);
  check_esn(examined, state, report);
  check_sets_something(examined, report);
  if (check_family(subject, examined, state, report)) {
    // What is for that kind of processor does not apply to this one, which is told already.
    State asMeant = state;
    asMeant.processor.procFamily = examined.target->family;
    check_applies(examined, asMeant, report);
  } else {
    check_fpu(subject, examined, state, report);
    check_applies(examined, state, report);
  }
  if (examined.notReached) {
    report.add(Code::notReached, *examined.notReached, "what follows is not read", "remove it");
  }
}

}  // namespace SdkDebugDialog
