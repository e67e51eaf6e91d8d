// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/InFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <system_error>

#ifdef Q_OS_UNIX
#include <sys/mman.h>
#include <unistd.h>
#endif

InFile::InFile(QString const& path)
{
    open(QFile::encodeName(path).constData(), std::ios::binary | std::ios::in);
    if (!is_open()) {
        throw std::system_error(errno, std::generic_category(), "Unable to open file");
    }
    exceptions(std::ios::badbit | std::ios::failbit);
    QFileInfo const info(path);
    size_ = info.isFile() ? info.size() : 0;
}

void InFile::read(char* destination, std::size_t length)
{
    if (length > static_cast<std::size_t>(GetRemaining())) {
        ThrowPrematureEnd();
    }
    try {
        std::ifstream::read(destination, static_cast<std::streamsize>(length));
    } catch (std::ios_base::failure const&) {
        if (eof() && fail()) {
            ThrowPrematureEnd(); // the file shrank while it was read
        }
        throw;
    }
    position_ += static_cast<std::int64_t>(length);
}

void InFile::PopulateMemory(void* begin, std::size_t length)
{
#ifdef MADV_POPULATE_WRITE
    constexpr std::size_t least = 65536; // below, memory is seldom fresh
    auto const page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    auto const first = (reinterpret_cast<std::uintptr_t>(begin) + page - 1) / page * page;
    auto const last = (reinterpret_cast<std::uintptr_t>(begin) + length) / page * page;
    if (length >= least) {
        // Where the system cannot do it, the first touch does.
        (void)::madvise(reinterpret_cast<void*>(first), last - first, MADV_POPULATE_WRITE);
    }
#else
    (void)begin;
    (void)length;
#endif
}

void InFile::SeekTo(std::int64_t position)
{
    if (position < 0 || position > size_) {
        ThrowPrematureEnd();
    }
    seekg(position);
    position_ = position;
}

void InFile::ThrowPrematureEnd()
{
    throw std::ios_base::failure("Reached premature end-of-file");
}
