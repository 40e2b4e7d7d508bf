#pragma once
// The main window's place and size between runs, kept in twips under "Settings".

#include <QRect>

namespace gw {

class SettingsStore;

// Left, top, width and height of the frame in twips (15 to a pixel at 96 dpi).
struct Placement {
    float left = 105;
    float top = -108;
    float width = 10065;
    float height = 7305;
};

// Each key read with its default; a value that is not a number keeps the default.
Placement ReadPlacement(const SettingsStore& store);
// Writes the four keys in the order left, top, width, height.
void StorePlacement(SettingsStore& store, const Placement& placement);

// Frame geometry in pixels and back.
QRect PlacementToPixels(const Placement& placement);
Placement PlacementFromPixels(const QRect& frame);

// What to store for `frame` at the end of a run that started from `restored`: a frame
// still on the pixels it was restored to keeps the twips it came from, so values that
// fall between pixels (the default top of -108 twips) do not drift from run to run.
Placement PlacementToStore(const Placement& restored, const QRect& frame);

}  // namespace gw
