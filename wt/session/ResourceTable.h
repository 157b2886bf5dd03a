// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_RESOURCE_TABLE_H_
#define WT_SESSION_RESOURCE_TABLE_H_

#include "session/ResourceHandler.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace Wt
{
namespace Engine
{

/// The resources of one session, and how far uploads to them have got. A resource keeps its secret for as
/// long as it lives, so that a link that somebody has opened or copied works after the resource has got
/// another name. Thread safe.
class ResourceTable
{
public:
  using Bytes = std::pair<std::uint64_t, std::uint64_t>; ///< got, of those announced

  /// The query part of a URL of the resource. Adding it again gives another URL; the former ones stay good.
  std::string add(const std::string &id, std::shared_ptr<ResourceHandler> handler);
  void remove(const std::string &id);
  void clear();

  bool has(const std::string &id, const std::string &secret) const;
  /// Null if there is no such resource (any more).
  std::shared_ptr<ResourceHandler> find(const std::string &id) const;

  /// True if nothing of this resource is waiting to be taken yet.
  bool noteProgress(const std::string &id, Bytes bytes);
  Bytes takeProgress(const std::string &id);

private:
  struct Resource {
    std::shared_ptr<ResourceHandler> handler;
    std::string secret;
    unsigned version = 0;
    Bytes bytes;
    bool waiting = false; ///< `bytes` are not taken yet
  };

  mutable std::mutex mutex_;
  std::map<std::string, Resource> resources_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_RESOURCE_TABLE_H_
