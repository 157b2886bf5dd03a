// SPDX-License-Identifier: MIT
#ifndef TESTS_SCRIPTED_STORE_H_
#define TESTS_SCRIPTED_STORE_H_

#include <jansson.h>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

// A store server that holds what the test gives it, answers as the test says and remembers each request.
// It listens on a socket of its own, which it names in NEVO_STORE_SOCKET: a client that is opened while
// it lives comes here.
//
// Without further instruction a GET answers with the records that were set: one record where its "query"
// names one, rows where it names several, else all rows; "no entries" (1009) where the query finds none.
// Every other method answers with success and changes nothing.
class ScriptedStore
{
public:
  ScriptedStore();
  ~ScriptedStore();
  ScriptedStore(const ScriptedStore &) = delete;
  ScriptedStore &operator=(const ScriptedStore &) = delete;

  // What a resource holds: a JSON object for a resource of one record, a list of objects for records.
  void setRecords(const std::string &resource, const std::string &json);

  // From now on, requests of that method and resource are answered with this value.
  void answer(const std::string &method, const std::string &resource, const std::string &json);
  // ... with this list of errors, as in [{"errno": 9, "detail": "foo"}].
  void fail(const std::string &method, const std::string &resource, const std::string &errors);
  // ... not at all: the connection is closed instead.
  void hangUp(const std::string &method, const std::string &resource);
  // The same for the requests that name one record, in "query" or "params".
  void failRecord(const std::string &method, const std::string &resource, unsigned int index,
                  const std::string &errors);
  void hangUpRecord(const std::string &method, const std::string &resource, unsigned int index);

  // The requests so far, oldest first, as compact JSON with sorted keys.
  std::vector<std::string> requests();
  // The requests of one method.
  std::vector<std::string> requests(const std::string &method);
  void forgetRequests();

private:
  enum class Kind { Value, Errors, HangUp };
  struct Script {
    Kind kind;
    std::string json;
  };

  void serve();
  void serveClient(int client);
  const Script *scriptOf(json_t *request) const;
  // The frame that answers a request; empty to hang up.
  std::string answerTo(json_t *request);

  std::string folder_;
  std::string path_;
  int listener_ = -1;
  int stop_[2] = {-1, -1}; // a pipe whose end wakes the server's thread to its end
  std::thread thread_;

  std::mutex mutex_; // of what follows
  std::map<std::string, std::string> records_;
  std::map<std::string, Script> scripts_; // by method, resource and perhaps index, with blanks between
  std::vector<std::string> requests_;
};

#endif // TESTS_SCRIPTED_STORE_H_
