#include "arguments.h"

#include "cli/cli.h"
#include "core/curve_file.h"
#include "files/curve_file_io.h"
#include "files/replace_file.h"

namespace gw::cli {

CommandArguments::CommandArguments(const std::vector<std::string>& args, std::initializer_list<const char*> withValue,
                                   std::initializer_list<const char*> flags) {
    m_command = args.at(0);
    const std::set<std::string> valued(withValue.begin(), withValue.end());
    const std::set<std::string> known(flags.begin(), flags.end());
    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (valued.count(a)) {
            if (i + 1 >= args.size()) throw UsageError{a + " needs a value"};
            m_values[a] = args[++i];
        } else if (known.count(a)) {
            m_flags.insert(a);
        } else if (!a.empty() && a[0] == '-' && a != "-") {
            throw UsageError{"unknown option '" + a + "' for " + m_command};
        } else if (m_file.empty()) {
            m_file = a;
        } else {
            throw UsageError{"more than one FILE given ('" + m_file + "' and '" + a + "')"};
        }
    }
    if (m_file.empty()) throw UsageError{m_command + " needs a curve FILE"};
}

std::optional<std::string> CommandArguments::Value(const std::string& option) const {
    auto it = m_values.find(option);
    if (it == m_values.end()) return std::nullopt;
    return it->second;
}

bool AsksForHelp(const std::vector<std::string>& args, std::initializer_list<const char*> withValue) {
    const std::set<std::string> valued(withValue.begin(), withValue.end());
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--help" || args[i] == "-h") return true;
        if (valued.count(args[i])) ++i;
    }
    return false;
}

bool LoadCurve(const std::string& file, CurveSheet& sheet, std::ostream& err) {
    std::string bytes, error;
    if (!ReadFileBytes(file, bytes, error)) {
        err << "gradewise-cli: cannot read '" << file << "': " << error << "\n";
        return false;
    }
    sheet = LoadStoredCurve(ParseCurveFile(bytes), "Metric");
    return true;
}

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

}  // namespace gw::cli
