// SPDX-License-Identifier: MIT
#include "session/Session.h"
#include "session/TextSources.h"
#include "testing/ManualScheduler.h"

#include <Wt/Test/WTestEnvironment>
#include <Wt/WApplication>
#include <Wt/WException>

namespace Wt
{
namespace Test
{

namespace
{

/// Has no page and no fiber: the test's thread holds it from beginning to end.
class TestSession : public Engine::Session
{
public:
  using Executed = std::function<void(WDialog *)>;

  TestSession(std::shared_ptr<Engine::TurnQueue> turns, const Engine::SessionConfig &config, Origin origin,
              Executed executed)
      : Session(std::move(turns), config, std::move(origin), nullptr), executed_(std::move(executed))
  {
    bool alreadyHeld = false;
    lock(alreadyHeld);
    makeCurrent(this);
  }

  ~TestSession() override
  {
    makeCurrent(nullptr);
    timers().clear();
  }

  void waitForDialog(WDialog &dialog, const std::function<bool()> &runs) override
  {
    executed_(&dialog);
    if (runs())
      throw WException("WDialog::exec(): a test must end the dialog");
  }

private:
  const Executed executed_;
};

} // namespace

struct WTestEnvironment::Host {
  Testing::ManualScheduler scheduler;
  Engine::SessionConfig config;
  std::shared_ptr<Engine::Session> session;
};

WTestEnvironment::WTestEnvironment(const std::string &, const std::string &, EntryPointType)
    : host_(std::make_unique<Host>())
{
  Engine::installTextSources();
  Engine::Session::Origin origin;
  origin.entryPoint.path = "/";
  origin.publicId = "testwtd";
  host_->session = std::make_shared<TestSession>(std::make_shared<Engine::TurnQueue>(host_->scheduler),
                                                 host_->config, std::move(origin),
                                                 [this](WDialog *dialog) { dialogExecuted_.emit(dialog); });
  attach(*host_->session);
  hostName_ = "localhost";
  urlScheme_ = "http";
  clientAddress_ = "127.0.0.1";
  deploymentPath_ = "/";
  sessionId_ = "testwtd";
}

WTestEnvironment::~WTestEnvironment() = default;

void WTestEnvironment::setParameterMap(const ParameterMap &parameters)
{
  parameters_ = parameters;
}

void WTestEnvironment::setCookies(const std::map<std::string, std::string> &cookies)
{
  cookies_ = cookies;
}

void WTestEnvironment::setHeaderValue(const std::string &name, const std::string &value)
{
  headers_[name] = value;
}

void WTestEnvironment::setLocale(const WLocale &locale)
{
  locale_ = locale;
}

void WTestEnvironment::setHostName(const std::string &hostName)
{
  hostName_ = hostName;
}

void WTestEnvironment::setUrlScheme(const std::string &scheme)
{
  urlScheme_ = scheme;
}

void WTestEnvironment::setUserAgent(const std::string &userAgent)
{
  userAgent_ = userAgent;
}

void WTestEnvironment::setReferer(const std::string &referer)
{
  referer_ = referer;
}

void WTestEnvironment::setInternalPath(const std::string &internalPath)
{
  internalPath_ = internalPath;
}

} // namespace Test
} // namespace Wt
