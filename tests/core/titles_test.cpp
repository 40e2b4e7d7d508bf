#include "core/titles.h"

#include <gtest/gtest.h>

namespace gw {
namespace {

TEST(TitleTest, UntitledIsDecidedByTheLastEightCharacters) {
    EXPECT_TRUE(IsUntitledTitle(UntitledTitle(true)));
    EXPECT_EQ(UntitledTitle(false), "Vertical Curve - English: Untitled");
    EXPECT_TRUE(IsUntitledTitle("Vertical Curve - Metric: /tmp/Untitled"));  // a file named Untitled
    EXPECT_FALSE(IsUntitledTitle("Vertical Curve - Metric: untitled"));
}

TEST(TitleTest, SaveOfAnUntitledWindowLeavesTwoBlanksThatThePathLosesOnWrite) {
    const std::string title = TitleAfterSave(UntitledTitle(true), "/tmp/a.gwf");
    EXPECT_EQ(title, "Vertical Curve - Metric:  /tmp/a.gwf");
    EXPECT_EQ(PathFromTitle(title), " /tmp/a.gwf");
}

TEST(TitleTest, SaveAsReplacesEverythingAfterTheColonAndBlank) {
    EXPECT_EQ(TitleAfterSaveAs("Vertical Curve - Metric:  /tmp/a.gwf", "/tmp/b.gwf"),
              "Vertical Curve - Metric: /tmp/b.gwf");
    EXPECT_EQ(TitleAfterSaveAs(UntitledTitle(false), "/tmp/c"), "Vertical Curve - English: /tmp/c");
    // A path with a colon of its own: only the first colon counts.
    EXPECT_EQ(PathFromTitle("Vertical Curve - English: C:\\a.gwf"), "C:\\a.gwf");
}

TEST(TitleTest, ATitleWithoutAColonNamesItsPathByTheSameCount) {
    // The colon's position is then 0: the title less its first character.
    EXPECT_EQ(PathFromTitle("Vertical Curve"), "ertical Curve");
    EXPECT_EQ(CurveNameFromTitle("Vertical Curve"), "ertical Curve");
    EXPECT_EQ(PathFromTitle("Vertical Curve:"), "");
}

TEST(TitleTest, LoadedFilesAreTitledByTheStoredUnits) {
    EXPECT_EQ(TitleForLoadedFile("X", "English", "/p.gwf"), "Vertical Curve - English: /p.gwf");
    EXPECT_EQ(TitleForLoadedFile("Vertical Curve - Metric: Untitled", "Imperial", "/p.gwf"),
              "Vertical Curve - Metric: Untitled");
}

}  // namespace
}  // namespace gw
