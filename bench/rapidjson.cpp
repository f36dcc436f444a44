// The same settings as JSON, read and written with RapidJSON.

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "bench/others.h"

namespace bench {
namespace {

using Value = rapidjson::Value;

constexpr std::pair<CableType, std::string_view> kCables[] = {
    {CableType::parallel4, "zarvek_parallel"},      {CableType::parallel3, "zarvek_parallel3"},
    {CableType::platformusb, "zarvek_platformusb"}, {CableType::plugin, "zarvek_plugin"},
    {CableType::digilent, "digilent_plugin"},       {CableType::tcf, "zarvek_tcf"},
};
constexpr std::pair<Connection, std::string_view> kConnections[] = {
    {Connection::simulator, "sim"}, {Connection::hardware, "odm"}, {Connection::stub, "stub"}};

std::string_view view(const Value& value) { return {value.GetString(), value.GetStringLength()}; }

template <class Number>
bool take_number(const Value& value, Number& number) {
  if (!value.IsInt64()) return false;
  number = static_cast<Number>(value.GetInt64());
  return true;
}

bool take_text(const Value& value, std::string& text) {
  if (!value.IsString()) return false;
  text = view(value);
  return true;
}

template <class Word, std::size_t N>
bool take_word(const Value& value, const std::pair<Word, std::string_view> (&words)[N], Word& word) {
  if (!value.IsString()) return false;
  const auto* const row = std::ranges::find(words, view(value), &std::pair<Word, std::string_view>::second);
  if (row == std::end(words)) return false;
  word = row->first;
  return true;
}

bool take_cable(const Value& object, Cable& cable) {
  if (!object.IsObject()) return false;
  for (const auto& member : object.GetObject()) {
    const std::string_view key = view(member.name);
    const Value& value = member.value;
    const bool understood = key == "type"         ? take_word(value, kCables, cable.type)
                            : key == "port"       ? take_text(value, cable.port)
                            : key == "frequency"  ? take_number(value, cable.frequency)
                            : key == "esn"        ? take_text(value, cable.esn)
                            : key == "modulename" ? take_text(value, cable.modulename)
                            : key == "modulearg"  ? take_text(value, cable.modulearg)
                                                  : false;
    if (!understood) return false;
  }
  return true;
}

bool take_device(const Value& object, Device& device) {
  if (!object.IsObject()) return false;
  for (const auto& member : object.GetObject()) {
    const std::string_view key = view(member.name);
    const Value& value = member.value;
    const bool understood = key == "devicenr"   ? take_number(value, device.devicenr)
                            : key == "partname" ? take_text(value, device.partname)
                            : key == "irlength" ? take_number(value, device.irlength)
                            : key == "idcode"   ? take_number(value, device.idcode)
                                                : false;
    if (!understood) return false;
  }
  return true;
}

bool take_chain(const Value& array, std::vector<Device>& chain) {
  if (!array.IsArray()) return false;
  chain.reserve(array.Size());
  for (const Value& object : array.GetArray()) {
    if (!take_device(object, chain.emplace_back())) return false;
  }
  return true;
}

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

void write_key(Writer& writer, std::string_view key) {
  writer.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
}

void write_text(Writer& writer, std::string_view key, std::string_view text) {
  write_key(writer, key);
  writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

template <class Number>
void write_number(Writer& writer, std::string_view key, Number number) {
  write_key(writer, key);
  writer.Int64(number);
}

template <class Word, std::size_t N>
void write_word(Writer& writer, std::string_view key, const std::pair<Word, std::string_view> (&words)[N], Word word) {
  write_text(writer, key, std::ranges::find(words, word, &std::pair<Word, std::string_view>::first)->second);
}

void write_cable(Writer& writer, const Cable& cable) {
  write_key(writer, "cable");
  writer.StartObject();
  write_word(writer, "type", kCables, cable.type);
  write_text(writer, "port", cable.port);
  write_number(writer, "frequency", cable.frequency);
  writer.EndObject();
}

void write_device(Writer& writer, const Device& device) {
  writer.StartObject();
  write_number(writer, "devicenr", device.devicenr);
  write_text(writer, "partname", device.partname);
  write_number(writer, "irlength", device.irlength);
  write_number(writer, "idcode", device.idcode);
  writer.EndObject();
}

}  // namespace

bool read_json(const std::string& text, Settings& settings) {
  rapidjson::Document document;
  document.Parse(text.data(), text.size());
  if (document.HasParseError() || !document.IsObject()) return false;
  const Value& root = document;
  for (const auto& member : root.GetObject()) {
    const std::string_view key = view(member.name);
    const Value& value = member.value;
    const bool understood = key == "connection"    ? take_word(value, kConnections, settings.connection)
                            : key == "cable"       ? take_cable(value, settings.cable)
                            : key == "chain"       ? take_chain(value, settings.chain)
                            : key == "debugDevice" ? take_number(value, settings.debugDevice)
                            : key == "cpuNr"       ? take_number(value, settings.cpuNr)
                                                   : false;
    if (!understood) return false;
  }
  return true;
}

std::string write_json(const Settings& settings) {
  rapidjson::StringBuffer out;
  Writer writer(out);
  writer.StartObject();
  write_word(writer, "connection", kConnections, settings.connection);
  if (settings.cable.type != CableType::none) write_cable(writer, settings.cable);
  if (settings.connection == Connection::hardware) {
    write_key(writer, "chain");
    writer.StartArray();
    for (const Device& device : settings.chain) write_device(writer, device);
    writer.EndArray();
    write_number(writer, "debugDevice", settings.debugDevice);
    write_number(writer, "cpuNr", settings.cpuNr);
  }
  writer.EndObject();
  return {out.GetString(), out.GetSize()};
}

}  // namespace bench
