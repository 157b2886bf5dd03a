// SPDX-License-Identifier: MIT
#include "Edid.h"

#include "EdidReport.h"
#include "EventLog.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace
{

constexpr unsigned int kBlockSize = 256;  // what the store delivers
constexpr std::int32_t kReportSize = 128; // the base block, which is all that is told
constexpr std::int32_t kShortest = 9;     // the header and the first byte of the manufacturer
constexpr unsigned char kReservedBit = 0x80;

constexpr unsigned char kDigitalBit = 0x80;

// Five bits of the manufacturer's code.
char letter(unsigned int value)
{
  return static_cast<char>(value + 64);
}

} // namespace

void Edid::populate(const void *bytes, unsigned int size)
{
  if (size != kBlockSize) {
    EventLog_write(4, 7, "populate", "Unexpected EDID data length (%u).", size);
    return;
  }
  data = std::make_unique<unsigned char[]>(size);
  std::memcpy(data.get(), bytes, size);
  length = static_cast<std::int32_t>(size);
}

bool Edid::isValid() const
{
  if (!data) {
    EventLog_write(4, 7, "isValid", "No EDID data.");
    return false;
  }
  if (length < kShortest) {
    EventLog_write(4, 7, "isValid", "EDID data length too short (%u).", length);
    return false;
  }
  if (!EdidReport::hasNormalHeader(data.get())) {
    EventLog_write(4, 7, "isValid", "Bad EDID header pattern (%X %X %X %X %X %X %X %X).", data[0], data[1],
                   data[2], data[3], data[4], data[5], data[6], data[7]);
    return false;
  }
  if (data[8] & kReservedBit) {
    EventLog_write(4, 7, "isValid", "Bad EDID manufacturer ID (%X).", data[8]);
    return false;
  }
  return true;
}

bool Edid::isDigital() const
{
  return (data[20] & kDigitalBit) != 0;
}

void Edid::manufacturerIdGet(std::string &manufacturer) const
{
  const unsigned int high = data[8];
  const unsigned int low = data[9];
  manufacturer = {letter((high & 0x7C) >> 2), letter((high & 3) << 3 | low >> 5), letter(low & 31)};
}

void Edid::productCodeGet(std::string &productCode) const
{
  char buffer[8];
  std::snprintf(buffer, sizeof buffer, "%04X", data[10] + 256U * data[11]);
  productCode = buffer;
}

void Edid::fullDecodeGet(std::string &report)
{
  length = std::min(length, kReportSize);
  EdidReport text(data.get(), length, report);
  text.addRawData();
  if (length < kReportSize) {
    text.addTooShort();
    return;
  }
  std::string manufacturer;
  std::string productCode;
  manufacturerIdGet(manufacturer);
  productCodeGet(productCode);
  text.addDecodedData(manufacturer, productCode);
}
