// SPDX-License-Identifier: MIT
// Every choice of every table: the word of the store, the key of the text, the code, and the order.
#include "BoundPage.h"
#include "WAccessMode.h"
#include "WAutoConnMode.h"
#include "WCascadeMode.h"
#include "WCascadeRole.h"
#include "WEnableDisable.h"
#include "WFwUpdateFileSrc.h"
#include "WIpV4ConfigMethod.h"
#include "WIpV6ConfigMethod.h"
#include "WLanguage.h"
#include "WOsdActivateHotkey.h"
#include "WOsdHotkeyFunc.h"
#include "WSesMode.h"
#include "WTrafficPriority.h"
#include "WUsbLogLevel.h"
#include "WUsbMode.h"
#include "WUsrRole.h"
#include "WWakeOnConnect.h"
#include "WWakeOnConnectKeyCode.h"

#include <iterator>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

// A row is a word, a key and a code, with bars between them.
struct Table {
  const char *name;
  const WComboBoxPlus::Triplet *rows;
  std::size_t count;
  std::vector<std::string> expected;
};

template <std::size_t Count>
Table table(const char *name, const WComboBoxPlus::Triplet (&rows)[Count], std::vector<std::string> expected)
{
  return {name, rows, Count, std::move(expected)};
}

std::vector<Table> tables()
{
  return {
      table("WAccessMode", WAccessMode::sLookup,
            {"share_mode|[RSnnn]Shared only|1", "private_mode|[RSnnn]Private only|2",
             "share_or_private_mode|[RSnnn]Private or shared|3"}),
      table("WAutoConnMode", WAutoConnMode::sLookup,
            {"share_mode|[RSnnn]Shared|1", "private_mode|[RSnnn]Private|2"}),
      table("WCascadeMode", WCascadeMode::sLookup,
            {"master|[RSnnn]Switch is a cascade master|1", "slave|[RSnnn]Switch is a cascade slave|2"}),
      table("WCascadeRole", WCascadeRole::sLookup,
            {"not_present|swx.deviceDetails.cascadeRole.not_present|0",
             "controller|swx.deviceDetails.cascadeRole.controller|1",
             "slave|swx.deviceDetails.cascadeRole.slave|2", "backup|swx.deviceDetails.cascadeRole.backup|3"}),
      table("WEnableDisable", WEnableDisable::sLookup,
            {"enabled|[RSnnn]Enabled|2", "disabled|[RSnnn]Disabled|1"}),
      table("WIpV4ConfigMethod", WIpV4ConfigMethod::sLookup,
            {"dhcp|[RSnnn]DHCP|1", "dhcp_plus_zeroconf|[RSnnn]DHCP plus zeroconf|2",
             "zeroconf|[RSnnn]Zeroconf|3", "static|[RSnnn]Static|4"}),
      table("WIpV6ConfigMethod", WIpV6ConfigMethod::sLookup,
            {"dhcp|devices.ipv6.configmethod.dhcp|2",
             "dhcp_info_only|devices.ipv6.configmethod.dhcp_info_only|3",
             "stateless_only|devices.ipv6.configmethod.stateless_only|1",
             "static|devices.ipv6.configmethod.static|4"}),
      table("WLanguage", WLanguage::sLookup,
            {"en|[RSnnn]English|0", "fr|[RSnnn]French|0", "it|[RSnnn]Italian|0", "de|[RSnnn]German|0",
             "es|[RSnnn]Spanish|0", "zh|[RSnnn]Chinese|0", "jp|[RSnnn]Japanese|0", "ko|[RSnnn]Korean|0",
             "es_las|[RSnnn]Spanish (Latin America)|0"}),
      table("WOsdActivateHotkey", WOsdActivateHotkey::sLookup,
            {"print_screen|[RSnnn]Print Screen|1", "control_control|[RSnnn]Ctrl + Ctrl|2",
             "alt_alt|[RSnnn]Alt + Alt|5", "shift_shift|[RSnnn]Shift + Shift|8",
             "control_control_left|[RSnnn]Left Ctrl + Left Ctrl|3",
             "control_control_right|[RSnnn]Right Ctrl + Right Ctrl|4",
             "alt_alt_left|[RSnnn]Left Alt + Left Alt|6", "alt_alt_right|[RSnnn]Right Alt + Right Alt|7",
             "shift_shift_left|[RSnnn]Left Shift + Left Shift|9",
             "shift_shift_right|[RSnnn]Right Shift + Right Shift|10",
             "scroll_lock_scroll_lock|[RSnnn]Scroll Lock + Scroll Lock|11",
             "custom|[RSnnn]Custom (1 keycode or 2 codes in sequence)|12", "none|[RSnnn]None|13"}),
      table("WOsdHotkeyFunc", WOsdHotkeyFunc::sLookup,
            {"none|[RSnnn]Do nothing|1", "connect_last_target|[RSnnn]Connect to last target|2",
             "connect_previous_target|[RSnnn]Connect to previous target in target list|3",
             "connect_next_target|[RSnnn]Connect to next target in target list|4",
             "connect_to_target_x|[RSnnn]Connect to target X|5",
             "logout_and_disconnect|[RSnnn]Logout of OSD and disconnect session|6",
             "enumerate_keyboard|[RSnnn]Enumerate keyboard|7", "enumerate_mouse|[RSnnn]Enumerate mouse|8",
             "enumerate_keyboard_and_mouse|[RSnnn]Enumerate keyboard and mouse|9",
             "enumerate_all_usb_devices|[RSnnn]Enumerate all USB devices|10"}),
      table("WTrafficPriority", WTrafficPriority::sLookup,
            {"usb_priority|[RSnnn]USB|1", "video_priority|[RSnnn]Video|2"}),
      table("WUsbMode", WUsbMode::sLookup,
            {"disabled|[RSnnn]Disabled|1", "keyboard_mouse_only|[RSnnn]Keyboard and mouse only|2",
             "all_except_mass_storage|[RSnnn]All devices except mass storage|3",
             "all_devices|[RSnnn]All devices|4"}),
      table("WUsbLogLevel", WUsbLogLevel::sLookup,
            {"none|rx.setting.usbLogLevel.none|0", "info|rx.setting.usbLogLevel.info|1",
             "debug|rx.setting.usbLogLevel.debug|2"}),
      table("WUsrRole", WUsrRole::sLookup, {"user|[RSnnn]User|1", "admin|[RSnnn]Administrator|2"}),
      table("WWakeOnConnect", WWakeOnConnect::sLookup,
            {"none|[RSnnn]None|1", "keypress|[RSnnn]Send keyboard activity|2",
             "mouse_move|[RSnnn]Send mouse activity|3"}),
      table("WSesMode", WSesMode::sLookup,
            {"share_mode|[RSnnn]Shared session|1", "private_mode|[RSnnn]Private session|2"}),
      table("WFwUpdateFileSrc", WFwUpdateFileSrc::sLookup,
            {"ftp|[RSnnn]FTP|6", "http|[RSnnn]HTTP|3", "https|[RSnnn]HTTPS|4", "tftp|[RSnnn]TFTP|5",
             "file|[RSnnn]Local file|2"}),
      table(
          "WWakeOnConnectKeyCode", WWakeOnConnectKeyCode::sLookup,
          {"|[RSnnn]Ctrl|0", "|[RSnnn]Alt|0", "|[RSnnn]Shift|0", "|[RSnnn]Caps Lock|0", "|[RSnnn]Custom|0"}),
  };
}

