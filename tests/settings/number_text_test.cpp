#include "settings/number_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <locale>
#include <optional>
#include <string>
#include <string_view>

#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();

struct Measure {
  Scale scale;
  std::string_view unit;
};

constexpr Measure kCount = {Scale::none, ""};
constexpr Measure kFrequency = {Scale::decimal, "Hz"};
constexpr Measure kRate = {Scale::decimal, "baud"};
constexpr Measure kPlain = {Scale::decimal, ""};
constexpr Measure kSize = {Scale::binary, "bytes"};
constexpr Measure kAddress = {Scale::binary, ""};
constexpr Measure kEvery[] = {kCount, kFrequency, kRate, kPlain, kSize, kAddress};

std::optional<std::int64_t> parse(std::string_view text, const Measure& measure) {
  return parse_number(text, measure.scale, measure.unit);
}

TEST(ParseNumber, ReadsNumbersWhateverTheyMeasure) {
  const struct {
    std::string text;
    std::int64_t number;
  } rows[] = {
      {"0", 0},
      {"-0", 0},
      {"16", 16},
      {"-1", -1},
      {"1_000_000", 1000000},
      {"1_0_0", 100},
      {"0x0", 0},
      {"0x1000", 0x1000},
      {"0X1000", 0x1000},
      {"0x0010", 16},
      {"-0x10", -16},
      {"0xaBcDeF", 0xABCDEF},
      {"0x1e3", 0x1E3},
      {"0x10B", 0x10B},
      {"0x8000_0000", 0x80000000},
      {"12e6", 12000000},
      {"12E6", 12000000},
      {"12e+6", 12000000},
      {"12e06", 12000000},
      {"1_2e0_6", 12000000},
      {"1.2e7", 12000000},
      {"1.200e1", 12},
      {"12.0", 12},
      {"1_2.0_0", 12},
      {"0.5e1", 5},
      {"0.0", 0},
      {"100e-2", 1},
      {"-1.5e3", -1500},
      {"0e999999999999999999999999", 0},
      {"0.0e-999999999999999999999999", 0},
      {"0e9223372036854775807", 0},
      {"0." + std::string(5000, '0') + "1e5001", 1},
      {"1" + std::string(5000, '0') + "e-5000", 1},
      {"1e" + std::string(5000, '0') + "1", 10},
      {"1e18", 1000000000000000000},
      {"9e18", 9000000000000000000},
      {"9223372036854775807", kHighest},
      {"9.223372036854775807e18", kHighest},
      {"922337203685477580.7e1", kHighest},
      {"-9223372036854775808", kLowest},
      {"0x7fffffffffffffff", kHighest},
      {"-0x8000000000000000", kLowest},
  };
  for (const auto& [text, number] : rows) {
    for (const Measure& measure : kEvery) EXPECT_EQ(parse(text, measure), number) << text << " of " << measure.unit;
  }
}

TEST(ParseNumber, ReadsSuffixes) {
  const struct {
    std::string text;
    Measure measure;
    std::int64_t number;
  } rows[] = {
      {"12M", kFrequency, 12000000},
      {"12m", kFrequency, 12000000},
      {"12 M", kFrequency, 12000000},
      {"12MHz", kFrequency, 12000000},
      {"12 MHz", kFrequency, 12000000},
      {"12  MHz", kFrequency, 12000000},
      {"12mhz", kFrequency, 12000000},
      {"12MHZ", kFrequency, 12000000},
      {"12000000 Hz", kFrequency, 12000000},
      {"12e6 Hz", kFrequency, 12000000},
      {"0.012e3MHz", kFrequency, 12000000},
      {"12_000 kHz", kFrequency, 12000000},
      {"200k", kFrequency, 200000},
      {"200 kHz", kFrequency, 200000},
      {"200KHz", kFrequency, 200000},
      {"1.5M", kFrequency, 1500000},
      {"0.5M", kFrequency, 500000},
      {"0.2 MHz", kFrequency, 200000},
      {"0.000001 MHz", kFrequency, 1},
      {"-1.5M", kFrequency, -1500000},
      {"1G", kFrequency, 1000000000},
      {"1.000000001 GHz", kFrequency, 1000000001},
      {"0 MHz", kFrequency, 0},
      {"9.223372036854775807e9 GHz", kFrequency, kHighest},
      {"115.2k", kRate, 115200},
      {"115.2 kBd", kRate, 115200},
      {"115.2 kbaud", kRate, 115200},
      {"115200 baud", kRate, 115200},
      {"115200Bd", kRate, 115200},
      {"1M", kPlain, 1000000},
      {"64K", kSize, 65536},
      {"64k", kSize, 65536},
      {"64 KB", kSize, 65536},
      {"64KiB", kSize, 65536},
      {"64 kib", kSize, 65536},
      {"1M", kSize, 1048576},
      {"2 GB", kSize, 2147483648},
      {"1.5K", kSize, 1536},
      {"1e3K", kSize, 1024000},
      {"1000 bytes", kSize, 1000},
      {"1 byte", kSize, 1},
      {"1000B", kSize, 1000},
      {"0.000000000931322574615478515625G", kSize, 1},
      {"8589934591.999999999068677425384521484375G", kSize, kHighest},
      {"-8589934592G", kSize, kLowest},
      {"64K", kAddress, 65536},
      {"64 KB", kAddress, 65536},
      {"64KiB", kAddress, 65536},
  };
  for (const auto& [text, measure, number] : rows) EXPECT_EQ(parse(text, measure), number) << text;
}

