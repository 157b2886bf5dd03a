// SPDX-License-Identifier: MIT
#ifndef WT_TESTING_PAGE_MIRROR_H_
#define WT_TESTING_PAGE_MIRROR_H_

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct json_t;

namespace Wt
{
namespace Testing
{

/// An element as a browser would have it.
struct Node {
  std::uint32_t id = 0;
  std::string tag;
  std::map<std::string, std::string> settings; ///< by the keys of Dom::Element; "<" stands in `text` too
  std::string text;                            ///< its own text, of "#" or "<"
  std::vector<Node *> children;
  Node *parent = nullptr;

  /// The setting, or an empty text.
  std::string get(const std::string &key) const;
  bool has(const std::string &key) const { return settings.count(key) != 0; }
  bool hasClass(const std::string &name) const;
  /// Neither the node nor anything above it is hidden.
  bool visible() const;
  /// Its text and that of all below, in order, with one blank between parts.
  std::string allText() const;
};

/// The page as a browser would have it: applies the server's operations as the runtime does, and fails where
/// the runtime would.
class PageMirror
{
public:
  PageMirror();

  /// Applies an array of operations. Throws std::runtime_error on one that cannot be applied.
  void apply(json_t *operations);

  Node &body() { return *nodes_.at(1); }
  const Node &body() const { return *nodes_.at(1); }
  /// Null if there is no such element.
  Node *find(std::uint32_t id) const;
  /// The first element in the order of the page that fits, or null.
  Node *findIf(const std::function<bool(const Node &)> &fits) const;
  std::vector<Node *> findAll(const std::function<bool(const Node &)> &fits) const;
  std::size_t size() const { return nodes_.size(); }

  /// The tree as indented text, one element a line, without numbers: for comparison with golden texts.
  std::string dump(const Node *from = nullptr) const;

  /// What commands to the page and to elements have told
  std::string title;
  std::string redirected;
  std::vector<std::string> styleSheets;
  std::vector<std::string> calls; ///< "ID method [arguments]"
  std::uint32_t focus = 0;

private:
  void applyOne(json_t *operation);
  Node *make(json_t *tree);
  Node &node(json_t *id);
  void insert(Node &parent, std::uint32_t before, Node *child);
  void detach(Node &child);
  void destroy(Node &gone);
  void set(Node &target, json_t *settings);
  static void numberRows(Node &contents);
  void call(json_t *operation);
  void command(json_t *operation);
  void collect(const Node &from, const std::function<bool(const Node &)> &fits,
               std::vector<Node *> &found) const;
  void dumpNode(const Node &from, std::size_t depth, std::string &out) const;

  std::map<std::uint32_t, std::unique_ptr<Node>> nodes_;
};

} // namespace Testing
} // namespace Wt

#endif // WT_TESTING_PAGE_MIRROR_H_
