// SPDX-License-Identifier: MIT
// Three hundred pages at once on one server, each a WebSocket of its own, all driven by one thread. Prints
// one JSON object: how long a click takes to be shown while a tenth of the pages act each second, what
// waiting dialogs cost in memory and threads, and how far a handler that blocks its session, one that waits
// for a store that does not answer, and many of these, delay the others. usage: load [pages]
#include "TestStore.h"
#include "ZelClient.h"
#include "ZelReq.h"
#include "ZelRspUtil.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WDialog>
#include <Wt/WEnvironment>
#include <Wt/WPushButton>
#include <Wt/WServer>
#include <Wt/WStandardItemModel>
#include <Wt/WTableView>
#include <Wt/WText>
#include <algorithm>
#include <boost/asio/connect.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/websocket.hpp>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fstream>
#include <functional>
#include <jansson.h>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{

namespace asio = boost::asio;
namespace beast = boost::beast;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using boost::system::error_code;

constexpr int kListRows = 50;
constexpr std::chrono::seconds kBlockedFor{5};
constexpr int kWaitingPages = 100;
constexpr std::size_t kStorePages = 20; // as many as wait for the store at once
constexpr std::chrono::seconds kPatience{30};
constexpr double kLatencyLimit = 200;
constexpr double kDelayLimit = 50;

// --- The server
// --------------------------------------------------------------------------------------------------

/// A page with a list, a count that clicks change, a dialog that its handler waits for, a handler that
/// blocks, and one that asks the store.
class LoadPage : public Wt::WApplication
{
public:
  explicit LoadPage(const Wt::WEnvironment &environment) : WApplication(environment)
  {
    addButton("Add", &LoadPage::add);
    addButton("Ask", &LoadPage::ask);
    addButton("Block", &LoadPage::block);
    addButton("Read", &LoadPage::read);
    shown_ = new Wt::WText("Count 0", root());
    auto *model = new Wt::WStandardItemModel(kListRows, 4, this);
    for (int row = 0; row < kListRows; ++row)
      for (int column = 0; column < 4; ++column)
        model->setData(row, column, std::to_string(row) + '.' + std::to_string(column));
    auto *list = new Wt::WTableView(root());
    list->setModel(model);
  }

private:
  void addButton(const char *text, void (LoadPage::*clicked)())
  {
    auto *button = new Wt::WPushButton(text, root());
    button->clicked().connect(this, clicked);
  }

  void add() { shown_->setText("Count " + std::to_string(++count_)); }

  void ask()
  {
    Wt::WDialog dialog("Question");
    auto *yes = new Wt::WPushButton("Agree", dialog.contents());
    yes->clicked().connect(&dialog, &Wt::WDialog::accept);
    shown_->setText(dialog.exec() == Wt::WDialog::Accepted ? "Agreed" : "Refused");
  }

  void block()
  {
    std::this_thread::sleep_for(kBlockedFor);
    shown_->setText("Unblocked");
  }

  void read()
  {
    if (!store_)
      store_.reset(ZelClient_new());
    json_t *response = ZelReq_rxRetrieve(store_.get(), "[\"index\",\"name\"]");
    shown_->setText(ZelRspUtil_numEntries(response) > 0 ? "Read" : "No answer");
    ZelRspUtil_free(response);
  }

  Wt::WText *shown_ = nullptr;
  int count_ = 0;
  std::unique_ptr<ZelClient_s, void (*)(ZelClient_s *)> store_{nullptr, ZelClient_close};
};

Wt::WApplication *createPage(const Wt::WEnvironment &environment)
{
  return new LoadPage(environment);
}

