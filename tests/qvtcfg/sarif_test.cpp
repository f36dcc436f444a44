// qvtcfg check --format=sarif: what the standard requires of a document.

#include <algorithm>
#include <string>
#include <vector>

#include "tool.h"

namespace {

using Json = nlohmann::json;
using testing::MatchesRegex;

class Sarif : public Tool {
 protected:
  // The only run of the document.
  Json run(std::vector<std::string> arguments, const std::string& input = "") const {
    arguments.insert(arguments.begin(), {"check", "--format=sarif"});
    document = Json::parse(qvtcfg(arguments, input).out);
    return document["runs"][0];
  }

  mutable Json document;
};

// Every object that has such a member, wherever it is.
void find_all(const Json& value, const std::string& member, std::vector<Json>& found) {
  if (value.is_object() && value.contains(member)) found.push_back(value[member]);
  if (!value.is_structured()) return;
  for (const Json& part : value) find_all(part, member, found);
}

std::vector<Json> all(const Json& value, const std::string& member) {
  std::vector<Json> found;
  find_all(value, member, found);
  return found;
}

void expect_region(const Json& region) {
  for (const char* member : {"startLine", "startColumn", "endLine", "endColumn"}) {
    EXPECT_GE(region[member].get<int>(), 1) << region;
  }
  for (const char* member : {"byteOffset", "byteLength"}) EXPECT_GE(region[member].get<int>(), 0) << region;
  EXPECT_LE(region["startLine"].get<int>(), region["endLine"].get<int>());
  if (region["startLine"] == region["endLine"]) {
    EXPECT_LE(region["startColumn"].get<int>(), region["endColumn"].get<int>());
  }
}

TEST_F(Sarif, IsADocumentOfVersion2Dot1Dot0) {
  run({});
  EXPECT_EQ(document["version"], "2.1.0");
  EXPECT_TRUE(document["$schema"].is_string());
  ASSERT_EQ(document["runs"].size(), 1U);
  const Json& driver = document["runs"][0]["tool"]["driver"];
  EXPECT_EQ(driver["name"], "qvtcfg");
  EXPECT_THAT(driver["semanticVersion"].get<std::string>(), MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+"));
  // An empty list says that nothing was found, no list that nothing was checked.
  EXPECT_EQ(document["runs"][0]["results"], Json::array());
}

TEST_F(Sarif, HasEveryRuleOnceWithItsTexts) {
  const Json run = this->run({});
  std::vector<std::string> ids;
  for (const Json& rule : run["tool"]["driver"]["rules"]) {
    ids.push_back(rule["id"]);
    for (const char* text : {"shortDescription", "fullDescription", "help"}) {
      EXPECT_FALSE(rule[text]["text"].get<std::string>().empty()) << rule["id"];
    }
    EXPECT_THAT(rule["defaultConfiguration"]["level"].get<std::string>(), MatchesRegex("error|warning|note"));
  }
  std::ranges::sort(ids);
  EXPECT_TRUE(std::ranges::adjacent_find(ids) == ids.end());
}

TEST_F(Sarif, HasAResultForEachFinding) {
  write_option_file("ovrin_0", "connect ov odm -cabel type zarvek_platformusb");
  const Json run = this->run({});
  ASSERT_EQ(run["results"].size(), 1U);
  const Json& result = run["results"][0];
  EXPECT_EQ(result["ruleId"], "unknown-option");
  EXPECT_EQ(run["tool"]["driver"]["rules"][result["ruleIndex"].get<std::size_t>()]["id"], "unknown-option");
  EXPECT_EQ(result["level"], "error");
  EXPECT_EQ(result["message"]["text"], "no option '-cabel'; did you mean '-cable'?");
  const Json place = Json::parse(R"([{"physicalLocation": {
      "artifactLocation": {"uri": "etc/qvt_ovrin_0.opt", "uriBaseId": "SRCROOT"},
      "region": {"startLine": 1, "startColumn": 16, "endLine": 1, "endColumn": 22,
                 "byteOffset": 15, "byteLength": 6}}}])");
  EXPECT_EQ(result["locations"], place);
  EXPECT_TRUE(run["originalUriBaseIds"].contains("SRCROOT"));
  const Json& change = result["fixes"][0]["artifactChanges"][0];
  EXPECT_EQ(change["artifactLocation"], place[0]["physicalLocation"]["artifactLocation"]);
  EXPECT_EQ(change["replacements"][0]["deletedRegion"], place[0]["physicalLocation"]["region"]);
  EXPECT_EQ(change["replacements"][0]["insertedContent"]["text"], "-cable");
}

TEST_F(Sarif, CountsColumnsInCharacters) {
  write("a.opt", "connect ov odm -cable type zarvek_platformusb port \u00e9\u4e2d -cabel");
  const Json run = this->run({"a.opt"});
  EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
  EXPECT_EQ(run["newlineSequences"], Json::array({"\n"}));
  for (const Json& result : run["results"]) {
    if (result["ruleId"] != "unknown-option") continue;
    const Json& region = result["locations"][0]["physicalLocation"]["region"];
    EXPECT_EQ(region["startColumn"], 55);
    EXPECT_EQ(region["byteOffset"], 57);
    return;
  }
  FAIL() << run;
}

