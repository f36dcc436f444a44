#include "model/NameIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <string>

#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {

namespace {

std::uint32_t hash_of(std::string_view name) { return static_cast<std::uint32_t>(std::hash<std::string_view>()(name)); }

}  // namespace

NameIndex::Key::Key(std::string_view name) : size(name.size()) {
  if (size < sizeof first) {
    name.copy(reinterpret_cast<char*>(&first), sizeof first);
  } else {
    std::memcpy(&first, name.data(), sizeof first);
    std::memcpy(&last, name.data() + size - sizeof last, sizeof last);
  }
}

ProcessorInfoImp* NameIndex::find(const List& list, std::string_view name) {
  catch_up(list);
  if (m_slots.empty()) return nullptr;
  const std::uint32_t entry = place(list, hash_of(name), Key(name), name).entry;
  return entry != 0 && m_entries[entry - 1].record == list[entry - 1] ? list[entry - 1] : nullptr;
}

// The slot of the name, or the one where it belongs: the first free one from that of its hash on.
NameIndex::Slot& NameIndex::place(const List& list, std::uint32_t hash, const Key& key, std::string_view name) {
  for (std::size_t i = hash;; ++i) {
    Slot& slot = m_slots[i & (m_slots.size() - 1)];
    if (slot.entry == 0) return slot;
    if (slot.hash != hash || m_entries[slot.entry - 1].key != key) continue;
    if (key.is_whole() || list[slot.entry - 1]->name == name) return slot;
  }
}

void NameIndex::catch_up(const List& list) {
  if (m_entries.size() > list.size() || 2 * m_slots.size() < 3 * list.size()) {
    reserve(list.size() + list.size() / 2 + 1);
  }
  while (m_entries.size() < list.size()) {
    const ProcessorInfoImp* const record = list[m_entries.size()];
    const std::uint32_t hash = hash_of(record->name);
    m_entries.push_back({Key(record->name), record});
    Slot& slot = place(list, hash, m_entries.back().key, record->name);
    if (slot.entry == 0) slot = {hash, static_cast<std::uint32_t>(m_entries.size())};
  }
}

void NameIndex::reserve(std::size_t count) {
  m_slots.assign(std::bit_ceil(count + count / 2), {});
  m_entries.clear();
  m_entries.reserve(count);
}

ProcessorInfoImp* find_by_name(const NameIndex::List& list, std::string_view name) {
  const auto found = std::ranges::find(list, name, &ProcessorInfoImp::name);
  return found != list.end() ? *found : nullptr;
}

}  // namespace SdkDebugDialog
