// SPDX-License-Identifier: MIT
#include <Wt/WEvent>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

Key keyOf(int keyCode, int charCode = 0)
{
  Engine::RawEvent raw;
  raw.keyCode = keyCode;
  raw.charCode = charCode;
  return Engine::EventAccess::make<WKeyEvent>(raw).key();
}

} // namespace

TEST(WKeyEvent, namesKeysByTheirCodes)
{
  EXPECT_EQ(keyOf(13), Key_Enter);
  EXPECT_EQ(keyOf(65), Key_A);
  EXPECT_EQ(keyOf(123), Key_F12);
  EXPECT_EQ(keyOf(0), Key_unknown);
  EXPECT_EQ(keyOf(255), Key_unknown);
  EXPECT_EQ(keyOf(-5), Key_unknown);
}

TEST(WKeyEvent, givesDigitsForTheNumericPad)
{
  EXPECT_EQ(keyOf(96), Key_0);
  EXPECT_EQ(keyOf(105), Key_9);
}

TEST(WKeyEvent, givesCapitalsForLettersOfKeyPresses)
{
  EXPECT_EQ(keyOf(0, 'a'), Key_A);
  EXPECT_EQ(keyOf(0, 'Z'), Key_Z);
  EXPECT_EQ(keyOf(0, '5'), Key_5);
  EXPECT_EQ(keyOf(0, '%'), Key_unknown);
}

TEST(WKeyEvent, carriesTextAndModifiers)
{
  Engine::RawEvent raw;
  raw.text = "\xc3\xbc";
  raw.charCode = 0xfc;
  raw.modifiers = 2;
  const auto event = Engine::EventAccess::make<WKeyEvent>(raw);
  EXPECT_EQ(event.text().toUTF8(), "\xc3\xbc");
  EXPECT_EQ(event.charCode(), 0xfc);
  EXPECT_TRUE(event.modifiers() & ControlModifier);
  EXPECT_EQ(WKeyEvent().key(), Key_unknown);
}

TEST(WMouseEvent, readsUnknownButtonsAndModifiersAsNone)
{
  Engine::RawEvent raw;
  raw.button = 77;
  raw.modifiers = 0x7ff0;
  const auto event = Engine::EventAccess::make<WMouseEvent>(raw);
  EXPECT_EQ(event.button(), WMouseEvent::NoButton);
  EXPECT_EQ(event.modifiers().value(), 0);
  EXPECT_EQ(WMouseEvent().button(), WMouseEvent::NoButton);
}

TEST(WEvent, tellsItsTypeToTheApplicationAndItsContextToTheEngine)
{
  int context = 0;
  const WEvent event = Engine::EventAccess::makeEvent(TimerEvent, &context);
  EXPECT_EQ(event.eventType(), TimerEvent);
  EXPECT_EQ(Engine::EventAccess::context(event), &context);
}
