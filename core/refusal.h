#pragma once
// A calculation or check that says no: the message to show and where the focus goes.
// Commands hand this back as a value; the windows show it.

#include <optional>
#include <string>

namespace gw {

struct Refusal {
    std::string message;
    std::string field;  // control name of the field to focus
    int row = -1;       // row index for the row fields of the elevations window

    bool operator==(const Refusal& o) const { return message == o.message && field == o.field && row == o.row; }
};

using Outcome = std::optional<Refusal>;  // empty: the command went through

}  // namespace gw
