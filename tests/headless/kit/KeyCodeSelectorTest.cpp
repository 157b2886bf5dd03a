// SPDX-License-Identifier: MIT
#include "KitPage.h"
#include "WKeyCodeSelector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

const std::vector<std::string> kTexts = {"0 - None",
                                         "1 - Reserved",
                                         "2 - Reserved",
                                         "3 - Reserved",
                                         "4 - A",
                                         "5 - B",
                                         "6 - C",
                                         "7 - D",
                                         "8 - E",
                                         "9 - F",
                                         "10 - G",
                                         "11 - H",
                                         "12 - I",
                                         "13 - J",
                                         "14 - K",
                                         "15 - L",
                                         "16 - M",
                                         "17 - N",
                                         "18 - O",
                                         "19 - P",
                                         "20 - Q",
                                         "21 - R",
                                         "22 - S",
                                         "23 - T",
                                         "24 - U",
                                         "25 - V",
                                         "26 - W",
                                         "27 - X",
                                         "28 - Y",
                                         "29 - Z",
                                         "30 - 1",
                                         "31 - 2",
                                         "32 - 3",
                                         "33 - 4",
                                         "34 - 5",
                                         "35 - 6",
                                         "36 - 7",
                                         "37 - 8",
                                         "38 - 9",
                                         "39 - 0",
                                         "42 - Backspace",
                                         "44 - Spacebar",
                                         "45 - -",
                                         "46 - =",
                                         "47 - [",
                                         "48 - ]",
                                         "49 - \\",
                                         "50 - Non-US #",
                                         "51 - ;",
                                         "52 - apostrophe",
                                         "53 - accent grave",
                                         "54 - ,",
                                         "55 - .",
                                         "56 - /",
                                         "57 - Caps Lock",
                                         "58 - F1",
                                         "59 - F2",
                                         "60 - F3",
                                         "61 - F4",
                                         "62 - F5",
                                         "63 - F6",
                                         "64 - F7",
                                         "65 - F8",
                                         "66 - F9",
                                         "67 - F10",
                                         "68 - F11",
                                         "69 - F12",
                                         "70 - PrintScreen",
                                         "71 - Scroll Lock",
                                         "72 - Pause",
                                         "73 - Insert",
                                         "74 - Home",
                                         "75 - PageUp",
                                         "76 - Delete",
                                         "77 - End",
                                         "78 - PageDown",
                                         "79 - RightArrow",
                                         "80 - LeftArrow",
                                         "81 - DownArrow",
                                         "82 - UpArrow",
                                         "83 - Keypad Num Lock",
                                         "84 - Keypad /",
                                         "85 - Keypad *",
                                         "86 - Keypad -",
                                         "87 - Keypad +",
                                         "89 - Keypad 1",
                                         "90 - Keypad 2",
                                         "91 - Keypad 3",
                                         "92 - Keypad 4",
                                         "93 - Keypad 5",
                                         "94 - Keypad 6",
                                         "95 - Keypad 7",
                                         "96 - Keypad 8",
                                         "97 - Keypad 9",
                                         "98 - Keypad 0",
                                         "99 - Keypad .",
                                         "100 - Non-US \\",
                                         "101 - Application",
                                         "102 - Power",
                                         "103 - Keypad =",
                                         "104 - F13",
                                         "105 - F14",
                                         "106 - F15",
                                         "107 - F16",
                                         "108 - F17",
                                         "109 - F18",
                                         "110 - F19",
                                         "111 - F20",
                                         "112 - F21",
                                         "113 - F22",
                                         "114 - F23",
                                         "115 - F24",
                                         "116 - Execute",
                                         "117 - Help",
                                         "118 - Menu",
                                         "119 - Select",
                                         "120 - Stop",
                                         "121 - Again",
                                         "122 - Undo",
                                         "123 - Cut",
                                         "124 - Copy",
                                         "125 - Paste",
                                         "126 - Find",
                                         "127 - Mute",
                                         "128 - Volume Up",
                                         "129 - Volume Down",
                                         "130 - Locking Caps Lock",
                                         "131 - Locking Num Lock",
                                         "132 - Locking Scroll Lock",
                                         "133 - Keypad Comma",
                                         "134 - Keypad Equal Sign",
                                         "135 - International1",
                                         "136 - International2",
                                         "137 - International3",
                                         "138 - International4",
                                         "139 - International5",
                                         "140 - International6",
                                         "141 - International7",
                                         "142 - International8",
                                         "143 - International9",
                                         "144 - LANG1",
                                         "145 - LANG2",
                                         "146 - LANG3",
                                         "147 - LANG4",
                                         "148 - LANG5",
                                         "149 - LANG6",
                                         "150 - LANG7",
                                         "151 - LANG8",
                                         "152 - LANG9",
                                         "153 - Alternate Erase",
                                         "154 - SysReq/Attention",
                                         "155 - Cancel",
                                         "156 - Clear",
                                         "157 - Prior",
                                         "158 - Return",
                                         "159 - Separator",
                                         "160 - Out",
                                         "161 - Oper",
                                         "162 - Clear/Again",
                                         "163 - CrSel/Props",
                                         "164 - ExSel",
                                         "165 - Reserved",
                                         "166 - Reserved",
                                         "167 - Reserved",
                                         "168 - Reserved",
                                         "169 - Reserved",
                                         "170 - Reserved",
                                         "171 - Reserved",
                                         "172 - Reserved",
                                         "173 - Reserved",
                                         "174 - Reserved",
                                         "175 - Reserved",
                                         "176 - Keypad 00",
                                         "177 - Keypad 000",
                                         "178 - Thousands Separator",
                                         "179 - Decimal Separator",
                                         "180 - Currency Unit",
                                         "181 - Currency Sub-unit",
                                         "182 - Keypad (",
                                         "183 - Keypad )",
                                         "184 - Keypad {",
                                         "185 - Keypad }",
                                         "186 - Keypad Tab",
                                         "187 - Keypad Backspace",
                                         "188 - Keypad A",
                                         "189 - Keypad B",
                                         "190 - Keypad C",
                                         "191 - Keypad D",
                                         "192 - Keypad E",
                                         "193 - Keypad F",
                                         "194 - Keypad XOR",
                                         "195 - Keypad carat",
                                         "196 - Keypad percent",
                                         "197 - Keypad lessthan",
                                         "198 - Keypad greaterthan",
                                         "199 - Keypad ampersand",
                                         "200 - Keypad ampersand ampersand",
                                         "201 - Keypad |",
                                         "202 - Keypad ||",
                                         "203 - Keypad :",
                                         "204 - Keypad #",
                                         "205 - Keypad Space",
                                         "206 - Keypad @",
                                         "207 - Keypad !",
                                         "208 - Keypad Memory Store",
                                         "209 - Keypad Memory Recall",
                                         "210 - Keypad Memory Clear",
                                         "211 - Keypad Memory Add",
                                         "212 - Keypad Memory Subtract",
                                         "213 - Keypad Memory Multiply",
                                         "214 - Keypad Memory Divide",
                                         "215 - Keypad +/-",
                                         "216 - Keypad Clear",
                                         "217 - Keypad Clear Entry",
                                         "218 - Keypad Binary",
                                         "219 - Keypad Octal",
                                         "220 - Keypad Decimal",
                                         "221 - Keypad Hexadecimal",
                                         "222 - Reserved",
                                         "223 - Reserved",
                                         "224 - LeftControl",
                                         "225 - LeftShift ",
                                         "226 - LeftAlt ",
                                         "227 - Left GUI",
                                         "228 - RightControl",
                                         "229 - RightShift",
                                         "230 - RightAlt",
                                         "231 - Right GUI",
                                         "232 - Reserved",
                                         "233 - Reserved",
                                         "234 - Reserved",
                                         "235 - Reserved",
                                         "236 - Reserved",
                                         "237 - Reserved",
                                         "238 - Reserved",
                                         "239 - Reserved",
                                         "240 - Reserved",
                                         "241 - Reserved",
                                         "242 - Reserved",
                                         "243 - Reserved",
                                         "244 - Reserved",
                                         "245 - Reserved",
                                         "246 - Reserved",
                                         "247 - Reserved",
                                         "248 - Reserved",
                                         "249 - Reserved",
                                         "250 - Reserved",
                                         "251 - Reserved",
                                         "252 - Reserved",
                                         "253 - Reserved",
                                         "254 - Reserved",
                                         "255 - Reserved"};

