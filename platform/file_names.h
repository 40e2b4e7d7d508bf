#pragma once
// File names are bytes on this system, and not every name is valid UTF-8. Between a
// name's bytes and the QString the windows hold, each byte that is not part of valid
// UTF-8 travels as a code unit of its own (U+DC80 to U+DCFF, which no decoded text
// holds), so that every name comes back to exactly its bytes.

#include <QString>
#include <string>
#include <string_view>

namespace gw {

QString FileNameFromBytes(std::string_view bytes);
std::string FileNameBytes(const QString& name);

// An ordinary file (hidden and read-only ones included) at that name; a folder,
// device or pipe is none.
bool IsPlainFile(const QString& name);

}  // namespace gw
