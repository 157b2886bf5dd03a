// SPDX-License-Identifier: MIT
#ifndef APP_MAIN_H_
#define APP_MAIN_H_

namespace Wt
{
class WApplication;
class WEnvironment;
} // namespace Wt

#include <boost/function.hpp>

/// The document root as a NUL-terminated text. Written once, before the server starts.
extern char Main_docRoot[128];

/// Sets Main_docRoot from the command line's last "--docroot" that has a value in the same argument, else
/// from WT_APP_ROOT, else to ".".
void Main_findDocRoot(int argc, char *argv[]);

/// The entry point's factory: one application object per browser session.
Wt::WApplication *createApplication(const Wt::WEnvironment &env);

/// Calls `function` every so many milliseconds on the server's I/O service, at once too if `runNow`. The next
/// call is scheduled before the present one runs, so that nothing it throws ends the chain.
void repeatedTimer(int milliseconds, boost::function<void()> function, bool runNow);

/// Ends the sessions of browsers that have gone away.
void timerFunction();

/// Sets the process up, serves until a termination signal and cleans up. The exit status: always 0.
int Main_run(int argc, char *argv[]);

#endif // APP_MAIN_H_
