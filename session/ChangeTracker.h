// SPDX-License-Identifier: MIT
#ifndef SESSION_CHANGE_TRACKER_H_
#define SESSION_CHANGE_TRACKER_H_

#include <array>
#include <bitset>

/// Which tabs of a session hold edits that have not been saved. A section is a main tab, a subsection one of
/// the tabs within it.
class ChangeTracker
{
public:
  enum SectionId { SectionUsers, SectionDevices, SectionPeripherals, SectionSysSettings, SectionEvents };
  static constexpr int sectionCount = SectionEvents + 1;

  enum SubsectionId {
    UsrAttribs,
    UsrPermissions,
    UsrOsdHotkey,
    UsrOsdFx,
    UsrTargets, ///< the favourite targets and the targets' permissions of a user
    DevSwxMode,
    DevSwxAttribs,
    DevSwxSettings,
    DevSwxIpV4Settings,
    DevSwxIpV6Settings,
    DevSwxNtp,
    DevRxAttribs,
    DevRxReserved, ///< no tab has it
    DevRxSettings,
    DevTxAttribs,
    DevTxSettings,
    PeriphMonAttribs,
    SysSettings, ///< all tabs of the system settings
    Events       ///< no tab has it
  };
  static constexpr int subsectionCount = Events + 1;

  ChangeTracker();

  void subsectionChanged(SubsectionId id, bool changed);
  bool subsectionChanged(SubsectionId id) const;

  /// Sets or clears all subsections of a section.
  void sectionChanged(SectionId id, bool changed);

  /// Whether any subsection of it has changed.
  bool sectionChanged(SectionId id) const;

  bool anythingChanged() const;

  /// SectionUsers for an id outside of all sections.
  SectionId subsectionIdToSectionId(SubsectionId id) const;

private:
  /// The first and the last subsection of a section.
  struct SubsectionRange {
    int first;
    int last;
  };

  std::bitset<subsectionCount> changes;
  std::array<SubsectionRange, sectionCount> ranges;
};

#endif // SESSION_CHANGE_TRACKER_H_
