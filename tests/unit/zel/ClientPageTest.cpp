// SPDX-License-Identifier: MIT
// Answers that the client holds and that are good without a round trip: when they are handed out, when not,
// and what a server can do with its page.
#include "ClientOptions.h"
#include "EpochPage.h"
#include "FakeServer.h"
#include "TestStore.h"
#include "ZelClient.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

#include <atomic>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <new>
#include <string>
#include <sys/mman.h>
#include <sys/uio.h>
#include <thread>
#include <vector>

namespace
{

using zelwire::EpochPage;

constexpr const char *kNoResponse = "(no response)";

struct ClientCloser {
  void operator()(ZelClient_s *client) const { ZelClient_close(client); }
};
using Client = std::unique_ptr<ZelClient_s, ClientCloser>;

Client connect()
{
  return Client(ZelClient_new());
}

std::string nameOf(const Client &client, unsigned index)
{
  json_t *request = ZelReqUtil_newGetResource("rx");
  ZelObj_setUInt32Object(request, "query", "index", index);
  ZelObj_setSelect(request, "name");
  json_t *response = ZelClient_getResponse(client.get(), request);
  const char *name = ZelRspUtil_getStringParam(response, "name");
  std::string result = !response ? kNoResponse : name ? name : "";
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return result;
}

bool rename(const Client &client, unsigned index, const std::string &name)
{
  json_t *request = ZelReqUtil_newSetResource("rx");
  ZelReqUtil_setIntegerParam(request, "index", index);
  ZelReqUtil_setStringParam(request, "name", name.c_str());
  json_t *response = ZelReqUtil_submit(request, client.get());
  const bool good = response && !ZelRspUtil_getObjectParam(response, "errors");
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return good;
}

class HeldAnswers : public ::testing::Test
{
protected:
  ~HeldAnswers() override { zelclient::setRequestTimeoutMs(0); }

