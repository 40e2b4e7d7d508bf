// The README's sessions at the shell prompt: every command prints what the README says
// it prints, and each drawing it shows is the one its command makes.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/files/temp_folder.h"

namespace gw::cli::test {
namespace {

std::string Read(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

struct Step {
    std::string command;
    std::string output;
};

// The "$ " lines of the README's console blocks, each with the lines that follow it.
std::vector<Step> Sessions(const std::string& readme) {
    std::vector<Step> steps;
    bool inBlock = false;
    size_t start = 0;
    while (start < readme.size()) {
        const size_t end = std::min(readme.find('\n', start), readme.size());
        const std::string line = readme.substr(start, end - start);
        start = end + 1;
        if (!inBlock) {
            inBlock = line == "```console";
        } else if (line == "```") {
            inBlock = false;
        } else if (line.rfind("$ ", 0) == 0) {
            steps.push_back({line.substr(2), ""});
        } else if (!steps.empty()) {
            steps.back().output += line + "\n";
        }
    }
    return steps;
}

// The command run by the shell in `folder`, with gradewise-cli on the PATH.
std::string Shell(const gw::test::TempFolder& folder, const std::string& command) {
    const std::string script = folder.File("step.sh");
    std::ofstream(script) << "cd '" << folder.Path().string() << "' || exit 99\nPATH='" << folder.File("bin")
                          << "':\"$PATH\"\n"
                          << command << "\n";
    std::string out;
    FILE* pipe = ::popen(("sh '" + script + "' 2>&1").c_str(), "r");
    char buffer[4096];
    for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    ::pclose(pipe);
    return out;
}

TEST(ReadmeTest, EverySessionRunsAsPrinted) {
    gw::test::TempFolder folder;
    namespace fs = std::filesystem;
    fs::copy(GW_SOURCE_DIR "/examples", folder.Path() / "examples");
    fs::create_directories(folder.Path() / "docs");
    fs::create_directories(folder.Path() / "bin");
    fs::create_symlink(GW_CLI_PATH, folder.Path() / "bin" / "gradewise-cli");

    const std::vector<Step> steps = Sessions(Read(GW_SOURCE_DIR "/README.md"));
    EXPECT_GE(steps.size(), 10u);
    for (const Step& step : steps) EXPECT_EQ(Shell(folder, step.command), step.output) << step.command;

    int drawings = 0;
    for (const auto& entry : fs::directory_iterator(folder.Path() / "docs")) {
        ++drawings;
        EXPECT_EQ(Read(entry.path()), Read(fs::path(GW_SOURCE_DIR) / "docs" / entry.path().filename()))
            << entry.path().filename();
    }
    EXPECT_GE(drawings, 2);
}

}  // namespace
}  // namespace gw::cli::test
