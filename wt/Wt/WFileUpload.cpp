// SPDX-License-Identifier: MIT
#include "base/RawEvent.h"
#include "dom/Document.h"
#include "dom/JsonText.h"
#include "session/ResourceHandler.h"
#include "session/Session.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WFileUpload>
#include <Wt/WProgressBar>
#include <charconv>
#include <cstdio>
#include <functional>
#include <mutex>

namespace Wt
{

namespace
{

std::string withoutFolders(const std::string &name)
{
  const std::size_t at = name.find_last_of("/\\");
  return at == std::string::npos ? name : name.substr(at + 1);
}

void removeFiles(const std::vector<Engine::SpooledFile> &files)
{
  for (const Engine::SpooledFile &file : files)
    std::remove(file.spoolPath.c_str());
}

} // namespace

/// Takes the request with the file, on a thread of the server's, and hands it to the widget within the
/// session.
class WFileUpload::Receiver : public Engine::ResourceHandler, public std::enable_shared_from_this<Receiver>
{
public:
  Receiver(WFileUpload *widget, Engine::Session &session)
      : widget_(widget), session_(session.weak_from_this())
  {
  }

  /// From now on one request is welcome.
  void expect()
  {
    const std::lock_guard<std::mutex> held(mutex_);
    expected_ = true;
  }

  /// The widget is gone or has lost interest. Within the session.
  void dismiss()
  {
    widget_ = nullptr;
    const std::lock_guard<std::mutex> held(mutex_);
    expected_ = false;
  }

  void serve(Engine::RequestHead head, std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge,
             std::shared_ptr<Engine::ResourceResponse> response) override
  {
    const auto session = session_.lock();
    if (!session || head.method != "POST" || !takeTurn()) {
      removeFiles(files);
      response->setStatus(404);
      response->finish();
      return;
    }
    std::vector<Http::UploadedFile> uploads;
    for (const Engine::SpooledFile &file : files)
      uploads.emplace_back(file.spoolPath, withoutFolders(file.clientFileName), file.contentType);
    response->setStatus(tooLarge ? 413 : 200);
    response->setMimeType("text/plain");
    response->setContentLength(0);
    response->finish();
    session->post([self = shared_from_this(), uploads, tooLarge] {
      if (self->widget_)
        self->widget_->received(uploads, tooLarge);
    });
  }

  void progress(std::uint64_t got, std::uint64_t total) override
  {
    if (widget_)
      widget_->progressed(got, total);
  }

private:
  bool takeTurn()
  {
    const std::lock_guard<std::mutex> held(mutex_);
    const bool welcome = expected_;
    expected_ = false;
    return welcome;
  }

