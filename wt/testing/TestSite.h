// SPDX-License-Identifier: MIT
#ifndef WT_TESTING_TEST_SITE_H_
#define WT_TESTING_TEST_SITE_H_

#include "session/SessionManager.h"
#include "testing/HeadlessBrowser.h"
#include "testing/ManualScheduler.h"

#include <functional>
#include <memory>

namespace Wt
{
namespace Testing
{

/// Sessions of one application, without network and without threads, on a clock that the test moves.
class TestSite
{
public:
  explicit TestSite(ApplicationCreator creator, Engine::SessionConfig config = Engine::SessionConfig());
  /// An application of which `build` is what its constructor does.
  static ApplicationCreator building(std::function<void(WApplication &)> build);
  /// Ends all sessions.
  ~TestSite();
  TestSite(const TestSite &) = delete;
  TestSite &operator=(const TestSite &) = delete;

  ManualScheduler scheduler;
  std::shared_ptr<Engine::SessionManager> manager;
  /// A page of this site; it may not outlive the site.
  std::unique_ptr<HeadlessBrowser> page();
  /// The same, opened.
  std::unique_ptr<HeadlessBrowser> openPage();
};

} // namespace Testing
} // namespace Wt

#endif // WT_TESTING_TEST_SITE_H_
