// SPDX-License-Identifier: MIT
#ifndef WT_WIO_SERVICE_H_
#define WT_WIO_SERVICE_H_

#include <boost/asio/io_service.hpp>
#include <boost/function.hpp>
#include <functional>
#include <memory>

namespace Wt
{

/**
 * The server's pool of worker threads. Threads are started as they are needed, up to the number that was set:
 * as long as that is not reached there is always one that waits for work. A thread that waits inside a
 * function for longer than some milliseconds does not count.
 */
class WIOService : public boost::asio::io_service
{
public:
  WIOService();
  /// Stops.
  ~WIOService();

  /// At least 1; before start().
  void setThreadCount(int count);
  int threadCount() const;

  void start();
  /// Drops what has not begun, and waits for what has. Not from a thread of the pool.
  void stop();

  /// Runs the function once, on a thread of the pool that works for no session. With 0 milliseconds functions
  /// run one after the other in the order of the calls.
  void schedule(int milliSeconds, const boost::function<void()> &function);
  /// The same as schedule(0, function).
  void post(const boost::function<void()> &function);

  /// For the toolkit itself

  /// Runs the function on a thread of the pool; several may run at the same time.
  void submit(std::function<void()> function);
  /// Runs the function now, on this thread of the pool, and sees to it that others go on meanwhile.
  void perform(const std::function<void()> &function);
  /// The threads that there are at the moment.
  int threadsNow() const;

private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

} // namespace Wt

#endif // WT_WIO_SERVICE_H_
