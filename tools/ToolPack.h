// Packed tools: a tool text that is not meant to be read or changed by hand.
//
//     0                    17
//     | TsrScriptPackVer1 | each byte of the text, raised by the next of twelve key values |
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

/// `PuraPaketti` means unpack: the tool text of a pack; empty for bytes that are no pack.
std::string PuraPaketti(std::string_view bytes);

/// `TeePaketti` means make a pack.
std::string TeePaketti(std::string_view text);

/// A tool file read and unpacked.
struct Tyokalu {
    bool Valid = false;  ///< False when the file cannot be read
    std::string text;
    std::string refusal{};  ///< why not, such as "it is a folder"; empty when `Valid`
};

/// `LueTyokalu` means read a tool: a name that ends in .tsrpack or .tsrtool, in any case, is
/// packed, any other is plain text. UTF-8, or Windows-1252.
Tyokalu LueTyokalu(const std::string& path);

/// By the ending of its name: .tsrscript, .tsrpack or .tsrtool.
bool OnkoTyokalu(const std::string& name);
bool OnkoPakattu(const std::string& name);

}  // namespace tessarin
