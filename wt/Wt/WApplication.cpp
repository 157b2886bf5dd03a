// SPDX-License-Identifier: MIT
#include "base/OwnTexts.h"
#include "session/Session.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>

namespace Wt
{

struct WApplication::Data {
  WString title;
  WLocale locale;
  std::string theme;
  WMessageResourceBundle bundle;
  int updates = 0;
  bool quitted = false;
};

WApplication::WApplication(const WEnvironment &environment)
    : environment_(environment), session_(environment.session_), data_(std::make_unique<Data>())
{
  session_->setApplication(this);
  data_->locale = environment.locale();
  domRoot_ = new WContainerWidget();
  domRoot_->setStyleClass("Wt-domRoot");
  root_ = new WContainerWidget(domRoot_);
  root_->resize(WLength(), WLength(100, WLength::Percentage));
  session_->page().setRoot(domRoot_);
  session_->page().setLanguage(data_->locale.name());
}

WApplication::~WApplication()
{
  // Timers and other children first: they may still use widgets.
  while (!children().empty())
    delete children().back();
  session_->page().setRoot(nullptr);
  delete domRoot_;
  domRoot_ = root_ = nullptr;
  data_.reset();
  session_->setApplication(nullptr);
}

WApplication *WApplication::instance()
{
  Engine::Session *session = Engine::Session::current();
  return session ? session->application() : nullptr;
}

void WApplication::setTitle(const WString &title)
{
  data_->title = title;
  session_->page().setTitle(title.toUTF8());
}

const WString &WApplication::title() const
{
  return data_->title;
}

void WApplication::setCssTheme(const std::string &theme)
{
  data_->theme = theme;
}

std::string WApplication::cssTheme() const
{
  return data_->theme;
}

void WApplication::useStyleSheet(const std::string &url)
{
  session_->page().addStyleSheet(url);
}

void WApplication::setLocale(const WLocale &locale)
{
  data_->locale = locale;
  session_->page().setLanguage(locale.name());
  refresh();
}

const WLocale &WApplication::locale() const
{
  return data_->locale;
}

WMessageResourceBundle &WApplication::messageResourceBundle()
{
  return data_->bundle;
}

void WApplication::redirect(const std::string &url)
{
  session_->redirect(url);
}

void WApplication::quit()
{
  quit(WString::fromUTF8(
      Engine::ownText("Wt.QuittedMessage", "The session has ended. Reload the page to begin a new one.")));
}

void WApplication::quit(const WString &restartMessage)
{
  data_->quitted = true;
  session_->quit(restartMessage.toUTF8());
}

bool WApplication::isQuited() const
{
  return data_->quitted;
}

void WApplication::enableUpdates(bool enabled)
{
  data_->updates += enabled ? 1 : -1;
}

bool WApplication::updatesEnabled() const
{
  return data_->updates > 0;
}

void WApplication::triggerUpdate()
{
  if (updatesEnabled())
    session_->push();
}

void WApplication::processEvents()
{
  session_->processEvents();
}

void WApplication::waitForEvent()
{
  session_->waitForEvent();
}

std::string WApplication::url(const std::string &internalPath) const
{
  std::string path = session_->deploymentPath();
  if (internalPath.size() > 1)
    path += (path.back() == '/' ? "" : "/") + internalPath.substr(internalPath[0] == '/' ? 1 : 0);
  return path + "?wtd=" + sessionId();
}

std::string WApplication::sessionId() const
{
  return session_->publicId();
}

std::int64_t WApplication::maximumRequestSize() const
{
  return session_->config().maxRequestSize;
}

void WApplication::initialize() {}

void WApplication::finalize() {}

void WApplication::refresh()
{
  data_->bundle.refresh();
  if (data_->title.refresh())
    session_->page().setTitle(data_->title.toUTF8());
  session_->page().setTexts(Engine::ownScriptTexts());
  domRoot_->refresh();
}

void WApplication::notify(const WEvent &event)
{
  session_->deliver(event);
}

void WApplication::unload()
{
  quit();
}

WApplication::UpdateLock::UpdateLock(WApplication *application)
{
  const auto session = application->session_->shared_from_this();
  bool alreadyHeld = false;
  held_ = session->lock(alreadyHeld);
  if (!held_ || alreadyHeld)
    return;
  session_ = session;
  former_ = Engine::Session::makeCurrent(session.get());
}

WApplication::UpdateLock::UpdateLock(UpdateLock &&other) noexcept
    : session_(std::move(other.session_)), former_(other.former_), held_(other.held_)
{
  other.held_ = false;
}

WApplication::UpdateLock::~UpdateLock()
{
  if (!session_)
    return;
  Engine::Session::makeCurrent(former_);
  session_->unlock();
}

} // namespace Wt
