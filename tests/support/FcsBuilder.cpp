#include "tests/support/FcsBuilder.h"

#include "core/Text.h"

namespace tessarin {

FcsBuilder::FcsBuilder(const std::string& type, int bits, const std::string& order, int channels,
                       int events)
    : bytes_(bits / 8), littleEndian_(order.starts_with("1,2")) {
    Change("$MODE=L;$NEXTDATA=0;$CYT=Cytometer;SAMPLE ID=tube");
    Set("$DATATYPE", type).Set("$BYTEORD", order);
    Set("$PAR", std::to_string(channels)).Set("$TOT", std::to_string(events));
    for (int n = 1; n <= channels; ++n) {
        const std::string p = "$P" + std::to_string(n);
        Set(p + "N", "C" + std::to_string(n)).Set(p + "R", "1024");
        Set(p + "B", std::to_string(bits)).Set(p + "E", "0,0");
    }
}

FcsBuilder& FcsBuilder::Set(const std::string& name, const std::string& value) {
    (name[0] >= 'a' ? header_ : keywords_)[name] = value;
    return *this;
}

FcsBuilder& FcsBuilder::Change(std::string_view changes) {
    for (const std::string_view change : Split(changes, ';')) {
        const std::string name(change.substr(0, change.find('=')));
        if (name.size() < change.size()) {
            Set(name, std::string(change.substr(name.size() + 1)));
        } else {
            keywords_.erase(name);
        }
    }
    return *this;
}

FcsBuilder& FcsBuilder::AddInteger(uint32_t value) {
    for (int i = 0; i < bytes_; ++i) {
        const int shift = 8 * (littleEndian_ ? i : bytes_ - 1 - i);
        data += static_cast<char>(value >> static_cast<unsigned>(shift) & 0xffU);
    }
    return *this;
}

std::string FcsBuilder::Bytes() const {
    std::string text(1, delimiter);
    for (const auto& [keyword, value] : keywords_) {
        text += keyword + delimiter + value + delimiter;
    }
    std::string header;
    const auto add = [&](const std::string& name, std::size_t length, const std::string& right) {
        const auto found = header_.find(name);
        header += found == header_.end() ? right : found->second;
        header.resize(length, ' ');
    };
    add("version", 10, "FCS3.0");
    add("text begin", 18, "58");
    add("text end", 26, std::to_string(57 + text.size()));
    add("data begin", 34, std::to_string(58 + text.size()));
    add("data end", 42, std::to_string(57 + text.size() + data.size()));
    header.resize(58, ' ');
    return header + text + data;
}

}  // namespace tessarin
