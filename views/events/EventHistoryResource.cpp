// SPDX-License-Identifier: MIT
#include "EventHistoryResource.h"

#include "AlertRecord.h"
#include "Db.h"

#include <Wt/Http/Request>
#include <Wt/Http/Response>
#include <Wt/WApplication>
#include <algorithm>
#include <cstdio>
#include <ostream>
#include <sstream>

namespace
{

const std::size_t kMessageBytes = 400;

/// Takes off an UTF-8 sequence that was cut in its middle.
void dropCutCharacter(std::string &text)
{
  std::size_t lead = text.size();
  while (lead > 0 && (text[lead - 1] & 0xC0) == 0x80)
    --lead;
  if (lead == 0)
    return;
  const unsigned char first = static_cast<unsigned char>(text[lead - 1]);
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
  if (text.size() - (lead - 1) < length)
    text.erase(lead - 1);
}

std::string messageField(const std::string &message)
{
  char buffer[kMessageBytes + 1];
  std::snprintf(buffer, sizeof buffer, "%s", message.c_str());
  std::string field = buffer;
  if (message.size() > kMessageBytes)
    dropCutCharacter(field);
  std::replace(field.begin(), field.end(), '"', '\'');
  return field;
}

/// A record without an EID ends the file where the EID would stand.
void writeLine(std::ostream &out, const AlertRecord &alert)
{
  out << '"' << alert.dateText() << "\",\"" << alert.severityText() << "\",\"";
  if (!alert.originatorEid)
    out.setstate(std::ios::failbit);
  out << alert.originatorEid.value_or("") << "\",\"" << messageField(alert.message) << "\"\n";
}

std::string historyFile()
{
  if (Db_db.getIndexOfCurrentlyLoggedInNevoUsr() == 0)
    return std::string();
  std::ostringstream out;
  for (const AlertRecord &alert : AlertRecord::readHistory().value_or(std::vector<AlertRecord>()))
    writeLine(out, alert);
  return out.str();
}

} // namespace

EventHistoryResource::EventHistoryResource(Wt::WObject *parent) : Wt::WResource(parent)
{
  suggestFileName("event-history.csv", Wt::WResource::Attachment);
}

EventHistoryResource::~EventHistoryResource()
{
  beingDeleted();
}

void EventHistoryResource::handleRequest(const Wt::Http::Request &, Wt::Http::Response &response)
{
  response.setMimeType("plain/text");
  std::string file;
  {
    // Requests come beside the session's events, and both talk to the store by the session's one connection.
    // The lock ends before anything is sent: a slow browser keeps nobody waiting.
    Wt::WApplication::UpdateLock lock(Wt::WApplication::instance());
    if (lock)
      file = historyFile();
  }
  response.out() << file << std::flush;
}
