// Where the debug address map and the memories lie.

#include "SdkDebugDialog/Regions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/DesignedEngine.h"

namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Region;
using SdkDebugDialog::regions;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingValue;
using testing::ElementsAre;
using testing::IsEmpty;

struct Expected {
  std::string_view setting;
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
  bool overlaps = false;

  bool operator==(const Expected&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Expected& e) {
    return out << e.setting << std::hex << " 0x" << e.begin << "-0x" << e.end << (e.overlaps ? " overlaps" : "");
  }
};

std::vector<Expected> told(const Configuration& configuration) {
  std::vector<Expected> all;
  for (const Region& region : regions(configuration)) {
    all.push_back({region.setting->name, region.begin, region.end, region.overlaps});
  }
  return all;
}

constexpr char kMap[] =
    "connect ppc hw -debugdevice icacheStartAdr 0x70000000 itagStartAdr 0x70010000 dcacheStartAdr 0x70020000 "
    "dtagStartAdr 0x70030000 tlbStartAdr 0x70040000 dcrStartAdr 0x70050000";

class Regions : public testing::Test {
 protected:
  Configuration read(std::string_view processor, std::string_view text) const {
    return Configuration::read(m_design.find(processor).value(), text).value();
  }

 private:
  FakeHardware m_hardware = one_of_each();
  SdkDebugDialog::Design m_design{m_hardware};
};

void set(Configuration& configuration, std::string_view name, std::string_view value) {
  const auto done = configuration.set(name, value);
  EXPECT_TRUE(done) << done.error().message;
}

TEST_F(Regions, AreNoneWhereNothingIsSet) {
  EXPECT_THAT(told(Configuration()), IsEmpty());
  EXPECT_THAT(told(read("ppc405_0", "connect ppc hw")), IsEmpty());
  EXPECT_THAT(told(read("ovrin_0", "connect ov odm")), IsEmpty());
}

TEST_F(Regions, AreABlockOf64KBForEachBaseOfTheAddressMap) {
  EXPECT_THAT(told(read("ppc440_0", kMap)),
              ElementsAre(Expected{"icache", 0x70000000, 0x70010000}, Expected{"itag", 0x70010000, 0x70020000},
                          Expected{"dcache", 0x70020000, 0x70030000}, Expected{"dtag", 0x70030000, 0x70040000},
                          Expected{"tlb", 0x70040000, 0x70050000}, Expected{"dcr", 0x70050000, 0x70060000}));
}

TEST_F(Regions, HaveEveryAddressOfTheCatalogueButRepeatedOnesAndThoseOnTheDcrBus) {
  Configuration c = read("ppc405_0", "connect ppc hw");
  std::vector<std::string_view> addresses;
  for (const Setting& setting : settings()) {
    if (setting.kind != SettingKind::address || setting.name == "address-map") continue;
    set(c, setting.name, "0x40000000");
    if (setting.name != "isocm-dcr") addresses.push_back(setting.name);
  }
  std::vector<std::string_view> found;
  for (const Region& region : regions(c)) found.push_back(region.setting->name);
  EXPECT_EQ(found, addresses) << "equal addresses are in the order of the catalogue";
}

TEST_F(Regions, AreMemoriesOfTheirSizes) {
  EXPECT_THAT(told(read("ppc405_0",
                        "connect ppc hw -debugdevice romemStartAdr 0x1000 romemSize 4096 isocmStartAdr 0xffff8000 "
                        "isocmSize 32768  isocmDcrStartAdr 0x40")),
              ElementsAre(Expected{"rom", 0x1000, 0x2000}, Expected{"isocm", 0xffff8000, 0x100000000}));
  EXPECT_THAT(told(read("ovrin_0", "connect ov odm -debugdevice romemStartAdr 0x0 romemSize 1")),
              ElementsAre(Expected{"rom", 0, 1}));
}

TEST_F(Regions, OfAMemoryWithoutASizeAreEmptyAndOverlapWithNothing) {
  EXPECT_THAT(told(read("ppc405_0",
                        "connect ppc hw -debugdevice romemStartAdr 0x70008000 isocmStartAdr 0x70000000 "
                        "icacheStartAdr 0x70000000")),
              ElementsAre(Expected{"icache", 0x70000000, 0x70010000}, Expected{"isocm", 0x70000000, 0x70000000},
                          Expected{"rom", 0x70008000, 0x70008000}));
}

