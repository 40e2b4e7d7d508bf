// Arbitrary bytes as a LandXML or a CSV profile (the first byte chooses): reading must
// never crash, hang or leak, and
//   - the file gives a profile or a refusal, never both or neither;
//   - a refusal names the line or element at fault, or is about the whole file;
//   - a profile written as LandXML reads back as the same PVIs and curves.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "cli/profile_landxml.h"
#include "cli/profile_source.h"

namespace {

[[noreturn]] void Fail(const char* what, std::string_view input, const std::string& detail) {
    std::fprintf(stderr, "%s\ninput (first 2000 bytes):\n%.*s\n%s\n", what,
                 static_cast<int>(std::min<size_t>(input.size(), 2000)), input.data(), detail.c_str());
    std::abort();
}

// Refusals that concern the file as a whole rather than a line of it.
bool AboutTheWholeFile(const std::string& message) {
    for (const char* start :
         {"The file ", "A profile needs a beginning and an end point", "The profile has no length"}) {
        if (message.rfind(start, 0) == 0) return true;
    }
    return false;
}

bool Same(double a, double b) { return a == b || std::fabs(a - b) <= 1e-13 * std::max(std::fabs(a), std::fabs(b)); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const bool xml = data[0] & 1;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const gw::cli::ProfileSource s = gw::cli::ReadProfileSource(xml ? "p.xml" : "p.csv", bytes, std::nullopt);
    if (s.profile.has_value() == !s.error.empty()) Fail("a profile and a refusal, or neither", bytes, s.error);
    if (!s.profile) {
        if (s.error.find("ine ") == std::string::npos && !AboutTheWholeFile(s.error)) {
            Fail("a refusal that names no line or element", bytes, s.error);
        }
        return 0;
    }
    const gw::Profile& p = *s.profile;
    const std::string text = gw::cli::LandXmlText(s.document, p, "2026-01-01", "00:00:00");
    const gw::cli::ProfileSource back = gw::cli::ReadProfileSource("back.xml", text, std::nullopt);
    if (!back.profile) Fail("its LandXML is refused", bytes, text + "\n" + back.error);
    const auto& a = p.pvis();
    const auto& b = back.profile->pvis();
    if (a.size() != b.size() || back.profile->metric() != p.metric()) Fail("other PVIs read back", bytes, text);
    for (size_t i = 0; i < a.size(); ++i) {
        const bool curves = a[i].curve.has_value() == b[i].curve.has_value();
        if (!curves || !Same(a[i].station, b[i].station) || !Same(a[i].elevation, b[i].elevation) ||
            (a[i].curve && (!Same(a[i].curve->lengthIn(), b[i].curve->lengthIn()) ||
                            !Same(a[i].curve->lengthOut(), b[i].curve->lengthOut())))) {
            Fail("a PVI reads back otherwise", bytes, text);
        }
    }
    return 0;
}
