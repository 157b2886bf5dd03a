// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_FAULTS_H_
#define ZEL_SIM_SERVER_FAULTS_H_

namespace zelsim
{

/// How the store misbehaves towards its clients, set by control commands. The control channel itself is
/// always well.
struct Faults {
  int slowMs = 0;        // each answer waits so long
  bool silent = false;   // requests are read and never answered
  bool refuse = false;   // nobody listens: connecting fails
  bool dark = false;     // the same, while the switch restarts
  unsigned restarts = 0; // how often the switch went dark
  unsigned cut = 0;      // so many of the next answers end in the middle, and the connection with them
  bool drop = false;     // all present clients are to be disconnected
  bool quit = false;     // the store is to end
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_FAULTS_H_
