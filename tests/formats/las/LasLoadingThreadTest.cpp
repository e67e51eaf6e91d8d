// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasLoadingThread.h"

#include "LasTestFiles.h"
#include "support/TestFiles.h"
#include "support/WaitFor.h"

#include <QPointer>

namespace {
struct Result
{
    std::shared_ptr<LASFile> file;
    QString path;
    bool success;
    QString message;
    bool is_on_main_thread;
};

/// Loads as the main frame does, and returns everything that was reported.
std::vector<Result> LoadOnThread(QString const& path, DisableToken const& token)
{
    std::vector<Result> results;
    QObject receiver;
    QPointer<LasLoadingThread> const thread = new LasLoadingThread(nullptr, path, token);
    QObject::connect(
        thread, &LasLoadingThread::resultReady, &receiver,
        [&](std::shared_ptr<LASFile> const& file, QString const& name, bool success, QString const& message,
            DisableToken const& result_token) {
            EXPECT_TRUE(result_token.IsDisabled());
            results.push_back({file, name, success, message, QThread::currentThread() == receiver.thread()});
        });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start(QThread::InheritPriority);
    EXPECT_TRUE(WaitFor([&thread] { return thread.isNull(); }));
    return results;
}
} // namespace

TEST(LasLoadingThread, HandsTheFileToTheMainThread)
{
    test_files::Folder const folder;
    QString const path = folder.Write(QString::fromUtf8("m\xC3\xA5ling 1.las"),
                                      las_test::FileV2("1", "2", "1", "1 5 6 2 7 8").c_str());
    DisableToken const token;
    std::vector<Result> const results = LoadOnThread(path, token);
    ASSERT_EQ(results.size(), 1U);
    EXPECT_TRUE(results[0].success);
    EXPECT_TRUE(results[0].is_on_main_thread);
    EXPECT_EQ(results[0].path, path);
    EXPECT_EQ(results[0].message, "");
    ASSERT_NE(results[0].file, nullptr);
    EXPECT_EQ(results[0].file->GetDepthVector(), (std::vector<double>{1.0, 2.0}));
    // Moved, not copied: nobody else holds the samples.
    EXPECT_EQ(results[0].file->GetDataMatrix()[0].use_count(), 1);
    EXPECT_FALSE(token.IsDisabled()) << "a copy of the token outlived the load";
}

TEST(LasLoadingThread, ReportsFailuresWithHtmlLineBreaks)
{
    test_files::Folder const folder;
    DisableToken const token;
    QString const missing = folder.Path("none.las");
    for (auto const& [path, reason] :
         {std::pair(missing, "Error Msg: No such file or directory<BR>Filepath: " + missing),
          std::pair(folder.Write("bad.las", "~V\nVERS. 2.1 : x\n"), QString("Unknown Version: 2.1"))}) {
        std::vector<Result> const results = LoadOnThread(path, token);
        ASSERT_EQ(results.size(), 1U);
        EXPECT_FALSE(results[0].success);
        EXPECT_EQ(results[0].file, nullptr);
        EXPECT_EQ(results[0].path, path);
        EXPECT_EQ(results[0].message, "Exception cought while importing " + path + ":<BR>" + reason);
    }
    EXPECT_FALSE(token.IsDisabled());
}
