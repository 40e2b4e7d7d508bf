#include "field_style.h"

#include <QApplication>
#include <QDialog>
#include <QFont>
#include <QLineEdit>
#include <QPalette>

namespace gw {
namespace {

// The classic desktop scroll-bar grey.
const QColor kResultBackground(200, 200, 200);

void SetBackground(QLineEdit& field, const QColor& color) {
    QPalette p = field.palette();
    p.setColor(QPalette::Base, color);
    field.setPalette(p);
}

}  // namespace

void StyleAsInput(QLineEdit& field) {
    field.setReadOnly(false);
    field.setFocusPolicy(Qt::StrongFocus);
    SetBackground(field, QApplication::palette().color(QPalette::Base));
}

void StyleAsResult(QLineEdit& field) {
    field.setReadOnly(true);
    field.setFocusPolicy(Qt::ClickFocus);
    SetBackground(field, kResultBackground);
}

bool IsResult(const QLineEdit& field) { return field.isReadOnly(); }

QFont DialogFont() {
    // Arial resolves to its metric twin where it is not installed.
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    return font;
}

void SetUpFixedDialog(QDialog& dialog, const char* objectName, const char* title, QSize size) {
    dialog.setObjectName(QString::fromLatin1(objectName));
    dialog.setWindowTitle(QString::fromLatin1(title));
    dialog.setFixedSize(size);
    dialog.setFont(DialogFont());
    dialog.setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowCloseButtonHint);
}

}  // namespace gw
