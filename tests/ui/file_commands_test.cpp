// Open, Save and Save As through the File menu: the titles that record the path,
// the dialogs' settings, the bytes written, and what a failed write leaves behind.

#include <QCoreApplication>
#include <QDir>
#include <QRadioButton>
#include <csignal>
#include <cstring>
#include <sys/resource.h>

#include "core/curve_file.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class FileCommandsTest : public UiTest {};

TEST_F(FileCommandsTest, SaveOfAnUntitledCurveWritesItAndTitlesItWithTwoBlanks) {
    frmCrestCurve& w = NewCurve();
    const QString path = FilePath("a.gwf");
    m_platform.AnswerSaveFile(path);
    Save();
    EXPECT_EQ(Bytes(path), EmptyCurveBytes("Metric"));
    EXPECT_EQ(Title(w), "Vertical Curve - Metric:  " + path);
    EXPECT_FALSE(Changed(w));
    EXPECT_TRUE(RecentShown().isEmpty());  // Save never lists a path
    ASSERT_EQ(m_platform.SaveRequests().size(), 1u);
    const FileDialogRequest& asked = m_platform.SaveRequests().front();
    EXPECT_EQ(asked.folder, QCoreApplication::applicationDirPath());
    ASSERT_EQ(asked.filters.size(), 2u);
    EXPECT_EQ(asked.filters[1].pattern, "*.gwf");
    EXPECT_EQ(asked.selectedFilter, 1);

    // Saved again without a dialog, over the file, to the path without its leading blank.
    PutBytes(path, "old");
    TypeInto(w.Field("txtLC"), "12.50");
    Save();
    EXPECT_EQ(m_platform.SaveRequests().size(), 1u);
    EXPECT_TRUE(Bytes(path).contains("\"12.50\""));
    EXPECT_EQ(QDir(FilePath("")).entryList(QDir::Files), QStringList{"a.gwf"});
    EXPECT_EQ(m_platform.BusySpells(), 2);
}

TEST_F(FileCommandsTest, CancelledSaveLeavesTheCurveUntitledAndWritesNothing) {
    frmCrestCurve& w = NewCurve(false);
    TypeInto(w.Field("txtLC"), "1");
    m_platform.AnswerSaveFile(std::nullopt);
    Save();
    EXPECT_EQ(Title(w), "Vertical Curve - English: Untitled");
    EXPECT_TRUE(Changed(w));
    EXPECT_TRUE(QDir(FilePath("")).isEmpty());
}

TEST_F(FileCommandsTest, SaveAsOfASavedCurveTitlesItWithOneBlankAndListsThePathFirst) {
    frmCrestCurve& w = NewCurve(false);
    m_platform.AnswerSaveFile(FilePath("first.gwf"));
    Save();  // titled with two blanks
    const QString path = FilePath("b.gwf");
    SaveAs(path);
    EXPECT_EQ(Title(w), "Vertical Curve - English: " + path);
    EXPECT_EQ(Bytes(path), EmptyCurveBytes("English"));
    EXPECT_EQ(RecentShown(), QStringList{path});
}

TEST_F(FileCommandsTest, WithoutACurveWindowOnlyOpenAsksAndAMissingFileOrFolderOpensNothing) {
    Main().Menus().mnuSave->trigger();
    Main().Menus().mnuSaveAs->trigger();
    EXPECT_TRUE(m_platform.SaveRequests().empty());
    for (const QString& path : {FilePath("missing.gwf"), FilePath("")}) {
        m_platform.AnswerMessage(MessageButton::Ok);
        EXPECT_EQ(Open(path), nullptr);
    }
    EXPECT_EQ(m_platform.OpenRequests().front().selectedFilter, 1);
    EXPECT_EQ(Messages(), QStringList({"This file does not exist.", "This file does not exist."}));
    EXPECT_TRUE(RecentShown().isEmpty());
}

TEST_F(FileCommandsTest, APvcPvtCurveOpensInItsModeWithEveryTextInPlace) {
    frmCrestCurve& w = NewCurve(false);
    QTest::mouseClick(w.findChild<QRadioButton*>("optPVCPVT"), Qt::LeftButton);
    Settle();
    for (auto [name, text] : {std::pair{"txtG1", "2"},
                              {"txtPVCSTA", "10"},
                              {"txtPVCSTAM", "0"},
                              {"txtPVCEval", "100"},
                              {"txtPVTSTA", "14"},
                              {"txtPVTSTAM", "0"},
                              {"txtPVTEval", "100"}}) {
        TypeInto(w.Field(name), text);
    }
    QTest::keyClick(w.Field("txtPVTEval"), Qt::Key_Return);
    ASSERT_EQ(w.Field("txtLC")->text(), "400.0");
    const QString path = FilePath("pvc.gwf");
    SaveAs(path);
    EXPECT_EQ(Bytes(path), QByteArray::fromStdString(CurveFileBytes(w.GatherSheet())));

    frmCrestCurve* opened = Open(path);
    ASSERT_NE(opened, nullptr);
    ASSERT_NE(opened, &w);
    EXPECT_TRUE(opened->findChild<QRadioButton*>("optPVCPVT")->isChecked());
    EXPECT_TRUE(opened->Field("txtLC")->isReadOnly());                                  // laid out for the mode
    EXPECT_EQ(CurveFileBytes(opened->GatherSheet()), CurveFileBytes(w.GatherSheet()));  // every text
    EXPECT_EQ(Title(*opened), "Vertical Curve - English: " + path);
    EXPECT_FALSE(Changed(*opened));
}

