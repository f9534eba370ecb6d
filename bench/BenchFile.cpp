#include "BenchFile.h"

#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <vector>

#include "core/FCSReader.h"
#include "core/Muuttujat.h"

namespace tessarin {
namespace {

constexpr int kHeader = 58;
constexpr int32_t kUsualEvents = 1000000;

bool IsInteger(BenchForm form) {
    return form == BenchForm::kIntegers16 || form == BenchForm::kIntegers32;
}

std::string SpillMatrix() {
    std::string text = std::to_string(kBenchChannels);
    for (int channel = 1; channel <= kBenchChannels; ++channel) {
        text += ",FL" + std::to_string(channel) + "-A";
    }
    for (int from = 0; from < kBenchChannels; ++from) {
        for (int into = 0; into < kBenchChannels; ++into) {
            text += from == into ? ",1" : ",0.01";
        }
    }
    return text;
}

std::string Text(BenchForm form) {
    const bool little = form == BenchForm::kLittleEndianFloats;
    const bool narrow = form == BenchForm::kIntegers16;
    std::string text = "/$TOT/" + std::to_string(BenchEvents()) + "/$PAR/" +
                       std::to_string(kBenchChannels) + "/$DATATYPE/" +
                       (IsInteger(form) ? "I" : "F") + "/$BYTEORD/" +
                       (little ? "1,2,3,4/" : "4,3,2,1/");
    const std::string tail =
        "B/" + std::to_string(8 * BenchValueBytes(form)) + "/$P";  // closes and opens a keyword
    for (int channel = 1; channel <= kBenchChannels; ++channel) {
        const std::string n = std::to_string(channel);
        text += "$P" + n + "N/FL" + n + "-A/$P" + n + "R/" + (narrow ? "65536" : "262144") + "/$P" +
                n + tail + n + "E/0,0/P" + n + "DISPLAY/" +
                (channel > 4 && !narrow ? "LOG/" : "LIN/");
    }
    if (form == BenchForm::kCompensated) {
        text += "APPLY COMPENSATION/TRUE/SPILL/" + SpillMatrix() + "/";
    }
    return text;
}

std::string Header(BenchForm form, std::size_t textBytes) {
    const auto field = [](std::size_t n) {
        std::string digits = std::to_string(n);
        return std::string(8 - digits.size(), ' ') + digits;
    };
    const std::size_t data = kHeader + textBytes;
    const std::size_t end = data +
                            static_cast<std::size_t>(BenchEvents()) * kBenchChannels *
                                static_cast<std::size_t>(BenchValueBytes(form)) -
                            1;
    constexpr std::size_t kLargest = 99999999;
    return "FCS3.0    " + field(kHeader) + field(data - 1) + field(data) +
           field(end > kLargest ? 0 : end) + std::string(16, ' ');
}

uint32_t BitsOf(float value, BenchForm form) {
    constexpr float kMost16 = 65535;
    if (form == BenchForm::kIntegers16) {
        return static_cast<uint32_t>(std::clamp(value, 0.0F, kMost16));
    }
    if (form == BenchForm::kIntegers32) {
        return static_cast<uint32_t>(std::max(value, 0.0F));
    }
    const auto bits = std::bit_cast<uint32_t>(value);
    return form == BenchForm::kLittleEndianFloats ? __builtin_bswap32(bits) : bits;
}

// Three clouds, spread over some decades.
void WriteEvents(std::ofstream& out, BenchForm form) {
    std::mt19937 random(7);
    std::normal_distribution<float> spread(0, 0.35F);
    std::vector<char> bytes;
    for (int32_t event = 0; event < BenchEvents(); ++event) {
        bytes.clear();
        const float middle = 2.5F + 0.8F * static_cast<float>(random() % 3);
        for (int channel = 1; channel <= kBenchChannels; ++channel) {
            const uint32_t bits = BitsOf(std::pow(10.0F, middle + spread(random)) - 60, form);
            for (int shift = 8 * BenchValueBytes(form); shift > 0; shift -= 8) {
                bytes.push_back(static_cast<char>(bits >> static_cast<unsigned>(shift - 8)));
            }
        }
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
}

class WrittenFile {
  public:
    explicit WrittenFile(BenchForm form)
        : path_((std::filesystem::temp_directory_path() /
                 ("bench-" + std::to_string(getpid()) + "-" +
                  std::to_string(static_cast<int>(form)) + ".fcs"))
                    .string()) {
        const std::string text = Text(form);
        std::ofstream out(path_, std::ios::binary);
        out << Header(form, text.size()) << text;
        WriteEvents(out, form);
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

int32_t benchEvents = kUsualEvents;
std::map<BenchForm, std::unique_ptr<WrittenFile>> writtenFiles;
std::unique_ptr<Tiedosto> loadedFile;

}  // namespace

int32_t BenchEvents() {
    return benchEvents;
}

void SetBenchEvents(int32_t events) {
    benchEvents = events;
    writtenFiles.clear();
    loadedFile.reset();
}

int BenchValueBytes(BenchForm form) {
    return form == BenchForm::kIntegers16 ? 2 : 4;
}

const std::string& BenchPath(BenchForm form) {
    auto& file = writtenFiles[form];
    if (file == nullptr) {
        file = std::make_unique<WrittenFile>(form);
    }
    return file->Path();
}

Tiedosto LoadBenchFile(BenchForm form) {
    MaxLoadedEvents = BenchEvents();
    return LueFCS(BenchPath(form));
}

const Tiedosto& BenchFile() {
    if (loadedFile == nullptr) {
        loadedFile = std::make_unique<Tiedosto>(LoadBenchFile());
    }
    return *loadedFile;
}

}  // namespace tessarin
