// The curve window's keyboard and focus rules: every character key marks the curve
// changed, Enter in an entry field runs Calc, and leaving a field checks it.

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <algorithm>

#include "core/field_checks.h"
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
    auto* field = qobject_cast<QLineEdit*>(watched);
    switch (event->type()) {
        case QEvent::KeyPress:
            if (Form_KeyPress(field, static_cast<QKeyEvent*>(event))) return true;
            break;
        case QEvent::FocusOut:
            if (field) FieldLostFocus(field, static_cast<QFocusEvent*>(event)->reason());
            break;
        default: break;
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

void frmCrestCurve::FieldLostFocus(QLineEdit* field, Qt::FocusReason reason) {
    if (m_movingFocus || m_pendingField) return;
    // Another window, a menu or a popup taking the focus is not the user leaving the field.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
        reason == Qt::MenuBarFocusReason) {
        return;
    }
    QWidget* next = QApplication::focusWidget();
    if (!next || !isAncestorOf(next)) return;

    const auto message = CheckCurveFieldOnLeave(GatherSheet(), field->objectName().toStdString());
    if (!message) return;
    // The focus is already on its way to the next control: report once it has landed,
    // never from inside focus delivery.
    m_pendingField = field;
    QMetaObject::invokeMethod(this, &frmCrestCurve::ReportFieldProblem, Qt::QueuedConnection);
}

void frmCrestCurve::ReportFieldProblem() {
    QPointer<QLineEdit> field = m_pendingField;
    m_pendingField = nullptr;
    if (!field) return;
    // A command that ran in between (a mode switch empties the sheet) may have put
    // the field right; report only what still holds.
    const auto message = CheckCurveFieldOnLeave(GatherSheet(), field->objectName().toStdString());
    if (!message) return;
    Report(Refusal{std::string(*message), field->objectName().toStdString(), -1});
}

void frmCrestCurve::Report(const Refusal& refusal) {
    {
        QScopedValueRollback<bool> guard(m_movingFocus, true);
        gw::ShowRefusal(m_platform, this, QString::fromStdString(refusal.message));
    }
    PutFocusBack(Field(refusal.field));
}

void frmCrestCurve::PutFocusBack(QLineEdit* field) {
    if (!field) return;
    QScopedValueRollback<bool> guard(m_movingFocus, true);
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
