#include "cli/pdf_helper.h"

#include <cerrno>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "cli/cli.h"

extern char** environ;

namespace gw::cli {

int RunPdfHelper(const std::string& file, const std::string& out, int copies, std::ostream& err) {
    std::string helper;
    if (const char* env = std::getenv("GRADEWISE_PDF"); env && *env) {
        helper = env;
    } else {
        char self[4096];
        const ssize_t n = ::readlink("/proc/self/exe", self, sizeof self - 1);
        if (n > 0) {
            std::string dir(self, static_cast<size_t>(n));
            dir = dir.substr(0, dir.rfind('/') + 1);
            helper = dir + "gradewise-pdf";
#ifdef GW_PDF_HELPER_FROM_BIN
            // Installed, the helper is kept off the PATH in the libexec folder.
            const std::string installed = dir + GW_PDF_HELPER_FROM_BIN;
            if (::access(helper.c_str(), X_OK) != 0 && ::access(installed.c_str(), X_OK) == 0) helper = installed;
#endif
        }
    }
    const std::string copiesText = std::to_string(copies);
    std::vector<char*> argv = {const_cast<char*>(helper.c_str()), const_cast<char*>(file.c_str()),
                               const_cast<char*>(out.c_str()), const_cast<char*>(copiesText.c_str()), nullptr};
    err.flush();
    pid_t pid = 0;
    if (helper.empty() || ::posix_spawn(&pid, helper.c_str(), nullptr, nullptr, argv.data(), environ) != 0) {
        err << "gradewise-cli: PDF output needs gradewise-pdf, which was not found beside gradewise-cli\n";
        return kUsage;
    }
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status)) return WEXITSTATUS(status);  // the helper has said why
    err << "gradewise-cli: gradewise-pdf ended without finishing the PDF"
        << (WIFSIGNALED(status) ? " (signal " + std::to_string(WTERMSIG(status)) + ")" : std::string()) << "\n";
    return kUsage;
}

}  // namespace gw::cli
