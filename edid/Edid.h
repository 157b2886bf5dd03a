// SPDX-License-Identifier: MIT
#ifndef EDID_EDID_H_
#define EDID_EDID_H_

#include <cstdint>
#include <memory>
#include <string>

/// The EDID block (the description that a monitor gives of itself) of one monitor, as the store delivers it.
/// Empty until populate() has succeeded. What is wrong with a block goes to the log only.
class Edid
{
public:
  /// Takes a copy of a block. The store's blocks are always 256 bytes long; any other size leaves the object
  /// as it was. Called once on a fresh object.
  void populate(const void *bytes, unsigned int size);

  /// Whether the block has the header of an EDID block and a possible manufacturer. The checksum is not
  /// looked at.
  bool isValid() const;

  /// These three read the bytes without asking whether there are any: only for an object that is not empty.
  bool isDigital() const;
  /// Three letters. A code outside A to Z gives other characters: 0 is "@".
  void manufacturerIdGet(std::string &manufacturer) const;
  /// Four hexadecimal digits.
  void productCodeGet(std::string &productCode) const;

  /// What the first 128 bytes say, in English, line by line, valid or not. Bytes above 0x7F of the monitor's
  /// own texts stand in it as they are, so it need not be UTF-8. Extension blocks are never told: the length
  /// of the block is 128 from then on.
  void fullDecodeGet(std::string &report);

  /// Number of bytes, 0 for an empty object.
  std::int32_t lengthGet() const { return length; }

private:
  std::unique_ptr<unsigned char[]> data;
  std::int32_t length = 0;
};

#endif // EDID_EDID_H_
