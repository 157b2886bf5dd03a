// SPDX-License-Identifier: MIT
#include <Wt/WEvent>
#include <Wt/WLength>
#include <Wt/WSignal>
#include <boost/bind.hpp>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>

using namespace Wt;

typedef decltype(std::declval<Wt::Signal<> &>().connect((Wt::WObject *)0, (Wt::WObject::Method)0)) Connection;

namespace
{

class Receiver : public WObject
{
public:
  explicit Receiver(std::string &log, char name = 'r') : log_(log), name_(name) {}

  void nothing() { add(""); }
  void number(int n) { add(std::to_string(n)); }
  void numberByReference(const int &n) { add(std::to_string(n)); }
  void both(int n, WLength length) { add(std::to_string(n) + length.cssText()); }
  void bothByReference(const int &n, const WLength &length) { add(std::to_string(n) + length.cssText()); }
  void text(std::string value) { add(value); }
  void mouse(WMouseEvent) { add("m"); }
  void mouseByReference(const WMouseEvent &) { add("M"); }

private:
  void add(const std::string &what) { log_ += name_ + what + " "; }

  std::string &log_;
  char name_;
};

/// No WObject, but polymorphic.
class Mixin
{
public:
  explicit Mixin(std::string &log) : log_(log) {}
  virtual ~Mixin() = default;
  void hear() { log_ += "mixin "; }

private:
  std::string &log_;
};

class Both : public Receiver, public Mixin
{
public:
  explicit Both(std::string &log) : Receiver(log), Mixin(log) {}
};

class Sender : public WObject
{
public:
  explicit Sender() : signal("click", this), plain(this) {}
  EventSignal<> signal;
  Signal<> plain;
  int changes = 0;

protected:
  void signalConnectionsChanged() override { ++changes; }
};

} // namespace

TEST(Signal, runsItsSlotsInReverseOrderOfConnection)
{
  std::string log;
  Receiver a(log, 'a'), b(log, 'b'), c(log, 'c');
  Signal<> signal;
  signal.connect(&a, &Receiver::nothing);
  signal.connect(&b, &Receiver::nothing);
  signal.connect(&c, &Receiver::nothing);
  signal.emit();
  EXPECT_EQ(log, "c b a ");
}

TEST(Signal, passesAPrefixOfItsArguments)
{
  std::string log;
  Receiver r(log);
  Signal<int, WLength> signal;
  signal.connect(&r, &Receiver::bothByReference);
  signal.connect(&r, &Receiver::both);
  signal.connect(&r, &Receiver::numberByReference);
  signal.connect(&r, &Receiver::number);
  signal.connect(&r, &Receiver::nothing);
  signal(3, WLength(4));
  EXPECT_EQ(log, "r r3 r3 r34px r34px ");
}

TEST(Signal, takesBindObjectsOfBoostAndOfTheStandard)
{
  std::string log;
  Receiver r(log);
  Signal<int> signal;
  signal.connect(boost::bind(&Receiver::text, &r, std::string("bound")));
  signal.connect(boost::bind(&Receiver::number, &r, _1));
  signal.connect(boost::bind<void>([&log] { log += "lambda "; }));
  signal.connect(std::bind([&log] { log += "std "; }));
  signal.connect(std::bind(&Receiver::number, &r, std::placeholders::_1));
  signal.emit(7);
  EXPECT_EQ(log, "r7 std lambda r7 rbound ");
}

TEST(Signal, aMethodOfAnObjectThatDiedIsNotCalled)
{
  std::string log;
  Signal<> signal;
  {
    Receiver r(log);
    signal.connect(&r, &Receiver::nothing);
    EXPECT_TRUE(signal.isConnected());
  }
  EXPECT_FALSE(signal.isConnected());
  signal.emit();
  EXPECT_EQ(log, "");
}

TEST(Signal, aBoostBindOnAnObjectThatDiedIsNotCalled)
{
  std::string log;
  Signal<> signal;
  auto *direct = new Receiver(log);
  auto *second = new Receiver(log);
  signal.connect(boost::bind(&Receiver::text, direct, std::string("x")));
  signal.connect(boost::bind<void>([](Receiver *, Receiver *r) { r->nothing(); }, direct, second));
  delete second;
  signal.emit();
  EXPECT_EQ(log, "rx ");
  delete direct;
  signal.emit();
  EXPECT_FALSE(signal.isConnected());
  EXPECT_EQ(log, "rx ");
}

