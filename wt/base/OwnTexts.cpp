// SPDX-License-Identifier: MIT
#include "base/OwnTexts.h"

#include "base/StringResolver.h"
#include "dom/JsonText.h"

namespace Wt
{
namespace Engine
{

namespace
{

struct ScriptText {
  const char *name; ///< in the script, which has the English text
  const char *key;
};

const ScriptText kScriptTexts[] = {
    {"lost", "Wt.Page.ConnectionLost"},
    {"ended", "Wt.QuittedMessage"},
    {"move", "Wt.WDialog.Move"},
    {"resize", "Wt.WDialog.Resize"},
};

} // namespace

std::string ownText(const char *key, const char *english)
{
  std::string text;
  return resolveString(key, text) ? text : english;
}

std::string ownScriptTexts()
{
  std::string json;
  for (const ScriptText &script : kScriptTexts) {
    std::string text;
    if (!resolveString(script.key, text))
      continue;
    json += json.empty() ? "{" : ",";
    Dom::appendJsonString(json, script.name);
    json += ':';
    Dom::appendJsonString(json, text);
  }
  return json.empty() ? "{}" : json + '}';
}

} // namespace Engine
} // namespace Wt
