#include "ui/common/user_edits.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace gw {
namespace {

class UserEdits final : public QObject {
public:
    UserEdits(QLineEdit& field, std::function<void()> changed) : QObject(&field), m_changed(std::move(changed)) {
        field.installEventFilter(this);
        // textEdited comes for the user's edits only, and from inside the key press that
        // made it, so the key last pressed tells the Delete key's edits apart.
        connect(&field, &QLineEdit::textEdited, this, [this] {
            if (!m_deleteKey) m_changed();
        });
    }

protected:
    // Only watches: a key held back by another filter never reaches the field anyway.
    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::KeyPress: m_deleteKey = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete; break;
            case QEvent::KeyRelease:
            case QEvent::ContextMenu:
            case QEvent::MouseButtonPress:
            case QEvent::FocusOut: m_deleteKey = false; break;
            default: break;
        }
        return false;
    }

private:
    std::function<void()> m_changed;
    bool m_deleteKey = false;
};

}  // namespace

void OnUserEdit(QLineEdit& field, std::function<void()> changed) { new UserEdits(field, std::move(changed)); }

}  // namespace gw
