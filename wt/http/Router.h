// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_ROUTER_H_
#define WT_HTTP_ROUTER_H_

#include <string>
#include <vector>

namespace Wt
{
namespace Net
{

/// Decides which requests are for static files and which for an entry point of the application.
class Router
{
public:
  enum class Kind { Nothing, StaticFile, EntryPoint };
  struct Route {
    Kind kind;
    std::string entryPoint;
  };

  /// Without static paths an entry point answers for exactly its own path, and all others are static files.
  Router() = default;
  /// With them, a path that equals or lies below one is a static file, and entry points answer for all below
  /// them.
  explicit Router(std::vector<std::string> staticPaths);

  /// The path begins with "/".
  void addEntryPoint(const std::string &path);
  Route route(const std::string &path) const;

private:
  bool listed_ = false;
  std::vector<std::string> staticPaths_;
  std::vector<std::string> entryPoints_;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_ROUTER_H_
