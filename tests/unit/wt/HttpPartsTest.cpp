// SPDX-License-Identifier: MIT
#include "http/ContentDisposition.h"
#include "http/MultipartReader.h"
#include "http/Router.h"
#include "http/UrlCodec.h"
#include "http/WebSocketCodec.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
