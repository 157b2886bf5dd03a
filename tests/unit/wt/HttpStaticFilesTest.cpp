// SPDX-License-Identifier: MIT
#include "HttpTestFolder.h"
#include "http/HttpDate.h"
#include "http/RequestParser.h"
#include "http/StaticFiles.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <zlib.h>

using namespace Wt::Net;

namespace
{

class HttpStaticFilesTest : public testing::Test
{
protected:
  HttpTestFolder folder;

  Response ask(const std::string &path, std::vector<std::pair<std::string, std::string>> headers = {},
               bool compression = true)
  {
    if (!files_ || compression != compression_) {
      files_ = std::make_unique<StaticFiles>(folder / "root", compression);
      compression_ = compression;
    }
    ParsedHead request;
    request.method = "GET";
    request.headers = std::move(headers);
    return files_->respond(path, request);
  }

private:
  std::unique_ptr<StaticFiles> files_;
  bool compression_ = true;
};

std::string header(const Response &response, const std::string &name)
{
  for (const auto &field : response.headers)
    if (field.first == name)
      return field.second;
  return std::string();
}

std::string content(const Response &response)
{
  if (!response.file)
    return response.sharedBody ? *response.sharedBody : response.body;
  std::string bytes(response.fileLength, '\0');
  const ssize_t n =
      ::pread(response.file.get(), &bytes[0], bytes.size(), static_cast<off_t>(response.fileOffset));
  return n == static_cast<ssize_t>(bytes.size()) ? bytes : "unreadable";
}

std::string unzipped(const std::string &bytes)
{
  z_stream stream = {};
  inflateInit2(&stream, 15 + 16);
  std::string out(1024 * 1024, '\0');
  stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  stream.next_out = reinterpret_cast<Bytef *>(&out[0]);
  stream.avail_out = static_cast<uInt>(out.size());
  inflate(&stream, Z_FINISH);
  out.resize(stream.total_out);
  inflateEnd(&stream);
  return out;
}

} // namespace

TEST_F(HttpStaticFilesTest, aFileIsServedWithTypeAndValidators)
{
  folder.write("root/themes/wt.css", "body {}");
  const Response response = ask("/themes/wt.css");
  EXPECT_EQ(response.status, 200);
  EXPECT_EQ(content(response), "body {}");
  EXPECT_EQ(header(response, "Content-Type"), "text/css; charset=utf-8");
  EXPECT_EQ(header(response, "Cache-Control"), "no-cache");
  EXPECT_NE(header(response, "ETag"), "");
  EXPECT_NE(header(response, "Last-Modified"), "");
  EXPECT_EQ(header(response, "Vary"), "Accept-Encoding");
}

TEST_F(HttpStaticFilesTest, imagesMayBeKeptForMinutes)
{
  folder.write("root/a.PNG", "png");
  const Response response = ask("/a.PNG");
  EXPECT_EQ(header(response, "Content-Type"), "image/png");
  EXPECT_EQ(header(response, "Cache-Control"), "max-age=600");
}

TEST_F(HttpStaticFilesTest, aPictureWithScriptsStaysAPicture)
{
  folder.write("root/a.svg", "<svg/>");
  EXPECT_THAT(header(ask("/a.svg"), "Content-Security-Policy"), testing::HasSubstr("sandbox"));
}

TEST_F(HttpStaticFilesTest, anUnknownKindIsBytes)
{
  folder.write("root/a.xyz", "?");
  EXPECT_EQ(header(ask("/a.xyz"), "Content-Type"), "application/octet-stream");
}

TEST_F(HttpStaticFilesTest, aFolderShowsItsIndexOnly)
{
  folder.write("root/sub/index.html", "<p>index");
  EXPECT_EQ(content(ask("/sub/")), "<p>index");
  EXPECT_EQ(ask("/sub").status, 404);
  EXPECT_EQ(ask("/").status, 404);
}

TEST_F(HttpStaticFilesTest, nothingOutsideTheRootIsServed)
{
  folder.write("root/a.txt", "inside");
  folder.write("secret.txt", "outside");
  folder.write("root2/b.txt", "beside");
  std::filesystem::create_symlink(folder / "secret.txt", folder / "root/link.txt");
  std::filesystem::create_symlink("../secret.txt", folder / "root/relative.txt");
  std::filesystem::create_directory_symlink(folder.path(), folder / "root/up");
  std::filesystem::create_directory_symlink(folder / "root2", folder / "root/beside");
  for (const char *path : {"/../secret.txt", "/link.txt", "/relative.txt", "/up/secret.txt", "/beside/b.txt",
                           "//../secret.txt", "/a/../../secret.txt", "/./../secret.txt", "/..", "secret.txt",
                           "", "/etc/passwd", "/a.txt/../../secret.txt"})
    EXPECT_EQ(ask(path).status, 404) << path;
  EXPECT_EQ(ask(folder / "secret.txt").status, 404);
  EXPECT_EQ(content(ask("/a.txt")), "inside");
}