// Makes a combo that is bound to "word" of "rx".
using MakeBound = std::function<WComboBoxZel *(Wt::WContainerWidget &root)>;
template <class Combo> MakeBound bound()
{
  return [](Wt::WContainerWidget &root) { return new Combo("rx", "word", true, &root); };
}

struct BoundTable {
  const char *name;
  MakeBound make;
  const WComboBoxPlus::Triplet *rows;
  int count;
};

void PrintTo(const BoundTable &table, std::ostream *out)
{
  *out << table.name;
}

template <class Combo> BoundTable boundTable(const char *name)
{
  return {name, bound<Combo>(), Combo::sLookup, static_cast<int>(std::size(Combo::sLookup))};
}

std::vector<BoundTable> boundTables()
{
  return {boundTable<WAccessMode>("AccessMode"),
          boundTable<WAutoConnMode>("AutoConnMode"),
          boundTable<WCascadeMode>("CascadeMode"),
          boundTable<WCascadeRole>("CascadeRole"),
          boundTable<WEnableDisable>("EnableDisable"),
          boundTable<WIpV4ConfigMethod>("IpV4ConfigMethod"),
          boundTable<WIpV6ConfigMethod>("IpV6ConfigMethod"),
          boundTable<WLanguage>("Language"),
          boundTable<WOsdActivateHotkey>("OsdActivateHotkey"),
          boundTable<WOsdHotkeyFunc>("OsdHotkeyFunc"),
          boundTable<WTrafficPriority>("TrafficPriority"),
          boundTable<WUsbMode>("UsbMode"),
          boundTable<WUsbLogLevel>("UsbLogLevel"),
          boundTable<WUsrRole>("UsrRole"),
          boundTable<WWakeOnConnect>("WakeOnConnect"),
          boundTable<WWakeOnConnectKeyCode>("WakeOnConnectKeyCode")};
}

