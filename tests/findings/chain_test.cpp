// What is wrong with the JTAG chain.

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "findings/checks.h"

namespace {

using namespace SdkDebugDialog;

constexpr std::uint32_t kIdcode = 0x0A001093;

// A device whose words stand at places that tell its index: 100 the option, 101 the number, 102 the length, 103 the
// IDCODE of the first device; 200 and so on those of the second.
struct Device {
  std::optional<int> number = {};
  std::optional<int> irlength = 10;
  std::optional<std::uint32_t> idcode = kIdcode;
  bool isReached = false;
};

struct Chain {
  std::vector<JtagOption> chain;
  std::vector<DeviceWords> words;

  Chain() = default;
  Chain(const std::vector<Device>& devices) {  // NOLINT(google-explicit-constructor)
    for (const Device& d : devices) add(d);
  }

  void add(const Device& d) {
    const std::size_t base = 100 * (chain.size() + 1);
    const auto place = [&](bool isThere, std::size_t offset) {
      return isThere ? std::optional(Place{base + offset, base + offset + 1}) : std::nullopt;
    };
    JtagOption& device = chain.emplace_back();
    device.devicenr = static_cast<std::int8_t>(d.number.value_or(0));
    device.irlength = static_cast<std::int8_t>(d.irlength.value_or(0));
    device.idcode = d.idcode.value_or(0);
    words.push_back({.option = {base, base + 1},
                     .number = place(d.number.has_value(), 1),
                     .irlength = place(d.irlength.has_value(), 2),
                     .idcode = place(d.idcode.has_value(), 3),
                     .isReached = d.isReached,
                     .isDescribed = d.number || d.irlength || d.idcode});
  }
};

constexpr Place kDebugDevice = {9000, 9001};

// Findings that are not of the chain are added first: at these words.
std::vector<Finding> findings_of(const Chain& chain, int debugDevice = 0, std::optional<Place> word = {},
                                 const std::vector<std::size_t>& told = {}) {
  Report report;
  for (const std::size_t begin : told) report.add(Code::notANumber, {begin, begin + 1}, "told", "a remedy");
  check_chain(chain.chain, chain.words, debugDevice, word, report);
  return std::move(report).findings();
}

// "PLACE code: message", and "REMARKED: remark"; a line each.
std::string shown(const std::vector<Finding>& findings) {
  std::string out;
  for (const Finding& finding : findings) {
    out += std::to_string(finding.begin).append(" ").append(finding.kind->code).append(": ").append(finding.message);
    for (const Remark& remark : finding.remarks) {
      out.append(" [").append(std::to_string(remark.begin)).append(": ").append(remark.message).append("]");
    }
    out += "\n";
    EXPECT_FALSE(finding.remedy.empty());
  }
  return out;
}

TEST(Chain, WithoutMistakes) {
  EXPECT_EQ(shown(findings_of({})), "");
  EXPECT_EQ(shown(findings_of({{{.number = 1}}})), "");
  EXPECT_EQ(shown(findings_of({{{.number = 1}, {.number = 2, .irlength = 2, .idcode = 1}}}, 2, kDebugDevice)), "");
}

TEST(Chain, Idcodes) {
  EXPECT_EQ(shown(findings_of({{{.number = 1, .idcode = 0}}})),
            "103 invalid-idcode: 0x00000000 is no IDCODE: its last bit must be 1\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1, .idcode = 0x12345678}}})),
            "103 invalid-idcode: 0x12345678 is no IDCODE: its last bit must be 1\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1, .idcode = 0xFFFFFFFF}}})),
            "103 invalid-idcode: 0xffffffff is no IDCODE: it is what no device answers\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1, .idcode = {}}}})),
            "100 invalid-idcode: the device has no IDCODE, which is then 0\n");
}

TEST(Chain, InstructionRegisters) {
  EXPECT_EQ(shown(findings_of({{{.number = 1, .irlength = 1}}})),
            "102 short-instruction-register: an instruction register has at least 2 bits, not 1\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1, .irlength = 200}}})),
            "102 short-instruction-register: an instruction register has at least 2 bits, not -56\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1, .irlength = {}}}})),
            "100 short-instruction-register: the device has no instruction register length, which is then 0\n");
}

TEST(Chain, RepeatedNumbers) {
  EXPECT_EQ(shown(findings_of({{{.number = 1}, {.number = 2}, {.number = 1}, {.number = 1}}})),
            "301 repeated-device-number: two devices have the number 1 [101: the first one with this number]\n"
            "401 repeated-device-number: two devices have the number 1 [101: the first one with this number]\n");
  // The missing number is that of the repeated one.
  EXPECT_EQ(shown(findings_of({{{.number = 1}, {.number = 2}, {.number = 2}, {.number = 4}}})),
            "301 repeated-device-number: two devices have the number 2 [201: the first one with this number]\n");
}

TEST(Chain, Order) {
  EXPECT_EQ(shown(findings_of({{{.number = 1}, {.number = 3}, {.number = 2}}})),
            "301 device-order: device 2 stands behind device 3 [201: the one in front of it]\n");
  EXPECT_EQ(shown(findings_of({{{.number = 9}, {.number = 7}, {.number = 5}, {.number = 1}}})),
            "201 device-order: device 7 stands behind device 9 [101: the one in front of it]\n");
}

TEST(Chain, Gaps) {
  EXPECT_EQ(shown(findings_of({{{.number = 2}}})), "101 device-number-gap: there is no device 1\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1}, {.number = 5}, {.number = 6}, {.number = 8}}})),
            "201 device-number-gap: there are no devices 2 to 4\n"
            "401 device-number-gap: there is no device 7\n");
  EXPECT_EQ(shown(findings_of({{{.number = -56}, {.number = 1}, {.number = 127}}})),
            "301 device-number-gap: there are no devices 2 to 126\n");
}

TEST(Chain, WithoutNumbers) {
  EXPECT_EQ(shown(findings_of({{{.number = 0}, {.number = 2}, {}, {}}}, 5, kDebugDevice)),
            "101 device-number-gap: a device has the number 0\n"
            "300 device-number-gap: the device has no number, which is then 0\n"
            "400 device-number-gap: the device has no number, which is then 0\n");
  EXPECT_EQ(shown(findings_of({{{}, {.number = 1}, {.number = 1}}})),
            "100 device-number-gap: the device has no number, which is then 0\n"
            "301 repeated-device-number: two devices have the number 1 [201: the first one with this number]\n");
}

TEST(Chain, DebugDevice) {
  const Chain chain = {{{.number = 1}, {.number = 2}}};
  EXPECT_EQ(shown(findings_of(chain, 3, kDebugDevice)),
            "9000 no-such-device: no device of the JTAG chain has the number 3\n");
  EXPECT_EQ(shown(findings_of(chain, -1, kDebugDevice)),
            "9000 no-such-device: no device of the JTAG chain has the number -1\n");
  EXPECT_EQ(shown(findings_of(chain, 2, kDebugDevice)), "");
  EXPECT_EQ(shown(findings_of(chain, 0, kDebugDevice)), "");
  EXPECT_EQ(shown(findings_of(chain, 3)), "");
  EXPECT_EQ(shown(findings_of({}, 3, kDebugDevice)), "");
}

TEST(Chain, OneIdcodeWithTwoLengths) {
  EXPECT_EQ(shown(findings_of({{{.number = 1},
                                {.number = 2, .irlength = 6, .idcode = 0x3A001093},
                                {.number = 3, .irlength = 6, .idcode = 0x0A001095}}})),
            "202 idcode-two-lengths: the instruction register of 0x3a001093 has 6 bits here and 10 bits elsewhere "
            "[102: 10 bits here]\n");
  // What is wrong with each is told already.
  EXPECT_EQ(shown(findings_of({{{.number = 1, .idcode = 0}, {.number = 2, .irlength = 6, .idcode = 0}}})),
            "103 invalid-idcode: 0x00000000 is no IDCODE: its last bit must be 1\n"
            "203 invalid-idcode: 0x00000000 is no IDCODE: its last bit must be 1\n");
  EXPECT_EQ(shown(findings_of({{{.number = 1}, {.number = 2, .irlength = {}}}})),
            "200 short-instruction-register: the device has no instruction register length, which is then 0\n");
}

// No more is made of a value that is no number.
TEST(Chain, ValuesThatAreWrongInThemselves) {
  const auto expectNothingMore = [](const std::vector<Device>& devices, const std::vector<std::size_t>& told) {
    const std::vector<Finding> findings = findings_of(devices, 3, kDebugDevice, told);
    EXPECT_EQ(findings.size(), told.size()) << shown(findings);
  };
  expectNothingMore({{.number = 1}, {.number = 2}, {.number = 3, .irlength = 0}}, {302});
  expectNothingMore({{.number = 1}, {.number = 2}, {.number = 3, .irlength = 44}}, {302});
  expectNothingMore({{.number = 1}, {.number = 2}, {.number = 3, .idcode = 0}}, {303});
  expectNothingMore({{.number = 1}, {.number = 0}, {.number = 3}}, {201});
  expectNothingMore({{.number = 1}, {.number = 1}, {.number = 5}}, {201});
  expectNothingMore({{.number = 1}, {.number = 2}}, {9000});
  // What is wrong with the others is told.
  EXPECT_EQ(findings_of({{{.number = 2}, {.number = 0}, {.number = 1}}}, 0, {}, {201}).size(), 2U);
}

// "-configdevice jtagport cpu" adds a device that says nothing about itself.
TEST(Chain, DevicesWithoutAWord) {
  const Device none = {.number = {}, .irlength = {}, .idcode = {}, .isReached = true};
  EXPECT_EQ(shown(findings_of({{none}}, 2, kDebugDevice)), "");
  EXPECT_EQ(shown(findings_of({{none, {.number = 1}, none, {.number = 2}}}, 2, kDebugDevice)), "");
  // "-configdevice" alone, or with a part name alone.
  EXPECT_EQ(shown(findings_of({{{.number = {}, .irlength = {}, .idcode = {}}}}, 1, kDebugDevice)),
            "100 invalid-idcode: the device has no IDCODE, which is then 0\n"
            "100 short-instruction-register: the device has no instruction register length, which is then 0\n"
            "100 device-number-gap: the device has no number, which is then 0\n");
}

TEST(Chain, OfAnyLength) {
  Chain chain;
  for (int i = 0; i < 100'000; ++i) {
    chain.add({.number = 1 + i % 127, .idcode = static_cast<std::uint32_t>(2 * i + 1)});
  }
  const std::vector<Finding> findings = findings_of(chain, 5, kDebugDevice);
  ASSERT_EQ(findings.size(), Report::kMostOfOneKind + 1);
  EXPECT_EQ(findings.back().kind->code, "too-many");
}

}  // namespace
