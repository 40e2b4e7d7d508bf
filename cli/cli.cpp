#include "cli/cli.h"

#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/command_table.h"
#include "files/replace_file.h"

#define GW_STR2(x) #x
#define GW_STR(x) GW_STR2(x)

namespace gw::cli {
namespace {

constexpr const char* kVersion =
    "gradewise-cli " GW_STR(GW_VERSION_MAJOR) "." GW_STR(GW_VERSION_MINOR) "." GW_STR(GW_VERSION_REVISION);

// To OUT when given, through the one file writer that leaves OUT as it was when the
// write fails; else to `out`. The exit status.
int Emit(const std::optional<std::string>& output, const std::string& text, std::ostream& out, std::ostream& err) {
    if (!output) {
        out << text;
        return kDone;
    }
    std::string error;
    if (!ReplaceFile(*output, text, error)) {
        err << "gradewise-cli: cannot write '" << *output << "': " << error << "\n";
        return kUsage;
    }
    return kDone;
}

// The command's result is kept until it is complete, so that a refusal or a bad
// argument found on the way writes nothing, and an output file is written whole.
int Execute(const CommandRow& command, const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
    try {
        const Arguments arguments(command, words);
        std::ostringstream result;
        const int status = command.run(arguments, result, err);
        const std::string text = std::move(result).str();
        if (text.empty()) return status;
        const int written = Emit(command.output ? arguments.Value(command.output) : std::nullopt, text, out, err);
        return written == kDone ? status : written;
    } catch (const UsageError& e) {
        err << "gradewise-cli: " << e.message << "\nTry 'gradewise-cli " << command.name << " --help'.\n";
        return kUsage;
    }
}

}  // namespace

int Run(int argc, char** argv, std::ostream& out, std::ostream& err) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() == 1 && args[0] == "--version") {
        out << kVersion << "\n";
        return kDone;
    }
    const CommandRow* command = args.empty() ? nullptr : FindCommand(args[0]);
    if (!command) {
        if (AsksForHelp(args, nullptr)) {
            out << GeneralHelp();
            return kDone;
        }
        err << "gradewise-cli: " << (args.empty() ? "no command given" : "unknown command '" + args[0] + "'")
            << "\nTry 'gradewise-cli --help'.\n";
        return kUsage;
    }
    const std::vector<std::string> words(args.begin() + 1, args.end());
    if (AsksForHelp(words, command)) {
        out << CommandHelp(*command);
        return kDone;
    }
    return Execute(*command, words, out, err);
}

}  // namespace gw::cli
