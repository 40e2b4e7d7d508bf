#pragma once
// Whether a text is one well-formed JSON value (RFC 8259), for the fuzz targets that
// check what the commands print.

#include <cstring>
#include <string_view>

namespace gw::fuzz {

struct JsonCheck {
    static bool Valid(std::string_view text) {
        JsonCheck c{text};
        return c.Value(0) && (c.Space(), c.m_at == text.size());
    }

    char Peek() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }
    bool Eat(char c) { return Peek() == c && c != '\0' && ++m_at; }
    bool Digit() const { return Peek() >= '0' && Peek() <= '9'; }
    bool Digits() {
        const size_t start = m_at;
        while (Digit()) ++m_at;
        return m_at > start;
    }
    void Space() {
        while (Peek() != '\0' && std::strchr(" \n\r\t", Peek())) ++m_at;
    }
    bool Number() {
        Eat('-');
        if (!Eat('0') && !Digits()) return false;
        if (Eat('.') && !Digits()) return false;
        return !(Eat('e') || Eat('E')) || ((Eat('+') || Eat('-')), Digits());
    }
    bool String() {
        if (!Eat('"')) return false;
        while (m_at < m_text.size() && Peek() != '"') {
            const auto c = static_cast<unsigned char>(m_text[m_at++]);
            if (c < 0x20) return false;
            if (c != '\\') continue;
            const char e = Peek();
            ++m_at;
            if (e == 'u') {
                for (int i = 0; i < 4; ++i, ++m_at) {
                    if (Peek() == '\0' || !std::strchr("0123456789abcdefABCDEF", Peek())) return false;
                }
            } else if (e == '\0' || !std::strchr("\"\\/bfnrt", e)) {
                return false;
            }
        }
        return Eat('"');
    }
    // A list of items between `open` and `close`, each a value or, in an object, a
    // string, a colon and a value.
    bool List(char close, bool object, int depth) {
        Space();
        if (Eat(close)) return true;
        do {
            Space();
            if (object && !(String() && (Space(), Eat(':')))) return false;
            if (!Value(depth + 1)) return false;
            Space();
        } while (Eat(','));
        return Eat(close);
    }
    bool Value(int depth) {
        Space();
        if (depth > 64) return false;
        if (Eat('{')) return List('}', true, depth);
        if (Eat('[')) return List(']', false, depth);
        if (Peek() == '"') return String();
        for (std::string_view word : {"true", "false", "null"}) {
            if (m_text.substr(m_at, word.size()) == word) return (m_at += word.size()), true;
        }
        return Number();
    }

    std::string_view m_text;
    size_t m_at = 0;
};

}  // namespace gw::fuzz
