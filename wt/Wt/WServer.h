// SPDX-License-Identifier: MIT
#ifndef WT_WSERVER_H_
#define WT_WSERVER_H_

#include <Wt/WApplication>
#include <Wt/WException>
#include <Wt/WGlobal>
#include <Wt/WIOService>
#include <Wt/WLocalizedStrings>
#include <boost/function.hpp>
#include <memory>
#include <string>

namespace Wt
{

namespace Engine
{
class SessionManager;
}

/**
 * The program's web server: one network thread, a pool of workers, and the sessions of its entry points.
 *
 * Differences from the documented API: --ssl-tmp-dh may be left out, because keys are agreed on elliptic
 * curves; if
 * --http and --https name the same address and port, that port takes both; unknown options are named on
 * standard error and in the log.
 */
class WServer
{
public:
  /// What is wrong with the configuration, an address or a certificate, in a sentence.
  class Exception : public WException
  {
  public:
    explicit Exception(const std::string &what);
  };

  /// The path of the program chooses a section of the configuration file.
  explicit WServer(const std::string &wtApplicationPath = "", const std::string &wtConfigurationFile = "");
  WServer(int argc, char *argv[], const std::string &wtConfigurationFile = "");
  WServer(const WServer &) = delete;
  WServer &operator=(const WServer &) = delete;
  /// Stops, if need be.
  virtual ~WServer();

  /// The server of this process, or null.
  static WServer *instance();

  /// Takes the options of the command line, and writes the pid file. Throws Exception.
  void setServerConfiguration(int argc, char *argv[], const std::string &serverConfigurationFile = "");
  /// An empty path means the deployment path. Throws Exception for one that does not begin with "/".
  void addEntryPoint(EntryPointType type, ApplicationCreator callback, const std::string &path = "",
                     const std::string &favicon = "");

  /// False if it runs already. Throws Exception if an address or a certificate cannot be used.
  bool start();
  /// Ends all sessions, closes all connections and ends the threads.
  void stop();
  bool isRunning() const;
  /// The port of the first address, also where any free one was asked for; -1 before start().
  int httpPort() const;

  /// Waits for SIGHUP (reads the certificate anew and goes on), SIGINT, SIGQUIT or SIGTERM (returned).
  static int waitForShutdown(const char *restartWatchFile = nullptr);

  /// Ends the sessions whose browsers have been away for too long. True while sessions remain.
  bool expireSessions();
  /// The pool of worker threads.
  WIOService &ioService();
  /// Runs the function within the session of that id, which WApplication::sessionId() tells.
  void post(const std::string &sessionId, const boost::function<void()> &function);

  /// The texts where no session runs, such as those of a page that gets none; owned. Before start(). Asked
  /// from any thread, one at a time.
  void setLocalizedStrings(WLocalizedStrings *strings);
  /// Null unless set.
  WLocalizedStrings *localizedStrings() const;

  /// For the toolkit itself

  /// The sessions, or null before start().
  Engine::SessionManager *sessions() const;

private:
  struct Impl;
  std::unique_ptr<Impl> impl_;

  void reload();
  void reap();
};

} // namespace Wt

#endif // WT_WSERVER_H_
