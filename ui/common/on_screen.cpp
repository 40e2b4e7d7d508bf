#include "ui/common/on_screen.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace gw {
namespace {

class ExposeWatch final : public QObject {
public:
    ExposeWatch(QWidget& window, std::function<void()> then) : QObject(&window), m_then(std::move(then)) {
        window.installEventFilter(this);
        if (QWindow* handle = window.windowHandle()) handle->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool exposed = event->type() == QEvent::Expose && static_cast<QWindow*>(watched)->isExposed();
        if (exposed || event->type() == QEvent::Hide) Run();
        return false;
    }

private:
    void Run() {
        if (!m_then) return;
        QMetaObject::invokeMethod(parent(), std::move(m_then), Qt::QueuedConnection);
        m_then = nullptr;
        deleteLater();
    }

    std::function<void()> m_then;
};

}  // namespace

void WhenOnScreen(QWidget& window, std::function<void()> then) {
    const QWindow* handle = window.windowHandle();
    if (handle && handle->isExposed()) {
        QMetaObject::invokeMethod(&window, std::move(then), Qt::QueuedConnection);
    } else {
        new ExposeWatch(window, std::move(then));
    }
}

}  // namespace gw
