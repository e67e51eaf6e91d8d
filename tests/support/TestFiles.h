// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTemporaryDir>

/// Files for tests: a private folder, the tests' own data, and the folder of real sample files.
namespace test_files {
/// A folder that lives as long as the object; Write() makes files in it.
class Folder
{
public:
    /// Full path of a file of this name, which need not exist; a full path stays as it is.
    [[nodiscard]] QString Path(QString const& name) const;
    /// Writes the file, replacing an earlier one, and returns its full path. A failure fails the test.
    QString Write(QString const& name, QByteArray const& content) const;

private:
    QTemporaryDir directory_;
};

/// The whole file; a file that cannot be read fails the test.
[[nodiscard]] QByteArray Read(QString const& path);

/// Path of a file under tests/data.
[[nodiscard]] QString DataPath(QString const& name);

/// The folder of sample files: the environment variable QUORREL_SAMPLES, otherwise the build's default.
/// Empty when there is none.
[[nodiscard]] QString SamplesFolder();

/// Full paths of all files below `sub_folder` of the samples, sorted; `patterns` as in QDir::setNameFilters.
[[nodiscard]] QStringList SampleFiles(QString const& sub_folder, QStringList const& patterns = {});
} // namespace test_files

/// Skips the running test where there are no sample files.
#define QUORREL_SKIP_WITHOUT_SAMPLES()                                                                       \
    do {                                                                                                     \
        if (test_files::SamplesFolder().isEmpty()) {                                                         \
            GTEST_SKIP() << "no sample files; set QUORREL_SAMPLES to their folder";                          \
        }                                                                                                    \
    } while (false)
