#pragma once
// What counts as the user changing a curve: every edit of a field's text by the user
// (typing, Backspace, pasting or cutting by key or context menu), except the keys that
// produce no character, such as Delete, which leave the curve's changed flag alone.

#include <functional>

class QLineEdit;

namespace gw {

void OnUserEdit(QLineEdit& field, std::function<void()> changed);

}  // namespace gw
