#include "answers.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/JsonSchema.h"

namespace {

void save(const std::string& answer) {
  static int count = 0;
  const char* const folder = std::getenv("SAVE_ANSWERS");
  if (folder == nullptr) return;
  const std::string name = std::to_string(getpid()) + "-" + std::to_string(count++) + ".json";
  std::ofstream(std::filesystem::path(folder) / name, std::ios::binary) << answer;
}

nlohmann::json member_of(const std::string& output, const char* name) {
  const auto answer = nlohmann::json::parse(output, nullptr, false);
  EXPECT_EQ(why_invalid(output), "");
  EXPECT_TRUE(answer.is_object() && answer.contains(name)) << output;
  return answer.is_object() && answer.contains(name) ? answer[name] : nlohmann::json();
}

}  // namespace

std::string why_invalid(const std::string& answer) {
  static const JsonSchema schema("qvtcfg-answer");
  return schema.why_invalid(answer);
}

bool asks_for_answer(const std::vector<std::string>& arguments) {
  if (!arguments.empty() && arguments.front() == "complete") return false;
  const auto end = std::ranges::find(arguments, "--");
  bool json = false;
  for (auto argument = arguments.begin(); argument != end; ++argument) {
    if (*argument == "--help" || *argument == "-h" || *argument == "--version") return false;
    const bool format = argument != arguments.begin() && *std::prev(argument) == "--format" && *argument == "json";
    json |= *argument == "--json" || *argument == "--format=json" || format;
  }
  return json;
}

void expect_answer(const std::string& output, int exit_code) {
  const std::string why = why_invalid(output);
  EXPECT_EQ(why, "") << output;
  if (!why.empty()) return;
  EXPECT_EQ(nlohmann::json::parse(output)["exitCode"], exit_code) << output;
  save(output);
}

nlohmann::json result_of(const std::string& output) { return member_of(output, "result"); }

nlohmann::json error_of(const std::string& output) { return member_of(output, "error"); }

nlohmann::json values_in(const nlohmann::json& settings) {
  nlohmann::json values;
  for (const auto& [group, members] : settings.items()) {
    for (const auto& [name, setting] : members.items()) values[group][name] = setting["value"];
  }
  return values;
}
