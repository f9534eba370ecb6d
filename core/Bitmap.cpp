#include "core/Bitmap.h"

#include "core/SafeFile.h"

namespace tessarin {
namespace {

void AppendLittleEndian(std::string& out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        out += static_cast<char>((value >> (8U * static_cast<unsigned>(i))) & 0xffU);
    }
}

// The two headers in front of the pixels:
//
//     0    2       6     10        14     18      22       26       28     30 ... 54
//     | BM | size  | 0   | offset  | 40   | width | height | planes | bits | 0s   | pixels
void AppendHeaders(std::string& out, const Bitmap& picture, uint32_t pixelBytes) {
    constexpr uint32_t kHeaderBytes = 54;
    out += "BM";
    AppendLittleEndian(out, kHeaderBytes + pixelBytes, 4);
    AppendLittleEndian(out, 0, 4);
    AppendLittleEndian(out, kHeaderBytes, 4);
    AppendLittleEndian(out, 40, 4);
    AppendLittleEndian(out, static_cast<uint32_t>(picture.width), 4);
    AppendLittleEndian(out, static_cast<uint32_t>(picture.height), 4);
    AppendLittleEndian(out, 1, 2);
    AppendLittleEndian(out, 24, 2);
    AppendLittleEndian(out, 0, 4);
    AppendLittleEndian(out, pixelBytes, 4);
    out.append(16, '\0');
}

}  // namespace

std::string BmpBytes(const Bitmap& picture) {
    const std::size_t padding = (4 - static_cast<std::size_t>(picture.width) * 3 % 4) % 4;
    const std::size_t rowBytes = static_cast<std::size_t>(picture.width) * 3 + padding;
    std::string out;
    AppendHeaders(out, picture,
                  static_cast<uint32_t>(rowBytes * static_cast<std::size_t>(picture.height)));
    for (int y = picture.height - 1; y >= 0; --y) {  // a BMP file stands on its head
        for (int x = 0; x < picture.width; ++x) {
            AppendLittleEndian(out, picture.At(x, y), 3);
        }
        out.append(padding, '\0');
    }
    return out;
}

std::string TalletaKuva(const Bitmap& picture, const std::string& path) {
    const std::string reason = WriteWhole(path, BmpBytes(picture));
    return reason.empty() ? "" : "The image could not be written to " + path + ": " + reason;
}

}  // namespace tessarin
