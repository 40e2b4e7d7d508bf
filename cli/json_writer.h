#pragma once
// Indented JSON written as it is built: objects, arrays, strings and numbers.

#include <string>
#include <string_view>
#include <vector>

namespace gw::cli {

class JsonWriter {
public:
    void BeginObject() { Open('{', false); }
    void EndObject() { Close('}'); }
    // An array of short items can stay on one line: [1, 2, 3].
    void BeginArray(bool oneLine = false) { Open('[', oneLine); }
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
    void Open(char bracket, bool oneLine);
    void Close(char bracket);

    struct Level {
        bool hasItems = false;
        bool oneLine = false;
    };
    std::string m_text;
    std::vector<Level> m_open;  // per open object or array
    bool m_afterKey = false;
};

}  // namespace gw::cli
