// SPDX-License-Identifier: MIT
#ifndef TESTS_EDID_BLOCK_H_
#define TESTS_EDID_BLOCK_H_

#include "Edid.h"

#include <array>
#include <initializer_list>
#include <string>

// A block of a test's own: an analog monitor with header and a right checksum, nothing else set, on whose
// bytes the test writes.
class EdidBlock
{
public:
  EdidBlock()
  {
    set(0, {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00});
    sign();
  }

  EdidBlock &set(std::size_t first, std::initializer_list<int> values)
  {
    for (const int value : values)
      bytes_[first++] = static_cast<unsigned char>(value);
    return *this;
  }

  EdidBlock &set(std::size_t first, const std::string &text)
  {
    for (const char c : text)
      bytes_[first++] = static_cast<unsigned char>(c);
    return *this;
  }

  // Makes the checksum of the base block right: all 128 bytes add up to 0.
  EdidBlock &sign()
  {
    unsigned char sum = 0;
    for (std::size_t i = 0; i < 127; ++i)
      sum = static_cast<unsigned char>(sum + bytes_[i]);
    bytes_[127] = static_cast<unsigned char>(0x100 - sum);
    return *this;
  }

  const unsigned char *data() const { return bytes_.data(); }
  unsigned char &operator[](std::size_t i) { return bytes_[i]; }
  static constexpr unsigned int size() { return 256; }

  std::string report() const
  {
    Edid edid;
    edid.populate(data(), size());
    std::string text = "what was there before";
    edid.fullDecodeGet(text);
    return text;
  }

private:
  std::array<unsigned char, 256> bytes_{};
};

#endif // TESTS_EDID_BLOCK_H_