TEST(Signal, aReceiverThatIsNoObjectItselfIsTrackedThroughItsWhole)
{
  std::string log;
  Signal<> signal;
  auto *both = new Both(log);
  Mixin *mixin = both;
  signal.connect(mixin, &Mixin::hear);
  Mixin alone(log);
  signal.connect(&alone, &Mixin::hear);
  signal.emit();
  EXPECT_EQ(log, "mixin mixin ");
  delete both;
  signal.emit();
  EXPECT_EQ(log, "mixin mixin mixin ");
}

TEST(Signal, aLambdaIsNotTracked)
{
  int calls = 0;
  Signal<> signal;
  {
    WObject unrelated;
    signal.connect(std::bind([&calls] { ++calls; }));
  }
  signal.emit();
  EXPECT_EQ(calls, 1);
}

TEST(Signal, survivesItsDestructionDuringEmission)
{
  std::string log;
  Receiver r(log);
  auto signal = std::make_unique<Signal<std::string>>();
  signal->connect(&r, &Receiver::text);
  signal->connect(std::bind([&signal] { signal.reset(); }));
  signal->connect(&r, &Receiver::text);
  signal->emit("once");
  EXPECT_EQ(log, "ronce ");
  EXPECT_EQ(signal, nullptr);
}

TEST(Signal, survivesItsDestructionDuringANestedEmission)
{
  auto signal = std::make_unique<Signal<int>>();
  std::string log;
  signal->connect(boost::bind<void>(
      [&](int depth) {
        log += std::to_string(depth);
        if (depth == 0)
          signal.reset();
        else
          signal->emit(depth - 1);
      },
      _1));
  signal->emit(2);
  EXPECT_EQ(log, "210");
}

TEST(Signal, aSlotMayDeleteItsReceiver)
{
  std::string log;
  Signal<> signal;
  auto *late = new Receiver(log, 'l');
  signal.connect(late, &Receiver::nothing);
  signal.connect(std::bind([&late] { delete late; }));
  signal.emit();
  EXPECT_EQ(log, "");
  EXPECT_TRUE(signal.isConnected());
}

TEST(Signal, aLateSlotThatIsDisconnectedDuringEmissionDoesNotRun)
{
  std::string log;
  Receiver r(log);
  Signal<> signal;
  Connection late = signal.connect(&r, &Receiver::nothing);
  signal.connect(std::bind([&late] { late.disconnect(); }));
  signal.emit();
  EXPECT_EQ(log, "");
  EXPECT_FALSE(late.connected());
}

TEST(Signal, aSlotMayDisconnectItself)
{
  Signal<> signal;
  int calls = 0;
  Connection self;
  self = signal.connect(std::bind([&] {
    ++calls;
    self.disconnect();
  }));
  signal.emit();
  signal.emit();
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(signal.isConnected());
}

TEST(Signal, aSlotThatIsConnectedDuringEmissionWaitsForTheNext)
{
  std::string log;
  Receiver r(log);
  Signal<> signal;
  bool connected = false;
  signal.connect(std::bind([&] {
    if (!connected)
      signal.connect(&r, &Receiver::nothing);
    connected = true;
  }));
  signal.emit();
  EXPECT_EQ(log, "");
  signal.emit();
  EXPECT_EQ(log, "r ");
}

TEST(Signal, connectionObjectsAreCopyableAndMayOutliveTheSignal)
{
  std::string log;
  Receiver r(log);
  Connection none;
  EXPECT_FALSE(none.connected());
  none.disconnect();
  Connection copy;
  {
    Signal<> signal;
    Connection connection = signal.connect(&r, &Receiver::nothing);
    copy = connection;
    EXPECT_TRUE(copy.connected());
    copy.disconnect();
    EXPECT_FALSE(connection.connected());
    connection = signal.connect(&r, &Receiver::nothing);
    copy = connection;
  }
  EXPECT_FALSE(copy.connected());
  copy.disconnect();
}

TEST(Signal, aBlockedSignalDoesNothing)
{
  std::string log;
  Receiver r(log);
  Signal<> signal;
  signal.connect(&r, &Receiver::nothing);
  signal.setBlocked(true);
  EXPECT_TRUE(signal.isBlocked());
  signal.emit();
  signal();
  EXPECT_EQ(log, "");
  signal.setBlocked(false);
  signal.emit();
  EXPECT_EQ(log, "r ");
}

