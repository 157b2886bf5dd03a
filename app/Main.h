// SPDX-License-Identifier: MIT
#ifndef APP_MAIN_H_
#define APP_MAIN_H_

namespace Wt
{
class WApplication;
class WEnvironment;
} // namespace Wt

#include <boost/function.hpp>
#include <string>
#include <vector>

/// The document root as a NUL-terminated text. Written once, before the server starts.
extern char Main_docRoot[128];

/// The port of HTTPS where HTTP has another one, else 0. Written once, before the server starts.
extern int Main_securePort;

/// Sets Main_securePort from the command line.
void Main_findSecurePort(int argc, char *argv[]);

/// Where HTTPS is to be had, for a browser that came in the clear to `host`, which may have a port.
std::string Main_secureHost(const std::string &host);

/// Sets Main_docRoot from the command line's last "--docroot" that has a value in the same argument, else
/// from WT_APP_ROOT, else to ".". A ";" ends the value.
void Main_findDocRoot(int argc, char *argv[]);

/// The command line for the server: as it is, with the document root that the application uses where it names
/// none. After Main_findDocRoot().
std::vector<std::string> Main_commandLine(int argc, char *argv[]);

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
