#include "files/settings_store.h"

#include <gtest/gtest.h>

#include <fstream>

#include "temp_folder.h"

namespace gw {
namespace {

using V = std::vector<std::string>;

void WriteText(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

TEST(SettingsStoreTest, MissingStoreGivesDefaultsAndFirstWriteCreatesIt) {
    test::TempFolder dir;
    SettingsStore store(dir.File("Gradewise/settings.ini"));
    EXPECT_EQ(store.GetSetting("Settings", "MainLeft", "105"), "105");
    EXPECT_EQ(store.GetAllValues("Recent Files"), V{});
    ASSERT_TRUE(store.SaveSetting("Settings", "MainLeft", "120"));
    EXPECT_EQ(SettingsStore(store.FilePath()).GetSetting("Settings", "MainLeft", "105"), "120");
}

TEST(SettingsStoreTest, ListsValuesInKeyCreationOrderNotSorted) {
    test::TempFolder dir;
    SettingsStore store(dir.File("s.ini"));
    store.SaveSetting("Recent Files", "RecentFile2", "b");
    store.SaveSetting("Recent Files", "RecentFile10", "c");
    store.SaveSetting("Recent Files", "RecentFile1", "a");
    store.SaveSetting("Settings", "MainTop", "1");
    store.SaveSetting("Recent Files", "RecentFile2", "B");  // rewriting keeps the place
    EXPECT_EQ(store.GetAllValues("Recent Files"), (V{"B", "c", "a"}));
    EXPECT_EQ(store.GetAllValues("Settings"), (V{"1"}));
}

TEST(SettingsStoreTest, ValuesWithAnyCharacterReadBackUnchanged) {
    test::TempFolder dir;
    SettingsStore store(dir.File("s.ini"));
    const std::string odd = "/tmp/a=b\\c [x]\n;not a comment\r\n#hash  ";
    ASSERT_TRUE(store.SaveSetting("Recent Files", "RecentFile1", odd));
    ASSERT_TRUE(store.SaveSetting("Recent Files", "RecentFile2", ""));
    EXPECT_EQ(store.GetSetting("Recent Files", "RecentFile1"), odd);
    EXPECT_EQ(store.GetSetting("Recent Files", "RecentFile2", "default"), "");
}

TEST(SettingsStoreTest, HandEditedAndGarbledFilesFallBackWithoutCrashing) {
    test::TempFolder dir;
    const std::string path = dir.File("s.ini");
    SettingsStore store(path);
    WriteText(path, "garbage line\n[Settings\nMainLeft=1\n[Settings]\n=novalue\nMainTop=7\r\n"
                    "MainTop=8\n[Recent Files]\nRecentFile1=x\n");
    EXPECT_EQ(store.GetSetting("Settings", "MainLeft", "d"), "d");  // under the broken header
    EXPECT_EQ(store.GetSetting("Settings", "MainTop", "d"), "8");
    EXPECT_EQ(store.GetAllValues("Recent Files"), (V{"x"}));

    std::string binary(4096, '\0');
    for (size_t i = 0; i < binary.size(); ++i) binary[i] = static_cast<char>(i * 131);
    WriteText(path, binary);
    EXPECT_EQ(store.GetSetting("Settings", "MainLeft", "105"), "105");
    EXPECT_TRUE(store.SaveSetting("Settings", "MainLeft", "3"));
    EXPECT_EQ(store.GetSetting("Settings", "MainLeft"), "3");

    WriteText(path, "");
    EXPECT_EQ(store.GetAllValues("Settings"), V{});
}

TEST(SettingsStoreTest, AFolderThatCannotBeCreatedIsReported) {
    test::TempFolder dir;
    WriteText(dir.File("plain"), "x");
    SettingsStore store(dir.File("plain/Gradewise/s.ini"));  // its parent is a file
    std::string error;
    EXPECT_FALSE(store.SaveSetting("Settings", "MainLeft", "2", &error));
    EXPECT_NE(error, "");
    EXPECT_EQ(store.GetSetting("Settings", "MainLeft", "105"), "105");
}

TEST(SettingsStoreTest, AStoreThatIsAFolderCannotBeWrittenButReadsAsEmpty) {
    test::TempFolder dir;
    std::filesystem::create_directories(dir.File("s.ini"));
    SettingsStore store(dir.File("s.ini"));
    EXPECT_EQ(store.GetSetting("Settings", "MainLeft", "105"), "105");
    std::string error;
    EXPECT_FALSE(store.SaveSetting("Settings", "MainLeft", "2", &error));
    EXPECT_NE(error, "");
}

}  // namespace
}  // namespace gw
