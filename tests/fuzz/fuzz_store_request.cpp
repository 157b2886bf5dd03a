// SPDX-License-Identifier: MIT
// Requests as a hostile client may send them, carried out on a store in memory.
#include "Frame.h"
#include "data/Journal.h"
#include "data/Password.h"
#include "server/Reader.h"
#include "server/Writer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace
{

using namespace zelsim;

// Nothing that a request asks for may reach the disk.
Settings withoutFiles()
{
  Settings settings;
  settings.settingsRoot = "/proc/none";
  return settings;
}

struct Switch {
  Store store{nullptr};
  World world{withoutFiles(), store};
  Reader reader{world};
  Writer writer{world};

  Switch()
  {
    std::string problem;
    setPasswordIterations(1);
    registerRules(world.rules);
    store.load(problem);
    makeFleet(world);
    store.commit(problem);
  }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
  static std::unique_ptr<Switch> box;
  static unsigned runs = 0;
  // What rules have scheduled adds up: now and then everything begins anew.
  if (runs++ % 5000 == 0)
    box = std::make_unique<Switch>();
  Request request;
  std::string out;
  if (request.parse({reinterpret_cast<const char *>(data), size}))
    return 0;
  Store::Mark before = box->store.mark();
  std::vector<Problem> problems;
  if (request.method == Method::Get) {
    if (Problem problem = box->reader.answer(request, out))
      problems.push_back(problem);
  } else {
    int delay = 0;
    problems = box->writer.carryOut(request, 1, out, delay);
    // A refused request has changed nothing.
    if (!problems.empty() && box->store.mark() != before)
      std::abort();
  }
  if (problems.empty() == out.empty())
    std::abort();
  if (!problems.empty())
    appendErrors(out, problems);
  json_t *answer = zelwire::parseJson(out);
  if (!answer)
    std::abort();
  json_decref(answer);
  box->store.rollback(0);
  return 0;
}
