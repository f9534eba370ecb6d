// A finished picture as plain values, and its way into a bitmap file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarin {

/// Pixels row by row from the top, each 0xffRRGGBB.
struct Bitmap {
    int width = 0;  ///< in picture pixels
    int height = 0;
    double ratio = 1;  ///< picture pixels for each pixel of the window it came from
    std::vector<uint32_t> pixels;

    uint32_t At(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

/// The picture as the bytes of a BMP file of 24 bits a pixel.
std::string BmpBytes(const Bitmap& picture);

/// `TalletaKuva` means save the picture: as a BMP file, replacing an old one only once the new
/// one is whole. Returns "" on success, else what went wrong.
std::string TalletaKuva(const Bitmap& picture, const std::string& path);

}  // namespace tessarin
