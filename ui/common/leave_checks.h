#pragma once
// Checks that run when the user leaves a field. The messages are shown after the
// focus change has finished (never inside focus delivery), one after another, and
// the focus then goes back to the field with its text as typed. The focus churn
// that the boxes themselves cause is not the user leaving a field.

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

    void Watch(QLineEdit& field, Check check);

    // True while a report is on screen or moving the focus back.
    bool Reporting() const { return m_reporting; }

    // Runs the field's check now, as leaving it would; used by commands that must
    // see the last edit checked before they act. True when the field passed.
    bool CheckNow(QLineEdit& field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Report(QPointer<QLineEdit> field);

    Platform& m_platform;
    QWidget& m_window;
    std::vector<std::pair<QLineEdit*, Check>> m_checks;
    bool m_reporting = false;
};

// True for a key press that produces a character (letters, digits, signs,
// Backspace, Enter), as opposed to arrows, Delete and the like.
bool ProducesCharacter(const QKeyEvent& key);

}  // namespace gw
