// SPDX-License-Identifier: MIT
#ifndef WT_WFLAGS_H_
#define WT_WFLAGS_H_

namespace Wt
{

/// A set of flags of one enumeration. Converts from a flag, from a literal 0, and back to the enumeration.
template <typename EnumType> class WFlags
{
  typedef int(WFlags::*Zero);

public:
  typedef EnumType enum_type;

  WFlags(Zero = 0) : value_(0) {}
  WFlags(EnumType flag) : value_(static_cast<int>(flag)) {}

  int value() const { return value_; }
  operator EnumType() const { return static_cast<EnumType>(value_); }
  bool operator!() const { return value_ == 0; }

  bool testFlag(EnumType flag) const
  {
    return (value_ & flag) == flag && (static_cast<int>(flag) != 0 || value_ == 0);
  }
  WFlags clear(EnumType flag)
  {
    value_ &= ~static_cast<int>(flag);
    return *this;
  }

  WFlags &operator|=(WFlags other)
  {
    value_ |= other.value_;
    return *this;
  }
  WFlags &operator|=(EnumType flag) { return *this |= WFlags(flag); }
  WFlags &operator&=(WFlags other)
  {
    value_ &= other.value_;
    return *this;
  }
  WFlags &operator&=(EnumType flag) { return *this &= WFlags(flag); }

  WFlags operator|(WFlags other) const { return make(value_ | other.value_); }
  WFlags operator|(EnumType flag) const { return *this | WFlags(flag); }
  WFlags operator&(WFlags other) const { return make(value_ & other.value_); }
  WFlags operator&(EnumType flag) const { return *this & WFlags(flag); }
  WFlags operator^(WFlags other) const { return make(value_ ^ other.value_); }
  WFlags operator^(EnumType flag) const { return *this ^ WFlags(flag); }
  WFlags operator~() const { return make(~value_); }

private:
  static WFlags make(int value)
  {
    WFlags result;
    result.value_ = value;
    return result;
  }

  int value_;
};

/// Lets two flags of the enumeration be combined with | into a WFlags.
#define W_DECLARE_OPERATORS_FOR_FLAGS(EnumType)                                                              \
  inline ::Wt::WFlags<EnumType> operator|(EnumType a, EnumType b)                                            \
  {                                                                                                          \
    return ::Wt::WFlags<EnumType>(a) | b;                                                                    \
  }                                                                                                          \
  inline ::Wt::WFlags<EnumType> operator|(EnumType a, ::Wt::WFlags<EnumType> b)                              \
  {                                                                                                          \
    return b | a;                                                                                            \
  }

} // namespace Wt

#endif // WT_WFLAGS_H_
