// SPDX-License-Identifier: MIT
#include "ScriptedStore.h"

#include "Frame.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

struct JsonDeleter {
  void operator()(json_t *value) const { json_decref(value); }
};
using Json = std::unique_ptr<json_t, JsonDeleter>;

constexpr char kNoEntries[] = "{\"errors\":[{\"errno\":1009}]}";

std::string dump(const json_t *value)
{
  const std::unique_ptr<char, decltype(&std::free)> dumped(json_dumps(value, JSON_COMPACT | JSON_SORT_KEYS),
                                                           std::free);
  return dumped ? dumped.get() : "";
}

Json parse(const std::string &json)
{
  Json value(json_loads(json.c_str(), JSON_REJECT_DUPLICATES, nullptr));
  if (!value)
    throw std::invalid_argument("no JSON: " + json);
  return value;
}

std::string memberText(const json_t *object, const char *name)
{
  const char *found = json_string_value(json_object_get(object, name));
  return found ? found : "";
}

bool matches(const json_t *record, json_t *query)
{
  const char *key = nullptr;
  json_t *value = nullptr;
  json_object_foreach(query, key, value)
  {
    if (!json_equal(json_object_get(record, key), value))
      return false;
  }
  return true;
}

// The queries of one record each that a query asks for: each number of a list is one.
std::vector<Json> singleQueries(json_t *query)
{
  std::vector<Json> single;
  json_t *indexes = json_object_get(query, "index");
  std::size_t at = 0;
  json_t *index = nullptr;
  json_array_foreach(indexes, at, index)
  {
    single.emplace_back(json_copy(query));
    json_object_set(single.back().get(), "index", index);
  }
  if (!json_is_array(indexes))
    single.emplace_back(json_incref(query));
  return single;
}

std::string dataFrame(const std::string &json)
{
  return "{\"data\":" + json + "}";
}

// What a GET finds among the records of its resource.
std::string recordsFrame(const std::string &json, json_t *query)
{
  if (!query)
    return dataFrame(json);
  const Json records = parse(json);
  const Json found(json_array());
  for (const Json &single : singleQueries(query)) {
    std::size_t at = 0;
    json_t *record = nullptr;
    json_array_foreach(records.get(), at, record)
    {
      if (matches(record, single.get())) {
        json_array_append(found.get(), record);
        break;
      }
    }
  }
  if (json_array_size(found.get()) == 0)
    return kNoEntries;
  const bool isList = json_is_array(json_object_get(query, "index"));
  return dataFrame(dump(isList ? found.get() : json_array_get(found.get(), 0)));
}

bool readAll(int socket, char *buffer, std::size_t size)
{
  for (std::size_t done = 0; done < size;) {
    const ssize_t got = recv(socket, buffer + done, size - done, 0);
    if (got <= 0)
      return false;
    done += static_cast<std::size_t>(got);
  }
  return true;
}

} // namespace

ScriptedStore::ScriptedStore()
{
  char folder[] = "/tmp/scripted-store-XXXXXX";
  if (!mkdtemp(folder) || pipe(stop_) != 0)
    throw std::runtime_error("cannot make a folder and a pipe");
  folder_ = folder;
  path_ = folder_ + "/store.sock";
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, path_.c_str(), sizeof address.sun_path - 1);
  listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (listener_ < 0 || bind(listener_, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 ||
      listen(listener_, 8) != 0)
    throw std::runtime_error("cannot listen on " + path_);
  setenv("NEVO_STORE_SOCKET", path_.c_str(), 1);
  thread_ = std::thread(&ScriptedStore::serve, this);
}

ScriptedStore::~ScriptedStore()
{
  close(stop_[1]);
  thread_.join();
  close(stop_[0]);
  close(listener_);
  unlink(path_.c_str());
  rmdir(folder_.c_str());
}

void ScriptedStore::setRecords(const std::string &resource, const std::string &json)
{
  const std::string checked = dump(parse(json).get());
  const std::lock_guard<std::mutex> lock(mutex_);
  records_[resource] = checked;
}

void ScriptedStore::answer(const std::string &method, const std::string &resource, const std::string &json)
{
  const std::string checked = dump(parse(json).get());
  const std::lock_guard<std::mutex> lock(mutex_);
  scripts_[method + " " + resource] = {Kind::Value, checked};
}

