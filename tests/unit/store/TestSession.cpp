// SPDX-License-Identifier: MIT
#include "TestSession.h"

#include "ClientSession.h"

#include <Wt/WMessageResourceBundle>

class TestSession::Application : public Wt::WApplication, public ClientSession
{
public:
  explicit Application(const Wt::WEnvironment &environment) : Wt::WApplication(environment) {}
};

TestSession::TestSession() : application_(std::make_unique<Application>(environment_)) {}

TestSession::~TestSession() = default;

void TestSession::useTexts()
{
  application_->messageResourceBundle().use(NEVO_SOURCE_DIR "/resources/msgs-general");
}

bool TestSession::hasOpenClient() const
{
  return application_->hasOpenClient();
}
