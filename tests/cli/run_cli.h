#pragma once
// gradewise-cli run in the test's own process through its entry point.

#include <sstream>
#include <string>
#include <vector>

#include "cli/cli.h"

namespace gw::cli::test {

// What the command-line tool exits with and prints.
struct Result {
    int status;
    std::string out;
    std::string err;
};

inline Result RunCli(std::vector<std::string> args) {
    args.insert(args.begin(), "gradewise-cli");
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(a.data());
    std::ostringstream out, err;
    const int status = Run(static_cast<int>(argv.size()), argv.data(), out, err);
    return {status, out.str(), err.str()};
}

inline std::string LastLine(const std::string& text) {
    const size_t end = text.find_last_not_of('\n');
    const size_t begin = text.rfind('\n', end);
    return text.substr(begin + 1, end - begin);
}

}  // namespace gw::cli::test
