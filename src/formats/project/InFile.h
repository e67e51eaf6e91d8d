// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <vector>

/// A binary input stream that throws on every failed read. A read past the end, also one that a length in the
/// file announces, is a std::ios_base::failure "Reached premature end-of-file", before anything is allocated
/// for it; other stream failures keep their own text.
class InFile : private std::ifstream
{
public:
    /// @throws std::ios_base::failure, std::runtime_error when the file cannot be opened
    explicit InFile(QString const& path);

    /// Little-endian, as in memory.
    void read(char* destination, std::size_t length);
    void read(double& value) { ReadPlain(value); }
    void read(float& value) { ReadPlain(value); }
    void read(unsigned char& value) { ReadPlain(value); }
    void read(int& value) { ReadPlain(value); }
    void read(unsigned short& value) { ReadPlain(value); }

    template <typename T>
    [[nodiscard]] T Read()
    {
        T value{};
        read(value);
        return value;
    }

    /// `count` elements; fresh memory is touched only once.
    template <typename T>
    [[nodiscard]] std::vector<T> ReadVector(std::size_t count);

    [[nodiscard]] std::int64_t GetPosition() const { return position_; }
    [[nodiscard]] std::int64_t GetRemaining() const { return size_ - position_; }
    /// A position past the end fails as a read past the end.
    void SeekTo(std::int64_t position);

private:
    template <typename T>
    void ReadPlain(T& value)
    {
        read(reinterpret_cast<char*>(&value), sizeof(value));
    }
    [[noreturn]] static void ThrowPrematureEnd();
    /// Takes the pages of fresh memory in one go, which the first touch of each would take one by one.
    static void PopulateMemory(void* begin, std::size_t length);

    std::int64_t size_ = 0;
    std::int64_t position_ = 0;
};

template <typename T>
std::vector<T> InFile::ReadVector(std::size_t count)
{
    if (count > static_cast<std::size_t>(GetRemaining()) / sizeof(T)) {
        ThrowPrematureEnd();
    }
    // In blocks that are still in the cache when they are read into: a vector sized at once would be written
    // to memory twice.
    constexpr std::size_t block = 65536 / sizeof(T);
    std::vector<T> values;
    values.reserve(count);
    PopulateMemory(values.data(), count * sizeof(T));
    while (values.size() < count) {
        auto const begin = values.size();
        values.resize(std::min(count, begin + block));
        read(reinterpret_cast<char*>(values.data() + begin), (values.size() - begin) * sizeof(T));
    }
    return values;
}
