#include "files/recent_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/files/temp_folder.h"

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
    for (int i = 1; i <= 8; ++i)
        store.SaveSetting("Recent Files", "RecentFile" + std::to_string(i), "/" + std::to_string(i));
    recent.UpdateRecentFileMenu();
    EXPECT_EQ(Shown().size(), 6u);
    EXPECT_EQ(Shown().back(), "/6");
}

// Two running copies of the program, each adding a file at the same moment, round
// after round: each must find the other's file still listed afterwards.
TEST_F(RecentFilesTest, TwoCopiesAddingAtOnceKeepBothFiles) {
    for (int round = 0; round < 200; ++round) {
        const std::string mine = "/first/" + std::to_string(round), theirs = "/second/" + std::to_string(round);
        int go[2];
        ASSERT_EQ(::pipe(go), 0);
        std::vector<pid_t> copies;
        for (const std::string& path : {mine, theirs}) {
            const pid_t pid = ::fork();
            ASSERT_GE(pid, 0);
            if (pid == 0) {
                char start;
                ::close(go[1]);
                (void)!::read(go[0], &start, 1);  // both start together
                SettingsStore own(store.FilePath());
                RecentFiles(own).AddRecentFile(path);
                ::_exit(0);
            }
            copies.push_back(pid);
        }
        ::close(go[0]);
        ::close(go[1]);  // the end of the pipe starts both
        for (pid_t pid : copies) {
            int status = 0;
            ::waitpid(pid, &status, 0);
            ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        }
        const V stored = Stored();
        ASSERT_GE(stored.size(), 2u);
        EXPECT_EQ(std::set<std::string>(stored.begin(), stored.begin() + 2), (std::set<std::string>{mine, theirs}))
            << "round " << round;
    }
}

}  // namespace
}  // namespace gw
