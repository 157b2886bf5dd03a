// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_SERVER_CONFIGURATION_H_
#define WT_HTTP_SERVER_CONFIGURATION_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Wt
{
namespace Net
{

/// What the command line and the configuration file say.
struct ServerConfiguration {
  /// Command line
  std::string documentRoot;
  bool staticListed = false;
  std::vector<std::string> staticPaths;
  std::string httpAddress;
  std::string httpPort = "80";
  std::string httpsAddress;
  std::string httpsPort = "443";
  std::string sslCertificate;
  std::string sslPrivateKey;
  std::string sslTmpDh;
  std::string threads = "-1";
  std::string deployPath = "/";
  std::string configFile;
  std::string accessLog;
  bool compression = true;
  std::string pidFile;
  std::string serverNames; ///< with commas between them
  bool help = false;
  std::vector<std::string> unknown; ///< options that nobody knows, as they were given

  /// Configuration file
  int timeout = 600; ///< seconds; negative: never
  std::int64_t maximumRequestSize = 128 * 1024;
  int fileThreads = 10;
  bool behindProxy = false;
  /// Where the file says nothing, the defaults of SessionConfig and HttpSettings hold.
  std::optional<int> maximumSessions;
  std::optional<int> newSessionsPerAddress;
  std::optional<int> newSessionsInterval; ///< seconds
  std::optional<int> maximumConnections;
  std::optional<int> connectionsPerAddress;

  /// Both, after check()
  unsigned short httpPortNumber = 0;
  unsigned short httpsPortNumber = 0;
  int threadCount = 10;

  /// Takes the arguments behind the program's name. A later option wins over an earlier one of the same name.
  void parseArguments(const std::vector<std::string> &arguments);

  /**
   * Reads a wt_config.xml: the one named, or the first found in the usual places, or none. `location` chooses
   * the section beside "*". False, with `error` saying why, if a named file cannot be read or a found one is
   * malformed.
   */
  bool readFile(const std::string &named, const std::string &location, std::string &error);

  /// Checks what was given and fills in the numbers. False, with `error` saying what is wrong.
  bool check(std::string &error);

  /// The server's names that are given.
  std::vector<std::string> names() const;

  /// What --help prints.
  static std::string helpText();

private:
  bool set(const std::string &name, const std::string &value);
  void setDocumentRoot(const std::string &value);
  bool checkTls(std::string &error) const;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_SERVER_CONFIGURATION_H_
