#pragma once
// What the fuzz targets of gradewise-cli's commands share: an input file kept in
// memory under a name the tool opens like any other, the tool run in-process through
// its own entry, and a failed property reported with what the run printed.

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

#include "cli/cli.h"

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

}  // namespace gw::fuzz
