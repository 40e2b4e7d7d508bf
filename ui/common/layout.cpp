#include "ui/common/layout.h"

#include <QDialog>
#include <QFont>

namespace gw {

QFont DialogFont() {
    // Arial resolves to its metric twin where it is not installed.
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    return font;
}

void SetUpFixedDialog(QDialog& dialog, const char* objectName, const QString& title, QSize size, CloseBox closeBox) {
    dialog.setObjectName(QString::fromLatin1(objectName));
    dialog.setWindowTitle(title);
    dialog.setFixedSize(size);
    dialog.setFont(DialogFont());
    dialog.setWindowFlags(
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint |
        (closeBox == CloseBox::Shown ? Qt::WindowCloseButtonHint : Qt::CustomizeWindowHint | Qt::WindowTitleHint));
}

}  // namespace gw
