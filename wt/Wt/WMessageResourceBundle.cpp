// SPDX-License-Identifier: MIT
#include "base/MessageFile.h"
#include "base/StringResolver.h"

#include <Wt/WMessageResourceBundle>
#include <algorithm>
#include <cctype>

namespace Wt
{

using Engine::MessageFile;

namespace
{

/// The name comes from a browser and goes into a file name.
bool isPlausibleLocale(const std::string &name)
{
  const std::size_t longest = 40;
  return !name.empty() && name.size() <= longest && std::all_of(name.begin(), name.end(), [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_';
  });
}

} // namespace

/// The files of one path.
class WMessageResourceBundle::Resource
{
public:
  explicit Resource(const std::string &path) : path_(path) {}

  const std::string &path() const { return path_; }
  void forget() { loaded_ = false; }

  const MessageFile *local()
  {
    load();
    return local_.get();
  }
  const MessageFile *defaults()
  {
    load();
    return defaults_.get();
  }

  /// Asks the locale's file, then the default one.
  template <typename Find> bool resolve(Find find, std::string &result)
  {
    load();
    for (const MessageFile *file : {local_.get(), defaults_.get()}) {
      if (const std::string *text = file ? find(*file) : nullptr) {
        result = *text;
        return true;
      }
    }
    return false;
  }

private:
  void load()
  {
    std::string locale = Engine::currentLocaleName();
    if (loaded_ && locale == locale_)
      return;
    if (!loaded_)
      defaults_ = MessageFile::at(path_ + ".xml", true);
    loaded_ = true;
    locale_ = locale;
    local_ = nullptr;
    if (!isPlausibleLocale(locale))
      return;
    while (!local_ && !locale.empty()) {
      local_ = MessageFile::at(path_ + "_" + locale + ".xml", false);
      const std::size_t cut = locale.rfind('-');
      locale.erase(cut == std::string::npos ? 0 : cut);
    }
  }

  std::string path_;
  std::string locale_;
  std::shared_ptr<const MessageFile> local_;
  std::shared_ptr<const MessageFile> defaults_;
  bool loaded_ = false;
};

WMessageResourceBundle::WMessageResourceBundle() = default;

WMessageResourceBundle::~WMessageResourceBundle() = default;

void WMessageResourceBundle::use(const std::string &path, bool)
{
  for (const auto &resource : resources_)
    if (resource->path() == path)
      return;
  resources_.push_back(std::make_unique<Resource>(path));
}

const std::set<std::string> WMessageResourceBundle::keys(WFlags<Scope> scope) const
{
  std::set<std::string> result;
  const auto addKeys = [&result](const MessageFile *file) {
    if (!file)
      return;
    for (const auto &[key, text] : file->texts())
      result.insert(key);
  };
  for (const auto &resource : resources_) {
    if (scope & Local)
      addKeys(resource->local());
    if (scope & Default)
      addKeys(resource->defaults());
  }
  return result;
}

void WMessageResourceBundle::refresh()
{
  for (const auto &resource : resources_)
    resource->forget();
}

bool WMessageResourceBundle::resolveKey(const std::string &key, std::string &result)
{
  for (const auto &resource : resources_)
    if (resource->resolve([&key](const MessageFile &file) { return file.find(key); }, result))
      return true;
  return false;
}

bool WMessageResourceBundle::resolvePluralKey(const std::string &key, std::string &result,
                                              std::uint64_t amount)
{
  const auto find = [&key, amount](const MessageFile &file) { return file.findPlural(key, amount); };
  for (const auto &resource : resources_)
    if (resource->resolve(find, result))
      return true;
  return false;
}

} // namespace Wt
