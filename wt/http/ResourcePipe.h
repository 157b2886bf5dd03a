// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_RESOURCE_PIPE_H_
#define WT_HTTP_RESOURCE_PIPE_H_

#include "session/SessionHost.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Wt
{
namespace Net
{

/**
 * Carries a resource's answer from the worker that writes it to the network thread that sends it. The worker
 * waits when `capacity` bytes are on their way; the network thread never waits.
 */
class ResourcePipe
{
public:
  static constexpr std::size_t capacity = 128 * 1024;

  /// The first line and fields, as the resource gave them.
  struct Head {
    int status = 200;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string mimeType;
    std::optional<std::uint64_t> length;
  };

  /// What has arrived since the last look.
  struct Arrived {
    std::optional<Head> head; ///< set once, with the first bytes or the end
    std::string bytes;
    bool finished = false;
  };

  /// `wake` is called on the worker's thread when there is something to take.
  explicit ResourcePipe(std::function<void()> wake);

  /// Network thread

  Arrived take();
  /// The browser has gone, or the rest is not wanted: the worker's further bytes are dropped and it never
  /// waits.
  void abandon();

  /// Worker thread

  void begin(Head head);
  void push(std::string bytes);
  void finish();
  bool abandoned() const;

private:
  std::function<void()> wake_;
  mutable std::mutex mutex_;
  std::condition_variable room_;
  Arrived arrived_;
  bool told_ = false;
  bool abandoned_ = false;

  void tell(std::unique_lock<std::mutex> &lock);
};

/// What a resource writes its answer to. Ends the answer when it dies.
class ResourceWriter : public Engine::ResourceResponse
{
public:
  explicit ResourceWriter(std::shared_ptr<ResourcePipe> pipe);
  ~ResourceWriter() override;

  void setStatus(int status) override;
  void addHeader(const std::string &name, const std::string &value) override;
  void setMimeType(const std::string &mimeType) override;
  void setContentLength(std::uint64_t length) override;
  std::ostream &out() override;
  void finish() override;
  bool connected() const override;

private:
  class Buffer;

  std::shared_ptr<ResourcePipe> pipe_;
  ResourcePipe::Head head_;
  std::unique_ptr<Buffer> buffer_;
  std::unique_ptr<std::ostream> stream_;
  bool begun_ = false;
  bool finished_ = false;

  void begin();
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_RESOURCE_PIPE_H_
