#include "platform/file_names.h"

#include <sys/stat.h>

namespace gw {
namespace {

constexpr char16_t kEscapedByte = 0xDC00;

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += char(cp);
    } else if (cp < 0x800) {
        out += char(0xC0 | (cp >> 6));
        out += char(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += char(0xE0 | (cp >> 12));
        out += char(0x80 | ((cp >> 6) & 0x3F));
        out += char(0x80 | (cp & 0x3F));
    } else {
        out += char(0xF0 | (cp >> 18));
        out += char(0x80 | ((cp >> 12) & 0x3F));
        out += char(0x80 | ((cp >> 6) & 0x3F));
        out += char(0x80 | (cp & 0x3F));
    }
}

// The length of the valid UTF-8 sequence at `at`, with its code point; 0 when the
// byte there starts none (overlong forms and encoded surrogates included).
size_t Utf8Sequence(std::string_view b, size_t at, char32_t& cp) {
    const unsigned char c = static_cast<unsigned char>(b[at]);
    const size_t length = c < 0x80                 ? 1
                          : c >= 0xC2 && c <= 0xDF ? 2
                          : c >= 0xE0 && c <= 0xEF ? 3
                          : c >= 0xF0 && c <= 0xF4 ? 4
                                                   : 0;
    if (length == 0 || at + length > b.size()) return 0;
    cp = length == 1 ? c : length == 2 ? c & 0x1F : length == 3 ? c & 0x0F : c & 0x07;
    for (size_t k = 1; k < length; ++k) {
        const unsigned char d = static_cast<unsigned char>(b[at + k]);
        if ((d & 0xC0) != 0x80) return 0;
        cp = cp << 6 | (d & 0x3F);
    }
    if (length == 3 && (cp < 0x800 || (cp >= 0xD800 && cp <= 0xDFFF))) return 0;
    if (length == 4 && (cp < 0x10000 || cp > 0x10FFFF)) return 0;
    return length;
}

}  // namespace

QString FileNameFromBytes(std::string_view bytes) {
    QString name;
    name.reserve(qsizetype(bytes.size()));
    for (size_t i = 0; i < bytes.size();) {
        char32_t cp = 0;
        const size_t length = Utf8Sequence(bytes, i, cp);
        if (length == 0) {
            name += QChar(char16_t(kEscapedByte + static_cast<unsigned char>(bytes[i])));
            ++i;
            continue;
        }
        if (cp >= 0x10000) {
            name += QChar(QChar::highSurrogate(cp));
            name += QChar(QChar::lowSurrogate(cp));
        } else {
            name += QChar(char16_t(cp));
        }
        i += length;
    }
    return name;
}

std::string FileNameBytes(const QString& name) {
    std::string bytes;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name.at(i).unicode();
        if (QChar::isHighSurrogate(unit) && i + 1 < name.size() && QChar::isLowSurrogate(name.at(i + 1).unicode())) {
            AppendUtf8(bytes, QChar::surrogateToUcs4(unit, name.at(i + 1).unicode()));
            ++i;
        } else if (unit >= kEscapedByte + 0x80 && unit <= kEscapedByte + 0xFF) {
            bytes += char(unit - kEscapedByte);
        } else if (QChar::isSurrogate(unit)) {
            AppendUtf8(bytes, 0xFFFD);  // no name read from the system holds one
        } else {
            AppendUtf8(bytes, unit);
        }
    }
    return bytes;
}

bool IsPlainFile(const QString& name) {
    struct stat info {};
    return ::stat(FileNameBytes(name).c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

}  // namespace gw
