#pragma once
// Curve files on disk.

#include <cstddef>
#include <string>

namespace gw {

// A curve file holds 86 short values; no real one comes near this. Reading stops
// here so that a huge or endless file cannot take the program's memory or time.
inline constexpr std::size_t kCurveFileReadLimit = 4 * 1024 * 1024;

// Reads at most `limit` bytes. False with a description in `error` when the file
// cannot be opened or read.
bool ReadFileBytes(const std::string& path, std::string& bytes, std::string& error,
                   std::size_t limit = kCurveFileReadLimit);

}  // namespace gw
