// The tables of the syntax fit together. Whoever adds a row and forgets what belongs to it is told here.

#include "options/syntax.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <boost/algorithm/string/case_conv.hpp>
#include <set>
#include <string>
#include <vector>

#include "model/processor_kind.h"

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
        << row.name.text() << " stands there twice";
  }
}

const Keyword* value_of(const Option& option) {
  const auto found =
      std::ranges::find(option.group.keywords, option.name.text(), [](const Keyword& row) { return row.name.text(); });
  return found != option.group.keywords.end() ? &*found : nullptr;
}

TEST(Syntax, HasAReadingAWritingAndAReasonForEveryKeyword) {
  for (const auto& [name, group] : kGroups) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(group.keywords.empty());
    EXPECT_LE(group.keywords.size(), 32U) << "PairsRead::seen has a bit for each row";
    expect_distinct_names(group.keywords);
    for (const Keyword& row : group.keywords) {
      SCOPED_TRACE(std::string(row.name.text()));
      EXPECT_STRNE(row.written.words, "") << "when it is written, or why never";
      if (row.written.holds != nullptr) {
        EXPECT_TRUE(row.write != nullptr || row.field.index() != 0 || row.kind == Kind::word) << "nothing to write";
      }
      EXPECT_EQ(row.kind == Kind::word && &group != &kCable, !row.words.empty());
      if (!row.words.empty()) expect_distinct_names(row.words);
    }
  }
}

TEST(Syntax, DescribesWhatFollowsEveryOption) {
  for (const Option& option : options()) {
    SCOPED_TRACE(std::string(option.name.text()));
    EXPECT_TRUE(option.name.text().starts_with('-'));
    EXPECT_NE(option.runs, 0U);
    EXPECT_NE(option.read, nullptr);
    EXPECT_STRNE(option.meaning, "");
    const Keyword* const value = value_of(option);
    EXPECT_EQ(value == nullptr, option.takes == Option::pairs);
    if (value == nullptr) continue;
    const bool flag = option.takes == Option::nothing || option.takes == Option::options;
    EXPECT_EQ(value->kind == Kind::flag, flag);
  }
}

TEST(Syntax, HasAnOptionForEveryKeywordThatIsOne) {
  for (const auto& [name, group] : kGroups) {
    for (const Keyword& row : group.keywords) {
      if (!row.name.text().starts_with('-')) continue;
      EXPECT_TRUE(std::ranges::any_of(options(), [&](const Option& o) {
        return &o.group == &group && o.name.text() == row.name.text();
      })) << row.name.text();
    }
  }
}

TEST(Syntax, HasEveryOptionOnceInARun) {
  for (const SdkDebugDialog::Run* const run :
       {&kGeneralOptions, &kOdmOptions, &kDccOptions, &kQmtcOptions, &kSoftSimOptions, &kPpcSimOptions, &kHdlSimOptions,
        &kPlatformOptions, &kCableTextOptions}) {
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
    EXPECT_TRUE(target.family == kNoKind || target.write != nullptr) << "its processors could not be written";
  }
}

TEST(Syntax, HasATargetForEveryFamily) {
  for (const std::uint32_t family : {kFamilySoft, kFamilyPowerPC, kFamilyArm}) {
    EXPECT_NE(std::ranges::find(targets(), family, &Target::family), targets().end()) << family;
  }
}

TEST(Syntax, HasARowForEveryTypeOfCable) {
  for (unsigned type = Engine::ZARVEK_SVFFILE; type <= Engine::ZARVEK_TCF; ++type) {
    EXPECT_EQ(std::ranges::count(cable_types(), type, &CableType::type), 1) << type;
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
    // What nobody can write has nothing that is written.
    EXPECT_TRUE(type.notWritten == nullptr || type.writes.empty());
    for (const Keyword* const keyword : type.writes) EXPECT_NE(keyword->written.holds, nullptr) << keyword->name.text();
  }
}

// A keyword of a cable is written by some type, or says why not.
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
