#pragma once
// What every gradewise-cli command shares: reading its arguments, loading the curve
// file and writing its output.

#include <initializer_list>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "core/curve_sheet.h"

namespace gw::cli {

// Bad arguments: the message goes to stderr and the exit status is 2.
struct UsageError {
    std::string message;
};

// The words after the command: the options it knows, with or without a value,
// and exactly one FILE.
class CommandArguments {
public:
    CommandArguments(const std::vector<std::string>& args, std::initializer_list<const char*> withValue,
                     std::initializer_list<const char*> flags);

    const std::string& Command() const { return m_command; }
    const std::string& File() const { return m_file; }
    std::optional<std::string> Value(const std::string& option) const;
    bool Flag(const std::string& option) const { return m_flags.count(option) > 0; }

private:
    std::string m_command;
    std::string m_file;
    std::map<std::string, std::string> m_values;
    std::set<std::string> m_flags;
};

// True when a word of the command line asks for help ("--help" or "-h"); the word after
// an option in `withValue` is that option's value, even when it reads "-h".
bool AsksForHelp(const std::vector<std::string>& args, std::initializer_list<const char*> withValue);

// The curve file as opening it in the program gives it; false (with the message
// written) when it cannot be read.
bool LoadCurve(const std::string& file, CurveSheet& sheet, std::ostream& err);

// To OUT when given, through the one file writer that leaves OUT as it was when the
// write fails; else to `out`. The exit status.
int Emit(const std::optional<std::string>& output, const std::string& text, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
