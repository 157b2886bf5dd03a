// SPDX-License-Identifier: MIT
#include "session/Fiber.h"

#include <boost/context/detail/fcontext.hpp>
#include <cstdint>
#include <cstring>
#include <cxxabi.h>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define WT_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WT_ASAN 1
#endif
#endif
#if defined(__SANITIZE_THREAD__)
#define WT_TSAN 1
#endif

#ifdef WT_ASAN
#include <sanitizer/common_interface_defs.h>
#endif
#ifdef WT_TSAN
#include <sanitizer/tsan_interface.h>
#endif

namespace Wt
{
namespace Engine
{

namespace context = boost::context::detail;

namespace
{

// Instrumented code has much larger frames.
#if defined(WT_ASAN) || defined(WT_TSAN)
const std::size_t kStackSize = 4u << 20;
#else
const std::size_t kStackSize = 256u << 10;
#endif

std::size_t pageSize()
{
  static const std::size_t size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  return size;
}

} // namespace

/// The runtime's record of exceptions in flight, which it keeps for each thread but belongs to each stack.
struct Fiber::Exceptions {
  // The first members of the C++ ABI's __cxa_eh_globals, which is opaque to programs.
  struct State {
    void *caught;
    unsigned int uncaught;
#ifdef __ARM_EABI_UNWINDER__
    void *propagating;
#endif
  };

  __attribute__((noinline)) static State save()
  {
    State state;
    std::memcpy(&state, abi::__cxa_get_globals(), sizeof state);
    return state;
  }

  __attribute__((noinline)) static void restore(const State &state)
  {
    std::memcpy(static_cast<void *>(abi::__cxa_get_globals()), &state, sizeof state);
  }

  __attribute__((noinline)) static void clear()
  {
    restore(State());
  }
};

struct Fiber::Entry {
  static void run(context::transfer_t from)
  {
    Fiber &fiber = *static_cast<Fiber *>(from.data);
    fiber.context_ = from.fctx;
#ifdef WT_ASAN
    __sanitizer_finish_switch_fiber(nullptr, &fiber.resumerStack_, &fiber.resumerStackSize_);
#endif
    fiber.body();
    fiber.switchBack(true);
  }
};

Fiber::Fiber(std::function<void()> body) : body_(std::move(body)), size_(kStackSize)
{
  const std::size_t guard = pageSize();
  void *memory = mmap(nullptr, guard + size_, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
  if (memory == MAP_FAILED)
    throw std::bad_alloc();
  memory_ = static_cast<char *>(memory);
  if (mprotect(memory_, guard, PROT_NONE) != 0) {
    munmap(memory_, guard + size_);
    throw std::bad_alloc();
  }
  context_ = context::make_fcontext(memory_ + guard + size_, size_, &Entry::run);
#ifdef WT_TSAN
  tsanFiber_ = __tsan_create_fiber(0);
#endif
}

Fiber::~Fiber()
{
#ifdef WT_TSAN
  __tsan_destroy_fiber(tsanFiber_);
#endif
  munmap(memory_, pageSize() + size_);
}

void Fiber::resume()
{
  const Exceptions::State mine = Exceptions::save();
  Exceptions::clear();
  switchTo();
  Exceptions::restore(mine);
}

void Fiber::suspend()
{
  const Exceptions::State mine = Exceptions::save();
  switchBack(false);
  Exceptions::restore(mine);
}

void Fiber::body()
{
  body_();
  body_ = nullptr;
  finished_ = true;
}

void Fiber::switchTo()
{
#ifdef WT_ASAN
  __sanitizer_start_switch_fiber(&resumerFake_, memory_ + pageSize(), size_);
#endif
#ifdef WT_TSAN
  tsanResumer_ = __tsan_get_current_fiber();
  __tsan_switch_to_fiber(tsanFiber_, 0);
#endif
  context_ = context::jump_fcontext(context_, this).fctx;
#ifdef WT_ASAN
  __sanitizer_finish_switch_fiber(resumerFake_, nullptr, nullptr);
#endif
}

void Fiber::switchBack(bool forGood)
{
#ifdef WT_ASAN
  __sanitizer_start_switch_fiber(forGood ? nullptr : &ownFake_, resumerStack_, resumerStackSize_);
#endif
#ifdef WT_TSAN
  __tsan_switch_to_fiber(tsanResumer_, 0);
#endif
  static_cast<void>(forGood);
  context_ = context::jump_fcontext(context_, this).fctx;
#ifdef WT_ASAN
  __sanitizer_finish_switch_fiber(ownFake_, &resumerStack_, &resumerStackSize_);
#endif
}

void Fiber::trim()
{
#if !defined(WT_ASAN) && !defined(WT_TSAN)
  // While the body is suspended its context is its stack pointer. A page below it stays, for the red zone.
  const std::size_t page = pageSize();
  const auto used = reinterpret_cast<std::uintptr_t>(context_) & ~(page - 1);
  const auto bottom = reinterpret_cast<std::uintptr_t>(memory_) + page;
  if (!finished_ && used > bottom + page)
    madvise(memory_ + page, used - page - bottom, MADV_DONTNEED);
#endif
}

} // namespace Engine
} // namespace Wt
