// SPDX-License-Identifier: MIT
#ifndef APP_WSTANDARD_HEADER_H_
#define APP_WSTANDARD_HEADER_H_

#include <Wt/WContainerWidget>
#include <string>

/// The band across the top of every logged-in page: logos, who is logged in where, and the links.
class WStandardHeader : public Wt::WContainerWidget
{
public:
  /// `userName` is UTF-8, shown as it is.
  explicit WStandardHeader(std::string userName, Wt::WContainerWidget *parent = 0);
};

#endif // APP_WSTANDARD_HEADER_H_
