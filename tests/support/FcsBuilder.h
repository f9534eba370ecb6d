// Makes the bytes of list-mode files, right ones and wrong ones, for tests of the reader.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace tessarin {

struct FcsBuilder {
    /// A file without data whose keywords say so, with $PnN "C1", "C2"..., $PnR 1024, $PnE "0,0".
    FcsBuilder(const std::string& type, int bits, const std::string& order, int channels,
               int events);

    /// Sets a keyword, or a part of the header: "version", "text begin", "text end", "data begin",
    /// "data end". Parts that are not set are right.
    FcsBuilder& Set(const std::string& name, const std::string& value);
    /// Makes changes such as "$TOT=3;$P1E=4,0;text end=10;$PAR"; the last takes a keyword out.
    FcsBuilder& Change(std::string_view changes);
    /// Adds the lowest `bits` bits of `value` to the data.
    FcsBuilder& AddInteger(uint32_t value);

    /// Header, TEXT and data, without gaps.
    std::string Bytes() const;

    char delimiter = '|';
    std::string data;

  private:
    int bytes_;
    bool littleEndian_;
    std::map<std::string, std::string> keywords_;
    std::map<std::string, std::string> header_;
};

}  // namespace tessarin
