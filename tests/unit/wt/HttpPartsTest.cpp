// SPDX-License-Identifier: MIT
#include "HttpTestFolder.h"
#include "base/Log.h"
#include "http/ContentDisposition.h"
#include "http/FileHandle.h"
#include "http/HostNames.h"
#include "http/LineLimit.h"
#include "http/MultipartReader.h"
#include "http/Router.h"
#include "http/SpoolFolder.h"
#include "http/UrlCodec.h"
#include "http/WebSocketCodec.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Wt::Net;

namespace
{

std::string chosen(const Router &router, const std::string &path)
{
  const Router::Route route = router.route(path);
  return route.kind == Router::Kind::StaticFile   ? "file"
         : route.kind == Router::Kind::EntryPoint ? "entry " + route.entryPoint
                                                  : "nothing";
}

/// Writes down what it is told.
class PartLog : public MultipartReader::Handler
{
public:
  bool partBegins(const MultipartReader::Part &part) override
  {
    text += "<" + part.fieldName + (part.isFile ? " file " + part.fileName : "") + ">";
    return true;
  }
  bool partBytes(std::string_view bytes) override
  {
    text += bytes;
    return true;
  }
  bool partEnds() override
  {
    text += "</>";
    return true;
  }

  std::string text;
};

} // namespace

TEST(HttpRouterTest, withoutAListOnlyTheEntryPointsOwnPathReachesTheApplication)
{
  Router router;
  router.addEntryPoint("/");
  EXPECT_EQ(chosen(router, "/"), "entry /");
  EXPECT_EQ(chosen(router, "/a"), "file");
  EXPECT_EQ(chosen(router, "/resources/x.css"), "file");
}

TEST(HttpRouterTest, withAListEverythingElseReachesTheApplication)
{
  Router router({"/favicon.ico", "/resources", "/style/"});
  router.addEntryPoint("/");
  EXPECT_EQ(chosen(router, "/"), "entry /");
  EXPECT_EQ(chosen(router, "/anything/else"), "entry /");
  EXPECT_EQ(chosen(router, "/favicon.ico"), "file");
  EXPECT_EQ(chosen(router, "/favicon.icon"), "entry /");
  EXPECT_EQ(chosen(router, "/resources"), "file");
  EXPECT_EQ(chosen(router, "/resources/themes/a"), "file");
  EXPECT_EQ(chosen(router, "/resources2"), "entry /");
  EXPECT_EQ(chosen(router, "/style/x"), "file");
}

TEST(HttpHostNamesTest, everyAddressAndThisMachinesNamesAreOwn)
{
  char name[256] = {};
  ASSERT_EQ(::gethostname(name, sizeof name - 1), 0);
  const HostNames names;
  for (const std::string &host :
       {std::string(name), std::string(name) + ":8443", std::string(name) + ".", std::string("localhost"),
        std::string("LocalHost:1"), std::string("192.0.2.1:443"), std::string("[2001:db8::1]"),
        std::string("[::1]:8443")})
    EXPECT_TRUE(names.isOwn(host)) << host;
  for (const char *host : {"", "evil.example", "localhost.evil.example", "localhost:x", "localhost:1:2",
                           "[::1", "[evil]", "[::1]x", "1.2.3.4.evil.example", "localhost:123456"})
    EXPECT_FALSE(names.isOwn(host)) << host;
}

TEST(HttpHostNamesTest, namesAreAddedWholeOrByDomain)
{
  HostNames names;
  names.add("Kvm.Example");
  names.add("*.switch.example");
  EXPECT_TRUE(names.isOwn("kvm.example:443"));
  EXPECT_TRUE(names.isOwn("north.switch.example"));
  EXPECT_FALSE(names.isOwn("a.north.switch.example"));
  EXPECT_FALSE(names.isOwn("switch.example"));
  EXPECT_FALSE(names.isOwn("x.kvm.example"));
  names.add("*");
  EXPECT_TRUE(names.isOwn("anything.example"));
}

