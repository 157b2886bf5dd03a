// SPDX-License-Identifier: MIT
#include "rules/Form.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

// Texts whose form is checked beyond their length. Names and notes of devices may hold anything.
struct FormRow {
  const char *resource;
  const char *parameter;
  Form form;
};

constexpr FormRow kFormRows[] = {
    {"user", "name", Form::Alphanumeric},
    {"user", "password", Form::Visible},
    {"rx", "autoConnectTxEid", Form::EidOrEmpty},
    {"tx", "wakeOnLanMacAddress", Form::MacOrEmpty},
    {"swx", "primaryNtpIpAddress", Form::HostOrEmpty},
    {"swx", "secondaryNtpIpAddress", Form::HostOrEmpty},
    {"systemGlobals", "auxiliaryManagerIpAddress", Form::AddressOrEmpty},
    {"systemGlobals", "managerIpAddress", Form::AddressOrEmpty},
    {"systemGlobals", "masterSwitchEid", Form::EidOrEmpty},
    {"systemGlobals", "nevoCustomHelpLink", Form::LinkOrEmpty},
    {"systemGlobals", "syslogDest", Form::AddressOrEmpty},
};

void registerForm(Rules &rules, const FormRow &row, Method method)
{
  rules.check(row.resource, method, [&row](World &, const Call &call) -> Problem {
    if (!call.has(row.parameter) || hasForm(call.text(row.parameter), row.form))
      return kOk;
    return {kInvalidFormat, row.parameter};
  });
}

} // namespace

void registerFormRules(Rules &rules)
{
  for (const FormRow &row : kFormRows)
    for (const Method method : {Method::Set, Method::Create})
      registerForm(rules, row, method);
}

} // namespace zelsim
