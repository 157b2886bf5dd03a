// SPDX-License-Identifier: MIT
#include "control/FaultCommands.h"

#include "control/Names.h"
#include "rules/ErrorText.h"

#include <algorithm>

namespace zelsim
{

namespace
{

using Words = std::vector<std::string>;

constexpr int kLongestDelay = 600 * 1000;
constexpr unsigned kMostTimes = 1000000;

struct MethodWord {
  const char *word;
  Method method;
  unsigned bit;
};
constexpr MethodWord kMethods[] = {{"GET", Method::Get, kGet},
                                   {"SET", Method::Set, kSet},
                                   {"CREATE", Method::Create, kCreate},
                                   {"DELETE", Method::Delete, kDelete}};

bool isNumber(const std::string &word)
{
  std::int64_t number = 0;
  return readNumber(word, number);
}

bool hasParameter(const Parameter *rows, std::size_t count, const std::string &name)
{
  return std::any_of(rows, rows + count, [&name](const Parameter &row) {
    return name == row.name || hasParameter(row.members, row.memberCount, name);
  });
}

// METHOD RESOURCE[/PARAMETER]; the text says what is wrong, empty if nothing is.
std::string readTarget(const Words &words, Order &order)
{
  const auto method = std::find_if(std::begin(kMethods), std::end(kMethods),
                                   [&words](const MethodWord &known) { return words[0] == known.word; });
  if (method == std::end(kMethods))
    return "\"" + words[0] + "\" is none of GET, SET, CREATE and DELETE";
  const std::string name = words[1].substr(0, words[1].find('/'));
  order.method = method->method;
  order.resource = findResource(name);
  if (!order.resource)
    return "unknown resource \"" + name + "\"";
  if (!(order.resource->methods & method->bit))
    return name + " knows no " + words[0];
  // Of a path only the last name matters: it is the one that the request is about.
  order.parameter = name.size() < words[1].size() ? words[1].substr(words[1].rfind('/') + 1) : "";
  if (order.parameter.empty() ||
      hasParameter(order.resource->parameters, order.resource->parameterCount, order.parameter))
    return {};
  return name + " has no parameter \"" + order.parameter + "\"";
}

std::string readTimes(const std::string &word, Order &order)
{
  if (word == "always")
    order.times = 0;
  else if (!readNumber(word, order.times) || order.times == 0 || order.times > kMostTimes)
    return "\"" + word + "\" is neither a number of times nor \"always\"";
  return {};
}

// [INDEX] at `at`, which moves on: it is there if it is no number, or if another number follows.
std::string readIndex(const World &world, const Words &words, std::size_t &at, Order &order)
{
  const bool stands = at + 1 < words.size() && (!isNumber(words[at]) || isNumber(words[at + 1]));
  if (!stands)
    return {};
  std::string wrong;
  if (words[at] != "any" && !findRecord(world, *order.resource, words[at], order.index, wrong))
    return wrong;
  ++at;
  return {};
}

std::string readRefusal(const Words &words, std::size_t at, Order &order)
{
  if (!readNumber(words[at], order.errorNumber) || !errorWords(order.errorNumber))
    return "\"" + words[at] + "\" is no error of the store (see errors)";
  ++at;
  if (at < words.size() && !isNumber(words[at]) && words[at] != "always")
    order.detail = words[at++];
  if (at + 1 < words.size())
    return "\"" + words[at + 1] + "\" is too much";
  return at < words.size() ? readTimes(words[at], order) : std::string();
}

std::string readDelay(const Words &words, std::size_t at, Order &order)
{
  if (!readNumber(words[at], order.delayMs) || order.delayMs <= 0 || order.delayMs > kLongestDelay)
    return "\"" + words[at] + "\" is no number of milliseconds up to " + std::to_string(kLongestDelay);
  ++at;
  if (at + 1 < words.size())
    return "\"" + words[at + 1] + "\" is too much";
  return at < words.size() ? readTimes(words[at], order) : std::string();
}

std::string shown(const Order &order)
{
  const auto method =
      std::find_if(std::begin(kMethods), std::end(kMethods),
                   [&order](const MethodWord &known) { return order.method == known.method; });
  std::string line = std::string(method->word) + ' ' + order.resource->name;
  if (!order.parameter.empty())
    line += '/' + order.parameter;
  line += order.index ? " " + std::to_string(order.index) : " any";
  if (order.errorNumber)
    line += ": " + describeProblem({static_cast<Errno>(order.errorNumber), order.detail});
  else
    line += ": " + std::to_string(order.delayMs) + " ms later";
  return line + ", " + (order.times ? std::to_string(order.times) + " times" : std::string("always")) + '\n';
}

using ReadRest = std::string (*)(const Words &words, std::size_t at, Order &order);

// What `fail` and `delay` have in common; the rest of the words is `readRest`'s.
Outcome give(World &world, Faults &faults, const Words &words, bool isRefusal, ReadRest readRest)
{
  const auto isOurs = [isRefusal](const Order &order) { return (order.errorNumber != 0) == isRefusal; };
  if (words.empty()) {
    std::string list;
    for (const Order &order : faults.orders)
      list += isOurs(order) ? shown(order) : std::string();
    return {false, list.empty() ? "none\n" : list};
  }
  if (words.size() == 1 && words[0] == "off") {
    faults.orders.erase(std::remove_if(faults.orders.begin(), faults.orders.end(), isOurs),
                        faults.orders.end());
    return {};
  }
  if (words.size() < 3)
    return {true, "usage: METHOD RESOURCE[/PARAMETER] [INDEX|any] and a number (see help)"};
  Order order;
  std::string wrong = readTarget(words, order);
  std::size_t at = 2;
  if (wrong.empty())
    wrong = readIndex(world, words, at, order);
  if (wrong.empty())
    wrong = readRest(words, at, order);
  if (!wrong.empty())
    return {true, wrong};
  faults.orders.push_back(order);
  return {false, shown(order)};
}

Outcome slow(Faults &faults, const Words &words)
{
  unsigned delay = 0;
  if (words[0] != "off" && (!readNumber(words[0], delay) || delay > kLongestDelay))
    return {true, "\"" + words[0] + "\" is no number of milliseconds"};
  faults.slowMs = static_cast<int>(delay);
  return {};
}

Outcome cut(Faults &faults, const Words &words)
{
  unsigned answers = 1;
  if (!words.empty() && (!readNumber(words[0], answers) || answers > 1000000))
    return {true, "\"" + words[0] + "\" is no number of answers"};
  faults.cut = answers;
  return {};
}

// A handler that sets a fault on or off.
Commands::Handler onOff(bool &fault)
{
  return [&fault](World &, const Words &words) -> Outcome {
    if (words[0] != "on" && words[0] != "off")
      return {true, "\"" + words[0] + "\" is neither on nor off"};
    fault = words[0] == "on";
    return {};
  };
}

} // namespace

void addFaultCommands(Commands &commands, Faults &faults)
{
  commands.add(
      "fail", "METHOD RESOURCE[/PARAMETER] [INDEX|any] ERROR [DETAIL] [TIMES|always]",
      "refuse such requests, the next one if nothing else is said; alone: show them; fail off: stop", 0, 6,
      [&faults](World &world, const Words &words) { return give(world, faults, words, true, readRefusal); });
  commands.add(
      "delay", "METHOD RESOURCE[/PARAMETER] [INDEX|any] MS [TIMES|always]",
      "answer such requests so much later; alone: show them; delay off: stop", 0, 5,
      [&faults](World &world, const Words &words) { return give(world, faults, words, false, readDelay); });
  commands.add("errors", "", "show the numbers of errors", 0, 0, [](World &, const Words &) {
    return Outcome{false, listErrors()};
  });
  commands.add("slow", "MS|off", "answer every request so much later", 1, 1,
               [&faults](World &, const Words &words) { return slow(faults, words); });
  commands.add("silent", "on|off", "read requests and answer none", 1, 1, onOff(faults.silent));
  commands.add("refuse", "on|off", "listen no more, so that connecting fails", 1, 1, onOff(faults.refuse));
  commands.add("cut", "[COUNT]", "cut the next answer, or so many, in the middle", 0, 1,
               [&faults](World &, const Words &words) { return cut(faults, words); });
  commands.add("drop", "", "disconnect all clients", 0, 0, [&faults](World &, const Words &) {
    faults.drop = true;
    return Outcome{};
  });
}

} // namespace zelsim
