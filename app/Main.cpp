// SPDX-License-Identifier: MIT
#include "Main.h"

#include "EventLog.h"
#include "NevoApplication.h"
#include "NevoPath.h"

#include <Wt/WEnvironment>
#include <Wt/WIOService>
#include <Wt/WServer>
#include <algorithm>
#include <boost/bind.hpp>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

char Main_docRoot[128];
int Main_securePort = 0;

namespace
{

const int kReaperMilliseconds = 10000;

void copyLimited(char *to, std::size_t size, const char *from)
{
  std::snprintf(to, size, "%s", from);
}

const char kDocRoot[] = "--docroot";

/// What follows "--docroot" in an argument, past any mix of "=" and white space; null if that leaves nothing.
const char *docRootValue(const char *argument)
{
  const std::size_t length = sizeof kDocRoot - 1;
  if (std::strncmp(argument, kDocRoot, length) != 0)
    return 0;
  const char *value = argument + length;
  while (*value == '=' || std::isspace(static_cast<unsigned char>(*value)))
    ++value;
  return *value ? value : 0;
}

/// The last value of an option of the server, behind a "=" or a blank or in the next argument; `otherwise` if
/// it has none.
std::string optionValue(int argc, char *argv[], const std::string &name, const char *otherwise)
{
  std::string value = otherwise;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == name && i + 1 < argc)
      value = argv[++i];
    else if (argument.compare(0, name.size(), name) == 0 && argument.find_first_of("= \t") == name.size())
      value = argument.substr(std::min(argument.find_first_not_of("= \t", name.size()), argument.size()));
  }
  return value;
}

void announce()
{
  char line[128];
  std::snprintf(line, sizeof line, "NEVO started. %s build. Compiled %s %s.", "RELEASE", __DATE__, __TIME__);
  std::puts(line);
  std::fflush(stdout);
  EventLog_write(3, 7, "main", line);
}

void serve(int argc, char *argv[])
{
  Wt::WServer server(argv[0], "");
  std::vector<std::string> words = Main_commandLine(argc, argv);
  std::vector<char *> arguments;
  for (std::string &word : words)
    arguments.push_back(&word[0]);
  server.setServerConfiguration(static_cast<int>(arguments.size()), arguments.data(), "");
  const std::string favicon = NevoPath_themeBase() + "favicon.ico";
  server.addEntryPoint(Wt::Application, createApplication, "", favicon);
  if (!server.start())
    return;
  repeatedTimer(kReaperMilliseconds, timerFunction, false);
  Wt::WServer::waitForShutdown(0);
  server.stop();
}

} // namespace

void Main_findDocRoot(int argc, char *argv[])
{
  Main_docRoot[0] = '\0';
  for (int i = 1; i < argc; ++i)
    if (const char *value = docRootValue(argv[i]))
      copyLimited(Main_docRoot, sizeof Main_docRoot, value);
  // What follows the folder is the server's list of paths with static files.
  Main_docRoot[std::strcspn(Main_docRoot, ";")] = '\0';
  if (Main_docRoot[0])
    return;
  const char *root = std::getenv("WT_APP_ROOT");
  copyLimited(Main_docRoot, sizeof Main_docRoot, root ? root : ".");
}

void Main_findSecurePort(int argc, char *argv[])
{
  const std::string http = optionValue(argc, argv, "--http-port", "80");
  const std::string https = optionValue(argc, argv, "--https-port", "443");
  const bool bySecurePort = !optionValue(argc, argv, "--https-address", "").empty();
  Main_securePort =
      bySecurePort && http != https ? static_cast<int>(std::strtol(https.c_str(), nullptr, 10)) : 0;
}

std::string Main_secureHost(const std::string &host)
{
  if (Main_securePort == 0)
    return host;
  const std::size_t bracket = host.rfind(']');
  const std::size_t colon = host.find(':', bracket == std::string::npos ? 0 : bracket);
  const std::string name = host.substr(0, colon);
  return Main_securePort == 443 ? name : name + ":" + std::to_string(Main_securePort);
}

std::vector<std::string> Main_commandLine(int argc, char *argv[])
{
  std::vector<std::string> words(argv, argv + argc);
  const char *last = 0;
  for (int i = 1; i < argc; ++i) {
    const bool isBare = std::strcmp(argv[i], kDocRoot) == 0;
    // The server takes the value of a bare option from the next argument.
    if (isBare && i + 1 < argc && argv[i + 1][0] != '-')
      return words;
    if (std::strncmp(argv[i], kDocRoot, sizeof kDocRoot - 1) == 0)
      last = docRootValue(argv[i]) ? docRootValue(argv[i]) : "";
  }
  if (!last || !last[0])
    words.push_back(std::string(kDocRoot) + "=" + Main_docRoot);
  else if (last[0] == ';')
    words.push_back(std::string(kDocRoot) + "=" + Main_docRoot + last);
  return words;
}

Wt::WApplication *createApplication(const Wt::WEnvironment &env)
{
  EventLog_write(4, 7, "createApplication", "In createApplication.");
  NevoApplication *application = new NevoApplication(env);
  application->enableUpdates(true);
  return application;
}

void repeatedTimer(int milliseconds, boost::function<void()> function, bool runNow)
{
  Wt::WServer::instance()->ioService().schedule(milliseconds,
                                                boost::bind(&repeatedTimer, milliseconds, function, true));
  if (runNow)
    function();
}

void timerFunction()
{
  Wt::WServer::instance()->expireSessions();
}

int Main_run(int argc, char *argv[])
{
  EventLog_init(argv[0]);
  announce();
  Main_findDocRoot(argc, argv);
  Main_findSecurePort(argc, argv);
  try {
    serve(argc, argv);
  } catch (const Wt::WServer::Exception &e) {
    EventLog_write(1, 7, "main", "Server exception (%s).", e.what());
  } catch (const std::exception &e) {
    EventLog_write(1, 7, "main", "Server exception (%s).", e.what());
  }
  return 0;
}