class EnumeratedCombo : public testing::TestWithParam<BoundTable>
{
protected:
  EnumeratedCombo() : page_([this](Wt::WContainerWidget &root) { combo_ = GetParam().make(root); }) {}

  bool read(const std::string &word)
  {
    store_.setRecords("rx", R"([{"index": 1, "word": ")" + word + R"("}])");
    bool failed = false;
    page_.act([&] { failed = combo_->readFromDatabase(one_, errors_, false); });
    return failed;
  }

  std::string added()
  {
    const JsonValue params = jsonOf("{}");
    page_.act([&] {
      combo_->setContentChanged();
      combo_->setZelParam(params.get());
      combo_->clearContentChanged();
    });
    return textOf(params.get());
  }

  ScriptedStore store_;
  Indexes one_ = {1};
  std::vector<std::string> errors_;
  WComboBoxZel *combo_ = nullptr;
  KitPage page_;
};

INSTANTIATE_TEST_SUITE_P(Each, EnumeratedCombo, testing::ValuesIn(boundTables()),
                         [](const testing::TestParamInfo<BoundTable> &table) { return table.param.name; });

// A combo on a page that its test drives; it is called "Bound".
template <class Combo> class ChoicePage : public BoundPage<Combo>
{
protected:
  ChoicePage()
      : BoundPage<Combo>([](Wt::WContainerWidget &root) { return new Combo("rx", "word", true, &root); })
  {
  }
  void act(const std::function<void(Combo &)> &action)
  {
    this->page_.act([&] { action(*this->widget_); });
  }
  std::string shown()
  {
    std::string shown;
    act([&](Combo &combo) { shown = combo.currentText().toUTF8(); });
    return shown;
  }
  // Two records of other words, so that the blank item shows.
  void showBlank() { this->bulkRead(R"([{"index": 1, "word": "a"}, {"index": 2, "word": "b"}])", {1, 2}); }
};

class CascadeRole : public ChoicePage<WCascadeRole>
{
};
class EnableDisable : public ChoicePage<WEnableDisable>
{
};
class WakeOnConnect : public ChoicePage<WWakeOnConnect>
{
};
class OsdHotkeyFunc : public ChoicePage<WOsdHotkeyFunc>
{
};
class WakeOnConnectKeyCode : public ChoicePage<WWakeOnConnectKeyCode>
{
};

// The combos of choices that the store does not hold.
class FreeChoices : public testing::Test
{
protected:
  FreeChoices()
      : page_([this](Wt::WContainerWidget &root) {
          mode_ = new WSesMode(&root);
          source_ = new WFwUpdateFileSrc(&root);
        })
  {
  }

  WSesMode *mode_ = nullptr;
  WFwUpdateFileSrc *source_ = nullptr;
  KitPage page_;
};

} // namespace

