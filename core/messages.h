#pragma once
// Every text the calculations show the user, in one place, exactly as written.

#include <string_view>

namespace gw::msg {

inline constexpr std::string_view kAppTitle = "Gradewise";

// Checks on leaving a curve field.
inline constexpr std::string_view kLengthNotZero = "Length of Curve can not be 0.";
inline constexpr std::string_view kMustBeNumeric = "Must be numeric.";
inline constexpr std::string_view kPlusUnder1000 = "Measurement must be less than 1000 meters.";
inline constexpr std::string_view kPlusUnder100 = "Measurement must be less than 100 feet.";
inline constexpr std::string_view kZeroStation = "Can not have a 0 station.";

// Calc in the PVI mode.
inline constexpr std::string_view kPVIStation = "PVI Station needs to be entered.";
inline constexpr std::string_view kPVIElevation = "PVI Elevation needs to be entered.";
inline constexpr std::string_view kG1 = "G1 needs to be entered.";
inline constexpr std::string_view kG2 = "G2 needs to be entered.";
inline constexpr std::string_view kLength = "Length of Curve needs to be entered.";

// Calc in the PVC/PVT mode.
inline constexpr std::string_view kPVCStation = "PVC Station needs to be entered.";
inline constexpr std::string_view kPVCElevation = "PVC Elevation needs to be entered.";
inline constexpr std::string_view kPVTStation = "PVT Station needs to be entered.";
inline constexpr std::string_view kPVTElevation = "PVT Elevation needs to be entered.";
inline constexpr std::string_view kPVCBeforePVT = "PVC station must be less than PVT station.";

// Elevations.
inline constexpr std::string_view kStationOffCurve = "Top of Slab Station must be between PVC and PVT stations.";
inline constexpr std::string_view kAtLeastPVC = "Must be >= to PVCSTA.";
inline constexpr std::string_view kAtMostPVT = "Must be <= to PVTSTA.";

// Auto stationing.
inline constexpr std::string_view kPointsOver20 = "Points can not be more than 20.";
inline constexpr std::string_view kBeginOffCurveField = "Beginning Station must be between PVC and PVT stations.";
inline constexpr std::string_view kBeginOffCurveOK = "Beginning station must be between PVC and PVT stations";
inline constexpr std::string_view kIncrementPositive = "Increment must be greater than 0.";

}  // namespace gw::msg
