#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace SdkDebugDialog {

struct ProcessorInfoImp;

// Finds the records of a list by name. Holds hashes and positions alone, in one piece of memory; names are compared
// with those of the records.
class NameIndex {
 public:
  using List = std::vector<ProcessorInfoImp*>;

  // The first record of the list with this name; null when there is none. Records may be appended in between; when
  // others were exchanged, what is found has the name, but need not be found.
  ProcessorInfoImp* find(const List& list, std::string_view name);

  void clear() { *this = NameIndex(); }

 private:
  struct Entry {
    std::uint32_t hash = 0;
    std::uint32_t record = 0;  // its position from 1 on; 0: nothing is here
  };

  Entry& place(const List& list, std::string_view name, std::uint32_t hash);
  void catch_up(const List& list);

  std::vector<Entry> m_entries;  // a power of two of them, at most half in use
  std::size_t m_indexed = 0;
};

}  // namespace SdkDebugDialog
