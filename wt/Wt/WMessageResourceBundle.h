// SPDX-License-Identifier: MIT
#ifndef WT_WMESSAGE_RESOURCE_BUNDLE_H_
#define WT_WMESSAGE_RESOURCE_BUNDLE_H_

#include <Wt/WFlags>
#include <Wt/WLocalizedStrings>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Wt
{

/**
 * Texts from XML files, searched in the order of use(). Files are read at the first lookup, and what was read
 * is shared by all sessions.
 *
 * The toolkit's own sentences are English unless the application's files have these keys:
 * "Wt.QuittedMessage", "Wt.Page.ConnectionLost", "Wt.Page.Failed", "Wt.WDialog.Close", "Wt.WDialog.Move",
 * "Wt.WDialog.Resize", "Wt.WValidator.Mandatory", "Wt.WRegExpValidator.Invalid",
 * "Wt.WIntValidator.NotAnInteger" and "Wt.WIntValidator.BadRange" ({1} to {2}); or, for pages that get no
 * session, those of WServer::setLocalizedStrings(): "Wt.Page.Full", "Wt.Page.TooMany" and "Wt.Page.Stopping".
 */
class WMessageResourceBundle : public WLocalizedStrings
{
public:
  enum Scope { Local = 1, Default = 2 };

  WMessageResourceBundle();
  ~WMessageResourceBundle() override;

  /// Adds the files path.xml and path_LOCALE.xml. Never fails: a file that cannot be used is logged once.
  void use(const std::string &path, bool loadInMemory = true);

  /// The keys of the session's locale (Local), of the default file (Default), or of both.
  const std::set<std::string> keys(WFlags<Scope> scope) const;

  void refresh() override;
  bool resolveKey(const std::string &key, std::string &result) override;
  bool resolvePluralKey(const std::string &key, std::string &result, std::uint64_t amount) override;

private:
  class Resource;
  std::vector<std::unique_ptr<Resource>> resources_;
};

W_DECLARE_OPERATORS_FOR_FLAGS(WMessageResourceBundle::Scope)

} // namespace Wt

#endif // WT_WMESSAGE_RESOURCE_BUNDLE_H_
