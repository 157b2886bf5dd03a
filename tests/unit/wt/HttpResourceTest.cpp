// SPDX-License-Identifier: MIT
#include "HttpTestFolder.h"
#include "session/ResourceHandler.h"
#include "testing/MemoryNetwork.h"
#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WFileResource>
#include <Wt/WLink>
#include <Wt/WResource>
#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <sstream>
#include <stdexcept>

using namespace Wt;
using namespace Wt::Testing;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

/// Calls a function for each request.
class FunctionResource : public WResource
{
public:
  using Function = std::function<void(const Http::Request &, Http::Response &)>;

  explicit FunctionResource(Function function, WObject *parent = nullptr)
      : WResource(parent), function_(std::move(function))
  {
  }
  ~FunctionResource() override { beingDeleted(); }
  void handleRequest(const Http::Request &request, Http::Response &response) override
  {
    function_(request, response);
  }

private:
  Function function_;
};

/// Keeps an answer.
class KeptAnswer : public Engine::ResourceResponse
{
public:
  void setStatus(int status_) override { status = status_; }
  void addHeader(const std::string &name, const std::string &value) override
  {
    headers += name + ": " + value + "\n";
  }
  void setMimeType(const std::string &type) override { headers += "type " + type + "\n"; }
  void setContentLength(std::uint64_t length) override
  {
    headers += "length " + std::to_string(length) + "\n";
  }
  std::ostream &out() override { return body; }
  void finish() override { finished = true; }
  bool connected() const override { return true; }

  int status = 200;
  std::string headers;
  std::ostringstream body;
  bool finished = false;
};

/// A site whose only session has one resource, which requests reach as in the server.
class HttpResourceTest : public testing::Test
{
protected:
  HttpTestFolder folder;
  std::unique_ptr<TestSite> site;
  std::unique_ptr<HeadlessBrowser> page;
  WResource *resource = nullptr;
  std::string url;

  void open(const std::function<WResource *(WApplication &)> &make)
  {
    site = std::make_unique<TestSite>(TestSite::building([this, make](WApplication &application) {
      resource = make(application);
      url = resource->url();
    }));
    page = site->openPage();
  }

  /// Runs a function within the session.
  void within(const std::function<void()> &function)
  {
    const std::string id = url.substr(url.find("wtd=") + 4);
    site->manager->post(id.substr(0, id.find('&')), [this, function] {
      function();
      url = resource->url();
    });
    site->scheduler.run();
  }

  std::shared_ptr<KeptAnswer> request(Engine::RequestHead head, std::vector<Engine::SpooledFile> files = {},
                                      std::uint64_t tooLarge = 0)
  {
    head.query = url.substr(url.find('?') + 1);
    for (const char *name : {"wtd", "request", "resource", "rand"}) {
      const std::size_t at = url.find(std::string(name) + "=") + std::string(name).size() + 1;
      head.parameters.emplace(name, url.substr(at, url.find('&', at) - at));
    }
    auto answer = std::make_shared<KeptAnswer>();
    site->manager->resource(head, std::move(files), tooLarge, answer);
    site->scheduler.run();
    return answer;
  }

  static Engine::RequestHead get()
  {
    Engine::RequestHead head;
    head.method = "GET";
    return head;
  }
};

} // namespace

TEST_F(HttpResourceTest, aRequestTellsWhatTheBrowserSaid)
{
  std::string seen;
  open([&seen](WApplication &application) {
    return new FunctionResource(
        [&seen](const Http::Request &request, Http::Response &response) {
          seen = request.method() + " " + request.path() + " " + request.headerValue("User-Agent") + " " +
                 request.clientAddress() + " " + (request.getParameter("color") ? "color" : "") + " " +
                 *request.getParameter("size") + (WApplication::instance() ? " session" : "");
          EXPECT_EQ(request.tooLarge(), 0);
          EXPECT_EQ(request.continuation(), nullptr);
          response.setStatus(202);
          response.setMimeType("text/plain");
          response.addHeader("X-A", "b");
          response.out() << "hello";
        },
        &application);
  });
  Engine::RequestHead head = get();
  head.path = "/x";
  head.clientAddress = "192.0.2.1";
  head.headers = {{"user-agent", "Test"}};
  head.parameters.emplace("size", "7");
  const auto answer = request(head);
  EXPECT_EQ(seen, "GET /x Test 192.0.2.1  7 session");
  EXPECT_EQ(answer->status, 202);
  EXPECT_EQ(answer->headers, "type text/plain\nX-A: b\n");
  EXPECT_EQ(answer->body.str(), "hello");
  EXPECT_TRUE(answer->finished);
}

TEST_F(HttpResourceTest, uploadedFilesAreRemovedUnlessStolen)
{
  Http::UploadedFile kept;
  open([&kept](WApplication &application) {
    return new FunctionResource(
        [&kept](const Http::Request &request, Http::Response &) {
          kept = *request.getUploadedFile("data");
          EXPECT_EQ(request.uploadedFiles().size(), 2u);
          request.getUploadedFile("stolen")->stealSpoolFile();
          std::string body;
          std::getline(request.in(), body);
          EXPECT_EQ(body, "raw body");
        },
        &application);
  });
  const std::string data = folder.write("spool1", "a");
  const std::string stolen = folder.write("spool2", "b");
  const std::string raw = folder.write("spool3", "raw body");
  request(get(), {{"data", data, "name.txt", "text/plain"}, {"stolen", stolen, "", ""}, {"", raw, "", ""}});
  EXPECT_EQ(kept.clientFileName(), "name.txt");
  EXPECT_EQ(kept.contentType(), "text/plain");
  EXPECT_EQ(kept.spoolFileName(), data);
  EXPECT_TRUE(std::filesystem::exists(data));
  kept = Http::UploadedFile();
  EXPECT_FALSE(std::filesystem::exists(data));
  EXPECT_TRUE(std::filesystem::exists(stolen));
  EXPECT_FALSE(std::filesystem::exists(raw));
}

