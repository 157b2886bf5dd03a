// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "base/StringResolver.h"

#include <Wt/WMessageResourceBundle>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Wt;

namespace
{

thread_local std::string locale;

class MessageBundle : public testing::Test
{
protected:
  MessageBundle()
  {
    std::string name = (std::filesystem::temp_directory_path() / "bundle-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    locale.clear();
    formerLocale_ = Engine::setLocaleSource([] { return locale; });
    formerSink_ =
        Engine::setLogSink([this](Engine::LogLevel, std::string_view, std::string_view) { ++logLines; });
  }
  ~MessageBundle() override
  {
    Engine::setLogSink(formerSink_);
    Engine::setLocaleSource(formerLocale_);
    std::filesystem::remove_all(folder_);
  }

  std::string path(const std::string &name) const { return (folder_ / name).string(); }
  void write(const std::string &name, const std::string &content)
  {
    std::ofstream(path(name), std::ios::binary) << content;
  }
  /// The text of a key in a bundle of its own, or "(none)".
  std::string textOf(const std::string &content, const std::string &key = "k")
  {
    write("one.xml", content);
    WMessageResourceBundle one;
    one.use(path("one"));
    return resolve(one, key);
  }
  static std::string resolve(WMessageResourceBundle &from, const std::string &key)
  {
    std::string result;
    return from.resolveKey(key, result) ? result : "(none)";
  }

  int logLines = 0;
  WMessageResourceBundle bundle;

private:
  std::filesystem::path folder_;
  Engine::LocaleSource formerLocale_;
  Engine::LogSink formerSink_;
};

std::string messages(const std::string &inner)
{
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><messages>" + inner + "</messages>";
}

} // namespace

TEST_F(MessageBundle, resolvesKeysOfAnyCharacters)
{
  write("m.xml", messages("<message id='[RS001]Save &amp; &quot;close&quot;'>Save</message>"));
  bundle.use(path("m"));
  EXPECT_EQ(resolve(bundle, "[RS001]Save & \"close\""), "Save");
  EXPECT_EQ(resolve(bundle, "other"), "(none)");
}

TEST_F(MessageBundle, theFileOfTheLocaleWinsAndTheDefaultFillsTheGaps)
{
  write("m.xml", messages("<message id='a'>default a</message><message id='b'>default b</message>"));
  write("m_de.xml", messages("<message id='a'>deutsch a</message>"));
  bundle.use(path("m"));
  EXPECT_EQ(resolve(bundle, "a"), "default a");
  locale = "de-AT-x";
  EXPECT_EQ(resolve(bundle, "a"), "deutsch a");
  EXPECT_EQ(resolve(bundle, "b"), "default b");
  write("m_de-AT.xml", messages("<message id='b'>b aus Wien</message>"));
  bundle.refresh();
  EXPECT_EQ(resolve(bundle, "b"), "b aus Wien");
  EXPECT_EQ(resolve(bundle, "a"), "default a");
  EXPECT_EQ(bundle.keys(WMessageResourceBundle::Local), std::set<std::string>{"b"});
  EXPECT_EQ(bundle.keys(WMessageResourceBundle::Default).size(), 2u);
  locale = "fr";
  EXPECT_EQ(resolve(bundle, "b"), "default b");
  EXPECT_EQ(logLines, 0);
}

TEST_F(MessageBundle, aLocaleFromABrowserCannotLeaveTheFolder)
{
  write("m.xml", messages("<message id='a'>default</message>"));
  write("secret.xml", messages("<message id='a'>secret</message>"));
  std::filesystem::create_directory(path("m_x"));
  bundle.use(path("m"));
  for (const char *name : {"x/../secret", "../secret", "x/../../etc", "", "en.de", "en de"}) {
    locale = name;
    EXPECT_EQ(resolve(bundle, "a"), "default") << name;
  }
}

TEST_F(MessageBundle, isReadAtTheFirstLookupOnly)
{
  bundle.use(path("later"));
  write("later.xml", messages("<message id='k'>late</message>"));
  EXPECT_EQ(resolve(bundle, "k"), "late");
  EXPECT_EQ(logLines, 0);
}

TEST_F(MessageBundle, refreshReadsAChangedFile)
{
  write("m.xml", messages("<message id='k'>old</message>"));
  bundle.use(path("m"));
  EXPECT_EQ(resolve(bundle, "k"), "old");
  write("m.xml", messages("<message id='k'>newer</message>"));
  EXPECT_EQ(resolve(bundle, "k"), "old");
  bundle.refresh();
  EXPECT_EQ(resolve(bundle, "k"), "newer");
}

TEST_F(MessageBundle, aMissingFileIsLoggedOnce)
{
  bundle.use(path("missing"));
  EXPECT_EQ(logLines, 0);
  EXPECT_EQ(resolve(bundle, "k"), "(none)");
  EXPECT_EQ(resolve(bundle, "k"), "(none)");
  EXPECT_EQ(logLines, 1);
}

TEST_F(MessageBundle, aBrokenFileIsLoggedOnce)
{
  for (const char *content : {"<messages><message id='k'>x</messages>", "<other/>", "", "no xml"}) {
    logLines = 0;
    EXPECT_EQ(textOf(content), "(none)") << content;
    EXPECT_EQ(logLines, 1) << content;
  }
}

TEST_F(MessageBundle, bundlesAreSearchedInTheOrderOfUse)
{
  write("a.xml", messages("<message id='k'>first</message>"));
  write("b.xml", messages("<message id='k'>second</message><message id='l'>l</message>"));
  bundle.use(path("a"));
  bundle.use(path("b"));
  bundle.use(path("a"));
  EXPECT_EQ(resolve(bundle, "k"), "first");
  EXPECT_EQ(resolve(bundle, "l"), "l");
}

TEST_F(MessageBundle, keepsMarkupAsItIs)
{
  EXPECT_EQ(textOf(messages("<message id='k'>a &amp; b &lt;c&gt; &nbsp;&#228;</message>")),
            "a &amp; b &lt;c&gt; &nbsp;&#228;");
  EXPECT_EQ(textOf(messages("<message id='k'>one <b>two</b> <i>three</i></message>")),
            "one <b>two</b> <i>three</i>");
  EXPECT_EQ(textOf(messages("<message id='k'><span/><br/><a href='x?a&amp;b' title='\"'>y</a></message>")),
            "<span></span><br /><a href=\"x?a&amp;b\" title=\"&quot;\">y</a>");
  EXPECT_EQ(textOf(messages("<message id='k'><![CDATA[<b>bold</b> & more]]></message>")),
            "<b>bold</b> & more");
  EXPECT_EQ(textOf(messages("<message id='k'/>")), "");
}

TEST_F(MessageBundle, readsUtf16WithAByteOrderMark)
{
  const std::string text = messages("<message id='k'>plain</message>");
  std::string wide = "\xff\xfe";
  for (char c : text.substr(text.find("<messages")))
    wide += std::string(1, c) + std::string(1, '\0');
  EXPECT_EQ(textOf(wide), "plain");
}

TEST_F(MessageBundle, choosesPluralForms)
{
  write("m.xml",
        "<messages nplurals=\"2\" plural=\"n==1 ? 0 : 1\"><message id='d'>"
        "<plural case='0'>one device</plural><plural case='1'>{1} devices</plural></message></messages>");
  bundle.use(path("m"));
  std::string result;
  EXPECT_TRUE(bundle.resolvePluralKey("d", result, 1));
  EXPECT_EQ(result, "one device");
  EXPECT_TRUE(bundle.resolvePluralKey("d", result, 0));
  EXPECT_EQ(result, "{1} devices");
  EXPECT_FALSE(bundle.resolvePluralKey("e", result, 0));
}