TEST_F(HttpStaticFilesTest, aLinkThatStaysInsideIsFollowed)
{
  folder.write("root/a.txt", "inside");
  std::filesystem::create_symlink("a.txt", folder / "root/b.txt");
  EXPECT_EQ(content(ask("/b.txt")), "inside");
}

TEST_F(HttpStaticFilesTest, theRootItselfMayBeALink)
{
  folder.write("real/a.txt", "inside");
  std::filesystem::create_directory_symlink(folder / "real", folder / "root");
  EXPECT_EQ(content(ask("/a.txt")), "inside");
}

TEST_F(HttpStaticFilesTest, twoDotsAnywhereAreNotFound)
{
  folder.write("root/a..b.txt", "x");
  EXPECT_EQ(ask("/a..b.txt").status, 404);
}

TEST_F(HttpStaticFilesTest, hiddenFilesAndWhatIsNoFileAreNotFound)
{
  folder.write("root/.git/config", "x");
  folder.write("root/.secret", "x");
  folder.write("root/.well-known/security.txt", "y");
  ASSERT_EQ(::mkfifo((folder / "root/pipe").c_str(), 0600), 0);
  for (const char *path : {"/.git/config", "/.secret", "/pipe", "/sub/.secret"})
    EXPECT_EQ(ask(path).status, 404) << path;
  EXPECT_EQ(content(ask("/.well-known/security.txt")), "y");
  EXPECT_EQ(ask(std::string("/a.txt\0.png", 11)).status, 404);
}

TEST_F(HttpStaticFilesTest, anUnchangedFileIsNotSentAgain)
{
  folder.write("root/a.txt", "text");
  const Response first = ask("/a.txt");
  const std::string tag = header(first, "ETag");
  const std::string date = header(first, "Last-Modified");
  EXPECT_EQ(ask("/a.txt", {{"if-none-match", tag}}).status, 304);
  EXPECT_EQ(ask("/a.txt", {{"if-none-match", "\"x\", W/" + tag}}).status, 304);
  EXPECT_EQ(ask("/a.txt", {{"if-none-match", "\"x\""}}).status, 200);
  EXPECT_EQ(ask("/a.txt", {{"if-modified-since", date}}).status, 304);
  EXPECT_EQ(ask("/a.txt", {{"if-modified-since", "Sun, 06 Nov 1994 08:49:37 GMT"}}).status, 200);
  EXPECT_EQ(ask("/a.txt", {{"if-modified-since", "nonsense"}}).status, 200);
  EXPECT_EQ(ask("/a.txt", {{"if-none-match", "\"x\""}, {"if-modified-since", date}}).status, 200);
  folder.write("root/a.txt", "longer text");
  EXPECT_EQ(ask("/a.txt", {{"if-none-match", tag}}).status, 200);
}

TEST_F(HttpStaticFilesTest, textsAreCompressedForWhoTakesIt)
{
  const std::string text(20000, 'a');
  folder.write("root/a.js", text);
  folder.write("root/a.png", text);
  const Response zipped = ask("/a.js", {{"accept-encoding", "br, gzip;q=0.5"}});
  EXPECT_EQ(header(zipped, "Content-Encoding"), "gzip");
  EXPECT_LT(zipped.bodySize(), 1000u);
  EXPECT_EQ(unzipped(content(zipped)), text);
  EXPECT_NE(header(zipped, "ETag"), header(ask("/a.js"), "ETag"));
  for (const char *refused : {"", "br", "gzip;q=0", "gzip; q=0.0"})
    EXPECT_EQ(header(ask("/a.js", {{"accept-encoding", refused}}), "Content-Encoding"), "") << refused;
  EXPECT_EQ(header(ask("/a.png", {{"accept-encoding", "gzip"}}), "Content-Encoding"), "");
  EXPECT_EQ(header(ask("/a.js", {{"accept-encoding", "gzip"}}, false), "Content-Encoding"), "");
}

TEST_F(HttpStaticFilesTest, aChangedFileIsCompressedAnew)
{
  folder.write("root/a.js", std::string(1000, 'a'));
  ask("/a.js", {{"accept-encoding", "gzip"}});
  folder.write("root/a.js", std::string(2000, 'b'));
  EXPECT_EQ(unzipped(content(ask("/a.js", {{"accept-encoding", "gzip"}}))), std::string(2000, 'b'));
}