/// The server's process: tells its port on standard output and serves until it is ended.
int serve(const char *program, const char *folder)
{
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  std::string arguments[] = {program, std::string("--docroot=") + folder, "--http-address=127.0.0.1",
                             "--http-port=0", "--accesslog=-"};
  std::vector<char *> given;
  for (std::string &argument : arguments)
    given.push_back(argument.data());
  try {
    Wt::WServer server(static_cast<int>(given.size()), given.data());
    server.addEntryPoint(Wt::Application, createPage);
    server.start();
    std::printf("%d\n", server.httpPort());
    std::fflush(stdout);
    Wt::WServer::waitForShutdown();
    server.stop();
  } catch (const std::exception &e) {
    std::fprintf(stderr, "load: %s\n", e.what());
    return 1;
  }
  return 0;
}

/// The server as the driver sees it: a process that ends with this object.
class ServerProcess
{
public:
  ServerProcess()
  {
    int ends[2];
    if (!mkdtemp(folder_) || pipe(ends) != 0)
      return;
    pid_ = fork();
    if (pid_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      close(ends[0]);
      execl("/proc/self/exe", "load", "serve", folder_, static_cast<char *>(nullptr));
      _exit(127);
    }
    close(ends[1]);
    if (FILE *told = fdopen(ends[0], "r")) {
      if (std::fscanf(told, "%d", &port_) != 1)
        port_ = 0;
      std::fclose(told);
    }
  }

  ~ServerProcess()
  {
    if (pid_ > 0) {
      kill(pid_, SIGTERM);
      waitpid(pid_, nullptr, 0);
    }
    rmdir(folder_);
  }

  ServerProcess(const ServerProcess &) = delete;
  ServerProcess &operator=(const ServerProcess &) = delete;

  /// 0 if it did not start.
  int port() const { return port_; }

  double residentMb() const
  {
    std::ifstream status("/proc/" + std::to_string(pid_) + "/status");
    for (std::string line; std::getline(status, line);)
      if (line.compare(0, 6, "VmRSS:") == 0)
        return std::strtod(line.c_str() + 6, nullptr) / 1024;
    return 0;
  }

  int threads() const
  {
    int count = 0;
    if (DIR *folder = opendir(("/proc/" + std::to_string(pid_) + "/task").c_str())) {
      while (const dirent *entry = readdir(folder))
        count += entry->d_name[0] != '.';
      closedir(folder);
    }
    return count;
  }

private:
  char folder_[32] = "/tmp/load-XXXXXX";
  pid_t pid_ = -1;
  int port_ = 0;
};

// --- The pages
// ---------------------------------------------------------------------------------------------------

/// One page as its browser's runtime would drive it.
class Page
{
public:
  /// Told how long it took until the effect was here.
  using Shown = std::function<void(double)>;

  Page(asio::io_context &context, int number) : socket_(context), number_(number) {}

  /// Connects and greets; `shown` once the page is there.
  void open(int port, Shown shown)
  {
    expect("Count 0", std::move(shown));
    auto &tcp = socket_.next_layer();
    const auto server = asio::ip::make_address_v4("127.0.0.1");
    tcp.async_connect({server, static_cast<unsigned short>(port)}, [this, port](const error_code &ec) {
      if (ec)
        return fail(ec);
      socket_.next_layer().set_option(asio::ip::tcp::no_delay(true));
      shakeHands("127.0.0.1:" + std::to_string(port));
    });
  }

  /// Clicks the button of that text; `shown` when the page tells `effect`.
  void click(const std::string &button, const std::string &effect, Shown shown)
  {
    expect(effect, std::move(shown));
    send("{\"n\":" + std::to_string(++sent_) + ",\"a\":" + std::to_string(seen_) + ",\"e\":[[" +
         std::to_string(buttons_[button]) + ",\"click\",{\"b\":1}]]}");
  }

  void add(Shown shown) { click("Add", "Count " + std::to_string(++count_), std::move(shown)); }

  bool waits() const { return shown_ != nullptr; }
  const std::string &error() const { return error_; }

private:
  void expect(const std::string &effect, Shown shown)
  {
    effect_ = '"' + effect + '"';
    shown_ = std::move(shown);
    began_ = Clock::now();
  }

