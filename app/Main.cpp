// SPDX-License-Identifier: MIT
#include "Main.h"

#include "EventLog.h"
#include "NevoApplication.h"
#include "NevoPath.h"

#include <Wt/WEnvironment>
#include <Wt/WIOService>
#include <Wt/WServer>
#include <boost/bind.hpp>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

char Main_docRoot[128];

namespace
{

const int kReaperMilliseconds = 10000;

void copyLimited(char *to, std::size_t size, const char *from)
{
  std::snprintf(to, size, "%s", from);
}

/// What follows "--docroot" in an argument, past any mix of "=" and white space; null if that leaves nothing.
const char *docRootValue(const char *argument)
{
  static const char option[] = "--docroot";
  const std::size_t length = sizeof option - 1;
  if (std::strncmp(argument, option, length) != 0)
    return 0;
  const char *value = argument + length;
  while (*value == '=' || std::isspace(static_cast<unsigned char>(*value)))
    ++value;
  return *value ? value : 0;
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
  server.setServerConfiguration(argc, argv, "");
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
  if (Main_docRoot[0])
    return;
  const char *root = std::getenv("WT_APP_ROOT");
  copyLimited(Main_docRoot, sizeof Main_docRoot, root ? root : ".");
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
  try {
    serve(argc, argv);
  } catch (const Wt::WServer::Exception &e) {
    EventLog_write(1, 7, "main", "Server exception (%s).", e.what());
  } catch (const std::exception &e) {
    EventLog_write(1, 7, "main", "Server exception (%s).", e.what());
  }
  return 0;
}