class KeyCodeSelector : public testing::Test
{
protected:
  KeyCodeSelector() : page_([this](Wt::WContainerWidget &root) { selector_ = new WKeyCodeSelector(&root); })
  {
  }

  WKeyCodeSelector *selector_ = nullptr;
  KitPage page_;
};

} // namespace

TEST_F(KeyCodeSelector, offersTheKeysInOrder)
{
  ASSERT_EQ(kTexts.size(), 252U);
  ASSERT_EQ(selector_->count(), 252);
  page_.act([&] {
    for (int i = 0; i < 252; ++i)
      EXPECT_EQ(selector_->itemText(i).toUTF8(), kTexts[static_cast<std::size_t>(i)]);
  });
}

TEST_F(KeyCodeSelector, showsThePersonTheTextsAsTheyAre)
{
  const Wt::Testing::Node *list = page_.visitor.byTag("select");
  ASSERT_TRUE(list);
  ASSERT_EQ(list->children.size(), 252U);
  for (std::size_t i = 0; i < 252; ++i)
    EXPECT_EQ(list->children[i]->allText(), kTexts[i]);
}

TEST_F(KeyCodeSelector, hasTheCodeThatStandsInTheText)
{
  for (int code = 0; code < 256; ++code) {
    const bool isMissing = code == 40 || code == 41 || code == 43 || code == 88;
    page_.act([&] {
      EXPECT_EQ(selector_->setCurrentIndexByValue(code), isMissing) << code;
      if (isMissing)
        return;
      EXPECT_EQ(selector_->value(), code);
      EXPECT_EQ(selector_->currentText().toUTF8().find(std::to_string(code) + " - "), 0U) << code;
      EXPECT_EQ(selector_->selection(), "") << code;
    });
  }
}

TEST_F(KeyCodeSelector, leavesTheSelectionAloneForAKeyThatCannotBeChosen)
{
  for (const int code : {40, 41, 43, 88, -1, 256}) {
    page_.act([&] {
      selector_->setCurrentIndexByValue(4);
      EXPECT_TRUE(selector_->setCurrentIndexByValue(code)) << code;
      EXPECT_EQ(selector_->currentText().toUTF8(), "4 - A");
    });
  }
}
