#pragma once
// Seeds of a fuzz target: started on a corpus folder (the first argument that is not a flag), a target
// writes its seeds into it before fuzzing, so that the runner needs to know nothing of any target.

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace nod::fuzz {

/// The corpus folder the target was started on, if any.
inline std::optional<std::filesystem::path> CarpetaCorpus(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::error_code e;
        if (argv[i][0] != '-' && std::filesystem::is_directory(argv[i], e))
            return std::filesystem::absolute(argv[i]);
    }
    return std::nullopt;
}

inline void EscribeSemilla(const std::filesystem::path& carpeta, const std::string& nombre,
                           const std::string& bytes) {
    std::ofstream(carpeta / nombre, std::ios::binary) << bytes;
}

} // namespace nod::fuzz
