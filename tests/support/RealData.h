// Finds the folder of real list-mode files, which lies outside the program's own.
#pragma once

#include <optional>
#include <string>

namespace tessarin {

/// The place of a file such as "odd/Data003.fcs" in the folder that TESSARIN_DATA names, else in
/// the one beside the sources. Nothing when it is not there; a test then says so with
/// GTEST_SKIP() << kNoRealData.
std::optional<std::string> RealFile(const std::string& name);

/// The place of a file of the repository, such as "scripts/Quadrants of a folder.tsrscript".
std::string SourceFile(const std::string& name);

inline constexpr const char* kNoRealData =
    "the real files are not here; TESSARIN_DATA can name their folder";

}  // namespace tessarin
