// SPDX-License-Identifier: MIT
#include "WidgetPage.h"

#include <Wt/WFileUpload>
#include <Wt/WProgressBar>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

using namespace Wt;

namespace
{

/// Notes the status that a request was answered with.
class NotedResponse : public Engine::ResourceResponse
{
public:
  explicit NotedResponse(int &status) : status_(status) {}
  void setStatus(int status) override { status_ = status; }
  void addHeader(const std::string &, const std::string &) override {}
  void setMimeType(const std::string &) override {}
  void setContentLength(std::uint64_t) override {}
  std::ostream &out() override { return body_; }
  void finish() override {}
  bool connected() const override { return true; }

private:
  int &status_;
  std::ostringstream body_;
};

bool exists(const std::string &path)
{
  return access(path.c_str(), F_OK) == 0;
}

class UploadPage
{
public:
  UploadPage()
      : page([this](WContainerWidget *root) {
          upload = new WFileUpload(root);
          upload->changed().connect(std::bind(record.note("changed")));
          upload->uploaded().connect(
              std::bind([this] { record.note(upload->empty() ? "uploaded-none" : "uploaded")(); }));
          upload->fileTooLarge().connect(boost::bind(&UploadPage::tooLarge, this, ::_1));
          upload->dataReceived().connect(boost::bind(&UploadPage::received, this, ::_1, ::_2));
        })
  {
  }
  ~UploadPage()
  {
    for (const std::string &file : files)
      unlink(file.c_str());
  }

  void tooLarge(std::int64_t size) { record.note("too-large-" + std::to_string(size))(); }
  void received(std::uint64_t got, std::uint64_t total)
  {
    record.note(std::to_string(got) + "/" + std::to_string(total))();
  }

  Testing::Node *form() const
  {
    return page.browser->page().findIf([](const Testing::Node &n) { return n.tag == "form"; });
  }
  void choose() { page.browser->event(form(), "change"); }
  void start()
  {
    page.run([this] { upload->upload(); });
  }

  /// The request that the page was told to send its file with; empty if it was not.
  Engine::RequestHead request() const
  {
    Engine::RequestHead head;
    for (const std::string &call : page.browser->page().calls) {
      const std::size_t at = call.find("upload [\"/?");
      if (at == std::string::npos)
        continue;
      head.method = "POST";
      head.path = head.entryPoint = "/";
      head.parameters.clear();
      head.query = call.substr(at + 11, call.find('"', at + 11) - at - 11);
      std::istringstream parts(head.query);
      for (std::string part; std::getline(parts, part, '&');)
        head.parameters.emplace(part.substr(0, part.find('=')), part.substr(part.find('=') + 1));
    }
    return head;
  }

  /// Sends a file of that content as the browser would; the answer's status.
  int send(const std::string &name, const std::string &content, std::uint64_t tooLargeSize = 0)
  {
    std::vector<Engine::SpooledFile> parts;
    if (tooLargeSize == 0) {
      char path[] = "/tmp/upload-test-XXXXXX";
      const int file = mkstemp(path);
      EXPECT_EQ(static_cast<ssize_t>(content.size()), write(file, content.data(), content.size()));
      ::close(file);
      files.push_back(path);
      parts.push_back(Engine::SpooledFile{"file", path, name, "text/plain"});
    }
    int status = 0;
    page.site.manager->resource(request(), parts, tooLargeSize, std::make_shared<NotedResponse>(status));
    page.browser->advance(std::chrono::milliseconds(0));
    return status;
  }

  Record record;
  std::vector<std::string> files;
  WFileUpload *upload = nullptr;
  WidgetPage page;
};

} // namespace

TEST(WFileUpload, isAFormWithAFileField)
{
  UploadPage p;
  ASSERT_NE(nullptr, p.form());
  EXPECT_EQ("file", p.form()->children.at(0)->get("type"));
  EXPECT_TRUE(p.upload->empty());
  EXPECT_EQ("", p.upload->spoolFileName());
  EXPECT_EQ("", p.upload->clientFileName().toUTF8());
}

