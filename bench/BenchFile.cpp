#include "BenchFile.h"

#include <bit>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <vector>

#include "core/FCSReader.h"

namespace tessarin {
namespace {

constexpr int kHeader = 58;

std::string Text() {
    std::string text = "/$TOT/" + std::to_string(kBenchEvents) + "/$PAR/" +
                       std::to_string(kBenchChannels) + "/$DATATYPE/F/$BYTEORD/4,3,2,1/";
    for (int channel = 1; channel <= kBenchChannels; ++channel) {
        const std::string p = "P" + std::to_string(channel);
        text += "$" + p + "N/FL" + std::to_string(channel) + "-A/$" + p + "R/262144/$" + p +
                "B/32/$" + p + "E/0,0/" + p + "DISPLAY/" + (channel > 4 ? "LOG/" : "LIN/");
    }
    return text;
}

std::string Header(std::size_t textBytes) {
    const auto field = [](std::size_t n) {
        std::string digits = std::to_string(n);
        return std::string(8 - digits.size(), ' ') + digits;
    };
    const std::size_t data = kHeader + textBytes;
    const std::size_t end = data + std::size_t{4} * kBenchEvents * kBenchChannels - 1;
    return "FCS3.0    " + field(kHeader) + field(data - 1) + field(data) + field(end) +
           std::string(16, ' ');
}

// Three clouds, spread over some decades.
std::vector<char> Events() {
    std::mt19937 random(7);
    std::normal_distribution<float> spread(0, 0.35F);
    std::vector<char> bytes;
    bytes.reserve(std::size_t{4} * kBenchEvents * kBenchChannels);
    for (int32_t event = 0; event < kBenchEvents; ++event) {
        const float middle = 2.5F + 0.8F * static_cast<float>(random() % 3);
        for (int channel = 1; channel <= kBenchChannels; ++channel) {
            const float value = std::pow(10.0F, middle + spread(random)) - 60;
            const auto bits = std::bit_cast<uint32_t>(value);
            for (unsigned shift = 32; shift > 0; shift -= 8) {
                bytes.push_back(static_cast<char>(bits >> (shift - 8)));
            }
        }
    }
    return bytes;
}

class WrittenFile {
  public:
    WrittenFile()
        : path_((std::filesystem::temp_directory_path() / "tessarin-bench.fcs").string()) {
        const std::string text = Text();
        const std::vector<char> events = Events();
        std::ofstream out(path_, std::ios::binary);
        out << Header(text.size()) << text;
        out.write(events.data(), static_cast<std::streamsize>(events.size()));
    }
    ~WrittenFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;
    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace

const std::string& BenchPath() {
    static const WrittenFile file;
    return file.Path();
}

const Tiedosto& BenchFile() {
    static const Tiedosto file = LueFCS(BenchPath());
    return file;
}

}  // namespace tessarin