TEST(HttpSpoolFolderTest, whatEndedServersLeftIsRemovedAndNothingElse)
{
  const HttpTestFolder parent;
  for (const char *name : {"uploads-aB3dEf", "uploads-locked", "uploads-of-mine", "upload-aB3dEf"}) {
    std::filesystem::create_directory(parent / name);
    std::ofstream(parent / name + "/upload-1") << "x";
  }
  const FileHandle held(::open((parent / "uploads-locked").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  ASSERT_EQ(::flock(held.get(), LOCK_EX), 0);
  ::setenv("TMPDIR", parent.path().c_str(), 1);
  SpoolFolder::removeLeft();
  ::unsetenv("TMPDIR");
  EXPECT_FALSE(std::filesystem::exists(parent / "uploads-aB3dEf"));
  for (const char *name : {"uploads-locked", "uploads-of-mine", "upload-aB3dEf"})
    EXPECT_TRUE(std::filesystem::exists(parent / name + "/upload-1")) << name;
}

TEST(HttpLineLimitTest, warningsOfStrangersAreBoundedAndTheirNumberIsTold)
{
  std::vector<std::string> lines;
  const auto former = Wt::Engine::setLogSink(
      [&lines](Wt::Engine::LogLevel, std::string_view, std::string_view text) { lines.emplace_back(text); });
  LineLimit limit;
  const NetworkLoop::TimePoint now{};
  for (int i = 0; i < 1000; ++i)
    limit.warn(now, "somebody knocks");
  EXPECT_EQ(lines.size(), LineLimit::kLinesPerMinute);
  lines.clear();
  limit.warn(now + std::chrono::minutes(1), "somebody knocks");
  Wt::Engine::setLogSink(former);
  EXPECT_EQ(lines, (std::vector<std::string>{"970 more warnings were left out.", "somebody knocks"}));
}

TEST(HttpRouterTest, theLongestEntryPointWins)
{
  Router router({"/resources"});
  router.addEntryPoint("/app");
  router.addEntryPoint("/app/admin");
  EXPECT_EQ(chosen(router, "/app/admin/x"), "entry /app/admin");
  EXPECT_EQ(chosen(router, "/app/x"), "entry /app");
  EXPECT_EQ(chosen(router, "/application"), "nothing");
}

TEST(HttpUrlCodecTest, queriesAreDecoded)
{
  const auto pairs = parseQuery("a=1&b=x%20y+z&c&=d&bad=%G1&a=2&e=%C3%BC");
  EXPECT_EQ(pairs.count("a"), 2u);
  EXPECT_EQ(pairs.find("b")->second, "x y z");
  EXPECT_EQ(pairs.find("c")->second, "");
  EXPECT_EQ(pairs.find("e")->second, "\xc3\xbc");
  EXPECT_EQ(pairs.count("bad"), 0u);
}

TEST(HttpUrlCodecTest, aQueryOfManyPairsIsCutShort)
{
  std::string query;
  for (int i = 0; i < 5000; ++i)
    query += "a=1&";
  EXPECT_EQ(parseQuery(query).size(), 100u);
}

TEST(HttpContentDispositionTest, fileNamesStayNames)
{
  EXPECT_EQ(contentDisposition("attachment", "event-history.csv"),
            "attachment; filename=\"event-history.csv\"");
  EXPECT_EQ(contentDisposition("inline", ""), "inline");
  EXPECT_EQ(contentDisposition("attachment", "a\"b.txt"),
            "attachment; filename=\"a_b.txt\"; filename*=UTF-8''a%22b.txt");
  EXPECT_EQ(contentDisposition("attachment", "\xc3\x9c"
                                             "bersicht.csv"),
            "attachment; filename=\"_bersicht.csv\"; filename*=UTF-8''%C3%9Cbersicht.csv");
  EXPECT_EQ(contentDisposition("attachment", "../../etc/passwd\r\nX: y"),
            "attachment; filename=\".._.._etc_passwdX: y\"");
  EXPECT_EQ(contentDisposition("attachment", "\xff.txt"), "attachment; filename=\"?.txt\"");
}

TEST(HttpMultipartReaderTest, boundariesAreFoundHoweverTheyAreWritten)
{
  EXPECT_EQ(MultipartReader::boundaryOf("multipart/form-data; boundary=abc"), "abc");
  EXPECT_EQ(MultipartReader::boundaryOf("Multipart/Form-Data; charset=utf-8; Boundary=\"a b\""), "a b");
  EXPECT_EQ(MultipartReader::boundaryOf("multipart/form-data"), "");
  EXPECT_EQ(MultipartReader::boundaryOf("multipart/mixed; boundary=abc"), "");
  EXPECT_EQ(MultipartReader::boundaryOf("multipart/form-data; boundary=" + std::string(71, 'x')), "");
}

TEST(HttpMultipartReaderTest, partsAreTheSameHoweverTheBytesArrive)
{
  const std::string body =
      "preamble\r\n--b\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\n1\r\n--c\r\n-\r\n--b\r\n"
      "Content-Disposition: form-data; name=f; filename=\"/x/y.bin\"\r\n\r\n\r\n--b--\r\nepilogue";
  for (std::size_t piece = 1; piece <= body.size(); ++piece) {
    PartLog log;
    MultipartReader reader("b", log);
    for (std::size_t at = 0; at < body.size(); at += piece)
      ASSERT_TRUE(reader.feed(std::string_view(body).substr(at, piece)) || reader.complete()) << piece;
    EXPECT_TRUE(reader.complete());
    EXPECT_EQ(log.text, "<a>1\r\n--c\r\n-</><f file y.bin></>") << piece;
  }
}

TEST(HttpWebSocketCodecTest, aCloseReasonIsCutBetweenCharacters)
{
  std::string reason;
  for (int i = 0; i < 100; ++i)
    reason += "\xc3\xbc";
  const std::string frame = WebSocketCodec::closeFrame(1000, reason);
  EXPECT_EQ(frame.size(), 2u + 2u + 122u);
}
