// Files that are not curve files at all open in bounded time and memory: only the
// start of a huge file is read, and nothing in it can make the reader loop.

#include <QElapsedTimer>
#include <QLabel>

#include "files/curve_file_io.h"
#include "tests/qt_test_printers.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class HugeFileTest : public UiTest {
protected:
    // Opens the file and checks that a window came up with nothing longer than the
    // reader takes in.
    void ExpectOpensBounded(const QString& path) {
        frmCrestCurve* w = Open(path);
        ASSERT_NE(w, nullptr);
        for (QLineEdit* field : w->findChildren<QLineEdit*>()) {
            EXPECT_LE(size_t(field->text().size()), kCurveFileReadLimit);
        }
        for (QLabel* label : w->findChildren<QLabel*>()) {
            EXPECT_LE(size_t(label->text().size()), kCurveFileReadLimit);
        }
        EXPECT_TRUE(m_platform.Messages().empty());
    }
};

TEST_F(HugeFileTest, AHundredMegabytesOfNulBytes) {
    const QString path = FilePath("nul.gwf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(100LL * 1024 * 1024));  // sparse: no disk is written
    file.close();
    ExpectOpensBounded(path);
}

TEST_F(HugeFileTest, OneEndlessLineWithoutAComma) {
    const QString path = FilePath("line.gwf");
    PutBytes(path, QByteArray(8 * 1024 * 1024, 'x'));
    ExpectOpensBounded(path);
}

TEST_F(HugeFileTest, CommasAndLineBreaksWithoutEnd) {
    const QString path = FilePath("commas.gwf");
    PutBytes(path, QByteArray(6 * 1024 * 1024, ',') + QByteArray(1024 * 1024, '\n'));
    ExpectOpensBounded(path);
}

}  // namespace
}  // namespace gw::test
