#pragma once
// How the fuzz targets turn their bytes into field texts.

#include <string>
#include <string_view>
#include <vector>

namespace gw::fuzz {

// Splits the input into texts at NUL bytes; each text is cut at 40 characters, more
// than any field takes.
inline std::vector<std::string> Texts(std::string_view data) {
    std::vector<std::string> out(1);
    for (char c : data) {
        if (c == '\0') {
            out.emplace_back();
        } else if (out.back().size() < 40) {
            out.back() += c;
        }
    }
    return out;
}

}  // namespace gw::fuzz
