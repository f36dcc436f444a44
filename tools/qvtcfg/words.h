#pragma once

// Names for the numeric values of the records' fields, for output, input and help.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Engine.h"

namespace qvtcfg {

struct Word {
  unsigned int value;
  const char* name;
};

inline constexpr Word kFamilies[] = {{0, "ovrin"}, {1, "ppc"}, {2, "arm"}};

inline constexpr Word kVariants[] = {{0, "soft"},      {1, "ppc405"}, {2, "ppc440"},
                                     {4, "cortex-a9"}, {5, "r5"},     {6, "other"}};

// Bits. The first four are the connections that can be selected.
inline constexpr Word kConnections[] = {
    {SdkDebugDialog::Engine::SIMULATOR, "simulator"},
    {SdkDebugDialog::Engine::HARDWARE, "hardware"},
    {SdkDebugDialog::Engine::STUB, "stub"},
    {SdkDebugDialog::Engine::VIRTUAL_PLATFORM, "virtual-platform"},
    {SdkDebugDialog::Engine::ODM_TARGET, "odm-target"},
    {SdkDebugDialog::Engine::QMTC_TARGET, "qmtc-target"},
    {SdkDebugDialog::Engine::DCC_TARGET, "dcc-target"},
    {SdkDebugDialog::Engine::DAP_TARGET, "dap-target"},
    {SdkDebugDialog::Engine::STUB_JTAG_PRESENT, "stub-jtag"},
    {SdkDebugDialog::Engine::STUB_UART_PRESENT, "stub-uart"},
};
inline constexpr std::span<const Word> kSelectable(kConnections, 4);

inline constexpr Word kStubs[] = {
    {SdkDebugDialog::Engine::STUB_OVER_JTAG, "jtag"},
    {SdkDebugDialog::Engine::STUB_OVER_SERIAL, "serial"},
};

// The names used in the connect command.
inline constexpr Word kCables[] = {
    {SdkDebugDialog::Engine::CABLE_NONE, "none"},
    {SdkDebugDialog::Engine::ZARVEK_SVFFILE, "zarvek_svffile"},
    {SdkDebugDialog::Engine::ZARVEK_PARALLEL4, "zarvek_parallel4"},
    {SdkDebugDialog::Engine::ZARVEK_PLATFORMUSB, "zarvek_platformusb"},
    {SdkDebugDialog::Engine::ZARVEK_PARALLEL3, "zarvek_parallel3"},
    {SdkDebugDialog::Engine::ZARVEK_PLUGIN, "zarvek_plugin"},
    {SdkDebugDialog::Engine::DIGILENT_PLUGIN, "digilent_plugin"},
    {SdkDebugDialog::Engine::ZARVEK_TCF, "zarvek_tcf"},
};

inline constexpr Word kFpus[] = {{0, "none"}, {1, "sp"}, {2, "dp"}};

inline constexpr Word kBscanPorts[] = {{2, "USER1"}, {3, "USER2"}, {34, "USER3"}, {35, "USER4"}};

inline constexpr Word kHardPpcs[] = {{0, "none"}, {1, "ppc405"}, {2, "other"}};

// The name of a value; the number itself if it has none.
std::string name_of(std::span<const Word> words, unsigned int value);

// The entry with a name; null when there is none.
const Word* find_word(std::span<const Word> words, std::string_view name);

std::vector<std::string> names_of(std::span<const Word> words);

// The names of the bits that are set.
std::vector<std::string> names_in_set(std::span<const Word> words, unsigned int set);

}  // namespace qvtcfg
