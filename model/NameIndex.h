#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace SdkDebugDialog {

struct ProcessorInfoImp;

// Finds the records of a list by name. It keeps what it needs to know of a name by itself, because records stand far
// from each other in memory: short names as a whole, of longer ones the ends, which are compared with the record first.
class NameIndex {
 public:
  using List = std::vector<ProcessorInfoImp*>;

  // The first record of the list that had this name when it was first seen here; null when there is none, and when
  // another record has taken its place since. Records may be appended in between.
  ProcessorInfoImp* find(const List& list, std::string_view name);

  // Forgets all records, and makes room for that many.
  void reserve(std::size_t count);

  void clear() { *this = NameIndex(); }

 private:
  struct Key {
    explicit Key(std::string_view name);
    bool operator==(const Key&) const = default;
    // Whether it tells all of the name.
    bool is_whole() const { return size <= sizeof first + sizeof last; }

    std::uint64_t first = 0;  // up to eight characters
    std::uint64_t last = 0;   // the last eight ones where there are as many
    std::size_t size;
  };
  struct Entry {
    Key key;
    const ProcessorInfoImp* record;
  };
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t entry = 0;  // its position from 1 on; 0: nothing is here
  };

  Slot& place(const List& list, std::uint32_t hash, const Key& key, std::string_view name);
  void catch_up(const List& list);

  std::vector<Entry> m_entries;  // of the records that were seen, in the order of the list
  std::vector<Slot> m_slots;     // a power of two of them, at most two thirds in use
};

// The first record of a list that has this name now; null when there is none. Asks one record after the other.
ProcessorInfoImp* find_by_name(const NameIndex::List& list, std::string_view name);

}  // namespace SdkDebugDialog
