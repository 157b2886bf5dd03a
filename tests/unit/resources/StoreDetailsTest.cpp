// SPDX-License-Identifier: MIT
// What the store names in a refusal has a text in the bundle.
#include "ResourceFiles.h"
#include "data/Catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <set>
#include <string>

using testing::IsEmpty;

namespace
{

void addNames(const zelsim::Parameter *rows, std::size_t count, std::set<std::string> &names)
{
  for (std::size_t i = 0; i < count; ++i) {
    names.insert(rows[i].name);
    addNames(rows[i].members, rows[i].memberCount, names);
  }
}

// Every detail that a refusal can carry: a server lets no other one through.
std::set<std::string> detailsOfStore()
{
  std::set<std::string> names = {"index"};
  for (std::size_t i = 0; i < zelsim::kCatalogueSize; ++i)
    if (zelsim::kCatalogue[i].methods != 0)
      addNames(zelsim::kCatalogue[i].parameters, zelsim::kCatalogue[i].parameterCount, names);
  return names;
}

} // namespace

TEST(StoreDetails, allHaveATextInTheBundle)
{
  pugi::xml_document document;
  ASSERT_TRUE(document.load_file(resourcePath("msgs-general.xml").c_str()));
  std::set<std::string> missing = detailsOfStore();
  EXPECT_GT(missing.size(), 200U);
  for (const pugi::xml_node &message : document.child("messages").children("message"))
    missing.erase(message.attribute("id").value());
  EXPECT_THAT(missing, IsEmpty());
}

TEST(StoreDetails, areNamesOfTheCatalogue)
{
  for (const std::string &name : detailsOfStore())
    EXPECT_TRUE(zelsim::isDataName(name)) << name;
  EXPECT_FALSE(zelsim::isDataName("nothing"));
  EXPECT_FALSE(zelsim::isDataName(""));
}
