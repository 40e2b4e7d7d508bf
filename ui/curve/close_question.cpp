// The close question: a curve changed since it was created, opened or saved is not
// closed without asking whether to save it first.

#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/titles.h"
#include "platform/file_names.h"
#include "platform/platform.h"
#include "platform/texts.h"
#include "ui/curve/curve_saver.h"
#include "ui/curve/curve_window.h"
#include "ui/curve/window_slots.h"

namespace gw {

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

}  // namespace gw
