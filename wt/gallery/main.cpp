// SPDX-License-Identifier: MIT
// Every widget of the toolkit in every state, on one page: for the eye, for the browser tests and for axe.
#include "GalleryApplication.h"

#include <Wt/WServer>
#include <cstdio>

static Wt::WApplication *createGallery(const Wt::WEnvironment &environment)
{
  return new gallery::GalleryApplication(environment);
}

int main(int argc, char **argv)
{
  try {
    Wt::WServer server(argv[0], "");
    server.setServerConfiguration(argc, argv, "");
    server.addEntryPoint(Wt::Application, createGallery, "", "resources/themes/unknown/favicon.ico");
    if (server.start()) {
      std::printf("gallery at port %d\n", server.httpPort());
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
