// SPDX-License-Identifier: MIT
#include "data/FleetNames.h"

#include <cstdio>
#include <iterator>

namespace zelsim
{

namespace
{

constexpr char kBothModes[] = "share_or_private_mode";

const Account kAccounts[] = {
    {"admin", "", "Administrator", "admin", true, false, true, true, kBothModes},
    {"operator", "", "Duty engineer", "operator-1", true, true, true, true, kBothModes},
    {"hlindqvist", "", "Hedda Lindqvist, shift lead", "shift-lead-2", false, true, true, true, kBothModes},
    {"rokafor", "", "Remi Okafor, dispatch", "dispatch-3", false, true, true, false, kBothModes},
    {"mtanaka", "", "Mei Tanaka, traffic desk", "traffic-4", false, true, true, false, "share_mode"},
    {"jnovak", "", "Jan Novak, grid desk", "grid-desk-5", false, true, true, false, kBothModes},
    {"sbrandt", "", "Silke Brandt, video wall", "video-wall-6", false, true, true, true, "share_mode"},
    {"pmoreau", "", "Paul Moreau, maintenance", "maintain-7", false, true, true, false, "private_mode"},
    {"training", "", "Training desk", "training-8", false, true, false, false, kBothModes},
    {"", "locampo", "Lucia Ocampo, external", "", false, true, true, false, kBothModes},
};

const char *const kReceiverNames[] = {
    "Desk 1 Dispatch", "Desk 2 Dispatch",
    "Desk 3 Traffic",  "Desk 4 Traffic",
    "Desk 5 Grid",     "Desk 6 Grid",
    "Shift Lead",      "Video Wall Left",
    "Video Wall Mid",  "Video Wall Right",
    "Crisis Room 1",   "Crisis Room 2",
    "Workshop Bench",  "",
    "Training Desk",   "Visitor Gallery",
};

const char *const kTransmitterNames[] = {
    "SCADA Primary",   "SCADA Standby",
    "Historian",       "Alarm Server",
    "Map Server",      "CCTV Recorder 1",
    "CCTV Recorder 2", "Radio Gateway",
    "Traffic Signals", "Weather Feed",
    "VoIP Console",    "Incident Log",
    "Office PC 9",     "",
    "Test Rig",        "Legacy Telemetry",
};

const char *const kSwitchNames[] = {"Control Room", "Equipment Room", "Annex"};

const char *const kFirstNames[] = {
    "Ada",   "Bruno", "Carla", "Dario", "Elif",  "Femi",   "Greta", "Hugo",  "Ines",  "Jonas",  "Katja",
    "Leon",  "Mira",  "Nils",  "Olga",  "Petra", "Quinn",  "Rosa",  "Sven",  "Tilda", "Umar",   "Vera",
    "Wanda", "Xenia", "Yusuf", "Zora",  "Anton", "Britta", "Cyril", "Doris", "Emil",  "Frieda", "Goran"};

const char *const kLastNames[] = {"Abel",   "Bakker", "Castro", "Dahl",   "Ekman",  "Fischer", "Grant",
                                  "Haas",   "Ivanov", "Jansen", "Keller", "Larsen", "Meyer",   "Nowak",
                                  "Ortiz",  "Peters", "Quiroz", "Rossi",  "Sato",   "Tanner",  "Ulrich",
                                  "Vargas", "Walsh",  "Young",  "Zeman",  "Arnold", "Berg",    "Conti",
                                  "Duarte", "Engel",  "Fabre"};

template <std::size_t N>
std::string nameOf(const char *const (&names)[N], unsigned number, const char *general)
{
  return number >= 1 && number <= N ? names[number - 1] : general + std::to_string(number);
}

} // namespace

const Account *fleetAccounts(std::size_t &count)
{
  count = std::size(kAccounts);
  return kAccounts;
}

std::string receiverName(unsigned number)
{
  return nameOf(kReceiverNames, number, "Station ");
}

std::string transmitterName(unsigned number)
{
  return nameOf(kTransmitterNames, number, "Target ");
}

std::string switchName(unsigned number)
{
  return nameOf(kSwitchNames, number, "Rack ");
}

Person personOf(unsigned number)
{
  const std::string first = kFirstNames[number % std::size(kFirstNames)];
  const std::string last = kLastNames[number / std::size(kFirstNames) * 7 % std::size(kLastNames)];
  std::string login = first.substr(0, 2) + last;
  for (char &letter : login)
    letter = static_cast<char>(letter | ('a' - 'A'));
  return {login, first + ' ' + last};
}

std::string fleetEid(unsigned family, unsigned number)
{
  // An odd factor maps the numbers one to one onto the last six digits, so that EIDs look drawn at random
  // and are never equal.
  const unsigned scattered = (number * 0x9E3779u + family * 0x2A51C7u) & 0xFFFFFFu;
  char eid[16];
  std::snprintf(eid, sizeof eid, "%06X-%06X", 0x0B2700u + family * 0x11u, scattered);
  return eid;
}

} // namespace zelsim
