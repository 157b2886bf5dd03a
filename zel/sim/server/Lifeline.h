// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_LIFELINE_H_
#define ZEL_SIM_SERVER_LIFELINE_H_

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <linux/futex.h>

namespace zelsim
{

/// A word in shared memory that tells other processes whether this thread lives: it holds the thread's
/// number, and however the thread ends, also when it is killed, the kernel sets FUTEX_OWNER_DIED in it.
/// The kernel takes the word for a robust lock that the thread holds; it does so before it closes the
/// files of a process that ends. The object belongs to one thread, which holds no other such lock.
class Lifeline
{
public:
  Lifeline() = default;
  ~Lifeline() { letGo(); }
  Lifeline(const Lifeline &) = delete;
  Lifeline &operator=(const Lifeline &) = delete;

  /// Leaves the word 0 where the kernel can't do it.
  void hold(std::atomic<std::uint32_t> &word);
  /// Marks the word as the thread's end would; to be called before its memory goes.
  void letGo();

private:
  robust_list_head head_{};
  robust_list entry_{};
  void *before_ = nullptr; // the list of the thread library
  std::size_t sizeBefore_ = 0;
  std::atomic<std::uint32_t> *word_ = nullptr;
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_LIFELINE_H_
