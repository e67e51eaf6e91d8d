// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LASFile.h"

#include "formats/las/LasLineReader.h"
#include "formats/las/LasV2Reader.h"
#include "formats/las/LasV3Reader.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace {
[[noreturn]] void ThrowOpenFailure(std::error_code error, std::string const& path)
{
    throw std::invalid_argument("Error Msg: " + error.message() + "\nFilepath: " + path);
}

std::ifstream OpenFile(std::string const& path)
{
    // A folder opens like a file on some systems, and a pipe would let the opening wait for its other end.
    std::error_code error;
    std::filesystem::file_status const status = std::filesystem::status(path, error);
    if (std::filesystem::is_directory(status)) {
        ThrowOpenFailure(std::make_error_code(std::errc::is_a_directory), path);
    }
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        ThrowOpenFailure(std::make_error_code(std::errc::invalid_seek), path);
    }
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        ThrowOpenFailure({errno, std::generic_category()}, path);
    }
    return stream;
}

void VerifyVersionSection(LASHeaderSection const& version)
{
    for (HeaderRow const& row : version) {
        if (row.mnemonic == QLatin1String("DLM") && row.data != QLatin1String("SPACE")) {
            throw std::invalid_argument(
                "\"DLM\" is not equal to \"SPACE\". Only LAS Files with \"SPACE\" delimiter "
                "are supported");
        }
    }
}
} // namespace

LASFile::LASFile(std::string const& path)
{
    std::ifstream stream = OpenFile(path);
    file_info_.setFile(QFile::decodeName(QByteArray::fromStdString(path)));
    loadLASFile(stream);
}

LASFile::LASFile(std::istream& stream, std::string const& path)
    : file_info_(QFile::decodeName(QByteArray::fromStdString(path)))
{
    loadLASFile(stream);
}

void LASFile::loadLASFile(std::istream& stream)
{
    LasLineReader lines(stream);
    // The first section is the version section, whatever its name.
    lines.FindNextSection();
    LasV2Reader::LoadHeaderSectionV2(lines, content_.version);
    VerifyVersionSection(content_.version);

    QString const& version = content_.version.GetData("VERS");
    if (version.startsWith(QLatin1String("2.0"))) {
        LasV2Reader(stream, lines, content_).LoadV2LasFile();
    } else if (version.startsWith(QLatin1String("3.0"))) {
        LasV3Reader(lines, content_).LoadV3LasFile();
    } else {
        throw std::invalid_argument("Unknown Version: " + version.toStdString());
    }
}
