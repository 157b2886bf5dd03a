// SPDX-License-Identifier: MIT
#ifndef WT_WSTREAM_RESOURCE_H_
#define WT_WSTREAM_RESOURCE_H_

#include <Wt/WResource>
#include <iosfwd>
#include <memory>
#include <string>

namespace Wt
{

/// Base of resources whose content is read from a stream. Understands requests for a part of it.
class WStreamResource : public WResource
{
public:
  explicit WStreamResource(WObject *parent = nullptr);
  explicit WStreamResource(const std::string &mimeType, WObject *parent = nullptr);
  ~WStreamResource() override;

  void setMimeType(const std::string &mimeType);
  /// "text/plain" by default.
  std::string mimeType() const;
  /// Bytes read at a time; 8192 by default.
  int bufferSize() const { return bufferSize_; }
  void setBufferSize(int size);

protected:
  /// Answers with what the stream holds; 404 if it cannot be read.
  void handleRequestPiecewise(const Http::Request &request, Http::Response &response, std::istream &input);

private:
  friend class WFileResource;

  struct Settings;
  std::shared_ptr<Settings> settings_; ///< guarded: requests run in parallel with the session
  int bufferSize_ = 8192;

  /// Sends the head. False if no body follows; otherwise `left` bytes are to be sent from where the input
  /// stands.
  static bool prepare(const Http::Request &request, Http::Response &response, std::istream &input,
                      const std::string &mimeType, std::uint64_t &left);
  static void copy(Http::Response &response, std::istream &input, std::uint64_t left, int bufferSize);
};

} // namespace Wt

#endif // WT_WSTREAM_RESOURCE_H_
