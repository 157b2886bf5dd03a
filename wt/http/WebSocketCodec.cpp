// SPDX-License-Identifier: MIT
#include "http/WebSocketCodec.h"

#include "base/Utf8.h"

#include <algorithm>
#include <cstring>
#include <openssl/sha.h>

namespace Wt
{
namespace Net
{

namespace
{

constexpr unsigned char kFinalFrame = 0x80;
constexpr unsigned char kMasked = 0x80;
enum Opcode : unsigned char { Continuation = 0, Text = 1, Binary = 2, Close = 8, Ping = 9, Pong = 10 };
constexpr std::size_t kLongestControl = 125;

std::string frame(Opcode opcode, std::string_view payload)
{
  std::string out;
  out.reserve(payload.size() + 10);
  out += static_cast<char>(kFinalFrame | opcode);
  int lengthBytes = 0;
  if (payload.size() <= kLongestControl) {
    out += static_cast<char>(payload.size());
  } else {
    lengthBytes = payload.size() <= 0xffff ? 2 : 8;
    out += static_cast<char>(lengthBytes == 2 ? 126 : 127);
  }
  for (int shift = (lengthBytes - 1) * 8; shift >= 0; shift -= 8)
    out += static_cast<char>(static_cast<std::uint64_t>(payload.size()) >> shift);
  out += payload;
  return out;
}

/// The longest beginning of at most `size` bytes that does not end inside a character.
std::string_view shortened(std::string_view text, std::size_t size)
{
  if (text.size() <= size)
    return text;
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xc0) == 0x80)
    --size;
  return text.substr(0, size);
}

bool isCloseCode(int code)
{
  return (code >= 1000 && code <= 1003) || (code >= 1007 && code <= 1014) || (code >= 3000 && code <= 4999);
}

std::string base64(const unsigned char *bytes, std::size_t size)
{
  static const char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  for (std::size_t i = 0; i < size; i += 3) {
    const unsigned second = i + 1 < size ? bytes[i + 1] : 0u;
    const unsigned third = i + 2 < size ? bytes[i + 2] : 0u;
    const unsigned bits = (unsigned{bytes[i]} << 16) | (second << 8) | third;
    out += digits[bits >> 18];
    out += digits[(bits >> 12) & 63];
    out += i + 1 < size ? digits[(bits >> 6) & 63] : '=';
    out += i + 2 < size ? digits[bits & 63] : '=';
  }
  return out;
}

} // namespace

int WebSocketCodec::receive(std::string_view bytes, Handler &handler)
{
  while (!closed_) {
    if (!headComplete()) {
      if (bytes.empty())
        return 0;
      if (const int code = takeHead(bytes))
        return code;
      if (!headComplete())
        continue;
    }
    takePayload(bytes);
    if (left_ > 0)
      return 0;
    if (const int code = finishFrame(handler))
      return code;
  }
  return 0;
}

int WebSocketCodec::takeHead(std::string_view &bytes)
{
  const std::size_t taken = std::min<std::size_t>(headWanted_ - headSize_, bytes.size());
  std::memcpy(head_ + headSize_, bytes.data(), taken);
  bytes.remove_prefix(taken);
  headSize_ = static_cast<std::uint8_t>(headSize_ + taken);
  if (!headComplete())
    return 0;
  return headWanted_ == 2 ? checkFirstTwo() : checkLength();
}

int WebSocketCodec::checkFirstTwo()
{
  const unsigned char opcode = head_[0] & 0x0f;
  const unsigned char shortLength = head_[1] & 0x7f;
  if ((head_[0] & 0x70) != 0 || (head_[1] & kMasked) == 0)
    return CloseCode::kProtocolError;
  if (opcode == Binary)
    return CloseCode::kUnsupported;
  if (isControl()) {
    if (opcode > Pong || (head_[0] & kFinalFrame) == 0 || shortLength > kLongestControl)
      return CloseCode::kProtocolError;
  } else if (opcode > Text || (opcode == Continuation) != inMessage_) {
    return CloseCode::kProtocolError;
  }
  headWanted_ = static_cast<std::uint8_t>(2 + 4 + (shortLength == 126 ? 2 : shortLength == 127 ? 8 : 0));
  return 0;
}

