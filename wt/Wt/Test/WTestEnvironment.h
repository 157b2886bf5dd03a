// SPDX-License-Identifier: MIT
#ifndef WT_TEST_WTESTENVIRONMENT_H_
#define WT_TEST_WTESTENVIRONMENT_H_

#include <Wt/WEnvironment>
#include <Wt/WGlobal>
#include <Wt/WSignal>
#include <memory>
#include <string>

namespace Wt
{

class WDialog;

namespace Test
{

/**
 * An environment for an application object that a test makes on its own stack. The test's thread works for
 * the session as long as the environment lives; the application must be destroyed before it.
 *
 * There is no browser: timers do not tick, and nothing can wait for events. WDialog::exec() emits
 * dialogExecuted() instead, whose slots must end the dialog.
 */
class WTestEnvironment : public WEnvironment
{
public:
  explicit WTestEnvironment(const std::string &applicationPath = std::string(),
                            const std::string &configurationFile = std::string(),
                            EntryPointType type = Application);
  ~WTestEnvironment() override;

  void setParameterMap(const ParameterMap &parameters);
  void setCookies(const std::map<std::string, std::string> &cookies);
  void setHeaderValue(const std::string &name, const std::string &value);
  void setLocale(const WLocale &locale);
  void setHostName(const std::string &hostName);
  void setUrlScheme(const std::string &scheme);
  void setUserAgent(const std::string &userAgent);
  void setReferer(const std::string &referer);
  void setInternalPath(const std::string &internalPath);

  /// Emitted by WDialog::exec().
  Signal<WDialog *> &dialogExecuted() { return dialogExecuted_; }

private:
  struct Host;

  std::unique_ptr<Host> host_;
  Signal<WDialog *> dialogExecuted_;
};

} // namespace Test
} // namespace Wt

#endif // WT_TEST_WTESTENVIRONMENT_H_
