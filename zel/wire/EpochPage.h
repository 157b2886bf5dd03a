// SPDX-License-Identifier: MIT
#ifndef ZEL_WIRE_EPOCH_PAGE_H_
#define ZEL_WIRE_EPOCH_PAGE_H_

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace zelwire
{

/// A piece of memory that the store server shares with its clients, so that a client can tell without a
/// round trip whether an answer that it holds is still right. The server sends the file behind it with the
/// first answer of a connection. The server alone writes; a client maps it to be read and believes no
/// number in it further than to compare it.
///
/// While the server's process lives, `keeper` is the number of its thread, which the kernel marks when it
/// ends; and `hangUps` grows before the server ends a connection by itself. So a client that has found its
/// connection standing knows, while both are as they were, that it still does.
///
/// An answer that names a slot and an epoch is right as long as the slot holds that epoch and the server
/// serves from the page. The server moves a slot before anybody is told of the write that moved it.
struct EpochPage {
  static constexpr std::uint64_t kMagic = 0x6e65766f65703031; // "nevoep01"
  static constexpr std::size_t kSize = 4096;
  static constexpr std::size_t kSlots = kSize / sizeof(std::uint64_t) - 5;

  std::uint64_t magic;
  std::uint64_t run;                  // tells the runs of servers apart; never 0
  std::atomic<std::uint64_t> serving; // 0: every question is for the server
  std::atomic<std::uint64_t> hangUps;
  std::atomic<std::uint32_t> keeper; // 0: clients have to look at their connections themselves
  std::uint32_t unused;
  std::atomic<std::uint64_t> epochs[kSlots];
};

static_assert(sizeof(EpochPage) == EpochPage::kSize);
static_assert(std::atomic<std::uint64_t>::is_always_lock_free);
static_assert(sizeof(std::atomic<std::uint32_t>) == sizeof(std::uint32_t));

} // namespace zelwire

#endif // ZEL_WIRE_EPOCH_PAGE_H_
