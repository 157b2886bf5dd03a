// SPDX-License-Identifier: MIT
#include "Main.h"

#include "NevoPath.h"

#include <Wt/WIOService>
#include <Wt/WServer>
#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <netinet/in.h>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using testing::EndsWith;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

// Calls Main_findDocRoot with a command line, and gives the document root of the other tests back.
class DocRoot : public testing::Test
{
protected:
  DocRoot() : before_(Main_docRoot) { unsetenv("WT_APP_ROOT"); }
  ~DocRoot() override
  {
    unsetenv("WT_APP_ROOT");
    std::snprintf(Main_docRoot, sizeof Main_docRoot, "%s", before_.c_str());
  }

  static std::string of(std::vector<std::string> words)
  {
    words.insert(words.begin(), "nevo");
    std::vector<char *> arguments;
    for (std::string &word : words)
      arguments.push_back(&word[0]);
    Main_findDocRoot(static_cast<int>(arguments.size()), arguments.data());
    return Main_docRoot;
  }

private:
  std::string before_;
};

// What a program said on both outputs, and its exit status (-1 if it did not end by itself).
struct Outcome {
  int status;
  std::string said;
};

Outcome run(const std::string &command)
{
  Outcome result = {-1, ""};
  FILE *pipe = popen((command + " 2>&1 < /dev/null").c_str(), "r");
  if (!pipe)
    return result;
  char bytes[256];
  for (std::size_t got = fread(bytes, 1, sizeof bytes, pipe); got > 0;
       got = fread(bytes, 1, sizeof bytes, pipe))
    result.said.append(bytes, got);
  const int status = pclose(pipe);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

std::string server(const std::string &options)
{
  return "NEVO_LOG_STDERR=1 timeout 60 " NEVO_SERVER " --docroot=" NEVO_SOURCE_DIR
         " --http-address=127.0.0.1 " +
         options;
}

// A port of this machine that is taken while the object lives.
class BusyPort
{
public:
  BusyPort() : socket_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
  {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    EXPECT_EQ(bind(socket_, reinterpret_cast<sockaddr *>(&address), length), 0);
    EXPECT_EQ(listen(socket_, 1), 0);
    EXPECT_EQ(getsockname(socket_, reinterpret_cast<sockaddr *>(&address), &length), 0);
    number_ = ntohs(address.sin_port);
  }
  ~BusyPort() { close(socket_); }
  std::string text() const { return std::to_string(number_); }

private:
  int socket_;
  int number_ = 0;
};

// A file of the test's own with that content.
class TemporaryFile
{
public:
  explicit TemporaryFile(const std::string &content)
  {
    char name[] = "/tmp/nevo-test-XXXXXX";
    const int file = mkstemp(name);
    path_ = name;
    EXPECT_EQ(write(file, content.data(), content.size()), static_cast<ssize_t>(content.size()));
    close(file);
  }
  ~TemporaryFile() { unlink(path_.c_str()); }
  const std::string &path() const { return path_; }

private:
  std::string path_;
};

// Counts calls, and waits for them.
class Counter
{
public:
  void operator()()
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    ++count_;
    changed_.notify_all();
  }
  bool reaches(int count)
  {
    std::unique_lock<std::mutex> lock(mutex_);
    return changed_.wait_for(lock, std::chrono::seconds(30), [&] { return count_ >= count; });
  }
  int count()
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    return count_;
  }

private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int count_ = 0;
};

// A server on a port of its own whose I/O service runs.
class Running
{
public:
  Running() : server_("nevo", "")
  {
    std::vector<std::string> words = {"nevo", "--docroot=" NEVO_SOURCE_DIR, "--http-address=127.0.0.1",
                                      "--http-port=0", "--accesslog=-"};
    std::vector<char *> arguments;
    for (std::string &word : words)
      arguments.push_back(&word[0]);
    server_.setServerConfiguration(static_cast<int>(arguments.size()), arguments.data(), "");
    server_.addEntryPoint(Wt::Application, createApplication, "", "");
    EXPECT_TRUE(server_.start());
  }
  ~Running() { server_.stop(); }

private:
  Wt::WServer server_;
};

void tellPaths(const char *brand)
{
  const TemporaryFile attributes(std::string("switch.oem.short=") + brand + "\n");
  setenv("NEVO_ATTRIBUTES", attributes.path().c_str(), 1);
  std::fprintf(stderr, "%s|%s", NevoPath_themeBase().c_str(), NevoPath_iconFileName(0).c_str());
  _exit(0);
}

} // namespace

TEST_F(DocRoot, isTheCurrentFolderWhereNothingTellsIt)
{
  EXPECT_EQ(of({}), ".");
  EXPECT_EQ(of({"--docroot="}), ".");
  EXPECT_EQ(of({"--docroot"}), ".");
  EXPECT_EQ(of({"--docroot= =\t "}), ".");
}

