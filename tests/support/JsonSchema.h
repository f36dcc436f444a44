#pragma once

// Validation by the JSON Schemas in docs/.

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/schema.h>
#include <rapidjson/stringbuffer.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>

class JsonSchema {
 public:
  // docs/NAME.schema.json
  explicit JsonSchema(const std::string& name) {
    std::ifstream in(PROJECT_SOURCE_DIR "/docs/" + name + ".schema.json", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    m_content.Parse(text.c_str());
    if (m_content.HasParseError()) throw std::runtime_error(name + ": the schema is no JSON");
    m_schema = std::make_unique<rapidjson::SchemaDocument>(m_content);
  }

  // Why the text is not one valid JSON document in UTF-8; empty if it is.
  std::string why_invalid(const std::string& text) const {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseValidateEncodingFlag>(text.data(), text.size());
    if (document.HasParseError()) {
      return rapidjson::GetParseError_En(document.GetParseError()) + std::string(" at ") +
             std::to_string(document.GetErrorOffset());
    }
    rapidjson::SchemaValidator validator(*m_schema);
    if (document.Accept(validator)) return "";
    rapidjson::StringBuffer place;
    validator.GetInvalidDocumentPointer().StringifyUriFragment(place);
    return validator.GetInvalidSchemaKeyword() + std::string(" at ") + place.GetString();
  }

 private:
  rapidjson::Document m_content;
  std::unique_ptr<rapidjson::SchemaDocument> m_schema;
};