  void shakeHands(const std::string &host)
  {
    socket_.set_option(beast::websocket::stream_base::decorator(
        [host](beast::websocket::request_type &request) { request.set("Origin", "http://" + host); }));
    socket_.async_handshake(host, "/?request=ws", [this](const error_code &ec) {
      if (ec)
        return fail(ec);
      send("{\"hello\":{\"query\":\"\",\"tz\":0,\"w\":1280,\"h\":800,\"lang\":\"en\"}}");
      read();
    });
  }

  void send(std::string message)
  {
    outgoing_ = std::move(message);
    socket_.async_write(asio::buffer(outgoing_), [this](const error_code &ec, std::size_t) {
      if (ec)
        fail(ec);
    });
  }

  void read()
  {
    socket_.async_read(buffer_, [this](const error_code &ec, std::size_t) {
      if (ec)
        return fail(ec);
      const std::string message = beast::buffers_to_string(buffer_.data());
      buffer_.consume(buffer_.size());
      take(message);
      read();
    });
  }

  void take(const std::string &message)
  {
    const std::unique_ptr<json_t, void (*)(json_t *)> root(json_loads(message.c_str(), 0, nullptr),
                                                           json_decref);
    if (const json_t *number = json_object_get(root.get(), "n"))
      seen_ = std::max(seen_, json_integer_value(number));
    if (json_object_get(root.get(), "busy") || json_object_get(root.get(), "reload"))
      error_ = message;
    findButtons(json_object_get(root.get(), "o"));
    if (shown_ && message.find(effect_) != std::string::npos) {
      const Shown shown = std::move(shown_);
      shown_ = nullptr;
      shown(Milliseconds(Clock::now() - began_).count());
    }
  }

  /// Elements are arrays that begin with their number, their tag and their settings.
  void findButtons(const json_t *value)
  {
    if (!json_is_array(value))
      return;
    const json_t *settings = json_array_get(value, 2);
    const json_t *tag = json_array_get(value, 1);
    if (json_is_object(settings) && json_is_string(tag) && std::string(json_string_value(tag)) == "button")
      for (const char *known : {"Add", "Ask", "Block", "Read", "Agree"})
        if (holds(value, known))
          buttons_[known] = json_integer_value(json_array_get(value, 0));
    for (std::size_t i = 0; i < json_array_size(value); ++i)
      findButtons(json_array_get(value, i));
  }

  static bool holds(const json_t *value, const char *text)
  {
    const std::unique_ptr<char, void (*)(void *)> written(json_dumps(value, JSON_COMPACT), std::free);
    return written && std::string(written.get()).find('"' + std::string(text) + '"') != std::string::npos;
  }

  void fail(const error_code &ec)
  {
    if (error_.empty())
      error_ = ec.message();
  }

  beast::websocket::stream<asio::ip::tcp::socket> socket_;
  beast::flat_buffer buffer_;
  const int number_;
  std::string outgoing_;
  std::string effect_;
  std::string error_;
  Shown shown_;
  Clock::time_point began_;
  std::map<std::string, json_int_t> buttons_;
  json_int_t sent_ = 0;
  json_int_t seen_ = 0;
  int count_ = 0;
};

// --- The measurement
// ---------------------------------------------------------------------------------------------

double percentile(std::vector<double> values, double share)
{
  if (values.empty())
    return 0;
  std::sort(values.begin(), values.end());
  return values[std::min(values.size() - 1,
                         static_cast<std::size_t>(share * static_cast<double>(values.size())))];
}

class Load
{
  struct Blocked {
    std::vector<double> clicks; ///< of the pages that are not blocked
    bool blockedAll = false;    ///< nobody went on before the measurement was over
    bool wentOn = false;        ///< and all did after it
    int threads = 0;
  };

public:
  Load(const TestStore &store, const ServerProcess &server, int pages) : store_(store), server_(server)
  {
    for (int i = 0; i < pages; ++i)
      pages_.push_back(std::make_unique<Page>(context_, i));
  }

