// What is wrong with the JTAG chain.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <unordered_map>
#include <utility>

#include "findings/checks.h"
#include "settings/number_text.h"

namespace SdkDebugDialog {
namespace {

// A device of the chain. What is wrong with a word is told already: no more is made of its value.
struct Device {
  const JtagOption& values;
  const DeviceWords& words;
  bool isNumberSure;
  bool isIrlengthSure;
  bool isIdcodeSure;

  Place number_place() const { return words.number.value_or(words.option); }
  Place irlength_place() const { return words.irlength.value_or(words.option); }
};

using Devices = std::vector<Device>;

Devices described(std::span<const JtagOption> chain, std::span<const DeviceWords> words, const Report& report) {
  const auto isSure = [&](const std::optional<Place>& word) { return !word || !report.has(*word); };
  Devices devices;
  for (std::size_t i = 0; i < chain.size(); ++i) {
    const DeviceWords& w = words[i];
    // This adds a device only because it has to stand behind "-configdevice".
    if (w.isReached && !w.isDescribed) continue;
    devices.push_back({chain[i], w, isSure(w.number), isSure(w.irlength), isSure(w.idcode)});
  }
  return devices;
}

std::string device(int number) { return "device " + std::to_string(number); }

void remark(Finding& finding, const Place& place, std::string message) {
  finding.remarks.push_back({place.begin, place.end, std::move(message)});
}

// --- Each device ---

// Bit 0 of an IDCODE is 1; all ones is what a chain without a device answers.
bool is_idcode(std::uint32_t idcode) {
  return (idcode & 1U) != 0 && idcode != std::numeric_limits<std::uint32_t>::max();
}

constexpr int kShortestRegister = 2;

void check_idcode(const Device& d, Report& report) {
  const std::uint32_t idcode = d.values.idcode;
  if (is_idcode(idcode) || !d.isIdcodeSure) return;
  constexpr const char* kRemedy = "write the IDCODE that the manufacturer of the device states";
  if (!d.words.idcode) {
    report.add(Code::invalidIdcode, d.words.option, "the device has no IDCODE, which is then 0", kRemedy);
    return;
  }
  const bool isOdd = (idcode & 1U) != 0;
  const char* const reason = isOdd ? ": it is what no device answers" : ": its last bit must be 1";
  report.add(Code::invalidIdcode, *d.words.idcode, address_text(idcode) + " is no IDCODE" + reason, kRemedy);
}

void check_irlength(const Device& d, Report& report) {
  const int length = d.values.irlength;
  if (length >= kShortestRegister || !d.isIrlengthSure) return;
  constexpr const char* kRemedy = "write the length that the manufacturer of the device states, in bits";
  if (!d.words.irlength) {
    report.add(Code::shortInstructionRegister, d.words.option,
               "the device has no instruction register length, which is then 0", kRemedy);
    return;
  }
  report.add(Code::shortInstructionRegister, *d.words.irlength,
             "an instruction register has at least 2 bits, not " + std::to_string(length), kRemedy);
}

// The upper four bits are the version of a device: all versions have the same instruction register.
void check_lengths(const Devices& devices, Report& report) {
  constexpr std::uint32_t kWithoutVersion = 0x0FFFFFFFU;
  std::unordered_map<std::uint32_t, const Device*> firsts;
  for (const Device& d : devices) {
    if (!d.isIdcodeSure || !d.isIrlengthSure) continue;
    if (!is_idcode(d.values.idcode) || d.values.irlength < kShortestRegister) continue;
    const Device& first = *firsts.emplace(d.values.idcode & kWithoutVersion, &d).first->second;
    if (d.values.irlength == first.values.irlength) continue;
    Finding& finding = report.add(Code::idcodeTwoLengths, d.irlength_place(),
                                  "the instruction register of " + address_text(d.values.idcode) + " has " +
                                      std::to_string(d.values.irlength) + " bits here and " +
                                      std::to_string(first.values.irlength) + " bits elsewhere",
                                  "give devices of one kind the same length");
    remark(finding, first.irlength_place(), std::to_string(first.values.irlength) + " bits here");
  }
}

// --- Their numbers ---

constexpr const char* kNumbering = "number the devices 1, 2, 3 in the order in which they stand";

// The device that has a number first; numbers are bytes.
class Numbers {
 public:
  const Device*& of(int number) { return m_devices[static_cast<std::uint8_t>(number)]; }

