#include "bench/texts.h"

#include "bench/hand_written.h"

namespace bench {

std::string simulator_text() { return "connect ov sim"; }

Settings simulator_settings() {
  Settings settings;
  settings.connection = Connection::simulator;
  return settings;
}

std::string hardware_text() {
  return "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000"
         " -configdevice devicenr 1 partname vx4_flash32p irlength 16 idcode 0xa5059093"
         " -configdevice devicenr 2 partname vx5_sx95t irlength 10 idcode 0x2ece093"
         " -debugdevice deviceNr 2 cpunr 1";
}

std::string hardware_text_retyped() {
  return "CONNECT OV ODM -DebugDevice CpuNr 1 DEVICENR 2"
         " -ConfigDevice IDCODE 0xA5059093 IrLength 16 PARTNAME vx4_flash32p DeviceNr 1"
         " -Cable FREQUENCY 12000000 Type Zarvek_PlatformUSB Port USB21"
         " -CONFIGDEVICE idCode 0x02ECE093 irLength 10 partName vx5_sx95t deviceNr 2";
}

Settings hardware_settings() {
  Settings settings;
  settings.cable.type = CableType::platformusb;
  settings.cable.port = "USB21";
  settings.cable.frequency = 12000000;
  settings.chain = {{.partname = "vx4_flash32p", .idcode = 0xa5059093, .irlength = 16, .devicenr = 1},
                    {.partname = "vx5_sx95t", .idcode = 0x2ece093, .irlength = 10, .devicenr = 2}};
  settings.debugDevice = 2;
  return settings;
}

// Neighbouring devices differ, and the lengths of their values vary.
Settings chain_settings(std::size_t devices) {
  Settings settings;
  for (std::size_t i = 0; i < devices; ++i) {
    settings.chain.push_back({.partname = (i % 3 == 0 ? "flash_" : "vx5_") + std::to_string(i),
                              .idcode = static_cast<std::uint32_t>(0x2ece093 + (i << 12)),
                              .irlength = static_cast<std::int8_t>(4 + i % 13),
                              .devicenr = static_cast<std::int8_t>(1 + i % 127)});
  }
  return settings;
}

std::string chain_text(std::size_t devices) { return write_by_hand(chain_settings(devices)); }

}  // namespace bench
