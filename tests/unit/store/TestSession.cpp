// SPDX-License-Identifier: MIT
#include "TestSession.h"

#include "ZelClient.h"

#include <Wt/WMessageResourceBundle>

class TestSession::Application : public Wt::WApplication, public StoreSession
{
public:
  explicit Application(const Wt::WEnvironment &environment) : Wt::WApplication(environment) {}
  ~Application() override { closeZelClient(); }

  ZelClient_s *getZelClient() override
  {
    if (!ZelClient_isValid(client_)) {
      ZelClient_close(client_);
      client_ = ZelClient_new();
    }
    return client_;
  }

  void closeZelClient() override
  {
    ZelClient_close(client_);
    client_ = nullptr;
  }

  unsigned int getIndexOfCurrentlyLoggedInUsr() override { return 7; }

  bool hasOpenClient() const { return ZelClient_isValid(client_); }

private:
  ZelClient_s *client_ = nullptr;
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
