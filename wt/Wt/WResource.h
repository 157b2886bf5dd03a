// SPDX-License-Identifier: MIT
#ifndef WT_WRESOURCE_H_
#define WT_WRESOURCE_H_

#include <Wt/Http/Request>
#include <Wt/Http/Response>
#include <Wt/WObject>
#include <Wt/WSignal>
#include <Wt/WString>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>

namespace Wt
{

/**
 * Something that the browser gets by a URL of its own, within a session: a download, an image that is made on
 * demand.
 *
 * Every derived class calls beingDeleted() first thing in its destructor.
 */
class WResource : public WObject
{
public:
  enum DispositionType { NoDisposition, Attachment, Inline };

  explicit WResource(WObject *parent = nullptr);
  ~WResource() override;

  /// The name under which a browser saves it.
  void suggestFileName(const WString &name, DispositionType dispositionType = Attachment);
  const WString &suggestedFileName() const { return fileName_; }
  void setDispositionType(DispositionType type);
  DispositionType dispositionType() const { return disposition_; }

  /// Gives it a new URL, so that browsers ask for it anew, and emits dataChanged().
  void setChanged();
  Signal<> &dataChanged() { return dataChanged_; }
  /// An upload's progress: bytes got, and bytes in all.
  Signal<std::uint64_t, std::uint64_t> &dataReceived() { return dataReceived_; }

  /// Without effect: a resource is always found below its session.
  void setInternalPath(const std::string &path) { internalPath_ = path; }
  std::string internalPath() const { return internalPath_; }

  /// Makes a new URL. Needs a session; without one the URL is empty.
  const std::string &generateUrl();
  /// The URL, made when first asked for.
  const std::string &url() const;

  /// Whether handleRequest() runs with the session's lock, so that it may touch widgets.
  void setTakesUpdateLock(bool enabled);
  bool takesUpdateLock() const;

  /// Writes what a browser would get.
  void write(std::ostream &out, const Http::ParameterMap &parameters = Http::ParameterMap());

  /// Answers a request. On a thread of the pool, in parallel with events of the session and with other
  /// requests; WApplication::instance() is set.
  virtual void handleRequest(const Http::Request &request, Http::Response &response) = 0;

protected:
  /// Waits for requests that are being answered, and lets no more come.
  void beingDeleted();

private:
  class Handler;

  WString fileName_;
  DispositionType disposition_ = NoDisposition;
  std::string internalPath_;
  mutable std::string url_;
  std::shared_ptr<Handler> handler_;
  Signal<> dataChanged_;
  Signal<std::uint64_t, std::uint64_t> dataReceived_;

  std::string disposition() const;
  void answer(Http::Request &request, Http::Response &response);
};

} // namespace Wt

#endif // WT_WRESOURCE_H_
