// SPDX-License-Identifier: MIT
#ifndef STORE_PORT_RECORD_H_
#define STORE_PORT_RECORD_H_

#include <optional>
#include <string>
#include <vector>

/// A port of a switch. What is a word is one of the store's.
struct PortRecord {
  unsigned int portIndex = 0;
  unsigned int remotePort = 0; ///< the port at the other end, where a switch hangs there
  std::string deviceType;
  std::string eid; ///< of the device that hangs there, empty for none
  std::string portState;

  /// The ports of a switch in the store's order. None, as opposed to an empty list, if they cannot be read.
  [[nodiscard]] static std::optional<std::vector<PortRecord>> readOfSwitch(unsigned int swxIndex);
};

#endif // STORE_PORT_RECORD_H_
