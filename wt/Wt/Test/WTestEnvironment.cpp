// SPDX-License-Identifier: MIT
#include "session/Session.h"
#include "session/TextSources.h"
#include "testing/ManualScheduler.h"

#include <Wt/Test/WTestEnvironment>
#include <Wt/WApplication>

namespace Wt
{
namespace Test
{

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
  host_->session =
      std::make_shared<Engine::Session>(host_->scheduler, host_->config, std::move(origin), nullptr);
  host_->session->enterTest([this](WDialog *dialog) { dialogExecuted_.emit(dialog); });
  attach(*host_->session);
  hostName_ = "localhost";
  urlScheme_ = "http";
  clientAddress_ = "127.0.0.1";
  deploymentPath_ = "/";
  sessionId_ = "testwtd";
}

WTestEnvironment::~WTestEnvironment()
{
  host_->session->leaveTest();
}

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
