// SPDX-License-Identifier: MIT
#include "testing/HeadlessBrowser.h"

#include "dom/JsonText.h"

#include <chrono>
#include <jansson.h>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

namespace Wt
{
namespace Testing
{

namespace
{

std::string number(std::uint64_t value)
{
  return std::to_string(value);
}

std::string quoted(const std::string &text)
{
  std::string json;
  Dom::appendJsonString(json, text);
  return json;
}

std::string stringOf(json_t *value)
{
  return json_is_string(value) ? std::string(json_string_value(value), json_string_length(value))
                               : std::string();
}

} // namespace

/// The server's end of the connection: keeps what it is sent until the page takes it.
class HeadlessBrowser::Wire : public Engine::Transport
{
public:
  void send(std::string message) override
  {
    const std::lock_guard<std::mutex> held(mutex_);
    if (!closed_)
      messages_.push_back(std::move(message));
  }

  void close(const std::string &) override
  {
    const std::lock_guard<std::mutex> held(mutex_);
    closed_ = true;
  }

  bool take(std::string &message)
  {
    const std::lock_guard<std::mutex> held(mutex_);
    if (messages_.empty())
      return false;
    message = std::move(messages_.front());
    messages_.pop_front();
    return true;
  }

  bool closed() const
  {
    const std::lock_guard<std::mutex> held(mutex_);
    return closed_;
  }

private:
  mutable std::mutex mutex_;
  std::deque<std::string> messages_;
  bool closed_ = false;
};

HeadlessBrowser::HeadlessBrowser(std::shared_ptr<Engine::SessionHost> host, ManualScheduler *scheduler)
    : host_(std::move(host)), scheduler_(scheduler)
{
  head.method = "GET";
  head.scheme = "https";
  head.path = "/";
  head.entryPoint = "/";
  head.query = "request=ws";
  head.host = "localhost";
  head.clientAddress = "127.0.0.1";
}

HeadlessBrowser::~HeadlessBrowser()
{
  close();
}

// --- The connection
// ------------------------------------------------------------------------------------------------

void HeadlessBrowser::connect()
{
  wire_ = std::make_shared<Wire>();
  listener_ = host_->connected(head, wire_);
}

void HeadlessBrowser::open()
{
  connect();
  send("{\"hello\":{\"query\":" + quoted(query) +
       ",\"tz\":0,\"w\":1280,\"h\":800,\"lang\":" + quoted(language) + "}}");
  run();
}

void HeadlessBrowser::close()
{
  settle();
  if (!listener_)
    return;
  const auto listener = std::move(listener_);
  listener_ = nullptr;
  listener->closed(true);
  run();
}

void HeadlessBrowser::disconnect()
{
  if (!listener_)
    return;
  const auto listener = std::move(listener_);
  listener_ = nullptr;
  wire_.reset();
  listener->closed(false);
  run();
}

void HeadlessBrowser::reconnect()
{
  connect();
  resuming_ = true;
  send("{\"resume\":" + quoted(token_) + ",\"a\":" + number(seen_) + "}");
  run();
}

void HeadlessBrowser::run()
{
  do {
    if (scheduler_)
      scheduler_->run();
  } while (settle());
}

void HeadlessBrowser::advance(std::chrono::milliseconds time)
{
  scheduler_->advance(time);
  run();
}

bool HeadlessBrowser::settle()
{
  bool any = false;
  for (std::string message; wire_ && wire_->take(message);) {
    any = true;
    if (!deaf_)
      receive(message);
  }
  if (wire_ && wire_->closed() && listener_) {
    const auto listener = std::move(listener_);
    listener_ = nullptr;
    wire_.reset();
    listener->closed(false);
    return true;
  }
  return any;
}

bool HeadlessBrowser::waitFor(const std::function<bool()> &condition)
{
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (std::chrono::steady_clock::now() < end) {
    run();
    if (condition())
      return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return false;
}

void HeadlessBrowser::send(const std::string &message)
{
  if (listener_)
    listener_->received(message);
}

void HeadlessBrowser::sendRaw(const std::string &text)
{
  send(text);
  run();
}

void HeadlessBrowser::sendRawFirst(const std::string &text)
{
  connect();
  sendRaw(text);
}

void HeadlessBrowser::flood(const std::string &text, int times)
{
  for (int i = 0; i < times; ++i)
    send(text);
  run();
}

void HeadlessBrowser::sendNumbered(const std::string &members)
{
  unconfirmed_.push_back(Unconfirmed{++sent_, members});
  if (!resuming_)
    send("{\"n\":" + number(sent_) + ",\"a\":" + number(seen_) + members + "}");
  run();
}

// --- What the server says
// ------------------------------------------------------------------------------------------

void HeadlessBrowser::receive(const std::string &text)
{
  bytes_ += text.size();
  ++messages_;
  lastMessage_ = text;
  json_t *message = json_loadb(text.data(), text.size(), 0, nullptr);
  if (!message)
    throw std::runtime_error("the server sent what is no JSON: " + text);
  if (json_t *token = json_object_get(message, "token")) {
    token_ = stringOf(token);
  } else if (json_object_get(message, "reload")) {
    reloaded_ = true;
  } else if (json_t *busy = json_object_get(message, "busy")) {
    busyText_ = stringOf(busy);
  } else if (json_t *quit = json_object_get(message, "quit")) {
    quit_ = true;
    quitText_ = stringOf(json_object_get(quit, "text"));
    location_ = stringOf(json_object_get(quit, "url"));
  } else {
    receiveUpdate(message);
  }
  json_decref(message);
}

void HeadlessBrowser::receiveUpdate(json_t *message)
{
  json_t *resumed = json_object_get(message, "resumed");
  json_t *confirmed = resumed ? resumed : json_object_get(message, "a");
  while (!unconfirmed_.empty() &&
         unconfirmed_.front().number <= static_cast<std::uint64_t>(json_integer_value(confirmed)))
    unconfirmed_.pop_front();
  if (resumed) {
    resuming_ = false;
    for (const Unconfirmed &lost : unconfirmed_)
      send("{\"n\":" + number(lost.number) + ",\"a\":" + number(seen_) + lost.members + "}");
  }
  json_t *update = json_object_get(message, "n");
  if (!update)
    return;
  const auto count = static_cast<std::uint64_t>(json_integer_value(update));
  if (count != seen_ + 1)
    throw std::runtime_error("update " + number(count) + " came after " + number(seen_));
  seen_ = count;
  json_t *operations = json_object_get(message, "o");
  operations_ += json_array_size(operations);
  page_.apply(operations);
}

// --- Finding
// -------------------------------------------------------------------------------------------------------

Node *HeadlessBrowser::byText(const std::string &text) const
{
  return page_.findIf([&](const Node &n) { return n.text == text && n.visible(); });
}

Node *HeadlessBrowser::byClass(const std::string &name, int index) const
{
  const auto found = page_.findAll([&](const Node &n) { return n.hasClass(name) && n.visible(); });
  return index < static_cast<int>(found.size()) ? found[static_cast<std::size_t>(index)] : nullptr;
}

Node *HeadlessBrowser::byTag(const std::string &tag, int index) const
{
  const auto found = page_.findAll([&](const Node &n) { return n.tag == tag && n.visible(); });
  return index < static_cast<int>(found.size()) ? found[static_cast<std::size_t>(index)] : nullptr;
}

Node *HeadlessBrowser::byId(const std::string &id) const
{
  return byAttribute("id", id);
}

Node *HeadlessBrowser::byAttribute(const std::string &name, const std::string &value) const
{
  return page_.findIf([&](const Node &n) { return n.has(name) && n.get(name) == value && n.visible(); });
}

// --- Acting
// --------------------------------------------------------------------------------------------------------

bool HeadlessBrowser::actionable(const Node *node) const
{
  return node && node->visible() && !node->has("disabled");
}

/// Appends the events of the element and of those above it that listen.
void HeadlessBrowser::gather(Node *node, const std::string &name, const std::string &data,
                             std::string &events) const
{
  for (const Node *n = node; n; n = n->parent) {
    if (!n->has('@' + name))
      continue;
    events += events.empty() ? "[" : ",[";
    events += number(n->id) + ',' + quoted(name) + ',' + data + ']';
    if (n->get('@' + name).find('s') != std::string::npos)
      return;
  }
}

std::string HeadlessBrowser::focusMember(Node *node)
{
  if (page_.focus == node->id)
    return std::string();
  page_.focus = node->id;
  return ",\"f\":" + number(node->id);
}

bool HeadlessBrowser::fire(Node *node, const std::string &name, const std::string &data)
{
  if (!actionable(node))
    return false;
  std::string events;
  gather(node, name, data, events);
  if (events.empty())
    return false;
  sendNumbered(",\"e\":[" + events + "]");
  return true;
}

bool HeadlessBrowser::click(Node *node, int modifiers, int button)
{
  if (!actionable(node))
    return false;
  const std::string data = "{\"b\":" + number(static_cast<unsigned>(button)) +
                           ",\"m\":" + number(static_cast<unsigned>(modifiers)) + "}";
  std::string events;
  for (const char *name : {"mousedown", "mouseup", "click"})
    gather(node, name, data, events);
  if (events.empty())
    return false;
  sendNumbered((node->tag == "button" || node->tag == "input" ? focusMember(node) : std::string()) +
               ",\"e\":[" + events + "]");
  return true;
}

bool HeadlessBrowser::clickWithoutAnswer(Node *node)
{
  deaf_ = true;
  const bool done = click(node);
  disconnect();
  deaf_ = false;
  return done;
}

bool HeadlessBrowser::doubleClick(Node *node)
{
  return fire(node, "dblclick", "{\"b\":1}");
}

bool HeadlessBrowser::mouseDown(Node *node, int modifiers)
{
  return fire(node, "mousedown", "{\"b\":1,\"m\":" + number(static_cast<unsigned>(modifiers)) + "}");
}

bool HeadlessBrowser::type(Node *node, const std::string &text)
{
  if (!actionable(node) || node->has("readonly"))
    return false;
  node->settings[".value"] = text;
  std::string events;
  gather(node, "keyup", "{\"k\":65}", events);
  gather(node, "change", "{}", events);
  sendNumbered(focusMember(node) + ",\"v\":{\"" + number(node->id) + "\":" + quoted(text) + "}" +
               (events.empty() ? "" : ",\"e\":[" + events + "]"));
  return true;
}

bool HeadlessBrowser::typeWithoutLeaving(Node *node, const std::string &text)
{
  if (!actionable(node) || node->has("readonly"))
    return false;
  node->settings[".value"] = text;
  std::string events;
  for (const char *name : {"keydown", "keypress", "keyup", "input"})
    gather(node, name, "{\"k\":65}", events);
  sendNumbered(focusMember(node) + ",\"v\":{\"" + number(node->id) + "\":" + quoted(text) + "}" +
               (events.empty() ? "" : ",\"e\":[" + events + "]"));
  return true;
}

bool HeadlessBrowser::key(Node *node, int keyCode, int modifiers)
{
  if (!actionable(node))
    return false;
  const std::string data = "{\"k\":" + number(static_cast<unsigned>(keyCode)) +
                           ",\"m\":" + number(static_cast<unsigned>(modifiers)) + "}";
  std::string events;
  gather(node, "keydown", data, events);
  if (keyCode == 13)
    gather(node, "enter", "{}", events);
  if (keyCode == 27)
    gather(node, "escape", "{}", events);
  if (keyCode == 13 && node->tag == "button")
    gather(node, "click", "{\"b\":1}", events);
  gather(node, "keyup", data, events);
  if (events.empty())
    return false;
  sendNumbered(focusMember(node) + ",\"e\":[" + events + "]");
  return true;
}

bool HeadlessBrowser::choose(Node *node, int index)
{
  if (!actionable(node) || node->tag != "select")
    return false;
  const std::string value = std::to_string(index);
  node->settings[".value"] = value;
  std::string events;
  gather(node, "change", "{}", events);
  sendNumbered(focusMember(node) + ",\"v\":{\"" + number(node->id) + "\":\"" + value + "\"}" +
               (events.empty() ? "" : ",\"e\":[" + events + "]"));
  return true;
}

bool HeadlessBrowser::choose(Node *node, const std::string &itemText)
{
  for (std::size_t i = 0; node && i < node->children.size(); ++i)
    if (node->children[i]->text == itemText)
      return choose(node, static_cast<int>(i));
  return false;
}

bool HeadlessBrowser::check(Node *node, bool checked)
{
  if (!actionable(node))
    return false;
  const std::string value = checked ? "1" : "0";
  node->settings[".checked"] = value;
  std::string events;
  gather(node, "change", "{}", events);
  gather(node, "click", "{\"b\":1}", events);
  sendNumbered(focusMember(node) + ",\"v\":{\"" + number(node->id) + "\":\"" + value + "\"}" +
               (events.empty() ? "" : ",\"e\":[" + events + "]"));
  return true;
}

bool HeadlessBrowser::focusOn(Node *node)
{
  if (!actionable(node))
    return false;
  std::string events;
  if (Node *former = page_.find(page_.focus))
    gather(former, "blur", "{}", events);
  gather(node, "focus", "{}", events);
  sendNumbered(focusMember(node) + (events.empty() ? "" : ",\"e\":[" + events + "]"));
  return true;
}

bool HeadlessBrowser::event(Node *node, const std::string &name, const std::string &data)
{
  if (!actionable(node))
    return false;
  const std::string told = toldByRow(*node, name, data);
  if (told.empty())
    return false;
  sendNumbered(",\"e\":[[" + number(node->id) + ',' + quoted(name) + ',' + told + "]]");
  return true;
}

/// The data of an event on a cell of a list, `{"a":[row,column]}`, as the runtime tells them: with the number
/// of the row's element in place of the row's. Empty if there is no such row on the page. Other data stay as
/// they are.
std::string HeadlessBrowser::toldByRow(const Node &list, const std::string &name,
                                       const std::string &data) const
{
  static const std::set<std::string> kOnCells = {"table:down", "table:up", "table:click", "table:dblclick",
                                                 "table:check"};
  if (!kOnCells.count(name))
    return data;
  json_t *parsed = json_loads(data.c_str(), 0, nullptr);
  json_t *arguments = json_object_get(parsed, "a");
  const bool numbered = json_is_integer(json_array_get(arguments, 0));
  const json_int_t row = json_integer_value(json_array_get(arguments, 0));
  const Node *shown = nullptr;
  for (const Node *candidate : page_.findAll([](const Node &n) { return n.tag == "~r"; })) {
    const Node *above = candidate;
    while (above && above != &list)
      above = above->parent;
    if (above && candidate->get(".row") == std::to_string(row))
      shown = candidate;
  }
  std::string told = numbered ? std::string() : data;
  if (numbered && (shown || row < 0)) {
    json_array_set_new(arguments, 0, json_integer(shown ? shown->id : 0));
    char *text = json_dumps(parsed, JSON_COMPACT);
    told = text;
    std::free(text);
  }
  json_decref(parsed);
  return told;
}

bool HeadlessBrowser::script(Node *node, const std::string &name, const std::string &arguments)
{
  return event(node, name, "{\"a\":[" + arguments + "]}");
}

bool HeadlessBrowser::size(Node *node, int width, int height)
{
  return node && node->has("!size") &&
         script(node, "size", std::to_string(width) + ',' + std::to_string(height));
}

} // namespace Testing
} // namespace Wt
