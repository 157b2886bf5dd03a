// SPDX-License-Identifier: MIT
#include "dom/Document.h"
#include "testing/PageMirror.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <jansson.h>
#include <string>
#include <vector>

using namespace Wt;
using Dom::Document;
using Dom::Element;

namespace
{

/// A document, and the page of a browser that follows it.
class Follower
{
public:
  /// The operations, which the page has applied.
  std::string follow()
  {
    const std::string operations = document.take();
    if (!operations.empty()) {
      json_t *list = json_loads(operations.c_str(), 0, nullptr);
      page.apply(list);
      json_decref(list);
    }
    return operations;
  }

  Element *make(const char *tag = "p") { return document.create(tag); }

  /// New elements below the body, which the page has.
  std::vector<Element *> shown(std::size_t count)
  {
    std::vector<Element *> elements;
    for (std::size_t i = 0; i < count; ++i)
      elements.push_back(make());
    document.body().setChildren(elements);
    follow();
    return elements;
  }

  /// The numbers of an element's children, as the page has them.
  std::vector<Element::Id> order(const Element &parent) const
  {
    std::vector<Element::Id> ids;
    for (const Testing::Node *child : page.find(parent.id())->children)
      ids.push_back(child->id);
    return ids;
  }

  Document document;
  Testing::PageMirror page;
};

std::vector<Element::Id> idsOf(const std::vector<Element *> &elements)
{
  std::vector<Element::Id> ids;
  for (const Element *element : elements)
    ids.push_back(element->id());
  return ids;
}

std::size_t count(const std::string &text, const std::string &part)
{
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
    ++found;
  return found;
}

/// Hears when its elements go.
struct Listener final : Dom::Owner {
  void domEvent(Element &, const Engine::RawEvent &) override {}
  void domValue(Element &, const std::string &) override {}
  void domGone(Element &gone) noexcept override { goneIds.push_back(gone.id()); }
  std::vector<Element::Id> goneIds;
};

} // namespace

TEST(Element, getsItsChildrenInEveryOrderThatIsAskedFor)
{
  std::vector<std::size_t> order = {0, 1, 2, 3};
  do {
    Follower follower;
    const std::vector<Element *> elements = follower.shown(4);
    std::vector<Element *> wanted;
    for (const std::size_t place : order)
      wanted.push_back(elements[place]);
    follower.document.body().setChildren(wanted);
    EXPECT_EQ(wanted, follower.document.body().children());
    follower.follow();
    EXPECT_EQ(idsOf(wanted), follower.order(follower.document.body()));
  } while (std::next_permutation(order.begin(), order.end()));
}

TEST(Element, getsNewOldAndFewerChildrenInOneStep)
{
  // Of three children some stay, in some order, with a new one at some place.
  for (int kept = 0; kept < 8; ++kept) {
    std::vector<int> order = {0, 1, 2};
    do {
      for (std::size_t place = 0; place <= 3; ++place) {
        Follower follower;
        const std::vector<Element *> elements = follower.shown(3);
        std::vector<Element *> wanted;
        for (const int old : order)
          if (kept & (1 << old))
            wanted.push_back(elements[static_cast<std::size_t>(old)]);
        wanted.insert(wanted.begin() + static_cast<long>(std::min(place, wanted.size())), follower.make());
        follower.document.body().setChildren(wanted);
        follower.follow();
        EXPECT_EQ(idsOf(wanted), follower.order(follower.document.body()));
      }
    } while (std::next_permutation(order.begin(), order.end()));
  }
}

TEST(Element, movesOneElementByOneOperation)
{
  Follower follower;
  std::vector<Element *> elements = follower.shown(50);
  std::rotate(elements.begin(), elements.begin() + 1, elements.end());
  follower.document.body().setChildren(elements);
  EXPECT_EQ(1U, count(follower.follow(), "[\"m\""));
  EXPECT_EQ(idsOf(elements), follower.order(follower.document.body()));
}

TEST(Element, saysNothingWhereItsChildrenStay)
{
  Follower follower;
  const std::vector<Element *> elements = follower.shown(3);
  follower.document.body().setChildren(elements);
  EXPECT_FALSE(follower.document.hasOperations());
  EXPECT_EQ("", follower.document.take());
}

