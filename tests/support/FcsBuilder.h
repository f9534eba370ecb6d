// Makes the bytes of list-mode files, right ones and wrong ones, for tests of the reader.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessarin {

/// The parts of a file; all can be changed before `Bytes` puts them together.
struct FcsBuilder {
    /// A file whose keywords say so, with $PnN "C1", "C2"..., $PnR 1024 and $PnE "0,0", and
    /// without data.
    FcsBuilder(const std::string& type, int bits, const std::string& order, int channels,
               int events);

    /// Replaces a keyword's value, or adds it behind the others.
    FcsBuilder& Set(const std::string& keyword, const std::string& value);
    FcsBuilder& Remove(const std::string& keyword);
    FcsBuilder& AddFloat(float value);
    /// The lowest `bits` bits of `value`.
    FcsBuilder& AddInteger(uint32_t value);

    /// Header, TEXT and data, without gaps. Offsets that are not given are the right ones.
    std::string Bytes() const;

    std::string version = "FCS3.0";
    char delimiter = '|';
    std::vector<std::pair<std::string, std::string>> keywords;
    std::string data;
    std::optional<std::string> textBegin, textEnd, dataBegin, dataEnd;  // each cut to 8 characters

  private:
    int bytes_;
    bool littleEndian_;
};

}  // namespace tessarin
