// SPDX-License-Identifier: MIT
// The line edits of one kind of address or number.
#include "BoundPage.h"
#include "WEid.h"
#include "WHostAddr.h"
#include "WIpAddr.h"
#include "WIpV4Addr.h"
#include "WIpV6Addr.h"
#include "WKeyCode.h"
#include "WMacAddr.h"
#include "WMouseDelta.h"

#include <Wt/WIntValidator>
#include <Wt/WRegExpValidator>

using testing::ElementsAre;

namespace
{

const std::string kEid = R"re(^([0-9a-zA-Z]{6,6}-[0-9a-zA-Z]{6,6})$)re";
const std::string kIpV4 =
    R"re(^(((25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)\.){3}(25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?))$)re";
const std::string kMac =
    R"re(^((([0-9A-Fa-f]{2}:){5}([0-9A-Fa-f]{2}))|(([0-9A-Fa-f]{2}:){7}([0-9A-Fa-f]{2}))|(([0-9A-Fa)re"
    R"re(-f]{2}-){5}([0-9A-Fa-f]{2}))|(([0-9A-Fa-f]{2}-){7}([0-9A-Fa-f]{2})))$|^$)re";
const std::string kIpV6 =
    R"re(^((([0-9A-Fa-f]{1,4}:){7}([0-9A-Fa-f]{1,4}|:))|(([0-9A-Fa-f]{1,4}:){6}(:[0-9A-Fa-f]{1,4}|()re"
    R"re((25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9)re"
    R"re(])){3})|:))|(([0-9A-Fa-f]{1,4}:){5}(((:[0-9A-Fa-f]{1,4}){1,2})|:((25[0-5]|2[0-4][0-9]|1[0-)re"
    R"re(9][0-9]|[1-9]?[0-9])(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])){3})|:))|(([0-9A-Fa-f])re"
    R"re({1,4}:){4}(((:[0-9A-Fa-f]{1,4}){1,3})|((:[0-9A-Fa-f]{1,4})?:((25[0-5]|2[0-4][0-9]|1[0-9][0)re"
    R"re(-9]|[1-9]?[0-9])(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])){3}))|:))|(([0-9A-Fa-f]{1,)re"
    R"re(4}:){3}(((:[0-9A-Fa-f]{1,4}){1,4})|((:[0-9A-Fa-f]{1,4}){0,2}:((25[0-5]|2[0-4][0-9]|1[0-9][)re"
    R"re(0-9]|[1-9]?[0-9])(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])){3}))|:))|(([0-9A-Fa-f]{1)re"
    R"re(,4}:){2}(((:[0-9A-Fa-f]{1,4}){1,5})|((:[0-9A-Fa-f]{1,4}){0,3}:((25[0-5]|2[0-4][0-9]|1[0-9])re"
    R"re([0-9]|[1-9]?[0-9])(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])){3}))|:))|(([0-9A-Fa-f]{)re"
    R"re(1,4}:){1}(((:[0-9A-Fa-f]{1,4}){1,6})|((:[0-9A-Fa-f]{1,4}){0,4}:((25[0-5]|2[0-4][0-9]|1[0-9)re"
    R"re(][0-9]|[1-9]?[0-9])(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])){3}))|:))|(:(((:[0-9A-F)re"
    R"re(a-f]{1,4}){1,7})|((:[0-9A-Fa-f]{1,4}){0,5}:((25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])()re"
    R"re(.(25[0-5]|2[0-4][0-9]|1[0-9][0-9]|[1-9]?[0-9])){3}))|:)))$)re";
const std::string kBehindIpV6OfIpAddr =
    R"re(|^(((25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)\.){3}(25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?))$|^)re"
    R"re($)re";
const std::string kBehindIpV6OfHostAddr =
    R"re(|^(((25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)\.){3}(25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?))$|^)re"
    R"re((([a-zA-Z0-9][a-zA-Z0-9-]{0,61}[a-zA-Z0-9])\.)+([a-zA-Z]|[a-zA-Z][a-zA-Z0-9-]{0,61}[a-zA-Z)re"
    R"re(0-9])$|^$)re";
// A typed edit, whatever its class.
struct Edit {
  Wt::WLineEdit *field;
  std::function<bool()> isValid;
  std::function<void(bool)> setMandatory;
};

template <class Typed> Edit make(Wt::WContainerWidget &root)
{
  Typed *edit = new Typed("rx", "s", true, &root);
  return {edit, [edit] { return edit->isValid(); }, [edit](bool on) { edit->mandatorySet(on); }};
}

struct Kind {
  const char *name;
  Edit (*make)(Wt::WContainerWidget &root);
  std::string pattern; // of a number: its range
  const char *maxLength;
  bool acceptsNothing;
  std::vector<std::string> accepted;
  std::vector<std::string> rejected;
};

const std::string kLabel63(63, 'a');

const std::vector<Kind> kKinds = {
    {"Eid",
     make<WEid>,
     kEid,
     "13",
     false,
     {"A1B2C3-D4E5F6", "abcdef-ghijkl", "000000-000000", "AbCdEf-012345"},
     {"A1B2C3D4E5F6", "A1B2C-D4E5F6", "A1B2C3-D4E5F67", "A1B2C3_D4E5F6", " A1B2C3-D4E5F6",
      "A1B2C3-D4E5F\xc3\xa9", "A1B2C3-D4E5F6\n"}},
    {"IpV4Addr",
     make<WIpV4Addr>,
     kIpV4,
     "57",
     false,
     {"0.0.0.0", "255.255.255.255", "192.168.0.1", "010.001.099.199", "1.02.3.4"},
     {"256.1.1.1", "1.1.1", "1.1.1.1.1", "1.1.1.1 ", "1,1,1,1", "1.1.1.-1", "::1", "1.1.1.0001", "a.b.c.d"}},
    {"IpV6Addr",
     make<WIpV6Addr>,
     kIpV6,
     "57",
     false,
     {"::", "::1", "fe80::1", "FE80:0:0:0:0:0:0:1", "1:2:3:4:5:6:7:8", "1:2:3:4:5:6:7::", "1::8",
      "1:2:3:4:5:6::8", "::ffff:192.168.0.1", "1:2:3:4:5:6:1.2.3.4", "1:2:3:4:5:6:1x2y3z4", "::ffff:1-2-3-4",
      "::1.2.3.4", "1::2:1.2.3.4", "2001:db8::1.2.3.4"},
     {"1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:9", "1::2::3", ":1", "12345::", "g::1", "fe80::1%eth0", "::256.1.1.1",
      "::1.2.3", "1.2.3.4", "[::1]", "fe80::1/64", ":::"}},
    {"IpAddr",
     make<WIpAddr>,
     kIpV6 + kBehindIpV6OfIpAddr,
     "57",
     true,
     {"::1", "192.168.0.1", "1:2:3:4:5:6:1x2y3z4", "fe80::1"},
     {"example.org", "1.2.3", "256.1.1.1", " ", "1.2.3.4|", "::1 ::1"}},
    {"HostAddr",
     make<WHostAddr>,
     kIpV6 + kBehindIpV6OfHostAddr,
     "255",
     true,
     {"::1", "192.168.0.1", "example.org", "EXAMPLE.Org", "a1-b.c-d.example.museum", "ab.c", "00.org",
      kLabel63 + ".org", "ntp.x"},
     {"localhost", "a.org", "example.", ".example.org", "-ab.org", "ab-.org", "example.9org", "ex_ample.org",
      "example..org", "exa mple.org", kLabel63 + "a.org", "example.org.", "1.2.3", "300.300.300.300"}},
    {"MacAddr",
     make<WMacAddr>,
     kMac,
     "23",
     true,
     {"00:11:22:33:44:55", "00:11:22:33:44:55:66:77", "aa-bb-cc-DD-EE-FF", "00-11-22-33-44-55-66-77"},
     {"00:11-22:33:44:55", "00-11-22-33-44:55", "00:11:22:33:44", "00:11:22:33:44:55:66", "001122334455",
      "00:11:22:33:44:5g", "00:11:22:33:44:55:66:77:88", "00:11:22:33:44:55-66-77"}},
    {"KeyCode",
     make<WKeyCode>,
     "0 to 255",
     "3",
     true,
     {"0", "255", "007", "+5", "88"},
     {"256", "-1", "1.0", "0x1", "a", "1 2", "99999999999999999999"}},
    {"MouseDelta",
     make<WMouseDelta>,
     "0 to 127",
     "3",
     true,
     {"0", "127", "64"},
     {"128", "-1", "255", "ten", "1e2"}},
};

void PrintTo(const Kind &kind, std::ostream *out)
{
  *out << kind.name;
}

std::string describe(const Wt::WValidator *validator)
{
  if (const auto *number = dynamic_cast<const Wt::WIntValidator *>(validator))
    return std::to_string(number->bottom()) + " to " + std::to_string(number->top());
  if (const auto *pattern = dynamic_cast<const Wt::WRegExpValidator *>(validator))
    return pattern->regExp().toUTF8();
  return "";
}

class TypedEdit : public testing::TestWithParam<Kind>
{
protected:
  TypedEdit()
      : page_([this](Wt::WContainerWidget &root) {
          edit_ = GetParam().make(root);
          edit_.field->setAttributeValue("aria-label", "Typed");
        })
  {
  }

