// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/BuildDate.h"
#include "app/QuorrelFrame.h"
#include "app/VersionCheck.h"
#include "display/ViewFactory.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

// Help menu of the main frame and the update check.

void QuorrelFrame::OnAbout()
{
    QApplication::aboutQt();
}

void QuorrelFrame::OnWebpage()
{
    QDesktopServices::openUrl(QUrl("https://" + BuildDate::GetSiteName()));
}

void QuorrelFrame::OnCheckForNewVersion_MenuAction()
{
    MakeVersionCheck()->OnCheckForNewVersion_MenuAction();
}

VersionCheck* QuorrelFrame::MakeVersionCheck()
{
    auto* check = new VersionCheck(this);
    connect(check, &VersionCheck::Message_Signal, this, [this](VersionCheck::Message const& message) {
        auto const buttons = message.offers_download
                                 ? QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No)
                                 : QMessageBox::Ok;
        if (QMessageBox::information(this, message.title, message.text, buttons) == QMessageBox::Yes) {
            OnWebpage();
        }
    });
    connect(check, &VersionCheck::Finished_Signal, check, &QObject::deleteLater);
    return check;
}
