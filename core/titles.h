#pragma once
// A curve window's title is the only record of its file's path.

#include <string>
#include <string_view>

namespace gw {

// "Vertical Curve - Metric: " or "Vertical Curve - English: " by the units dialog's choice.
std::string TitlePrefix(bool metric);
std::string UntitledTitle(bool metric);

// True when the last eight characters are exactly "Untitled".
bool IsUntitledTitle(std::string_view title);

// The text after the first colon less one character; without a colon, the title
// less its first character (a window of unknown units keeps its design caption).
std::string PathFromTitle(std::string_view title);

// The name the close question shows: "Untitled" or the path in the title.
std::string CurveNameFromTitle(std::string_view title);

// Save of an untitled window: the title less "Untitled", one blank, the path
// (so two blanks follow the colon).
std::string TitleAfterSave(std::string_view untitledTitle, std::string_view path);

// Save As: up to and including the character after the first colon, then the path;
// for an untitled window the title less "Untitled", then the path.
std::string TitleAfterSaveAs(std::string_view title, std::string_view path);

// Opening a file: titled by the stored unit system, or unchanged when the stored
// text is neither "Metric" nor "English".
std::string TitleForLoadedFile(std::string_view currentTitle, std::string_view storedUnits, std::string_view path);

// The first line of the close question and its second line, joined by CR LF.
std::string CloseQuestion(std::string_view curveName);

}  // namespace gw
