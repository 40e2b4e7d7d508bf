#include "files/settings_store.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <future>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "tests/files/temp_folder.h"

namespace gw {
namespace {

using V = std::vector<std::string>;

void WriteText(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

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
    WriteText(path,
              "garbage line\n[Settings\nMainLeft=1\n[Settings]\n=novalue\nMainTop=7\r\n"
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

// Runs `read` and says whether it came back within a few seconds; a FIFO nobody
// writes to would hold a blocking open for ever, so the test releases it by opening
// its other end before failing.
bool ReturnsPromptly(const std::function<void()>& read, const std::string& fifoToRelease) {
    std::promise<void> done;
    std::future<void> finished = done.get_future();
    std::thread reader([&] {
        read();
        done.set_value();
    });
    const bool prompt = finished.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
    if (!prompt) {
        const int fd = ::open(fifoToRelease.c_str(), O_WRONLY | O_NONBLOCK);
        if (fd >= 0) ::close(fd);
    }
    reader.join();
    return prompt;
}

// A store that exists but cannot be read is said so once, read as empty and never
// written, so whatever it holds survives the run.
TEST(SettingsStoreTest, AStoreThatCannotBeReadIsNeitherWaitedOnNorOverwritten) {
    struct Case {
        const char* name;
        std::function<void(const std::string& path)> make;
        const char* reason;
    } cases[] = {
        {"Fifo", [](const std::string& path) { ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0); }, "it is not a plain file"},
        {"Folder", [](const std::string& path) { std::filesystem::create_directories(path + "/inside"); },
         "it is not a plain file"},
        {"LargerThanAnyStore",
         [](const std::string& path) {
             WriteText(path, "[Recent Files]\nRecentFile1=/a\n" + std::string(2 << 20, ';'));
         },
         "it is larger than 1 MiB"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        test::TempFolder dir;
        const std::string path = dir.File("settings.ini");
        c.make(path);
        const auto before = std::filesystem::status(path).type();
        const auto size = std::filesystem::is_regular_file(path) ? std::filesystem::file_size(path) : 0;
        SettingsStore store(path);
        std::string value;
        ASSERT_TRUE(ReturnsPromptly([&] { value = store.GetSetting("Settings", "MainLeft", "105"); }, path));
        EXPECT_EQ(value, "105");
        EXPECT_EQ(store.ReadProblem(), "The settings in " + path + " could not be read (" + c.reason +
                                           "). Gradewise works with its defaults and leaves that file as it is.");
        std::string error;
        EXPECT_FALSE(store.SaveSetting("Recent Files", "RecentFile1", "/new", &error));
        EXPECT_EQ(error, "the settings file could not be read, so it is left as it is");
        EXPECT_EQ(std::filesystem::status(path).type(), before);
        if (size) {
            EXPECT_EQ(std::filesystem::file_size(path), size);
        }
    }
}

// Readable only to someone else: root reads anything, so the test reads as "nobody".
TEST(SettingsStoreTest, AStoreThatIsNotOursToReadKeepsItsRecentList) {
    test::TempFolder dir;
    const std::string path = dir.File("settings.ini");
    WriteText(path, "[Recent Files]\nRecentFile1=/a\n");
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    ASSERT_EQ(::chmod(dir.Path().c_str(), 0777), 0);  // the store could replace it
    {
        const bool root = ::geteuid() == 0;
        if (root) {
            ASSERT_EQ(::seteuid(65534), 0);
        }
        SettingsStore store(path);
        EXPECT_EQ(store.GetAllValues("Recent Files"), V{});
        EXPECT_NE(store.ReadProblem().find(std::strerror(EACCES)), std::string::npos);
        EXPECT_FALSE(store.SaveSetting("Settings", "MainLeft", "2"));
        if (root) {
            ASSERT_EQ(::seteuid(0), 0);
        }
    }
    ::chmod(path.c_str(), 0600);
    EXPECT_EQ(SettingsStore(path).GetAllValues("Recent Files"), V{"/a"});
}

TEST(SettingsStoreTest, ALinkedStoreIsWrittenThroughToItsTarget) {
    test::TempFolder dir;
    std::filesystem::create_directories(dir.File("dotfiles"));
    std::filesystem::create_directories(dir.File("config"));
    WriteText(dir.File("dotfiles/gradewise.ini"), "[Recent Files]\nRecentFile1=/a\n");
    std::filesystem::create_symlink("../dotfiles/gradewise.ini", dir.File("config/settings.ini"));
    SettingsStore store(dir.File("config/settings.ini"));
    ASSERT_TRUE(store.SaveSetting("Settings", "MainLeft", "120"));
    EXPECT_TRUE(std::filesystem::is_symlink(dir.File("config/settings.ini")));
    EXPECT_EQ(SettingsStore(dir.File("dotfiles/gradewise.ini")).GetSetting("Settings", "MainLeft"), "120");
    EXPECT_EQ(store.GetAllValues("Recent Files"), V{"/a"});
}

TEST(SettingsStoreTest, AByteOrderMarkBeforeTheFirstSectionIsRead) {
    test::TempFolder dir;
    const std::string path = dir.File("settings.ini");
    WriteText(path, "\xEF\xBB\xBF[Recent Files]\r\nRecentFile1=/a\r\nRecentFile2=/b\r\n");
    SettingsStore store(path);
    EXPECT_EQ(store.GetAllValues("Recent Files"), (V{"/a", "/b"}));
    ASSERT_TRUE(store.SaveSetting("Settings", "MainLeft", "120"));
    EXPECT_EQ(store.GetAllValues("Recent Files"), (V{"/a", "/b"}));
}

}  // namespace
}  // namespace gw
