// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_CATALOGUE_H_
#define ZEL_SIM_DATA_CATALOGUE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zelsim
{

/// What the store holds, as constant data: one Resource row per resource, one Parameter row per parameter.
/// Validation, defaults, answers, durability and `zelsim --describe` all walk these rows, so a new
/// parameter is a new row. The table itself is in CatalogueTable.cpp.

enum class Type : std::uint8_t {
  Text,    // UTF-8
  Integer, // 32 bits on the wire
  Boolean,
  Word,   // one of a list of words
  Object, // nested parameters
  List,   // a list of nested objects
  Binary  // bytes, base64 on the wire
};

/// Bits of Parameter::flags.
enum Flag : unsigned {
  kReadOnly = 1u << 0,  // a SET or CREATE that names it is refused (9); rules and life write it
  kUnique = 1u << 1,    // no two records have the same value (11); an empty text is never compared
  kSecret = 1u << 2,    // kept as a hash, never in an answer
  kVolatile = 1u << 3,  // not in the database: back at its default after a restart
  kRequired = 1u << 4,  // a CREATE without it is refused (1007)
  kLookup = 1u << 5,    // a SET or DELETE without "index" finds its record by it
  kCommand = 1u << 6,   // a SET is passed to the rule and nothing is kept; not in an answer
  kComputed = 1u << 7,  // asked of its reader (Rules::read) at each GET; nothing is kept
  kAlways = 1u << 8,    // in every answer, whatever the select says
  kUncounted = 1u << 9, // its changes don't move the resource's change counter
  kFixed = 1u << 10,    // settable by a CREATE only
  kSelected = 1u << 11, // in an answer only if the select names it
  kArchived = 1u << 12, // part of a settings archive, though read only
  kSealed = 1u << 13    // in a settings archive only this switch can read it
};

struct Parameter {
  const char *name = "";
  Type type = Type::Text;
  std::int64_t min = 0;               // Integer: lowest value; Text, Binary: shortest, in characters or bytes
  std::int64_t max = 0;               // Integer: highest value; Text, Binary: longest; List: most entries
  const char *words = "";             // Word: the words, with a blank between them
  const char *standard = "";          // the default: plain text, decimal digits, "true", or JSON
  const char *about = "";             // one line for --describe
  unsigned flags = 0;                 // of Flag
  const Parameter *members = nullptr; // Object, List
  std::size_t memberCount = 0;

  constexpr Parameter with(unsigned moreFlags) const
  {
    Parameter copy = *this;
    copy.flags |= moreFlags;
    return copy;
  }
  constexpr Parameter byDefault(const char *value) const
  {
    Parameter copy = *this;
    copy.standard = value;
    return copy;
  }
  constexpr Parameter that(const char *description) const
  {
    Parameter copy = *this;
    copy.about = description;
    return copy;
  }
  constexpr bool is(Flag flag) const { return (flags & flag) != 0; }
};

/// Makers of rows: text("name", 0, 32).byDefault("x").with(kUnique).that("shown in lists").
constexpr Parameter text(const char *name, std::int64_t shortest, std::int64_t longest)
{
  Parameter row;
  row.name = name;
  row.min = shortest;
  row.max = longest;
  return row;
}

constexpr Parameter integer(const char *name, std::int64_t lowest, std::int64_t highest)
{
  Parameter row = text(name, lowest, highest);
  row.type = Type::Integer;
  row.standard = "0";
  return row;
}

constexpr Parameter boolean(const char *name)
{
  Parameter row = text(name, 0, 1);
  row.type = Type::Boolean;
  row.standard = "false";
  return row;
}

/// `words` are separated by one blank.
constexpr Parameter word(const char *name, const char *words, const char *standard)
{
  Parameter row = text(name, 0, 0);
  row.type = Type::Word;
  row.words = words;
  row.standard = standard;
  return row;
}

constexpr Parameter enableDisable(const char *name, const char *standard)
{
  return word(name, "enabled disabled", standard);
}

constexpr Parameter binary(const char *name, std::int64_t shortest, std::int64_t longest)
{
  Parameter row = text(name, shortest, longest);
  row.type = Type::Binary;
  return row;
}

template <std::size_t N> constexpr Parameter object(const char *name, const Parameter (&members)[N])
{
  Parameter row = text(name, 0, 0);
  row.type = Type::Object;
  row.standard = "{}";
  row.members = members;
  row.memberCount = N;
  return row;
}

template <std::size_t N>
constexpr Parameter list(const char *name, std::int64_t mostEntries, const Parameter (&members)[N])
{
  Parameter row = text(name, 0, mostEntries);
  row.type = Type::List;
  row.standard = "[]";
  row.members = members;
  row.memberCount = N;
  return row;
}

enum class Method : std::uint8_t { Get, Set, Create, Delete };

/// Bits of Resource::methods.
enum MethodBit : unsigned { kGet = 1, kSet = 2, kCreate = 4, kDelete = 8 };

struct Resource {
  const char *name = "";
  const char *about = "";
  unsigned methods = 0;           // of MethodBit; another one is refused (1006)
  unsigned capacity = 1;          // most records; a CREATE beyond it is refused (8)
  bool single = false;            // one record, addressed without an index, made at the first start
  std::uint8_t changeIds[3] = {}; // "changeStatus" records that move when its data changes; 0 ends
  const Parameter *parameters = nullptr;
  std::size_t parameterCount = 0;

  /// Position of the parameter in `parameters`, or -1. "index" is no parameter: every record has one.
  int position(std::string_view parameter) const;
};

/// The row of that name, or null.
const Resource *findResource(std::string_view name);

/// A member of an Object or List row, or null.
const Parameter *findMember(const Parameter &parameter, std::string_view member);

/// Whether `words` of a Word row hold `word`.
bool hasWord(const char *words, std::string_view word);

/// The default of a parameter as compact JSON; objects are made of their members' defaults.
std::string defaultJson(const Parameter &parameter);

/// Whether a nested parameter has secret members, at any depth.
bool hasSecrets(const Parameter &parameter);

/// Whether something that clients can name is called so: a parameter, a member of one, or "index".
bool isDataName(std::string_view name);

/// One resource as text, and the whole catalogue, for `zelctl describe` and `zelsim --describe`.
std::string describeResource(const Resource &resource);
std::string describeCatalogue();

/// The table (CatalogueTable.cpp).
extern const Resource kCatalogue[];
extern const std::size_t kCatalogueSize;

} // namespace zelsim

#endif // ZEL_SIM_DATA_CATALOGUE_H_