TEST(ParseNumber, RefusesWhatIsNoNumber) {
  const std::string rows[] = {
      "",
      " ",
      "-",
      "--1",
      "- 1",
      "+1",
      "-+1",
      "010",
      "00",
      "-010",
      "00.5",
      "0_1",
      "00x10",
      "1__0",
      "_1",
      "1_",
      "-_1",
      "1_.5",
      "1._5",
      "1.5_e1",
      "1_e5",
      "1e_5",
      "1e5_",
      "0x",
      "-0x",
      "0x_1",
      "0x1_",
      "0x1__0",
      "0xg",
      "0x1.8",
      "0x-1",
      "0x 1",
      "x10",
      "10h",
      "0b11",
      ".",
      ".5",
      "1.",
      "1.e5",
      "1..5",
      "1.5.0",
      "1,5",
      "1,000",
      "1 000",
      "1'000",
      "e5",
      "12e",
      "12e+",
      "12e-",
      "12e+-6",
      "12e6e6",
      "12e1.5",
      "12 e6",
      " 12",
      "12 ",
      "\t12",
      "12\n",
      "12x",
      "12 x",
      "12\0"s,
      "12\0M"s,
      "-12-",
      "inf",
      "nan",
      "1.5",
      "0.1",
      "1e-1",
      "15e-1",
      "1.25e1",
      "1e400",
      "1e19",
      "1e999999999",
      "1e-999999999",
      "1e9223372036854775807",
      "1e-9223372036854775808",
      "1e999999999999999999999999999",
      "1e-999999999999999999999999999",
      "9223372036854775808",
      "9.3e18",
      "-9223372036854775809",
      "0x8000000000000000",
      "-0x8000000000000001",
      "0xffffffffffffffff",
      "0x1ffffffffffffffff",
      std::string(100000, '9'),
      "0x" + std::string(100000, 'f'),
      "1" + std::string(100000, '0'),
      "0." + std::string(100000, '0') + "1",
  };
  for (const std::string& text : rows) {
    for (const Measure& measure : kEvery) {
      EXPECT_EQ(parse(text, measure), std::nullopt) << text.substr(0, 50) << " of " << measure.unit;
    }
  }
}

TEST(ParseNumber, RefusesSuffixesThatAreNotThoseOfTheUnit) {
  const struct {
    std::string text;
    Measure measure;
  } rows[] = {
      {"12M", kCount},
      {"12 Hz", kCount},
      {"12 bytes", kCount},
      {"12B", kCount},
      {"12 M Hz", kFrequency},
      {"12 MH", kFrequency},
      {"12 MHzz", kFrequency},
      {"12 MHz ", kFrequency},
      {"12 Hz M", kFrequency},
      {"12 MM", kFrequency},
      {"12 T", kFrequency},
      {"12MB", kFrequency},
      {"12 baud", kFrequency},
      {"12 bytes", kFrequency},
      {"12Mi", kFrequency},
      {"12MHz5", kFrequency},
      {"12\tMHz", kFrequency},
      {"12_MHz", kFrequency},
      {"0x10M", kFrequency},
      {"0x10 Hz", kFrequency},
      {"1.0000001M", kFrequency},
      {"1.5 Hz", kFrequency},
      {"0.0001k", kFrequency},
      {"12 Hz", kRate},
      {"12 kHz", kRate},
      {"12 bau", kRate},
      {"12 bauds", kRate},
      {"12 Hz", kPlain},
      {"12 MHz", kPlain},
      {"12MB", kPlain},
      {"12 baud", kPlain},
      {"12 Hz", kSize},
      {"64 Kbytes", kSize},
      {"64 iB", kSize},
      {"64 K iB", kSize},
      {"64Ki", kSize},
      {"64 KBB", kSize},
      {"0x10 B", kSize},
      {"0x10K", kSize},
      {"1.3K", kSize},
      {"0.5 bytes", kSize},
      {"0.0000000009G", kSize},
      {"8589934592G", kSize},
      {"64 B", kAddress},
      {"64 bytes", kAddress},
      {"64 Hz", kAddress},
      {"9223372036854775807K", kSize},
      {"9223372036854775807G", kFrequency},
  };
  for (const auto& [text, measure] : rows) EXPECT_EQ(parse(text, measure), std::nullopt) << text;
}

