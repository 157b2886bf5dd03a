// SPDX-License-Identifier: MIT
// Requests as they are built, and responses as they are read, without a server.
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRsp.h"
#include "ZelRspUtil.h"

#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace
{

std::string textOf(const json_t *value)
{
  std::unique_ptr<char, decltype(&std::free)> text(json_dumps(value, JSON_COMPACT), &std::free);
  return text ? text.get() : "(null)";
}

// The text of a request that the test is done with.
std::string spent(json_t *request)
{
  std::string text = textOf(request);
  ZelReqUtil_free(request);
  return text;
}

json_t *parsed(const char *text)
{
  return json_loads(text, 0, nullptr);
}

TEST(Requests, haveMethodAndResource)
{
  EXPECT_EQ(R"({"method":"GET","resource":"rx"})", spent(ZelReqUtil_newGetResource("rx")));
  EXPECT_EQ(R"({"method":"SET","resource":"rx"})", spent(ZelReqUtil_newSetResource("rx")));
  EXPECT_EQ(R"({"method":"CREATE","resource":"rx"})", spent(ZelReqUtil_newCreateResource("rx")));
  EXPECT_EQ(R"({"method":"DELETE","resource":"rx"})", spent(ZelReqUtil_newDeleteResource("rx")));
  EXPECT_EQ(nullptr, ZelReqUtil_newGetResource(nullptr));
}

TEST(Requests, areMadeOfEmptyObjectsAsWell)
{
  json_t *request = ZelObj_new();
  json_t *params = ZelObj_new();
  EXPECT_EQ(0, ZelReqUtil_setMethod(request, "SET"));
  EXPECT_EQ(0, ZelReqUtil_setResource(request, "rx"));
  EXPECT_EQ(0, ZelObj_setInt32(params, "index", 3));
  EXPECT_EQ(0, ZelObj_setObject(request, "params", params));
  EXPECT_EQ(0, ZelObj_setString(params, "name", "Desk"));
  EXPECT_EQ(R"({"method":"SET","resource":"rx","params":{"index":3,"name":"Desk"}})", spent(request));
}

TEST(Requests, replaceAParamThatIsSetAgain)
{
  json_t *request = ZelReqUtil_newSetResource("rx");
  ZelReqUtil_setIntegerParam(request, "index", 1);
  ZelReqUtil_setBooleanParam(request, "flag", 7);
  ZelReqUtil_setIntegerParam(request, "index", 4000000000u);
  EXPECT_EQ(R"({"method":"SET","resource":"rx","params":{"index":4000000000,"flag":true}})", spent(request));
}

TEST(Requests, askForSeveralRecordsWhenTheQueryIsSetAgain)
{
  json_t *request = ZelReqUtil_newGetResource("tx");
  ZelReqUtil_setIntegerQuery(request, "index", 5);
  EXPECT_EQ(R"({"method":"GET","resource":"tx","query":{"index":5}})", textOf(request));
  ZelReqUtil_setIntegerQuery(request, "index", 6);
  ZelReqUtil_setIntegerQuery(request, "index", 7);
  EXPECT_EQ(R"({"method":"GET","resource":"tx","query":{"index":[5,6,7]}})", spent(request));
}

TEST(Requests, keepAParameterThatIsSelectedTwice)
{
  json_t *request = ZelReqUtil_newGetResource("userSession");
  ZelReqUtil_setSelect(request, "index");
  ZelObj_setSelect(request, "index");
  EXPECT_EQ(R"({"method":"GET","resource":"userSession","select":["index","index"]})", spent(request));
}

TEST(Requests, refuseTextsThatAreNotUtf8)
{
  json_t *request = ZelReqUtil_newSetResource("rx");
  EXPECT_NE(0, ZelReqUtil_setStringParam(request, "name", "\xff\xfe"));
  EXPECT_NE(0, ZelReqUtil_setStringParam(request, "name", nullptr));
  EXPECT_EQ(R"({"method":"SET","resource":"rx","params":{}})", spent(request));
}

TEST(Requests, carryWordsForEnumerations)
{
  json_t *request = ZelReq_connectionNewCreateReq();
  ZelReq_connectionSetRxIndex(request, 1);
  ZelReq_connectionSetTxIndex(request, 2);
  ZelReq_connectionSetMode(request, Info_ConnectionMode_Private);
  EXPECT_EQ(R"({"method":"CREATE","resource":"connection",)"
            R"("params":{"rxIndex":1,"txIndex":2,"mode":"private_mode"}})",
            spent(request));
  request = ZelReq_userNewCreateReq();
  ZelReq_userSetName(request, "a");
  ZelReq_userSetFullName(request, "");
  ZelReq_userSetRole(request, Info_UserRole_User);
  ZelReq_userSetPassword(request, "p");
  EXPECT_EQ(R"({"method":"CREATE","resource":"user",)"
            R"("params":{"name":"a","fullName":"","role":"user","password":"p"}})",
            spent(request));
}

TEST(Requests, nameTheRecordThatTheyDeleteOrUpdate)
{
  EXPECT_EQ(R"({"method":"DELETE","resource":"connection","params":{"index":9}})",
            spent(ZelReq_connectionNewDeleteReq(9)));
  EXPECT_EQ(R"({"method":"DELETE","resource":"adminSession","params":{"index":9}})",
            spent(ZelReq_adminSessionNewDeleteReq(9)));
  EXPECT_EQ(R"({"method":"SET","resource":"userTargetList","params":{"index":2}})",
            spent(ZelReq_userTargetListNewUpdateReq(2)));
  EXPECT_EQ(R"({"method":"SET","resource":"systemGlobals"})", spent(ZelReq_systemGlobalsNewUpdateReq()));
}

TEST(Objects, takeOverWhatTheyAreGiven)
{
  json_t *array = ZelObj_newArray();
  json_t *entry = ZelObj_new();
  ZelObj_setInteger(entry, "txIndex", 4);
  EXPECT_EQ(0, ZelObj_arrayAppendObject(array, entry));
  json_t *request = ZelReq_userTargetListNewUpdateReq(1);
  EXPECT_EQ(0, ZelReqUtil_setObjectParam(request, "target", array));
  EXPECT_EQ(R"({"method":"SET","resource":"userTargetList","params":{"index":1,"target":[{"txIndex":4}]}})",
            spent(request));
}

TEST(Objects, leaveAnObjectWithItsOwnerWhenAnAppendFails)
{
  json_t *entry = ZelObj_new();
  EXPECT_NE(0, ZelObj_arrayAppendObject(nullptr, entry));
  ZelObj_free(entry);
}

TEST(Objects, freeAValueWhoseParentIsNull)
{
  EXPECT_NE(0, ZelObj_setObject(nullptr, "x", ZelObj_new()));
  EXPECT_NE(0, ZelReqUtil_setObjectParam(nullptr, "x", ZelObj_new()));
  EXPECT_NE(0, ZelObj_setUInt32Object(nullptr, "x", "y", 1));
}

TEST(Objects, giveBytesBackAsTheyTookThem)
{
  json_t *object = ZelObj_new();
  unsigned char bytes[256];
  for (unsigned i = 0; i < sizeof bytes; ++i)
    bytes[i] = static_cast<unsigned char>(255 - i);
  EXPECT_EQ(0, ZelObj_setBinary(object, "data", bytes, sizeof bytes));
  unsigned char copy[300];
  std::memset(copy, 7, sizeof copy);
  EXPECT_EQ(256, ZelRspUtil_getBinaryParam(object, "data", copy, sizeof copy));
  EXPECT_EQ(0, std::memcmp(bytes, copy, sizeof bytes));
  EXPECT_EQ(0, copy[299]);
  unsigned char two[2];
  EXPECT_EQ(2, ZelRspUtil_getBinaryParam(object, "data", two, sizeof two));
  EXPECT_EQ(255, two[0]);
  EXPECT_EQ(0, ZelRspUtil_getBinaryParam(object, "none", two, sizeof two));
  EXPECT_EQ(0, two[0]);
  ZelObj_free(object);
}

TEST(Responses, ofOneRecordAreAListOfOneRow)
{
  json_t *response = parsed(R"({"name":"a","count":4294967295,"on":true,"off":false})");
  EXPECT_EQ(1, ZelRspUtil_numEntries(response));
  EXPECT_STREQ("a", ZelRspUtil_getIndexedStringParam(response, 0, "name"));
  EXPECT_EQ(nullptr, ZelRspUtil_getIndexedStringParam(response, 1, "name"));
  EXPECT_EQ(4294967295u, static_cast<unsigned>(ZelRspUtil_getIntegerParam(response, "count")));
  EXPECT_EQ(1, ZelRspUtil_getBooleanParam(response, "on"));
  EXPECT_EQ(0, ZelRspUtil_getBooleanParam(response, "off"));
  ZelRspUtil_free(response);
}

TEST(Responses, thatAreListsAnswerTheirFirstRowWhereNoRowIsNamed)
{
  json_t *response = parsed(R"([{"name":"a"},{"name":"b"}])");
  EXPECT_EQ(2, ZelRspUtil_numEntries(response));
  EXPECT_STREQ("a", ZelRspUtil_getStringParam(response, "name"));
  EXPECT_STREQ("b", ZelRspUtil_getStringParam(ZelObj_getRow(response, 1), "name"));
  EXPECT_EQ(nullptr, ZelObj_getRow(response, 2));
  ZelRspUtil_free(response);
}

TEST(Responses, thatFailedHaveErrorsAndNoRows)
{
  json_t *response = parsed(R"({"errors":[{"errno":9,"detail":"x"},{"errno":10}]})");
  EXPECT_EQ(0, ZelRspUtil_numEntries(response));
  json_t *errors = ZelRspUtil_getObjectParam(response, "errors");
  EXPECT_EQ(2, ZelRspUtil_numEntries(errors));
  EXPECT_EQ(10, ZelRspUtil_getIndexedIntegerParam(errors, 1, "errno"));
  EXPECT_EQ(nullptr, ZelRspUtil_getIndexedStringParam(errors, 1, "detail"));
  ZelRspUtil_free(response);
}

TEST(Responses, ofAnotherTypeThanAskedForReadAsNothing)
{
  json_t *response = parsed(R"({"text":"12","number":5,"list":[1,2]})");
  EXPECT_EQ(0, ZelRspUtil_getIntegerParam(response, "text"));
  EXPECT_EQ(nullptr, ZelRspUtil_getStringParam(response, "number"));
  EXPECT_EQ(nullptr, ZelRspUtil_getStringParam(response, nullptr));
  EXPECT_EQ(nullptr, ZelRspUtil_getStringParam(nullptr, "text"));
  EXPECT_EQ(0, ZelRspUtil_numEntries(nullptr));
  EXPECT_EQ(nullptr, ZelRspUtil_getIndexedStringParam(ZelRspUtil_getObjectParam(response, "list"), 0, "x"));
  ZelRspUtil_free(response);
}

TEST(Collapse, makesTheEntriesOfANestedListTheRows)
{
  json_t *response = parsed(R"({"swxIndex":4,"ports":[{"portIndex":1},{"portIndex":2,"swxIndex":9}]})");
  std::string before = textOf(response);
  json_t *rows = ZelObj_collapse(response, "swxIndex", "ports");
  EXPECT_EQ(R"([{"portIndex":1,"swxIndex":4},{"portIndex":2,"swxIndex":9}])", textOf(rows));
  EXPECT_EQ(before, textOf(response));
  ZelRspUtil_free(response);
  EXPECT_EQ(2, ZelRspUtil_getIndexedIntegerParam(rows, 1, "portIndex"));
  ZelObj_free(rows);
}

TEST(Collapse, goesDownLevelByLevelWithTheIndexBesideEachRow)
{
  json_t *response = parsed(R"([{"index":1,"network":{"ipv4":{"ipAddress":"10.0.0.1"}}},)"
                            R"({"index":2,"network":{"ipv4":{"ipAddress":"10.0.0.2"}}}])");
  json_t *networks = ZelObj_collapse(response, "index", "network");
  json_t *addresses = ZelObj_collapse(networks, "index", "ipv4");
  EXPECT_EQ(R"([{"ipAddress":"10.0.0.1","index":1},{"ipAddress":"10.0.0.2","index":2}])", textOf(addresses));
  ZelObj_free(addresses);
  ZelObj_free(networks);
  ZelRspUtil_free(response);
}

TEST(Collapse, ofAFailureOrAnEmptyListHasNoRows)
{
  json_t *failure = parsed(R"({"errors":[{"errno":1009}]})");
  json_t *none = ZelObj_collapse(failure, "index", "target");
  EXPECT_EQ("[]", textOf(none));
  ZelObj_free(none);
  ZelRspUtil_free(failure);
  json_t *empty = parsed(R"({"index":1,"target":[]})");
  none = ZelObj_collapse(empty, "index", "target");
  EXPECT_EQ(0, ZelRspUtil_numEntries(none));
  ZelObj_free(none);
  ZelRspUtil_free(empty);
}

TEST(Collapse, ofWhatIsNotThereIsNull)
{
  json_t *response = parsed(R"({"index":1,"name":"a"})");
  EXPECT_EQ(nullptr, ZelObj_collapse(response, "index", "target"));
  EXPECT_EQ(nullptr, ZelObj_collapse(response, "index", "name"));
  EXPECT_EQ(nullptr, ZelObj_collapse(nullptr, "index", "target"));
  ZelRspUtil_free(response);
}

TEST(TypedGetters, turnWordsIntoEnumerations)
{
  json_t *row = parsed(R"({"index":3,"mode":"slave","status":"ready","usage":"usable","role":"admin",)"
                       R"("modeAllowed":"share_or_private_mode","allTargetAccess":"enabled"})");
  EXPECT_EQ(3u, ZelRsp_swxGetIndex(row));
  EXPECT_EQ(Info_SwxMode_Slave, ZelRsp_swxGetMode(row));
  EXPECT_EQ(Info_SwxStatus_Ready, ZelRsp_swxGetStatus(row));
  EXPECT_EQ(Info_SwxUsage_Usable, ZelRsp_swxGetUsage(row));
  EXPECT_EQ(Info_UserRole_Admin, ZelRsp_userGetRole(row));
  EXPECT_EQ(Info_AccessMode_ShareOrPrivate, ZelRsp_userGetModeAllowed(row));
  EXPECT_EQ(1, ZelRsp_userGetAllTargetAccess(row));
  EXPECT_EQ(0, static_cast<int>(ZelRsp_connectionGetMode(row)));
  EXPECT_EQ(nullptr, ZelRsp_userGetMgrName(row));
  ZelRspUtil_free(row);
}

} // namespace
