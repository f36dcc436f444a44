#include "answers.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/schema.h>
#include <rapidjson/stringbuffer.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>

namespace {

struct Schema {
  explicit Schema(const std::string& name) {
    std::ifstream in(PROJECT_SOURCE_DIR "/docs/" + name + ".schema.json", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    content.Parse(text.c_str());
    if (content.HasParseError()) throw std::runtime_error(name + ": the schema is no JSON");
    compiled = std::make_unique<rapidjson::SchemaDocument>(content);
  }
  rapidjson::Document content;
  std::unique_ptr<rapidjson::SchemaDocument> compiled;
};

const rapidjson::SchemaDocument& schema_named(const std::string& name) {
  static std::map<std::string, Schema> all;
  return *all.try_emplace(name, name).first->second.compiled;
}

void save(const std::string& answer) {
  static int count = 0;
  const char* const folder = std::getenv("SAVE_ANSWERS");
  if (folder == nullptr) return;
  const std::string name = std::to_string(getpid()) + "-" + std::to_string(count++) + ".json";
  std::ofstream(std::filesystem::path(folder) / name, std::ios::binary) << answer;
}

nlohmann::json member_of(const std::string& output, const char* name) {
  const auto answer = nlohmann::json::parse(output, nullptr, false);
  EXPECT_EQ(why_invalid(output, "qvtcfg-answer"), "");
  EXPECT_TRUE(answer.is_object() && answer.contains(name)) << output;
  return answer.is_object() && answer.contains(name) ? answer[name] : nlohmann::json();
}

}  // namespace

std::string why_invalid(const std::string& text, const std::string& schema) {
  rapidjson::Document document;
  document.Parse<rapidjson::kParseValidateEncodingFlag>(text.data(), text.size());
  if (document.HasParseError()) {
    return std::string(GetParseError_En(document.GetParseError())) + " at " + std::to_string(document.GetErrorOffset());
  }
  rapidjson::SchemaValidator validator(schema_named(schema));
  if (document.Accept(validator)) return "";
  rapidjson::StringBuffer place;
  validator.GetInvalidDocumentPointer().StringifyUriFragment(place);
  return std::string(validator.GetInvalidSchemaKeyword()) + " at " + place.GetString();
}

bool asks_for_answer(const std::vector<std::string>& arguments) {
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
  EXPECT_EQ(why_invalid(output, "qvtcfg-answer"), "") << output;
  const auto answer = nlohmann::json::parse(output, nullptr, false);
  EXPECT_EQ(answer.is_object() ? answer.value("exitCode", -1) : -1, exit_code) << output;
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
