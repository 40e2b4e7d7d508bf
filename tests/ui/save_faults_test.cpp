// Saving when the disk or the folder says no: one message with the system's reason,
// the previous file as it was, and a program that goes on working.

#include <QDir>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "tests/disk_faults.h"
#include "tests/qt_test_printers.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class SaveFaultTest : public UiTest {
protected:
    void ExpectOneExclamation(const QString& reason) {
        ASSERT_EQ(m_platform.Messages().size(), 1u);
        EXPECT_EQ(m_platform.Messages().front().text, reason);
        EXPECT_EQ(m_platform.Messages().front().icon, MessageIcon::Exclamation);
        EXPECT_EQ(m_platform.Messages().front().title, "Gradewise");
    }
    // The program still saves, and a successful save clears the changed mark.
    void ExpectSavingStillWorks(frmCrestCurve& w) {
        SaveAs(FilePath("afterwards.gwf"));
        EXPECT_FALSE(Changed(w));
        EXPECT_TRUE(QFile::exists(FilePath("afterwards.gwf")));
    }
};

TEST_F(SaveFaultTest, AFullDeviceIsReportedAndStaysADevice) {
    const QString full = FilePath("full.gwf");
    // The same device as /dev/full, made here so the test never touches the real one.
    if (::mknod(QFile::encodeName(full).constData(), S_IFCHR | 0666, makedev(1, 7)) != 0) {
        GTEST_SKIP() << "cannot make a device node here";
    }
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtLC"), "400");
    m_platform.AnswerMessage(MessageButton::Ok);
    SaveAs(full);
    ExpectOneExclamation(QString::fromLocal8Bit(std::strerror(ENOSPC)));
    struct stat info {};
    ASSERT_EQ(::stat(QFile::encodeName(full).constData(), &info), 0);
    EXPECT_TRUE(S_ISCHR(info.st_mode));
    EXPECT_TRUE(Changed(w));
    ExpectSavingStillWorks(w);
}

TEST_F(SaveFaultTest, APathThatIsAFolderIsReportedAndTheFolderKept) {
    ASSERT_TRUE(QDir().mkpath(FilePath("folder.gwf/inside")));
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtLC"), "400");
    m_platform.AnswerMessage(MessageButton::Ok);
    SaveAs(FilePath("folder.gwf"));
    ASSERT_EQ(m_platform.Messages().size(), 1u);
    EXPECT_FALSE(m_platform.Messages().front().text.isEmpty());
    EXPECT_TRUE(QFileInfo(FilePath("folder.gwf/inside")).isDir());
    EXPECT_TRUE(Changed(w));
    ExpectSavingStillWorks(w);
}

TEST_F(SaveFaultTest, AFileDeletedAfterOpeningIsWrittenAgainOnSave) {
    const QString path = FilePath("deleted.gwf");
    PutBytes(path, EmptyCurveBytes("English"));
    frmCrestCurve* w = Open(path);
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(QFile::remove(path));
    TypeInto(w->Field("txtLC"), "400");
    Save();
    EXPECT_TRUE(m_platform.Messages().empty());
    EXPECT_TRUE(Bytes(path).contains("\"400\""));
    EXPECT_FALSE(Changed(*w));
}

TEST_F(SaveFaultTest, AFolderDeletedAfterOpeningIsReportedAndNothingIsLost) {
    ASSERT_TRUE(QDir().mkpath(FilePath("gone")));
    const QString path = FilePath("gone/curve.gwf");
    PutBytes(path, EmptyCurveBytes("Metric"));
    frmCrestCurve* w = Open(path);
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(QDir(FilePath("gone")).removeRecursively());
    TypeInto(w->Field("txtLC"), "250");
    m_platform.AnswerMessage(MessageButton::Ok);
    Save();
    ExpectOneExclamation(QString::fromLocal8Bit(std::strerror(ENOENT)));
    EXPECT_EQ(Title(*w), "Vertical Curve - Metric: " + path);
    EXPECT_TRUE(Changed(*w));
    EXPECT_EQ(w->Field("txtLC")->text(), "250");
    ExpectSavingStillWorks(*w);
}

// A folder that takes no temporary file (read-only, the file in it writable) gets the
// file rewritten in place, but only once the room for it is reserved: writes that
// fail (here past a file-size limit, as on a full disk) fail before the old content
// is touched. Once this left a fragment of the new text.
TEST_F(SaveFaultTest, AFolderThatTakesNoNewFileIsRewrittenOnlyWhenTheRoomIsThere) {
    ASSERT_TRUE(QDir().mkpath(FilePath("locked")));
    ASSERT_EQ(::chmod(QFile::encodeName(FilePath("")).constData(), 0755), 0);  // "nobody" may look in
    const QString path = FilePath("locked/curve.gwf");
    PutBytes(path, EmptyCurveBytes("Metric"));
    frmCrestCurve* w = Open(path);
    ASSERT_NE(w, nullptr);
    TypeInto(w->Field("txtLC"), "400");
    m_platform.AnswerMessage(MessageButton::Ok);
    const std::string folder = QFile::encodeName(FilePath("locked")).toStdString();
    const std::string file = QFile::encodeName(path).toStdString();
    {
        ReadOnlyFolder readOnly(folder, file);
        FullDisk::Limit full(true);
        Save();
    }
    ExpectOneExclamation(QString::fromLocal8Bit(std::strerror(EFBIG)));
    EXPECT_EQ(Bytes(path), EmptyCurveBytes("Metric"));
    EXPECT_TRUE(Changed(*w));
    {
        ReadOnlyFolder readOnly(folder, file);
        Save();
    }
    EXPECT_TRUE(Bytes(path).contains("\"400\""));
    EXPECT_FALSE(Changed(*w));
    EXPECT_EQ(QDir(FilePath("locked")).entryList(QDir::Files | QDir::Hidden), QStringList{"curve.gwf"});
}

}  // namespace
}  // namespace gw::test
