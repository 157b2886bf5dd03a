// SPDX-License-Identifier: MIT
#ifndef WT_WAPPLICATION_H_
#define WT_WAPPLICATION_H_

#include <Wt/WEnvironment>
#include <Wt/WEvent>
#include <Wt/WLocale>
#include <Wt/WMessageResourceBundle>
#include <Wt/WObject>
#include <Wt/WString>
#include <boost/function.hpp>
#include <cstdint>
#include <memory>
#include <string>

namespace Wt
{

class WApplication;
class WContainerWidget;

namespace Engine
{
class Session;
struct WidgetAccess;
} // namespace Engine

typedef boost::function<WApplication *(const WEnvironment &)> ApplicationCreator;

/// One browser's session, as the program sees it.
class WApplication : public WObject
{
public:
  explicit WApplication(const WEnvironment &environment);
  ~WApplication() override;

  /// The application of the session that this thread works for, or null.
  static WApplication *instance();

  const WEnvironment &environment() const { return environment_; }
  WContainerWidget *root() const { return root_; }

  void setTitle(const WString &title);
  const WString &title() const;

  /// Loads resources/themes/NAME/wt.css. To be called in the constructor.
  void setCssTheme(const std::string &theme);
  std::string cssTheme() const;
  /// Loads a style sheet beside the theme's; relative to the deployment path.
  void useStyleSheet(const std::string &url);

  void setLocale(const WLocale &locale);
  const WLocale &locale() const;
  WMessageResourceBundle &messageResourceBundle();

  /// Sends the browser elsewhere when the event's response arrives. Does not end the session.
  void redirect(const std::string &url);
  /// Ends the session once the event is done.
  void quit();
  /// The message shows if the user touches the dead page.
  void quit(const WString &restartMessage);
  bool isQuited() const;
  bool hasQuit() const { return isQuited(); }

  /// Counted: each true needs its false.
  void enableUpdates(bool enabled = true);
  bool updatesEnabled() const;
  /// Sends pending changes. Inside the handling of an event that happens anyway.
  void triggerUpdate();

  /// Gives the thread the session as long as it lives. Holds at once on the thread that has it already.
  class UpdateLock
  {
  public:
    explicit UpdateLock(WApplication *application);
    UpdateLock(const UpdateLock &) = delete;
    UpdateLock(UpdateLock &&other) noexcept;
    ~UpdateLock();
    /// False if the session is dead.
    explicit operator bool() const { return held_; }

  private:
    std::shared_ptr<Engine::Session> session_; ///< null where nothing needs to be released
    Engine::Session *former_ = nullptr;
    bool held_ = false;
  };
  UpdateLock getUpdateLock() { return UpdateLock(this); }

  /// Renders, and handles one event. Throws WException if the session has ended.
  void processEvents();
  /// Renders, and waits until an event was handled. Throws WException if the session has ended.
  void waitForEvent();

  /// The page's URL, with the session's public name.
  std::string url(const std::string &internalPath = std::string()) const;
  std::string sessionId() const;
  std::int64_t maximumRequestSize() const;

  /// Called before the first event, and before the destructor.
  virtual void initialize();
  virtual void finalize();
  /// Looks up all texts anew.
  virtual void refresh();

protected:
  /// Every event of the session passes here. Without the base's call the event is dropped.
  virtual void notify(const WEvent &event);
  /// The page was left for good. The base quits.
  virtual void unload();

private:
  friend class Engine::Session;
  friend struct Engine::WidgetAccess;
  struct Data;

  Engine::Session &session() const { return *session_; }

  const WEnvironment &environment_;
  Engine::Session *session_;
  std::unique_ptr<Data> data_;
  WContainerWidget *domRoot_; ///< holds root() and the dialogs
  WContainerWidget *root_;
};

} // namespace Wt

#define wApp Wt::WApplication::instance()

#endif // WT_WAPPLICATION_H_
