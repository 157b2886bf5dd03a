// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_ZEL_STORE_TEST_H_
#define TESTS_UNIT_ZEL_STORE_TEST_H_

#include "TestStore.h"
#include "ZelClient.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <vector>

// A test of the switch's rules: a store of its own, one client, and short words for what a client does.
// Operations that can be refused answer the store's error number, 0 for success and -1 for no response.
class StoreTest : public ::testing::Test
{
protected:
  struct Param {
    Param(const char *parameter, const char *value) : name(parameter), text(value), isText(true) {}
    Param(const char *parameter, const std::string &value) : name(parameter), text(value), isText(true) {}
    Param(const char *parameter, unsigned value) : name(parameter), number(value) {}
    const char *name;
    std::string text;
    unsigned number = 0;
    bool isText = false;
  };
  using Params = std::vector<Param>;

  explicit StoreTest(TestStore::Options options = {});
  ~StoreTest() override;

  std::string text(const char *resource, unsigned index, const char *parameter);
  unsigned number(const char *resource, unsigned index, const char *parameter);
  bool exists(const char *resource, unsigned index);
  unsigned rows(const char *resource);

  // Index 0 sends none.
  int set(const char *resource, unsigned index, const Params &params);
  // The same with one parameter whose value is JSON.
  int setJson(const char *resource, unsigned index, const char *parameter, const std::string &json);
  int create(const char *resource, const Params &params, unsigned *index = nullptr);
  int remove(const char *resource, unsigned index);

  int logInAdministrator(const char *name, const char *password, unsigned *session = nullptr);
  int logIn(unsigned user, unsigned rx, unsigned *session = nullptr);
  int connect(unsigned rx, unsigned tx, const char *mode, unsigned *connection = nullptr);

  // Simulated seconds go by.
  void pass(unsigned seconds);
  unsigned counter(unsigned changeId);
  // Whether some alert of the list holds the text.
  bool hasAlert(const char *list, const std::string &part);

  // Sends and frees a request.
  json_t *send(json_t *request);
  // The error number of a response, which it frees.
  static int errorOf(json_t *response);
  // A new connection, for a store that was started again.
  void reconnect();

  TestStore store;
  ZelClient_s *client;
};

#endif // TESTS_UNIT_ZEL_STORE_TEST_H_
