#pragma once
// Runs the command-line tool in this process, in a folder of its own per test.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "cli/cli.h"
#include "core/curve_file.h"
#include "core/curve_sheet.h"

namespace gw::cli::test {

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

// The exit status of the real program run with `args`.
inline int ProcessStatus(const std::string& args) {
    const int raw = std::system((std::string(GW_CLI_PATH) + " " + args + " >/dev/null 2>&1").c_str());
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
}

inline std::string Example(const char* name) { return std::string(GW_EXAMPLES_DIR) + "/" + name; }

inline std::string LastLine(const std::string& text) {
    const size_t end = text.find_last_not_of('\n');
    return text.substr(text.rfind('\n', end) + 1, end - text.rfind('\n', end));
}

inline std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

class CliTest : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        m_dir = std::filesystem::temp_directory_path() /
                ("gw_cli_" + std::to_string(::getpid()) + "_" + info->test_suite_name() + "_" + info->name());
        std::filesystem::create_directories(m_dir);
    }
    void TearDown() override { std::filesystem::remove_all(m_dir); }

    std::string Path(const std::string& name) const { return (m_dir / name).string(); }

    // The sheet written as a curve file of its own.
    std::string Write(const CurveSheet& sheet) {
        const std::string path = Path("curve" + std::to_string(m_files++) + ".gwf");
        std::ofstream(path, std::ios::binary) << CurveFileBytes(sheet);
        return path;
    }
    // A curve in the PVI mode, written as a curve file.
    std::string Pvi(const char* units, const char* sta, const char* stam, const char* elev, const char* g1,
                    const char* g2, const char* lc) {
        CurveSheet s = NewCurveSheet(units);
        s.txtPVISTA = sta;
        s.txtPVISTAM = stam;
        s.txtPVIEval = elev;
        s.txtG1 = g1;
        s.txtG2 = g2;
        s.txtLC = lc;
        return Write(s);
    }
    // PVI 12+00 at 104, +2 % to -2 %, 400 ft: PVC 10+00 at 100, PVT 14+00.
    std::string EnglishCrest(const char* stam = "0") { return Pvi("English", "12", stam, "104", "2", "-2", "400"); }

    std::filesystem::path m_dir;
    int m_files = 0;
};

}  // namespace gw::cli::test
