#include "leave_checks.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

#include "platform/platform.h"

namespace gw {

LeaveChecks::LeaveChecks(Platform& platform, QWidget& window) : QObject(&window), m_platform(platform), m_window(window) {}

void LeaveChecks::Watch(QLineEdit& field, Check check) {
    m_checks.emplace_back(&field, std::move(check));
    field.installEventFilter(this);
}

bool LeaveChecks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusOut || m_reporting) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    // Another window, a menu or a popup taking the focus is not the user leaving the field.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason) {
        return false;
    }
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (!field) return false;
    QMetaObject::invokeMethod(this, [this, guarded = QPointer<QLineEdit>(field)] { Report(guarded); },
                              Qt::QueuedConnection);
    return false;
}

void LeaveChecks::Report(QPointer<QLineEdit> field) {
    if (!field || m_reporting || !m_window.isVisible()) return;
    CheckNow(*field);
}

bool LeaveChecks::CheckNow(QLineEdit& field) {
    std::vector<QString> messages;
    for (auto& [watched, check] : m_checks) {
        if (watched == &field) messages = check(field);
    }
    if (messages.empty()) return true;
    m_reporting = true;
    for (const QString& message : messages) ShowRefusal(m_platform, &m_window, message);
    // Nothing re-activates our window after a box when no window manager runs.
    m_window.activateWindow();
    field.setFocus(Qt::OtherFocusReason);
    m_reporting = false;
    return false;
}

bool ProducesCharacter(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Delete) return false;
    if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return true;
    return !key.text().isEmpty() && key.text().at(0).isPrint();
}

}  // namespace gw
