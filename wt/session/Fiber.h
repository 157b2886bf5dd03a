// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_FIBER_H_
#define WT_SESSION_FIBER_H_

#include <cstddef>
#include <functional>

namespace Wt
{
namespace Engine
{

/**
 * A function with a stack of its own, which can stop in the middle and be resumed later, by any thread, one
 * at a time. The stack is 256 KiB of address space behind a guard page; only what was touched is resident.
 *
 * Code on a fiber may find itself on another thread after suspend(): it must not keep addresses of
 * thread-local objects across it. Exceptions being handled travel with the fiber.
 */
class Fiber
{
public:
  /// The body must not let an exception escape. Throws std::bad_alloc without address space.
  explicit Fiber(std::function<void()> body);
  /// The body has ended, or never began.
  ~Fiber();
  Fiber(const Fiber &) = delete;
  Fiber &operator=(const Fiber &) = delete;

  /// Runs the body until it suspends or ends. Not from the fiber itself.
  void resume();
  /// Goes back to who resumed. Only from the body.
  void suspend();
  bool finished() const { return finished_; }

  /// Gives back the stack's pages that the suspended body does not use.
  void trim();

private:
  struct Entry;
  struct Exceptions;

  void switchTo();
  void switchBack(bool forGood);
  void body();

  std::function<void()> body_;
  char *memory_;
  std::size_t size_;
  void *context_ = nullptr; ///< of the side that does not run
  void *resumerFake_ = nullptr;
  void *ownFake_ = nullptr;
  const void *resumerStack_ = nullptr;
  std::size_t resumerStackSize_ = 0;
  void *tsanFiber_ = nullptr;
  void *tsanResumer_ = nullptr;
  bool finished_ = false;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_FIBER_H_
