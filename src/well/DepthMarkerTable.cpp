// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DepthMarkerTable.h"

#include "well/DepthMarkerModel.h"
#include "well/WellTablePaste.h"

#include <QMessageBox>

DepthMarkerTable::DepthMarkerTable(QWidget* parent) : DepthMarkerTable(new DepthMarkerModel, parent) {}

DepthMarkerTable::DepthMarkerTable(DepthMarkerModel* model, QWidget* parent)
    : BaseModelTable(model, parent), model_(model)
{
}

void DepthMarkerTable::InitializeTable(QList<DepthMarker> const& markers)
{
    model_->Clear();
    model_->AppendMarkers(markers);
}

void DepthMarkerTable::AddRow(DepthMarker const& marker)
{
    model_->AppendMarkers({marker});
    ShowRow(model_->rowCount() - 1);
}

QList<DepthMarker> DepthMarkerTable::GetMarkers() const
{
    return model_->GetMarkers();
}

bool DepthMarkerTable::AskForErrors(PasteReport const& report)
{
    for (auto const& error : report.GetErrorTexts()) {
        QMessageBox box(QMessageBox::Question, tr("Paste"),
                        error + "\n" + tr("Do you want to continue(current line will be discarded)?"),
                        QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No, this);
        box.setTextFormat(Qt::PlainText);
        int const answer = box.exec();
        if (answer == QMessageBox::YesToAll) {
            return true;
        }
        if (answer != QMessageBox::Yes) {
            return false;
        }
    }
    return true;
}

void DepthMarkerTable::ParsePasteAction()
{
    AppendPasted(
        *this, WellTablePaste::ReadMarkers(GetClipboardText()),
        tr("No Depth Marker data found in pasted data. Check number format and try again"),
        [this](auto const& rows) { model_->AppendMarkers(QList<DepthMarker>(rows.cbegin(), rows.cend())); },
        [this](PasteReport const& report) { return AskForErrors(report); });
}
