#include "field_style.h"

#include <QApplication>
#include <QDialog>
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

void SetUpFixedDialog(QDialog& dialog, const char* objectName, const char* title, QSize size) {
    dialog.setObjectName(QString::fromLatin1(objectName));
    dialog.setWindowTitle(QString::fromLatin1(title));
    dialog.setFixedSize(size);
    QFont small = dialog.font();
    small.setPointSizeF(8);
    dialog.setFont(small);
    dialog.setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowCloseButtonHint);
}

}  // namespace gw
