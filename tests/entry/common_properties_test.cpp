#include "zenta/entry/common_properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/memory_property_bag.h"
#include "zenta/platform/headless/surface.h"

namespace zenta::entry {
namespace {

using ::testing::ElementsAre;

class CommonPropertiesTest : public ::testing::Test {
 protected:
  headless::Form form;
  headless::Surface& surface = form.AddSurface("s");
  headless::Host host{form};
  std::vector<std::string> hooks;
  CommonProperties properties{surface, host, colors::kTitleBlue,
                              {.apply_title_color = [this] { hooks.push_back("title"); },
                               .propagate_enabled = [this] { hooks.push_back("enabled"); },
                               .business_mode_changed = [this] { hooks.push_back("business"); }}};
};

TEST_F(CommonPropertiesTest, FirstCreationSetsDefaultsWithoutBusinessMode) {
  surface.SetBackColor(0);
  surface.SetEnabled(false);
  properties.InitNew();
  EXPECT_EQ(surface.BackColor(), colors::kButtonFace);
  EXPECT_TRUE(surface.Enabled());
  EXPECT_THAT(hooks, ElementsAre("title"));
}

// Every store, every key: a value that cannot be taken falls back to that key's default alone.
TEST_F(CommonPropertiesTest, AMistypedOrOutOfRangeValueFallsBackForItsKeyOnly) {
  headless::MemoryPropertyBag bag;
  bag.Set("BackColor", Variant(std::string("teal")));   // type mismatch (13)
  bag.Set("Enabled", Variant(false));
  bag.Set("BackColorTitle", Variant(1e12));               // overflow (6)
  bag.Set("BusinessMode", Variant(std::string("maybe")));  // type mismatch
  properties.Read(bag);
  EXPECT_EQ(surface.BackColor(), colors::kButtonFace);
  EXPECT_FALSE(surface.Enabled());
  EXPECT_EQ(properties.BackColorTitle(), colors::kTitleBlue);
  EXPECT_FALSE(properties.BusinessMode());
  EXPECT_THAT(bag.RefusedKeys(), ElementsAre("BackColor", "BackColorTitle", "BusinessMode"));
}

TEST_F(CommonPropertiesTest, LoadingRunsTheStepsInOrder) {
  headless::MemoryPropertyBag bag;
  bag.Set("Enabled", Variant(false));
  bag.Set("BusinessMode", Variant(true));
  properties.Read(bag);
  EXPECT_THAT(hooks, ElementsAre("enabled", "title", "business"));
  EXPECT_FALSE(surface.Enabled());
  EXPECT_TRUE(properties.BusinessMode());
  EXPECT_EQ(properties.BackColorTitle(), colors::kTitleBlue);
}

TEST_F(CommonPropertiesTest, RoundTripsNonDefaultsAndWritesNoDefaults) {
  properties.SetBackColor(Rgb(1, 2, 3));
  properties.SetBackColorTitle(colors::kTitleYellow);
  properties.SetBusinessMode(true);
  properties.SetEnabled(false);
  EXPECT_THAT(host.ChangedProperties(), ElementsAre("BackColor"));

  headless::MemoryPropertyBag bag;
  properties.Write(bag);
  EXPECT_EQ(bag.Values().size(), 4u);
  headless::Form other_form;
  auto& other_surface = other_form.AddSurface("t");
  CommonProperties loaded(other_surface, host, colors::kTitleBlue, {});
  loaded.Read(bag);
  EXPECT_EQ(other_surface.BackColor(), Rgb(1, 2, 3));
  EXPECT_EQ(loaded.BackColorTitle(), colors::kTitleYellow);
  EXPECT_TRUE(loaded.BusinessMode());
  EXPECT_FALSE(loaded.Enabled());

  headless::MemoryPropertyBag defaults;
  CommonProperties fresh(other_surface, host, colors::kTitleBlue, {});
  fresh.InitNew();
  fresh.Write(defaults);
  EXPECT_TRUE(defaults.Values().empty());
}

TEST_F(CommonPropertiesTest, SystemColoursSurviveTheStore) {
  properties.SetBackColor(colors::k3DLight);
  headless::MemoryPropertyBag bag;
  properties.Write(bag);
  properties.Read(bag);
  EXPECT_EQ(surface.BackColor(), colors::k3DLight);
}

}  // namespace
}  // namespace zenta::entry
