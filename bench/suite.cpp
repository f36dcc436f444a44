#include "bench/suite.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

std::string Work::label() const { return size == 0 ? name : name + ", " + std::to_string(size); }

std::vector<Case>& cases() {
  static std::vector<Case> all;
  return all;
}

std::vector<Footprint>& footprints() {
  static std::vector<Footprint> all;
  return all;
}

void expect(bool right, const Work& work, const std::string& who) {
  if (right) return;
  std::fprintf(stderr, "%s by %s: the result is not what it should be\n", work.label().c_str(), who.c_str());
  std::exit(1);
}

std::string add_case(const Work& work, const std::string& who) {
  cases().push_back({work, who, work.label() + "/" + who});
  return cases().back().id;
}

}  // namespace bench
