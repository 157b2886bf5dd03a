// SPDX-License-Identifier: MIT
// The client library against the simulated switch: what the interface does with the two of them.
#include "TestStore.h"
#include "ZelClient.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRsp.h"
#include "ZelRspUtil.h"

#include <gtest/gtest.h>
#include <string>

namespace
{

class ClientStore : public ::testing::Test
{
protected:
  ClientStore() : client(ZelClient_new()) {}
  ~ClientStore() override { ZelClient_close(client); }

  // Sends and frees a request.
  json_t *send(json_t *request)
  {
    json_t *response = ZelReqUtil_submit(request, client);
    ZelReqUtil_free(request);
    return response;
  }

  json_t *read(const char *resource, unsigned index, const char *parameter)
  {
    json_t *request = ZelReqUtil_newGetResource(resource);
    if (index != 0)
      ZelObj_setUInt32Object(request, "query", "index", index);
    ZelObj_setSelect(request, parameter);
    return send(request);
  }

  std::string text(const char *resource, unsigned index, const char *parameter)
  {
    json_t *response = read(resource, index, parameter);
    const char *value = ZelRspUtil_getStringParam(response, parameter);
    std::string result = value ? value : "(none)";
    ZelRspUtil_free(response);
    return result;
  }

  // The number of the first error of a response, 0 if there is none, -1 if there is no response; frees it.
  int errorOf(json_t *response)
  {
    if (!response)
      return -1;
    json_t *errors = ZelRspUtil_getObjectParam(response, "errors");
    int number = errors ? ZelRspUtil_getIndexedIntegerParam(errors, 0, "errno") : 0;
    ZelRspUtil_free(response);
    return number;
  }

  TestStore store;
  ZelClient_s *client;
};

TEST_F(ClientStore, readsOneParameterOfOneRecord)
{
  ASSERT_TRUE(ZelClient_isValid(client));
  json_t *response = read("rx", 1, "eid");
  EXPECT_EQ(nullptr, ZelRspUtil_getObjectParam(response, "errors"));
  ASSERT_NE(nullptr, ZelRspUtil_getStringParam(response, "eid"));
  EXPECT_EQ(13u, std::string(ZelRspUtil_getStringParam(response, "eid")).size());
  EXPECT_EQ(1, ZelRspUtil_numEntries(response));
  ZelRspUtil_free(response);
}

TEST_F(ClientStore, writesOneParameterAndReadsItBack)
{
  json_t *request = ZelReqUtil_newSetResource("rx");
  ZelReqUtil_setIntegerParam(request, "index", 2);
  ZelReqUtil_setStringParam(request, "notes", "Some \"notes\"\non two lines \\");
  EXPECT_EQ(0, errorOf(send(request)));
  EXPECT_EQ("Some \"notes\"\non two lines \\", text("rx", 2, "notes"));
}

TEST_F(ClientStore, readsTextOfAnyScript)
{
  ASSERT_TRUE(store.set("user", 1, "fullName", "Zoë 東京 \x01\t"));
  EXPECT_EQ("Zoë 東京 \x01\t", text("user", 1, "fullName"));
}

TEST_F(ClientStore, listsRecordsAsRowsInTheOrderOfTheirIndexes)
{
  json_t *response = ZelReq_rxRetrieve(client, "[\"index\",\"eid\",\"name\"]");
  int rows = ZelRspUtil_numEntries(response);
  ASSERT_GT(rows, 1);
  for (int i = 0; i < rows; ++i) {
    json_t *row = ZelObj_getRow(response, static_cast<unsigned>(i));
    EXPECT_EQ(static_cast<unsigned>(i + 1), ZelRsp_rxGetIndex(row));
    EXPECT_STREQ(ZelRspUtil_getIndexedStringParam(response, static_cast<unsigned>(i), "eid"),
                 ZelRsp_rxGetEid(row));
  }
  ZelRspUtil_free(response);
}

TEST_F(ClientStore, answersARowForEachIndexOfAQueryOfSeveral)
{
  json_t *request = ZelReqUtil_newGetResource("rx");
  for (unsigned index : {2u, 4u, 3u})
    ZelReqUtil_setIntegerQuery(request, "index", index);
  ZelReqUtil_setSelect(request, "index");
  json_t *response = send(request);
  EXPECT_EQ(3, ZelRspUtil_numEntries(response));
  ZelRspUtil_free(response);
}

TEST_F(ClientStore, handsOutTheAnswerItHoldsUntilTheDataChanges)
{
  json_t *first = ZelReq_rxRetrieve(client, nullptr);
  json_t *second = ZelReq_rxRetrieve(client, nullptr);
  EXPECT_EQ(first, second);
  std::string before = text("rx", 1, "name");
  ASSERT_TRUE(store.set("rx", 1, "name", before + "x"));
  json_t *third = ZelReq_rxRetrieve(client, nullptr);
  EXPECT_NE(second, third);
  EXPECT_EQ(before + "x", ZelRspUtil_getIndexedStringParam(third, 0, "name"));
  EXPECT_EQ(before, ZelRspUtil_getIndexedStringParam(first, 0, "name"));
  ZelRspUtil_free(first);
  ZelRspUtil_free(second);
  ZelRspUtil_free(third);
}

TEST_F(ClientStore, collapsesTheNestedPortsOfASwitch)
{
  json_t *response = ZelReq_portStatusRetrieveBySwxIndex(client, 1);
  EXPECT_EQ(1, ZelRspUtil_getIntegerParam(response, "swxIndex"));
  json_t *ports = ZelObj_collapse(response, "swxIndex", "ports");
  ASSERT_NE(nullptr, ports);
  EXPECT_GT(ZelRspUtil_numEntries(ports), 1);
  EXPECT_EQ(1, ZelRspUtil_getIndexedIntegerParam(ports, 1, "swxIndex"));
  EXPECT_NE(nullptr, ZelRspUtil_getIndexedStringParam(ports, 0, "portState"));
  ZelObj_free(ports);
  ZelRspUtil_free(response);
}

TEST_F(ClientStore, saysWhichErrorARequestMade)
{
  EXPECT_EQ(1005, errorOf(read("nothing", 0, "x")));
  EXPECT_EQ(1013, errorOf(read("rx", 1, "nothing")));
  EXPECT_EQ(1009, errorOf(read("rx", 4711, "name")));
  EXPECT_EQ(1006, errorOf(send(ZelReqUtil_newDeleteResource("systemGlobals"))));
  EXPECT_EQ(1007, errorOf(send(ZelReqUtil_newSetResource("rx"))));
}

TEST_F(ClientStore, findsTheStoreAgainAfterItsRestart)
{
  store.kill();
  EXPECT_FALSE(ZelClient_isValid(client));
  EXPECT_EQ(nullptr, read("rx", 1, "name"));
  store.restart();
  EXPECT_FALSE(ZelClient_isValid(client));
  ZelClient_close(client);
  client = ZelClient_new();
  EXPECT_TRUE(ZelClient_isValid(client));
  EXPECT_NE("(none)", text("rx", 1, "name"));
}

} // namespace
