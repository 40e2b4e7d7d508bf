// What the system allows and programs often mishandle: file names that are not
// valid UTF-8, and a settings file that cannot be read.

#include <QDir>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "files/settings_store.h"
#include "platform/file_names.h"
#include "tests/qt_test_printers.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class UnusualFilesTest : public UiTest {};

// File names are bytes: a Latin-1 name listed in the recent files opens from its
// entry, and saving writes back to exactly that name. Once it was "This file does
// not exist.".
TEST_F(UnusualFilesTest, ANameThatIsNotUtf8OpensFromItsRecentEntryAndSavesToItself) {
    const std::string name = QFile::encodeName(FilePath("")).toStdString() + "/caf\xE9.gwf";
    const QByteArray bytes = EmptyCurveBytes("English");
    {
        FILE* f = std::fopen(name.c_str(), "wb");
        ASSERT_NE(f, nullptr);
        std::fwrite(bytes.constData(), 1, size_t(bytes.size()), f);
        std::fclose(f);
    }
    ASSERT_TRUE(m_platform.Settings().SaveSetting("Recent Files", "RecentFile1", name));
    Main().Menus().mnuRecentFile[0]->trigger();
    Settle();
    frmCrestCurve* w = Main().ActiveCurveWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(FileNameBytes(w->windowTitle()), "Vertical Curve - English: " + name);

    TypeInto(w->Field("txtLC"), "400");
    Save();
    struct stat info {};
    ASSERT_EQ(::stat(name.c_str(), &info), 0);
    EXPECT_GT(info.st_size, bytes.size());  // the new text, at the same name
    const auto files = std::distance(std::filesystem::directory_iterator(FilePath("").toStdString()), {});
    EXPECT_EQ(files, 1);
    EXPECT_EQ(m_platform.Settings().GetAllValues("Recent Files"), std::vector<std::string>{name});
    ::unlink(name.c_str());  // Qt's temporary folder cannot remove a name it cannot decode
}

// A pipe where the settings file should be: start-up neither waits on it (it once
// hung) nor, at the end, replaces it; the user is told once.
TEST_F(UnusualFilesTest, ASettingsFileThatCannotBeReadIsReportedOnceAndKept) {
    const QByteArray settings = QFile::encodeName(UserSettingsPath());
    ASSERT_TRUE(QDir().mkpath(QFileInfo(UserSettingsPath()).path()));
    ASSERT_EQ(::mkfifo(settings.constData(), 0600), 0);
    m_platform.AnswerMessage(MessageButton::Ok);
    Main();
    Settle();  // the report comes over the shown frame
    ASSERT_EQ(Messages().size(), 1);
    EXPECT_EQ(Messages().front(), "The settings in " + UserSettingsPath() +
                                      " could not be read (it is not a plain file). Gradewise works with its "
                                      "defaults and leaves that file as it is.");
    NewCurve();
    SaveAs(FilePath("a.gwf"));  // would list the file
    Main().close();
    Settle();
    struct stat info {};
    ASSERT_EQ(::stat(settings.constData(), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
    EXPECT_EQ(Messages().size(), 1);
}

}  // namespace
}  // namespace gw::test