TEST_F(HttpResourceTest, aTooLargeUploadIsTold)
{
  std::int64_t size = 0;
  open([&size](WApplication &application) {
    return new FunctionResource(
        [&size](const Http::Request &request, Http::Response &) { size = request.tooLarge(); }, &application);
  });
  request(get(), {}, 5000000000);
  EXPECT_EQ(size, 5000000000);
}

TEST_F(HttpResourceTest, theSuggestedNameIsSentWithTheDisposition)
{
  open([](WApplication &application) {
    auto *made = new FunctionResource(
        [](const Http::Request &, Http::Response &response) { response.out() << "x"; }, &application);
    made->suggestFileName("event-history.csv");
    return made;
  });
  EXPECT_EQ(resource->dispositionType(), WResource::Attachment);
  EXPECT_THAT(request(get())->headers,
              HasSubstr("Content-Disposition: attachment; filename=\"event-history.csv\"\n"));
  within([this] { resource->suggestFileName("a.csv", WResource::Inline); });
  EXPECT_THAT(request(get())->headers, HasSubstr("Content-Disposition: inline; filename=\"a.csv\"\n"));
  within([this] { resource->setDispositionType(WResource::NoDisposition); });
  EXPECT_EQ(request(get())->headers, "");
}

TEST_F(HttpResourceTest, aChangedResourceHasANewUrlAndTheFormerOnesStayGood)
{
  open([](WApplication &application) {
    return new FunctionResource(
        [](const Http::Request &, Http::Response &response) { response.out() << "x"; }, &application);
  });
  const std::string before = url;
  EXPECT_THAT(before, StartsWith("/?wtd="));
  EXPECT_EQ(WLink(resource).url(), before);
  int changes = 0;
  within([this, &changes] {
    resource->dataChanged().connect(std::bind([&changes] { ++changes; }));
    resource->setChanged();
  });
  EXPECT_EQ(changes, 1);
  EXPECT_NE(url, before);
  EXPECT_EQ(request(get())->status, 200);
  url = before;
  EXPECT_EQ(request(get())->status, 200);
  url.back() = url.back() == 'a' ? 'b' : 'a';
  EXPECT_EQ(request(get())->status, 404);
}

TEST_F(HttpResourceTest, aResourceThatThrowsIsAnsweredAndTheSessionLives)
{
  open([](WApplication &application) {
    return new FunctionResource(
        [](const Http::Request &, Http::Response &) { throw std::runtime_error("on purpose"); },
        &application);
  });
  EXPECT_EQ(request(get())->status, 500);
  EXPECT_EQ(site->manager->sessionCount(), 1u);
}

TEST_F(HttpResourceTest, anAnswerMayBeContinuedInFurtherCalls)
{
  open([](WApplication &application) {
    return new FunctionResource(
        [](const Http::Request &request, Http::Response &response) {
          const int number =
              request.continuation() ? boost::any_cast<int>(request.continuation()->data()) : 0;
          response.out() << number;
          if (number < 3)
            response.createContinuation()->setData(number + 1);
        },
        &application);
  });
  EXPECT_EQ(request(get())->body.str(), "0123");
}

TEST_F(HttpResourceTest, aFileIsServedWholeAndInParts)
{
  const std::string file = folder.write("f", "0123456789");
  open([&file](WApplication &application) {
    auto *made = new WFileResource(&application);
    made->setMimeType("text/csv");
    made->setFileName(file);
    return made;
  });
  const auto whole = request(get());
  EXPECT_EQ(whole->body.str(), "0123456789");
  EXPECT_EQ(whole->headers, "type text/csv\nAccept-Ranges: bytes\nlength 10\n");
  Engine::RequestHead part = get();
  part.headers = {{"range", "bytes=3-5"}};
  const auto some = request(part);
  EXPECT_EQ(some->status, 206);
  EXPECT_EQ(some->body.str(), "345");
  EXPECT_THAT(some->headers, HasSubstr("Content-Range: bytes 3-5/10\n"));
  part.headers = {{"range", "bytes=10-"}};
  EXPECT_EQ(request(part)->status, 416);
  Engine::RequestHead head = get();
  head.method = "HEAD";
  EXPECT_EQ(request(head)->body.str(), "");
}

TEST_F(HttpResourceTest, whatIsNoReadableFileIsNotFound)
{
  open([](WApplication &application) { return new WFileResource(&application); });
  auto &file = static_cast<WFileResource &>(*resource);
  EXPECT_EQ(file.mimeType(), "text/plain");
  for (const std::string &name : {std::string(), folder / "none", folder.path(), std::string("/dev/zero")}) {
    within([&file, &name] { file.setFileName(name); });
    EXPECT_EQ(file.fileName(), name);
    EXPECT_EQ(request(get())->status, 404) << name;
  }
}

TEST_F(HttpResourceTest, aResourceMayBeWrittenToAStream)
{
  const std::string file = folder.write("f", "0123456789");
  WFileResource made(file);
  std::ostringstream out;
  made.write(out);
  EXPECT_EQ(out.str(), "0123456789");
  EXPECT_EQ(made.url(), "");
}
