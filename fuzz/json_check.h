#pragma once
// Whether a text is one well-formed JSON value (RFC 8259), for the fuzz targets that
// check what the commands print.

#include <cstddef>
#include <string_view>

namespace gw::fuzz {

class JsonCheck {
public:
    static bool Valid(std::string_view text) {
        JsonCheck c(text);
        c.Space();
        if (!c.Value(0)) return false;
        c.Space();
        return c.m_at == text.size();
    }

private:
    explicit JsonCheck(std::string_view text) : m_text(text) {}

    bool More() const { return m_at < m_text.size(); }
    char Peek() const { return More() ? m_text[m_at] : '\0'; }
    bool Eat(char c) {
        if (Peek() != c) return false;
        ++m_at;
        return true;
    }
    void Space() {
        while (More() && (Peek() == ' ' || Peek() == '\n' || Peek() == '\r' || Peek() == '\t')) ++m_at;
    }
    bool Word(std::string_view w) {
        if (m_text.substr(m_at, w.size()) != w) return false;
        m_at += w.size();
        return true;
    }
    bool Digits() {
        const size_t start = m_at;
        while (Peek() >= '0' && Peek() <= '9') ++m_at;
        return m_at > start;
    }
    bool Number() {
        Eat('-');
        if (!Eat('0') && !Digits()) return false;
        if (Eat('.') && !Digits()) return false;
        if (Eat('e') || Eat('E')) {
            if (!Eat('+')) Eat('-');
            if (!Digits()) return false;
        }
        return true;
    }
    bool String() {
        if (!Eat('"')) return false;
        while (More() && Peek() != '"') {
            const auto c = static_cast<unsigned char>(m_text[m_at++]);
            if (c < 0x20) return false;
            if (c != '\\') continue;
            const char e = Peek();
            ++m_at;
            if (e == 'u') {
                for (int i = 0; i < 4; ++i, ++m_at) {
                    const char h = Peek();
                    if (!((h >= '0' && h <= '9') || (h >= 'a' && h <= 'f') || (h >= 'A' && h <= 'F'))) return false;
                }
            } else if (std::string_view("\"\\/bfnrt").find(e) == std::string_view::npos) {
                return false;
            }
        }
        return Eat('"');
    }
    template <typename Item>
    bool List(char close, Item item, int depth) {
        Space();
        if (Eat(close)) return true;
        do {
            Space();
            if (!item(depth)) return false;
            Space();
        } while (Eat(','));
        return Eat(close);
    }
    bool Value(int depth) {
        if (depth > 64) return false;
        if (Eat('{')) {
            return List(
                '}', [this](int d) { return String() && (Space(), Eat(':')) && (Space(), Value(d + 1)); }, depth);
        }
        if (Eat('['))
            return List(
                ']', [this](int d) { return Value(d + 1); }, depth);
        if (Peek() == '"') return String();
        if (Word("true") || Word("false") || Word("null")) return true;
        return Number();
    }

    std::string_view m_text;
    size_t m_at = 0;
};

}  // namespace gw::fuzz
