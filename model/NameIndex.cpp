#include "model/NameIndex.h"

#include <bit>
#include <functional>
#include <string>

#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {
namespace {

std::uint32_t hash_of(std::string_view name) { return static_cast<std::uint32_t>(std::hash<std::string_view>()(name)); }

}  // namespace

ProcessorInfoImp* NameIndex::find(const List& list, std::string_view name) {
  catch_up(list);
  if (m_entries.empty()) return nullptr;
  const Entry& entry = place(list, name, hash_of(name));
  return entry.record != 0 ? list[entry.record - 1] : nullptr;
}

// The entry of the name, or the one where it belongs: the first free one from that of its hash on.
NameIndex::Entry& NameIndex::place(const List& list, std::string_view name, std::uint32_t hash) {
  for (std::size_t i = hash;; ++i) {
    Entry& entry = m_entries[i & (m_entries.size() - 1)];
    if (entry.record == 0 || (entry.hash == hash && list[entry.record - 1]->name == name)) return entry;
  }
}

void NameIndex::catch_up(const List& list) {
  if (m_indexed > list.size() || m_entries.size() < 2 * list.size()) {
    m_entries.assign(std::bit_ceil(4 * list.size()), {});
    m_indexed = 0;
  }
  for (; m_indexed < list.size(); ++m_indexed) {
    const std::string& name = list[m_indexed]->name;
    const std::uint32_t hash = hash_of(name);
    Entry& entry = place(list, name, hash);
    if (entry.record == 0) entry = {hash, static_cast<std::uint32_t>(m_indexed + 1)};
  }
}

}  // namespace SdkDebugDialog
