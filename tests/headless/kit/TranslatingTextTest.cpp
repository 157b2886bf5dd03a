// SPDX-License-Identifier: MIT
// The bound texts that translate a word of the store.
#include "BoundPage.h"
#include "WTextCascadeMode.h"
#include "WTextCascadeRole.h"
#include "WTextManagerServer.h"

using testing::IsEmpty;

namespace
{

template <class Text> class TranslatingText : public BoundPage<Text>
{
protected:
  TranslatingText()
      : BoundPage<Text>([](Wt::WContainerWidget &root) { return new Text("swx", "word", true, &root); })
  {
    this->store_.setRecords("swx", R"([{"index": 1, "word": "first"}, {"index": 2, "word": "second"}])");
  }

  // What the page shows.
  std::string text() { return this->field()->allText(); }

  // What a read shows of one record with that word.
  std::string textOfWord(const std::string &word)
  {
    this->store_.setRecords("swx", R"([{"index": 1, "word": ")" + word + "\"}]");
    EXPECT_FALSE(this->read({1}));
    return this->text();
  }
};

using Texts = testing::Types<WTextCascadeRole, WTextCascadeMode, WTextManagerServer>;
TYPED_TEST_SUITE(TranslatingText, Texts);

using CascadeRoleText = TranslatingText<WTextCascadeRole>;
using CascadeModeText = TranslatingText<WTextCascadeMode>;
using ManagerServerText = TranslatingText<WTextManagerServer>;

// A text of the one record of the system.
class CurrentManagerText : public BoundPage<WTextManagerServer>
{
protected:
  CurrentManagerText()
      : BoundPage([](Wt::WContainerWidget &root) {
          return new WTextManagerServer("systemGlobals", "currentManager", false, &root);
        })
  {
    store_.setRecords("systemGlobals", R"({"currentManager": "primary"})");
  }
  std::string text() { return field()->allText(); }
};

} // namespace

TYPED_TEST(TranslatingText, isBlankAfterAFailure)
{
  this->read({1});
  EXPECT_NE(this->text(), "");
  EXPECT_TRUE(this->read({1, 99}));
  EXPECT_EQ(this->text(), "");
  EXPECT_EQ(this->errors_.size(), 1U);
}

TYPED_TEST(TranslatingText, isBlankForNoRecordsWithoutARequest)
{
  this->read({1});
  this->store_.forgetRequests();
  EXPECT_FALSE(this->read({}));
  EXPECT_EQ(this->text(), "");
  EXPECT_THAT(this->store_.requests(), IsEmpty());
}

TYPED_TEST(TranslatingText, showsTheStoresWordAfterABulkRead)
{
  this->bulkRead(R"({"word": "master"})", {1});
  EXPECT_EQ(this->text(), "master");
  this->bulkRead(R"([{"index": 1, "word": "slave"}, {"index": 2, "word": "slave"}])", {1, 2});
  EXPECT_EQ(this->text(), "slave");
  this->bulkRead(R"([{"index": 1, "word": "slave"}, {"index": 2, "word": "master"}])", {1, 2});
  EXPECT_EQ(this->text(), "");
  this->bulkRead(R"({"word": "master"})", {1});
  this->bulkRead(R"({"other": "master"})", {1});
  EXPECT_EQ(this->text(), "");
}

TYPED_TEST(TranslatingText, leavesAnEditAloneUnlessForced)
{
  this->bulkRead(R"({"word": "kept"})", {1});
  this->setChanged();
  EXPECT_FALSE(this->read({1}));
  EXPECT_EQ(this->text(), "kept");
  EXPECT_FALSE(this->read({1}, true));
  EXPECT_NE(this->text(), "kept");
}

TEST_F(CascadeRoleText, translatesTheRoleAndTakesAnyOtherWordForBackup)
{
  EXPECT_EQ(textOfWord("not_present"), "Not in a cascade");
  EXPECT_EQ(textOfWord("controller"), "Controller");
  EXPECT_EQ(textOfWord("slave"), "Slave");
  EXPECT_EQ(textOfWord("backup"), "Backup controller");
  EXPECT_EQ(textOfWord("garbage"), "Backup controller");
  EXPECT_EQ(textOfWord("Controller"), "Backup controller");
  EXPECT_EQ(textOfWord(""), "Backup controller");
}

TEST_F(CascadeRoleText, isBackupOfSwitchesOfDifferentRoles)
{
  store_.setRecords("swx", R"([{"index": 1, "word": "controller"}, {"index": 2, "word": "slave"},
                               {"index": 3, "word": "slave"}])");
  EXPECT_FALSE(read({1, 2}));
  EXPECT_EQ(text(), "Backup controller");
  EXPECT_FALSE(read({2, 3}));
  EXPECT_EQ(text(), "Slave");
}

TEST_F(CascadeModeText, translatesMasterAndTakesAnyOtherWordForSlave)
{
  EXPECT_EQ(textOfWord("master"), "Switch is a cascade master");
  EXPECT_EQ(textOfWord("slave"), "Switch is a cascade slave");
  EXPECT_EQ(textOfWord("garbage"), "Switch is a cascade slave");
  EXPECT_FALSE(read({1}));
}

TEST_F(CascadeModeText, isSlaveOfSwitchesOfDifferentModes)
{
  store_.setRecords("swx", R"([{"index": 1, "word": "master"}, {"index": 2, "word": "slave"}])");
  EXPECT_FALSE(read({1, 2}));
  EXPECT_EQ(text(), "Switch is a cascade slave");
}

TEST_F(ManagerServerText, translatesTheDesignationsOfTheStore)
{
  EXPECT_EQ(textOfWord("none"), "None");
  EXPECT_EQ(textOfWord("primary"), "Primary");
  EXPECT_EQ(textOfWord("auxiliary"), "Auxiliary");
}

TEST_F(ManagerServerText, showsTheKeyOfADesignationThatHasNoText)
{
  EXPECT_EQ(textOfWord("<b>third</b>"), "??manager.designation.<b>third</b>??");
  EXPECT_TRUE(visitor_.shows("??manager.designation.<b>third</b>??"));
}

TEST_F(CurrentManagerText, readsTheOneRecordWhateverTheIndexes)
{
  EXPECT_FALSE(read({}));
  EXPECT_EQ(text(), "Primary");
  EXPECT_FALSE(read({7, 8}));
  EXPECT_EQ(text(), "Primary");
  EXPECT_EQ(requestCount(), 2U);
}