int WebSocketCodec::checkLength()
{
  const std::size_t lengthBytes = headWanted_ - 6u;
  left_ = lengthBytes ? 0 : head_[1] & 0x7fu;
  for (std::size_t i = 0; i < lengthBytes; ++i)
    left_ = (left_ << 8) | head_[2 + i];
  if ((lengthBytes == 2 && left_ <= kLongestControl) || (lengthBytes == 8 && left_ <= 0xffff))
    return CloseCode::kProtocolError;
  position_ = 0;
  if (!isControl() && left_ > limit_ - std::min(limit_, message_.size()))
    return CloseCode::kTooBig;
  return 0;
}

void WebSocketCodec::takePayload(std::string_view &bytes)
{
  const std::size_t taken = static_cast<std::size_t>(std::min<std::uint64_t>(left_, bytes.size()));
  std::string &target = isControl() ? control_ : message_;
  const unsigned char *mask = head_ + headWanted_ - 4;
  const std::size_t start = target.size();
  target.append(bytes.data(), taken);
  for (std::size_t i = start; i < target.size(); ++i)
    target[i] = static_cast<char>(target[i] ^ static_cast<char>(mask[position_++ & 3]));
  left_ -= taken;
  bytes.remove_prefix(taken);
}

int WebSocketCodec::finishFrame(Handler &handler)
{
  headSize_ = 0;
  headWanted_ = 2;
  if (isControl())
    return finishControl(handler);
  inMessage_ = (head_[0] & kFinalFrame) == 0;
  if (inMessage_)
    return 0;
  std::string message = std::move(message_);
  message_ = std::string();
  if (!Engine::isValidUtf8(message))
    return CloseCode::kBadText;
  handler.textMessage(std::move(message));
  return 0;
}

int WebSocketCodec::finishControl(Handler &handler)
{
  const std::string payload = std::move(control_);
  control_ = std::string();
  const unsigned char opcode = head_[0] & 0x0f;
  if (opcode == Ping) {
    handler.ping(payload);
  } else if (opcode == Pong) {
    handler.pong();
  } else {
    int code = CloseCode::kNone;
    if (payload.size() >= 2)
      code = static_cast<unsigned char>(payload[0]) * 256 + static_cast<unsigned char>(payload[1]);
    if (payload.size() == 1 || (payload.size() >= 2 && !isCloseCode(code)))
      return CloseCode::kProtocolError;
    closed_ = true;
    handler.close(code);
  }
  return 0;
}

std::string WebSocketCodec::textFrame(std::string_view message)
{
  return frame(Text, message);
}

std::string WebSocketCodec::pingFrame()
{
  return frame(Ping, {});
}

std::string WebSocketCodec::pongFrame(std::string_view payload)
{
  return frame(Pong, payload.substr(0, kLongestControl));
}

std::string WebSocketCodec::closeFrame(int code, std::string_view reason)
{
  std::string payload;
  if (code != CloseCode::kNone) {
    payload += static_cast<char>(code >> 8);
    payload += static_cast<char>(code & 0xff);
    payload += shortened(reason, kLongestControl - 2);
  }
  return frame(Close, payload);
}

std::string WebSocketCodec::acceptValue(std::string_view key)
{
  std::string text(key);
  text += "258EAFA5-E914-47DA-95CA-C5AB0DC85B11";
  unsigned char digest[SHA_DIGEST_LENGTH];
  SHA1(reinterpret_cast<const unsigned char *>(text.data()), text.size(), digest);
  return base64(digest, sizeof digest);
}

bool WebSocketCodec::isKey(std::string_view key)
{
  if (key.size() != 24 || key.substr(22) != "==")
    return false;
  return std::all_of(key.begin(), key.begin() + 22, [](char c) {
    const char lower = static_cast<char>(c | 0x20);
    return (c >= '0' && c <= '9') || (lower >= 'a' && lower <= 'z') || c == '+' || c == '/';
  });
}

} // namespace Net
} // namespace Wt
