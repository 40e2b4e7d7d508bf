#pragma once
// Where every control of the curve window sits and what it says. Positions are
// pixels from the top left of the 598 x 357 client area.

#include <QRect>
#include <array>
#include <string_view>

namespace gw::curve_layout {

inline constexpr QSize kClientSize{598, 357};

struct TextFieldPlace {
    std::string_view name;
    std::string_view tooltip;
    QRect rect;
    std::string_view accessibleName;
};

// The sixteen text fields.
extern const std::array<TextFieldPlace, 16> kTextFields;

// Whole-station fields never take more than 5 typed characters; plus fields take 7
// once the mode has made them an input.
inline constexpr int kWholeStationLimit = 5;
inline constexpr int kPlusPartLimit = 7;

inline constexpr QRect kFrame1{17, 7, 97, 65};
inline constexpr QRect kOptPVI{33, 23, 41, 17};
inline constexpr QRect kOptPVCPVT{33, 47, 73, 17};
inline constexpr QRect kPercent1{185, 127, 14, 17};
inline constexpr QRect kPercent2{465, 127, 14, 17};
inline constexpr QRect kLblSDL{423, 55, 33, 13};
inline constexpr QRect kLblMorF{104, 328, 9, 9};
inline constexpr QRect kCmdCalcP{256, 272, 81, 25};
inline constexpr QRect kCmdClear{8, 328, 57, 21};
inline constexpr QRect kCmdMoreTOS{72, 328, 121, 21};
inline constexpr QRect kPicture1{9, 7, 579, 312};

// The inputs of each mode, in their tab order.
extern const std::array<std::string_view, 6> kPVIInputs;
extern const std::array<std::string_view, 7> kPVCPVTInputs;

}  // namespace gw::curve_layout

namespace gw::curve_text {

inline constexpr const char* kDesignCaption = "Vertical Curve";
inline constexpr const char* kOptPVI = "PVI";
inline constexpr const char* kOptPVCPVT = "PVC/PVT";
inline constexpr const char* kFrame1 = "Known Data";
inline constexpr const char* kPercent = "%";
inline constexpr const char* kCalcInPVIMode = "Calc PVC/PVT";
inline constexpr const char* kCalcTipInPVIMode = "Calculate PVC / PVT info";
inline constexpr const char* kCalcInPVCPVTMode = "Calc PVI";
inline constexpr const char* kCalcTipInPVCPVTMode = "Calculate PVI info";
inline constexpr const char* kClear = "Clear All";
inline constexpr const char* kClearTip = "Clear values";
inline constexpr const char* kMoreTOS = "Calculate Elevations";

}  // namespace gw::curve_text
