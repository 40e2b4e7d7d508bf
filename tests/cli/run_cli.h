#pragma once
// gradewise-cli run in the test's own process through its entry point, and the files
// the tests hand it.

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/cli.h"
#include "tests/files/temp_folder.h"

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

// The words of a command line written as one text (no word holds a space).
inline std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    std::istringstream in(line);
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

inline Result RunCli(const std::string& line) { return RunCli(Words(line)); }

inline std::string LastLine(const std::string& text) {
    const size_t end = text.find_last_not_of('\n');
    const size_t begin = text.rfind('\n', end);
    return text.substr(begin + 1, end - begin);
}

inline std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

inline std::string Example(const std::string& name) { return std::string(GW_EXAMPLES_DIR) + "/" + name; }

// A folder of the test's own, with the files the test puts there.
class Folder : public gw::test::TempFolder {
public:
    std::string Put(const std::string& name, const std::string& bytes) const {
        const std::string path = File(name);
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
};

// A sag profile in feet: -1.0 % to +2.2 % through PVI 52+50 at 432.34, L 800 ft.
inline const char* kSagCsv = "Station (ft),Elevation,Length\n40+00,444.84\n52+50,432.34,800\n65+00,459.84\n";

}  // namespace gw::cli::test
