// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WVIDEO_SYNC_POLARITY_H_
#define WIDGETS_WVIDEO_SYNC_POLARITY_H_

#include "WTextZel.h"

/// Shows the polarity of a video signal's synchronization.
class WVideoSyncPolarity : public WTextZel
{
public:
  WVideoSyncPolarity(const char *resource, const char *param, bool indexed, Wt::WContainerWidget *parent = 0);

protected:
  Wt::WString textOf(const std::string &value) const override;
};

#endif // WIDGETS_WVIDEO_SYNC_POLARITY_H_
