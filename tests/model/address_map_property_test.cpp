// The PowerPC debug address map, for random bases.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cstdint>

#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using Field = std::uint32_t ProcessorInfoImp::*;

constexpr Field kInOrder[] = {&ProcessorInfoImp::icacheStartAddr, &ProcessorInfoImp::itagStartAddr,
                              &ProcessorInfoImp::dcacheStartAddr, &ProcessorInfoImp::dtagStartAddr,
                              &ProcessorInfoImp::dcrStartAddr,    &ProcessorInfoImp::tlbStartAddr};

// Any base, one near the end of the address space, or a multiple of 64 KB.
std::uint32_t any_base() {
  return *rc::gen::oneOf(
      rc::gen::arbitrary<std::uint32_t>(), rc::gen::inRange<std::uint32_t>(0xFFFA0000, 0xFFFFFFFF),
      rc::gen::map(rc::gen::inRange<std::uint32_t>(0, 0x10000), [](std::uint32_t block) { return block * 0x10000; }));
}

RC_GTEST_PROP(AddressMapProperty, IsLaidOutInBlocksModulo2To32AroundTheBasesThatAreSet,
              (std::array<bool, 6> isSet, std::array<std::uint32_t, 6> before)) {
  const std::uint32_t base = any_base();
  SelectedEngine s;
  for (std::size_t i = 0; i < isSet.size(); ++i) {
    if (isSet[i]) s.processor.*kInOrder[i] = before[i];
  }
  RC_ASSERT(s.imp.AssignAddressMap(base) == 0);
  for (std::size_t i = 0; i < isSet.size(); ++i) {
    const std::uint64_t sum = (std::uint64_t{base} + i * 65536) % 4294967296U;
    const bool kept = isSet[i] && before[i] != 4294967295U;
    RC_ASSERT((s.processor.*kInOrder[i]) == (kept ? before[i] : sum));
  }
  RC_ASSERT(s.processor.debugAddressMap == 4294967295U);
}

RC_GTEST_PROP(AddressMapProperty, BasesAreTakenFromSettersAtMultiplesOf64KAlone, ()) {
  using Set = int (Engine::*)(unsigned int);
  constexpr Set kSetters[] = {&Engine::SetIcacheBaseAddr, &Engine::SetITagBaseAddr, &Engine::SetDcacheBaseAddr,
                              &Engine::SetDTagBaseAddr,   &Engine::SetDcrBaseAddr,  &Engine::SetTlbBaseAddr};
  const std::uint32_t address = any_base();
  const bool taken = address % 65536 == 0;
  for (std::size_t i = 0; i < 6; ++i) {
    SelectedEngine s;
    RC_ASSERT((s.engine.*kSetters[i])(address) == (taken ? 0 : 1));
    RC_ASSERT((s.processor.*kInOrder[i]) == (taken ? address : 4294967295U));
    RC_ASSERT(s.processor.debugAddressMap == (taken && i == 0 ? address : 4294967295U));
    RC_ASSERT(s.error().empty() == taken);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