TEST_F(Regions, DoNotHaveASizeWithoutABase) {
  EXPECT_THAT(told(read("ppc405_0", "connect ppc hw -debugdevice romemSize 4096 isocmSize 4096")), IsEmpty());
}

TEST_F(Regions, MayEndBeyondTheAddressSpace) {
  EXPECT_THAT(told(read("ovrin_0", "connect ov odm -debugdevice romemStartAdr 0xfffffffe romemSize 4294967295")),
              ElementsAre(Expected{"rom", 0xfffffffe, 0x1fffffffd}));
}

TEST_F(Regions, AreThoseThatApply) {
  Configuration c = read("ppc405_0", kMap);
  set(c, "rom", "0x1000");
  set(c, "isocm", "0x2000");
  EXPECT_EQ(regions(c).size(), 8U);
  set(c, "connection", "simulator");
  EXPECT_EQ(c.value(*find_setting("rom")), SettingValue(std::int64_t{0x1000}));
  EXPECT_THAT(told(c), IsEmpty());
  // Only a ppc405 has the on-chip memory.
  EXPECT_THAT(told(read("ppc440_0", "connect ppc hw -debugdevice isocmStartAdr 0x1000 isocmSize 4096")), IsEmpty());
}

TEST_F(Regions, ThatTouchDoNotOverlap) {
  Configuration c = read("ppc405_0", "connect ppc hw");
  set(c, "icache", "0x10000");
  set(c, "rom", "0x20000");
  set(c, "rom-size", "0x1000");
  set(c, "isocm", "0xf000");
  set(c, "isocm-size", "0x1000");
  EXPECT_THAT(told(c), ElementsAre(Expected{"isocm", 0xf000, 0x10000}, Expected{"icache", 0x10000, 0x20000},
                                   Expected{"rom", 0x20000, 0x21000}));
}

TEST_F(Regions, OverlapWithOneThatIsNotTheirNeighbour) {
  Configuration c = read("ppc405_0", "connect ppc hw");
  set(c, "rom", "0");
  set(c, "rom-size", "0x30001");
  set(c, "icache", "0x10000");
  set(c, "itag", "0x30000");
  set(c, "dcache", "0x40000");
  EXPECT_THAT(told(c), ElementsAre(Expected{"rom", 0, 0x30001, true}, Expected{"icache", 0x10000, 0x20000, true},
                                   Expected{"itag", 0x30000, 0x40000, true}, Expected{"dcache", 0x40000, 0x50000}));
  set(c, "rom-size", "0x30000");
  EXPECT_THAT(told(c), ElementsAre(Expected{"rom", 0, 0x30000, true}, Expected{"icache", 0x10000, 0x20000, true},
                                   Expected{"itag", 0x30000, 0x40000}, Expected{"dcache", 0x40000, 0x50000}));
}

TEST_F(Regions, OverlapAsEveryPairOfThemSays) {
  std::mt19937 random(20261122);
  const auto below = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
  const Configuration from = read("ppc405_0", "connect ppc hw");
  int overlapping = 0;
  int alone = 0;
  for (int round = 0; round < 300; ++round) {
    Configuration c = from;
    for (const char* const base : {"icache", "itag", "dcache", "dtag", "tlb", "dcr"}) {
      if (below(4) != 0) set(c, base, std::to_string(below(12) * 0x10000));
    }
    for (const char* const memory : {"rom", "isocm"}) {
      set(c, memory, std::to_string(below(0xc0000)));
      set(c, std::string(memory) + "-size", std::to_string(below(4) * below(0x20000)));
    }
    const std::vector<Region> all = regions(c);
    EXPECT_TRUE(std::ranges::is_sorted(all, {}, &Region::begin));
    for (const Region& a : all) {
      const bool overlaps = std::ranges::any_of(
          all, [&](const Region& b) { return &a != &b && std::max(a.begin, b.begin) < std::min(a.end, b.end); });
      EXPECT_EQ(a.overlaps, overlaps) << testing::PrintToString(told(c)) << ": " << a.setting->name;
      (overlaps ? overlapping : alone) += 1;
    }
  }
  EXPECT_GT(overlapping, 100);
  EXPECT_GT(alone, 100);
}

}  // namespace