TEST_F(FileCommandsTest, AFourLineFileOpensWithEmptyElevationsInAReusedSlot) {
    // Slot 1 last held rows of another curve.
    frmCrestCurve& first = NewCurve();
    Main().Slots()[1].elevationsWindow->RowField("txtTOTSTA1", 0)->setText("1");
    Main().Slots()[1].elevationsWindow->Field("txtVOffset")->setText("4");
    Close(first);

    const QByteArray fourLines =
        "\"\",\"English\",,,,\"45.5\"\r\n\"100\",\"12\",\"-1.5\",\"2\",\"400\",\"\",\"\"\r\n"
        "\"\",\"\",\"\",\"\",\"\",\"\"\r\n#TRUE#,#FALSE#,\"\",\"\"\r\n";
    PutBytes(FilePath("four.gwf"), fourLines);
    frmCrestCurve* opened = Open(FilePath("four.gwf"));
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->Slot(), 1);
    EXPECT_EQ(opened->Field("txtPVISTAM")->text(), "45.5");
    EXPECT_EQ(Main().Slots()[1].elevationsWindow->Table().rows[0].txtTOTSTA1, "");
    EXPECT_EQ(Main().Slots()[1].elevationsWindow->Table().txtVOffset, "");
    // Saved again unchanged, it is the full eight-line image.
    Save();
    EXPECT_TRUE(Bytes(FilePath("four.gwf")).startsWith(fourLines));
    EXPECT_EQ(Bytes(FilePath("four.gwf")).count("\r\n"), 8);
}

TEST_F(FileCommandsTest, TheSameFileOpensTwiceInTwoWindows) {
    NewCurve();
    SaveAs(FilePath("twice.gwf"));
    frmCrestCurve* a = Open(FilePath("twice.gwf"));
    frmCrestCurve* b = Open(FilePath("twice.gwf"));
    ASSERT_TRUE(a && b);
    EXPECT_NE(a->Slot(), b->Slot());
    EXPECT_EQ(RecentShown(), QStringList{FilePath("twice.gwf")});
}

// Writes past this many bytes fail, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &m_saved);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = m_saved;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_saved{};
    void (*m_handler)(int) = nullptr;
};

struct FailedSaveCase {
    const char* name;
    bool titled;
    const char* titleAfter;  // with %1 for the path
};

void PrintTo(const FailedSaveCase& c, std::ostream* os) { *os << c.name; }

class FailedSaveTest : public FileCommandsTest, public ::testing::WithParamInterface<FailedSaveCase> {};

TEST_P(FailedSaveTest, KeepsThePreviousFileAndReportsOnce) {
    const QString path = FilePath("kept.gwf");
    const QByteArray previous = "previous content";
    frmCrestCurve& w = NewCurve();
    if (GetParam().titled) SaveAs(path);
    PutBytes(path, previous);
    TypeInto(w.Field("txtPVIEval"), "123");
    if (!GetParam().titled) m_platform.AnswerSaveFile(path);
    m_platform.AnswerMessage(MessageButton::Ok);
    {
        FileSizeLimit limit(32);
        Save();
    }
    EXPECT_EQ(Bytes(path), previous);
    EXPECT_EQ(QDir(FilePath("")).entryList(QDir::Files | QDir::Hidden), QStringList{"kept.gwf"});
    ASSERT_EQ(m_platform.Messages().size(), 1u);
    const MessageRequest& box = m_platform.Messages().front();
    EXPECT_EQ(box.text, QString::fromLocal8Bit(std::strerror(EFBIG)));
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(box.title, "Gradewise");
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
    EXPECT_EQ(m_platform.MessagesUnderBusyPointer(), 0);
    EXPECT_EQ(Title(w), QString::fromLatin1(GetParam().titleAfter).arg(path));
    EXPECT_TRUE(Changed(w));
}

INSTANTIATE_TEST_SUITE_P(Windows, FailedSaveTest,
                         ::testing::Values(FailedSaveCase{"Titled", true, "Vertical Curve - Metric: %1"},
                                           // The title takes the chosen path before the write.
                                           FailedSaveCase{"Untitled", false, "Vertical Curve - Metric:  %1"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(FileCommandsTest, SaveAsIntoAMissingFolderStillTitlesAndListsThePath) {
    frmCrestCurve& w = NewCurve();
    TypeInto(w.Field("txtLC"), "5");
    const QString path = FilePath("gone/c.gwf");
    m_platform.AnswerMessage(MessageButton::Ok);
    SaveAs(path);
    EXPECT_EQ(m_platform.Messages().size(), 1u);
    EXPECT_EQ(Title(w), "Vertical Curve - Metric: " + path);
    EXPECT_EQ(RecentShown(), QStringList{path});
    EXPECT_TRUE(Changed(w));
}

}  // namespace
}  // namespace gw::test
