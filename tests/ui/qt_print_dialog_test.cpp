// The desktop's print dialog offers what the report honours: the printer and the
// number of copies. A page range or page set would pick pages out of the copies.

#include <gtest/gtest.h>

#include <QApplication>
#include <QPrintDialog>
#include <QSpinBox>
#include <QTimer>

#include "platform/qt_platform.h"

namespace gw::test {
namespace {

TEST(QtPrintDialogTest, OffersThePrinterAndCopiesButNoPagesToChoose) {
    QtPlatform platform;
    bool seen = false;
    QTimer::singleShot(0, [&seen] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        seen = true;
        for (const char* name : {"gbPrintRange", "pageSetLabel", "pageSetCombo", "collate", "reverse"}) {
            const QWidget* w = dialog->findChild<QWidget*>(name);
            ASSERT_NE(w, nullptr) << name;
            EXPECT_TRUE(w->isHidden()) << name;
        }
        const auto* copies = dialog->findChild<QSpinBox*>("copies");
        ASSERT_NE(copies, nullptr);
        EXPECT_FALSE(copies->isHidden());
        dialog->reject();
    });
    EXPECT_EQ(platform.ShowPrintDialog(nullptr, 1), std::nullopt);
    EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace gw::test
