// SPDX-License-Identifier: MIT
#include "server/Lifeline.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace zelsim
{

void Lifeline::hold(std::atomic<std::uint32_t> &word)
{
  if (::syscall(SYS_get_robust_list, 0, &before_, &sizeBefore_) != 0)
    return;
  head_.list.next = &entry_;
  head_.futex_offset = reinterpret_cast<char *>(&word) - reinterpret_cast<char *>(&entry_);
  entry_.next = &head_.list;
  word.store(static_cast<std::uint32_t>(::syscall(SYS_gettid)), std::memory_order_release);
  word_ = &word;
  if (::syscall(SYS_set_robust_list, &head_, sizeof head_) == 0)
    return;
  word.store(0, std::memory_order_release);
  word_ = nullptr;
}

void Lifeline::letGo()
{
  if (!word_)
    return;
  ::syscall(SYS_set_robust_list, before_, sizeBefore_);
  word_->fetch_or(FUTEX_OWNER_DIED, std::memory_order_acq_rel);
  word_ = nullptr;
}

} // namespace zelsim
