// SPDX-License-Identifier: MIT
#include "rules/Form.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

// Texts whose form is checked beyond their length.
struct FormRow {
  const char *resource;
  const char *parameter;
  Form form;
};

constexpr FormRow formRows[] = {
    {"user", "name", Form::Alphanumeric},
    {"user", "fullName", Form::Printable},
    {"user", "password", Form::Visible},
    {"rx", "name", Form::Printable},
    {"rx", "location", Form::PrintableLines},
    {"rx", "description", Form::PrintableLines},
    {"rx", "notes", Form::PrintableLines},
    {"rx", "autoConnectTxEid", Form::EidOrEmpty},
    {"tx", "name", Form::Printable},
    {"tx", "location", Form::PrintableLines},
    {"tx", "description", Form::PrintableLines},
    {"tx", "notes", Form::PrintableLines},
    {"tx", "wakeOnLanMacAddress", Form::MacOrEmpty},
    {"swx", "name", Form::Printable},
    {"swx", "location", Form::PrintableLines},
    {"swx", "description", Form::PrintableLines},
    {"swx", "notes", Form::PrintableLines},
    {"swx", "primaryNtpIpAddress", Form::HostOrEmpty},
    {"swx", "secondaryNtpIpAddress", Form::HostOrEmpty},
    {"edid", "name", Form::Printable},
    {"edid", "description", Form::PrintableLines},
    {"systemGlobals", "auxiliaryManagerIpAddress", Form::AddressOrEmpty},
    {"systemGlobals", "managerIpAddress", Form::AddressOrEmpty},
    {"systemGlobals", "masterSwitchEid", Form::EidOrEmpty},
    {"systemGlobals", "nevoBannerText", Form::PrintableLines},
    {"systemGlobals", "nevoCustomHelpLink", Form::LinkOrEmpty},
    {"systemGlobals", "rxOsdBannerText", Form::PrintableLines},
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
  for (const FormRow &row : formRows)
    for (const Method method : {Method::Set, Method::Create})
      registerForm(rules, row, method);
}

} // namespace zelsim
