#pragma once
// Inputs and results look different everywhere: an input is editable, in the tab
// order, on the window background; a result is read-only, skipped by Tab, on the
// scroll-bar grey, and stays selectable.

class QLineEdit;

namespace gw {

void StyleAsInput(QLineEdit& field);
void StyleAsResult(QLineEdit& field);

}  // namespace gw
