// SPDX-License-Identifier: MIT
#include "Db.h"
#include "ZelRspUtil.h"

namespace
{

// One value of several records: where all agree, theirs; where they differ or a read fails, `merged` as it
// was. The record behind the first difference is not read. `read` takes a record and a value to fill and
// returns 0 or 1.
template <typename Value, typename Read>
unsigned int merge(const Db::Indexes &indexes, Read read, Value &merged, bool &allEqual)
{
  allEqual = true;
  Value first = Value();
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    Value value = Value();
    if (read(indexes[i], value))
      return 1;
    if (i == 0) {
      first = value;
    } else if (value != first) {
      allEqual = false;
      return 0;
    }
  }
  merged = first;
  return 0;
}

} // namespace

unsigned int Db::readUInt32Merge(const char *resource, const Indexes &indexes, const char *parameter,
                                 unsigned int &value, bool &allEqual, Errors &errors)
{
  value = 0;
  const auto read = [&](unsigned int index, unsigned int &single) {
    return readUInt32(resource, index, parameter, single, errors);
  };
  return merge(indexes, read, value, allEqual);
}

unsigned int Db::readStringMerge(const char *resource, const Indexes &indexes, const char *parameter,
                                 std::string &value, Errors &errors)
{
  value.clear();
  bool allEqual = true;
  const auto read = [&](unsigned int index, std::string &single) {
    return readString(resource, index, parameter, single, errors);
  };
  return merge(indexes, read, value, allEqual);
}

unsigned int Db::extractUInt32Merge(json_t *response, const Indexes &indexes, const char *parameter,
                                    unsigned int &value, bool &allEqual)
{
  value = 0;
  const auto read = [&](unsigned int index, unsigned int &single) {
    unsigned int row = 0;
    Errors localErrors;
    if (findOffsetOfUInt32KeyInZelRsp(response, "index", index, row, localErrors))
      return 1U;
    single = static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(response, row, parameter));
    return 0U;
  };
  return merge(indexes, read, value, allEqual);
}

unsigned int Db::extractStringMerge(json_t *response, const Indexes &indexes, const char *parameter,
                                    std::string &value, bool &allEqual)
{
  value.clear();
  const auto read = [&](unsigned int index, std::string &single) {
    unsigned int row = 0;
    Errors localErrors;
    if (findOffsetOfUInt32KeyInZelRsp(response, "index", index, row, localErrors))
      return 1U;
    const char *found = ZelRspUtil_getIndexedStringParam(response, row, parameter);
    if (!found)
      return 1U;
    single = found;
    return 0U;
  };
  return merge(indexes, read, value, allEqual);
}

unsigned int Db::extractEnableDisableMerge(json_t *response, const Indexes &indexes, const char *parameter,
                                           bool &value, bool &allEqual)
{
  value = false;
  std::string word;
  if (extractStringMerge(response, indexes, parameter, word, allEqual))
    return 1;
  value = word == "enabled";
  return 0;
}