TEST_F(DocRoot, isTheLastValueOfTheCommandLine)
{
  EXPECT_EQ(of({"--docroot=/a", "--docroot=/b"}), "/b");
  EXPECT_EQ(of({"--docroot=/a", "--http-port=80", "--docroot="}), "/a");
}

TEST_F(DocRoot, standsBehindAnyMixOfEqualSignsAndBlanks)
{
  EXPECT_EQ(of({"--docroot==  /x"}), "/x");
  EXPECT_EQ(of({"--docroot /x"}), "/x");
  EXPECT_EQ(of({"--docroot \t=/x y"}), "/x y");
}

TEST_F(DocRoot, isNotTakenFromTheNextArgument)
{
  EXPECT_EQ(of({"--docroot", "/x"}), ".");
}

TEST_F(DocRoot, comesFromTheEnvironmentWhereTheCommandLineHasNone)
{
  setenv("WT_APP_ROOT", "/srv/nevo", 1);
  EXPECT_EQ(of({"--docroot="}), "/srv/nevo");
  EXPECT_EQ(of({"--docroot=/x"}), "/x");
}

TEST_F(DocRoot, isCutWhereItIsTooLong)
{
  EXPECT_EQ(of({"--docroot=" + std::string(300, 'd')}), std::string(127, 'd'));
  setenv("WT_APP_ROOT", std::string(300, 'e').c_str(), 1);
  EXPECT_EQ(of({}), std::string(127, 'e'));
}

TEST_F(DocRoot, endsBeforeTheListOfStaticPaths)
{
  EXPECT_EQ(of({"--docroot=/x;/resources,/favicon.ico"}), "/x");
  EXPECT_EQ(of({"--docroot=;/resources"}), ".");
}

TEST_F(DocRoot, isToldToTheServerWhereTheCommandLineNamesNone)
{
  const auto told = [](std::vector<std::string> words) {
    of(words);
    words.insert(words.begin(), "nevo");
    std::vector<char *> arguments;
    for (std::string &word : words)
      arguments.push_back(&word[0]);
    std::string line;
    for (const std::string &word : Main_commandLine(static_cast<int>(arguments.size()), arguments.data()))
      line += word + ' ';
    return line;
  };
  EXPECT_EQ(told({"--docroot=/x;/resources", "--threads=4"}), "nevo --docroot=/x;/resources --threads=4 ");
  EXPECT_EQ(told({"--docroot", "/x"}), "nevo --docroot /x ");
  EXPECT_EQ(told({"--threads=4"}), "nevo --threads=4 --docroot=. ");
  EXPECT_EQ(told({"--docroot=/x", "--docroot="}), "nevo --docroot=/x --docroot= --docroot=/x ");
  EXPECT_EQ(told({"--docroot=;/resources"}), "nevo --docroot=;/resources --docroot=.;/resources ");
  setenv("WT_APP_ROOT", "/srv/nevo", 1);
  EXPECT_EQ(told({"--docroot="}), "nevo --docroot= --docroot=/srv/nevo ");
}

TEST(Server, runsFromTheFolderOfTheEnvironmentWhereTheCommandLineNamesNone)
{
  const BusyPort port; // so that it ends by itself, after it has found its folder
  for (const char *named : {"", "--docroot= ", "'--docroot=;/resources' "}) {
    const Outcome ended =
        run("NEVO_LOG_STDERR=1 WT_APP_ROOT=" NEVO_SOURCE_DIR " timeout 60 " NEVO_SERVER " " +
            std::string(named) + "--http-address=127.0.0.1 --http-port=" + port.text());
    EXPECT_THAT(ended.said, HasSubstr("in use")) << named;
    EXPECT_THAT(ended.said, Not(HasSubstr("docroot"))) << named;
  }
}

TEST(SecureHost, hasThePortOfHttpsWhereHttpHasAnother)
{
  const int before = Main_securePort;
  const auto led = [](std::vector<std::string> words, const std::string &host) {
    words.insert(words.begin(), "nevo");
    std::vector<char *> arguments;
    for (std::string &word : words)
      arguments.push_back(&word[0]);
    Main_findSecurePort(static_cast<int>(arguments.size()), arguments.data());
    return Main_secureHost(host);
  };
  EXPECT_EQ(led({"--https-address=0", "--http-port=81", "--https-port=82"}, "kvm:81"), "kvm:82");
  EXPECT_EQ(led({"--https-address=0", "--http-port", "81", "--https-port", "82"}, "[::1]:81"), "[::1]:82");
  EXPECT_EQ(led({"--https-address", "0", "--https-port 82"}, "kvm"), "kvm:82");
  EXPECT_EQ(led({"--https-address=0", "--http-port=81"}, "kvm:81"), "kvm");
  EXPECT_EQ(led({"--https-address=0"}, "[::1]"), "[::1]");
  EXPECT_EQ(led({"--https-address=0", "--http-port=82", "--https-port=82"}, "kvm:9443"), "kvm:9443");
  EXPECT_EQ(led({"--http-port=81", "--https-port=82"}, "kvm:81"), "kvm:81");
  Main_securePort = before;
}

