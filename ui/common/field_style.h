#pragma once
// Inputs and results look different everywhere: an input is editable, in the tab
// order, on the window background; a result is read-only, skipped by Tab, on the
// scroll-bar grey, and stays selectable.

#include <QSize>

class QDialog;
class QFont;
class QLineEdit;

namespace gw {

void StyleAsInput(QLineEdit& field);
void StyleAsResult(QLineEdit& field);
bool IsResult(const QLineEdit& field);

// The font the fixed dialogs are laid out for: every caption is whole inside its
// place, and no label runs into the field beside it.
QFont DialogFont();

// A fixed-size dialog with a close box and the dialog font.
void SetUpFixedDialog(QDialog& dialog, const char* objectName, const char* title, QSize size);

}  // namespace gw