  bool accepts(const std::string &text)
  {
    bool valid = false;
    page_.act([&] {
      edit_.field->setText(Wt::WString::fromUTF8(text));
      valid = edit_.isValid();
    });
    EXPECT_EQ(edit_.field->text().toUTF8(), text);
    return valid;
  }
  Wt::Testing::Node *field() { return page_.visitor.field("Typed"); }

  Edit edit_;
  KitPage page_;
};

INSTANTIATE_TEST_SUITE_P(Each, TypedEdit, testing::ValuesIn(kKinds),
                         [](const testing::TestParamInfo<Kind> &kind) { return kind.param.name; });

template <class Number> class TypedNumber : public BoundPage<Number>
{
protected:
  TypedNumber()
      : BoundPage<Number>([](Wt::WContainerWidget &root) { return new Number("rx", "s", true, &root); })
  {
  }
};
using Numbers = testing::Types<WKeyCode, WMouseDelta>;
TYPED_TEST_SUITE(TypedNumber, Numbers);

class TypedText : public BoundPage<WMacAddr>
{
protected:
  TypedText()
      : BoundPage<WMacAddr>([](Wt::WContainerWidget &root) { return new WMacAddr("rx", "s", true, &root); })
  {
  }
};

} // namespace

TEST_P(TypedEdit, hasAValidatorOfItsOwn)
{
  EXPECT_EQ(describe(edit_.field->validator()), GetParam().pattern);
}

