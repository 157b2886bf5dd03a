// SPDX-License-Identifier: MIT
#include "NevoSite.h"

#include "Clock.h"
#include "Main.h"
#include "NevoApplication.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

using Wt::Testing::Node;

namespace
{

constexpr std::time_t kDay = 24 * 60 * 60;

std::time_t sBegin = 0; // the site's time when its timers' clock stood at sOrigin
Wt::Engine::Scheduler::TimePoint sOrigin;
const Wt::Testing::ManualScheduler *kSScheduler = nullptr;

std::time_t siteTime()
{
  if (!kSScheduler)
    return sBegin;
  return sBegin + std::chrono::duration_cast<std::chrono::seconds>(kSScheduler->now() - sOrigin).count();
}

// What a started server would have: a document root, attributes, and no store unless the test brings one.
class Surroundings : public testing::Environment
{
public:
  void SetUp() override
  {
    std::snprintf(Main_docRoot, sizeof Main_docRoot, "%s", NEVO_SOURCE_DIR);
    setenv("NEVO_ATTRIBUTES", NEVO_SOURCE_DIR "/tests/headless/attributes", 1);
    setenv("NEVO_STORE_SOCKET", "/nonexistent/store.sock", 1);
  }
};

const testing::Environment *const kSSurroundings = testing::AddGlobalTestEnvironment(new Surroundings);

void collect(const Node &from, const std::string &tag, std::vector<const Node *> &found)
{
  if (from.tag == tag)
    found.push_back(&from);
  for (const Node *child : from.children)
    collect(*child, tag, found);
}

Row textsOf(const Node &row)
{
  Row texts;
  for (const Node *cell : row.children)
    texts.push_back(cell->allText());
  return texts;
}

} // namespace

// ---- Visitor

Visitor::Visitor(Wt::Testing::TestSite &site) : HeadlessBrowser(site.manager, &site.scheduler) {}

Node *Visitor::button(const std::string &text) const
{
  return page().findIf([&](const Node &n) { return n.tag == "button" && n.text == text && n.visible(); });
}

Node *Visitor::link(const std::string &text) const
{
  return page().findIf([&](const Node &n) { return n.tag == "a" && n.allText() == text && n.visible(); });
}

bool Visitor::canPress(const std::string &text) const
{
  const Node *found = button(text);
  return found && !found->has("disabled");
}

Node *Visitor::dialog() const
{
  const auto found = page().findAll([](const Node &n) { return n.hasClass("Wt-dialog") && n.visible(); });
  return found.empty() ? nullptr : found.back();
}

std::string Visitor::dialogText() const
{
  const Node *top = dialog();
  return top ? top->allText() : "";
}

void Visitor::logIn(const std::string &name, const std::string &password)
{
  type(field("Username"), name);
  type(field("Password"), password);
  click(button("Log In"));
}

void Visitor::failToLogIn()
{
  logIn("operator", "wrong");
  click(button("Ok"));
}

bool Visitor::openTab(const std::string &name)
{
  return click(page().findIf([&](const Node &n) {
    return n.tag == "a" && n.get("role") == "tab" && n.text == name && n.visible();
  }));
}

Node *Visitor::panel(const std::string &title) const
{
  for (Node *found : page().findAll([&](const Node &n) { return n.text == title && n.visible(); })) {
    while (found && !found->hasClass("nevo-context-panel"))
      found = found->parent;
    if (found)
      return found;
  }
  return nullptr;
}

Node *Visitor::list(const std::string &title) const
{
  const Node *around = panel(title);
  return around ? page().findIf([around](const Node &n) {
    if (!n.hasClass("Wt-tableview"))
      return false;
    const Node *above = n.parent;
    while (above && above != around)
      above = above->parent;
    return above == around;
  })
                : nullptr;
}

std::vector<Row> Visitor::rows(const std::string &title) const
{
  std::vector<Row> texts;
  const Node *table = list(title);
  if (!table || !table->visible())
    return texts;
  std::vector<const Node *> found;
  collect(*table, "~r", found);
  for (const Node *row : found)
    texts.push_back(textsOf(*row));
  return texts;
}

Row Visitor::selected(const std::string &title) const
{
  Row texts;
  const Node *table = list(title);
  std::vector<const Node *> found;
  if (table)
    collect(*table, "~r", found);
  for (const Node *row : found)
    if (row->hasClass("Wt-selected"))
      texts.push_back(textsOf(*row).front());
  return texts;
}

void Visitor::typeAt(Node *listens, const std::string &ascii)
{
  for (const char letter : ascii) {
    const std::string code = std::to_string(static_cast<int>(letter));
    event(listens, "keypress", "{\"k\":" + code + ",\"c\":" + code + ",\"t\":\"" + letter + "\"}");
  }
}

void Visitor::keyAt(Node *listens, int keyCode)
{
  event(listens, "keydown", "{\"k\":" + std::to_string(keyCode) + "}");
}

std::string Visitor::markIn(const Node *place)
{
  if (!place)
    return "?";
  if (place->hasClass("nevo-list-filter"))
    return place->children.empty() ? "" : place->children.front()->allText();
  for (const Node *child : place->children)
    if (const std::string text = markIn(child); text != "?")
      return text;
  return "?";
}

void Visitor::selectRow(const std::string &title, int row)
{
  event(list(title), "table:down", "{\"a\":[" + std::to_string(row) + ",1],\"b\":1,\"m\":0}");
}

// ---- NevoSite

NevoSite::NevoSite()
    : TestSite([this](const Wt::WEnvironment &environment) {
        Wt::WApplication *created = createApplication(environment);
        application_ = dynamic_cast<NevoApplication *>(created);
        return created;
      })
{
  const std::time_t today = std::time(nullptr);
  sBegin = std::max(today, sBegin + kDay);
  sOrigin = scheduler.now();
  kSScheduler = &scheduler;
  Clock_setSource(siteTime);
}

NevoSite::~NevoSite()
{
  // Sessions end while their clock still goes.
  manager->killAll();
  scheduler.run();
  sBegin = siteTime();
  kSScheduler = nullptr;
  Clock_setSource(nullptr);
}

std::time_t NevoSite::now()
{
  return siteTime();
}

void NevoSite::jump(std::chrono::seconds time)
{
  sBegin += time.count();
}
