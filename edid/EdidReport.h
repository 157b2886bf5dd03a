// SPDX-License-Identifier: MIT
#ifndef EDID_EDID_REPORT_H_
#define EDID_EDID_REPORT_H_

#include <string>

/// The words of Edid's report: goes through the bytes of a block from first to last and writes down what each
/// says. The bytes that a section is decoded from stand before it in brackets.
class EdidReport
{
public:
  static bool hasNormalHeader(const unsigned char *bytes);

  /// Empties `text`, which it writes to; neither this nor the bytes become its own.
  EdidReport(const unsigned char *bytes, int length, std::string &text);

  void addRawData();
  void addTooShort();
  /// Needs 128 bytes.
  void addDecodedData(const std::string &manufacturer, const std::string &productCode);

private:
  /// Every piece has a place of 256 bytes, and ends where a text of C does: "%c" of 00 adds nothing.
  void add(const char *format, ...) __attribute__((format(printf, 2, 3)));
  void addBytes(const char *before, int first, int count);

  void addHeader();
  void addIdentification(const std::string &manufacturer, const std::string &productCode);
  void addVersion();
  void addVideoInput();
  void addImageSize();
  void addGamma();
  void addFeatures();
  void addColors();
  void addEstablishedTimings();
  void addStandardTiming(int number);
  void addDetailedBlock(int number);
  void addDescriptor(const unsigned char *block);
  void addDescriptorText(const unsigned char *block);
  void addRangeLimits(const unsigned char *block);
  void addDetailedTiming(const unsigned char *block);
  void addSync(unsigned char flags);
  void addChecksum();

  const unsigned char *bytes_;
  int length_;
  std::string &text_;
};

#endif // EDID_EDID_REPORT_H_
