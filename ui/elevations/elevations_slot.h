#pragma once
// What an elevations window needs of its window slot: the rows it keeps while
// hidden, the curve window's fields, and the slot's changed flag.

#include "core/curve_sheet.h"

namespace gw {

class ElevationsSlot {
public:
    virtual ~ElevationsSlot() = default;
    // The rows, offsets and station copies, kept for the slot while the window is hidden.
    virtual ElevationTable& Table() = 0;
    // The curve window's fields as they stand (its own elevations are not needed).
    virtual CurveSheet CurveFields() const = 0;
    virtual void MarkChanged() = 0;
};

}  // namespace gw
