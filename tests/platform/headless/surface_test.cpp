#include "zenta/platform/headless/surface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

using ::testing::HasSubstr;

class SurfaceTest : public ::testing::Test {
 protected:
  Form form;
  Surface& surface = form.AddSurface("StdPayment1", 4800, 3600);
  std::vector<std::string> sizes;

  void RecordResizes() {
    surface.OnResize([&] { sizes.push_back(std::to_string(surface.Width()) + "x" + std::to_string(surface.Height())); });
  }
};

TEST_F(SurfaceTest, ResizeNotifiesOnlyWhenTheSizeChanges) {
  RecordResizes();
  surface.SetWidth(4800);
  surface.SetSize(4800, 3600);
  surface.SetWidth(5000);
  surface.SetSize(6000, 7000);
  surface.SetHeight(7000);
  EXPECT_EQ(sizes, (std::vector<std::string>{"5000x3600", "6000x7000"}));
}

TEST_F(SurfaceTest, AResizeHandlerMaySizeTheControlAgain) {
  int calls = 0;
  surface.OnResize([&] {
    ++calls;
    if (surface.Width() < 1815) surface.SetWidth(1815);
    if (surface.Height() < 1200) surface.SetHeight(1200);
  });
  surface.SetSize(10, 10);
  EXPECT_EQ(surface.Width(), 1815);
  EXPECT_EQ(surface.Height(), 1200);
  EXPECT_EQ(calls, 2);  // once for the host's size, once for the corrected one
}

TEST_F(SurfaceTest, AResizeHandlerThatNeverSettlesIsStopped) {
  surface.OnResize([&] { surface.SetWidth(surface.Width() + 1); });
  EXPECT_THROW(surface.SetWidth(100), std::logic_error);
  surface.OnResize([] {});
  surface.SetWidth(1);  // usable afterwards
  EXPECT_EQ(surface.Width(), 1);
}

TEST_F(SurfaceTest, GetNamesTheWidgetThatIsMissingOrOfAnotherKind) {
  auto& amount = surface.AddNumberEdit({"txtPaymentAmount"});
  EXPECT_EQ(&surface.Get<platform::NumberEdit>("txtPaymentAmount"), &amount);
  EXPECT_EQ(surface.Find("txtNothing"), nullptr);
  try {
    surface.Get<platform::NumberEdit>("txtNothing");
    FAIL();
  } catch (const std::logic_error& error) {
    EXPECT_THAT(error.what(), HasSubstr("txtNothing"));
  }
  try {
    surface.Get<platform::DateEdit>("txtPaymentAmount");
    FAIL();
  } catch (const std::logic_error& error) {
    EXPECT_THAT(error.what(), HasSubstr("txtPaymentAmount"));
  }
}

}  // namespace
}  // namespace zenta::headless
