// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/FileBuffer.h"

#include <cstring>

FileBuffer::FileBuffer(std::istream& stream) : stream_(stream), block_(new char[BLOCK_SIZE + 1 + PADDING])
{
    cursor_ = end_ = block_.get();
    stream_.clear();
    stream_start_ = stream_.tellg();
    stream_.seekg(0, std::ios::end);
    stream_end_ = stream_.tellg();
    stream_.clear();
    stream_.seekg(stream_start_);
    RefillBuffer();
}

bool FileBuffer::CheckElements()
{
    if (ElementCount() < REFILL_MARGIN && !is_last_block_) {
        RefillBuffer();
    }
    return cursor_ != end_;
}

bool FileBuffer::RefillBuffer()
{
    std::size_t const left = ElementCount();
    std::memmove(block_.get(), cursor_, left);
    std::size_t added = 0;
    if (!is_last_block_) {
        stream_.read(block_.get() + left, static_cast<std::streamsize>(BLOCK_SIZE - left));
        added = static_cast<std::size_t>(stream_.gcount());
        is_last_block_ = !stream_;
    }
    bytes_read_ += static_cast<std::int64_t>(added);
    cursor_ = block_.get();
    char* const end = block_.get() + left + added;
    *end = END_MARK;
    std::memset(end + 1, 0, PADDING);
    end_ = end;
    return added > 0;
}

std::int64_t FileBuffer::Position() const
{
    return stream_start_ + bytes_read_ - static_cast<std::int64_t>(ElementCount());
}
