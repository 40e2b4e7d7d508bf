#include "platform/modal_guard.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <cstdint>

#if QT_CONFIG(xcb)
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>
#endif

namespace gw {
namespace {

#if QT_CONFIG(xcb)
// The Motif window-manager hints, as X window managers read them.
struct MotifHints {
    std::uint32_t flags;
    std::uint32_t functions;
    std::uint32_t decorations;
    std::int32_t inputMode;
    std::uint32_t status;
};
constexpr std::uint32_t kHintsFunctions = 1u << 0;
constexpr std::uint32_t kHintsDecorations = 1u << 1;
constexpr std::uint32_t kFunctionMove = 1u << 2;
constexpr std::uint32_t kFunctionClose = 1u << 5;
constexpr std::uint32_t kDecorBorder = 1u << 1;
constexpr std::uint32_t kDecorTitle = 1u << 3;
constexpr std::uint32_t kDecorMenu = 1u << 4;

// Qt leaves the decorations to the manager when a window has a title and no
// button, and asks for resizing on every dialog; a fixed dialog states exactly
// what it has: a border, a title, and a close box only if its flags say so.
void AskForFixedDecorations(QWidget& window) {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection()) return;
    xcb_connection_t* connection = x11->connection();
    static const char kName[] = "_MOTIF_WM_HINTS";
    xcb_intern_atom_reply_t* atom =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, sizeof kName - 1, kName), nullptr);
    if (!atom) return;
    const bool closeBox = window.windowFlags().testFlag(Qt::WindowCloseButtonHint);
    const MotifHints hints{kHintsFunctions | kHintsDecorations, kFunctionMove | (closeBox ? kFunctionClose : 0u),
                           kDecorBorder | kDecorTitle | (closeBox ? kDecorMenu : 0u), 0, 0};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()), atom->atom,
                        atom->atom, 32, sizeof hints / 4, &hints);
    xcb_flush(connection);
    free(atom);
}
#else
void AskForFixedDecorations(QWidget&) {}
#endif

class ModalGuard final : public QObject {
public:
    ModalGuard(QWidget& window, ModalSize size)
        : QObject(&window), m_window(window), m_fixed(size == ModalSize::Fixed) {
        setObjectName(QStringLiteral("gwModalGuard"));
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show && m_fixed) {
            AskForFixedDecorations(m_window);
        } else if (event->type() == QEvent::WindowStateChange && OutOfPlace()) {
            // Put back once the manager has finished its own change.
            QMetaObject::invokeMethod(this, &ModalGuard::PutBack, Qt::QueuedConnection);
        }
        return false;
    }

private:
    bool OutOfPlace() const {
        const Qt::WindowStates state = m_window.windowState();
        if (state & Qt::WindowMinimized) return true;
        return m_fixed && (state & (Qt::WindowMaximized | Qt::WindowFullScreen));
    }

    void PutBack() {
        if (!m_window.isVisible() || !OutOfPlace()) return;
        m_window.setWindowState(Qt::WindowNoState);
        m_window.show();
        m_window.raise();
        m_window.activateWindow();
    }

    QWidget& m_window;
    const bool m_fixed;
};

}  // namespace

void GuardModal(QWidget& window, ModalSize size) {
    if (!window.findChild<ModalGuard*>(QStringLiteral("gwModalGuard"), Qt::FindDirectChildrenOnly)) {
        new ModalGuard(window, size);
    }
}

}  // namespace gw
