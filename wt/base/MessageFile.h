// SPDX-License-Identifier: MIT
#ifndef WT_BASE_MESSAGE_FILE_H_
#define WT_BASE_MESSAGE_FILE_H_

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Wt
{
namespace Engine
{

/// The texts of one file of translated messages. Not changed once read, so all sessions share it.
class MessageFile
{
public:
  typedef std::unordered_map<std::string, std::string> Texts;

  /// Reads the XML; null and `error` if it is none of ours.
  static std::shared_ptr<const MessageFile> parse(const char *data, std::size_t size, std::string &error);

  /// What lies at the path, as it is now: read again only if the file has changed. Null if there is no usable
  /// file; a broken one, and a missing one that is `expected`, is logged once.
  static std::shared_ptr<const MessageFile> at(const std::string &path, bool expected);

  const std::string *find(const std::string &key) const;
  /// The form that the file's plural rule gives for the amount.
  const std::string *findPlural(const std::string &key, std::uint64_t amount) const;
  const Texts &texts() const { return texts_; }

private:
  Texts texts_;
  std::unordered_map<std::string, std::vector<std::string>> plurals_;
  std::string pluralRule_;
  int pluralForms_ = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_MESSAGE_FILE_H_
