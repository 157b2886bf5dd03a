// SPDX-License-Identifier: MIT
#include <Wt/WObject>
#include <functional>
#include <gtest/gtest.h>

using namespace Wt;

namespace
{

class Recorder : public WObject
{
public:
  Recorder(std::string &log, char name, WObject *parent = nullptr) : WObject(parent), log_(log), name_(name)
  {
  }
  ~Recorder() override { log_ += name_; }

private:
  std::string &log_;
  char name_;
};

/// Deletes another object when it goes.
class Companion : public WObject
{
public:
  Companion(WObject *other, WObject *parent) : WObject(parent), other_(other) {}
  ~Companion() override { delete other_; }

private:
  WObject *other_;
};

} // namespace

TEST(WObject, aParentDeletesItsChildren)
{
  std::string log;
  {
    WObject parent;
    new Recorder(log, 'a', &parent);
    new Recorder(log, 'b', &parent);
    EXPECT_EQ(parent.children().size(), 2u);
  }
  EXPECT_EQ(log, "ab");
}

TEST(WObject, aChildThatIsDeletedFirstLeavesItsParent)
{
  std::string log;
  WObject parent;
  WObject *first = new Recorder(log, 'a', &parent);
  WObject *second = new Recorder(log, 'b', &parent);
  delete first;
  EXPECT_EQ(parent.children(), std::vector<WObject *>{second});
}

TEST(WObject, addChildTakesTheChildFromItsFormerParent)
{
  WObject first;
  WObject second;
  WObject *child = new WObject(&first);
  second.addChild(child);
  EXPECT_TRUE(first.children().empty());
  EXPECT_EQ(child->parent(), &second);
  second.addChild(child);
  EXPECT_EQ(second.children().size(), 1u);
}

TEST(WObject, removeChildDetachesWithoutDeleting)
{
  std::string log;
  WObject parent;
  WObject *child = new Recorder(log, 'a', &parent);
  parent.removeChild(child);
  EXPECT_EQ(child->parent(), nullptr);
  EXPECT_EQ(log, "");
  delete child;
}

TEST(WObject, aChildMayDeleteItsSiblingsWhileTheParentGoes)
{
  std::string log;
  {
    WObject parent;
    auto *older = new Recorder(log, 'a');
    auto *younger = new Recorder(log, 'b');
    new Companion(younger, &parent);
    parent.addChild(older);
    parent.addChild(younger);
  }
  EXPECT_EQ(log, "ba");
}

TEST(WObject, idsAreUniqueAndBearTheName)
{
  WObject first;
  WObject second;
  EXPECT_NE(first.id(), second.id());
  EXPECT_EQ(first.id()[0], 'o');
  const std::string plain = first.id();
  first.setObjectName("list");
  EXPECT_EQ(first.id(), "list_" + plain);
  EXPECT_EQ(first.objectName(), "list");
}

TEST(WObject, tellsItsEnd)
{
  WObject *told = nullptr;
  auto *object = new WObject();
  object->destroyed().connect(std::bind([&told](WObject *gone) { told = gone; }, std::placeholders::_1));
  delete object;
  EXPECT_EQ(told, object);
}
