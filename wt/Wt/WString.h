// SPDX-License-Identifier: MIT
#ifndef WT_WSTRING_H_
#define WT_WSTRING_H_

#include <cstdint>
#include <iosfwd>
#include <locale>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{

enum CharEncoding { DefaultEncoding, LocalEncoding, UTF8 };

/// A text: a literal, or the key of a translated text, which is looked up at every conversion in the session
/// that runs then. {1}, {2}, ... are replaced by what arg() gave.
class WString
{
public:
  WString() = default;
  WString(const wchar_t *value);
  WString(const char *value, CharEncoding encoding = DefaultEncoding);
  WString(const std::wstring &value);
  WString(const std::string &value, CharEncoding encoding = DefaultEncoding);
  WString(const WString &other);
  WString(WString &&other) noexcept;
  ~WString();
  WString &operator=(const WString &other);
  WString &operator=(WString &&other) noexcept;

  static WString fromUTF8(const std::string &value, bool checkValid = false);
  static WString fromUTF8(const char *value, bool checkValid = false);
  static WString tr(const char *key);
  static WString tr(const std::string &key);
  static WString trn(const char *key, std::uint64_t amount);
  static WString trn(const std::string &key, std::uint64_t amount);

  /// How narrow texts without an encoding of their own are read; DefaultEncoding is the global locale's.
  static void setDefaultEncoding(CharEncoding encoding);
  static CharEncoding defaultEncoding();

  std::string toUTF8() const;
  std::wstring value() const;
  /// In the locale's encoding; characters that it lacks become '?'.
  std::string narrow(const std::locale &locale = std::locale()) const;
  bool empty() const;
  WString trim() const;
  bool literal() const { return !(state_ & TranslationBit); }
  /// The key of a translated text; empty for a literal.
  const std::string key() const;

  WString &arg(const std::wstring &value);
  WString &arg(const std::string &value, CharEncoding encoding = DefaultEncoding);
  WString &arg(const char *value, CharEncoding encoding = DefaultEncoding);
  WString &arg(const WString &value);
  WString &arg(int value);
  WString &arg(double value);
  const std::vector<WString> &args() const;

  /// True if the text may have changed with the session's locale.
  bool refresh();

  bool operator==(const WString &other) const;
  bool operator!=(const WString &other) const { return !(*this == other); }
  bool operator<(const WString &other) const;
  bool operator>(const WString &other) const { return other < *this; }
  WString &operator+=(const WString &other);

  static const WString Empty;

private:
  struct Rare;

  static WString translated(const std::string &key);
  Rare &rare();
  std::string resolved() const;

  static constexpr std::uintptr_t TranslationBit = 1;

  Rare *existingRare() const { return reinterpret_cast<Rare *>(state_ & ~TranslationBit); }

  /// The text of a literal, or the key.
  std::string text_;
  /// Arguments and amount, made on demand: a pointer whose lowest bit marks a translated text.
  std::uintptr_t state_ = 0;
};

WString operator+(const WString &left, const WString &right);
std::ostream &operator<<(std::ostream &out, const WString &text);
std::wostream &operator<<(std::wostream &out, const WString &text);

} // namespace Wt

#endif // WT_WSTRING_H_
