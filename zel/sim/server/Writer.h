// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_WRITER_H_
#define ZEL_SIM_SERVER_WRITER_H_

#include "life/World.h"
#include "server/Request.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zelsim
{

/// Carries out SET, CREATE and DELETE requests: validation, rules, records. A request that is refused has
/// changed nothing. What it did change is durable only after Store::commit().
class Writer
{
public:
  explicit Writer(World &world) : world_(world) {}

  /// Appends the answer's JSON to `out` and returns no problem, or leaves `out` as it was. What takes the
  /// switch a moment adds to `delayMs`.
  std::vector<Problem> carryOut(const Request &request, std::uint64_t client, std::string &out, int &delayMs);

private:
  std::vector<Problem> findRecord(const Request &request, const json_t *params, unsigned &index) const;
  std::vector<Problem> validateParams(const Request &request, const json_t *params, unsigned index) const;
  Problem checkUnique(const Resource &resource, int position, const json_t *given, unsigned index) const;
  Problem setRecord(Call &call);
  Problem createRecord(Call &call, unsigned wantedIndex);
  Problem deleteRecord(Call &call);
  void storeParams(const Call &call);

  World &world_;
};

/// Takes away every detail that is no name of the catalogue: an interface has texts for those only, and what
/// a client made up is not to come back to it.
void keepKnownDetails(std::vector<Problem> &problems);

/// Appends {"errors": [...]}.
void appendErrors(std::string &out, const std::vector<Problem> &problems);

} // namespace zelsim

#endif // ZEL_SIM_SERVER_WRITER_H_