void ScriptedStore::fail(const std::string &method, const std::string &resource, const std::string &errors)
{
  const std::string checked = dump(parse(errors).get());
  const std::lock_guard<std::mutex> lock(mutex_);
  scripts_[method + " " + resource] = {Kind::Errors, checked};
}

void ScriptedStore::hangUp(const std::string &method, const std::string &resource)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  scripts_[method + " " + resource] = {Kind::HangUp, ""};
}

void ScriptedStore::failRecord(const std::string &method, const std::string &resource, unsigned int index,
                               const std::string &errors)
{
  fail(method, resource + " " + std::to_string(index), errors);
}

void ScriptedStore::hangUpRecord(const std::string &method, const std::string &resource, unsigned int index)
{
  hangUp(method, resource + " " + std::to_string(index));
}

std::vector<std::string> ScriptedStore::requests()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  return requests_;
}

std::vector<std::string> ScriptedStore::requests(const std::string &method)
{
  std::vector<std::string> found;
  for (const std::string &request : requests()) {
    if (memberText(parse(request).get(), "method") == method)
      found.push_back(request);
  }
  return found;
}

void ScriptedStore::forgetRequests()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  requests_.clear();
}

void ScriptedStore::serve()
{
  std::vector<int> clients;
  for (;;) {
    std::vector<pollfd> waits = {{stop_[0], POLLIN, 0}, {listener_, POLLIN, 0}};
    for (const int client : clients)
      waits.push_back({client, POLLIN, 0});
    if (poll(waits.data(), waits.size(), -1) < 0)
      continue;
    if (waits[0].revents)
      break;
    for (std::size_t i = 2; i < waits.size(); ++i) {
      if (waits[i].revents)
        serveClient(waits[i].fd);
    }
    if (waits[1].revents)
      clients.push_back(accept(listener_, nullptr, nullptr));
    std::vector<int> open;
    for (const int client : clients) {
      char peeked = 0;
      // A client whose stream has ended is closed here, whichever side ended it.
      if (recv(client, &peeked, 1, MSG_PEEK | MSG_DONTWAIT) == 0)
        close(client);
      else
        open.push_back(client);
    }
    clients = open;
  }
  for (const int client : clients)
    close(client);
}

void ScriptedStore::serveClient(int client)
{
  unsigned char header[zelwire::kHeaderSize];
  if (!readAll(client, reinterpret_cast<char *>(header), sizeof header))
    return;
  std::string body(zelwire::getLength(header), '\0');
  if (!readAll(client, &body[0], body.size()))
    return;
  const Json request(zelwire::parseJson(body));
  const std::string frame = request ? answerTo(request.get()) : "";
  if (frame.empty()) {
    shutdown(client, SHUT_RDWR);
    return;
  }
  zelwire::putLength(header, frame.size());
  const std::string message = std::string(reinterpret_cast<char *>(header), sizeof header) + frame;
  for (std::size_t done = 0; done < message.size();) {
    const ssize_t sent = send(client, message.data() + done, message.size() - done, MSG_NOSIGNAL);
    if (sent <= 0)
      return;
    done += static_cast<std::size_t>(sent);
  }
}

const ScriptedStore::Script *ScriptedStore::scriptOf(json_t *request) const
{
  const std::string name = memberText(request, "method") + " " + memberText(request, "resource");
  for (const char *section : {"query", "params"}) {
    const json_t *index = json_object_get(json_object_get(request, section), "index");
    const auto record = scripts_.find(name + " " + std::to_string(json_integer_value(index)));
    if (record != scripts_.end())
      return &record->second;
  }
  const auto all = scripts_.find(name);
  return all == scripts_.end() ? nullptr : &all->second;
}

std::string ScriptedStore::answerTo(json_t *request)
{
  const std::string method = memberText(request, "method");
  const std::string resource = memberText(request, "resource");
  // The tag of an answer that the client still holds from another store is not the caller's.
  json_object_del(request, "have");
  const std::lock_guard<std::mutex> lock(mutex_);
  requests_.push_back(dump(request));
  if (const Script *script = scriptOf(request)) {
    if (script->kind == Kind::HangUp)
      return "";
    if (script->kind == Kind::Errors)
      return "{\"errors\":" + script->json + "}";
    return dataFrame(script->json);
  }
  if (method != "GET")
    return dataFrame("{}");
  const auto records = records_.find(resource);
  return records == records_.end() ? kNoEntries
                                   : recordsFrame(records->second, json_object_get(request, "query"));
}
