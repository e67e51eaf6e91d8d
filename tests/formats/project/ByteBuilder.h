// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstring>
#include <initializer_list>

/// Puts the bytes of a project file together by hand, little-endian, without the program's own writer.
class ByteBuilder
{
public:
    ByteBuilder& U8(int value)
    {
        bytes_.append(static_cast<char>(value));
        return *this;
    }
    ByteBuilder& U16(unsigned value)
    {
        return U8(static_cast<int>(value & 255U)).U8(static_cast<int>(value >> 8U));
    }
    ByteBuilder& I32(std::int64_t value) { return Little(static_cast<std::uint64_t>(value), 4); }
    ByteBuilder& F32(float value)
    {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof(bits));
        return Little(bits, 4);
    }
    ByteBuilder& F64(double value)
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof(bits));
        return Little(bits, 8);
    }
    ByteBuilder& Str(QByteArray const& utf8) { return U16(static_cast<unsigned>(utf8.size())).Raw(utf8); }
    ByteBuilder& Raw(QByteArray const& bytes)
    {
        bytes_.append(bytes);
        return *this;
    }
    ByteBuilder& Raw(ByteBuilder const& other) { return Raw(other.bytes_); }
    ByteBuilder& Color(int red, int green, int blue) { return I32(red).I32(green).I32(blue); }
    ByteBuilder& Row(QByteArray const& mnemonic, QByteArray const& unit, QByteArray const& value,
                     QByteArray const& description)
    {
        return Str(mnemonic).Str(unit).Str(value).Str(description);
    }
    ByteBuilder& Floats(std::initializer_list<float> values)
    {
        I32(static_cast<int>(values.size()));
        for (float const value : values) {
            F32(value);
        }
        return *this;
    }
    ByteBuilder& Doubles(std::initializer_list<double> values)
    {
        I32(static_cast<int>(values.size()));
        for (double const value : values) {
            F64(value);
        }
        return *this;
    }
    /// Size from its own first byte to the end of the payload, tag, payload.
    ByteBuilder& BareItem(QByteArray const& tag, ByteBuilder const& payload)
    {
        return I32(4 + 2 + tag.size() + payload.bytes_.size()).Str(tag).Raw(payload);
    }
    ByteBuilder& Item(QByteArray const& tag, ByteBuilder const& payload)
    {
        if (later.isEmpty()) {
            return U8(1).BareItem(tag, payload);
        }
        return Raw(later).U8(1).BareItem(tag, ByteBuilder().Raw(payload).Raw("later")).Raw(later);
    }
    ByteBuilder& End() { return U8(0); }
    /// A chain of one item.
    ByteBuilder& Chain(QByteArray const& tag, ByteBuilder const& payload) { return Item(tag, payload).End(); }

    [[nodiscard]] QByteArray const& Bytes() const { return bytes_; }

    /// An item that stands before and behind each other one, which then ends in further bytes: a file of a
    /// later version.
    inline static QByteArray later;

private:
    ByteBuilder& Little(std::uint64_t value, int count)
    {
        for (int i = 0; i < count; ++i) {
            U8(static_cast<int>((value >> (8U * static_cast<unsigned>(i))) & 255U));
        }
        return *this;
    }

    QByteArray bytes_;
};