TEST(Element, takesAChildFromAnotherParentWithAllBelowIt)
{
  Follower follower;
  const std::vector<Element *> parents = follower.shown(2);
  Element *child = follower.make();
  Element *grandchild = follower.make("i");
  child->setChildren({grandchild});
  parents[0]->setChildren({child});
  follower.follow();
  parents[1]->setChildren({child});
  const std::string operations = follower.follow();
  EXPECT_EQ(1U, count(operations, "[\"m\"")) << operations;
  EXPECT_EQ(0U, count(operations, "[\"c\"")) << operations;
  EXPECT_TRUE(follower.order(*parents[0]).empty());
  EXPECT_EQ(idsOf({child}), follower.order(*parents[1]));
  EXPECT_EQ(idsOf({grandchild}), follower.order(*child));
}

TEST(Element, takenIntoATreeThatIsNotInThePageComesBackWithIt)
{
  Follower follower;
  const std::vector<Element *> elements = follower.shown(2);
  elements[0]->set("class", "kept");
  follower.follow();
  Element *box = follower.make("div");
  box->setChildren({elements[0]});
  EXPECT_FALSE(elements[0]->attached());
  follower.document.body().setChildren({elements[1], box});
  follower.follow();
  EXPECT_EQ(idsOf({elements[0]}), follower.order(*box));
  EXPECT_EQ("kept", follower.page.find(elements[0]->id())->get("class"));
}

TEST(Element, tellsASettingOnceAndOnlyWhereItDiffers)
{
  Follower follower;
  Element *element = follower.shown(1)[0];
  element->set("class", "a");
  element->set("title", "t");
  EXPECT_EQ(1U, count(follower.follow(), "[\"s\""));
  element->set("class", "a");
  element->setIf(true, "title", "t");
  element->unset("hidden");
  EXPECT_EQ("", follower.document.take());
  element->setIf(false, "title", "t");
  follower.follow();
  EXPECT_FALSE(follower.page.find(element->id())->has("title"));
}

TEST(Element, saysNothingOfWhatTheBrowserHasChangedItself)
{
  Follower follower;
  Element *element = follower.shown(1)[0];
  element->assume(".value", "typed");
  element->set(".value", "typed");
  EXPECT_EQ("", follower.document.take());
  EXPECT_EQ("typed", *element->get(".value"));
  element->set(".value", "other");
  EXPECT_NE("", follower.follow());
}

TEST(Element, thatNobodyTookGoesWithTheNextUpdateAndItsOwnerHearsOfIt)
{
  Listener listener;
  Follower follower;
  Element *parent = follower.shown(1)[0];
  Element *child = follower.document.create("b", &listener);
  const Element::Id id = child->id();
  parent->setChildren({child});
  follower.follow();
  parent->setChildren({});
  EXPECT_TRUE(listener.goneIds.empty()) << "another element may still take it";
  follower.follow();
  EXPECT_EQ(std::vector<Element::Id>{id}, listener.goneIds);
  EXPECT_EQ(nullptr, follower.document.find(id));
  EXPECT_EQ(nullptr, follower.page.find(id));
}

TEST(Element, callsComeAfterTheElementIsThereAndAreDroppedWhereItNeverIs)
{
  Follower follower;
  Element *box = follower.make("div");
  Element *lost = follower.make("b");
  box->call("focus");
  lost->call("focus");
  follower.document.body().setChildren({box});
  const std::string operations = follower.follow();
  EXPECT_LT(operations.find("[\"c\""), operations.find("[\"x\""));
  EXPECT_EQ(1U, count(operations, "[\"x\"")) << operations;
}

TEST(Document, destroysATreeByOneOperation)
{
  Listener listener;
  Follower follower;
  Element *top = follower.document.create("div", &listener);
  std::vector<Element *> inner;
  for (int i = 0; i < 20; ++i)
    inner.push_back(follower.document.create("p", &listener));
  top->setChildren(inner);
  follower.document.body().setChildren({top});
  follower.follow();
  follower.document.destroy(top);
  EXPECT_EQ(1U, count(follower.follow(), "[\"r\""));
  EXPECT_EQ(21U, listener.goneIds.size());
  EXPECT_EQ(1U, follower.page.size()) << "the body";
}

TEST(Document, writesTextsSoThatTheyArriveAsTheyAre)
{
  Follower follower;
  Element *element = follower.shown(1)[0];
  const std::string odd = "\"\\\n\t</script>\x01 \xc3\xa4\xf0\x9f\x98\x80\xe2\x80\xa8";
  element->set("title", odd);
  follower.follow();
  EXPECT_EQ(odd, follower.page.find(element->id())->get("title"));
}