  /// True if every page answered whenever it had to.
  bool run()
  {
    residentAtStart_ = server_.residentMb();
    std::vector<double> opened;
    all(pages_.size(), [this, &opened](Page &page) {
      page.open(server_.port(), [&opened](double ms) { opened.push_back(ms); });
    });
    answered_ = opened.size();
    residentOpen_ = server_.residentMb();
    if (answered_ == pages_.size()) {
      calm_ = act(std::chrono::seconds(20), 0);
      blocked_ = measureBlocked(0, 1, "Block", "Unblocked");
      store_.control({"silent", "on"});
      storeBlocked_ = measureBlocked(0, 1, "Read", "No answer");
      manyBlocked_ = measureBlocked(1, std::min(kStorePages + 1, pages_.size() - 1), "Read", "No answer");
      store_.control({"silent", "off"});
      measureWaiting();
    }
    print();
    return errors() == 0 && answered_ == pages_.size() && agreed_ == waiting() && blocked_.wentOn &&
           storeBlocked_.wentOn && manyBlocked_.wentOn;
  }

private:
  std::size_t waiting() const { return std::min<std::size_t>(kWaitingPages, pages_.size()); }

  /// Lets the first pages do something and waits until no page waits for its effect.
  void all(std::size_t count, const std::function<void(Page &)> &something)
  {
    for (std::size_t i = 0; i < count; ++i)
      something(*pages_[i]);
    settle(0);
  }

  /// Waits until no page from `first` on waits for its effect.
  void settle(std::size_t first)
  {
    const auto until = Clock::now() + kPatience;
    const auto open = [](const auto &page) { return page->waits() && page->error().empty(); };
    const auto from = pages_.begin() + static_cast<std::ptrdiff_t>(first);
    while (Clock::now() < until && std::any_of(from, pages_.end(), open))
      context_.run_one_for(std::chrono::milliseconds(100));
  }

  /// A tenth of the pages, beginning with page `first`, click each second; how long each waited for the
  /// effect.
  std::vector<double> act(std::chrono::seconds duration, std::size_t first)
  {
    std::vector<double> latencies;
    std::uniform_int_distribution<std::size_t> anyPage(first, pages_.size() - 1);
    const auto interval = std::chrono::duration_cast<Clock::duration>(
        std::chrono::duration<double>(10.0 / static_cast<double>(pages_.size())));
    const auto until = Clock::now() + duration;
    for (auto due = Clock::now(); due < until; due += interval) {
      context_.run_until(due);
      Page &page = *pages_[anyPage(random_)];
      if (!page.waits())
        page.add([&latencies](double ms) { latencies.push_back(ms); });
    }
    settle(first);
    return latencies;
  }

  /// How long the clicks of the pages from `end` on take while those from `begin` wait within their handlers.
  Blocked measureBlocked(std::size_t begin, std::size_t end, const char *button, const char *effect)
  {
    Blocked result;
    std::size_t over = 0;
    for (std::size_t i = begin; i < end; ++i)
      pages_[i]->click(button, effect, [&over](double) { ++over; });
    result.clicks = act(kBlockedFor - std::chrono::seconds(1), end);
    result.blockedAll = over == 0;
    result.threads = server_.threads();
    settle(0);
    result.wentOn = result.blockedAll && over == end - begin;
    return result;
  }

  void measureWaiting()
  {
    threadsBefore_ = server_.threads();
    const double before = server_.residentMb();
    std::size_t asked = 0;
    all(waiting(), [&asked](Page &page) { page.click("Ask", "Agree", [&asked](double) { ++asked; }); });
    threadsWaiting_ = server_.threads();
    residentWaiting_ = server_.residentMb() - before;
    if (asked == waiting())
      all(waiting(), [this](Page &page) { page.click("Agree", "Agreed", [this](double) { ++agreed_; }); });
  }

  std::size_t errors() const
  {
    return static_cast<std::size_t>(
        std::count_if(pages_.begin(), pages_.end(), [](const auto &page) { return !page->error().empty(); }));
  }

