// SPDX-License-Identifier: MIT
#include <Wt/WJavaScript>
#include <Wt/WString>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class Receiver : public WObject
{
public:
  void size(int width, int height) { heard += std::to_string(width) + "x" + std::to_string(height) + " "; }
  void nothing() { heard += "() "; }
  void mixed(std::string text, double number, bool flag)
  {
    heard += text + "/" + std::to_string(number) + "/" + (flag ? "yes " : "no ");
  }

  std::string heard;
};

Engine::RawEvent withArguments(std::vector<std::string> args)
{
  Engine::RawEvent event;
  event.args = std::move(args);
  return event;
}

} // namespace

TEST(JSignal, convertsTheArgumentsOfTheBrowser)
{
  Receiver r;
  JSignal<int, int> signal(nullptr, "resized");
  signal.connect(&r, &Receiver::size);
  signal.connect(&r, &Receiver::nothing);
  Engine::EventAccess::dispatch(signal, withArguments({"300", "-2"}));
  EXPECT_EQ(r.heard, "() 300x-2 ");
  EXPECT_EQ(signal.name(), "resized");
  EXPECT_STREQ(static_cast<EventSignalBase &>(signal).name(), "resized");
}

TEST(JSignal, dropsEventsWhoseArgumentsDoNotFit)
{
  Receiver r;
  JSignal<int, int> signal(nullptr, "resized");
  signal.connect(&r, &Receiver::size);
  const std::vector<std::vector<std::string>> wrong = {
      {}, {"1"}, {"1", ""}, {"1", "x"}, {"1", "2x"}, {" 1", "2"}, {"1", "99999999999999"}, {"1.5", "2"}};
  for (const auto &args : wrong)
    Engine::EventAccess::dispatch(signal, withArguments(args));
  EXPECT_EQ(r.heard, "");
}

TEST(JSignal, ignoresSurplusArguments)
{
  Receiver r;
  JSignal<int, int> signal(nullptr, "resized");
  signal.connect(&r, &Receiver::size);
  Engine::EventAccess::dispatch(signal, withArguments({"1", "2", "3"}));
  EXPECT_EQ(r.heard, "1x2 ");
}

TEST(JSignal, readsTextsNumbersAndFlags)
{
  Receiver r;
  JSignal<std::string, double, bool> signal(nullptr, "mixed");
  signal.connect(&r, &Receiver::mixed);
  Engine::EventAccess::dispatch(signal, withArguments({"a", "1.5", "true"}));
  Engine::EventAccess::dispatch(signal, withArguments({"b", "inf", "true"}));
  Engine::EventAccess::dispatch(signal, withArguments({"c", "2", "maybe"}));
  Engine::EventAccess::dispatch(signal, withArguments({"", "2", "0"}));
  EXPECT_EQ(r.heard, "a/1.500000/yes /2.000000/no ");
}

TEST(JSignal, isEmittedByTheProgramToo)
{
  Receiver r;
  JSignal<int, int> signal(nullptr, "resized");
  signal.connect(&r, &Receiver::size);
  signal.emit(1, 2);
  signal(3, 4);
  EXPECT_EQ(r.heard, "1x2 3x4 ");
}
