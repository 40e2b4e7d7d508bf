#pragma once
// Every command of gradewise-cli as one row: its name, usage line, help, the options
// it takes and the function that runs it. The general help, each command's help and
// the argument parser all read these rows, so a new command is a new row.

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace gw::cli {

class Arguments;

struct OptionRow {
    const char* name;   // "--every", "-o"
    const char* value;  // the words that follow it, as the help names them ("WHOLE+PLUS",
                        // "STA ELEV": two words, two values); nullptr for a flag
    const char* help;
    // Given with every use of the command; `example` then completes the message
    // that asks for it ("table needs --every WHOLE+PLUS, for example --every 0+50").
    bool required = false;
    const char* example = nullptr;
};

// Runs a parsed command line: the result goes to `out` (the text printed or the
// bytes of the file written), messages to `err`; gives the exit status. A bad
// argument found on the way is thrown as a UsageError.
using Handler = int (*)(const Arguments& arguments, std::ostream& out, std::ostream& err);

struct CommandRow {
    const char* name;
    const char* usage;    // after "gradewise-cli ": "table FILE --every WHOLE+PLUS [--csv] [-o OUT]"
    const char* file;     // what FILE is, for the message when it is missing: "a curve FILE"
    const char* summary;  // its lines in the general help, lined up after the name
    std::string about;    // what `COMMAND --help` says above the options
    std::vector<OptionRow> options;
    const char* exitStatus;  // the closing paragraph of `COMMAND --help`
    // The option that names the file the result goes to (written whole or not at
    // all); without it the result goes to standard output. nullptr: no such option.
    const char* output;
    Handler run;

    const OptionRow* Option(std::string_view name) const;
};

const std::vector<CommandRow>& Commands();
const CommandRow* FindCommand(std::string_view name);

std::string GeneralHelp();
std::string CommandHelp(const CommandRow& command);

}  // namespace gw::cli
