// SPDX-License-Identifier: MIT
#include "SwitchScript.h"

#include <cstdlib>
#include <memory>

namespace
{

std::string quoted(const std::string &text)
{
  const std::unique_ptr<json_t, void (*)(json_t *)> value(json_string(text.c_str()), json_decref);
  const std::unique_ptr<char, decltype(&std::free)> json(json_dumps(value.get(), JSON_ENCODE_ANY), std::free);
  return json.get();
}

} // namespace

SwitchScript::SwitchScript()
{
  globals_ = {{"nevoInactivityTimeout", "10"},
              {"nevoBannerEnable", "\"disabled\""},
              {"nevoBannerText", "\"\""},
              {"nevoCustomHelpLink", "\"\""},
              {"fullNevoWhenManaged", "\"disabled\""},
              {"managedSetting", "\"non_managed\""}};
  giveGlobals();
  setRole("master", "controller");
  setRecords("tx", R"([{"index": 5, "name": "Gamma", "eid": "TTTTTT-000005"},
                       {"index": 6, "name": "", "eid": "TTTTTT-000006"}])");
  setRecords("rx", R"([{"index": 3, "name": "Desk 3", "eid": "RRRRRR-000003"},
                       {"index": 4, "name": "", "eid": "RRRRRR-000004"}])");
  setRecords("userSession", "[]");
  setRecords("connection", "[]");
  setRecords("unacknowledgedAlerts", "[]");
  setRecords("adminSession", R"([{"index": 9, "userIndex": 2}])");
  acceptLogins();
}

void SwitchScript::setGlobal(const std::string &parameter, const std::string &value)
{
  globals_[parameter] = quoted(value);
  giveGlobals();
}

void SwitchScript::setGlobal(const std::string &parameter, int value)
{
  globals_[parameter] = std::to_string(value);
  giveGlobals();
}

void SwitchScript::setRole(const std::string &mode, const std::string &cascadeRole)
{
  setRecords("swx", "[{\"index\": 1, \"name\": \"North\", \"mode\": " + quoted(mode) +
                        ", \"cascadeRole\": " + quoted(cascadeRole) + "}]");
}

void SwitchScript::acceptLogins(bool passwordIsInitialized)
{
  setRecords("user", std::string(R"([{"index": 1, "name": "anna"},
                                     {"index": 7, "name": "bert"},
                                     {"index": 2, "name": "operator", "passwordIsInitialized": ")") +
                         (passwordIsInitialized ? "is_true" : "is_false") + "\"}]");
  answer("CREATE", "adminSession", R"({"userIndex": 2})");
}

void SwitchScript::refuseLogins()
{
  fail("CREATE", "adminSession", R"([{"errno": 1103}])");
}

std::size_t SwitchScript::readCount(const std::string &resource)
{
  std::size_t count = 0;
  for (const std::string &request : requests("GET"))
    count += request.find("\"resource\":\"" + resource + "\"") != std::string::npos ? 1 : 0;
  return count;
}

void SwitchScript::giveGlobals()
{
  std::string json = "{";
  for (const auto &global : globals_)
    json += (json.size() > 1 ? "," : "") + quoted(global.first) + ":" + global.second;
  setRecords("systemGlobals", json + "}");
}