  TestStore store;
  Client client = connect();
};

TEST_F(HeldAnswers, areHandedOutWithoutTheServer)
{
  const std::string name = nameOf(client, 1);
  EXPECT_EQ(name, nameOf(client, 1));
  zelclient::setRequestTimeoutMs(200);
  ASSERT_EQ(0, ::kill(store.pid(), SIGSTOP));
  for (int i = 0; i < 100; ++i)
    EXPECT_EQ(name, nameOf(client, 1));
  EXPECT_EQ(kNoResponse, nameOf(client, 2));
  EXPECT_EQ(kNoResponse, nameOf(client, 1)) << "the connection has been given up";
  ::kill(store.pid(), SIGCONT);
}

TEST_F(HeldAnswers, endWithTheClientsOwnWrite)
{
  for (int i = 0; i < 300; ++i) {
    const std::string name = "Own " + std::to_string(i);
    ASSERT_TRUE(rename(client, 1, name));
    ASSERT_EQ(name, nameOf(client, 1));
    ASSERT_EQ(name, nameOf(client, 1));
  }
}

TEST_F(HeldAnswers, endWithAnothersWriteOrWithAChangeInTheSwitch)
{
  Client other = connect();
  for (int i = 0; i < 300; ++i) {
    const std::string name = "Another's " + std::to_string(i);
    ASSERT_TRUE(rename(other, 1, name));
    ASSERT_EQ(name, nameOf(client, 1));
  }
  ASSERT_TRUE(store.set("rx", 1, "name", "By the switch"));
  EXPECT_EQ("By the switch", nameOf(client, 1));
  EXPECT_EQ("By the switch", nameOf(other, 1));
}

TEST_F(HeldAnswers, stayRightWhenAWriteIsRefused)
{
  const std::string first = nameOf(client, 1);
  EXPECT_FALSE(rename(client, 1, std::string(1000, 'n')));
  EXPECT_EQ(first, nameOf(client, 1));
}

// Whoever begins a request after a write was acknowledged, to whomever, sees that write or a later one.
TEST_F(HeldAnswers, areNeverOlderThanAnAcknowledgedWrite)
{
  std::atomic<int> acknowledged{0};
  std::atomic<int> old{0};
  std::atomic<int> reads{0};
  ASSERT_TRUE(rename(client, 1, "0"));
  std::vector<std::thread> readers;
  for (int i = 0; i < 3; ++i)
    readers.emplace_back([&] {
      Client own = connect();
      int known = 0;
      while (known < 400) {
        known = acknowledged.load();
        if (std::stoi(nameOf(own, 1)) < known)
          ++old;
        ++reads;
      }
    });
  for (int i = 1; i <= 400; ++i) {
    ASSERT_TRUE(rename(client, 1, std::to_string(i)));
    acknowledged = i;
    const int enough = reads + 5;
    while (reads < enough && i < 400)
      std::this_thread::yield();
  }
  for (std::thread &reader : readers)
    reader.join();
  EXPECT_EQ(0, old);
}

TEST_F(HeldAnswers, endWithTheServer)
{
  const std::string name = nameOf(client, 1);
  EXPECT_EQ(name, nameOf(client, 1));
  store.kill();
  EXPECT_FALSE(ZelClient_isValid(client.get()));
  EXPECT_EQ(kNoResponse, nameOf(client, 1));
  store.restart();
  Client next = connect();
  ASSERT_TRUE(rename(next, 1, "After the restart"));
  EXPECT_EQ(kNoResponse, nameOf(client, 1));
  EXPECT_EQ("After the restart", nameOf(next, 1));
}

TEST_F(HeldAnswers, endWithTheConnection)
{
  nameOf(client, 1);
  EXPECT_TRUE(ZelClient_isValid(client.get()));
  ASSERT_FALSE(store.control({"drop"}).failed);
  EXPECT_EQ(kNoResponse, nameOf(client, 1));
  EXPECT_FALSE(ZelClient_isValid(client.get()));
}

TEST_F(HeldAnswers, hideNothingOfAStoreThatMisbehaves)
{
  nameOf(client, 1);
  ASSERT_FALSE(store.control({"cut"}).failed);
  EXPECT_EQ(kNoResponse, nameOf(client, 1));
  Client second = connect();
  const std::string name = nameOf(second, 1);
  zelclient::setRequestTimeoutMs(200);
  ASSERT_FALSE(store.control({"silent", "on"}).failed);
  EXPECT_EQ(kNoResponse, nameOf(second, 1));
  ASSERT_FALSE(store.control({"silent", "off"}).failed);
  Client third = connect();
  EXPECT_EQ(name, nameOf(third, 1));
  EXPECT_EQ(name, nameOf(third, 1));
}

TEST_F(HeldAnswers, ofOneSwitchAreNotTakenForThoseOfAnother)
{
  ASSERT_TRUE(rename(client, 1, "Here"));
  TestStore otherStore;
  Client other = connect();
  ASSERT_TRUE(rename(other, 1, "There"));
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ("Here", nameOf(client, 1));
    EXPECT_EQ("There", nameOf(other, 1));
  }
}

TEST_F(HeldAnswers, giveTheSameIntegersByRowAsNewOnes)
{
  std::vector<int> before;
  for (int round = 0; round < 4; ++round) {
    json_t *rx = ZelReq_rxRetrieve(client.get(), nullptr);
    json_t *tx = ZelReq_txRetrieve(client.get(), nullptr);
    std::vector<int> values;
    for (unsigned row = 0; row < 20; ++row)
      for (const char *name :
           {"index", "attachedPort", "attachedSwx", "name", "nonsense", "indexes", "monitor"}) {
        values.push_back(ZelRspUtil_getIndexedIntegerParam(rx, row, name));
        values.push_back(ZelRspUtil_getIndexedIntegerParam(tx, row, name));
      }
    EXPECT_EQ(0, ZelRspUtil_getIndexedIntegerParam(rx, 0, nullptr));
    EXPECT_EQ(0, ZelRspUtil_getIndexedIntegerParam(nullptr, 0, "index"));
    EXPECT_EQ(0, ZelRspUtil_getIndexedIntegerParam(rx, 4000000000u, "index"));
    ZelRspUtil_free(rx);
    ZelRspUtil_free(tx);
    if (round > 0) {
      EXPECT_EQ(before, values);
    }
    before = values;
  }
  EXPECT_EQ(1, before.front());
}

