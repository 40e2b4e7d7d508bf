#pragma once
// Inputs and results look different everywhere: an input is editable, in the tab
// order, on the window background; a result is read-only, skipped by Tab, on the
// scroll-bar grey, and stays selectable.

#include <QSize>

class QDialog;
class QLineEdit;

namespace gw {

void StyleAsInput(QLineEdit& field);
void StyleAsResult(QLineEdit& field);
bool IsResult(const QLineEdit& field);

// A fixed-size dialog with a close box and the small font its pixel layout is drawn
// for (a larger one runs labels into fields).
void SetUpFixedDialog(QDialog& dialog, const char* objectName, const char* title, QSize size);

}  // namespace gw