  WFileUpload *widget_; ///< touched within the session only
  std::weak_ptr<Engine::Session> session_;
  std::mutex mutex_;
  bool expected_ = false;
};

WFileUpload::WFileUpload(WContainerWidget *parent)
    : WWebWidget(parent), uploaded_("uploaded", this), fileTooLarge_(this, "fileTooLarge"),
      dataReceived_(this)
{
  setInline(true);
}

WFileUpload::~WFileUpload()
{
  barDestroyed_.disconnect();
  if (uploading_ && WApplication::instance())
    WApplication::instance()->enableUpdates(false);
  if (!receiver_)
    return;
  receiver_->dismiss();
  if (Engine::Session *session = Engine::Session::current())
    session->removeResource(id());
}

void WFileUpload::upload()
{
  if (uploading_)
    return;
  uploading_ = true;
  files_.clear();
  WApplication::instance()->enableUpdates(true);
  if (!receiver_)
    receiver_ = std::make_shared<Receiver>(this, *Engine::Session::current());
  receiver_->expect();
  if (progressBar_ && ownsBar())
    progressBar_->show();
  else if (progressBar_)
    hide();
  beginWanted_ = true;
  repaint();
}

void WFileUpload::begin()
{
  Engine::Session &session = *Engine::Session::current();
  std::string arguments;
  Dom::appendJsonString(arguments, session.addResource(id(), receiver_));
  arguments += ',';
  Dom::appendJsonNumber(arguments, session.config().maxRequestSize);
  element_->call("upload", arguments);
}

bool WFileUpload::end()
{
  if (!uploading_)
    return false;
  uploading_ = false;
  beginWanted_ = false;
  WApplication::instance()->enableUpdates(false);
  if (progressBar_ && ownsBar())
    progressBar_->hide();
  repaint();
  return true;
}

void WFileUpload::received(std::vector<Http::UploadedFile> files, std::uint64_t tooLargeSize)
{
  if (tooLargeSize != 0) {
    tooLarge(static_cast<std::int64_t>(tooLargeSize));
    return;
  }
  if (!end())
    return;
  files_ = std::move(files);
  uploaded_.emit();
}

void WFileUpload::tooLarge(std::int64_t size)
{
  if (end())
    fileTooLarge_.emit(size);
}

void WFileUpload::progressed(std::uint64_t got, std::uint64_t total)
{
  if (!uploading_)
    return;
  if (progressBar_) {
    progressBar_->setRange(0, static_cast<double>(total));
    progressBar_->setValue(static_cast<double>(got));
  }
  dataReceived_.emit(got, total);
}

void WFileUpload::handleDomEvent(Dom::Element &at, const Engine::RawEvent &event)
{
  if (event.name == "upload:empty" || event.name == "upload:failed") {
    // Whoever waits for the upload goes on either way, and finds no file.
    received({}, 0);
  } else if (event.name == "upload:toolarge") {
    std::int64_t size = 0;
    const std::string text = event.args.empty() ? std::string() : event.args[0];
    std::from_chars(text.data(), text.data() + text.size(), size);
    tooLarge(size);
  } else {
    WWebWidget::handleDomEvent(at, event);
  }
}

std::string WFileUpload::spoolFileName() const
{
  return empty() ? std::string() : files_.front().spoolFileName();
}

WString WFileUpload::clientFileName() const
{
  return empty() ? WString() : WString::fromUTF8(files_.front().clientFileName());
}

void WFileUpload::stealSpooledFile()
{
  if (!empty())
    files_.front().stealSpoolFile();
}

void WFileUpload::setFileTextSize(int characters)
{
  textSize_ = characters;
  repaint();
}

bool WFileUpload::ownsBar() const
{
  return progressBar_->parent() == this;
}

void WFileUpload::setProgressBar(WProgressBar *bar)
{
  if (bar == progressBar_)
    return;
  barDestroyed_.disconnect();
  if (progressBar_ && ownsBar())
    delete progressBar_;
  progressBar_ = bar;
  if (!bar)
    return;
  if (!bar->parent()) {
    addChild(bar);
    bar->hide();
  } else {
    barDestroyed_ = bar->destroyed().connect(std::bind([this] { progressBar_ = nullptr; }));
  }
  repaint();
}

void WFileUpload::removeChild(WObject *child)
{
  if (child == progressBar_)
    progressBar_ = nullptr;
  WWebWidget::removeChild(child);
}

void WFileUpload::propagateSetEnabled(bool enabled)
{
  WWebWidget::propagateSetEnabled(enabled);
  repaint();
}

const char *WFileUpload::domTag() const
{
  return "form";
}

void WFileUpload::render(Dom::Element &e)
{
  WWebWidget::render(e);
  e.set("!upload", "1");
}

void WFileUpload::renderContents(Dom::Element &e)
{
  if (!input_)
    input_ = e.document().create("input", e.owner());
  input_->set("type", "file");
  input_->setIf(!isEnabled(), "disabled", "");
  input_->set("size", std::to_string(textSize_));
  const WString name = attributeValue("aria-label");
  input_->setIf(!name.empty(), "aria-label", name.toUTF8());
  const bool barInPlace = progressBar_ && ownsBar() && !progressBar_->isHidden();
  input_->setIf(barInPlace, "hidden", "");
  std::vector<Dom::Element *> parts{input_};
  if (progressBar_ && ownsBar())
    if (Dom::Element *bar = elementOf(progressBar_, e.document()))
      parts.push_back(bar);
  e.setChildren(parts);
  if (beginWanted_ && e.attached()) {
    beginWanted_ = false;
    begin();
  }
}

void WFileUpload::domGone(Dom::Element &gone) noexcept
{
  if (&gone == input_)
    input_ = nullptr;
  WWebWidget::domGone(gone);
}

} // namespace Wt
