#include "shell/frame_placement.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace gw {
namespace {

// Waits for the window manager's frame and then fits the window inside the stored
// rectangle. Without a window manager no frame ever comes, and the first guess
// (frame and window the same) was right.
class FrameFitter final : public QObject {
public:
    FrameFitter(QWidget& window, const QRect& frame) : QObject(&window), m_window(window), m_frame(frame) {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::Move:
            case QEvent::Resize:
            case QEvent::Show: Fit(); break;
            case QEvent::Hide: deleteLater(); break;
            default: break;
        }
        return false;
    }

private:
    void Fit() {
        const QWindow* handle = m_window.windowHandle();
        if (!handle || m_done) return;
        const QMargins margins = handle->frameMargins();
        if (margins.isNull()) return;
        m_done = true;
        m_window.removeEventFilter(this);
        // A window's position is its frame's; its size is the inside.
        m_window.resize(m_frame.size().shrunkBy(margins));
        m_window.move(m_frame.topLeft());
        deleteLater();
    }

    QWidget& m_window;
    const QRect m_frame;
    bool m_done = false;
};

}  // namespace

void PlaceFrame(QWidget& window, const QRect& frame) {
    window.move(frame.topLeft());
    window.resize(frame.size());
    new FrameFitter(window, frame);
}

}  // namespace gw
