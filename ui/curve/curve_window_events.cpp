// The curve window's keys and closing: every character key marks the curve changed,
// Enter in an entry field runs Calc, and a curve changed since it was created, opened
// or saved is not closed without asking whether to save it first.

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/titles.h"
#include "platform/file_names.h"
#include "platform/platform.h"
#include "platform/texts.h"
#include "ui/common/leave_checks.h"
#include "ui/curve/curve_saver.h"
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

void frmCrestCurve::Form_QueryUnload(bool& cancel) {
    if (!m_slot.changed) return;

    // The window being closed comes to the front first: the user sees which curve
    // is meant, and it is the active curve window that Save writes.
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        if (QMdiArea* area = sub->mdiArea(); area && area->activeSubWindow() != sub) area->setActiveSubWindow(sub);
    }

    MessageRequest question;
    question.title = AppTitle();
    question.text = FileNameFromBytes(CloseQuestion(CurveNameFromTitle(FileNameBytes(windowTitle()))));
    question.buttons = MessageButtons::YesNoCancel;
    question.defaultButton = MessageButton::Yes;
    question.icon = MessageIcon::Exclamation;
    const MessageButton answer = m_platform.ShowMessage(this, question);
    if (answer == MessageButton::Cancel) {
        cancel = true;
        return;
    }
    // The cancel flag is left alone: after a cancelled Save As or a failed write the
    // curve closes unsaved, and the user has been told of a failure by its box.
    if (answer == MessageButton::Yes) m_saver.SaveBeforeClosing(*this);
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
