// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_HOST_NAMES_H_
#define WT_HTTP_HOST_NAMES_H_

#include <set>
#include <string>

namespace Wt
{
namespace Net
{

/**
 * The names by which this server is asked for. A foreign name in the Host field means that a page from
 * elsewhere uses a person's browser against this server, having its own name lead here.
 *
 * Any numeric address counts as own: an address can only be reached at itself, and people come by addresses
 * that no interface here has, through forwarded ports for example.
 */
class HostNames
{
public:
  /// "localhost", and this machine's name, alone and with ".local".
  HostNames();

  /// A name in any case, or "*.DOMAIN" for all names of one more label, or "*" for any.
  void add(const std::string &name);
  /// Whether the content of a Host field, with or without a port, names this server.
  bool isOwn(const std::string &host) const;

private:
  std::set<std::string> names_;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_HOST_NAMES_H_
