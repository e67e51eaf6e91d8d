// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Damaged project files load or tell why not: without a crash, in time and within bounds of memory.

#include "formats/project/SmallProject.h"
#include "model/BaseLogPassRecord.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QElapsedTimer>
#include <QFile>

#include <new>
#include <random>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

namespace {
#ifdef __SANITIZE_ADDRESS__
constexpr int STRIDE = 17; // the checks make each load many times slower
#else
constexpr int STRIDE = 1;
#endif

/// While it lives, the process gets only so much memory more: what needs more fails as std::bad_alloc.
class MemoryLimit
{
public:
#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__)
    explicit MemoryLimit(std::size_t bytes)
    {
        QFile pages("/proc/self/statm");
        EXPECT_TRUE(pages.open(QIODevice::ReadOnly));
        auto const now = pages.readAll().split(' ')[0].toULongLong() * 4096;
        ::getrlimit(RLIMIT_AS, &before_);
        ::rlimit const limited{now + bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_AS, &limited);
    }
    ~MemoryLimit()
    {
        ::setrlimit(RLIMIT_AS, &before_);
    }

private:
    ::rlimit before_{};
#else
    explicit MemoryLimit(std::size_t) {}
#endif
};

/// Something of everything, several surveys and windows, 64 KB.
QByteArray Project(test_files::Folder const& folder)
{
    DataContainer container;
    small_project::Fill(container);
    auto windows = small_project::Windows();
    for (int key = 8; key < 12; ++key) {
        BASE_LOGPASS_STRUCT record;
        record.properties.identifier = LogPassIdentifier(key, "cc");
        BaseLog::DataMatrix columns;
        for (int i = 0; i < 6; ++i) {
            columns.push_back(std::make_shared<std::vector<float>>(406, static_cast<float>(i)));
        }
        std::vector<double> depths(406, 1.5);
        container.AddSurvey(key, "More");
        container.AddDepthLogPass(
            key, std::make_shared<DepthLogPass>(record, std::move(columns), true, 0.0F, 1.0F, depths));
        windows[key] = windows[small_project::SURVEY_KEY];
    }
    auto const path = folder.Path("whole.qz4");
    project_file::Save(path, container, windows, small_project::SURVEY_KEY);
    return test_files::Read(path);
}

class ProjectDamageTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        EXPECT_NEAR(static_cast<double>(whole_.size()), 65536, 100);
        ASSERT_TRUE(file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        Put(0, whole_);
        ASSERT_TRUE(Loads());
    }
    void Put(qsizetype at, QByteArray const& bytes)
    {
        file_.seek(at);
        ASSERT_EQ(file_.write(bytes), bytes.size());
    }
    bool Loads()
    {
        bool loads = true;
        QElapsedTimer timer;
        timer.start();
        try {
            MemoryLimit const limit(static_cast<std::size_t>(4 * whole_.size()) + (64U << 20U));
            DataContainer container;
            (void)project_file::Load(file_.fileName(), container);
        } catch (std::bad_alloc const&) {
            ADD_FAILURE() << "more memory than a file of this size may take";
        } catch (std::exception const& error) {
            loads = false;
            EXPECT_STRNE(error.what(), "");
        }
        EXPECT_LT(timer.elapsed(), 5000);
        return loads;
    }

    test_files::Folder folder_;
    QByteArray whole_ = Project(folder_);
    QFile file_{folder_.Path("damaged.qz4")};
};

TEST_F(ProjectDamageTest, CutAnywhereItIsReported)
{
    for (auto length = whole_.size() - 1; length >= 0; length -= STRIDE) {
        file_.resize(length);
        ASSERT_FALSE(Loads()) << "cut at " << length;
    }
}

TEST_F(ProjectDamageTest, AFlippedByteLoadsOrIsReported)
{
    qsizetype refused = 0;
    for (qsizetype at = 0; at < whole_.size(); at += STRIDE) {
        Put(at, QByteArray(1, static_cast<char>(~whole_[at])));
        refused += Loads() ? 0 : 1;
        ASSERT_FALSE(HasFailure()) << "byte " << at;
        Put(at, whole_.mid(at, 1));
    }
    // About half of the bytes are samples, and texts and numbers may be any.
    EXPECT_GT(refused, whole_.size() / STRIDE / 20);
    EXPECT_LT(refused, whole_.size() / STRIDE / 2);
}

TEST_F(ProjectDamageTest, RandomDamageLoadsOrIsReported)
{
    std::mt19937 random(20);
    auto const below = [&random](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<std::size_t>(limit));
    };
    for (int round = 0; round < 10000; round += STRIDE) {
        auto damaged = whole_;
        for (auto count = 1 + below(4); count > 0; --count) {
            auto const at = below(damaged.size());
            auto const length = below(8) == 0 ? below(2000) : 1 + below(8);
            switch (below(4)) {
            case 0:
                damaged.remove(at, length);
                break;
            case 1:
                damaged.insert(at, damaged.mid(below(damaged.size()), length));
                break;
            case 2:
                damaged.replace(at, length, QByteArray(length, below(2) == 0 ? '\0' : '\xFF'));
                break;
            default:
                std::generate_n(damaged.begin() + at, std::min(length, damaged.size() - at),
                                [&] { return static_cast<char>(below(256)); });
            }
        }
        file_.resize(damaged.size());
        Put(0, damaged);
        (void)Loads();
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}
} // namespace
