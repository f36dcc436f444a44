// Discovery, compared with a loop that makes the same queries to the design and stores the names.

#include <memory>
#include <string>
#include <vector>

#include "bench/design.h"
#include "bench/suite.h"
#include "tests/support/SelectedEngine.h"

namespace bench {
namespace {

enum class Ask { processors, instancesOfClass, instancesOfType, type, reached, peripherals, parameter };

struct Question {
  Ask ask;
  std::string name = {};
  HwIpType ipClass = HW_IP_DEBUG;
  std::string parameter = {};
};

// Forwards the queries and records them.
class Listener : public HHSMHwManager {
 public:
  explicit Listener(HHSMHwManager& hw) : m_hw(hw) {}

  std::vector<Question> questions;

  void getProcessorInstances(std::vector<std::string>& out, bool flag) override {
    questions.push_back({Ask::processors});
    m_hw.getProcessorInstances(out, flag);
  }
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override {
    questions.push_back({.ask = Ask::instancesOfClass, .ipClass = ipClass});
    m_hw.getIpInstances(out, ipClass);
  }
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) override {
    questions.push_back({Ask::instancesOfType, ipType});
    m_hw.getIpInstances(out, ipType, flag);
  }
  std::string getIpName(const std::string& instance) override {
    questions.push_back({Ask::type, instance});
    return m_hw.getIpName(instance);
  }
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override {
    questions.push_back({Ask::reached, debugInstance});
    m_hw.getOdmConnectedProcessorList(out, debugInstance);
  }
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override {
    questions.push_back({Ask::peripherals, processor});
    m_hw.getPeripherals(processor, out);
  }
  std::string getParameterValue(const std::string& instance, const std::string& parameter) override {
    questions.push_back({.ask = Ask::parameter, .name = instance, .parameter = parameter});
    return m_hw.getParameterValue(instance, parameter);
  }

 private:
  HHSMHwManager& m_hw;
};

// Repeats the queries. Stores the lists of processors and instances; discards other results.
std::vector<std::string> ask_again(HHSMHwManager& hw, const std::vector<Question>& questions) {
  std::vector<std::string> names;
  for (const Question& question : questions) {
    switch (question.ask) {
      case Ask::processors:
        hw.getProcessorInstances(names, false);
        break;
      case Ask::instancesOfClass:
        hw.getIpInstances(names, question.ipClass);
        break;
      case Ask::instancesOfType:
        hw.getIpInstances(names, question.name, false);
        break;
      case Ask::type:
        benchmark::DoNotOptimize(hw.getIpName(question.name));
        break;
      case Ask::reached:
        hw.getOdmConnectedProcessorList(names, question.name);
        break;
      case Ask::peripherals: {
        std::vector<std::string> peripherals;
        hw.getPeripherals(question.name, peripherals);
        benchmark::DoNotOptimize(peripherals);
        break;
      }
      case Ask::parameter:
        benchmark::DoNotOptimize(hw.getParameterValue(question.name, question.parameter));
        break;
    }
  }
  return names;
}

void add_size(std::size_t processors) {
  const Work work = {"discovery", processors};
  auto design = std::make_shared<Design>(processors);
  Listener listener(*design);
  {
    const DiscoveredEngine engine(listener);
    expect(engine.imp.processorList.size() == processors, work, kOurs);
  }
  add(work, kOurs, [design] {
    const DiscoveredEngine engine(*design);
    benchmark::DoNotOptimize(engine.imp.processorList.data());
  });

  const char* const who = "the same questions";
  expect(ask_again(*design, listener.questions).size() >= processors, work, who);
  add(work, who,
      [design, questions = std::move(listener.questions)] { benchmark::DoNotOptimize(ask_again(*design, questions)); });
}

}  // namespace

void add_discovery() {
  for (const std::size_t processors : kSizes) add_size(processors);
}

}  // namespace bench
