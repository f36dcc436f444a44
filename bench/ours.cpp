#include "bench/ours.h"

#include <cstdlib>

#include "options/QvtOption_Parser.h"

namespace bench {

using SdkDebugDialog::QvtOption_Parser;

void Ours::read(const std::string& text) {
  m_selected.release_chain();
  m_selected.imp.EngineImpInit();
  if (QvtOption_Parser::ReadQvtCommand(text, m_selected.imp) != 0) std::abort();
}

std::string Ours::write() {
  std::string command;
  if (QvtOption_Parser::WriteQvtCmdString(m_selected.imp, command) != 0) std::abort();
  return command;
}

Settings Ours::settings() const {
  const SdkDebugDialog::ProcessorInfoImp& processor = m_selected.processor;
  const SdkDebugDialog::CableOption& cable = *m_selected.imp.cable;
  Settings settings{
      .family = static_cast<Family>(processor.procFamily),
      .connection = static_cast<Connection>(processor.connectionType),
      .memSize = processor.memSize,
      .cable = {static_cast<CableType>(cable.type), cable.frequency, cable.port, cable.esn, cable.fname,
                cable.modulename, cable.modulearg, cable.url},
      .cpuJtag = m_selected.imp.cpuJtag != 0,
      .chain = {},
      .debugDevice = processor.debugDevice,
      .cpuNr = processor.cpuNr,
      .romemStart = processor.romemStartAddr,
      .romemSize = processor.romemSize,
      .isocmStart = processor.isocmStartAddr,
      .isocmSize = processor.isocmSize,
      .isocmDcrStart = processor.isocmDcrStartAddr,
      .icacheStart = processor.icacheStartAddr,
      .itagStart = processor.itagStartAddr,
      .dcacheStart = processor.dcacheStartAddr,
      .dtagStart = processor.dtagStartAddr,
      .tlbStart = processor.tlbStartAddr,
      .dcrStart = processor.dcrStartAddr,
      .fpuType = processor.fpuType,
      .cpuVersion = processor.cpuVersion,
      .odmVersion = processor.odmVersion,
      .nCpu = processor.nCpu,
      .bscanPort = processor.bscanPort,
  };
  for (const SdkDebugDialog::JtagOption* const d : m_selected.imp.jtagChain) {
    settings.chain.push_back({d->partname, d->idcode, d->irlength, d->devicenr, d->isfpga, d->hardppc, d->nppc});
  }
  return settings;
}

}  // namespace bench
