// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/VersionCheck.h"

#include "app/BuildDate.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>

#include <chrono>

namespace {
/// A server that never answers counts as one that cannot be reached.
constexpr std::chrono::seconds TIME_OUT{30};
} // namespace

VersionCheck::VersionCheck(QObject* parent, QUrl const& base) : QObject(parent), base_(base) {}

QUrl VersionCheck::GetDefaultBase()
{
    return QUrl(QStringLiteral("https://") + BuildDate::GetSiteName());
}

QUrl VersionCheck::GetUrl() const
{
    QUrl url = base_;
    url.setPath(QStringLiteral("/Current_QZ_Release/") + BuildDate::GetVersionFileName());
    return url;
}

void VersionCheck::OnCheckForNewVersion_MenuAction()
{
    asked_from_menu_ = true;
    CheckForNewVersion();
}

void VersionCheck::CheckForNewVersion()
{
    auto* const manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &VersionCheck::OnVersionCheckFinished);
    QNetworkRequest request(GetUrl());
    request.setTransferTimeout(static_cast<int>(std::chrono::milliseconds(TIME_OUT).count()));
    manager->head(request);
}

void VersionCheck::OnVersionCheckFinished(QNetworkReply* reply)
{
    QNetworkReply::NetworkError const error = reply->error();
    bool const asked_from_menu = asked_from_menu_;
    // Before the message: its box runs an event loop of its own, in which the next check may start.
    asked_from_menu_ = false;
    reply->deleteLater();
    reply->manager()->deleteLater();
    if (std::optional<Message> const message = MessageFor(error, asked_from_menu)) {
        emit Message_Signal(*message);
    }
    emit Finished_Signal(error);
}

std::optional<VersionCheck::Message> VersionCheck::MessageFor(QNetworkReply::NetworkError error,
                                                              bool asked_from_menu)
{
    if (error == QNetworkReply::ContentNotFoundError) {
        QString text = tr("Go to download page?");
        if (!asked_from_menu) {
            text += tr("\n(You can disable automatic update checks in Settings)");
        }
        return Message{tr("New version available"), text, true};
    }
    if (!asked_from_menu) {
        return std::nullopt;
    }
    if (error == QNetworkReply::NoError) {
        return Message{tr("Check for updates"), tr("No update available")};
    }
    return Message{tr("Check for updates"),
                   tr("Something went wrong. Verify that you have internet connection. Error code: ") +
                       QString::number(error)};
}
