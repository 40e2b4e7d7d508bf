#include "files/recent_files.h"

#include <gtest/gtest.h>

#include "temp_folder.h"

namespace gw {
namespace {

using V = std::vector<std::string>;

class RecentFilesTest : public ::testing::Test {
protected:
    V Shown() const {
        V out;
        for (const RecentFileEntry& e : recent.Entries()) {
            if (e.visible) out.push_back(e.caption);
        }
        return out;
    }
    V Stored() const { return store.GetAllValues(RecentFiles::kSection); }

    test::TempFolder dir;
    SettingsStore store{dir.File("s.ini")};
    RecentFiles recent{store};
};

TEST_F(RecentFilesTest, NewestFirstUpToFourAndListedPathsKeepTheirPlace) {
    for (const char* p : {"/a", "/b", "/c"}) recent.AddRecentFile(p);
    EXPECT_EQ(Shown(), (V{"/c", "/b", "/a"}));
    EXPECT_EQ(store.GetSetting("Recent Files", "RecentFile3"), "/a");

    recent.AddRecentFile("/b");  // listed second: nothing moves
    recent.AddRecentFile("/c");
    EXPECT_EQ(Shown(), (V{"/c", "/b", "/a"}));

    recent.AddRecentFile("/d");
    recent.AddRecentFile("/e");  // a fifth: the oldest drops out
    EXPECT_EQ(Stored(), (V{"/e", "/d", "/c", "/b"}));
    EXPECT_EQ(Shown(), (V{"/e", "/d", "/c", "/b"}));

    recent.AddRecentFile("/B");  // letter case makes a new path
    EXPECT_EQ(Shown(), (V{"/B", "/e", "/d", "/c"}));
}

TEST_F(RecentFilesTest, OnlyShownEntriesCountAndShownEntriesStay) {
    store.SaveSetting("Recent Files", "RecentFile1", "/a");
    EXPECT_FALSE(recent.IsRecentFile("/a"));  // stored, but the menu was never built
    recent.UpdateRecentFileMenu();
    EXPECT_TRUE(recent.IsRecentFile("/a"));
    store.SaveSetting("Recent Files", "RecentFile1", "");
    recent.UpdateRecentFileMenu();
    EXPECT_EQ(Shown(), (V{"/a"}));
}

TEST_F(RecentFilesTest, AHandEditedSectionShowsAtMostSixEntries) {
    for (int i = 1; i <= 8; ++i) store.SaveSetting("Recent Files", "RecentFile" + std::to_string(i), "/" + std::to_string(i));
    recent.UpdateRecentFileMenu();
    EXPECT_EQ(Shown().size(), 6u);
    EXPECT_EQ(Shown().back(), "/6");
}

}  // namespace
}  // namespace gw
