#pragma once
// The controls every window makes alike, each under its control name at its place.

#include <QString>
#include <string_view>

#include "core/form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRect;
class QWidget;

namespace gw {

// A label; one placed without a size takes the size of its text.
QLabel& AddLabel(QWidget& window, std::string_view name, const QString& text, const QRect& place);
QPushButton& AddButton(QWidget& window, std::string_view name, const QString& caption, const QRect& place);
// A text field of a window's table, with its tooltip and typing limit (0 for none).
QLineEdit& AddTextField(QWidget& window, std::string_view name, const Rect& place, std::string_view tooltip, int limit);

}  // namespace gw