  void print() const
  {
    for (const auto &page : pages_)
      if (!page->error().empty()) {
        std::fprintf(stderr, "load: a page ended: %s\n", page->error().c_str());
        break;
      }
    const double calmMedian = percentile(calm_, 0.5);
    std::printf("{\"pages\": %zu, \"pages_answered\": %zu, \"pages_failed\": %zu,\n", pages_.size(),
                answered_, errors());
    std::printf(
        " \"clicks\": %zu, \"latency_p50_ms\": %.2f, \"latency_p99_ms\": %.2f, \"latency_max_ms\": %.2f,\n",
        calm_.size(), calmMedian, percentile(calm_, 0.99), percentile(calm_, 1));
    std::printf(
        " \"resident_at_start_mb\": %.1f, \"resident_open_mb\": %.1f, \"resident_per_page_kb\": %.0f,\n",
        residentAtStart_, residentOpen_,
        (residentOpen_ - residentAtStart_) * 1024 / static_cast<double>(pages_.size()));
    std::printf(" \"dialogs_waiting\": %zu, \"dialogs_answered\": %zu, \"threads_before\": %d, "
                "\"threads_with_dialogs\": %d,"
                " \"resident_of_dialogs_mb\": %.1f,\n",
                waiting(), agreed_, threadsBefore_, threadsWaiting_, residentWaiting_);
    print("one_blocked", blocked_, calmMedian);
    print("store_blocked", storeBlocked_, calmMedian);
    print("many_store_blocked", manyBlocked_, calmMedian);
    std::printf(" \"limits\": {\"latency_p99_ms\": %.0f, \"one_blocked_delay_ms\": %.0f,"
                " \"store_blocked_delay_ms\": %.0f, \"many_store_blocked_delay_ms\": %.0f}}\n",
                kLatencyLimit, kDelayLimit, kDelayLimit, kDelayLimit);
  }

  static void print(const char *name, const Blocked &blocked, double calmMedian)
  {
    const std::vector<double> &clicks = blocked.clicks;
    std::printf(" \"%s_clicks\": %zu, \"%s_p50_ms\": %.2f, \"%s_p99_ms\": %.2f, \"%s_max_ms\": %.2f,"
                " \"%s_delay_ms\": %.2f, \"%s_threads\": %d, \"%s_went_on\": %s,\n",
                name, clicks.size(), name, percentile(clicks, 0.5), name, percentile(clicks, 0.99), name,
                percentile(clicks, 1), name, percentile(clicks, 1) - calmMedian, name, blocked.threads, name,
                blocked.wentOn ? "true" : "false");
  }

  const TestStore &store_;
  const ServerProcess &server_;
  asio::io_context context_{1};
  std::vector<std::unique_ptr<Page>> pages_;
  std::minstd_rand random_{1};
  std::vector<double> calm_;
  Blocked blocked_;
  Blocked storeBlocked_;
  Blocked manyBlocked_;
  std::size_t answered_ = 0;
  std::size_t agreed_ = 0;
  int threadsBefore_ = 0;
  int threadsWaiting_ = 0;
  double residentAtStart_ = 0;
  double residentOpen_ = 0;
  double residentWaiting_ = 0;
};

} // namespace

int main(int argc, char **argv)
{
  if (argc == 3 && std::string(argv[1]) == "serve")
    return serve(argv[0], argv[2]);
  const int pages = argc > 1 ? std::atoi(argv[1]) : 300;
  const TestStore store;
  const auto limit = std::chrono::duration_cast<std::chrono::milliseconds>(kBlockedFor).count();
  ::setenv("NEVO_STORE_TIMEOUT_MS", std::to_string(limit).c_str(), 1);
  const ServerProcess server;
  if (pages < 3 || server.port() == 0) {
    std::fputs("load: the server did not start.\n", stderr);
    return 1;
  }
  return Load(store, server, pages).run() ? 0 : 1;
}
