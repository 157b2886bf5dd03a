// SPDX-License-Identifier: MIT
#include "Base64.h"
#include "rules/RuleBook.h"
#include "rules/SettingsArchive.h"
#include "rules/SettingsText.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <openssl/rand.h>
#include <string>
#include <system_error>

namespace zelsim
{

namespace
{

constexpr std::uintmax_t kLargestArchive = 32u << 20;

// Whoever reads the folder sees the former archive or the new one, never a half one.
bool writeWhole(const std::filesystem::path &path, const std::string &bytes)
{
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  const std::filesystem::path draft = path.string() + ".new";
  {
    std::ofstream file(draft, std::ios::binary | std::ios::trunc);
    file << bytes;
    if (!file.flush().good())
      return false;
  }
  std::filesystem::permissions(
      draft, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write, error);
  std::filesystem::rename(draft, path, error);
  return !error;
}

// The key that seals what an archive must not tell, made when it is needed first. It never leaves the switch.
bool hasKey(World &world)
{
  if (!world.store.text("systemGlobals", 0, "settingsKey").empty())
    return true;
  unsigned char bytes[32];
  if (RAND_bytes(bytes, sizeof bytes) != 1)
    return false;
  world.store.setText("systemGlobals", 0, "settingsKey", zelwire::encodeBase64(bytes, sizeof bytes));
  return true;
}

Problem zip(World &world, const std::string &password)
{
  if (!hasKey(world))
    return kGeneralFailure;
  const std::string text = settingsText(world);
  // An archive that would be refused when it is needed is worth nothing.
  if (!isSettingsText(text))
    return kGeneralFailure;
  const char *name = password.empty() ? "settings.tar.gz" : "settings.cze";
  const std::string archive = packSettings(text, password);
  const auto path = std::filesystem::path(world.settings.settingsRoot) / name;
  return !archive.empty() && writeWhole(path, archive) ? Problem() : Problem(kGeneralFailure);
}

Problem unzip(World &world, const std::string &file, const std::string &password)
{
  if (file.empty())
    return {kMissingParameter, "settingsFilename"};
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error))
    return {kNotFound, "settingsFilename"};
  if (std::filesystem::file_size(file, error) > kLargestArchive || error)
    return {kTooLarge, "settingsFilename"};
  std::ifstream stream(file, std::ios::binary);
  const std::string archive((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  std::string text;
  const ArchiveResult result = unpackSettings(archive, password, text);
  if (result == ArchiveResult::BadPassword)
    return kNotAuthenticated;
  if (result != ArchiveResult::Good || !isSettingsText(text))
    return {kBadContent, "settingsFilename"};
  world.store.setText("systemGlobals", 0, "pendingSettings", text);
  return kOk;
}

} // namespace

void registerSettingsRules(Rules &rules)
{
  rules.onParameter("swxControl", "settingsAction", [](World &world, Call &call) -> Problem {
    if (call.index != 1)
      return kNotAllowed;
    const std::string password = call.text("settingsPassword");
    const Problem problem = call.text("settingsAction") == "zip"
                                ? zip(world, password)
                                : unzip(world, call.text("settingsFilename"), password);
    // The parsed settings of thousands of devices took far more memory than the switch itself.
    ::malloc_trim(0);
    return problem;
  });
}

} // namespace zelsim