TEST(ChoiceTable, hasItsRowsInOrder)
{
  for (const Table &table : tables()) {
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < table.count; ++i)
      rows.push_back(std::string(table.rows[i].storeValue) + "|" + table.rows[i].label + "|" +
                     std::to_string(table.rows[i].code));
    EXPECT_EQ(rows, table.expected) << table.name;
  }
}

TEST_P(EnumeratedCombo, showsATextForEachChoice)
{
  ASSERT_EQ(combo_->count(), GetParam().count);
  page_.act([&] {
    for (int i = 0; i < combo_->count(); ++i) {
      EXPECT_THAT(combo_->itemText(i).toUTF8(), Not(IsEmpty()));
      EXPECT_THAT(combo_->itemText(i).toUTF8(), Not(HasSubstr("??")));
    }
  });
}

TEST_P(EnumeratedCombo, selectsAndWritesEachWordOfTheStore)
{
  for (int i = 0; i < GetParam().count; ++i) {
    const std::string word = GetParam().rows[i].storeValue;
    EXPECT_FALSE(read(word));
    // Words that are all empty stand for the first choice.
    EXPECT_EQ(combo_->currentIndex(), word.empty() ? 0 : i) << word;
    EXPECT_EQ(added(), R"({"word":")" + word + R"("})");
  }
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_P(EnumeratedCombo, takesAnUnknownWordForTheFirst)
{
  LogCapture log;
  page_.act([&] { combo_->setCurrentIndex(1); });
  EXPECT_FALSE(read("as yet unheard of"));
  EXPECT_EQ(combo_->currentIndex(), 0);
  EXPECT_EQ(log.text(), "2 readFromDatabase: Unknown value for rx/word: as yet unheard of. Using default.\n");
}

TEST_F(CascadeRole, isTheIndexOfTheItemAndNotPresentWhereRecordsDiffer)
{
  for (int i = 0; i < 4; ++i) {
    act([i](WCascadeRole &combo) { combo.setCurrentIndex(i); });
    EXPECT_EQ(widget_->getSelection(), i);
  }
  showBlank();
  EXPECT_EQ(widget_->currentIndex(), 4);
  EXPECT_EQ(widget_->getSelection(), 0);
}

TEST_F(EnableDisable, isNeitherWhereRecordsDiffer)
{
  EXPECT_TRUE(widget_->isChosenEnabled());
  EXPECT_FALSE(widget_->isChosenDisabled());
  act([](WEnableDisable &combo) { combo.setCurrentIndex(1); });
  EXPECT_FALSE(widget_->isChosenEnabled());
  EXPECT_TRUE(widget_->isChosenDisabled());
  showBlank();
  EXPECT_FALSE(widget_->isChosenEnabled());
  EXPECT_FALSE(widget_->isChosenDisabled());
}

TEST_F(EnableDisable, addsOneOfItsTwoWordsAndNothingForTheBlankItem)
{
  EXPECT_EQ(added(), "{}");
  setChanged();
  EXPECT_EQ(added(), R"({"word":"enabled"})");
  act([](WEnableDisable &combo) { combo.setCurrentIndex(1); });
  EXPECT_EQ(added(), R"({"word":"disabled"})");
  act([](WEnableDisable &combo) { combo.clearContentChanged(); });
  showBlank();
  setChanged();
  EXPECT_EQ(added(), "{}");
}

TEST_F(WakeOnConnect, tellsTheKeyboardFromTheMouse)
{
  EXPECT_FALSE(widget_->keyboardWakeIsSelected());
  EXPECT_FALSE(widget_->mouseWakeIsSelected());
  act([](WWakeOnConnect &combo) { combo.setCurrentIndex(1); });
  EXPECT_TRUE(widget_->keyboardWakeIsSelected());
  EXPECT_FALSE(widget_->mouseWakeIsSelected());
  act([](WWakeOnConnect &combo) { combo.setCurrentIndex(2); });
  EXPECT_FALSE(widget_->keyboardWakeIsSelected());
  EXPECT_TRUE(widget_->mouseWakeIsSelected());
  showBlank();
  EXPECT_FALSE(widget_->keyboardWakeIsSelected());
  EXPECT_FALSE(widget_->mouseWakeIsSelected());
}

TEST_F(OsdHotkeyFunc, showsAFunctionByItsWordAndKeepsTheSelectionForAnUnknownOne)
{
  act([](WOsdHotkeyFunc &combo) { combo.showValue("enumerate_mouse"); });
  EXPECT_EQ(widget_->currentIndex(), 7);
  act([](WOsdHotkeyFunc &combo) { combo.showValue("unheard of"); });
  EXPECT_EQ(widget_->currentIndex(), 7);
  EXPECT_EQ(widget_->count(), 10);
}

TEST_F(OsdHotkeyFunc, showsAConflictAsOneBlankItem)
{
  EXPECT_FALSE(widget_->isShowingConflict());
  act([](WOsdHotkeyFunc &combo) {
    combo.showConflict();
    combo.showConflict();
  });
  EXPECT_TRUE(widget_->isShowingConflict());
  EXPECT_EQ(widget_->count(), 11);
  EXPECT_EQ(widget_->selection(), "");
  act([](WOsdHotkeyFunc &combo) { combo.setCurrentIndex(3); });
  EXPECT_FALSE(widget_->isShowingConflict());
  act([](WOsdHotkeyFunc &combo) {
    combo.showConflict();
    combo.showValue("connect_last_target");
  });
  EXPECT_FALSE(widget_->isShowingConflict());
  EXPECT_EQ(widget_->count(), 10);
  EXPECT_EQ(widget_->selection(), "connect_last_target");
}

TEST_F(WakeOnConnectKeyCode, showsAKeyCodeByANumberingOfItsOwn)
{
  const std::vector<std::pair<unsigned int, std::string>> texts = {
      {224, "Ctrl"},  {225, "Alt"},    {226, "Shift"}, {130, "Caps Lock"},
      {57, "Custom"}, {229, "Custom"}, {0, "Custom"},  {1000, "Custom"}};
  for (const auto &[code, text] : texts) {
    act([code = code](WWakeOnConnectKeyCode &combo) { combo.showValue(code); });
    EXPECT_EQ(shown(), text) << code;
    EXPECT_EQ(widget_->customIsSelected(), text == "Custom") << code;
  }
}

TEST_F(WakeOnConnectKeyCode, showsAConflictAsOneBlankItem)
{
  act([](WWakeOnConnectKeyCode &combo) {
    combo.showConflict();
    combo.showConflict();
  });
  EXPECT_EQ(widget_->count(), 6);
  EXPECT_EQ(shown(), "");
  EXPECT_FALSE(widget_->customIsSelected());
  act([](WWakeOnConnectKeyCode &combo) { combo.showValue(226); });
  EXPECT_EQ(widget_->count(), 5);
  EXPECT_EQ(shown(), "Shift");
}

TEST_F(FreeChoices, knowTheModeOfASession)
{
  EXPECT_EQ(mode_->getSelection(), 1);
  EXPECT_EQ(mode_->selection(), "share_mode");
  page_.act([&] { mode_->setCurrentIndex(1); });
  EXPECT_EQ(mode_->getSelection(), 2);
  EXPECT_EQ(mode_->selection(), "private_mode");
  EXPECT_EQ(mode_->value(), 2);
  page_.act([&] { mode_->clear(); });
  EXPECT_EQ(mode_->getSelection(), 2);
}

TEST_F(FreeChoices, giveTheWordOfAFirmwareSourceAsTheValueText)
{
  std::vector<std::string> words;
  for (int i = 0; i < source_->count(); ++i) {
    page_.act([&] { source_->setCurrentIndex(i); });
    words.push_back(source_->valueText().toUTF8());
  }
  EXPECT_THAT(words, ElementsAre("ftp", "http", "https", "tftp", "file"));
  page_.act([&] {
    source_->addItem("more");
    source_->setCurrentIndex(5);
  });
  EXPECT_EQ(source_->valueText().toUTF8(), "");
}
