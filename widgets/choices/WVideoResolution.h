// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WVIDEO_RESOLUTION_H_
#define WIDGETS_WVIDEO_RESOLUTION_H_

#include "WWidgetZel.h"

#include <Wt/WText>

/// Shows the two numbers of a resolution, as "1920 x 1080"; blank where records differ in either and after a
/// failure.
class WVideoResolution : public Wt::WText, public WWidgetZel
{
public:
  /// The names of the parameters must outlive the widget.
  WVideoResolution(const char *resource, const char *horizontalParam, const char *verticalParam, bool indexed,
                   Wt::WContainerWidget *parent = 0);

  bool readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                        bool force) override;
  void getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force) override;

  /// In pixels; 0 while it is blank.
  unsigned int horizontalResolution() const { return horizontal; }
  unsigned int verticalResolution() const { return vertical; }

private:
  /// Shows what a read has put into `horizontal` and `vertical`, and returns what came of both.
  Agreement show(Agreement ofHorizontal, Agreement ofVertical);

  const char *const horizontalParam;
  const char *const verticalParam;
  unsigned int horizontal;
  unsigned int vertical;
};

#endif // WIDGETS_WVIDEO_RESOLUTION_H_