TEST(NevoPath, namesAnIconByAtLeastTwoDigits)
{
  EXPECT_THAT(NevoPath_iconFileName(0), EndsWith("/icon00.png"));
  EXPECT_THAT(NevoPath_iconFileName(7), EndsWith("/icon07.png"));
  EXPECT_THAT(NevoPath_iconFileName(123), EndsWith("/icon123.png"));
  EXPECT_THAT(NevoPath_iconFileName(4294967295U), EndsWith("/icon4294967295.png"));
}

// The paths are made once in the life of a process, so each brand has a process of its own.
TEST(NevoPathDeathTest, takesABrandInCapitalsForTheSameBrand)
{
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(tellPaths("HALDEN"), ExitedWithCode(0),
              "resources/themes/halden/\\|/data/settings/icons/halden/icon00.png");
  EXPECT_EXIT(tellPaths("GreyFen"), ExitedWithCode(0),
              "resources/themes/greyfen/\\|/data/settings/icons/greyfen/icon00.png");
}

TEST(NevoPathDeathTest, knowsNoOtherBrands)
{
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  for (const char *brand : {"acme", "", "../halden", "haldenx"})
    EXPECT_EXIT(tellPaths(brand), ExitedWithCode(0),
                "resources/themes/unknown/\\|/data/settings/icons/unknown/icon00.png");
}

TEST(NevoPathDeathTest, looksForIconsWhereTheSettingsAreKept)
{
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  setenv("NEVO_SETTINGS_DIR", "/srv/switch", 1);
  EXPECT_EQ(NevoPath_settingsBase(), "/srv/switch/");
  EXPECT_EXIT(tellPaths("halden"), ExitedWithCode(0), "\\|/srv/switch/icons/halden/icon00.png");
  setenv("NEVO_SETTINGS_DIR", "relative", 1);
  EXPECT_EQ(NevoPath_settingsBase(), "/data/settings/");
  unsetenv("NEVO_SETTINGS_DIR");
  EXPECT_EQ(NevoPath_settingsBase(), "/data/settings/");
}

TEST(Server, endsWithZeroAndAClearWordWhereItsPortIsTaken)
{
  const BusyPort port;
  const Outcome ended = run(server("--http-port=" + port.text()));
  EXPECT_EQ(ended.status, 0);
  EXPECT_THAT(ended.said, StartsWith("NEVO started. RELEASE build. Compiled "));
  EXPECT_THAT(ended.said, HasSubstr("Server exception ("));
  EXPECT_THAT(ended.said, HasSubstr(port.text()));
  EXPECT_THAT(ended.said, HasSubstr("in use"));
}

TEST(Server, endsWithZeroAndAClearWordWhereItsCertificateIsNone)
{
  const TemporaryFile certificate("this is no certificate\n");
  const Outcome ended =
      run(server("--http-port=0 --https-address=127.0.0.1 --https-port=0 --ssl-certificate=" +
                 certificate.path() + " --ssl-private-key=" + certificate.path()));
  EXPECT_EQ(ended.status, 0);
  EXPECT_THAT(ended.said, HasSubstr("Server exception ("));
  EXPECT_THAT(ended.said, HasSubstr(certificate.path()));
  EXPECT_THAT(ended.said, HasSubstr("certificate"));
}

TEST(Server, namesAnOptionThatItDoesNotKnow)
{
  const BusyPort port; // so that it ends by itself
  const Outcome ended = run(server("--no-such-option=1 --http-port=" + port.text()));
  EXPECT_THAT(ended.said, HasSubstr("--no-such-option"));
}

TEST(RepeatedTimer, callsItsFunctionAgainAndAgain)
{
  Counter counter;
  const Running server;
  repeatedTimer(1, std::ref(counter), false);
  EXPECT_TRUE(counter.reaches(5));
}

TEST(RepeatedTimer, callsItsFunctionAtOnceOnlyWhereItIsToldTo)
{
  Counter counter;
  const Running server;
  repeatedTimer(3600 * 1000, std::ref(counter), false);
  EXPECT_EQ(counter.count(), 0);
  repeatedTimer(3600 * 1000, std::ref(counter), true);
  EXPECT_EQ(counter.count(), 1);
}

TEST(RepeatedTimer, goesOnAfterItsFunctionThrew)
{
  Counter counter;
  const Running server;
  repeatedTimer(
      1,
      [&counter] {
        counter();
        throw std::runtime_error("from the timer's function");
      },
      false);
  EXPECT_TRUE(counter.reaches(3));
}
