// SPDX-License-Identifier: MIT
#include "WTxIconSelDialog.h"

#include "NevoPath.h"
#include "Text.h"

#include <Wt/WContainerWidget>
#include <Wt/WFileResource>
#include <Wt/WImage>
#include <Wt/WLink>
#include <Wt/WText>
#include <boost/bind.hpp>

namespace
{

constexpr unsigned int kIcons = 32; ///< standard ones, then those that can be replaced

} // namespace

WTxIconSelDialog::WTxIconSelDialog() : chosen(0)
{
  rejectWhenEscapePressed();
  new Wt::WText(text("Click an icon to associate it with the selected transmitter(s)."), Wt::PlainText,
                contents());
  Wt::WContainerWidget *grid = new Wt::WContainerWidget(contents());
  for (unsigned int index = 1; index <= kIcons; ++index) {
    Wt::WFileResource *file = new Wt::WFileResource("image/png", NevoPath_iconFileName(index), this);
    Wt::WImage *image = new Wt::WImage(Wt::WLink(file), grid);
    image->setStyleClass("nevo-tx-icon");
    image->clicked().connect(boost::bind(&WTxIconSelDialog::iconClickedHandler, this, index));
  }
}

void WTxIconSelDialog::iconClickedHandler(unsigned int index)
{
  chosen = index;
  accept();
}
