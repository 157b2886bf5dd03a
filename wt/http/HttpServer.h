// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_HTTP_SERVER_H_
#define WT_HTTP_HTTP_SERVER_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{

namespace Engine
{
class SessionHost;
}

namespace Net
{

/// What a server listens to and serves.
struct HttpSettings {
  struct Endpoint {
    std::string address;     ///< numeric, or a name
    unsigned short port = 0; ///< 0 = any free one
    bool http = false;
    bool tls = false; ///< both: the first byte of a connection decides
  };

  std::vector<Endpoint> endpoints;
  std::string certificateChain;
  std::string privateKey;
  std::string documentRoot;
  bool staticListed = false; ///< whether `staticPaths` was given
  std::vector<std::string> staticPaths;
  std::vector<std::string> entryPoints;
  std::string accessLog; ///< file, "-" for none, "" for standard output
  bool compression = true;
  bool behindProxy = false;
  std::uint64_t maximumBody = 128 * 1024;
  std::vector<std::string> names; ///< by which the server is asked for, beside those that it learns by itself
  std::size_t maximumConnections = 2000;
  std::size_t maximumPerAddress = 1500; ///< leaves room for others beside an office behind one address
};

/// The sockets of a server and the one thread that serves them.
class HttpServer
{
public:
  /// The sessions must outlive the server.
  HttpServer(HttpSettings settings, Engine::SessionHost &sessions);
  /// Stops.
  ~HttpServer();
  HttpServer(const HttpServer &) = delete;
  HttpServer &operator=(const HttpServer &) = delete;

  /// Binds and starts the thread. False, with `error` saying why in a sentence, if anything is not usable.
  bool start(std::string &error);
  /// Closes all sockets and joins the thread. Pages are told that the server goes.
  void stop();
  /// The port of that endpoint, once started.
  unsigned short port(std::size_t endpoint) const;
  /// Reads certificate and key anew for the connections that follow, and opens the access log anew.
  void reload();
  void setMaximumBody(std::uint64_t bytes);

private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_HTTP_SERVER_H_
