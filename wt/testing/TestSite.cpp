// SPDX-License-Identifier: MIT
#include "testing/TestSite.h"

namespace Wt
{
namespace Testing
{

namespace
{

class BuiltApplication : public WApplication
{
public:
  BuiltApplication(const WEnvironment &environment, const std::function<void(WApplication &)> &build)
      : WApplication(environment)
  {
    build(*this);
  }
};

} // namespace

TestSite::TestSite(ApplicationCreator creator, Engine::SessionConfig config)
    : manager(std::make_shared<Engine::SessionManager>(scheduler, std::move(config)))
{
  Engine::EntryPoint entryPoint;
  entryPoint.path = "/";
  entryPoint.creator = std::move(creator);
  manager->addEntryPoint(std::move(entryPoint));
}

TestSite::~TestSite()
{
  manager->killAll();
  scheduler.run();
}

ApplicationCreator TestSite::building(std::function<void(WApplication &)> build)
{
  return [build = std::move(build)](const WEnvironment &environment) -> WApplication * {
    return new BuiltApplication(environment, build);
  };
}

std::unique_ptr<HeadlessBrowser> TestSite::page()
{
  return std::make_unique<HeadlessBrowser>(manager, &scheduler);
}

std::unique_ptr<HeadlessBrowser> TestSite::openPage()
{
  auto opened = page();
  opened->open();
  return opened;
}

} // namespace Testing
} // namespace Wt