TEST_P(TypedEdit, letsThePersonTypeSoManyCharacters)
{
  EXPECT_EQ(field()->get("maxlength"), GetParam().maxLength);
}

TEST_P(TypedEdit, acceptsWhatHasTheForm)
{
  for (const std::string &text : GetParam().accepted)
    EXPECT_TRUE(accepts(text)) << text;
}

TEST_P(TypedEdit, rejectsWhatHasNotTheForm)
{
  for (const std::string &text : GetParam().rejected)
    EXPECT_FALSE(accepts(text)) << text;
}

TEST_P(TypedEdit, acceptsNothingWhereTheFormHasItUnlessItIsMandatory)
{
  EXPECT_EQ(accepts(""), GetParam().acceptsNothing);
  page_.act([&] { edit_.setMandatory(true); });
  EXPECT_FALSE(accepts(""));
  EXPECT_TRUE(accepts(GetParam().accepted.front()));
}

TEST_P(TypedEdit, marksWhatThePersonTypesWrong)
{
  page_.visitor.type(field(), GetParam().rejected.front());
  page_.act([&] { EXPECT_FALSE(edit_.isValid()); });
  EXPECT_TRUE(field()->hasClass("Wt-invalid"));
  page_.visitor.type(field(), GetParam().accepted.front());
  page_.act([&] { EXPECT_TRUE(edit_.isValid()); });
  EXPECT_FALSE(field()->hasClass("Wt-invalid"));
}

TYPED_TEST(TypedNumber, readsAndWritesTheParameterAsANumber)
{
  this->store_.setRecords("rx", R"([{"index": 1, "s": 17}])");
  EXPECT_FALSE(this->read({1}));
  EXPECT_EQ(this->text(), "17");
  this->edit("99");
  EXPECT_EQ(this->added(), R"({"s":99})");
  EXPECT_FALSE(this->write({1}));
  EXPECT_THAT(this->written(), ElementsAre(R"({"index":1,"s":99})"));
}

TEST_F(TypedText, writesWhatItHoldsThoughItIsNotValid)
{
  store_.setRecords("rx", R"([{"index": 1, "s": "00:11:22:33:44:55"}])");
  EXPECT_FALSE(read({1}));
  EXPECT_EQ(text(), "00:11:22:33:44:55");
  edit("00:11-22");
  page_.act([&] { EXPECT_FALSE(widget_->isValid()); });
  EXPECT_FALSE(write({1}));
  EXPECT_THAT(written(), ElementsAre(R"({"index":1,"s":"00:11-22"})"));
}
