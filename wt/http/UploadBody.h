// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_UPLOAD_BODY_H_
#define WT_HTTP_UPLOAD_BODY_H_

#include "http/MultipartReader.h"
#include "http/SpoolFile.h"
#include "session/SessionHost.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Wt
{
namespace Net
{

/**
 * Takes in the body of a request for a resource: files of a form go to spool files, its texts become
 * parameters; a body of another type goes to one spool file without a field name. Spool files not taken are
 * removed.
 */
class UploadBody : private MultipartReader::Handler
{
public:
  explicit UploadBody(const std::string &contentType);

  /// False once the body cannot be taken: it is malformed, or the disk is full.
  bool feed(std::string_view bytes);
  /// To be called at the end; false if the body is not whole.
  bool finish();

  std::multimap<std::string, std::string> takeParameters() { return std::move(parameters_); }
  /// The caller becomes the owner of the spool files.
  std::vector<Engine::SpooledFile> takeFiles();

private:
  enum class Type { Form, Parameters, Raw };
  struct Spooled {
    Engine::SpooledFile description;
    SpoolFile file;
  };

  static constexpr std::size_t mostFiles = 16;
  static constexpr std::size_t longestTexts = 64 * 1024;

  Type type_;
  std::optional<MultipartReader> reader_;
  std::multimap<std::string, std::string> parameters_;
  std::vector<Spooled> files_;
  MultipartReader::Part part_;
  std::string text_;
  std::size_t texts_ = 0;
  bool ok_ = true;

  bool partBegins(const MultipartReader::Part &part) override;
  bool partBytes(std::string_view bytes) override;
  bool partEnds() override;
  bool addFile(Engine::SpooledFile description);
  bool addText(std::string_view bytes);
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_UPLOAD_BODY_H_