TEST_F(HeldAnswers, readByRowFollowTheirChanges)
{
  for (unsigned seconds = 10; seconds < 20; ++seconds) {
    ASSERT_TRUE(store.set("rx", 3, "sessionInactivityTimeout", std::to_string(seconds)));
    for (int again = 0; again < 3; ++again) {
      json_t *rx = ZelReq_rxRetrieve(client.get(), nullptr);
      EXPECT_EQ(static_cast<int>(seconds),
                ZelRspUtil_getIndexedIntegerParam(rx, 2, "sessionInactivityTimeout"));
      ZelRspUtil_free(rx);
    }
  }
}

TEST_F(HeldAnswers, ofManyShortKindsFillABoundedMemory)
{
  for (unsigned i = 1; i <= 30000; ++i) {
    json_t *request = ZelReqUtil_newGetResource("rx");
    ZelObj_setUInt32Object(request, "query", "index", 1 + i % 16);
    for (unsigned k = 0; k < 6; ++k)
      ZelObj_setSelect(request, (i >> k & 1) != 0 ? "name" : "eid");
    for (unsigned k = 6; k < 12; ++k)
      ZelObj_setSelect(request, (i >> k & 1) != 0 ? "status" : "notes");
    ZelRspUtil_free(ZelReqUtil_submit(request, client.get()));
    ZelReqUtil_free(request);
  }
  EXPECT_LE(zelclient::answerCacheUse().entries, 40960u);
  EXPECT_LE(zelclient::answerCacheUse().bytes, 16u * 1024 * 1024);
}

// A server that sends some files with its first answer, and whatever it likes as the epoch of the answers.
class PageServer : public ::testing::Test
{
protected:
  PageServer() { zelclient::setRequestTimeoutMs(5000); }
  ~PageServer() override { zelclient::setRequestTimeoutMs(0); }

  static int file(std::size_t size, int seals)
  {
    int fd = ::memfd_create("test-page", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    EXPECT_EQ(0, ::ftruncate(fd, static_cast<off_t>(size)));
    if (size >= EpochPage::kSize) {
      void *memory = ::mmap(nullptr, EpochPage::kSize, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
      auto *page = new (memory) EpochPage();
      page->magic = EpochPage::kMagic;
      page->run = 77;
      page->serving = 1;
      page->epochs[3] = 5;
      ::munmap(memory, EpochPage::kSize);
    }
    EXPECT_EQ(0, ::fcntl(fd, F_ADD_SEALS, seals));
    return fd;
  }

  static void write(int fd, std::size_t offset, std::uint64_t number)
  {
    EXPECT_EQ(static_cast<ssize_t>(sizeof number),
              ::pwrite(fd, &number, sizeof number, static_cast<off_t>(offset)));
  }

  static void sendWith(int socket, const std::string &bytes, const std::vector<int> &files)
  {
    std::vector<char> control(CMSG_SPACE(sizeof(int) * files.size()));
    iovec part{const_cast<char *>(bytes.data()), bytes.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof(int) * files.size());
    std::memcpy(CMSG_DATA(header), files.data(), sizeof(int) * files.size());
    EXPECT_EQ(static_cast<ssize_t>(bytes.size()), ::sendmsg(socket, &message, MSG_NOSIGNAL));
  }

  // How many of six equal requests reach a server with such a page that names this epoch.
  static int askedWith(const std::vector<int> &files, const std::string &epoch)
  {
    std::atomic<int> asked{0};
    {
      FakeServer server([&](int socket) {
        while (!FakeServer::receive(socket).empty()) {
          const std::string answer = FakeServer::frame(R"({"data":{"name":")" + std::to_string(++asked) +
                                                       R"("},"epoch":)" + epoch + "}");
          // Files may come at any time; only the first answer's count.
          sendWith(socket, answer, files);
        }
      });
      Client client = connect();
      for (int i = 0; i < 6; ++i)
        EXPECT_NE(kNoResponse, nameOf(client, 1));
      EXPECT_TRUE(ZelClient_isValid(client.get()));
    }
    for (int fd : files)
      ::close(fd);
    return asked;
  }

  static std::ptrdiff_t openFiles()
  {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  }

  static constexpr int kGood = F_SEAL_SHRINK | F_SEAL_GROW;
};