TEST(Signal, argumentsAreSafeFromTheDeathOfTheirOwner)
{
  struct Owner {
    std::string text = "a text that is too long to be kept in place";
    Signal<std::string> signal;
  };
  auto owner = std::make_unique<Owner>();
  std::string heard;
  owner->signal.connect(boost::bind<void>(
      [&](const std::string &text) {
        owner.reset();
        heard = text;
      },
      _1));
  owner->signal.emit(owner->text);
  EXPECT_EQ(heard, "a text that is too long to be kept in place");
}

TEST(Signal, anExceptionEscapesAndLeavesTheSignalUsable)
{
  Signal<> signal;
  bool wild = true;
  int calls = 0;
  signal.connect(std::bind([&] {
    ++calls;
    if (wild)
      throw std::runtime_error("slot");
  }));
  EXPECT_THROW(signal.emit(), std::runtime_error);
  wild = false;
  signal.emit();
  EXPECT_EQ(calls, 2);
}

TEST(Signal, lettingGoOfASlotMayEndOtherConnectionsAndTheSignal)
{
  auto signal = std::make_unique<Signal<>>();
  std::string log;
  auto receiver = std::make_shared<Receiver>(log);
  signal->connect(receiver.get(), &Receiver::nothing);
  auto holder = std::shared_ptr<int>(new int(0), [&](int *p) {
    delete p;
    receiver.reset();
    signal.reset();
  });
  Connection connection = signal->connect(std::bind([holder] {}));
  holder.reset();
  Signal<> &raw = *signal;
  raw.emit();
  {
    Connection last = std::move(connection);
    last.disconnect();
    EXPECT_NE(signal, nullptr);
  }
  EXPECT_EQ(signal, nullptr);
}

TEST(EventSignal, tellsItsSenderWhenTheFirstSlotComesAndTheLastGoes)
{
  std::string log;
  Sender sender;
  auto *first = new Receiver(log);
  Receiver second(log);
  sender.signal.connect(first, &Receiver::nothing);
  EXPECT_EQ(sender.changes, 1);
  Connection connection = sender.signal.connect(&second, &Receiver::nothing);
  EXPECT_EQ(sender.changes, 1);
  delete first;
  EXPECT_EQ(sender.changes, 1);
  connection.disconnect();
  EXPECT_EQ(sender.changes, 2);
  EXPECT_EQ(sender.signal.sender(), &sender);
  EXPECT_STREQ(sender.signal.name(), "click");
}

TEST(EventSignal, connectsToMethodsWithAndWithoutTheEvent)
{
  std::string log;
  Receiver r(log);
  EventSignal<WMouseEvent> signal("click", nullptr);
  signal.connect(&r, &Receiver::nothing);
  signal.connect(&r, &Receiver::mouse);
  signal.connect(&r, &Receiver::mouseByReference);
  signal.connect(boost::bind(&Receiver::mouseByReference, &r, _1));
  signal.connect(std::bind([&log] { log += "lambda "; }));
  signal.emit(WMouseEvent());
  EXPECT_EQ(log, "lambda rM rM rm r ");
}

TEST(EventSignal, isSmallWhileNobodyListens)
{
  EXPECT_LE(sizeof(EventSignal<WMouseEvent>), 5 * sizeof(void *));
}

TEST(EventSignal, deliversWhatTheBrowserTold)
{
  EventSignal<WMouseEvent> signal("click", nullptr);
  WMouseEvent heard;
  signal.connect(boost::bind<void>([&heard](const WMouseEvent &event) { heard = event; }, _1));
  Engine::RawEvent raw;
  raw.button = 1;
  raw.modifiers = ShiftModifier | MetaModifier;
  raw.document = {1, 2};
  raw.widget = {3, 4};
  raw.wheel = -1;
  Engine::EventAccess::dispatch(signal, raw);
  EXPECT_EQ(heard.button(), WMouseEvent::LeftButton);
  EXPECT_EQ(heard.modifiers().value(), 9);
  EXPECT_EQ(heard.document().y, 2);
  EXPECT_EQ(heard.widget().x, 3);
  EXPECT_EQ(heard.wheelDelta(), -1);
}
