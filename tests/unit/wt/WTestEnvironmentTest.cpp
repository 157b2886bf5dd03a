// SPDX-License-Identifier: MIT
#include <Wt/Test/WTestEnvironment>
#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WDialog>
#include <Wt/WException>
#include <Wt/WText>
#include <Wt/WTimer>
#include <gtest/gtest.h>

using namespace Wt;

TEST(WTestEnvironment, letsATestMakeAnApplicationOnItsStack)
{
  Wt::Test::WTestEnvironment environment;
  {
    WApplication app(environment);
    EXPECT_EQ(&app, WApplication::instance());
    WText *text = new WText("x", app.root());
    EXPECT_TRUE(text->isVisible());
    WTimer timer;
    timer.start();
    EXPECT_TRUE(timer.isActive());
    EXPECT_THROW(app.processEvents(), WException);
  }
  EXPECT_EQ(nullptr, WApplication::instance());
}

TEST(WTestEnvironment, tellsOfDialogsThatAreExecuted)
{
  Wt::Test::WTestEnvironment environment;
  WApplication app(environment);
  environment.dialogExecuted().connect(
      std::bind([](WDialog *dialog) { dialog->accept(); }, std::placeholders::_1));
  WDialog dialog("Sure?");
  EXPECT_EQ(WDialog::Accepted, dialog.exec());
}

TEST(WTestEnvironment, failsATestThatLeavesADialogOpen)
{
  Wt::Test::WTestEnvironment environment;
  WApplication app(environment);
  WDialog dialog;
  EXPECT_THROW(dialog.exec(), WException);
}
