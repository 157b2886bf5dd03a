// SPDX-License-Identifier: MIT
#include "http/ServerConfiguration.h"

#include "HttpTestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;
using Wt::Net::ServerConfiguration;

namespace
{

ServerConfiguration parsed(std::vector<std::string> arguments)
{
  ServerConfiguration configuration;
  configuration.parseArguments(arguments);
  return configuration;
}

std::string complaint(std::vector<std::string> arguments)
{
  std::string error;
  return parsed(std::move(arguments)).check(error) ? "" : error;
}

} // namespace

TEST(ServerConfigurationTest, optionsMayHaveTheirValueBehindASignOrABlankOrInTheNextWord)
{
  const ServerConfiguration c = parsed({"--http-address=0.0.0.0", "--http-port", "8080", "--https-port  8443",
                                        "-t", "4", "--pid-file==  /x", "--no-compression", "--accesslog=-"});
  EXPECT_EQ(c.httpAddress, "0.0.0.0");
  EXPECT_EQ(c.httpPort, "8080");
  EXPECT_EQ(c.httpsPort, "8443");
  EXPECT_EQ(c.threads, "4");
  EXPECT_EQ(c.pidFile, "/x");
  EXPECT_FALSE(c.compression);
  EXPECT_EQ(c.accessLog, "-");
  EXPECT_TRUE(c.unknown.empty());
}

TEST(ServerConfigurationTest, theServersNamesAreAList)
{
  EXPECT_THAT(parsed({"--servername=kvm.example,,*.switch.example"}).names(),
              ElementsAre("kvm.example", "*.switch.example"));
  EXPECT_TRUE(parsed({}).names().empty());
}

TEST(ServerConfigurationTest, theLastOfAnOptionWins)
{
  EXPECT_EQ(parsed({"--docroot=/a", "--docroot=/b"}).documentRoot, "/b");
}

TEST(ServerConfigurationTest, unknownOptionsAreKeptByName)
{
  const ServerConfiguration c = parsed({"--colour", "red", "--docroot=/a", "--strange=1", "word", "-z"});
  EXPECT_THAT(c.unknown, ElementsAre("--colour", "--strange", "word", "--z"));
  EXPECT_EQ(c.documentRoot, "/a");
}

TEST(ServerConfigurationTest, theDocumentRootMayNameItsStaticPaths)
{
  const ServerConfiguration plain = parsed({"--docroot=/a"});
  EXPECT_EQ(plain.documentRoot, "/a");
  EXPECT_FALSE(plain.staticListed);
  const ServerConfiguration listed = parsed({"--docroot=/a;/favicon.ico,/resources,style"});
  EXPECT_EQ(listed.documentRoot, "/a");
  EXPECT_TRUE(listed.staticListed);
  EXPECT_THAT(listed.staticPaths, ElementsAre("/favicon.ico", "/resources", "/style"));
  EXPECT_TRUE(parsed({"--docroot=/a;"}).staticListed);
}

TEST(ServerConfigurationTest, whatIsMissingOrWrongIsSaidClearly)
{
  const HttpTestFolder folder;
  const std::string root = "--docroot=" + folder.path();
  const std::string file = folder.write("file", "x");
  EXPECT_THAT(complaint({"--http-address=0.0.0.0"}), HasSubstr("--docroot"));
  EXPECT_THAT(complaint({"--docroot=" + file, "--http-address=0.0.0.0"}), HasSubstr("is not a folder"));
  EXPECT_THAT(complaint({root}), HasSubstr("--http-address"));
  EXPECT_THAT(complaint({root, "--http-address=a", "--http-port=70000"}), HasSubstr("70000"));
  EXPECT_THAT(complaint({root, "--http-address=a", "--http-port=8o"}), HasSubstr("8o"));
  EXPECT_THAT(complaint({root, "--http-address=a", "--threads=0"}), HasSubstr("--threads"));
  EXPECT_THAT(complaint({root, "--http-address=a", "--deploy-path=x"}), HasSubstr("--deploy-path"));
  EXPECT_THAT(complaint({root, "--https-address=a"}), HasSubstr("--ssl-certificate"));
  EXPECT_THAT(complaint({root, "--https-address=a", "--ssl-certificate=" + file}),
              HasSubstr("--ssl-private-key"));
  EXPECT_THAT(complaint({root, "--https-address=a", "--ssl-certificate=" + file, "--ssl-private-key=/none"}),
              HasSubstr("/none"));
  EXPECT_THAT(complaint({root, "--https-address=a", "--ssl-certificate=" + file, "--ssl-private-key=" + file,
                         "--ssl-tmp-dh=/none"}),
              HasSubstr("--ssl-tmp-dh"));
  EXPECT_EQ(complaint({root, "--https-address=a", "--ssl-certificate=" + file, "--ssl-private-key=" + file}),
            "");
  EXPECT_EQ(complaint({root, "--http-address=a"}), "");
}

