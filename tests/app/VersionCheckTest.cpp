// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/VersionCheck.h"

#include "app/BuildDate.h"

#include "support/WaitFor.h"

#include <QNetworkAccessManager>
#include <QTcpServer>
#include <QTcpSocket>

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
    EXPECT_TRUE(recorded.messages.empty());
    EXPECT_EQ(server.RequestLine(),
              "HEAD /Current_QZ_Release/Quorrel_" + BuildDate::GetDate().toLatin1() + ".zip HTTP/1.1");
    EXPECT_TRUE(WaitFor([&] { return recorded.check.findChild<QNetworkAccessManager*>() == nullptr; }));
    EXPECT_EQ(VersionCheck().GetUrl(),
              QUrl("https://quorrel.example/Current_QZ_Release/" + BuildDate::GetVersionFileName()));
}

TEST(VersionCheck, TellsOfANewVersionAndOfTheRestOnlyWhenAskedFor)
{
    QString const update = "Check for updates";
    QString const failure = "Something went wrong. Verify that you have internet connection. Error code: ";
    for (auto const& [status, error, title, text, is_told_unasked] :
         std::vector<std::tuple<QByteArray, int, QString, QString, bool>>{
             {"404 Not Found", QNetworkReply::ContentNotFoundError, "New version available",
              "Go to download page?", true},
             {"200 OK", QNetworkReply::NoError, update, "No update available", false},
             {"500 Internal Server Error", 401, update, failure + "401", false},
             {"410 Gone", 207, update, failure + "207", false},
             {"", 1, update, failure + "1", false}}) {
        SCOPED_TRACE(status.toStdString());
        HttpServer server(status);
        RecordedCheck recorded(server.Url());
        if (status.isEmpty()) {
            server.Close(); // nobody listens there any more
        }
        recorded.Run(true);
        ASSERT_EQ(recorded.messages.size(), 1U);
        EXPECT_EQ(recorded.errors[0], error);
        EXPECT_EQ(recorded.messages[0].title, title);
        EXPECT_EQ(recorded.messages[0].text, text);
        EXPECT_EQ(recorded.messages[0].offers_download, is_told_unasked);
        recorded.Run(false); // the question from the menu holds for one answer
        ASSERT_EQ(recorded.messages.size(), is_told_unasked ? 2U : 1U);
        if (is_told_unasked) {
            EXPECT_EQ(recorded.messages[1].title, title);
            EXPECT_TRUE(recorded.messages[1].offers_download);
            EXPECT_EQ(recorded.messages[1].text,
                      text + "\n(You can disable automatic update checks in Settings)");
        }
    }
}
