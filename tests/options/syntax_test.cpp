// The tables of the syntax are complete and consistent.

#include "options/syntax.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <boost/algorithm/string/case_conv.hpp>
#include <set>
#include <string>
#include <vector>

#include "model/processor_kind.h"
#include "options/groups.h"
#include "options/target.h"

namespace SdkDebugDialog {
namespace {

struct NamedGroup {
  const char* name;
  const Group& group;
};
const NamedGroup kGroups[] = {
    {"cable", kCable},
    {"configdevice", kConfigdevice},
    {"debugdevice", kDebugdevice},
    {"pfsl", kPfsl},
    {"bscan", kBscan},
    {"stub", kStub},
    {"flags", kFlags},
    {"soft sim", kSoftSim},
    {"ppc sim", kPpcSim},
    {"hdl sim", kHdlSim},
    {"virtual platform", kVirtualPlatform},
};

template <class Rows>
void expect_distinct_names(const Rows& rows) {
  std::set<std::string> seen;
  for (const auto& row : rows) {
    EXPECT_TRUE(seen.insert(boost::to_lower_copy(std::string(row.name.text()))).second)
        << row.name.text() << " is listed twice";
  }
}

TEST(Syntax, HasAReadingAWritingAndAReasonForEveryKeyword) {
  for (const auto& [name, group] : kGroups) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(group.keywords.empty());
    expect_distinct_names(group.keywords);
    for (const Keyword& row : group.keywords) {
      SCOPED_TRACE(std::string(row.name.text()));
      EXPECT_STRNE(row.written.words, "") << "when it is written, or why never";
      if (row.written.holds != nullptr) {
        EXPECT_TRUE(row.write != nullptr || row.field.index() != 0 || row.kind == Kind::word) << "nothing to write";
      }
      EXPECT_EQ(row.kind == Kind::word && &group != &kCable, !row.words.empty());
      // A name of a cable and an address have readers of their own.
      EXPECT_TRUE(row.kind != Kind::hostAndPort || row.read != nullptr);
      EXPECT_TRUE(row.kind != Kind::word || !row.words.empty() || row.read != nullptr);
      if (!row.words.empty()) expect_distinct_names(row.words);
    }
  }
}

// The names as users type them. They are an interface: one that changes, or is lost, is seen here.
TEST(Syntax, HasTheseNames) {
  const auto names = [](const auto& rows) {
    std::string text;
    for (const auto& row : rows) text.append(text.empty() ? "" : " ").append(row.name.text());
    return text;
  };
  const auto words = [&](const Group& group, std::string_view keyword) {
    const auto row = std::ranges::find(group.keywords, keyword, [](const Keyword& k) { return k.name.text(); });
    return names(row->words);
  };
  EXPECT_EQ(names(heads()), "connect vpconnect qconnect qvpconnect");
  EXPECT_EQ(names(targets()), "ov ppc arm r5 dap odm dcc qmtc ov");
  EXPECT_EQ(names(options()),
            "-comm -port -baud -timeout -cable -bscan -configdevice -debugdevice -uart -pfsl -quiet -noattach "
            "-writeonly -sim -ipcport -memsize -icf -ipcport -config -ipcport");
  EXPECT_EQ(names(kCable.keywords), "type port frequency esn modulename modulearg fname url");
  EXPECT_EQ(names(kConfigdevice.keywords), "devicenr partname irlength idcode isfpga hardppc nppc jtagport");
  EXPECT_EQ(names(kDebugdevice.keywords),
            "deviceNr cpunr romemStartAdr romemSize isocmStartAdr isocmSize isocmDcrStartAdr icacheStartAdr "
            "itagStartAdr dcacheStartAdr dtagStartAdr tlbStartAdr dcrStartAdr fpuType proctype cpu_version odm_version "
            "nCpu");
  EXPECT_EQ(names(kPfsl.keywords), "port type");
  EXPECT_EQ(words(kPfsl, "type"), "m s ms");
  EXPECT_EQ(words(kConfigdevice, "hardppc"), "ppc405");
  EXPECT_EQ(words(kConfigdevice, "jtagport"), "cpu");
  EXPECT_EQ(words(kDebugdevice, "fpuType"), "sp dp");
  EXPECT_EQ(words(kDebugdevice, "proctype"), "ppc405 ppc440");
  EXPECT_EQ(words(kBscan, "-bscan"), "USER1 USER2 USER3 USER4");
  EXPECT_EQ(words(kStub, "-comm"), "jtag serial");
  EXPECT_EQ(words(kVirtualPlatform, "-config"), "cycle_approximate");
  std::string cables;
  for (const CableType& type : cable_types()) {
    for (const Name& name : type.names) cables.append(" ").append(name.text());
  }
  EXPECT_EQ(cables,
            " zarvek_parallel zarvek_parallel4 zarvek_parallel3 zarvek_platformusb zarvek_tcf zarvek_plugin "
            "digilent_plugin zarvek_svffile");
}

TEST(Syntax, DescribesWhatFollowsEveryOption) {
  for (const Option& option : options()) {
    SCOPED_TRACE(std::string(option.name.text()));
    EXPECT_TRUE(option.name.text().starts_with('-'));
    EXPECT_NE(option.runs, 0U);
    EXPECT_NE(option.read, nullptr);
    EXPECT_STRNE(option.meaning, "");
    const Keyword* const value = value_row(option);
    EXPECT_EQ(value == nullptr, option.takes == Option::Takes::pairs);
    if (value == nullptr) continue;
    const bool flag = option.takes == Option::Takes::nothing || option.takes == Option::Takes::ownRun;
    EXPECT_EQ(value->kind == Kind::flag, flag);
  }
}

TEST(Syntax, HasAnOptionForEveryKeywordThatIsOne) {
  for (const NamedGroup& named : kGroups) {
    for (const Keyword& row : named.group.keywords) {
      if (!row.name.text().starts_with('-')) continue;
      EXPECT_TRUE(std::ranges::any_of(options(), [&](const Option& o) {
        return &o.group == &named.group && o.name.text() == row.name.text();
      })) << row.name.text();
    }
  }
}

TEST(Syntax, HasEveryOptionOnceInARun) {
  unsigned bits = 0;
  for (const SdkDebugDialog::Run* const run : kRuns) {
    EXPECT_EQ(bits & run->bit, 0U) << run->where << " has the bit of another";
    bits |= run->bit;
    SCOPED_TRACE(run->where);
    std::vector<Option> taken;
    for (const Option& option : options()) {
      if ((option.runs & run->bit) != 0) taken.push_back(option);
    }
    EXPECT_FALSE(taken.empty());
    expect_distinct_names(taken);
  }
}

TEST(Syntax, HasAWriterForEveryConnectionOfAWrittenTarget) {
  for (const Target& target : targets()) {
    SCOPED_TRACE(std::string(target.name.text()));
    EXPECT_NE(target.read, nullptr);
    EXPECT_STRNE(target.meaning, "");
    EXPECT_NE(target.connections.empty(), target.options == nullptr) << "connection keywords, or options at once";
    expect_distinct_names(target.connections);
    if (target.write != write_target) continue;
    EXPECT_STRNE(target.invalidConnection, "");
    for (const Connection& connection : target.connections)
      EXPECT_NE(connection.write, nullptr) << connection.name.text();
  }
}

TEST(Syntax, HasOneHeadThatIsWrittenForCommandsOfEveryKind) {
  for (const bool virtualPlatform : {false, true}) {
    EXPECT_EQ(std::ranges::count_if(
                  heads(), [&](const Head& head) { return head.written && head.virtualPlatform == virtualPlatform; }),
              1);
  }
}

// The first target of a family writes its processors.
TEST(Syntax, HasAWrittenTargetForEveryFamily) {
  std::set<std::uint32_t> families = {kFamilySoft, kFamilyPowerPC, kFamilyArm};
  for (const Target& target : targets()) {
    if (target.family != kNoKind) families.insert(target.family);
  }
  for (const std::uint32_t family : families) {
    const auto target = std::ranges::find(targets(), family, &Target::family);
    ASSERT_NE(target, targets().end()) << family;
    EXPECT_NE(target->write, nullptr) << target->name.text() << ": processors of family " << family
                                      << " are not written";
  }
}

// A new enumerator does not compile here until it is handled.
bool is_read(Engine::CableType type) {
  switch (type) {
    case Engine::CABLE_NONE:
      return false;
    case Engine::ZARVEK_SVFFILE:
    case Engine::ZARVEK_PARALLEL4:
    case Engine::ZARVEK_PLATFORMUSB:
    case Engine::ZARVEK_PARALLEL3:
    case Engine::ZARVEK_PLUGIN:
    case Engine::DIGILENT_PLUGIN:
    case Engine::ZARVEK_TCF:
      return true;
  }
  return false;
}

TEST(Syntax, HasARowForEveryTypeOfCable) {
  for (unsigned value = 0; value < 100; ++value) {
    const auto type = static_cast<Engine::CableType>(value);
    EXPECT_EQ(std::ranges::count(cable_types(), type, &CableType::type), is_read(type) ? 1 : 0) << value;
  }
  std::set<std::string> names;
  for (const CableType& type : cable_types()) {
    SCOPED_TRACE(type.type);
    ASSERT_FALSE(type.names.empty());
    for (const Name& name : type.names) EXPECT_TRUE(names.insert(std::string(name.text())).second) << name.text();
    EXPECT_EQ(type.accepted.empty(), type.refusal == nullptr) << "a text for other frequencies";
    EXPECT_TRUE(std::ranges::is_sorted(type.accepted));
    for (const std::uint32_t frequency : type.offered) {
      EXPECT_TRUE(std::ranges::binary_search(type.accepted, frequency)) << frequency;
    }
    if (type.defaultFrequency != 0) {
      EXPECT_TRUE(std::ranges::binary_search(type.accepted, type.defaultFrequency));
    }
    // A type that cannot be written has no keywords to write.
    EXPECT_TRUE(type.notWritten == nullptr || type.writes.empty());
    for (const Keyword* const keyword : type.writes) EXPECT_NE(keyword->written.holds, nullptr) << keyword->name.text();
  }
}

// A new field does not compile here until it has a name, and then wants its keyword.
TEST(Syntax, HasAKeywordForEveryFieldOfACable) {
  const CableOption cable;
  const auto& [type, frequency, port, esn, fname, modulename, modulearg, url] = cable;
  const auto has_keyword = [&](const auto& field) {
    return std::ranges::any_of(kCable.keywords, [&](const Keyword& row) {
      return std::visit(
          [&](auto member) {
            if constexpr (requires { cable.*member; }) {
              return static_cast<const void*>(&(cable.*member)) == static_cast<const void*>(&field);
            } else {
              return false;
            }
          },
          row.field);
    });
  };
  EXPECT_FALSE(has_keyword(type));  // "type" stores it, and the port with it
  EXPECT_TRUE(has_keyword(frequency));
  EXPECT_TRUE(has_keyword(port));
  EXPECT_TRUE(has_keyword(esn));
  EXPECT_TRUE(has_keyword(fname));
  EXPECT_TRUE(has_keyword(modulename));
  EXPECT_TRUE(has_keyword(modulearg));
  EXPECT_TRUE(has_keyword(url));
}

// Each keyword of a cable is written by some type, or is marked as never written.
TEST(Syntax, HasAWriterForEveryKeywordOfACable) {
  for (const Keyword& row : kCable.keywords) {
    if (row.written.holds == nullptr || row.name.text() == "type") continue;
    EXPECT_TRUE(std::ranges::any_of(cable_types(), [&](const CableType& type) {
      return std::ranges::find(type.writes, &row) != type.writes.end();
    })) << row.name.text();
  }
}

}  // namespace
}  // namespace SdkDebugDialog
