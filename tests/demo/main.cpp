// SPDX-License-Identifier: MIT
// Every bound widget of the kit on one page, over live records of a store: for the eye and for browser tests.
#include "Main.h"

#include "KitDemo.h"

#include <Wt/WServer>
#include <cstdio>

static Wt::WApplication *createDemo(const Wt::WEnvironment &environment)
{
  return new KitDemo(environment);
}

int main(int argc, char **argv)
{
  Main_findDocRoot(argc, argv);
  try {
    Wt::WServer server(argv[0], "");
    server.setServerConfiguration(argc, argv, "");
    server.addEntryPoint(Wt::Application, createDemo, "", "resources/themes/unknown/favicon.ico");
    if (server.start()) {
      std::printf("kit at port %d\n", server.httpPort());
      std::fflush(stdout);
      Wt::WServer::waitForShutdown(0);
      server.stop();
    }
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  return 0;
}
