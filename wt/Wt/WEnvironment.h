// SPDX-License-Identifier: MIT
#ifndef WT_WENVIRONMENT_H_
#define WT_WENVIRONMENT_H_

#include <Wt/WLocale>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{

class WServer;

namespace Engine
{
class Session;
struct RequestHead;
} // namespace Engine

/// What a session knows of its browser and of the request that began it.
class WEnvironment
{
public:
  typedef std::map<std::string, std::vector<std::string>> ParameterMap;

  WEnvironment(const WEnvironment &) = delete;
  WEnvironment &operator=(const WEnvironment &) = delete;

  /// The Host header, with ":port" if the browser sent one.
  const std::string &hostName() const { return hostName_; }
  /// "http" or "https".
  const std::string &urlScheme() const { return urlScheme_; }
  /// The peer's address.
  const std::string &clientAddress() const { return clientAddress_; }
  const std::string &userAgent() const { return userAgent_; }
  const std::string &referer() const { return referer_; }
  /// An empty text if the browser did not send that header.
  const std::string headerValue(const std::string &name) const;
  const ParameterMap &getParameterMap() const { return parameters_; }
  /// The first value of a query parameter, or null.
  const std::string *getParameter(const std::string &name) const;
  const std::vector<std::string> &getParameterValues(const std::string &name) const;
  /// Throws std::runtime_error if there is no such cookie.
  const std::string getCookie(const std::string &name) const;
  const std::string *getCookieValue(const std::string &name) const;
  const std::string &deploymentPath() const { return deploymentPath_; }
  const std::string &internalPath() const { return internalPath_; }
  /// Always true: a browser without script gets no session.
  bool ajax() const { return true; }
  bool javaScript() const { return true; }
  const WLocale &locale() const { return locale_; }
  /// The public name of the session, as in url().
  const std::string &sessionId() const { return sessionId_; }
  /// Minutes east of UTC.
  int timeZoneOffset() const { return timeZoneOffset_; }
  int screenWidth() const { return screenWidth_; }
  int screenHeight() const { return screenHeight_; }
  WServer *server() const { return server_; }

protected:
  WEnvironment();
  virtual ~WEnvironment();

  /// An application with this environment belongs to the session.
  void attach(Engine::Session &session) { session_ = &session; }

  std::string hostName_;
  std::string urlScheme_;
  std::string clientAddress_;
  std::string userAgent_;
  std::string referer_;
  std::string deploymentPath_;
  std::string internalPath_;
  std::string sessionId_;
  std::map<std::string, std::string> headers_; ///< names in lower case
  std::map<std::string, std::string> cookies_;
  ParameterMap parameters_;
  WLocale locale_;
  int timeZoneOffset_ = 0;
  int screenWidth_ = 0;
  int screenHeight_ = 0;

private:
  friend class Engine::Session;
  friend class WApplication;

  void readHead(const Engine::RequestHead &head);
  void readQuery(const std::string &query);
  void readCookies(const std::string &header);

  Engine::Session *session_ = nullptr;
  WServer *server_ = nullptr;
};

} // namespace Wt

#endif // WT_WENVIRONMENT_H_
