#include "ui/common/field_style.h"

#include <QApplication>
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

}  // namespace gw
