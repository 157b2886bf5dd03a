// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_EVENT_HISTORY_RESOURCE_H_
#define VIEWS_EVENTS_EVENT_HISTORY_RESOURCE_H_

#include <Wt/WResource>

/**
 * The event history as a file of comma separated values, made anew at each request: a line for each event, in
 * the store's order, of date, type, originator's EID and message, each in double quotes.
 *
 * Of a message the first 400 bytes are told, with single quotes in place of double ones. Nobody gets anything
 * before somebody has logged in at the session.
 */
class EventHistoryResource : public Wt::WResource
{
public:
  explicit EventHistoryResource(Wt::WObject *parent = 0);
  ~EventHistoryResource() override;

  void handleRequest(const Wt::Http::Request &request, Wt::Http::Response &response) override;
};

#endif // VIEWS_EVENTS_EVENT_HISTORY_RESOURCE_H_
