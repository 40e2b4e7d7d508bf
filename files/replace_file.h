#pragma once
// The one way both programs write a file: every curve file, table, drawing, PDF and
// the settings store.

#include <string>
#include <string_view>

namespace gw {

// Replaces the file at `path` (a name in bytes, as the system takes it) with `bytes`,
// so that a failure at any step leaves the previous file byte for byte as it was and
// no partial new file: the bytes go to a temporary file in the same folder, which is
// flushed to the disk and then renamed over the target, keeping the target's
// permissions. A symbolic link stays a link: the file it leads to is replaced.
//
// A folder that takes no new file (read-only, with a writable file in it) gets the file
// rewritten in place, but only after the space for the new content has been reserved,
// so that a full disk fails before a byte of the old content is touched. A device or
// pipe named as the target is written in place: renaming over it would replace it.
//
// False with the system's description of the first failure in `error`. A file-size
// limit fails like a full disk provided the caller ignores SIGXFSZ.
bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& error);

}  // namespace gw
