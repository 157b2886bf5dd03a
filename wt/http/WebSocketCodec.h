// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_WEB_SOCKET_CODEC_H_
#define WT_HTTP_WEB_SOCKET_CODEC_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// Close codes of the WebSocket protocol that the server uses or understands.
namespace CloseCode
{
constexpr int kNormal = 1000;
constexpr int kGoingAway = 1001;
constexpr int kProtocolError = 1002;
constexpr int kUnsupported = 1003;
constexpr int kNone = 1005;
constexpr int kBadText = 1007;
constexpr int kPolicy = 1008;
constexpr int kTooBig = 1009;
constexpr int kTryLater = 1013;
constexpr int kGoodbye = 4000; ///< the page closes for good
} // namespace CloseCode

/// The server's side of WebSocket framing, without compression: bytes in, whole messages out, and back.
class WebSocketCodec
{
public:
  static constexpr std::size_t maximumMessage = 512 * 1024;

  /// Of a page's first message, which says who it is.
  static constexpr std::size_t maximumGreeting = 32 * 1024;

  /// Told of what the peer says; called from within receive().
  class Handler
  {
  public:
    virtual ~Handler() = default;
    virtual void textMessage(std::string message) = 0;
    virtual void ping(std::string_view payload) = 0;
    virtual void pong() = 0;
    /// The last call. `code` is CloseCode::kNone where the peer gave none.
    virtual void close(int code) = 0;
  };

  /// Takes the next bytes, whole or in pieces. Returns 0, or the code to close with when the peer breaks the
  /// rules.
  int receive(std::string_view bytes, Handler &handler);

  /// How long messages may be from the next frame on; at first as long as a greeting.
  void setLimit(std::size_t bytes) { limit_ = bytes; }
  /// Bytes of a message that is not whole yet.
  std::size_t unfinished() const { return message_.size(); }

  /// Complete frames, ready to be sent.
  static std::string textFrame(std::string_view message);
  static std::string pingFrame();
  static std::string pongFrame(std::string_view payload);
  static std::string closeFrame(int code, std::string_view reason);

  /// The value of Sec-WebSocket-Accept for that key.
  static std::string acceptValue(std::string_view key);
  /// Whether a text is the base64 form of 16 bytes.
  static bool isKey(std::string_view key);

private:
  static constexpr std::size_t longestHead = 14;

  unsigned char head_[longestHead] = {};
  std::uint8_t headSize_ = 0;
  std::uint8_t headWanted_ = 2;
  bool inMessage_ = false;
  bool closed_ = false;
  std::size_t limit_ = maximumGreeting;
  std::uint64_t left_ = 0;
  std::uint64_t position_ = 0;
  std::string message_;
  std::string control_;

  bool isControl() const { return (head_[0] & 0x08) != 0; }
  bool headComplete() const { return headSize_ == headWanted_; }
  int takeHead(std::string_view &bytes);
  int checkFirstTwo();
  int checkLength();
  void takePayload(std::string_view &bytes);
  int finishFrame(Handler &handler);
  int finishControl(Handler &handler);
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_WEB_SOCKET_CODEC_H_
