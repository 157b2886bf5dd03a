// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "base/ResourceUrl.h"
#include "http/ContentDisposition.h"
#include "session/ResourceHandler.h"
#include "session/Session.h"

#include <Wt/WResource>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>

namespace Wt
{

/// Stands for a resource in the session, and outlives it while a last request finds out that it has gone.
class WResource::Handler : public Engine::ResourceHandler
{
public:
  explicit Handler(WResource *resource) : resource_(resource) {}

  void serve(Engine::RequestHead head, std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge,
             std::shared_ptr<Engine::ResourceResponse> target) override
  {
    Http::Request request(std::move(head), std::move(files), tooLarge);
    std::string disposition;
    if (!enter(disposition)) {
      target->setStatus(404);
      target->finish();
      return;
    }
    const Leave leave(*this);
    Http::Response response(resource_, *target, disposition);
    try {
      resource_->answer(request, response);
      leave.now();
      if (response.rest_)
        response.rest_(response);
    } catch (const std::exception &e) {
      Engine::log(Engine::LogLevel::Error, "WResource", std::string("a request failed: ") + e.what());
      if (!response.begun_)
        response.setStatus(500);
    }
    response.begin();
    target->finish();
  }

  void progress(std::uint64_t got, std::uint64_t total) override
  {
    // Told within the session, where alone the resource can go.
    if (!gone_)
      resource_->dataReceived_.emit(got, total);
  }

  bool wantsLock() const override { return wantsLock_; }
  void setWantsLock(bool wants) { wantsLock_ = wants; }
  bool isGone() const { return gone_; }

  void waitAndForget()
  {
    std::unique_lock<std::mutex> lock(mutex_);
    gone_ = true;
    idle_.wait(lock, [this] { return running_ == 0; });
  }

private:
  /// Says that the resource is not used any more, once.
  class Leave
  {
  public:
    explicit Leave(Handler &handler) : handler_(&handler) {}
    Leave(const Leave &) = delete;
    ~Leave() { now(); }
    void now() const
    {
      if (Handler *handler = std::exchange(handler_, nullptr)) {
        const std::lock_guard<std::mutex> lock(handler->mutex_);
        --handler->running_;
        handler->idle_.notify_all();
      }
    }

  private:
    mutable Handler *handler_;
  };

  WResource *const resource_;
  std::mutex mutex_;
  std::condition_variable idle_;
  int running_ = 0;
  std::atomic<bool> gone_{false};
  std::atomic<bool> wantsLock_{false};

  bool enter(std::string &disposition)
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (gone_)
      return false;
    ++running_;
    disposition = resource_->disposition();
    return true;
  }
};

WResource::WResource(WObject *parent)
    : WObject(parent), handler_(std::make_shared<Handler>(this)), dataChanged_(this), dataReceived_(this)
{
  Engine::setResourceUrlSource([](WResource *resource) { return resource->url(); });
}

WResource::~WResource()
{
  beingDeleted();
  Engine::Session *session = Engine::Session::current();
  if (session && !url_.empty())
    session->removeResource(id());
}

void WResource::beingDeleted()
{
  handler_->waitAndForget();
}

void WResource::suggestFileName(const WString &name, DispositionType dispositionType)
{
  fileName_ = name;
  disposition_ = dispositionType;
  if (!url_.empty())
    generateUrl();
}

void WResource::setDispositionType(DispositionType type)
{
  disposition_ = type;
}

std::string WResource::disposition() const
{
  if (disposition_ == NoDisposition)
    return std::string();
  return Net::contentDisposition(disposition_ == Attachment ? "attachment" : "inline", fileName_.toUTF8());
}

void WResource::setChanged()
{
  if (!url_.empty())
    generateUrl();
  dataChanged_.emit();
}

const std::string &WResource::generateUrl()
{
  Engine::Session *session = Engine::Session::current();
  url_ = session ? session->addResource(id(), handler_) : std::string();
  return url_;
}

const std::string &WResource::url() const
{
  if (url_.empty())
    const_cast<WResource *>(this)->generateUrl();
  return url_;
}

void WResource::setTakesUpdateLock(bool enabled)
{
  handler_->setWantsLock(enabled);
}

bool WResource::takesUpdateLock() const
{
  return handler_->wantsLock();
}

/// Calls handleRequest() until it leaves nothing to continue.
void WResource::answer(Http::Request &request, Http::Response &response)
{
  std::unique_ptr<Http::ResponseContinuation> current;
  do {
    request.continuation_ = current.get();
    handleRequest(request, response);
    current = std::move(response.next_);
  } while (current &&
           current->pass([this, &response] { return !handler_->isGone() && response.connected(); }));
  request.continuation_ = nullptr;
}

void WResource::write(std::ostream &out, const Http::ParameterMap &parameters)
{
  Engine::RequestHead head;
  head.method = "GET";
  for (const auto &parameter : parameters)
    for (const std::string &value : parameter.second)
      head.parameters.emplace(parameter.first, value);
  Http::Request request(std::move(head), {}, 0);
  Http::Response response(this, out);
  answer(request, response);
  if (response.rest_)
    response.rest_(response);
}

} // namespace Wt
