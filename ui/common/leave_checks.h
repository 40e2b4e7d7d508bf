#pragma once
// Checks that run when the user leaves a field, and the way back to the field after
// its refusal, shared by every window.
//
// The user leaves a field by Tab, Shift+Tab, a click or an access key; the focus
// moving because the program moved it, because another window, a menu or a popup
// took it, or because a click went into another window of ours, is not leaving.
// The check runs at the moment the focus leaves. When it fails, nothing the user
// did meanwhile takes effect (the click that took the focus does nothing, however
// quick it was), the messages are shown once each after the focus change has
// finished (never inside focus delivery), and the focus goes back to the field
// with its text as typed. A report is never dropped and never doubled.

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <vector>

class QKeyEvent;
class QLineEdit;
class QWidget;

namespace gw {

class Platform;

class LeaveChecks : public QObject {
    Q_OBJECT

public:
    // The messages for the field's current text, in the order they are shown.
    using Check = std::function<std::vector<QString>(QLineEdit& field)>;

    LeaveChecks(Platform& platform, QWidget& window);
    ~LeaveChecks() override;

    void Watch(QLineEdit& field, Check check);

    // True from a failed check until its messages have been shown and the focus is back.
    bool Busy() const { return m_pending || m_reporting; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsLeaving(const QEvent& focusOut) const;
    void Report();

    Platform& m_platform;
    QWidget& m_window;
    std::vector<std::pair<QLineEdit*, Check>> m_checks;

    // A failed check whose messages are still to be shown.
    QPointer<QLineEdit> m_pendingField;
    std::vector<QString> m_pendingMessages;
    bool m_pending = false;
    bool m_reporting = false;
    QObject* m_inputHold = nullptr;  // swallows the user's input while a report is pending
};

// After a box or a modal dialog has closed, nothing gives our window back its
// activation when no window manager runs: activates `window`, its document window in
// the frame too, and puts the focus on `focus` when one is given.
void ComeBack(QWidget& window, QWidget* focus = nullptr);

// A refusal: each message in a box over `window`, then back to `field`.
void Refuse(Platform& platform, QWidget& window, const std::vector<QString>& messages, QWidget& field);

// True for a key press that produces a character (letters, digits, signs,
// Backspace, Enter), as opposed to arrows, Delete and the like.
bool ProducesCharacter(const QKeyEvent& key);

}  // namespace gw
