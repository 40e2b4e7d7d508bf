#pragma once
// Texts between the core, which holds them as UTF-8 std::strings, and the windows.

#include <QString>
#include <string_view>

namespace gw {

QString ToQString(std::string_view utf8);

// "Gradewise", the application title: the frame's title and every box's.
QString AppTitle();

}  // namespace gw
