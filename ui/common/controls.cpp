#include "ui/common/controls.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/texts.h"
#include "ui/common/layout.h"
#include "ui/common/typing_limit.h"

namespace gw {

QLabel& AddLabel(QWidget& window, std::string_view name, const QString& text, const QRect& place) {
    auto* label = new QLabel(text, &window);
    label->setObjectName(ToQString(name));
    if (place.size().isEmpty()) {
        label->move(place.topLeft());
        label->adjustSize();
    } else {
        label->setGeometry(place);
    }
    return *label;
}

QPushButton& AddButton(QWidget& window, std::string_view name, const QString& caption, const QRect& place) {
    auto* button = new QPushButton(caption, &window);
    button->setObjectName(ToQString(name));
    button->setGeometry(place);
    return *button;
}

QLineEdit& AddTextField(QWidget& window, std::string_view name, const Rect& place, std::string_view tooltip,
                        int limit) {
    auto* field = new QLineEdit(&window);
    field->setObjectName(ToQString(name));
    field->setGeometry(ToQRect(place));
    field->setToolTip(ToQString(tooltip));
    // A limit on typing only: what the program writes there keeps every character.
    SetTypingLimit(*field, limit);
    return *field;
}

}  // namespace gw
