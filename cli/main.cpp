#include <csignal>
#include <iostream>

#include "cli/cli.h"
#include "cli/standard_output.h"

int main(int argc, char** argv) {
    // Past a file-size limit a write then fails like one on a full disk, and is
    // reported, instead of the signal ending the program without a word.
    std::signal(SIGXFSZ, SIG_IGN);
    gw::cli::StandardOutput out;
    const int status = gw::cli::Run(argc, argv, out.Stream(), std::cerr);
    return out.Finish(std::cerr) ? status : gw::cli::kUsage;
}
