#include "ui/common/leave_checks.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QWidget>

#include "platform/platform.h"

namespace gw {
namespace {

// Holds back the user's mouse buttons and keys everywhere in the program.
class InputHold final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::Shortcut:
            case QEvent::ShortcutOverride:
            case QEvent::Wheel: return true;
            default: return false;
        }
    }
};

}  // namespace

LeaveChecks::LeaveChecks(Platform& platform, QWidget& window)
    : QObject(&window), m_platform(platform), m_window(window) {}

LeaveChecks::~LeaveChecks() { delete m_inputHold; }

void LeaveChecks::Watch(QLineEdit& field, Check check) {
    m_checks.emplace_back(&field, std::move(check));
    field.installEventFilter(this);
}

bool LeaveChecks::IsLeaving(const QEvent& focusOut) const {
    switch (static_cast<const QFocusEvent&>(focusOut).reason()) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
            // Tab can pass through the frame of a document window on its way.
            return true;
        case Qt::MouseFocusReason:
        case Qt::ShortcutFocusReason: {
            // Qt has already moved the focus on when the field hears of it.
            const QWidget* next = QApplication::focusWidget();
            return next && m_window.isAncestorOf(next);
        }
        default: return false;
    }
}

bool LeaveChecks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusOut || Busy() || !IsLeaving(*event)) return false;
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (!field) return false;
    std::vector<QString> messages;
    for (auto& [watchedField, check] : m_checks) {
        if (watchedField == field) messages = check(*field);
    }
    if (messages.empty()) return false;

    // The click or key that took the focus (and any that follow before the report)
    // must not act on a field left in error.
    m_pending = true;
    m_pendingField = field;
    m_pendingMessages = std::move(messages);
    m_inputHold = new InputHold;
    qApp->installEventFilter(m_inputHold);
    QMetaObject::invokeMethod(this, &LeaveChecks::Report, Qt::QueuedConnection);
    return false;
}

void LeaveChecks::Report() {
    delete m_inputHold;
    m_inputHold = nullptr;
    QScopedValueRollback<bool> reporting(m_reporting, true);
    m_pending = false;
    const std::vector<QString> messages = std::move(m_pendingMessages);
    m_pendingMessages.clear();
    // The field may have gone with its window meanwhile.
    if (QLineEdit* field = m_pendingField) Refuse(m_platform, m_window, messages, *field);
}

void ComeBack(QWidget& window, QWidget* focus) {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(window.parentWidget())) {
        if (QMdiArea* area = sub->mdiArea()) area->setActiveSubWindow(sub);
    }
    window.window()->activateWindow();
    if (focus) focus->setFocus(Qt::OtherFocusReason);
}

void Refuse(Platform& platform, QWidget& window, const std::vector<QString>& messages, QWidget& field) {
    QPointer<QWidget> alive = &field;
    for (const QString& message : messages) ShowRefusal(platform, &window, message);
    ComeBack(window, alive);
}

bool ProducesCharacter(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Delete) return false;
    if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return true;
    return !key.text().isEmpty() && key.text().at(0).isPrint();
}

}  // namespace gw
