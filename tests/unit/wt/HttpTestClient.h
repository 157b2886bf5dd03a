// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_WT_HTTP_TEST_CLIENT_H_
#define TESTS_UNIT_WT_HTTP_TEST_CLIENT_H_

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <openssl/ssl.h>
#include <string>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

/// A browser's end of a connection to a port of this machine; reading gives up after a minute.
class HttpTestClient
{
public:
  enum Kind { Plain, Tls };

  explicit HttpTestClient(unsigned short port, Kind kind = Plain, int receiveBuffer = 0)
  {
    socket_ = ::socket(AF_INET, SOCK_STREAM, 0);
    if (receiveBuffer > 0)
      ::setsockopt(socket_, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    const int on = 1;
    ::setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    const timeval limit = {60, 0};
    ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    connected_ = ::connect(socket_, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    if (connected_ && kind == Tls)
      connected_ = handshake();
  }
  HttpTestClient(const HttpTestClient &) = delete;
  ~HttpTestClient()
  {
    SSL_free(session_);
    SSL_CTX_free(context_);
    ::close(socket_);
  }

  bool connected() const { return connected_; }
  std::string tlsVersion() const { return session_ ? SSL_get_version(session_) : ""; }

  void say(const std::string &bytes)
  {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
      const long n = session_
                         ? SSL_write(session_, bytes.data() + sent, static_cast<int>(bytes.size() - sent))
                         : ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
      if (n <= 0)
        return;
      sent += static_cast<std::size_t>(n);
    }
  }

  /// Up to and with that text, or all there is when the server closes.
  std::string hearUntil(const std::string &end)
  {
    std::size_t at = std::string::npos;
    while ((at = heard_.find(end)) == std::string::npos && more()) {
    }
    return take(at == std::string::npos ? heard_.size() : at + end.size());
  }
  std::string hear(std::size_t size)
  {
    while (heard_.size() < size && more()) {
    }
    return take(std::min(size, heard_.size()));
  }
  std::string hearAll()
  {
    while (more()) {
    }
    return take(heard_.size());
  }
  /// True if the server closes within the time limit, without having said anything more.
  bool isClosed() { return heard_.empty() && !more() && !timedOut_; }

  /// One whole response with a Content-Length.
  std::string get(const std::string &target, const std::string &more = std::string())
  {
    say("GET " + target + " HTTP/1.1\r\nHost: localhost\r\n" + more + "\r\n");
    const std::string head = hearUntil("\r\n\r\n");
    const std::size_t at = head.find("Content-Length: ");
    return head + (at == std::string::npos ? "" : hear(std::stoul(head.substr(at + 16))));
  }

private:
  int socket_;
  bool connected_ = false;
  bool timedOut_ = false;
  SSL_CTX *context_ = nullptr;
  SSL *session_ = nullptr;
  std::string heard_;

  bool handshake()
  {
    context_ = SSL_CTX_new(TLS_client_method());
    session_ = SSL_new(context_);
    SSL_set_fd(session_, socket_);
    return SSL_connect(session_) == 1;
  }
  bool more()
  {
    char bytes[16384];
    const long n =
        session_ ? SSL_read(session_, bytes, sizeof bytes) : ::recv(socket_, bytes, sizeof bytes, 0);
    timedOut_ = n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK);
    if (n > 0)
      heard_.append(bytes, static_cast<std::size_t>(n));
    return n > 0;
  }
  std::string take(std::size_t size)
  {
    const std::string taken = heard_.substr(0, size);
    heard_.erase(0, size);
    return taken;
  }
};

#endif // TESTS_UNIT_WT_HTTP_TEST_CLIENT_H_
