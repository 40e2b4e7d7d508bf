#include "core/titles.h"

#include "core/stations.h"

namespace gw {
namespace {
constexpr std::string_view kUntitled = "Untitled";
}

std::string TitlePrefix(bool metric) { return "Vertical Curve - " + std::string(UnitSystemName(metric)) + ": "; }

std::string UntitledTitle(bool metric) { return TitlePrefix(metric) + std::string(kUntitled); }

bool IsUntitledTitle(std::string_view title) {
    return title.size() >= kUntitled.size() && title.substr(title.size() - kUntitled.size()) == kUntitled;
}

std::string PathFromTitle(std::string_view title) {
    // The last (length - position of the first colon - 1) characters, the position
    // counting from 1 and being 0 when there is no colon.
    const size_t colon = title.find(':');
    const size_t position = colon == std::string_view::npos ? 0 : colon + 1;
    if (position + 1 > title.size()) return {};
    return std::string(title.substr(position + 1));
}

std::string CurveNameFromTitle(std::string_view title) {
    return IsUntitledTitle(title) ? std::string(kUntitled) : PathFromTitle(title);
}

std::string TitleAfterSave(std::string_view untitledTitle, std::string_view path) {
    return std::string(untitledTitle.substr(0, untitledTitle.size() - kUntitled.size())) + " " + std::string(path);
}

std::string TitleAfterSaveAs(std::string_view title, std::string_view path) {
    size_t colon = IsUntitledTitle(title) ? std::string_view::npos : title.find(':');
    // The colon's position counts from 1, so position 0 means "untitled".
    if (colon != std::string_view::npos) {
        return std::string(title.substr(0, std::min(title.size(), colon + 2))) + std::string(path);
    }
    return std::string(title.substr(0, title.size() - std::min(title.size(), kUntitled.size()))) + std::string(path);
}

std::string TitleForLoadedFile(std::string_view currentTitle, std::string_view storedUnits, std::string_view path) {
    if (storedUnits != kMetric && storedUnits != kEnglish) return std::string(currentTitle);
    return TitlePrefix(IsMetric(storedUnits)) + std::string(path);
}

std::string CloseQuestion(std::string_view curveName) {
    return "The text in [" + std::string(curveName) + "] has changed.\r\nDo you want to save the changes?";
}

}  // namespace gw