TEST(NumberText, IsShortAndReadBack) {
  const struct {
    std::int64_t number;
    Measure measure;
    std::string text;
  } rows[] = {
      {0, kFrequency, "0 Hz"},
      {1, kFrequency, "1 Hz"},
      {999, kFrequency, "999 Hz"},
      {1000, kFrequency, "1 kHz"},
      {1001, kFrequency, "1.001 kHz"},
      {200000, kFrequency, "200 kHz"},
      {625000, kFrequency, "625 kHz"},
      {999999, kFrequency, "999.999 kHz"},
      {6000000, kFrequency, "6 MHz"},
      {10000000, kFrequency, "10 MHz"},
      {7500000, kFrequency, "7.5 MHz"},
      {-7500000, kFrequency, "-7.5 MHz"},
      {3125000, kFrequency, "3.125 MHz"},
      {1010000, kFrequency, "1.01 MHz"},
      {1234567, kFrequency, "1234567 Hz"},
      {1234500, kFrequency, "1234500 Hz"},
      {1000000000, kFrequency, "1 GHz"},
      {2500000000, kFrequency, "2.5 GHz"},
      {1000100000, kFrequency, "1000100000 Hz"},
      {kHighest, kFrequency, "9223372036854775807 Hz"},
      {kLowest, kFrequency, "-9223372036854775808 Hz"},
      {115200, kRate, "115200 baud"},
      {1000000, kRate, "1000000 baud"},
      {1000000, kPlain, "1000000"},
      {0, kSize, "0 bytes"},
      {1, kSize, "1 byte"},
      {1000, kSize, "1000 bytes"},
      {1023, kSize, "1023 bytes"},
      {1024, kSize, "1 KB"},
      {1536, kSize, "1536 bytes"},
      {32768, kSize, "32 KB"},
      {1048576, kSize, "1 MB"},
      {1572864, kSize, "1536 KB"},
      {1073741824, kSize, "1 GB"},
      {-32768, kSize, "-32 KB"},
      {kHighest, kSize, "9223372036854775807 bytes"},
      {kLowest, kSize, "-8589934592 GB"},
      {65536, kAddress, "65536"},
      {65536, kCount, "65536"},
      {-1, kCount, "-1"},
  };
  for (const auto& [number, measure, text] : rows) {
    EXPECT_EQ(number_text(number, measure.scale, measure.unit), text);
    EXPECT_EQ(parse(text, measure), number) << text;
  }
}

TEST(NumberText, DoesNotDependOnTheLocale) {
  struct Grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const GlobalLocale locale(std::locale(std::locale::classic(), new Grouping));
  EXPECT_EQ(number_text(7500000, Scale::decimal, "Hz"), "7.5 MHz");
  EXPECT_EQ(number_text(1234567, Scale::decimal, "Hz"), "1234567 Hz");
  EXPECT_EQ(parse("7.5 mhz", kFrequency), 7500000);
  EXPECT_EQ(address_text(0x70000000), "0x70000000");
}

TEST(AddressText, HasEightDigits) {
  EXPECT_EQ(address_text(0), "0x00000000");
  EXPECT_EQ(address_text(0x70000000), "0x70000000");
  EXPECT_EQ(address_text(0xABCDEF), "0x00abcdef");
  EXPECT_EQ(address_text(0xFFFFFFFF), "0xffffffff");
  EXPECT_EQ(parse(address_text(0xFFFFFFFF), kAddress), 0xFFFFFFFF);
}

}  // namespace
}  // namespace SdkDebugDialog
