// The curve window's keyboard rules: every character key marks the curve changed and
// Enter in an entry field runs Calc.

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "ui/common/leave_checks.h"
#include "ui/curve/curve_window.h"
#include "ui/curve/window_slots.h"

namespace gw {

bool frmCrestCurve::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        Form_KeyPress(qobject_cast<QLineEdit*>(watched), static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool frmCrestCurve::Form_KeyPress(QLineEdit* field, QKeyEvent* key) {
    if (!ProducesCharacter(*key)) return false;
    m_slot.changed = true;
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
    // Enter runs Calc in every text field but the four that are results in both modes.
    for (const auto& [row, control] : m_controls) {
        if (control == field && row->kind != CurveFieldKind::Result) {
            // Enter does not leave the field, so the field's own check does not run first.
            cmdCalcP_Click();
            return true;
        }
    }
    return false;
}

void frmCrestCurve::closeEvent(QCloseEvent* event) {
    bool cancel = false;
    Form_QueryUnload(cancel);
    if (cancel) {
        event->ignore();
        return;
    }
    Form_Unload();
    event->accept();
}

void frmCrestCurve::Form_Unload() {
    m_slot.free = true;
    m_slot.curveWindow = nullptr;
}

}  // namespace gw
