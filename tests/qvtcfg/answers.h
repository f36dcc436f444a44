#pragma once

// The answers of qvtcfg in JSON.

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

// Why the text is not one answer that is valid by its schema; empty if it is.
std::string why_invalid(const std::string& answer);

// Whether the arguments of qvtcfg ask for an answer in JSON.
bool asks_for_answer(const std::vector<std::string>& arguments);

// Fails unless the output is one valid answer. With the environment variable SAVE_ANSWERS, which names a folder, the
// answer is stored there.
void expect_answer(const std::string& output, int exit_code);

// The members of an answer, which must be valid.
nlohmann::json result_of(const std::string& output);
nlohmann::json error_of(const std::string& output);

// {group: {setting: value}} for the settings of a result.
nlohmann::json values_in(const nlohmann::json& settings);
