// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_SERVER_PAGE_H_
#define ZEL_CLIENT_SERVER_PAGE_H_

#include "EpochPage.h"

#include <cstdint>
#include <memory>

namespace zelclient
{

/// What an answer was right for: a slot of a server's page that held an epoch. Run 0: for nothing known.
struct Epoch {
  std::uint64_t run = 0;
  std::uint64_t number = 0;
  std::uint32_t slot = 0;
};

/// A server's page, mapped to be read.
class ServerPage
{
public:
  /// Maps the file `fd`, which stays the caller's. Null unless it is one that can do no harm: of the right
  /// size, in memory, and sealed against shrinking, since touching what was cut off would end the process.
  static std::unique_ptr<ServerPage> open(int fd);
  ~ServerPage();
  ServerPage(const ServerPage &) = delete;
  ServerPage &operator=(const ServerPage &) = delete;

  /// The epoch of a slot as an answer names it.
  Epoch epochOf(std::uint32_t slot, std::uint64_t number) const { return {run_, number, slot}; }

  /// Whether what was right for `epoch` is right now.
  bool stands(const Epoch &epoch) const
  {
    return epoch.run == run_ && epoch.slot < zelwire::EpochPage::kSlots &&
           page_->epochs[epoch.slot].load(std::memory_order_acquire) == epoch.number &&
           page_->serving.load(std::memory_order_acquire) != 0;
  }

  /// Whether the server's process lived all the time since the page was opened. False if it can't be known.
  bool isKept() const { return keeper_ != 0 && page_->keeper.load(std::memory_order_acquire) == keeper_; }
  /// How often the server has ended a connection.
  std::uint64_t hangUps() const { return page_->hangUps.load(std::memory_order_acquire); }

private:
  explicit ServerPage(const zelwire::EpochPage *page);

  const zelwire::EpochPage *page_;
  std::uint64_t run_;
  std::uint32_t keeper_; // while it lives
};

} // namespace zelclient

#endif // ZEL_CLIENT_SERVER_PAGE_H_
