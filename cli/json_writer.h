#pragma once
// Indented JSON written as it is built: objects, arrays, strings and numbers.

#include <string>
#include <string_view>
#include <vector>

namespace gw::cli {

class JsonWriter {
public:
    void BeginObject() { Open('{'); }
    void EndObject() { Close('}'); }
    void BeginArray() { Open('['); }
    void EndArray() { Close(']'); }
    // The name of the next member of the object being written.
    void Key(std::string_view name);
    // Text in the platform's 8-bit code page: valid UTF-8 passes, other bytes are Latin-1.
    void String(std::string_view text);
    // A number already in JSON's form, such as the number format's text.
    void Number(std::string_view text);
    void Null() { Value("null"); }
    void Bool(bool value) { Value(value ? "true" : "false"); }

    std::string Finish() { return m_text + "\n"; }

private:
    void Separate();
    void Value(std::string_view text);
    void Open(char bracket);
    void Close(char bracket);

    std::string m_text;
    std::vector<bool> m_hasItems;  // per open object or array
    bool m_afterKey = false;
};

}  // namespace gw::cli
