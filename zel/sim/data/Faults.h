// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_FAULTS_H_
#define ZEL_SIM_DATA_FAULTS_H_

#include "data/Catalogue.h"

#include <string>
#include <vector>

namespace zelsim
{

/// What is to become of requests of one kind: they are refused, or their answers wait.
struct Order {
  Method method = Method::Get;
  const Resource *resource = nullptr;
  std::string parameter; // requests that name it, in "select", "params" or the path; empty: any request
  unsigned index = 0;    // requests for this record; 0: for any
  int errorNumber = 0;   // the refusal; 0: not refused
  std::string detail;    // of the refusal
  int delayMs = 0;       // how much later the answer comes
  unsigned times = 1;    // requests that are left; 0: all to come
};

/// How the store misbehaves towards its clients, set by control commands. The control channel itself is
/// always well.
struct Faults {
  int slowMs = 0;            // each answer waits so long
  bool silent = false;       // requests are read and never answered
  bool refuse = false;       // nobody listens: connecting fails
  bool dark = false;         // the same, while the switch restarts
  unsigned restarts = 0;     // how often the switch went dark
  unsigned cut = 0;          // so many of the next answers end in the middle, and the connection with them
  bool drop = false;         // all present clients are to be disconnected
  bool quit = false;         // the store is to end
  std::vector<Order> orders; // for chosen requests; of several refusals the oldest counts
};

} // namespace zelsim

#endif // ZEL_SIM_DATA_FAULTS_H_
