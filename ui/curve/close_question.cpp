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
    if (!m_slots.State(m_slot).changed) return;

    // Saving writes the active curve window, so the window being closed comes to the
    // front first; the user also sees which curve is meant.
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        if (QMdiArea* area = sub->mdiArea(); area && area->activeSubWindow() != sub) area->setActiveSubWindow(sub);
    }

    const std::string title = FileNameBytes(windowTitle());
    MessageRequest question;
    question.title = AppTitle();
    question.text = FileNameFromBytes(CloseQuestion(CurveNameFromTitle(title)));
    question.buttons = MessageButtons::YesNoCancel;
    question.defaultButton = MessageButton::Yes;
    question.icon = MessageIcon::Exclamation;
    const MessageButton answer = m_platform.ShowMessage(this, question);
    if (answer == MessageButton::Cancel) {
        cancel = true;
        return;
    }
    CurveSaver* saver = m_slots.Saver();
    if (answer != MessageButton::Yes || !saver) return;

    QString path;
    if (IsUntitledTitle(title)) {
        path = saver->ShowSaveAsDialog(QStringLiteral("untitled"));
        if (!path.isEmpty()) setWindowTitle(FileNameFromBytes(TitleAfterSave(title, FileNameBytes(path))));
    } else {
        path = FileNameFromBytes(PathFromTitle(title));
    }
    // The cancel flag is left alone: after a cancelled dialog or a failed write the
    // curve closes unsaved, and the user has been told of a failure by its box.
    if (!path.isEmpty()) saver->WriteCurveFile(path, windowTitle());
}

}  // namespace gw
