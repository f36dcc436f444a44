// The PowerPC debug address map and the memories.

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "model/base_address.h"
#include "model/error_text.h"
#include "model/processor_kind.h"
#include "model/result.h"

namespace SdkDebugDialog {
namespace {

using Address = std::uint32_t ProcessorInfoImp::*;

// The six bases of the debug address map, in the order in which they are laid out.
constexpr Address kBases[] = {
    &ProcessorInfoImp::icacheStartAddr, &ProcessorInfoImp::itagStartAddr, &ProcessorInfoImp::dcacheStartAddr,
    &ProcessorInfoImp::dtagStartAddr,   &ProcessorInfoImp::dcrStartAddr,  &ProcessorInfoImp::tlbStartAddr,
};
constexpr std::uint32_t kBlock = 0x10000;

int set_base(EngineImp& imp, Address field, const char* what, std::uint32_t a) {
  if (imp.currentProcessor == nullptr || !check_base_alignment(imp, what, a)) return kRefused;
  imp.currentProcessor->*field = a;
  return kOk;
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

bool check_base_alignment(EngineImp& imp, const char* what, std::uint32_t address) {
  if (address % kBlock == 0) return true;
  set_error(imp, "%s Start Address should be aligned at 64k boundry", what);
  return false;
}

int Engine::SetIcacheBaseAddr(unsigned int a) {
  const int result = set_base(*imp, &ProcessorInfoImp::icacheStartAddr, "Icache", a);
  if (result == kOk) imp->currentProcessor->debugAddressMap = a;
  return result;
}
int Engine::SetDcacheBaseAddr(unsigned int a) {
  return set_base(*imp, &ProcessorInfoImp::dcacheStartAddr, "Dcache", a);
}
int Engine::SetITagBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::itagStartAddr, "Itag", a); }
int Engine::SetDTagBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::dtagStartAddr, "Dtag", a); }
int Engine::SetTlbBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::tlbStartAddr, "TLB", a); }
int Engine::SetDcrBaseAddr(unsigned int a) { return set_base(*imp, &ProcessorInfoImp::dcrStartAddr, "DCR", a); }

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
  for (const Address base : kBases) currentProcessor->*base = kAddressNotSet;
  return kOk;
}

int EngineImp::AssignAddressMap(unsigned int base) {
  if (currentProcessor == nullptr) return kRefused;
  for (const Address field : kBases) {
    if (currentProcessor->*field == kAddressNotSet) currentProcessor->*field = base;
    base += kBlock;
  }
  return kOk;
}

}  // namespace SdkDebugDialog
