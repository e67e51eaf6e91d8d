// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>

/// Read-ahead buffer over the rest of an open stream: one block, read by a cursor. Behind the last byte
/// stands a letter, then PADDING zero bytes, so that scanning for the end of a number needs no test for the
/// end.
class FileBuffer
{
public:
    static constexpr std::size_t BLOCK_SIZE = 1'000'000;
    /// With fewer bytes left, CheckElements reads on.
    static constexpr std::size_t REFILL_MARGIN = 8192;
    static constexpr std::size_t PADDING = 15;
    static constexpr char END_MARK = 'Z';

    /// Begins at the stream's position; the stream must outlive the buffer.
    explicit FileBuffer(std::istream& stream);

    /// Reads on when little is left; true when anything is left. Cursors got before are invalid.
    bool CheckElements();
    /// Moves the unread bytes to the start of the block and fills it up. Cursors got before are invalid.
    /// False when no byte was added.
    bool RefillBuffer();
    /// Unread bytes in the block.
    [[nodiscard]] std::size_t ElementCount() const { return static_cast<std::size_t>(end_ - cursor_); }
    /// The stream has no more bytes than those in the block.
    [[nodiscard]] bool IsLastBlock() const { return is_last_block_; }

    [[nodiscard]] char const* Cursor() const { return cursor_; }
    [[nodiscard]] char const* End() const { return end_; }
    /// Marks everything before `cursor` as read; it lies between Cursor() and End().
    void SetCursor(char const* cursor) { cursor_ = cursor; }

    /// Position in the stream of the next unread byte.
    [[nodiscard]] std::int64_t Position() const;
    /// Position of the stream's end; -1 when the stream cannot tell.
    [[nodiscard]] std::int64_t EndPosition() const { return stream_end_; }

private:
    std::istream& stream_;
    std::unique_ptr<char[]> block_;
    char const* cursor_ = nullptr;
    char const* end_ = nullptr;
    std::int64_t stream_start_ = 0;
    std::int64_t stream_end_ = -1;
    std::int64_t bytes_read_ = 0;
    bool is_last_block_ = false;
};
