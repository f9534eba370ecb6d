#include "core/FcsData.h"

#include <algorithm>
#include <array>
#include <bit>
#include <span>
#include <string_view>
#include <vector>

namespace tessarin {
namespace {

using Bytes = const unsigned char*;

uint32_t Byte(Bytes at, int i) {
    return at[i];
}

template <bool LittleEndian>
uint32_t Word32(Bytes at) {
    return LittleEndian ? Byte(at, 0) | Byte(at, 1) << 8U | Byte(at, 2) << 16U | Byte(at, 3) << 24U
                        : Byte(at, 3) | Byte(at, 2) << 8U | Byte(at, 1) << 16U | Byte(at, 0) << 24U;
}

constexpr uint32_t kIntegerBits = 0x00ffffffU;

template <bool LittleEndian>
struct FloatValue {
    static constexpr int kBytes = 4;
    static float Get(Bytes at, uint32_t& /*cut*/) {
        return std::bit_cast<float>(Word32<LittleEndian>(at));
    }
};

template <bool LittleEndian>
struct Int16Value {
    static constexpr int kBytes = 2;
    static float Get(Bytes at, uint32_t& /*cut*/) {
        return static_cast<float>(LittleEndian ? Byte(at, 0) | Byte(at, 1) << 8U
                                               : Byte(at, 1) | Byte(at, 0) << 8U);
    }
};

template <bool LittleEndian>
struct Int32Value {
    static constexpr int kBytes = 4;
    static float Get(Bytes at, uint32_t& cut) {
        const uint32_t word = Word32<LittleEndian>(at);
        cut |= word & ~kIntegerBits;
        return static_cast<float>(word & kIntegerBits);
    }
};

// Reads the whole of a DATA segment in one value format.
template <class Value>
class DataReader {
  public:
    DataReader(std::istream& in, TapahtumaTaulu<float>& values)
        : in_(in),
          values_(values),
          stride_(static_cast<std::size_t>(values.Columns()) * Value::kBytes) {}

    DataReport Read() {
        // Small enough that a block's bytes stay near while its columns are written.
        constexpr std::size_t kBlockBytes = std::size_t{1} << 17U;
        const auto blockEvents =
            static_cast<int32_t>(std::max<std::size_t>(1, kBlockBytes / stride_));
        block_.resize(static_cast<std::size_t>(blockEvents) * stride_);
        int32_t done = 0;
        while (done < values_.Events()) {
            const int32_t wanted = std::min(blockEvents, values_.Events() - done);
            const std::size_t got = Fill(static_cast<std::size_t>(wanted) * stride_);
            const auto whole = static_cast<int32_t>(got / stride_);
            DecodeBlock(done, whole);
            done += whole;
            if (whole < wanted) {
                const std::size_t start = static_cast<std::size_t>(whole) * stride_;
                RepeatBuffer(done, {block_.data() + start, got - start});
                break;
            }
        }
        return {done, cut_ != 0};
    }

  private:
    std::size_t Fill(std::size_t bytes) {
        in_.read(reinterpret_cast<char*>(block_.data()), static_cast<std::streamsize>(bytes));
        return static_cast<std::size_t>(in_.gcount());
    }

    void DecodeBlock(int32_t firstRow, int32_t events) {
        if (events == 0) {
            return;
        }
        for (int channel = 1; channel <= values_.Columns(); ++channel) {
            float* to = values_.OmaSarake(channel).data() + firstRow;
            Bytes from = block_.data() + static_cast<std::size_t>(channel - 1) * Value::kBytes;
            for (int32_t i = 0; i < events; ++i, from += stride_) {
                to[i] = Value::Get(from, cut_);
            }
        }
        Bytes end = block_.data() + static_cast<std::size_t>(events) * stride_;
        std::copy_n(end - Value::kBytes, Value::kBytes, buffer_.begin());
    }

    // The bytes have ended inside row `row` (from 0), of which `tail` is there. Those bytes still
    // go into the buffer one by one; then it stands still.
    void RepeatBuffer(int32_t row, std::span<const unsigned char> tail) {
        std::size_t used = 0;
        for (int channel = 1; channel <= values_.Columns(); ++channel) {
            for (std::size_t i = 0; i < Value::kBytes && used < tail.size(); ++i) {
                buffer_[i] = tail[used++];
            }
            values_.Aseta(row + 1, channel, Value::Get(buffer_.data(), cut_));
        }
        const float last = Value::Get(buffer_.data(), cut_);
        for (int channel = 1; channel <= values_.Columns(); ++channel) {
            const auto column = values_.OmaSarake(channel);
            std::fill(column.begin() + row + 1, column.end(), last);
        }
    }

    std::istream& in_;
    TapahtumaTaulu<float>& values_;
    std::size_t stride_;
    std::vector<unsigned char> block_;
    std::array<unsigned char, 4> buffer_{};
    uint32_t cut_ = 0;
};

template <template <bool> class Value>
DataReport ReadAs(std::istream& in, bool littleEndian, TapahtumaTaulu<float>& values) {
    return littleEndian ? DataReader<Value<true>>(in, values).Read()
                        : DataReader<Value<false>>(in, values).Read();
}

}  // namespace

ValueFormat FormatOf(const FcsOtsikko& header) {
    const std::string_view order = header.ByteOrder;
    if (header.DataType == "F") {
        return {ValueFormat::Kind::kFloat, 4, order == "1,2,3,4"};
    }
    const bool little = order == "1,2,3,4" || order == "1,2";
    const bool big = order == "4,3,2,1" || order == "2,1";
    const bool width = header.Bits == 16 || header.Bits == 32;
    if (header.DataType == "I" && width && (little || big)) {
        return {ValueFormat::Kind::kInteger, header.Bits / 8, little};
    }
    return {};
}

DataReport LueTapahtumat(std::istream& in, const ValueFormat& format,
                         TapahtumaTaulu<float>& values) {
    if (values.Columns() == 0) {
        return {};
    }
    switch (format.kind) {
        case ValueFormat::Kind::kFloat:
            return ReadAs<FloatValue>(in, format.littleEndian, values);
        case ValueFormat::Kind::kInteger:
            return format.bytes == 2 ? ReadAs<Int16Value>(in, format.littleEndian, values)
                                     : ReadAs<Int32Value>(in, format.littleEndian, values);
        case ValueFormat::Kind::kNotRead:
            break;
    }
    return {};
}

}  // namespace tessarin
