// The desktop's file dialogs as the platform sets them up: the two filters shown
// by their descriptions with curve files selected, the program's folder, any name
// accepted as typed and no question before overwriting.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "platform/qt_platform.h"

namespace gw::test {
namespace {

FileDialogRequest CurveRequest(const QString& folder, const QString& fileName) {
    FileDialogRequest request;
    request.folder = folder;
    request.fileName = fileName;
    request.filters = {{"All Files (*.*)", "*.*"}, {"Gradewise files (*.gwf)", "*.gwf"}};
    request.selectedFilter = 1;
    return request;
}

// Runs `answer` on the file dialog once it is up.
void WhenShown(std::function<void(QFileDialog&)> answer) {
    QTimer::singleShot(0, [answer] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            answer(*dialog);
        } else {
            WhenShown(answer);
        }
    });
}

QStringList ShownFilters(QFileDialog& dialog) {
    QStringList shown;
    if (auto* combo = dialog.findChild<QComboBox*>("fileTypeCombo")) {
        for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
    }
    return shown;
}

TEST(QtFileDialogTest, SaveDialogProposesTheNameAmongCurveFilesWithoutOverwriteQuestion) {
    QTemporaryDir folder;
    QtPlatform platform;
    bool seen = false;
    WhenShown([&](QFileDialog& d) {
        seen = true;
        EXPECT_EQ(ShownFilters(d), QStringList({"All Files (*.*)", "Gradewise files (*.gwf)"}));
        auto* combo = d.findChild<QComboBox*>("fileTypeCombo");
        ASSERT_NE(combo, nullptr);
        EXPECT_EQ(combo->currentText(), "Gradewise files (*.gwf)");
        EXPECT_TRUE(d.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(d.defaultSuffix(), "");
        EXPECT_EQ(d.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(QDir(d.directory()).absolutePath(), QDir(folder.path()).absolutePath());
        EXPECT_EQ(d.findChild<QLineEdit*>("fileNameEdit")->text(), "untitled");
        d.reject();
    });
    EXPECT_EQ(platform.GetSaveFileName(nullptr, CurveRequest(folder.path(), "untitled")), std::nullopt);
    EXPECT_TRUE(seen);
}

TEST(QtFileDialogTest, OpenDialogGivesATypedNameThatDoesNotExist) {
    QTemporaryDir folder;
    QtPlatform platform;
    WhenShown([](QFileDialog& d) {
        EXPECT_EQ(d.acceptMode(), QFileDialog::AcceptOpen);
        d.findChild<QLineEdit*>("fileNameEdit")->setText("nothing");
        static_cast<QDialog&>(d).accept();  // as the Open button does
    });
    const std::optional<QString> chosen = platform.GetOpenFileName(nullptr, CurveRequest(folder.path(), {}));
    EXPECT_EQ(chosen, QDir(folder.path()).filePath("nothing"));
}

TEST(QtFileDialogTest, TheDialogKeepsNothingOfItsOwnPerUser) {
    QTemporaryDir folder;
    QtPlatform platform;
    WhenShown([](QFileDialog& d) { d.reject(); });
    platform.GetOpenFileName(nullptr, CurveRequest(folder.path(), {}));
    // Where Qt keeps the dialog's last folder and history: nothing may be there.
    const QString qtOwn = QSettings(QSettings::UserScope, QStringLiteral("QtProject")).fileName();
    EXPECT_FALSE(QFileInfo::exists(qtOwn)) << qtOwn.toStdString();
}

}  // namespace
}  // namespace gw::test
