// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DepthMarkerTable.h"

#include "well/DepthMarkerModel.h"
#include "well/WellTablePaste.h"

#include <QMessageBox>

#include <utility>

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

bool DepthMarkerTable::AskForErrors(QStringList const& texts)
{
    for (auto const& text : texts) {
        QMessageBox box(QMessageBox::Question, tr("Paste"),
                        tr("Paste Error - Unable to convert to depth: ") + text + "\n" +
                            tr("Do you want to continue(current line will be discarded)?"),
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
    auto pasted = WellTablePaste::ReadMarkers(GetClipboardText());
    QStringList const errors = std::exchange(pasted.errors, {});
    if (ConfirmPaste(*this, pasted, static_cast<qsizetype>(pasted.rows.size()),
                     tr("No Depth Marker data found in pasted data. Check number format and try again")) &&
        AskForErrors(errors)) {
        model_->AppendMarkers(QList<DepthMarker>(pasted.rows.cbegin(), pasted.rows.cend()));
    }
}
