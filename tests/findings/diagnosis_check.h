#pragma once

// What must hold for every diagnosis of every text, for the random tests and the fuzzer.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "tests/settings/by_hand.h"

struct DiagnosisCase {
  std::string processor;  // one of kProcessors
  SdkDebugDialog::TextKind kind = SdkDebugDialog::TextKind::command;
  std::string text;
};

struct TextPlace {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const TextPlace&) const = default;
};

// A hardware description that tells whether it was asked anything.
class WatchedHardware : public Hardware {
 public:
  bool asked = false;

  void getProcessorInstances(std::vector<std::string>& out, bool flag) override;
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override;
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) override;
  std::string getIpName(const std::string& instance) override;
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override;
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override;
  std::string getParameterValue(const std::string& instance, const std::string& parameter) override;
};

// The processors of the design of tests/compare, discovered once.
class DiagnosisBench {
 public:
  // The one without a design for an empty name.
  SdkDebugDialog::Processor processor(std::string_view name) const;

  // Where the reader refuses the text, found out by reading alone; nothing when it is read.
  std::optional<TextPlace> rejected(const DiagnosisCase& c);

  // What is wrong with the diagnosis; empty when nothing is.
  std::string fault(const DiagnosisCase& c);

  // What the diagnoses so far were.
  struct Figures {
    std::size_t read = 0;     // the reader reads the text
    std::size_t refused = 0;  // ... or refuses it
    std::size_t findings = 0;
    std::size_t fixed = 0;     // refused texts that safe fixes made readable
    std::size_t improved = 0;  // texts that were read, with safe fixes
  };
  const Figures& figures() const { return m_figures; }

 private:
  WatchedHardware m_hardware;
  SdkDebugDialog::Design m_design{m_hardware};
  Figures m_figures;
};

// The case as C++ would have it, for a message.
std::string shown(const DiagnosisCase& c);

// A smaller case with a fault.
DiagnosisCase minimised(DiagnosisBench& bench, DiagnosisCase c);
