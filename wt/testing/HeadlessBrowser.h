// SPDX-License-Identifier: MIT
#ifndef WT_TESTING_HEADLESS_BROWSER_H_
#define WT_TESTING_HEADLESS_BROWSER_H_

#include "session/RequestHead.h"
#include "session/SessionHost.h"
#include "session/Transport.h"
#include "testing/ManualScheduler.h"
#include "testing/PageMirror.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct json_t;

namespace Wt
{
namespace Testing
{

/**
 * A browser's page in the test's process: speaks to the sessions as the runtime does, over a connection in
 * memory, and applies their operations to a tree of its own. Every action runs the scheduler until nothing is
 * left to do, if there is one.
 */
class HeadlessBrowser
{
public:
  /// The scheduler may be null if the sessions run on threads of their own; use waitFor() then.
  HeadlessBrowser(std::shared_ptr<Engine::SessionHost> host, ManualScheduler *scheduler);
  ~HeadlessBrowser();
  HeadlessBrowser(const HeadlessBrowser &) = delete;
  HeadlessBrowser &operator=(const HeadlessBrowser &) = delete;

  /// What the next connection's request says; to be changed before open().
  Engine::RequestHead head;
  std::string query; ///< of the page's URL
  std::string language = "en";

  /// Opens the page, in a new session.
  void open();
  /// Closes the page for good.
  void close();
  /// The connection breaks. The page stays, and what is done on it waits.
  void disconnect();
  /// Connects again and resumes.
  void reconnect();

  PageMirror &page() { return page_; }
  const PageMirror &page() const { return page_; }

  /// Finding: the first visible element that fits; null if there is none

  /// By its own text, exactly.
  Node *byText(const std::string &text) const;
  Node *byClass(const std::string &name, int index = 0) const;
  Node *byTag(const std::string &tag, int index = 0) const;
  /// By the id attribute.
  Node *byId(const std::string &id) const;
  Node *byAttribute(const std::string &name, const std::string &value) const;
  bool shows(const std::string &text) const { return byText(text) != nullptr; }

  /// Acting. An event goes to the element and to those above it that listen, as events bubble; an element
  /// that is null, hidden or disabled gets nothing, and the action returns false.

  bool click(Node *node, int modifiers = 0, int button = 1);
  /// Clicks the first visible element of that text.
  bool click(const std::string &text) { return click(byText(text)); }
  /// A click that the server handles, but whose answer is lost with the connection.
  bool clickWithoutAnswer(Node *node);
  bool doubleClick(Node *node);
  bool mouseDown(Node *node, int modifiers = 0);
  /// Replaces the text of a field, and leaves it: "change" is told.
  bool type(Node *node, const std::string &text);
  /// Replaces the text of a field that stays focused, with a key's events.
  bool typeWithoutLeaving(Node *node, const std::string &text);
  bool key(Node *node, int keyCode, int modifiers = 0);
  /// Selects the item of a select element.
  bool choose(Node *node, int index);
  bool choose(Node *node, const std::string &itemText);
  bool check(Node *node, bool checked);
  bool focusOn(Node *node);
  /// Any event, with data as JSON; does not bubble. Events on a list's cells name the row by its number;
  /// a text in its place is told as it stands.
  bool event(Node *node, const std::string &name, const std::string &data = "{}");
  /// The same, with arguments as the inside of a JSON array.
  bool script(Node *node, const std::string &name, const std::string &arguments);
  /// The size that the browser gave to the element; for those that ask for it.
  bool size(Node *node, int width, int height);
  /// Sends a text as a message, whatever it is.
  void sendRaw(const std::string &text);
  /// The same, as the first message of a connection of its own.
  void sendRawFirst(const std::string &text);
  /// Sends a text many times before the session can handle any.
  void flood(const std::string &text, int times);

  /// Moves the clock.
  void advance(std::chrono::milliseconds time);
  /// Takes what the server has sent. True if there was anything.
  bool settle();
  /// Settles until the condition holds; false after some seconds.
  bool waitFor(const std::function<bool()> &condition);

  bool connected() const { return listener_ != nullptr; }
  /// The page was told to load itself anew.
  bool reloaded() const { return reloaded_; }
  bool hasQuit() const { return quit_; }
  std::string quitText() const { return quitText_; }
  /// Where redirect or quit sent the page.
  std::string location() const { return location_.empty() ? page_.redirected : location_; }
  std::string busyText() const { return busyText_; }
  std::string token() const { return token_; }

  /// What came from the server since the counters were reset; answers without operations count as bytes
  std::size_t bytesReceived() const { return bytes_; }
  std::size_t operationsReceived() const { return operations_; }
  std::size_t messagesReceived() const { return messages_; }
  void resetCounters() { bytes_ = operations_ = messages_ = 0; }
  const std::string &lastMessage() const { return lastMessage_; }

  /// The page as indented text.
  std::string tree() const { return page_.dump(); }

private:
  class Wire;

  void connect();
  void run();
  void send(const std::string &message);
  void sendNumbered(const std::string &members);
  bool actionable(const Node *node) const;
  std::string toldByRow(const Node &list, const std::string &name, const std::string &data) const;
  bool fire(Node *node, const std::string &name, const std::string &data);
  void gather(Node *node, const std::string &name, const std::string &data, std::string &events) const;
  std::string focusMember(Node *node);
  void receive(const std::string &message);
  void receiveUpdate(json_t *message);

  std::shared_ptr<Engine::SessionHost> host_;
  ManualScheduler *scheduler_;
  std::shared_ptr<Wire> wire_;
  std::shared_ptr<Engine::TransportListener> listener_;
  PageMirror page_;
  struct Unconfirmed {
    std::uint64_t number;
    std::string members;
  };
  std::deque<Unconfirmed> unconfirmed_;
  std::uint64_t sent_ = 0;
  std::uint64_t seen_ = 0;
  std::string token_;
  std::string quitText_;
  std::string location_;
  std::string busyText_;
  std::string lastMessage_;
  std::size_t bytes_ = 0;
  std::size_t operations_ = 0;
  std::size_t messages_ = 0;
  bool reloaded_ = false;
  bool quit_ = false;
  bool resuming_ = false;
  bool deaf_ = false; ///< what the server says is lost
};

} // namespace Testing
} // namespace Wt

#endif // WT_TESTING_HEADLESS_BROWSER_H_
