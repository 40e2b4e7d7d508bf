#include "core/field_checks.h"

#include <gtest/gtest.h>

namespace gw {
namespace {

struct LeaveCase {
    const char* units;
    const char* field;
    const char* text;
    const char* wholeText;  // text of the whole-station field of the same station
    const char* message;    // "" when the check passes
};

class CurveFieldLeaveTest : public ::testing::TestWithParam<LeaveCase> {};

TEST_P(CurveFieldLeaveTest, ShowsTheFirstFailingMessage) {
    const LeaveCase& c = GetParam();
    CurveSheet s = NewCurveSheet(c.units);
    *s.Field(c.field) = c.text;
    std::string field = c.field;
    if (field.size() > 4 && field.compare(field.size() - 4, 4, "STAM") == 0) {
        *s.Field(field.substr(0, field.size() - 1)) = c.wholeText;
    }
    auto message = CheckCurveFieldOnLeave(s, CurveFieldNamed(c.field));
    EXPECT_EQ(message.value_or(""), c.message) << c.field << " = \"" << c.text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Fields, CurveFieldLeaveTest,
    ::testing::Values(
        LeaveCase{"English", "txtLC", "abc", "", "Length of Curve can not be 0."},
        LeaveCase{"English", "txtLC", "12x", "", ""},  // reads as 12: the solver catches the rest
        LeaveCase{"English", "txtLC", "-400", "", ""}, LeaveCase{"English", "txtG1", "", "", ""},
        LeaveCase{"Metric", "txtPVCSTA", "1O", "", "Must be numeric."}, LeaveCase{"Metric", "txtPVTSTA", "-3", "", ""},
        LeaveCase{"English", "txtPVISTAM", "99.99", "10", ""},
        LeaveCase{"English", "txtPVISTAM", "99.995", "10", "Measurement must be less than 100 feet."},
        LeaveCase{"Metric", "txtPVCSTAM", "999.999", "1", ""},
        LeaveCase{"Metric", "txtPVCSTAM", "999.9995", "1", "Measurement must be less than 1000 meters."},
        LeaveCase{"English", "txtPVTSTAM", "0", "", "Can not have a 0 station."},
        LeaveCase{"English", "txtPVTSTAM", "0.5", "0", ""}, LeaveCase{"English", "txtPVISTAM", "-5", "0", ""},
        LeaveCase{"English", "txtPVISTAM", "abc", "0", "Must be numeric."},
        // Neither unit system: no range check, but the zero station still fails.
        LeaveCase{"Furlongs", "txtPVISTAM", "5000", "1", ""}, LeaveCase{"English", "txtMO", "abc", "", ""}));

}  // namespace
}  // namespace gw
