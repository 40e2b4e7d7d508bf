#pragma once
// What the elevations window and the auto-stationing dialog say, exactly.

namespace gw::elevations_text {

inline constexpr const char* kCaption = "Elevations";
inline constexpr const char* kPVC = "PVC Station:";
inline constexpr const char* kPVT = "PVT Station:";
inline constexpr const char* kPVCTip = "Calculated PVC station";
inline constexpr const char* kPVTTip = "Calculated PVT station";
inline constexpr const char* kVOffset = "V-Offset";
inline constexpr const char* kHOffset = "H-Offset";
inline constexpr const char* kXSlope = "X-Slope";
inline constexpr const char* kMetres = "(m)";
inline constexpr const char* kFeet = "(ft)";
inline constexpr const char* kHeading = "Enter TGL Stations";
inline constexpr const char* kClear = "Clear All";
inline constexpr const char* kAutoStation = "AutoStationing";
inline constexpr const char* kCalculateTOS = "Calculate TOS";
inline constexpr const char* kOK = "OK";

}  // namespace gw::elevations_text

namespace gw::auto_station_text {

inline constexpr const char* kCaption = "Auto Stationing";
inline constexpr const char* kFrame = "Station Points";
inline constexpr const char* kIncrements = "Increments";
inline constexpr const char* kSpacing = "Spacing";
inline constexpr const char* kPoints = "Increments on curve:";
inline constexpr const char* kPointsTip = "Number of points between PVC and PVT station";
inline constexpr const char* kBegin = "Beginning Station:";
inline constexpr const char* kBeginTip = "Beginning station";
inline constexpr const char* kIncrement = "Increment :";
inline constexpr const char* kOK = "OK";
inline constexpr const char* kCancel = "Cancel";

}  // namespace gw::auto_station_text