 private:
  std::array<const Device*, 256> m_devices{};
};

// Numbers begin at 1: 0 stands for no debug device.
void check_numbers(Devices& devices, Report& report) {
  for (Device& d : devices) {
    if (!d.isNumberSure || d.values.devicenr != 0) continue;
    d.isNumberSure = false;
    report.add(Code::deviceNumberGap, d.number_place(),
               d.words.number ? "a device has the number 0" : "the device has no number, which is then 0", kNumbering);
  }
}

// Notes the devices by their numbers, if they are sure; false if a number repeats.
bool check_distinct(const Devices& devices, Numbers& numbers, Report& report) {
  bool areDistinct = true;
  for (const Device& d : devices) {
    if (!d.isNumberSure) continue;
    const Device*& first = numbers.of(d.values.devicenr);
    if (first == nullptr) {
      first = &d;
      continue;
    }
    areDistinct = false;
    Finding& finding = report.add(Code::repeatedDeviceNumber, d.number_place(),
                                  "two devices have the number " + std::to_string(d.values.devicenr), kNumbering);
    remark(finding, first->number_place(), "the first one with this number");
  }
  return areDistinct;
}

// Reports the first device that stands behind one with a higher number; a number that repeats counts once.
bool check_order(const Devices& devices, Numbers& numbers, Report& report) {
  const Device* previous = nullptr;
  for (const Device& d : devices) {
    const int number = d.values.devicenr;
    if (numbers.of(number) != &d) continue;
    if (previous != nullptr && number < previous->values.devicenr) {
      Finding& finding = report.add(Code::deviceOrder, d.number_place(),
                                    device(number) + " stands behind " + device(previous->values.devicenr), kNumbering);
      remark(finding, previous->number_place(), "the one in front of it");
      return false;
    }
    previous = &d;
  }
  return true;
}

void check_gaps(const Devices& devices, Report& report) {
  int expected = 1;
  for (const Device& d : devices) {
    const int number = d.values.devicenr;
    if (number < 0) continue;
    if (number > expected) {
      std::string message = "there is no " + device(expected);
      if (number > expected + 1) {
        message = "there are no devices " + std::to_string(expected) + " to " + std::to_string(number - 1);
      }
      report.add(Code::deviceNumberGap, d.number_place(), std::move(message), kNumbering);
    }
    expected = number + 1;
  }
}

}  // namespace

void check_chain(std::span<const JtagOption> chain, std::span<const DeviceWords> words, int debugDevice,
                 const std::optional<Place>& debugDeviceWord, Report& report) {
  Devices devices = described(chain, words, report);
  for (const Device& d : devices) {
    check_idcode(d, report);
    check_irlength(d, report);
  }
  check_lengths(devices, report);
  check_numbers(devices, report);
  Numbers numbers;
  const bool areDistinct = check_distinct(devices, numbers, report);
  const bool areOrdered = check_order(devices, numbers, report);
  // Where a number is not sure, none can be missed; and gaps follow where numbers repeat or are not ascending.
  if (!std::ranges::all_of(devices, &Device::isNumberSure)) return;
  if (areDistinct && areOrdered) check_gaps(devices, report);
  if (devices.empty() || debugDevice == 0 || !debugDeviceWord || report.has(*debugDeviceWord)) return;
  if (numbers.of(debugDevice) != nullptr) return;
  report.add(Code::noSuchDevice, *debugDeviceWord,
             "no device of the JTAG chain has the number " + std::to_string(debugDevice),
             "write the number of the device that holds the processor");
}

}  // namespace SdkDebugDialog
