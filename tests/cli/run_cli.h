#pragma once
// gradewise-cli run in the test's own process through its entry point, the files the
// tests hand it and the outputs they expect of it whole.

#include <fstream>
#include <string>
#include <vector>

#include "fuzz/command_runs.h"
#include "tests/files/temp_folder.h"

namespace gw::cli::test {

using Result = gw::fuzz::CommandRun;

// The words of a command line written as one text (no word holds a space).
inline std::vector<std::string> Words(const std::string& line) {
    std::vector<std::string> words;
    std::istringstream in(line);
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

inline Result RunCli(const std::string& line) { return gw::fuzz::RunCommand(Words(line)); }

inline std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

inline std::string Example(const std::string& name) { return std::string(GW_EXAMPLES_DIR) + "/" + name; }

// An output as it was checked by hand, kept in tests/cli/expected.
inline std::string Expected(const std::string& name) { return Read(GW_SOURCE_DIR "/tests/cli/expected/" + name); }

// A folder of the test's own, with the files the test puts there.
class Folder : public gw::test::TempFolder {
public:
    std::string Put(const std::string& name, const std::string& bytes) const {
        const std::string path = File(name);
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
};

}  // namespace gw::cli::test
