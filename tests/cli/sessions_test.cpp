// Sessions at the shell prompt, the README's and tests/cli/sessions.md's: every command
// prints what the page says it prints, and each drawing the README shows is the one its
// command makes.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "tests/cli/run_cli.h"

namespace gw::cli::test {
namespace {

namespace fs = std::filesystem;

struct Step {
    std::string command;
    std::string output;
};

// The "$ " lines of the page's console blocks, each with the lines that follow it.
std::vector<Step> Sessions(const std::string& page) {
    std::vector<Step> steps;
    bool inBlock = false;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (!inBlock || line == "```") {
            inBlock = line == "```console";
        } else if (line.rfind("$ ", 0) == 0) {
            steps.push_back({line.substr(2), ""});
        } else if (!steps.empty()) {
            steps.back().output += line + "\n";
        }
    }
    return steps;
}

// A folder holding the examples, the test inputs and gradewise-cli on a PATH of its own.
class SessionFolder : public Folder {
public:
    SessionFolder() {
        fs::copy(GW_SOURCE_DIR "/examples", Path() / "examples");
        fs::copy(GW_SOURCE_DIR "/tests/cli/inputs", Path() / "inputs");
        fs::create_directories(Path() / "docs");
        fs::create_directories(Path() / "bin");
        fs::create_symlink(GW_CLI_PATH, Path() / "bin" / "gradewise-cli");
    }
    // The command run by the shell here, what it prints and its errors as one text.
    std::string Shell(const std::string& command) const {
        const std::string script = Put("step.sh", "cd '" + Path().string() + "' || exit 99\nPATH='" + File("bin") +
                                                      "':\"$PATH\"\n" + command + "\n");
        std::string out;
        FILE* pipe = ::popen(("sh '" + script + "' 2>&1").c_str(), "r");
        char buffer[4096];
        for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
        ::pclose(pipe);
        return out;
    }
    void RunsAsPrinted(const std::string& page) const {
        const std::vector<Step> steps = Sessions(Read(GW_SOURCE_DIR "/" + page));
        EXPECT_GE(steps.size(), 10u);
        for (const Step& step : steps) EXPECT_EQ(Shell(step.command), step.output) << step.command;
    }
};

TEST(SessionsTest, TheReadmesRunAsPrinted) {
    SessionFolder folder;
    folder.RunsAsPrinted("README.md");
    int drawings = 0;
    for (const auto& entry : fs::directory_iterator(folder.Path() / "docs")) {
        ++drawings;
        EXPECT_EQ(Read(entry.path()), Read(fs::path(GW_SOURCE_DIR) / "docs" / entry.path().filename()))
            << entry.path().filename();
    }
    EXPECT_GE(drawings, 2);
}

TEST(SessionsTest, TheTestSessionsRunAsPrinted) { SessionFolder().RunsAsPrinted("tests/cli/sessions.md"); }

}  // namespace
}  // namespace gw::cli::test
