#include <filesystem>
#include <string>
#include <vector>

#include "app/CommandLine.h"

int main(int argc, char** argv) {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return tamber::RunCommandLine(arguments, error ? argv[0] : program.string());
}
