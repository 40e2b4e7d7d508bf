#include "files/replace_file.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/disk_faults.h"
#include "tests/files/temp_folder.h"

namespace gw {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

void Put(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

std::vector<std::string> Names(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(ReplaceFileTest, ReplacesTheFileKeepsItsPermissionsAndALinkStaysALink) {
    test::TempFolder dir;
    Put(dir.File("target.gwf"), "old");
    ASSERT_EQ(::chmod(dir.File("target.gwf").c_str(), 0640), 0);
    fs::create_symlink("target.gwf", dir.File("link.gwf"));
    std::string error;
    ASSERT_TRUE(ReplaceFile(dir.File("link.gwf"), "new content", error)) << error;
    EXPECT_TRUE(fs::is_symlink(dir.File("link.gwf")));
    EXPECT_EQ(Read(dir.File("target.gwf")), "new content");
    EXPECT_EQ(fs::status(dir.File("target.gwf")).permissions() & fs::perms::all,
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(Names(dir.Path()), (std::vector<std::string>{"link.gwf", "target.gwf"}));
}

// Every way of failing part-way leaves the previous file byte for byte and nothing
// else: no fragment, no temporary file.
TEST(ReplaceFileTest, AFailedWriteLeavesThePreviousFileAndNoOther) {
    struct Case {
        const char* name;
        bool previous;        // a file is there before
        bool readOnlyFolder;  // the folder takes no temporary file
    } cases[] = {
        {"OverAFileOnAFullDisk", true, false},
        {"ANewFileOnAFullDisk", false, false},
        // Rewritten in place: the room for the new content is reserved before a byte
        // of the old is overwritten.
        {"InAFolderThatTakesNoNewFile", true, true},
    };
    const std::string previous(3000, 'p');
    const std::string replacement(40000, 'n');  // more than the old file's blocks
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        test::TempFolder dir;
        test::FullDisk disk(dir.Path() / "disk");
        const fs::path folder = disk.Folder() / "curves";
        fs::create_directories(folder);
        const fs::path file = folder / "curve.gwf";
        if (c.previous) Put(file, previous);
        disk.Fill();
        std::string error;
        bool written = true;
        {
            std::optional<test::ReadOnlyFolder> readOnly;
            if (c.readOnlyFolder) readOnly.emplace(folder, file);
            const auto limit = disk.WritesFail();
            written = ReplaceFile(file.string(), replacement, error);
        }
        EXPECT_FALSE(written);
        EXPECT_EQ(error, std::strerror(disk.Errno()));
        if (c.previous) {
            EXPECT_EQ(Read(file), previous);
            EXPECT_EQ(Names(folder), std::vector<std::string>{"curve.gwf"});
        } else {
            EXPECT_TRUE(Names(folder).empty());
        }
    }
}

}  // namespace
}  // namespace gw
