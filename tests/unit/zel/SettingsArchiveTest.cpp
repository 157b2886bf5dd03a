// SPDX-License-Identifier: MIT
#include "rules/SettingsArchive.h"

#include "StoreTest.h"
#include "rules/SealedBox.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace
{

std::string contentOf(const std::string &path)
{
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class SettingsFile : public StoreTest
{
protected:
  int save(const char *password)
  {
    return set("swxControl", 1, {{"settingsAction", "zip"}, {"settingsPassword", password}});
  }

  int load(const std::string &file, const char *password)
  {
    return set("swxControl", 1,
               {{"settingsAction", "unzip"}, {"settingsFilename", file}, {"settingsPassword", password}});
  }

  std::string path(const char *name) const { return store.settingsDirectory() + "/" + name; }

  std::string write(const std::string &bytes)
  {
    const std::string file = store.directory() + "/upload";
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

  void restartSwitch()
  {
    ASSERT_EQ(0, set("swx", 1, {{"reset", "cold_reboot"}}));
    ASSERT_FALSE(store.control({"jump", "12"}).failed);
    for (int i = 0; i < 500; ++i) {
      reconnect();
      if (ZelClient_isValid(client) && text("swx", 1, "status") == "ready")
        return;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    FAIL() << "the switch does not come back";
  }
};

TEST_F(SettingsFile, withoutAPasswordIsAPlainArchive)
{
  ASSERT_EQ(0, save(""));
  const std::string archive = contentOf(path("settings.tar.gz"));
  EXPECT_EQ("\x1f\x8b", archive.substr(0, 2));
  EXPECT_FALSE(std::filesystem::exists(path("settings.cze")));
  std::string text;
  EXPECT_EQ(zelsim::ArchiveResult::Good, zelsim::unpackSettings(archive, "", text));
  EXPECT_NE(std::string::npos, text.find("hlindqvist"));
  EXPECT_EQ(std::string::npos, text.find("shift-lead-2"));
}

TEST_F(SettingsFile, withAPasswordCanBeReadWithItOnly)
{
  ASSERT_EQ(0, save("secret1"));
  const std::string file = path("settings.cze");
  EXPECT_EQ(std::string::npos, contentOf(file).find("hlindqvist"));
  EXPECT_EQ(1103, load(file, "secret2"));
  EXPECT_EQ(1103, load(file, ""));
  EXPECT_EQ(0, load(file, "secret1"));
}

TEST_F(SettingsFile, isForItsOwnerOnly)
{
  ASSERT_EQ(0, save(""));
  const auto mode = std::filesystem::status(path("settings.tar.gz")).permissions();
  EXPECT_EQ(std::filesystem::perms::none, mode & std::filesystem::perms::others_all);
  EXPECT_EQ(std::filesystem::perms::none, mode & std::filesystem::perms::group_all);
}

TEST_F(SettingsFile, takesEffectAtTheNextRestart)
{
  ASSERT_EQ(0, set("systemGlobals", 0, {{"nevoBannerText", "saved"}}));
  ASSERT_EQ(0, set("rx", 3, {{"location", "saved place"}}));
  ASSERT_EQ(0, save("pw"));
  ASSERT_EQ(0, set("systemGlobals", 0, {{"nevoBannerText", "later"}}));
  ASSERT_EQ(0, set("rx", 3, {{"location", "later place"}}));
  ASSERT_EQ(0, remove("user", 8));
  ASSERT_EQ(0, load(path("settings.cze"), "pw"));
  EXPECT_EQ("later", text("systemGlobals", 0, "nevoBannerText"));
  restartSwitch();
  EXPECT_EQ("saved", text("systemGlobals", 0, "nevoBannerText"));
  EXPECT_EQ("saved place", text("rx", 3, "location"));
  EXPECT_EQ("pmoreau", text("user", 8, "name"));
  EXPECT_TRUE(exists("userTargetList", 8));
  EXPECT_EQ(0, logInAdministrator("operator", "operator-1"));
}

TEST_F(SettingsFile, canBeLoadedWhateverTheSwitchHasWrittenItself)
{
  const std::string longName(40, 'n');
  ASSERT_EQ(0, set("rx", 2, {{"name", longName}}));
  const std::string description = "Monitor attributes pulled from receiver " + longName;
  ASSERT_EQ(
      0,
      set("edidControl", 0,
          {{"edidAction", "pull"}, {"rxIndex", 2u}, {"edidName", "M1"}, {"edidDescription", description}}));
  EXPECT_EQ(description.substr(0, 64), text("edid", rows("edid"), "description"));
  ASSERT_EQ(0, save(""));
  EXPECT_EQ(0, load(path("settings.tar.gz"), ""));
}

TEST_F(SettingsFile, isNotWrittenIfItCouldNotBeLoaded)
{
  for (unsigned user = 1; user <= 2; ++user)
    ASSERT_TRUE(store.set("user", user, "role", "user"));
  EXPECT_EQ(1, save(""));
  EXPECT_FALSE(std::filesystem::exists(path("settings.tar.gz")));
}

TEST_F(SettingsFile, keepsThePasswordsOfFirmwareSourcesForThisSwitchOnly)
{
  ASSERT_EQ(0, set("upgrade", 1, {{"username", "loader"}, {"password", "source-secret"}}));
  ASSERT_EQ(0, save(""));
  std::string archived;
  zelsim::unpackSettings(contentOf(path("settings.tar.gz")), "", archived);
  EXPECT_EQ(std::string::npos, archived.find("source-secret"));
  EXPECT_EQ(std::string::npos, archived.find("settingsKey"));
  ASSERT_EQ(0, set("upgrade", 1, {{"password", "other"}}));
  ASSERT_EQ(0, load(path("settings.tar.gz"), ""));
  restartSwitch();
  EXPECT_EQ("source-secret", text("upgrade", 1, "password"));

  ASSERT_TRUE(store.set("systemGlobals", 0, "settingsKey", "that of another switch"));
  ASSERT_EQ(0, load(path("settings.tar.gz"), ""));
  restartSwitch();
  EXPECT_EQ("", text("upgrade", 1, "password"));
  EXPECT_EQ("loader", text("upgrade", 1, "username"));
}

TEST_F(SettingsFile, holdsTheMonitorsThatTransmittersWereGiven)
{
  ASSERT_EQ(0, set("edidControl", 0, {{"edidAction", "push"}, {"txIndex", 4u}, {"edidIndex", 6u}}));
  const std::string pushed = store.get("tx", 4, "edidData");
  ASSERT_EQ(0, save(""));
  ASSERT_EQ(0, set("edidControl", 0, {{"edidAction", "push"}, {"txIndex", 4u}, {"edidIndex", 2u}}));
  ASSERT_NE(pushed, store.get("tx", 4, "edidData"));
  ASSERT_EQ(0, load(path("settings.tar.gz"), ""));
  restartSwitch();
  EXPECT_EQ(pushed, store.get("tx", 4, "edidData"));
}

TEST_F(SettingsFile, thatIsNoneIsRefused)
{
  EXPECT_EQ(7, load(store.directory() + "/nothing", ""));
  EXPECT_EQ(1007, load("", ""));
  EXPECT_EQ(16, load(write("hello"), ""));
  EXPECT_EQ(16, load(write(zelsim::packSettings("hello", "")), ""));
  EXPECT_EQ(16, load(write(zelsim::packSettings("{}", "")), ""));
  ASSERT_EQ(0, save("pw"));
  std::string changed = contentOf(path("settings.cze"));
  changed[changed.size() / 2] ^= 1;
  EXPECT_EQ(1103, load(write(changed), "pw"));
  EXPECT_EQ(16, load(write(changed.substr(4)), "pw"));
}

TEST_F(SettingsFile, withValuesOutOfTheirLimitsIsRefused)
{
  ASSERT_EQ(0, save(""));
  std::string good;
  ASSERT_EQ(zelsim::ArchiveResult::Good,
            zelsim::unpackSettings(contentOf(path("settings.tar.gz")), "", good));
  const auto loadWith = [&](const std::string &from, const std::string &to) {
    std::string text = good;
    const std::size_t at = text.find(from);
    EXPECT_NE(std::string::npos, at) << from;
    text.replace(at, from.size(), to);
    return load(write(zelsim::packSettings(text, "")), "");
  };
  EXPECT_EQ(0, loadWith("\"nevoInactivityTimeout\":10", "\"nevoInactivityTimeout\":11"));
  EXPECT_EQ(16, loadWith("\"nevoInactivityTimeout\":10", "\"nevoInactivityTimeout\":1441"));
  EXPECT_EQ(16, loadWith("\"nevoInactivityTimeout\":10", "\"nevoInactivityTimeouts\":10"));
  EXPECT_EQ(16, loadWith("\"version\":1", "\"version\":2"));
  EXPECT_EQ(16, loadWith("\"systemGlobals\":", "\"systemGlobe\":"));
}

TEST_F(SettingsFile, withoutAnAdministratorIsRefused)
{
  EXPECT_EQ(
      16,
      load(
          write(zelsim::packSettings(
              R"({"format":"switch settings","version":1,"resources":{"user":{"1":{"name":"a","role":"user"}}}})",
              "")),
          ""));
}

TEST_F(SettingsFile, belongsToThisSwitchOnly)
{
  EXPECT_EQ(1106, set("swxControl", 2, {{"settingsAction", "zip"}, {"settingsPassword", ""}}));
  EXPECT_EQ(14, save("123456789012345678901234567890123456789012345678901"));
}

TEST(SealedBox, opensWithItsPasswordAndUnchangedOnly)
{
  const std::string box = zelsim::sealBox("content", "pw");
  EXPECT_TRUE(zelsim::isSealedBox(box));
  EXPECT_NE(box, zelsim::sealBox("content", "pw"));
  std::string plain = "untouched";
  EXPECT_FALSE(zelsim::openBox(box, "PW", plain));
  EXPECT_FALSE(zelsim::openBox(box.substr(0, 20), "pw", plain));
  for (std::size_t i = 0; i < box.size(); i += 7) {
    std::string changed = box;
    changed[i] ^= 1;
    EXPECT_FALSE(zelsim::openBox(changed, "pw", plain)) << i;
  }
  EXPECT_EQ("untouched", plain);
  EXPECT_TRUE(zelsim::openBox(box, "pw", plain));
  EXPECT_EQ("content", plain);
}

TEST(SettingsArchive, survivesWhateverItIsGiven)
{
  const std::string good = zelsim::packSettings("{}", "");
  std::string text;
  for (std::size_t length = 0; length < good.size(); ++length)
    EXPECT_EQ(zelsim::ArchiveResult::BadFormat, zelsim::unpackSettings(good.substr(0, length), "", text));
}

} // namespace
