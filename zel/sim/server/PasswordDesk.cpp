// SPDX-License-Identifier: MIT
#include "server/PasswordDesk.h"

#include "life/World.h"
#include "rules/AdminSessions.h"

#include <algorithm>
#include <string_view>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

namespace zelsim
{

namespace
{

// The text that a request gives for a secret, which is kept as a hash; null if it gives none.
const json_t *newSecret(const Request &request)
{
  for (std::size_t i = 0; request.path.empty() && i < request.resource->parameterCount; ++i) {
    const Parameter &row = request.resource->parameters[i];
    const json_t *given =
        row.is(kSecret) && !row.is(kReadOnly) ? json_object_get(request.params, row.name) : nullptr;
    if (json_is_string(given) && json_string_length(given) > 0)
      return given;
  }
  return nullptr;
}

} // namespace

PasswordDesk::~PasswordDesk()
{
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    closing_ = true;
  }
  wake_.notify_one();
  if (thread_.joinable())
    thread_.join();
  if (done_ >= 0)
    ::close(done_);
}

bool PasswordDesk::open()
{
  done_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  if (done_ < 0)
    return false;
  // Not when the first stranger knocks: it takes as long as a hash.
  nobodysPassword();
  try {
    thread_ = std::thread([this] { work(); });
  } catch (const std::system_error &) {
    return false;
  }
  return true;
}

void PasswordDesk::submit(Piece piece)
{
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    waiting_.push_back(std::move(piece));
  }
  wake_.notify_one();
}

void PasswordDesk::cancel(std::uint64_t client)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  for (std::deque<Piece> *list : {&waiting_, &finished_})
    list->erase(std::remove_if(list->begin(), list->end(),
                               [client](const Piece &piece) { return piece.client == client; }),
                list->end());
}

bool PasswordDesk::take(Piece &piece)
{
  std::uint64_t count = 0;
  const std::lock_guard<std::mutex> lock(mutex_);
  if (finished_.empty()) {
    static_cast<void>(::read(done_, &count, sizeof count) == 0);
    return false;
  }
  piece = std::move(finished_.front());
  finished_.pop_front();
  return true;
}

void PasswordDesk::work()
{
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return closing_ || !waiting_.empty(); });
    if (closing_)
      return;
    Piece piece = std::move(waiting_.front());
    waiting_.pop_front();
    lock.unlock();
    piece.work.carryOut();
    lock.lock();
    finished_.push_back(std::move(piece));
    const std::uint64_t one = 1;
    static_cast<void>(::write(done_, &one, sizeof one) == 0);
  }
}

bool PasswordDesk::workOf(const World &world, const Request &request, PasswordWork &work)
{
  if (request.method == Method::Create && std::string_view(request.resource->name) == "adminSession")
    return passwordWorkOfLogin(world, request.params, work);
  const json_t *secret =
      request.method == Method::Set || request.method == Method::Create ? newSecret(request) : nullptr;
  if (!secret)
    return false;
  work.password.assign(json_string_value(secret), json_string_length(secret));
  return true;
}

} // namespace zelsim
