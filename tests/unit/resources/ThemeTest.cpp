// SPDX-License-Identifier: MIT
#include "ResourceFiles.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{

using Roles = std::map<std::string, std::string>;

std::string themeText(const std::string &brand)
{
  return resourceText("themes/" + brand + "/wt.css");
}

/// The role settings of each ":root" block, in the order of the sheet: light, dark, more contrast, both.
std::vector<Roles> roleBlocks(const std::string &brand)
{
  std::vector<Roles> blocks;
  const std::string sheet = themeText(brand);
  const std::regex setting("(--nevo-[a-z-]+): ([^;]+);");
  for (std::size_t at = sheet.find(":root {"); at != std::string::npos; at = sheet.find(":root {", at + 1)) {
    const std::string block = sheet.substr(at, sheet.find('}', at) - at);
    Roles roles;
    for (std::sregex_iterator it(block.begin(), block.end(), setting), end; it != end; ++it)
      roles[(*it)[1]] = (*it)[2];
    blocks.push_back(roles);
  }
  return blocks;
}

/// The four looks of a brand, each with all its roles set.
std::map<std::string, Roles> looksOf(const std::string &brand)
{
  const std::vector<Roles> blocks = roleBlocks(brand);
  std::map<std::string, Roles> looks;
  if (blocks.size() != 4)
    return looks;
  const auto over = [](const Roles &base, Roles top) {
    top.insert(base.begin(), base.end());
    return top;
  };
  looks["light"] = blocks[0];
  looks["dark"] = over(blocks[0], blocks[1]);
  looks["light, more contrast"] = over(blocks[0], blocks[2]);
  looks["dark, more contrast"] = over(over(looks["dark"], blocks[2]), blocks[3]);
  return looks;
}

double channel(const std::string &colour, int position)
{
  const double value = std::strtol(colour.substr(position, 2).c_str(), nullptr, 16) / 255.0;
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const std::string &colour)
{
  return 0.2126 * channel(colour, 1) + 0.7152 * channel(colour, 3) + 0.0722 * channel(colour, 5);
}

/// The contrast of two colours "#rrggbb", 1 to 21.
double contrast(const std::string &one, const std::string &other)
{
  const double a = luminance(one), b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

struct Pair {
  const char *front;
  std::vector<const char *> grounds;
  double least;
};

const std::vector<Pair> kPairs = {
    {"text", {"page", "surface", "raised", "field", "title", "head", "bar", "hover", "accent-soft"}, 4.5},
    {"muted", {"page", "surface", "raised", "field", "title", "head", "bar", "hover"}, 4.5},
    {"accent", {"page", "surface", "raised", "field"}, 4.5},
    {"danger", {"surface", "raised", "field"}, 4.5},
    {"on-primary", {"primary", "primary-hover"}, 4.5},
    {"on-header", {"header", "header-hover"}, 4.5},
    {"edge", {"page", "surface", "raised", "field"}, 3},
    {"accent", {"accent-soft"}, 3},
    {"warning", {"surface", "hover", "accent-soft"}, 3},
    {"info", {"surface", "hover", "accent-soft"}, 3},
    {"focus", {"page", "surface", "raised", "title", "head", "bar", "hover", "accent-soft"}, 3},
};

/// Width and height of a PNG file, or zeros.
std::pair<unsigned, unsigned> pictureSize(const std::string &name)
{
  const std::string data = resourceText(name);
  if (data.size() < 24 || data.compare(0, 8, "\x89PNG\r\n\x1a\n") != 0)
    return {0, 0};
  const auto number = [&data](std::size_t at) {
    unsigned value = 0;
    for (std::size_t i = at; i < at + 4; ++i)
      value = value << 8 | static_cast<unsigned char>(data[i]);
    return value;
  };
  return {number(16), number(20)};
}

struct Picture {
  const char *name;
  unsigned width, height; ///< pixels; twice the shown size where that is fixed by code or sheet
};

const Picture kPictures[] = {
    {"context-panel-button-collapsed-idle", 32, 32},
    {"context-panel-button-expanded-idle", 32, 32},
    {"establish-kvm-session", 32, 32},
    {"event-severity-error", 32, 32},
    {"event-severity-info", 32, 32},
    {"event-severity-warning", 32, 32},
    {"flash-display", 32, 32},
    {"icon-unknown", 24, 24},
    {"login-banner", 1400, 352},
    {"login-user", 32, 32},
    {"nav-accordion-title-button-collapsed-idle", 32, 32},
    {"nav-accordion-title-button-expanded-idle", 32, 32},
    {"preferences", 32, 32},
    {"settings", 32, 32},
    {"update-firmware", 32, 32},
    {"upload", 32, 32},
    {"video-monitor-pull", 32, 32},
    {"video-monitor-push", 32, 32},
};

TEST(Theme, setsTheSameRolesInEveryBrand)
{
  for (const char *brand : kBrandNames) {
    const std::vector<Roles> blocks = roleBlocks(brand), model = roleBlocks(kBrandNames[0]);
    ASSERT_EQ(blocks.size(), 4u) << brand;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
      std::set<std::string> names, expected;
      for (const auto &role : blocks[i])
        names.insert(role.first);
      for (const auto &role : model[i])
        expected.insert(role.first);
      EXPECT_EQ(names, expected) << brand << ", block " << i;
    }
  }
}

