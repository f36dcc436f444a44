// Addresses: the PowerPC debug address map and the memories.

#include <algorithm>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/Result.h"
#include "model/base_address.h"
#include "model/error_text.h"
#include "model/processor_kind.h"

namespace SdkDebugDialog {
namespace {

using Address = std::uint32_t ProcessorInfoImp::*;

// The bases of the debug address map, in the order in which it is laid out.
struct MapBase {
  Address field;
  const char* what;       // name in the error text
  Address map = nullptr;  // a second field that is set to the same address
};

constexpr MapBase kMapBases[] = {
    {&ProcessorInfoImp::icacheStartAddr, "Icache", &ProcessorInfoImp::debugAddressMap},
    {&ProcessorInfoImp::itagStartAddr, "Itag"},
    {&ProcessorInfoImp::dcacheStartAddr, "Dcache"},
    {&ProcessorInfoImp::dtagStartAddr, "Dtag"},
    {&ProcessorInfoImp::dcrStartAddr, "DCR"},
    {&ProcessorInfoImp::tlbStartAddr, "TLB"},
};

int set_base(EngineImp& imp, Address field, std::uint32_t a) {
  return imp.currentProcessor != nullptr && set_map_base(imp, field, a) ? kOk : kRefused;
}

int get_address(const ProcessorInfoImp& p, bool applies, Address field, unsigned int& a) {
  if (!applies || p.connectionType != Engine::HARDWARE) return kNotApplicable;
  if (p.*field == kAddressNotSet) return kNotSet;
  a = p.*field;
  return kOk;
}

int get_map_address(const EngineImp& imp, Address field, unsigned int& a) {
  const ProcessorInfoImp* const p = imp.currentProcessor;
  return p != nullptr ? get_address(*p, p->procFamily == kFamilyPowerPC, field, a) : kNotSet;
}

}  // namespace

bool set_map_base(EngineImp& imp, Address field, std::uint32_t address) {
  const MapBase& base = *std::ranges::find(kMapBases, field, &MapBase::field);
  if (address % kMapBlock != 0) {
    set_error(imp, "%s Start Address should be aligned at 64k boundry", base.what);
    return false;
  }
  imp.currentProcessor->*base.field = address;
  if (base.map != nullptr) imp.currentProcessor->*base.map = address;
  return true;
}

int Engine::SetIcacheBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::icacheStartAddr, a); }
int Engine::SetDcacheBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::dcacheStartAddr, a); }
int Engine::SetITagBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::itagStartAddr, a); }
int Engine::SetDTagBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::dtagStartAddr, a); }
int Engine::SetTlbBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::tlbStartAddr, a); }
int Engine::SetDcrBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::dcrStartAddr, a); }

int Engine::GetDebugAddressMap(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::debugAddressMap, a); }
int Engine::GetIcacheBaseAddr(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::icacheStartAddr, a); }
int Engine::GetDcacheBaseAddr(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::dcacheStartAddr, a); }
int Engine::GetITagBaseAddr(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::itagStartAddr, a); }
int Engine::GetDTagBaseAddr(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::dtagStartAddr, a); }
int Engine::GetTlbBaseAddr(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::tlbStartAddr, a); }
int Engine::GetDcrBaseAddr(unsigned int& a) { return get_map_address(*imp, &ProcessorInfoImp::dcrStartAddr, a); }

int Engine::GetISOCMBaseAddr(unsigned int& a) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kNotSet;
  return get_address(*p, p->procVariant == kVariantPpc405, &ProcessorInfoImp::isocmStartAddr, a);
}

int Engine::SetROMem(unsigned int start, unsigned int size) {
  ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kRefused;
  p->romemStartAddr = start;
  p->romemSize = size;
  return kOk;
}

int Engine::GetROMem(unsigned int& start, unsigned int& size) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kNotSet;
  const int result = get_address(*p, true, &ProcessorInfoImp::romemStartAddr, start);
  if (result == kOk) size = p->romemSize;
  return result;
}

int Engine::UnSetDebugAddressMap() {
  if (imp->currentProcessor == nullptr) return kRefused;
  imp->currentProcessor->debugAddressMap = kAddressNotSet;
  return imp->InitPPCDebugAddressMap();
}

int EngineImp::InitPPCDebugAddressMap() {
  if (currentProcessor == nullptr) return kRefused;
  for (const MapBase& base : kMapBases) currentProcessor->*base.field = kAddressNotSet;
  return kOk;
}

int EngineImp::AssignAddressMap(unsigned int base) {
  if (currentProcessor == nullptr) return kRefused;
  for (const MapBase& row : kMapBases) {
    if (currentProcessor->*row.field == kAddressNotSet) currentProcessor->*row.field = base;
    base += kMapBlock;
  }
  return kOk;
}

}  // namespace SdkDebugDialog