TEST(WFileUpload, sendsNothingBeforeUploadIsCalled)
{
  UploadPage p;
  p.choose();
  EXPECT_EQ("changed", p.record.text);
  EXPECT_TRUE(p.upload->empty());
  EXPECT_EQ("", p.request().query);
}

TEST(WFileUpload, takesTheFileAndTellsThatItIsThere)
{
  UploadPage p;
  p.choose();
  p.start();
  ASSERT_NE("", p.request().query);
  EXPECT_EQ(200, p.send("C:\\fake\\r\xc3\xa9sum\xc3\xa9.txt", "content"));
  EXPECT_EQ("changed uploaded", p.record.text);
  EXPECT_EQ("r\xc3\xa9sum\xc3\xa9.txt", p.upload->clientFileName().toUTF8());
  std::ifstream spooled(p.upload->spoolFileName());
  std::string content;
  spooled >> content;
  EXPECT_EQ("content", content);
  EXPECT_EQ('/', p.upload->spoolFileName().at(0));
  EXPECT_EQ(1u, p.upload->uploadedFiles().size());
}

TEST(WFileUpload, removesTheSpoolFileWithItselfOrTheNextUpload)
{
  UploadPage p;
  p.start();
  p.send("one", "1");
  p.start();
  EXPECT_FALSE(exists(p.files[0]));
  p.send("two", "2");
  EXPECT_TRUE(exists(p.files[1]));
  p.page.run([&] { delete p.upload; });
  EXPECT_FALSE(exists(p.files[1]));
}

TEST(WFileUpload, leavesAStolenSpoolFile)
{
  UploadPage p;
  p.start();
  p.send("one", "1");
  p.page.run([&] {
    p.upload->stealSpooledFile();
    delete p.upload;
  });
  EXPECT_TRUE(exists(p.files[0]));
}

TEST(WFileUpload, tellsOfAnUploadWithoutAFileToo)
{
  UploadPage p;
  p.start();
  p.page.browser->script(p.form(), "upload:empty", "");
  EXPECT_EQ("uploaded-none", p.record.text);
}

TEST(WFileUpload, tellsOfAFileThatIsTooLargeOnceWhoeverFindsOut)
{
  UploadPage p;
  p.start();
  p.page.browser->script(p.form(), "upload:toolarge", "200000");
  EXPECT_EQ("too-large-200000", p.record.text);
  p.start();
  EXPECT_EQ(413, p.send("big", "", 300000));
  p.page.browser->script(p.form(), "upload:toolarge", "300000");
  EXPECT_EQ("too-large-200000 too-large-300000", p.record.text);
}

TEST(WFileUpload, ignoresASecondUploadWhileOneRuns)
{
  UploadPage p;
  p.start();
  const std::size_t calls = p.page.browser->page().calls.size();
  p.start();
  EXPECT_EQ(calls, p.page.browser->page().calls.size());
  p.send("one", "1");
  EXPECT_EQ("uploaded", p.record.text);
  p.start();
  EXPECT_GT(p.page.browser->page().calls.size(), calls);
}

TEST(WFileUpload, refusesAFileThatNobodyAskedFor)
{
  UploadPage p;
  p.start();
  EXPECT_EQ(200, p.send("one", "1"));
  EXPECT_EQ(404, p.send("again", "2"));
  EXPECT_FALSE(exists(p.files[1]));
  EXPECT_EQ("one", p.upload->clientFileName().toUTF8());
  EXPECT_EQ("uploaded", p.record.text);
}

TEST(WFileUpload, ignoresWhatAPageClaimsWhileNoUploadRuns)
{
  UploadPage p;
  for (const char *event : {"upload:empty", "upload:toolarge", "upload:failed"})
    p.page.browser->script(p.form(), event, "\"x\"");
  EXPECT_EQ("", p.record.text);
}

