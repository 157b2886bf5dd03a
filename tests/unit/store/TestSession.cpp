// SPDX-License-Identifier: MIT
#include "TestSession.h"

#include "ZelClient.h"

namespace
{

TestSession *sCurrent = nullptr;

} // namespace

// These stand in for the ones that ask the web application, of which there is none here.
StoreSession *StoreSession::current()
{
  return sCurrent;
}

std::string StoreSession::currentClientAddress()
{
  return sCurrent ? "192.0.2.17" : "";
}

TestSession::TestSession()
{
  sCurrent = this;
}

TestSession::~TestSession()
{
  closeZelClient();
  sCurrent = nullptr;
}

ZelClient_s *TestSession::getZelClient()
{
  if (!ZelClient_isValid(client_)) {
    ZelClient_close(client_);
    client_ = ZelClient_new();
  }
  return client_;
}

void TestSession::closeZelClient()
{
  ZelClient_close(client_);
  client_ = nullptr;
}

bool TestSession::hasOpenClient() const
{
  return ZelClient_isValid(client_);
}
