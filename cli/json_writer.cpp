#include "cli/json_writer.h"

#include "cli/text_output.h"

namespace gw::cli {

void JsonWriter::Separate() {
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (m_open.empty()) return;
    Level& level = m_open.back();
    if (level.oneLine) {
        if (level.hasItems) m_text += ", ";
        level.hasItems = true;
        return;
    }
    if (level.hasItems) m_text += ',';
    level.hasItems = true;
    m_text += '\n';
    m_text.append(2 * m_open.size(), ' ');
}

void JsonWriter::Value(std::string_view text) {
    Separate();
    m_text.append(text);
}

void JsonWriter::Open(char bracket, bool oneLine) {
    Separate();
    m_text += bracket;
    m_open.push_back({false, oneLine});
}

void JsonWriter::Close(char bracket) {
    const Level level = m_open.back();
    m_open.pop_back();
    if (level.hasItems && !level.oneLine) {
        m_text += '\n';
        m_text.append(2 * m_open.size(), ' ');
    }
    m_text += bracket;
}

void JsonWriter::Key(std::string_view name) {
    String(name);
    m_text += ": ";
    m_afterKey = true;
}

void JsonWriter::String(std::string_view text) {
    static const char* hex = "0123456789abcdef";
    Separate();
    m_text += '"';
    for (unsigned char c : ToUtf8(text)) {
        switch (c) {
            case '"': m_text += "\\\""; break;
            case '\\': m_text += "\\\\"; break;
            case '\n': m_text += "\\n"; break;
            case '\r': m_text += "\\r"; break;
            case '\t': m_text += "\\t"; break;
            default:
                if (c < 0x20) {
                    m_text += "\\u00";
                    m_text += hex[c >> 4];
                    m_text += hex[c & 0xF];
                } else {
                    m_text += static_cast<char>(c);
                }
        }
    }
    m_text += '"';
}

void JsonWriter::Number(std::string_view text) { Value(text); }

}  // namespace gw::cli
