// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_PUBLISHER_H_
#define ZEL_SIM_SERVER_PUBLISHER_H_

#include "EpochPage.h"
#include "data/Faults.h"
#include "data/Store.h"
#include "server/Lifeline.h"

#include <cstdint>
#include <string>

namespace zelsim
{

/// The server's side of the page of epochs: a slot for each resource, in the order of the catalogue, with
/// the resource's revision. Without memory for a page there is none, and clients ask for everything.
class Publisher
{
public:
  /// `run` tells this run of a store from all others.
  explicit Publisher(std::uint64_t run);
  ~Publisher();
  Publisher(const Publisher &) = delete;
  Publisher &operator=(const Publisher &) = delete;

  /// The file that clients map; -1 if there is none. Nobody but this process can write to it.
  int file() const { return file_; }

  /// Shows the present revisions. To be called between the writes of a turn and its answers: whoever hears
  /// of a write must find it here. While the store misbehaves, clients are sent to it.
  void publish(const Store &store, const Faults &faults);

  /// To be called before a connection is ended.
  void hangUp();

  /// The slot of a resource, as answers name it.
  static std::size_t slotOf(const Resource &resource);

private:
  bool map(std::uint64_t run);

  int file_ = -1;
  zelwire::EpochPage *page_ = nullptr;
  Lifeline lifeline_;
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_PUBLISHER_H_
