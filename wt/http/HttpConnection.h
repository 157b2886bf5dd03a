// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_HTTP_CONNECTION_H_
#define WT_HTTP_HTTP_CONNECTION_H_

#include "http/FileHandle.h"
#include "http/HttpService.h"
#include "http/RequestParser.h"
#include "http/ResourcePipe.h"
#include "http/Response.h"
#include "http/UploadBody.h"
#include "http/WebSocketLink.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

class ByteChannel;

/// Whom a connection talks to, and how.
struct Peer {
  std::string address;
  bool secure = false;     ///< by TLS
  bool sharedPort = false; ///< the port takes TLS, too
};

/**
 * One connection of a browser: takes requests apart, one after the other, and answers them, or becomes a
 * WebSocket. It knows no socket: bytes come by received(), and go by a channel. Network thread only.
 */
class HttpConnection : public std::enable_shared_from_this<HttpConnection>
{
public:
  using TimePoint = NetworkLoop::TimePoint;

  HttpConnection(HttpService &service, ByteChannel &channel, Peer peer);
  ~HttpConnection();

  /// The next bytes of the peer.
  void received(std::string_view bytes);
  /// The channel's queue has become short.
  void sent();
  /// The channel is closed and not to be used any more.
  void gone();
  /// The server stops: ends as soon as the peer can be told.
  void shutDown();
  /// When expired() is to be called.
  TimePoint deadline() const { return link_ ? link_->deadline() : deadline_; }
  void expired();
  /// Between requests, so that closing it harms nobody.
  bool idle() const { return state_ == State::Idle; }
  /// Whether its peer has shown to be a page of a session, so that others make room before it does.
  bool isKnown() const;

private:
  enum class State { Idle, Head, Body, Answering, WebSocket, Closing };

  /// The request being read or answered.
  struct Request {
    ParsedHead parsed;
    Engine::RequestHead head;
    bool keepAlive = false;
    bool headOnly = false; ///< the answer has no body
    std::unique_ptr<UploadBody> upload;
    std::uint64_t bodySize = 0;
    TimePoint bodyBegan;
    TimePoint progressTold;
    /// The answer
    int status = 0;
    std::uint64_t sent = 0;
    FileHandle file;
    std::uint64_t fileOffset = 0;
    std::uint64_t fileLeft = 0;
    std::shared_ptr<ResourcePipe> pipe;
    bool begun = false;
    bool chunked = false;
    std::optional<std::uint64_t> promised;
  };

  static constexpr std::size_t shortQueue = 64 * 1024;

  HttpService &service_;
  ByteChannel *channel_;
  Peer peer_;
  State state_ = State::Idle;
  TimePoint deadline_;
  std::string input_;
  std::unique_ptr<RequestParser> parser_;
  std::unique_ptr<Request> request_;
  std::shared_ptr<WebSocketLink> link_;
  bool processing_ = false;
  bool stopping_ = false;

  void process();
  bool step();
  void refuse(int status, const std::string &explanation = std::string());

  /// Requests
  bool understand();
  void describe(std::string target);
  void dispatch();
  void dispatchEntryPoint();
  void answerPage();
  bool redirectToTls();
  bool isInTheClear() const { return peer_.sharedPort && !peer_.secure; }
  void openWebSocket();
  int webSocketRefusal() const;
  bool sameOrigin() const;
  void beginResource();
  int uploadRefusal() const;
  std::string uploadPlace() const;
  void bodyBytes(std::string_view bytes);
  void finishUpload();
  void askResource(std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge);
  void dropUpload();

  /// Answers
  void answer(Response response);
  void sendHead(int status, const std::vector<std::pair<std::string, std::string>> &headers,
                std::optional<std::uint64_t> length, bool hasBody);
  void pumpFile();
  void pumpResource();
  void beginResourceAnswer(const ResourcePipe::Head &head, bool finished, std::size_t size);
  void sendResourceBytes(std::string bytes);
  void finishAnswer();
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_HTTP_CONNECTION_H_