TEST(WFileUpload, tellsAFailureAsAnUploadWithoutAFileAndCanBeTriedAgain)
{
  UploadPage p;
  p.start();
  p.page.browser->script(p.form(), "upload:failed", "");
  EXPECT_EQ("uploaded-none", p.record.text);
  p.start();
  p.send("one", "1");
  EXPECT_EQ("uploaded-none uploaded", p.record.text);
  EXPECT_FALSE(p.upload->empty());
}

TEST(WFileUpload, hearsOfAFailureWhileItIsHidden)
{
  UploadPage p;
  p.start();
  p.page.run([&p] { p.upload->hide(); });
  p.page.browser->sendRaw("{\"n\":1,\"a\":1,\"e\":[[" + std::to_string(p.form()->id) +
                          ",\"upload:failed\"]]}");
  EXPECT_EQ("uploaded-none", p.record.text);
}

TEST(WFileUpload, tellsOfItsProgress)
{
  UploadPage p;
  p.start();
  p.page.site.manager->uploadProgress(p.request(), 10, 100);
  p.page.browser->advance(std::chrono::milliseconds(0));
  p.send("one", "1");
  EXPECT_EQ("10/100 uploaded", p.record.text);
}

TEST(WFileUpload, showsABarOfItsOwnInTheFieldsPlaceWhileItUploads)
{
  UploadPage p;
  WProgressBar *bar = nullptr;
  p.page.run([&] {
    bar = new WProgressBar();
    p.upload->setProgressBar(bar);
  });
  EXPECT_EQ(p.upload, bar->parent());
  EXPECT_EQ(nullptr, p.page.styled("Wt-progressbar"));
  p.start();
  EXPECT_NE(nullptr, p.page.styled("Wt-progressbar"));
  EXPECT_EQ(nullptr, p.page.tag("input"));
  p.page.site.manager->uploadProgress(p.request(), 50, 200);
  p.page.browser->advance(std::chrono::milliseconds(0));
  EXPECT_EQ("25%", p.page.styled("Wt-pgb-bar")->get("*width"));
  p.send("one", "1");
  EXPECT_EQ(nullptr, p.page.styled("Wt-progressbar"));
  EXPECT_NE(nullptr, p.page.tag("input"));
}

TEST(WFileUpload, leavesABarElsewhereAndHidesItself)
{
  UploadPage p;
  WProgressBar *bar = nullptr;
  p.page.run([&] {
    bar = new WProgressBar(static_cast<WContainerWidget *>(p.upload->parent()));
    p.upload->setProgressBar(bar);
  });
  p.start();
  EXPECT_TRUE(p.upload->isHidden());
  EXPECT_NE(nullptr, p.page.styled("Wt-progressbar"));
  p.page.run([&] { delete bar; });
  EXPECT_EQ(nullptr, p.upload->progressBar());
  p.send("one", "1");
  EXPECT_EQ("uploaded", p.record.text);
}

TEST(WFileUpload, mayEndWhileItsFileIsStillUnderWay)
{
  UploadPage p;
  p.start();
  const Engine::RequestHead head = p.request();
  p.page.run([&] { delete p.upload; });
  EXPECT_EQ(404, p.send("late", "1"));
  EXPECT_TRUE(p.page.browser->connected());
}

TEST(WFileUpload, switchesUpdatesOnForTheTimeOfAnUpload)
{
  UploadPage p;
  p.start();
  p.page.run([&] { EXPECT_TRUE(WApplication::instance()->updatesEnabled()); });
  p.send("one", "1");
  p.page.run([&] { EXPECT_FALSE(WApplication::instance()->updatesEnabled()); });
  p.start();
  p.page.run([&] { delete p.upload; });
  p.page.run([&] { EXPECT_FALSE(WApplication::instance()->updatesEnabled()); });
}

TEST(WFileUpload, cannotBeUsedWhileItIsDisabled)
{
  UploadPage p;
  p.page.run([&] { p.upload->disable(); });
  EXPECT_TRUE(p.form()->children.at(0)->has("disabled"));
  p.choose();
  EXPECT_EQ("", p.record.text);
}
