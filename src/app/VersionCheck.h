// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QNetworkReply>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

/// Asks the publisher's server whether this build is still the current one: its file is there for exactly as
/// long. One HTTP HEAD request, no body and no version numbers. Shows nothing itself; the owner shows the
/// message.
class VersionCheck : public QObject
{
    Q_OBJECT
public:
    /// A box to show.
    struct Message
    {
        QString title;
        QString text;
        /// The box asks Yes or No, and Yes leads to the publisher's page; otherwise it only informs.
        bool offers_download = false;
    };

    /// `base` is where the release folder stands on the server.
    explicit VersionCheck(QObject* parent = nullptr, QUrl const& base = GetDefaultBase());

    /// Starts a check; the answer comes by Finished_Signal.
    void CheckForNewVersion();
    /// The same, for a user who wants to hear of every outcome.
    void OnCheckForNewVersion_MenuAction();

    [[nodiscard]] QUrl GetUrl() const;
    [[nodiscard]] static QUrl GetDefaultBase();
    /// What to show for an outcome, if anything.
    [[nodiscard]] static std::optional<Message> MessageFor(QNetworkReply::NetworkError error,
                                                           bool asked_from_menu);

signals:
    /// Something is to be shown. Comes before Finished_Signal.
    void Message_Signal(VersionCheck::Message const& message);
    void Finished_Signal(QNetworkReply::NetworkError error);

private:
    void OnVersionCheckFinished(QNetworkReply* reply);

    QUrl base_;
    bool asked_from_menu_ = false;
};
