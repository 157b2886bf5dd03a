// SPDX-License-Identifier: MIT
#include "session/SessionWork.h"

#include "base/Log.h"

#include <cstdio>

namespace Wt
{
namespace Engine
{

const char kReloadMessage[] = "{\"reload\":true}";

ResourceRequest::~ResourceRequest()
{
  if (response)
    refuse(files, *response);
}

void ResourceRequest::serve(ResourceHandler &handler)
{
  const auto answer = std::move(response);
  try {
    handler.serve(std::move(head), std::move(files), tooLarge, answer);
  } catch (const std::exception &e) {
    log(LogLevel::Error, "session", std::string("a resource failed: ") + e.what());
    // Has no effect on an answer that is under way.
    answer->setStatus(500);
    answer->finish();
  }
}

void ResourceRequest::refuse(const std::vector<SpooledFile> &files, ResourceResponse &response)
{
  for (const SpooledFile &file : files)
    std::remove(file.spoolPath.c_str());
  response.setStatus(404);
  response.finish();
}

void SessionWork::refuse()
{
  if (!transport)
    return;
  transport->send(kReloadMessage);
  transport->close("end");
  transport.reset();
}

} // namespace Engine
} // namespace Wt
