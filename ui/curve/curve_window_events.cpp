// The curve window's keyboard rules: every character key marks the curve changed and
// Enter in an entry field runs Calc.

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "curve_window.h"
#include "platform/platform.h"
#include "ui/common/leave_checks.h"
#include "window_slots.h"

namespace gw {
namespace {

// The twelve fields in which Enter runs Calc (the four pure results are not among them).
bool IsEntryField(const QLineEdit& field) {
    static const QStringList kResultsOnly = {"txtMO", "txtSD", "txtTPSTA", "txtTPSTAM"};
    return !kResultsOnly.contains(field.objectName());
}

}  // namespace

bool frmCrestCurve::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        Form_KeyPress(qobject_cast<QLineEdit*>(watched), static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool frmCrestCurve::Form_KeyPress(QLineEdit* field, QKeyEvent* key) {
    if (!ProducesCharacter(*key)) return false;
    m_slots.State(m_slot).changed = true;
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (enter && field && IsEntryField(*field)) {
        // Enter does not leave the field, so the field's own check does not run first.
        cmdCalcP_Click();
        return true;
    }
    return false;
}

void frmCrestCurve::Report(const Refusal& refusal) {
    gw::ShowRefusal(m_platform, this, QString::fromStdString(refusal.message));
    PutFocusBack(Field(refusal.field));
}

void frmCrestCurve::PutFocusBack(QLineEdit* field) {
    if (!field) return;
    // Without a window manager nothing re-activates our window after a box closes.
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        if (QMdiArea* area = sub->mdiArea()) area->setActiveSubWindow(sub);
    }
    window()->activateWindow();
    field->setFocus(Qt::OtherFocusReason);
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
    m_slots.Release(m_slot);
    m_slots.SetCurveWindow(m_slot, nullptr);
}

}  // namespace gw
