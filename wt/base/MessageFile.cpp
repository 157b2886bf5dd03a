// SPDX-License-Identifier: MIT
#include "base/MessageFile.h"

#include "base/Entities.h"
#include "base/Log.h"
#include "base/PluralRule.h"
#include "base/Utf8.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <mutex>
#include <pugixml.hpp>
#include <sys/stat.h>

namespace Wt
{
namespace Engine
{

namespace
{

const std::size_t kLargestFile = 16 * 1024 * 1024;
const int kMostPluralForms = 16;
const int kDeepestMarkup = 100;

/// Writes the content of a message as the markup that it was.
class MarkupWriter
{
public:
  std::string content(const pugi::xml_node &message)
  {
    writeChildren(message, 0);
    return validUtf8(out_);
  }

private:
  void writeChildren(const pugi::xml_node &parent, int depth)
  {
    for (const pugi::xml_node &child : parent.children()) {
      if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
        out_ += child.value();
      else if (child.type() == pugi::node_element && depth < kDeepestMarkup)
        writeElement(child, depth);
    }
  }

  void writeElement(const pugi::xml_node &element, int depth)
  {
    out_ += '<';
    out_ += element.name();
    for (const pugi::xml_attribute &attribute : element.attributes()) {
      out_ += ' ';
      out_ += attribute.name();
      out_ += "=\"";
      for (const char *c = attribute.value(); *c; ++c)
        out_ += *c == '"' ? std::string("&quot;") : std::string(1, *c);
      out_ += '"';
    }
    if (isVoidElement(element.name())) {
      out_ += " />";
      return;
    }
    out_ += '>';
    writeChildren(element, depth + 1);
    out_ += "</";
    out_ += element.name();
    out_ += '>';
  }

  std::string out_;
};

struct FileState {
  bool exists = false;
  std::int64_t seconds = 0;
  std::int64_t nanoseconds = 0;
  std::int64_t size = 0;
  std::uint64_t inode = 0;

  bool operator==(const FileState &other) const
  {
    return exists == other.exists && seconds == other.seconds && nanoseconds == other.nanoseconds &&
           size == other.size && inode == other.inode;
  }
};

FileState stateOf(const std::string &path)
{
  struct stat info;
  FileState state;
  if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
    return state;
  state.exists = true;
  state.seconds = info.st_mtim.tv_sec;
  state.nanoseconds = info.st_mtim.tv_nsec;
  state.size = info.st_size;
  state.inode = info.st_ino;
  return state;
}

std::shared_ptr<const MessageFile> read(const std::string &path, std::string &error)
{
  std::ifstream in(path, std::ios::binary);
  std::string content;
  if (in)
    content.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  if (!in) {
    error = "cannot be read";
    return nullptr;
  }
  return MessageFile::parse(content.data(), content.size(), error);
}

struct Entry {
  FileState state;
  std::shared_ptr<const MessageFile> file;
  bool known = false;
};

} // namespace

std::shared_ptr<const MessageFile> MessageFile::parse(const char *data, std::size_t size, std::string &error)
{
  if (size > kLargestFile) {
    error = "too large";
    return nullptr;
  }
  // Entities stay as they are, as does the blank between two elements.
  const unsigned flags = (pugi::parse_default | pugi::parse_ws_pcdata) & ~pugi::parse_escapes;
  pugi::xml_document document;
  const pugi::xml_parse_result outcome = document.load_buffer(data, size, flags);
  const pugi::xml_node root = document.document_element();
  if (!outcome || std::strcmp(root.name(), "messages") != 0) {
    error = outcome ? "has no <messages>"
                    : std::string(outcome.description()) + " at byte " + std::to_string(outcome.offset);
    return nullptr;
  }
  auto file = std::make_shared<MessageFile>();
  file->pluralForms_ = std::min(root.attribute("nplurals").as_int(), kMostPluralForms);
  file->pluralRule_ = decodeEntities(root.attribute("plural").value());
  for (const pugi::xml_node &message : root.children("message")) {
    const std::string key = validUtf8(decodeEntities(message.attribute("id").value()));
    if (key.empty())
      continue;
    if (!message.child("plural")) {
      file->texts_[key] = MarkupWriter().content(message);
      continue;
    }
    std::vector<std::string> &forms = file->plurals_[key];
    forms.assign(static_cast<std::size_t>(std::max(file->pluralForms_, 0)), std::string());
    for (const pugi::xml_node &form : message.children("plural")) {
      const unsigned number = form.attribute("case").as_uint();
      if (number < forms.size())
        forms[number] = MarkupWriter().content(form);
    }
  }
  return file;
}

std::shared_ptr<const MessageFile> MessageFile::at(const std::string &path, bool expected)
{
  static std::mutex mutex;
  static std::map<std::string, Entry> entries;
  std::lock_guard<std::mutex> lock(mutex);
  const FileState state = stateOf(path);
  if (!state.exists && !expected && entries.find(path) == entries.end())
    return nullptr;
  Entry &entry = entries[path];
  if (entry.known && entry.state == state)
    return entry.file;
  entry.known = true;
  entry.state = state;
  entry.file = nullptr;
  std::string error = "is missing";
  if (state.exists)
    entry.file = read(path, error);
  if (!entry.file && (state.exists || expected))
    log(LogLevel::Error, "WMessageResourceBundle", path + " " + error);
  return entry.file;
}

const std::string *MessageFile::find(const std::string &key) const
{
  const auto found = texts_.find(key);
  return found == texts_.end() ? nullptr : &found->second;
}

const std::string *MessageFile::findPlural(const std::string &key, std::uint64_t amount) const
{
  const auto found = plurals_.find(key);
  if (found == plurals_.end())
    return nullptr;
  const std::uint64_t form = PluralRule(pluralRule_).form(amount);
  return form < found->second.size() ? &found->second[form] : nullptr;
}

} // namespace Engine
} // namespace Wt
