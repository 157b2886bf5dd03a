// SPDX-License-Identifier: MIT
#ifndef WT_WPROGRESSBAR_H_
#define WT_WPROGRESSBAR_H_

#include <Wt/WInteractWidget>
#include <string>

namespace Wt
{

/// Shows how far something has come. Values outside the range are kept as they are, and drawn at its ends.
class WProgressBar : public WInteractWidget
{
public:
  explicit WProgressBar(WContainerWidget *parent = nullptr);
  ~WProgressBar() override;

  /// Emits valueChanged() always, and progressCompleted() at the maximum.
  void setValue(double value);
  double value() const { return value_; }
  void setMinimum(double minimum);
  double minimum() const { return minimum_; }
  void setMaximum(double maximum);
  double maximum() const { return maximum_; }
  void setRange(double minimum, double maximum);

  /// The text shown for a number of percent: one conversion of a double, as printf has them. A format that is
  /// not of that kind is shown as it stands.
  void setFormat(const WString &format);
  const WString &format() const { return format_; }
  virtual WString text() const;

  Signal<> &progressCompleted() { return progressCompleted_; }
  Signal<double> &valueChanged() { return valueChanged_; }

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;
  void addOwnClasses(std::string &classes) const override;
  void domGone(Dom::Element &gone) noexcept override;

private:
  double percentage() const;

  double minimum_ = 0;
  double maximum_ = 100;
  double value_ = 0;
  WString format_;
  Dom::Element *bar_ = nullptr;
  Dom::Element *label_ = nullptr;
  Signal<> progressCompleted_;
  Signal<double> valueChanged_;
};

} // namespace Wt

#endif // WT_WPROGRESSBAR_H_
