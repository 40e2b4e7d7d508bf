#pragma once
// Our windows are laid out as designed, at fixed sizes: the fields and controls at
// pixel places, the dialogs of the frame in twips, in one font.

#include <QRect>

#include "core/form.h"

class QDialog;
class QFont;

namespace gw {

inline QRect ToQRect(const Rect& r) { return QRect(r.left, r.top, r.width, r.height); }

// 15 twips to the pixel on the 96 pixels-per-inch screen the program runs on.
inline constexpr int kTwipsPerPixel = 15;
constexpr QRect Twips(int left, int top, int width, int height) {
    return QRect(left / kTwipsPerPixel, top / kTwipsPerPixel, width / kTwipsPerPixel, height / kTwipsPerPixel);
}

// The font the fixed dialogs are laid out for: every caption is whole inside its
// place, and no label runs into the field beside it.
QFont DialogFont();

enum class CloseBox { Shown, None };

// A fixed-size dialog in the dialog font, without a minimise or maximise button.
void SetUpFixedDialog(QDialog& dialog, const char* objectName, const QString& title, QSize size,
                      CloseBox closeBox = CloseBox::Shown);

}  // namespace gw