TEST(Theme, setsEveryRoleThatTheSharedSheetUses)
{
  const std::string sheet = resourceText("themes/common.css");
  const std::regex use("var\\((--nevo-[a-z-]+)\\)"), own("(--nevo-[a-z-]+):");
  Roles defined = roleBlocks(kBrandNames[0]).at(0);
  for (std::sregex_iterator it(sheet.begin(), sheet.end(), own), end; it != end; ++it)
    defined[(*it)[1]] = "";
  for (std::sregex_iterator it(sheet.begin(), sheet.end(), use), end; it != end; ++it)
    EXPECT_TRUE(defined.count((*it)[1])) << (*it)[1];
}

TEST(Theme, givesTextAndEdgesEnoughContrastInEveryLook)
{
  for (const char *brand : kBrandNames) {
    const std::map<std::string, Roles> looks = looksOf(brand);
    ASSERT_EQ(looks.size(), 4u) << brand;
    for (const auto &look : looks)
      for (const Pair &pair : kPairs)
        for (const char *ground : pair.grounds)
          EXPECT_GE(contrast(look.second.at(std::string("--nevo-") + pair.front),
                             look.second.at(std::string("--nevo-") + ground)),
                    pair.least)
              << brand << ", " << look.first << ": " << pair.front << " on " << ground;
  }
}

TEST(Theme, loadsNothingButTheSharedSheet)
{
  EXPECT_EQ(resourceText("themes/common.css").find("url("), std::string::npos);
  for (const char *brand : kBrandNames) {
    const std::string sheet = themeText(brand);
    EXPECT_NE(sheet.find("@import url(\"../common.css\");"), std::string::npos) << brand;
    EXPECT_EQ(sheet.find("url("), sheet.rfind("url(")) << brand;
  }
}

TEST(Theme, hasEveryPictureOfTheScreensInEveryBrand)
{
  for (const char *brand : kBrandNames) {
    const std::string folder = std::string("themes/") + brand + "/";
    for (const Picture &picture : kPictures)
      EXPECT_EQ(pictureSize(folder + picture.name + ".png"), std::make_pair(picture.width, picture.height))
          << folder << picture.name;
    EXPECT_EQ(pictureSize(folder + "logo-primary-page-header.png").second, 64u) << brand;
    EXPECT_EQ(pictureSize(folder + "logo-secondary-page-header.png").second, 64u) << brand;
    EXPECT_EQ(resourceText(folder + "favicon.ico").compare(0, 4, std::string("\0\0\1\0", 4)), 0) << brand;
  }
}

TEST(Theme, keepsTheFirstPageSmall)
{
  for (const char *brand : kBrandNames) {
    const std::string folder = std::string("themes/") + brand + "/";
    EXPECT_LE(std::filesystem::file_size(resourcePath(folder + "login-banner.png")), 14u * 1024) << brand;
    EXPECT_LE(std::filesystem::file_size(resourcePath(folder + "wt.css")) +
                  std::filesystem::file_size(resourcePath("themes/common.css")),
              30u * 1024)
        << brand;
  }
}

} // namespace
