// SPDX-License-Identifier: MIT
#include "http/ServerConfiguration.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <pugixml.hpp>
#include <sstream>
#include <sys/stat.h>

namespace Wt
{
namespace Net
{

namespace
{

struct Option {
  const char *name;
  char letter; ///< of the short form, or 0
  bool takesValue;
  std::string ServerConfiguration::*
      target; ///< null where the option is taken and has no effect, or is special
  const char *help;
};

const Option kOptions[] = {
    {"docroot", 0, true, nullptr, "PATH[;P1,P2,...]  folder of static files (required)"},
    {"http-address", 0, true, &ServerConfiguration::httpAddress, "ADDRESS  where to listen for HTTP"},
    {"http-port", 0, true, &ServerConfiguration::httpPort, "PORT  (80)"},
    {"https-address", 0, true, &ServerConfiguration::httpsAddress, "ADDRESS  where to listen for HTTPS"},
    {"https-port", 0, true, &ServerConfiguration::httpsPort, "PORT  (443); may be the HTTP port"},
    {"ssl-certificate", 0, true, &ServerConfiguration::sslCertificate, "FILE  certificate chain, PEM"},
    {"ssl-private-key", 0, true, &ServerConfiguration::sslPrivateKey, "FILE  private key, PEM"},
    {"ssl-tmp-dh", 0, true, &ServerConfiguration::sslTmpDh, "FILE  accepted; elliptic curves are used"},
    {"threads", 't', true, &ServerConfiguration::threads, "COUNT  worker threads (-1: as configured)"},
    {"deploy-path", 0, true, &ServerConfiguration::deployPath, "PATH  of the application (/)"},
    {"config", 'c', true, &ServerConfiguration::configFile, "FILE  wt_config.xml"},
    {"accesslog", 0, true, &ServerConfiguration::accessLog,
     "FILE  log of requests (standard output); - for none"},
    {"no-compression", 0, false, nullptr, "send files as they are"},
    {"pid-file", 'p', true, &ServerConfiguration::pidFile, "FILE  to write the process number to"},
    {"max-memory-request-size", 0, true, nullptr, "BYTES  accepted; bodies always go to files"},
    {"session-id-prefix", 0, true, nullptr, "TEXT  accepted, without effect"},
    {"approot", 0, true, nullptr, "PATH  accepted, without effect"},
    {"errroot", 0, true, nullptr, "PATH  accepted, without effect"},
    {"servername", 0, true, &ServerConfiguration::serverNames,
     "NAME[,NAME...]  by which people ask for the server, beside those that it learns; * for any"},
    {"gdb", 0, false, nullptr, "accepted, without effect"},
    {"help", 'h', false, nullptr, "this text"},
};

const Option *findOption(const std::string &name)
{
  for (const Option &option : kOptions)
    if (name == option.name || (name.size() == 1 && name[0] == option.letter))
      return &option;
  return nullptr;
}

bool parseInt(const std::string &text, long low, long high, long &value)
{
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  return !text.empty() && result.ec == std::errc() && result.ptr == text.data() + text.size() &&
         value >= low && value <= high;
}

bool isDirectory(const std::string &path)
{
  struct stat info = {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool isFile(const std::string &path)
{
  struct stat info = {};
  return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

/// An argument taken apart: "--name", "--name=value" or "--name value" in one word.
struct Argument {
  bool isOption = false;
  bool hasValue = false;
  std::string name;
  std::string value;

  explicit Argument(const std::string &text)
  {
    const bool isLong = text.compare(0, 2, "--") == 0 && text.size() > 2;
    isOption = isLong ||
               (text.size() >= 2 && text[0] == '-' && text[1] != '-' && !(text[1] >= '0' && text[1] <= '9'));
    if (!isOption)
      return;
    const std::size_t start = isLong ? 2 : 1;
    const std::size_t end = std::min(isLong ? text.find_first_of("= \t") : std::size_t{2}, text.size());
    name = text.substr(start, end - start);
    hasValue = end < text.size();
    const std::size_t valueStart = text.find_first_not_of("= \t", end);
    if (hasValue && valueStart != std::string::npos)
      value = text.substr(valueStart);
  }
};

bool isTrue(const char *text)
{
  return std::string(text) == "true" || std::string(text) == "1";
}

/// Takes a number, brought within its bounds. What is no number, or is not there, leaves the target as it is.
void readCount(const pugi::xml_node &node, int low, int high, std::optional<int> &target)
{
  std::string text = node.text().as_string();
  text.erase(0, text.find_first_not_of(" \t\r\n"));
  text.erase(text.find_last_not_of(" \t\r\n") + 1);
  long number = 0;
  if (parseInt(text, 0, std::numeric_limits<long>::max(), number))
    target = static_cast<int>(std::clamp<long>(number, low, high));
}

/// Takes over what a section of the file says; what it does not say stays.
void readSection(const pugi::xml_node &section, ServerConfiguration &configuration)
{
  const int most = 1000 * 1000;
  const pugi::xml_node sessions = section.child("session-management");
  if (const pugi::xml_node node = sessions.child("timeout"))
    configuration.timeout = node.text().as_int(configuration.timeout);
  readCount(sessions.child("dedicated-process").child("max-num-sessions"), 1, most,
            configuration.maximumSessions);
  readCount(sessions.child("new-sessions-per-address"), 1, most, configuration.newSessionsPerAddress);
  readCount(sessions.child("new-sessions-interval"), 1, 24 * 60 * 60, configuration.newSessionsInterval);
  readCount(section.child("max-connections"), 1, most, configuration.maximumConnections);
  readCount(section.child("max-connections-per-address"), 1, most, configuration.connectionsPerAddress);
  if (const pugi::xml_node node = section.child("max-request-size"))
    configuration.maximumRequestSize =
        std::clamp<long long>(node.text().as_llong(128), 1, std::int64_t{1} << 40) * 1024;
  if (const pugi::xml_node node = section.child("num-threads"))
    configuration.fileThreads = std::clamp(node.text().as_int(10), 1, 1000);
  if (const pugi::xml_node node = section.child("behind-reverse-proxy"))
    configuration.behindProxy = isTrue(node.text().as_string());
}

std::string foundFile()
{
  std::vector<std::string> places;
  if (const char *named = std::getenv("WT_CONFIG_XML"))
    places.push_back(named);
  if (const char *root = std::getenv("WT_APP_ROOT"))
    places.push_back(std::string(root) + "/wt_config.xml");
  places.push_back("/etc/wt/wt_config.xml");
  const auto found = std::find_if(places.begin(), places.end(), isFile);
  return found == places.end() ? std::string() : *found;
}

} // namespace

void ServerConfiguration::parseArguments(const std::vector<std::string> &arguments)
{
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    Argument argument(arguments[i]);
    const Option *option = argument.isOption ? findOption(argument.name) : nullptr;
    if (!option) {
      unknown.push_back(argument.isOption ? "--" + argument.name : arguments[i]);
      // What follows an unknown option without being one is taken for its value.
      const bool valueFollows = argument.isOption && !argument.hasValue && i + 1 < arguments.size() &&
                                !Argument(arguments[i + 1]).isOption;
      if (valueFollows)
        ++i;
      continue;
    }
    if (option->takesValue && !argument.hasValue && i + 1 < arguments.size())
      argument.value = arguments[++i];
    if (option->target)
      this->*option->target = argument.value;
    else
      set(option->name, argument.value);
  }
}

/// The options that are more than a text to keep.
bool ServerConfiguration::set(const std::string &name, const std::string &value)
{
  if (name == "docroot")
    setDocumentRoot(value);
  else if (name == "no-compression")
    compression = false;
  else if (name == "help")
    help = true;
  else
    return false;
  return true;
}

void ServerConfiguration::setDocumentRoot(const std::string &value)
{
  const std::size_t mark = value.find(';');
  documentRoot = value.substr(0, mark);
  staticListed = mark != std::string::npos;
  staticPaths.clear();
  for (std::size_t at = mark; at < value.size();) {
    const std::size_t end = std::min(value.find(',', at + 1), value.size());
    const std::string path = value.substr(at + 1, end - at - 1);
    if (!path.empty())
      staticPaths.push_back(path[0] == '/' ? path : "/" + path);
    at = end;
  }
}

bool ServerConfiguration::readFile(const std::string &named, const std::string &location, std::string &error)
{
  const std::string chosen = !named.empty() ? named : configFile;
  const std::string path = !chosen.empty() ? chosen : foundFile();
  if (path.empty())
    return true;
  pugi::xml_document document;
  const pugi::xml_parse_result result = document.load_file(path.c_str());
  if (!result) {
    error = "The configuration file \"" + path + "\" cannot be read: " + result.description() + ".";
    return false;
  }
  for (const std::string &wanted : {std::string("*"), location})
    for (const pugi::xml_node section : document.child("server").children("application-settings"))
      if (wanted == section.attribute("location").as_string())
        readSection(section, *this);
  return true;
}

bool ServerConfiguration::checkTls(std::string &error) const
{
  const std::pair<const char *, const std::string &> files[] = {{"--ssl-certificate", sslCertificate},
                                                                {"--ssl-private-key", sslPrivateKey},
                                                                {"--ssl-tmp-dh", sslTmpDh}};
  for (const auto &file : files) {
    const bool optional = &file.second == &sslTmpDh;
    if (file.second.empty() && !optional)
      error = std::string("HTTPS needs the option ") + file.first + ".";
    else if (!file.second.empty() && !isFile(file.second))
      error =
          std::string("The option ") + file.first + " names \"" + file.second + "\", which is not a file.";
    if (!error.empty())
      return false;
  }
  return true;
}

bool ServerConfiguration::check(std::string &error)
{
  long http = 0;
  long https = 0;
  long threadNumber = 0;
  if (documentRoot.empty())
    error = "The option --docroot is missing.";
  else if (!isDirectory(documentRoot))
    error = "The document root \"" + documentRoot + "\" is not a folder.";
  else if (httpAddress.empty() && httpsAddress.empty())
    error = "One of the options --http-address and --https-address is needed.";
  else if (!parseInt(httpPort, 0, 65535, http))
    error = "The option --http-port has the value \"" + httpPort + "\", which is not a port.";
  else if (!parseInt(httpsPort, 0, 65535, https))
    error = "The option --https-port has the value \"" + httpsPort + "\", which is not a port.";
  else if (!parseInt(threads, -1, 1000, threadNumber) || threadNumber == 0)
    error = "The option --threads has the value \"" + threads + "\", which is not a number of threads.";
  else if (deployPath.empty() || deployPath[0] != '/')
    error = "The option --deploy-path must begin with a slash.";
  if (!error.empty() || (!httpsAddress.empty() && !checkTls(error)))
    return false;
  httpPortNumber = static_cast<unsigned short>(http);
  httpsPortNumber = static_cast<unsigned short>(https);
  threadCount = threadNumber < 0 ? fileThreads : static_cast<int>(threadNumber);
  return true;
}

std::vector<std::string> ServerConfiguration::names() const
{
  std::vector<std::string> names;
  std::istringstream words(serverNames);
  for (std::string name; std::getline(words, name, ',');)
    if (!name.empty())
      names.push_back(name);
  return names;
}

std::string ServerConfiguration::helpText()
{
  std::string text = "Options:\n";
  for (const Option &option : kOptions) {
    text += "  --";
    text += option.name;
    if (option.letter) {
      text += ", -";
      text += option.letter;
    }
    text += "  ";
    text += option.help;
    text += "\n";
  }
  return text;
}

} // namespace Net
} // namespace Wt
