#pragma once
// The texts of the file commands, exactly as the user sees them.

namespace gw::file_text {

inline constexpr const char* kFileDoesNotExist = "This file does not exist.";

// The file dialogs' filter list: every file, then curve files (shown first).
inline constexpr const char* kAllFiles = "All Files (*.*)";
inline constexpr const char* kAllFilesPattern = "*.*";
inline constexpr const char* kCurveFiles = "Gradewise files (*.gwf)";
inline constexpr const char* kCurveFilesPattern = "*.gwf";

// What Save As proposes when the close question saves an untitled curve.
inline constexpr const char* kProposedName = "untitled";

}  // namespace gw::file_text
