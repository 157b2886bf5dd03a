// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_REQUEST_H_
#define ZEL_SIM_SERVER_REQUEST_H_

#include "data/Catalogue.h"
#include "data/Value.h"
#include "rules/Rule.h"

#include <string>
#include <string_view>
#include <vector>

namespace zelsim
{

/// A request frame, taken apart and checked as far as the catalogue goes: method and resource are known
/// and fit each other, the sections have their types.
struct Request {
  Json frame;
  Method method = Method::Get;
  const Resource *resource = nullptr;
  /// Of a resource text such as "swx/network/ipv4": the nested parameter's path, outermost first.
  std::vector<const Parameter *> path;
  const json_t *query = nullptr;  // object or null
  const json_t *select = nullptr; // array of texts or null
  const json_t *params = nullptr; // object or null
  std::string_view have;          // tag of the answer that the client holds

  /// Fills the request from the text of a frame; the problem says what is wrong with it.
  Problem parse(std::string_view text);

private:
  Problem parseTarget();
  Problem parseSections();
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_REQUEST_H_
