// SPDX-License-Identifier: MIT
#include "http/HostNames.h"

#include <algorithm>
#include <boost/asio/ip/address.hpp>
#include <climits>
#include <unistd.h>

namespace Wt
{
namespace Net
{

namespace
{

/// In lower case, and without the dot that marks a name as complete.
std::string normal(std::string name)
{
  for (char &c : name)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c | 0x20);
  if (name.size() > 1 && name.back() == '.')
    name.pop_back();
  return name;
}

bool isPort(const std::string &text)
{
  return text.size() <= 5 && text.find_first_not_of("0123456789") == std::string::npos;
}

bool isAddress(const std::string &text)
{
  boost::system::error_code ec;
  boost::asio::ip::make_address(text, ec);
  return !ec;
}

} // namespace

HostNames::HostNames()
{
  add("localhost");
  char name[HOST_NAME_MAX + 1] = {};
  if (::gethostname(name, HOST_NAME_MAX) == 0 && name[0]) {
    const std::string full = normal(name);
    const std::string first = full.substr(0, full.find('.'));
    add(full);
    add(first);
    add(first + ".local");
  }
}

void HostNames::add(const std::string &name)
{
  if (!name.empty())
    names_.insert(normal(name));
}

bool HostNames::isOwn(const std::string &host) const
{
  const std::size_t bracket = host.empty() || host[0] != '[' ? std::string::npos : host.find(']');
  const std::size_t end = bracket != std::string::npos ? bracket + 1 : std::min(host.find(':'), host.size());
  if (end < host.size() && (host[end] != ':' || !isPort(host.substr(end + 1))))
    return false;
  if (bracket != std::string::npos)
    return isAddress(host.substr(1, bracket - 1));
  const std::string name = normal(host.substr(0, end));
  if (isAddress(name) || names_.count("*") || names_.count(name))
    return true;
  const std::size_t dot = name.find('.');
  return dot != std::string::npos && dot > 0 && names_.count("*" + name.substr(dot));
}

} // namespace Net
} // namespace Wt
