#include "profile_commands.h"

#include "cli/cli.h"
#include "cli/profile_check.h"
#include "cli/profile_exchange.h"
#include "cli/profile_listing.h"
#include "cli/profile_plot.h"
#include "cli/profile_source.h"
#include "cli/profile_table.h"
#include "cli/text_output.h"
#include "core/numbers.h"
#include "core/stations.h"

namespace gw::cli {

std::optional<double> IntervalOf(const std::string& every, bool metric) {
    const size_t at = every.find('+', 1);
    if (at == std::string::npos) return std::nullopt;
    const std::string whole = every.substr(0, at), plus = every.substr(at + 1);
    const double interval = JoinStation(whole, plus, metric ? kMetric : kEnglish);
    if (!IsNumericText(whole) || !IsNumericText(plus) || !(interval > 0)) return std::nullopt;
    return interval;
}

int RunProfileListing(const ProfileFileOptions& o, bool json, std::ostream& out, std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    out << (json ? ProfileListingJson(s.document, *s.profile) : ProfileListingText(s.document, *s.profile));
    return kDone;
}

int RunProfileTable(const ProfileFileOptions& o, const std::string& every, bool csv, std::ostream& out,
                    std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    const Profile& p = *s.profile;
    const std::optional<double> interval = IntervalOf(every, p.metric());
    if (!interval) {
        err << "gradewise-cli: --every takes an interval greater than 0 as WHOLE+PLUS, for example 0+50\n";
        return kUsage;
    }
    const ProfileRowsOutcome rows = ProfileRows(p, *interval);
    if (!rows.error.empty()) {
        err << "gradewise-cli: --every " << every << ": " << rows.error << "\n";
        return kUsage;
    }
    out << (csv ? ProfileTableCsv(rows.rows, p.metric()) : ProfileTableText(rows.rows, p.metric()));
    return kDone;
}

int RunProfilePlot(const ProfileFileOptions& o, std::ostream& out, std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    out << ProfilePlotSvg(*s.profile, "Profile of " + ToUtf8(s.document.name));
    return kDone;
}

int RunProfileCheck(const ProfileFileOptions& o, CheckSettings settings, std::ostream& out, std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    settings.metric = s.profile->metric();
    if (const std::string problem = CheckSettingsError(settings); !problem.empty()) {
        err << "gradewise-cli: " << problem << "\n";
        return kUsage;
    }
    return ProfileCheckReport(s.document, *s.profile, settings, out);
}

int RunProfileDesign(const ProfileFileOptions& o, const DesignRequest& request, std::ostream& out,
                     std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    return ProfileDesignReport(s.document, *s.profile, request, out, err);
}

int RunExport(const ProfileFileOptions& o, std::ostream& out, std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    out << ExportLandXml(s.document, *s.profile);
    return kDone;
}

int RunImport(const ProfileFileOptions& o, size_t curve, std::ostream& out, std::ostream& err) {
    ProfileSource s;
    if (int status = LoadProfile(o.file, o.profileName, s, err)) return status;
    std::string bytes;
    const int status = ImportCurve(s.document, *s.profile, curve, bytes, err);
    if (status == kDone || status == kStationOffCurve) out << bytes;
    return status;
}

}  // namespace gw::cli
