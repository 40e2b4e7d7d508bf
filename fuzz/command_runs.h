#pragma once
// What the fuzz targets of gradewise-cli's commands share: an input file kept in
// memory under a name the tool opens like any other, the tool run in-process through
// its own entry, and the properties every run must hold.

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

#include "cli/cli.h"
#include "core/curve_file.h"
#include "fuzz/json_check.h"

namespace gw::fuzz {

class MemoryFile {
public:
    MemoryFile() {
        m_fd = ::memfd_create("input", 0);
        if (m_fd < 0) std::abort();
        m_path = "/proc/self/fd/" + std::to_string(m_fd);
    }
    const std::string& Path() const { return m_path; }
    void Put(const std::string& bytes) {
        m_bytes = bytes;
        if (::ftruncate(m_fd, 0) != 0 || ::pwrite(m_fd, bytes.data(), bytes.size(), 0) != ssize_t(bytes.size())) {
            std::abort();
        }
    }
    const std::string& Bytes() const { return m_bytes; }

private:
    int m_fd = -1;
    std::string m_path, m_bytes;
};

struct CommandRun {
    std::string line;  // the command line, for the report
    int status = 0;
    std::string out, err;
};

// `args` after the program's name.
inline CommandRun RunCommand(std::vector<std::string> args) {
    CommandRun run;
    args.insert(args.begin(), "gradewise-cli");
    for (const std::string& a : args) run.line += a + " ";
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(a.data());
    std::ostringstream out, err;
    run.status = gw::cli::Run(static_cast<int>(argv.size()), argv.data(), out, err);
    run.out = out.str();
    run.err = err.str();
    return run;
}

[[noreturn]] inline void Fail(const char* what, const CommandRun& run, const MemoryFile& file) {
    std::fprintf(stderr,
                 "%s\ncommand: %s\nfile (first 2000 bytes):\n%.2000s\nstdout (first 2000 bytes):\n%.2000s\n"
                 "stderr:\n%s\n",
                 what, run.line.c_str(), file.Bytes().c_str(), run.out.c_str(), run.err.c_str());
    std::abort();
}

// A number written in exponent form: a digit, then e or E, a sign and a digit.
inline bool HasExponent(const std::string& text) {
    for (size_t i = 1; i + 2 < text.size(); ++i) {
        const bool digitBefore = text[i - 1] >= '0' && text[i - 1] <= '9';
        const bool sign = text[i + 1] == '+' || text[i + 1] == '-';
        const bool digitAfter = text[i + 2] >= '0' && text[i + 2] <= '9';
        if ((text[i] == 'e' || text[i] == 'E') && digitBefore && sign && digitAfter) return true;
    }
    return false;
}

enum class Output { Text, Drawing, Check, Json, CurveFile };

// What every run must hold: a documented exit status; a refusal (1, 2) with a message
// and no output, a row off the curve (3) with its message, anything else with output; no number printed as "nan" or
// "inf"; a drawing whole, under 512 KiB and with no coordinate left empty; a curve file that reads back to the same
// bytes; well-formed JSON; a check ending in its verdict; and no number of a text in exponent form.
inline void CheckRun(const CommandRun& run, const MemoryFile& file, Output kind) {
    const std::string& out = run.out;
    const auto fail = [&](const char* what) { Fail(what, run, file); };
    if (run.status < 0 || run.status > 5) fail("an exit status nobody documented");
    if (run.status == 3 && run.err.empty()) fail("a row off the curve without its message");
    if (run.status == 1 || run.status == 2) {
        if (run.err.empty() || !out.empty()) fail("a refusal without a message, or with output");
        return;
    }
    if (out.empty()) fail("success without output");
    if (out.find("nan") != std::string::npos || out.find("inf") != std::string::npos) fail("not a number printed");
    if (kind == Output::Drawing) {
        if (out.find("=\"\"") != std::string::npos) fail("an empty coordinate");
        if (out.size() > 512 * 1024) fail("an unbounded drawing");
        if (out.rfind("<svg ", 0) != 0 || out.size() < 7 || out.substr(out.size() - 7) != "</svg>\n") {
            fail("a drawing cut short");
        }
        return;
    }
    if (kind == Output::CurveFile) {
        if (CurveFileBytes(ParseCurveFile(out)) != out) fail("a curve file that reads back otherwise");
        return;
    }
    if (HasExponent(out)) fail("a number in exponent form");
    if (kind == Output::Json && !JsonCheck::Valid(out)) fail("JSON that is not well-formed");
    if (kind == Output::Check) {
        const std::string last = out.substr(out.rfind('\n', out.size() - 2) + 1);
        if (last.rfind("Long enough: ", 0) != 0 && last.rfind("Too short: ", 0) != 0) {
            fail("a check without its verdict");
        }
    }
}

}  // namespace gw::fuzz