TEST(ServerConfigurationTest, theThreadCountComesFromTheFileUnlessGiven)
{
  const HttpTestFolder folder;
  const std::string file = folder.write(
      "wt_config.xml", "<server><application-settings location=\"*\"><num-threads>3</num-threads>"
                       "</application-settings></server>");
  std::string error;
  ServerConfiguration c = parsed({"--docroot=" + folder.path(), "--http-address=a"});
  ASSERT_TRUE(c.readFile(file, "", error)) << error;
  ASSERT_TRUE(c.check(error)) << error;
  EXPECT_EQ(c.threadCount, 3);
  c.threads = "7";
  ASSERT_TRUE(c.check(error)) << error;
  EXPECT_EQ(c.threadCount, 7);
}

TEST(ServerConfigurationTest, theFileSetsTheLimitsAndASectionOfTheProgramWins)
{
  const HttpTestFolder folder;
  const std::string file = folder.write("c.xml", R"(<server>
    <application-settings location="/bin/other"><max-request-size>1</max-request-size></application-settings>
    <application-settings location="/bin/app">
      <session-management><timeout>30</timeout></session-management>
    </application-settings>
    <application-settings location="*">
      <session-management>
        <dedicated-process><max-num-sessions>7</max-num-sessions></dedicated-process>
        <timeout>120</timeout>
      </session-management>
      <max-request-size>4096</max-request-size>
      <behind-reverse-proxy>true</behind-reverse-proxy>
    </application-settings>
  </server>)");
  std::string error;
  ServerConfiguration c;
  ASSERT_TRUE(c.readFile(file, "/bin/app", error)) << error;
  EXPECT_EQ(c.timeout, 30);
  EXPECT_EQ(c.maximumRequestSize, 4096 * 1024);
  EXPECT_EQ(c.maximumSessions, 7);
  EXPECT_TRUE(c.behindProxy);
}

TEST(ServerConfigurationTest, theFileSetsTheLimitsOfOneAddress)
{
  const HttpTestFolder folder;
  const std::string file = folder.write("c.xml", R"(<server><application-settings location="*">
      <session-management>
        <new-sessions-per-address> 40 </new-sessions-per-address>
        <new-sessions-interval>20</new-sessions-interval>
      </session-management>
      <max-connections>300</max-connections>
      <max-connections-per-address>0</max-connections-per-address>
    </application-settings></server>)");
  std::string error;
  ServerConfiguration c;
  ASSERT_TRUE(c.readFile(file, "", error)) << error;
  EXPECT_EQ(c.newSessionsPerAddress, 40);
  EXPECT_EQ(c.newSessionsInterval, 20);
  EXPECT_EQ(c.maximumConnections, 300);
  EXPECT_EQ(c.connectionsPerAddress, 1);
}

TEST(ServerConfigurationTest, aLimitThatIsNoNumberIsAsIfItWereNotThere)
{
  const HttpTestFolder folder;
  const std::string file = folder.write("c.xml", R"(<server><application-settings location="*">
      <session-management><new-sessions-per-address>many</new-sessions-per-address></session-management>
      <max-connections>-5</max-connections><max-connections-per-address/>
    </application-settings></server>)");
  std::string error;
  ServerConfiguration c;
  ASSERT_TRUE(c.readFile(file, "", error)) << error;
  EXPECT_FALSE(c.newSessionsPerAddress.has_value());
  EXPECT_FALSE(c.maximumConnections.has_value());
  EXPECT_FALSE(c.connectionsPerAddress.has_value());
}

TEST(ServerConfigurationTest, withoutAFileTheDefaultsHold)
{
  ::unsetenv("WT_CONFIG_XML");
  ::unsetenv("WT_APP_ROOT");
  std::string error;
  ServerConfiguration c;
  ASSERT_TRUE(c.readFile("", "", error));
  EXPECT_EQ(c.timeout, 600);
  EXPECT_EQ(c.maximumRequestSize, 128 * 1024);
  EXPECT_FALSE(c.maximumSessions.has_value());
}

TEST(ServerConfigurationTest, theFileIsFoundByTheEnvironment)
{
  const HttpTestFolder folder;
  folder.write("wt_config.xml",
               "<server><application-settings location=\"*\"><session-management><timeout>-1</timeout>"
               "</session-management></application-settings></server>");
  ::setenv("WT_APP_ROOT", folder.path().c_str(), 1);
  std::string error;
  ServerConfiguration c;
  ASSERT_TRUE(c.readFile("", "", error));
  ::unsetenv("WT_APP_ROOT");
  EXPECT_EQ(c.timeout, -1);
}

TEST(ServerConfigurationTest, aBrokenOrMissingNamedFileIsSaid)
{
  const HttpTestFolder folder;
  std::string error;
  ServerConfiguration c;
  EXPECT_FALSE(c.readFile(folder / "none.xml", "", error));
  EXPECT_THAT(error, HasSubstr("none.xml"));
  EXPECT_FALSE(c.readFile(folder.write("bad.xml", "<server>"), "", error));
  EXPECT_THAT(error, HasSubstr("bad.xml"));
}

TEST(ServerConfigurationTest, helpNamesEveryOption)
{
  const std::string help = ServerConfiguration::helpText();
  for (const char *name :
       {"--docroot", "--http-address", "--https-port", "--ssl-tmp-dh", "--threads, -t", "--config, -c",
        "--pid-file, -p", "--accesslog", "--max-memory-request-size", "--session-id-prefix"})
    EXPECT_THAT(help, HasSubstr(name));
}
