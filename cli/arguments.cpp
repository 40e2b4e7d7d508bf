#include "cli/arguments.h"

#include <cmath>

#include "cli/station_input.h"
#include "core/numbers.h"

namespace gw::cli {

size_t ValueCount(const OptionRow& option) {
    if (!option.value) return 0;
    size_t words = 1;
    for (const char* c = option.value; *c; ++c) words += *c == ' ';
    return words;
}

Arguments::Arguments(const CommandRow& command, const std::vector<std::string>& words) : m_command(&command) {
    for (size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (const OptionRow* option = command.Option(word)) {
            const size_t count = ValueCount(*option);
            if (words.size() - i - 1 < count) {
                throw UsageError{word + " needs " + (count == 1 ? "a value" : std::to_string(count) + " values") +
                                 ": " + word + " " + option->value};
            }
            m_given[word].assign(words.begin() + static_cast<std::ptrdiff_t>(i + 1),
                                 words.begin() + static_cast<std::ptrdiff_t>(i + 1 + count));
            i += count;
        } else if (!word.empty() && word[0] == '-' && word != "-") {
            throw UsageError{"unknown option '" + word + "' for " + command.name};
        } else if (m_file.empty()) {
            m_file = word;
        } else {
            throw UsageError{"more than one FILE given ('" + m_file + "' and '" + word + "')"};
        }
    }
    if (m_file.empty()) throw UsageError{std::string(command.name) + " needs " + command.file};
    for (const OptionRow& option : command.options) {
        if (!option.required || Has(option.name)) continue;
        std::string message = std::string(command.name) + " needs " + option.name;
        if (option.value) message += std::string(" ") + option.value;
        if (option.example) message += std::string(", for example ") + option.name + " " + option.example;
        throw UsageError{message};
    }
}

std::optional<std::string> Arguments::Value(std::string_view option, size_t word) const {
    const auto it = m_given.find(option);
    if (it == m_given.end() || word >= it->second.size()) return std::nullopt;
    return it->second[word];
}

std::optional<double> Arguments::Number(std::string_view option, std::string_view what, bool (*accept)(double),
                                        size_t word) const {
    const std::optional<std::string> text = Value(option, word);
    if (!text) return std::nullopt;
    const double value = ReadNumber(*text);
    if (!IsNumericText(*text) || !std::isfinite(value) || (accept && !accept(value))) {
        throw UsageError{std::string(option) + " takes " + std::string(what)};
    }
    return value;
}

std::optional<size_t> Arguments::Ordinal(std::string_view option, std::string_view what) const {
    const std::optional<double> n =
        Number(option, what, [](double v) { return v >= 1 && v <= 1e9 && v == std::trunc(v); });
    if (!n) return std::nullopt;
    return static_cast<size_t>(*n);
}

std::optional<double> Arguments::Station(std::string_view option, bool metric, size_t word) const {
    const std::optional<std::string> text = Value(option, word);
    if (!text) return std::nullopt;
    const StationReading station = ReadStation(*text, metric);
    if (!station.value) throw UsageError{std::string(option) + ": " + station.problem};
    return station.value;
}

void Arguments::Needs(std::string_view option, std::string_view with) const {
    if (Has(option) && !Has(with)) throw UsageError{std::string(option) + " goes with " + std::string(with)};
}

bool Positive(double value) { return value > 0; }

bool AsksForHelp(const std::vector<std::string>& words, const CommandRow* command) {
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--help" || words[i] == "-h") return true;
        if (const OptionRow* option = command ? command->Option(words[i]) : nullptr) i += ValueCount(*option);
    }
    return false;
}

}  // namespace gw::cli