TEST_F(PageServer, isAskedOnceWhileItsEpochStands)
{
  EXPECT_EQ(1, askedWith({file(EpochPage::kSize, kGood)}, "[3,5]"));
}

TEST_F(PageServer, isAskedEachTimeWithoutAPageThatCanBeTrusted)
{
  const std::ptrdiff_t before = openFiles();
  EXPECT_EQ(6, askedWith({file(EpochPage::kSize, 0)}, "[3,5]")) << "not sealed: it could shrink";
  EXPECT_EQ(6, askedWith({file(EpochPage::kSize, F_SEAL_GROW)}, "[3,5]"));
  EXPECT_EQ(6, askedWith({file(0, kGood)}, "[3,5]"));
  EXPECT_EQ(6, askedWith({file(100, kGood)}, "[3,5]"));
  EXPECT_EQ(6, askedWith({file(EpochPage::kSize * 2, kGood)}, "[3,5]"));
  EXPECT_EQ(6, askedWith({::open("/dev/null", O_RDONLY | O_CLOEXEC)}, "[3,5]"));
  EXPECT_EQ(6, askedWith({::open("/dev/zero", O_RDONLY | O_CLOEXEC)}, "[3,5]"));
  EXPECT_EQ(6, askedWith({::open("/tmp", O_RDONLY | O_CLOEXEC)}, "[3,5]"));
  int wrongMagic = file(EpochPage::kSize, kGood);
  write(wrongMagic, 0, 1);
  EXPECT_EQ(6, askedWith({wrongMagic}, "[3,5]"));
  int noRun = file(EpochPage::kSize, kGood);
  write(noRun, sizeof(std::uint64_t), 0);
  EXPECT_EQ(6, askedWith({noRun}, "[3,5]"));
  EXPECT_EQ(before, openFiles()) << "no file that was sent stays open";
}

TEST_F(PageServer, maySendManyFiles)
{
  const std::ptrdiff_t before = openFiles();
  std::vector<int> files;
  for (int i = 0; i < 50; ++i)
    files.push_back(file(EpochPage::kSize, kGood));
  askedWith(files, "[3,5]");
  EXPECT_EQ(before, openFiles());
}

TEST_F(PageServer, isAskedEachTimeWhenItsEpochMeansNothing)
{
  for (const char *epoch : {"[3,6]", "[4,5]", "[3,-5]", "[-1,5]", "[4096,0]", "[4294967299,5]", "[3]", "[]",
                            "7", "null", "{}", "[\"3\",5]", "[3,5.5]", "[[3],5]"})
    EXPECT_EQ(6, askedWith({file(EpochPage::kSize, kGood)}, epoch)) << epoch;
}

TEST_F(PageServer, mayChangeAnythingInItsPageAtAnyTime)
{
  int fd = file(EpochPage::kSize, kGood);
  std::atomic<bool> ending{false};
  std::thread writer([&] {
    std::uint64_t number = 1;
    while (!ending)
      for (std::size_t at = 0; at < EpochPage::kSize; at += sizeof number)
        write(fd, at, number = number * 6364136223846793005u + 1442695040888963407u);
  });
  for (int i = 0; i < 20; ++i) {
    const int asked = askedWith({::dup(fd)}, "[3,5]");
    EXPECT_TRUE(asked >= 1 && asked <= 6);
  }
  ending = true;
  writer.join();
  ::close(fd);
}

} // namespace
