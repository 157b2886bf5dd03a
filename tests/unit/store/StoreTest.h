// SPDX-License-Identifier: MIT
#ifndef TESTS_STORE_TEST_H_
#define TESTS_STORE_TEST_H_

#include "Db.h"
#include "LogCapture.h"
#include "ScriptedStore.h"
#include "TestSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// How the toolkit shows a key without a text, which all are where no bundle is loaded.
inline std::string untranslated(const std::string &key)
{
  return "??" + key + "??";
}

// The interface text with that English, as it is shown here.
inline std::string shown(const std::string &english)
{
  return untranslated("[RSnnn]" + english);
}

// A session that is connected to a store of the test's own.
class StoreTest : public testing::Test
{
protected:
  ScriptedStore store;
  TestSession session;
  Db::Errors errors;
};

#endif // TESTS_STORE_TEST_H_