TEST_F(Sarif, HasOtherPlacesAsRelatedLocations) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 1 deviceNr 2 cpunr 1");
  const Json run = this->run({});
  const std::vector<Json> related = all(run["results"], "relatedLocations");
  ASSERT_FALSE(related.empty());
  EXPECT_TRUE(related[0][0]["message"]["text"].is_string());
  EXPECT_TRUE(related[0][0]["physicalLocation"]["region"].is_object());
}

TEST_F(Sarif, EncodesPaths) {
  std::filesystem::create_directory(folder() / "a b");
  write("a b/50%:\u00e9#.opt", "connect ov odm -cabel");
  EXPECT_EQ(all(run({"a b/50%:\u00e9#.opt"})["results"], "uri")[0], "a%20b/50%25%3A%C3%A9%23.opt");
  write("plain.opt", "connect ov odm -cabel");
  const Json absolute = run({(folder() / "plain.opt").string()});
  EXPECT_EQ(all(absolute["results"], "uri")[0], "file://" + (folder() / "plain.opt").string());
  EXPECT_TRUE(all(absolute["results"], "uriBaseId").empty());
  EXPECT_EQ(all(run({"-"}, "connect ov odm -cabel")["results"], "uri")[0], "stdin:");
}

TEST_F(Sarif, TellsWhatWasNotChecked) {
  const Json good = run({});
  EXPECT_EQ(good["invocations"][0]["executionSuccessful"], true);
  const Json bad = run({"nowhere.opt"});
  EXPECT_EQ(bad["invocations"][0]["executionSuccessful"], false);
  const Json& notification = bad["invocations"][0]["toolExecutionNotifications"][0];
  EXPECT_EQ(notification["level"], "error");
  EXPECT_EQ(notification["locations"][0]["physicalLocation"]["artifactLocation"]["uri"], "nowhere.opt");
}

TEST_F(Sarif, TellsWhatWasFixed) {
  write_option_file("ovrin_0", "\nconnect ov odm -cabel type zarvek_platformusb");
  for (const auto& [option, message] : {std::pair{"--dry-run", "would fix: no option '-cabel'; did you mean '-cable'?"},
                                        std::pair{"--strict", "fixed: no option '-cabel'; did you mean '-cable'?"}}) {
    const Json run = this->run({"--fix", option});
    EXPECT_EQ(run["results"], Json::array());
    const Json& notifications = run["invocations"][0]["toolExecutionNotifications"];
    ASSERT_EQ(notifications.size(), 1U);
    EXPECT_EQ(notifications[0]["level"], "note");
    EXPECT_EQ(notifications[0]["message"]["text"], message);
    const Json& rule = notifications[0]["associatedRule"];
    EXPECT_EQ(rule["id"], "unknown-option");
    EXPECT_EQ(run["tool"]["driver"]["rules"][rule["index"].get<std::size_t>()]["id"], "unknown-option");
    EXPECT_EQ(notifications[0]["locations"][0]["physicalLocation"]["region"]["startLine"], 2);
  }
}

TEST_F(Sarif, TellsWhichFixesAreSafe) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 010");
  const Json run = this->run({});
  const Json& fixes = run["results"][0]["fixes"];
  ASSERT_EQ(fixes.size(), 2U);
  EXPECT_EQ(fixes[0]["properties"]["safe"], true);
  EXPECT_EQ(fixes[1]["properties"]["safe"], false);
}

TEST_F(Sarif, HasNoRegionForAFindingAboutTheFile) {
  write_option_file("ovrin_9", "connect ov sim");
  const Json run = this->run({});
  ASSERT_EQ(run["results"].size(), 1U);
  EXPECT_EQ(run["results"][0]["ruleId"], "no-such-processor");
  EXPECT_FALSE(run["results"][0]["locations"][0]["physicalLocation"].contains("region"));
}

TEST_F(Sarif, HasValidRegionsForBadFiles) {
  const std::filesystem::path bad = std::filesystem::path(PROJECT_SOURCE_DIR) / "tests/qvtcfg/check";
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(bad)) {
    if (entry.path().extension() == ".opt") files.push_back(entry.path().string());
  }
  ASSERT_GT(files.size(), 40U);
  const Json run = this->run(files);
  std::vector<Json> regions = all(run["results"], "region");
  for (const Json& region : all(run["results"], "deletedRegion")) regions.push_back(region);
  ASSERT_GT(regions.size(), 40U);
  for (const Json& region : regions) expect_region(region);
  for (const Json& result : run["results"]) {
    EXPECT_FALSE(result["message"]["text"].get<std::string>().empty());
    EXPECT_TRUE(!result.contains("fixes") || !result["fixes"].empty()) << result;
  }
}

}  // namespace
