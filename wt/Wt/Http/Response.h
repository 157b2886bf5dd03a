// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_RESPONSE_API_H_
#define WT_HTTP_RESPONSE_API_H_

#include <boost/any.hpp>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

namespace Wt
{

class WFileResource;
class WResource;

namespace Engine
{
class ResourceResponse;
}

namespace Http
{

class Response;

/// Lets a resource go on with an answer in a later call of handleRequest(), once what it wrote is on its way.
class ResponseContinuation
{
public:
  ~ResponseContinuation();
  void setData(const boost::any &data) { data_ = data; }
  const boost::any &data() const { return data_; }
  /// The next call waits for haveMoreData().
  void waitForMoreData();
  /// From any thread.
  void haveMoreData();
  bool isWaitingForMoreData() const;
  WResource *resource() const { return resource_; }

private:
  friend class Response;
  friend class Wt::WResource;
  struct Gate;

  explicit ResponseContinuation(WResource *resource);
  /// False if the resource goes before there is more data.
  bool pass(const std::function<bool()> &goOn) const;

  WResource *resource_;
  boost::any data_;
  std::unique_ptr<Gate> gate_;
};

/// The answer to a request for a resource. Status, type and headers are sent when out() is first used.
class Response
{
public:
  Response(const Response &) = delete;
  Response &operator=(const Response &) = delete;
  ~Response();

  /// 200 by default.
  void setStatus(int status);
  void setMimeType(const std::string &mimeType);
  void addHeader(const std::string &name, const std::string &value);
  void setContentLength(std::uint64_t length);
  std::ostream &out();
  ResponseContinuation *createContinuation();
  /// The continuation made for this call, or null.
  ResponseContinuation *continuation() const { return next_.get(); }

private:
  friend class Wt::WFileResource;
  friend class Wt::WResource;

  Response(WResource *resource, Engine::ResourceResponse &target, std::string disposition);
  Response(WResource *resource, std::ostream &target);
  void begin();
  /// Work that is done when the resource has returned, and does not need it any more.
  void afterwards(std::function<void(Response &)> rest) { rest_ = std::move(rest); }
  bool connected() const;

  WResource *resource_;
  Engine::ResourceResponse *target_ = nullptr; ///< null when only the body is wanted, in `stream_`
  std::ostream *stream_ = nullptr;
  std::string disposition_;
  bool begun_ = false;
  std::unique_ptr<ResponseContinuation> next_;
  std::function<void(Response &)> rest_;
};

} // namespace Http
} // namespace Wt

#endif // WT_HTTP_RESPONSE_API_H_
