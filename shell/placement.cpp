#include "shell/placement.h"

#include <cmath>
#include <string>

#include "core/numbers.h"
#include "files/settings_store.h"
#include "ui/common/layout.h"

namespace gw {
namespace {

constexpr const char* kSection = "Settings";

struct Key {
    const char* name;
    float Placement::*value;
    int fallback;  // given to the store as a whole number, so a missing key reads as its text
};

constexpr Key kKeys[] = {
    {"MainLeft", &Placement::left, 105},
    {"MainTop", &Placement::top, -108},
    {"MainWidth", &Placement::width, 10065},
    {"MainHeight", &Placement::height, 7305},
};

// The way a single-precision number is written: whole numbers without a point.
std::string SingleText(float value) {
    if (std::nearbyint(value) == value) return std::to_string(static_cast<long long>(value));
    return PlainNumberText(value);
}

}  // namespace

Placement ReadPlacement(const SettingsStore& store) {
    Placement p;
    for (const Key& key : kKeys) {
        const std::string text = store.GetSetting(kSection, key.name, std::to_string(key.fallback));
        // A hand-edited value that is not a number (or not a sane one) keeps the default
        // rather than putting the window somewhere nobody can reach it.
        const double value = ReadNumber(text);
        p.*key.value = IsNumericText(text) && std::fabs(value) < 1e7 ? static_cast<float>(value)
                                                                     : static_cast<float>(key.fallback);
    }
    return p;
}

void StorePlacement(SettingsStore& store, const Placement& placement) {
    for (const Key& key : kKeys) store.SaveSetting(kSection, key.name, SingleText(placement.*key.value));
}

QRect PlacementToPixels(const Placement& p) {
    auto px = [](float twips) { return static_cast<int>(std::lround(twips / float(kTwipsPerPixel))); };
    return QRect(px(p.left), px(p.top), px(p.width), px(p.height));
}

Placement PlacementFromPixels(const QRect& frame) {
    const float twips = kTwipsPerPixel;
    return Placement{frame.x() * twips, frame.y() * twips, frame.width() * twips, frame.height() * twips};
}

Placement PlacementToStore(const Placement& restored, const QRect& frame) {
    return frame == PlacementToPixels(restored) ? restored : PlacementFromPixels(frame);
}

}  // namespace gw
