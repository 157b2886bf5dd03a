// SPDX-License-Identifier: MIT
#ifndef WT_WGLOBAL_H_
#define WT_WGLOBAL_H_

#include <Wt/WFlags>

namespace Wt
{

enum Orientation { Horizontal = 0x1, Vertical = 0x2 };
W_DECLARE_OPERATORS_FOR_FLAGS(Orientation)

enum SelectionMode { NoSelection = 0, SingleSelection = 1, ExtendedSelection = 3 };
enum SelectionBehavior { SelectItems = 0, SelectRows = 1 };
enum SelectionFlag { Select = 1, Deselect = 2, ToggleSelect = 3, ClearAndSelect = 4 };

enum Side { Top = 0x1, Bottom = 0x2, Left = 0x4, Right = 0x8, CenterX = 0x10, CenterY = 0x20 };
W_DECLARE_OPERATORS_FOR_FLAGS(Side)

inline const WFlags<Side> None = WFlags<Side>();
inline const WFlags<Side> Horizontals = Left | Right;
inline const WFlags<Side> Verticals = Top | Bottom;
inline const WFlags<Side> All = Left | Right | Top | Bottom;

enum AlignmentFlag {
  AlignLeft = 0x1,
  AlignRight = 0x2,
  AlignCenter = 0x4,
  AlignJustify = 0x8,
  AlignBaseline = 0x10,
  AlignSub = 0x20,
  AlignSuper = 0x40,
  AlignTop = 0x80,
  AlignTextTop = 0x100,
  AlignMiddle = 0x200,
  AlignBottom = 0x400,
  AlignTextBottom = 0x800
};
W_DECLARE_OPERATORS_FOR_FLAGS(AlignmentFlag)

inline const WFlags<AlignmentFlag> AlignHorizontalMask = AlignLeft | AlignRight | AlignCenter | AlignJustify;
inline const WFlags<AlignmentFlag> AlignVerticalMask = AlignBaseline | AlignSub | AlignSuper | AlignTop |
                                                       AlignTextTop | AlignMiddle | AlignBottom |
                                                       AlignTextBottom;

enum TextFormat { XHTMLText = 0, XHTMLUnsafeText = 1, PlainText = 2 };

enum AnchorTarget { TargetSelf = 0, TargetThisWindow = 1, TargetNewWindow = 2, TargetDownload = 3 };

enum CheckState { Unchecked = 0, PartiallyChecked = 1, Checked = 2 };

enum EventType { OtherEvent = 0, UserEvent = 1, TimerEvent = 2, ResourceEvent = 3 };

enum EntryPointType { Application = 0, WidgetSet = 1, StaticResource = 2 };

enum KeyboardModifier {
  NoModifier = 0x0,
  ShiftModifier = 0x1,
  ControlModifier = 0x2,
  AltModifier = 0x4,
  MetaModifier = 0x8
};
W_DECLARE_OPERATORS_FOR_FLAGS(KeyboardModifier)

/// Keys by the codes that browsers give them.
enum Key {
  Key_unknown = 0,
  Key_Backspace = 8,
  Key_Tab = 9,
  Key_Enter = 13,
  Key_Shift = 16,
  Key_Control = 17,
  Key_Alt = 18,
  Key_Escape = 27,
  Key_Space = 32,
  Key_PageUp = 33,
  Key_PageDown = 34,
  Key_End = 35,
  Key_Home = 36,
  Key_Left = 37,
  Key_Up = 38,
  Key_Right = 39,
  Key_Down = 40,
  Key_Insert = 45,
  Key_Delete = 46,
  Key_0 = '0',
  Key_1,
  Key_2,
  Key_3,
  Key_4,
  Key_5,
  Key_6,
  Key_7,
  Key_8,
  Key_9,
  Key_A = 'A',
  Key_B,
  Key_C,
  Key_D,
  Key_E,
  Key_F,
  Key_G,
  Key_H,
  Key_I,
  Key_J,
  Key_K,
  Key_L,
  Key_M,
  Key_N,
  Key_O,
  Key_P,
  Key_Q,
  Key_R,
  Key_S,
  Key_T,
  Key_U,
  Key_V,
  Key_W,
  Key_X,
  Key_Y,
  Key_Z,
  Key_F1 = 112,
  Key_F2,
  Key_F3,
  Key_F4,
  Key_F5,
  Key_F6,
  Key_F7,
  Key_F8,
  Key_F9,
  Key_F10,
  Key_F11,
  Key_F12
};

enum SortOrder { AscendingOrder = 0, DescendingOrder = 1 };

enum ItemFlag {
  ItemIsSelectable = 0x1,
  ItemIsEditable = 0x2,
  ItemIsUserCheckable = 0x4,
  ItemIsDragEnabled = 0x8,
  ItemIsDropEnabled = 0x10,
  ItemIsTristate = 0x20,
  ItemIsXHTMLText = 0x40
};
W_DECLARE_OPERATORS_FOR_FLAGS(ItemFlag)

/// Roles of an item's data. Applications may use numbers from UserRole on.
enum ItemDataRole {
  DisplayRole = 0,
  DecorationRole = 1,
  EditRole = 2,
  StyleClassRole = 3,
  CheckStateRole = 4,
  ToolTipRole = 5,
  LinkRole = 6,
  UserRole = 32
};

/// How match() and findText() compare.
enum MatchFlag {
  MatchExactly = 0x0,
  MatchStringExactly = 0x1,
  MatchStartsWith = 0x2,
  MatchEndsWith = 0x3,
  MatchRegExp = 0x4,
  MatchWildCard = 0x5,
  MatchCaseSensitive = 0x10,
  MatchWrap = 0x20
};
W_DECLARE_OPERATORS_FOR_FLAGS(MatchFlag)

enum RegExpFlag { MatchCaseInsensitive = 0x1 };
W_DECLARE_OPERATORS_FOR_FLAGS(RegExpFlag)

} // namespace Wt

#endif // WT_WGLOBAL_H_
