// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/VersionCheck.h"

#include "app/BuildDate.h"

#include "support/WaitFor.h"

#include <QNetworkAccessManager>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

namespace {
/// Answers every request on the loopback address with one status line.
class HttpServer
{
public:
    explicit HttpServer(QByteArray const& status)
    {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        QObject::connect(&server_, &QTcpServer::newConnection, [this, status] {
            QTcpSocket* const socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, [this, socket, status] {
                requests_ += socket->readAll();
                if (requests_.endsWith("\r\n\r\n")) {
                    socket->write("HTTP/1.1 " + status +
                                  "\r\nContent-Length: 1000\r\nConnection: close\r\n\r\n");
                    socket->disconnectFromHost();
                }
            });
        });
    }

    [[nodiscard]] QUrl Url() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(server_.serverPort()));
    }
    [[nodiscard]] QByteArray RequestLine() const { return requests_.left(requests_.indexOf("\r\n")); }
    void Close() { server_.close(); }

private:
    QTcpServer server_;
    QByteArray requests_;
};

/// A check with all it emitted.
class RecordedCheck
{
public:
    explicit RecordedCheck(QUrl const& base) : check(nullptr, base)
    {
        QObject::connect(&check, &VersionCheck::Message_Signal,
                         [this](VersionCheck::Message const& message) { messages.push_back(message); });
        QObject::connect(&check, &VersionCheck::Finished_Signal,
                         [this](QNetworkReply::NetworkError error) { errors.push_back(error); });
    }

    void Run(bool from_menu)
    {
        std::size_t const expected = errors.size() + 1;
        if (from_menu) {
            check.OnCheckForNewVersion_MenuAction();
        } else {
            check.CheckForNewVersion();
        }
        EXPECT_TRUE(WaitFor([&] { return errors.size() >= expected; }));
    }

    VersionCheck check;
    std::vector<VersionCheck::Message> messages;
    std::vector<QNetworkReply::NetworkError> errors;
};
} // namespace

TEST(BuildDate, RewritesTheCompilersDate)
{
    EXPECT_EQ(BuildDate::FromCompilerDate("Mar  2 2026"), "02-Mar-2026");
    EXPECT_EQ(BuildDate::FromCompilerDate("Dec 31 2025"), "31-Dec-2025");
    EXPECT_EQ(BuildDate::GetVersionFileName(), "Quorrel_" + BuildDate::GetDate() + ".zip");
    EXPECT_EQ(BuildDate::GetDate().size(), 11);
}

TEST(VersionCheck, AsksForTheHeadOfTheRunningBuild)
{
    HttpServer const server("200 OK");
    RecordedCheck recorded(server.Url());
    recorded.Run(false);
    EXPECT_EQ(server.RequestLine(),
              "HEAD /Current_QZ_Release/Quorrel_" + BuildDate::GetDate().toLatin1() + ".zip HTTP/1.1");
    EXPECT_EQ(VersionCheck().GetUrl(),
              QUrl("https://quorrel.example/Current_QZ_Release/" + BuildDate::GetVersionFileName()));
}

TEST(VersionCheck, AMissingFileMeansANewVersion)
{
    HttpServer const server("404 Not Found");
    RecordedCheck recorded(server.Url());
    recorded.Run(true);
    recorded.Run(false);
    EXPECT_EQ(recorded.errors[0], QNetworkReply::ContentNotFoundError);
    ASSERT_EQ(recorded.messages.size(), 2U);
    for (VersionCheck::Message const& message : recorded.messages) {
        EXPECT_EQ(message.title, "New version available");
        EXPECT_TRUE(message.offers_download);
    }
    EXPECT_EQ(recorded.messages[0].text, "Go to download page?");
    EXPECT_EQ(recorded.messages[1].text,
              "Go to download page?\n(You can disable automatic update checks in Settings)");
}

TEST(VersionCheck, APresentFileIsToldOnlyWhenAskedFor)
{
    HttpServer const server("200 OK");
    RecordedCheck recorded(server.Url());
    recorded.Run(false);
    EXPECT_TRUE(recorded.messages.empty());
    recorded.Run(true);
    recorded.Run(false); // the question from the menu holds for one answer
    EXPECT_EQ(recorded.errors[1], QNetworkReply::NoError);
    ASSERT_EQ(recorded.messages.size(), 1U);
    EXPECT_EQ(recorded.messages[0].title, "Check for updates");
    EXPECT_EQ(recorded.messages[0].text, "No update available");
    EXPECT_FALSE(recorded.messages[0].offers_download);
}

TEST(VersionCheck, AnyOtherOutcomeIsToldOnlyWhenAskedFor)
{
    QString const text = "Something went wrong. Verify that you have internet connection. Error code: ";
    struct Case
    {
        char const* status;
        int error;
    };
    for (Case const& c : {Case{"500 Internal Server Error", 401}, Case{"410 Gone", 207}, Case{"", 1}}) {
        HttpServer server(c.status);
        RecordedCheck recorded(server.Url());
        if (*c.status == 0) {
            server.Close(); // nobody listens there any more
        }
        recorded.Run(false);
        EXPECT_TRUE(recorded.messages.empty()) << c.status;
        recorded.Run(true);
        ASSERT_EQ(recorded.messages.size(), 1U) << c.status;
        EXPECT_EQ(recorded.messages[0].title, "Check for updates");
        EXPECT_EQ(recorded.messages[0].text, text + QString::number(c.error));
        EXPECT_FALSE(recorded.messages[0].offers_download);
    }
}

TEST(VersionCheck, LeavesNoManagerBehind)
{
    HttpServer const server("200 OK");
    RecordedCheck recorded(server.Url());
    recorded.Run(false);
    EXPECT_TRUE(WaitFor([&] { return recorded.check.findChild<QNetworkAccessManager*>() == nullptr; }));
}