TEST_F(HttpStaticFilesTest, manyCompressedFilesAreAllServedFromASmallCache)
{
  for (int round = 0; round < 2; ++round)
    for (int i = 0; i < 30; ++i) {
      const std::string name = "a" + std::to_string(i) + ".js";
      std::string text(100000, ' ');
      unsigned state = static_cast<unsigned>(i) + 1;
      for (char &c : text)
        c = static_cast<char>('0' + ((state = state * 1103515245u + 12345u) >> 20) % 64);
      if (round == 0)
        folder.write("root/" + name, text);
      EXPECT_EQ(unzipped(content(ask("/" + name, {{"accept-encoding", "gzip"}}))), text);
    }
}

TEST_F(HttpStaticFilesTest, aCompressedSiblingIsServedInstead)
{
  folder.write("root/a.css", "plain");
  folder.write("root/a.css.gz", "compressed bytes");
  const Response response = ask("/a.css", {{"accept-encoding", "gzip"}});
  EXPECT_EQ(content(response), "compressed bytes");
  EXPECT_EQ(header(response, "Content-Encoding"), "gzip");
  EXPECT_EQ(header(response, "Content-Type"), "text/css; charset=utf-8");
  EXPECT_EQ(content(ask("/a.css")), "plain");
}

TEST_F(HttpStaticFilesTest, partsOfAFileAreServed)
{
  folder.write("root/a.txt", "0123456789");
  const Response part = ask("/a.txt", {{"range", "bytes=2-4"}, {"accept-encoding", "gzip"}});
  EXPECT_EQ(part.status, 206);
  EXPECT_EQ(content(part), "234");
  EXPECT_EQ(header(part, "Content-Range"), "bytes 2-4/10");
  EXPECT_EQ(content(ask("/a.txt", {{"range", "bytes=7-"}})), "789");
  EXPECT_EQ(content(ask("/a.txt", {{"range", "bytes=-3"}})), "789");
  EXPECT_EQ(content(ask("/a.txt", {{"range", "bytes=-30"}})), "0123456789");
  EXPECT_EQ(content(ask("/a.txt", {{"range", "bytes=8-100"}})), "89");
  const Response beyond = ask("/a.txt", {{"range", "bytes=10-"}});
  EXPECT_EQ(beyond.status, 416);
  EXPECT_EQ(header(beyond, "Content-Range"), "bytes */10");
  EXPECT_EQ(ask("/a.txt", {{"range", "bytes=-0"}}).status, 416);
  for (const char *odd : {"bytes=4-2", "bytes=a-b", "lines=1-2", "bytes=1-2,4-5", "bytes=", "bytes=-",
                          "bytes=99999999999999999999-"})
    EXPECT_EQ(ask("/a.txt", {{"range", odd}}).status, 200) << odd;
}

TEST_F(HttpStaticFilesTest, aPartIsServedOnlyOfTheFileThatIsMeant)
{
  folder.write("root/a.txt", "0123456789");
  const std::string tag = header(ask("/a.txt"), "ETag");
  EXPECT_EQ(ask("/a.txt", {{"range", "bytes=2-4"}, {"if-range", tag}}).status, 206);
  EXPECT_EQ(ask("/a.txt", {{"range", "bytes=2-4"}, {"if-range", "\"old\""}}).status, 200);
}

TEST_F(HttpStaticFilesTest, anEmptyFileIsServed)
{
  folder.write("root/a.css", "");
  const Response response = ask("/a.css", {{"accept-encoding", "gzip"}});
  EXPECT_EQ(response.status, 200);
  EXPECT_EQ(response.bodySize(), 0u);
}

TEST(HttpDateTest, datesGoBothWays)
{
  EXPECT_EQ(httpDate(784111777), "Sun, 06 Nov 1994 08:49:37 GMT");
  std::time_t time = 0;
  EXPECT_TRUE(parseHttpDate("Sun, 06 Nov 1994 08:49:37 GMT", time));
  EXPECT_EQ(time, 784111777);
  for (const char *bad :
       {"", "Sun, 06 Nov 1994 08:49:37", "Mon, 06 Nov 1994 08:49:37 GMT", "Sun, 36 Nov 1994 08:49:37 GMT",
        "Sun, 06 Nov 1994 25:49:37 GMT", "Sun, 06 Foo 1994 08:49:37 GMT", "Sun, 06 Nov -994 08:49:37 GMT"})
    EXPECT_FALSE(parseHttpDate(bad, time)) << bad;
}
