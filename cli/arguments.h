#pragma once
// The one reader of gradewise-cli's command lines: the words after the command,
// read against the options of its row in the command table.

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command_table.h"

namespace gw::cli {

// Bad arguments: the message goes to stderr and the exit status is 2.
struct UsageError {
    std::string message;
};

class Arguments {
public:
    // Every option the command knows, each with its words, and exactly one FILE; an
    // unknown option, a missing value, a second FILE or a missing required option
    // is a UsageError. An option given twice keeps its last words.
    Arguments(const CommandRow& command, const std::vector<std::string>& words);

    const CommandRow& Command() const { return *m_command; }
    const std::string& File() const { return m_file; }
    bool Has(std::string_view option) const { return m_given.count(std::string(option)) > 0; }
    // The words that followed the option; none when it was not given.
    std::optional<std::string> Value(std::string_view option, size_t word = 0) const;

    // The option's word as a number, none when the option was not given; otherwise
    // "OPTION takes WHAT" when it is not a number or `accept` refuses it.
    std::optional<double> Number(std::string_view option, std::string_view what, bool (*accept)(double) = nullptr,
                                 size_t word = 0) const;
    // A whole number from 1, such as the number of a PVI.
    std::optional<size_t> Ordinal(std::string_view option, std::string_view what) const;
    // The option's word as a station in ft or m; none when the option was not given.
    std::optional<double> Station(std::string_view option, bool metric, size_t word = 0) const;

    // Throws "OPTION goes with WITH" when the option is given without the other.
    void Needs(std::string_view option, std::string_view with) const;

private:
    const CommandRow* m_command;
    std::string m_file;
    std::map<std::string, std::vector<std::string>, std::less<>> m_given;
};

bool Positive(double value);

// True when a word of the command line asks for help ("--help" or "-h"); the words
// after an option of `command` are its values, even one that reads "-h". Without a
// command every word is looked at.
bool AsksForHelp(const std::vector<std::string>& words, const CommandRow* command);

// The number of words an option takes: one per word of its value's name.
size_t ValueCount(const OptionRow& option);

}  // namespace gw::cli
