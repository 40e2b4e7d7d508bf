#pragma once
// The engineer's commands of gradewise-cli: table, plot and check.

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace gw::cli {

// Runs `args` (without the program name) when its first word is table, plot or check
// and gives the exit status; nullopt for any other command.
std::optional<int> RunDesignCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
