#pragma once
// What a modal window needs on a real desktop, whatever its window manager does.
//
// A fixed-size dialog asks the manager for no minimise or maximise button, and for a
// close box only when its window flags have one. Some managers draw their own
// buttons whatever they are asked, so a modal window that gets minimised (or, when
// it has a fixed size, maximised or made full screen) is put back at once: it must
// never be out of sight while its owner waits for it.

class QWidget;

namespace gw {

enum class ModalSize { Fixed, Resizable };

// Watches `window` for as long as it lives; guarding it again changes nothing.
void GuardModal(QWidget& window, ModalSize size);

}  // namespace gw
