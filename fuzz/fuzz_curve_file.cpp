// Arbitrary bytes as a curve file: reading must never crash, hang or leak, and
// what the writer makes of the loaded sheet must read back to the same sheet.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/curve_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const gw::CurveSheet loaded = gw::LoadStoredCurve(gw::ParseCurveFile(bytes), gw::kMetric);
    if (loaded.optPVI && loaded.optPVCPVT) std::abort();

    // Texts holding a quote, a comma or a line break cannot round-trip by design.
    const std::string written = gw::CurveFileBytes(loaded);
    bool plain = true;
    for (std::string_view name : gw::CurveSheet::CurveFieldNames()) {
        if (loaded.Field(name)->find_first_of("\",\r\n") != std::string::npos) plain = false;
    }
    for (const auto& row : loaded.elevations.rows) {
        for (const std::string* t : {&row.txtTOTSTA1, &row.txtTOTSTAM1, &row.txtTotalTopSlab1}) {
            if (t->find_first_of("\",\r\n") != std::string::npos) plain = false;
        }
    }
    for (const std::string* t : {&loaded.lblSDL, &loaded.lblMorF, &loaded.elevations.txtVOffset,
                                 &loaded.elevations.txtHOffset, &loaded.elevations.txtXSlope}) {
        if (t->find_first_of("\",\r\n") != std::string::npos) plain = false;
    }
    if (plain && (loaded.optPVI || loaded.optPVCPVT)) {
        const gw::CurveSheet again = gw::LoadStoredCurve(gw::ParseCurveFile(written), gw::kMetric);
        if (gw::CurveFileBytes(again) != written) std::abort();
    }
    return 0;
}
