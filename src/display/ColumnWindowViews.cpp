// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnWindow.h"

#include "display/AutomaticDataView.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/BaseScaleView.h"
#include "display/BaseViewWidget.h"
#include "display/DepthAxis.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "display/ViewOrder.h"
#include "model/ViewObjectNames.h"

#include <QSet>

#include <algorithm>
#include <utility>

// Which views are shown, in which order and how large.

void ColumnWindow::UpdateVisibleViewWidgets(QList<QString> const& names)
{
    QList<BaseCombinedViewWidget*> const pairs = FindAllCombinedViewWidgets();
    QSet<QString> const shown(names.begin(), names.end());
    QList<int> const old_sizes = scroll_area_->GetSplitterSizes();
    std::vector<Quorrel::ViewSlot> slots_in_order;
    for (int i = 0; i < pairs.size(); ++i) {
        Quorrel::ViewSlot slot{i, pairs[i]->GetBaseViewWidgetName(), old_sizes[i], std::nullopt};
        if (pairs[i]->GetBaseViewWidget()->sizePolicy().horizontalPolicy() == QSizePolicy::Preferred) {
            slot.preferred_width = pairs[i]->sizeHint().width();
        }
        slots_in_order.push_back(slot);
    }
    restored_layout_.reset();
    slots_in_order = Quorrel::ArrangeViews(std::move(slots_in_order), names, scroll_area_->GetWidth());

    ChangeVisibility([&] {
        for (BaseCombinedViewWidget* pair : pairs) {
            if (!shown.contains(pair->GetBaseViewWidgetName())) {
                pair->hide();
            }
        }
        QList<int> sizes;
        for (Quorrel::ViewSlot const& slot : slots_in_order) {
            BaseCombinedViewWidget* pair = pairs[slot.index];
            int const index = static_cast<int>(sizes.size());
            if (scroll_area_->GetSplitterWidget(index) != pair) {
                scroll_area_->InsertSplitterWidget(index, pair);
            }
            pair->setVisible(shown.contains(slot.name));
            sizes.append(slot.size);
        }
        scroll_area_->SetSplitterSizes(sizes);
    });
}

void ColumnWindow::SortViewWidgets(QList<QString> const& names)
{
    for (auto name = names.crbegin(); name != names.crend(); ++name) {
        if (BaseCombinedViewWidget* pair = FindCombinedViewWidget(*name)) {
            scroll_area_->InsertSplitterWidget(0, pair);
        }
    }
}

void ColumnWindow::SetSplitterSizes(QList<int> const& sizes)
{
    QList<BaseCombinedViewWidget*> const pairs = FindAllCombinedViewWidgets();
    restored_layout_.reset();
    ChangeVisibility([&] {
        for (int i = 0; i < std::min(pairs.size(), sizes.size()); ++i) {
            pairs[i]->setVisible(sizes[i] != 0);
        }
        scroll_area_->SetSplitterSizes(sizes);
    });
}

void ColumnWindow::DisplayDefaultViews()
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        QString const kind = pair->GetBaseViewWidgetObjectName();
        pair->setVisible(kind == DepthAxis::OBJECT_NAME_ || kind == view_object_names::DEVIATION ||
                         kind == view_object_names::WELL_SKETCH || kind == view_object_names::ZONE);
    }
}

void ColumnWindow::DisplayFirstCVWs()
{
    QList<BaseCombinedViewWidget*> const pairs = FindAllCombinedViewWidgets();
    QList<QString> names;
    for (BaseCombinedViewWidget const* pair : pairs) {
        QString const kind = pair->GetBaseViewWidgetObjectName();
        bool const shows_data = kind == AutomaticDataView::OBJECT_NAME_ ||
                                kind == UserDataView::OBJECT_NAME_ || kind == view_object_names::MF_CALIPER;
        if (shows_data && !pair->isHidden()) {
            return;
        }
        names.append(pair->GetBaseViewWidgetName());
    }
    ChangeVisibility([&] {
        for (int const index : Quorrel::ChooseFirstViews(names)) {
            pairs[index]->show();
        }
        ShareWidth();
    });
}

void ColumnWindow::ShareWidth()
{
    restored_layout_.reset();
    // Left to itself the splitter would give the new views no more than their least width.
    QList<BaseCombinedViewWidget*> const pairs = FindAllCombinedViewWidgets();
    QList<int> sizes(pairs.size(), 0);
    QList<int> sharing;
    int rest = scroll_area_->GetWidth();
    for (int i = 0; i < pairs.size(); ++i) {
        if (pairs[i]->isHidden()) {
            continue;
        }
        if (pairs[i]->sizePolicy().horizontalPolicy() == QSizePolicy::Preferred) {
            sizes[i] = pairs[i]->sizeHint().width();
            rest -= sizes[i];
        } else {
            sharing.append(i);
        }
    }
    for (int const i : sharing) {
        sizes[i] = std::max(rest / static_cast<int>(sharing.size()), 1);
    }
    scroll_area_->SetSplitterSizes(sizes);
}

void ColumnWindow::ChangeVisibility(std::function<void()> const& change)
{
    bool const is_outermost = !std::exchange(is_changing_visibility_, true);
    change();
    if (is_outermost) {
        is_changing_visibility_ = false;
        OnVisibleWidgetsChanged();
    }
}

void ColumnWindow::OnVisibleWidgetsChanged()
{
    if (is_changing_visibility_) {
        return;
    }
    OnScaleHeightChanged();
    OnVisibleWidgetDataChanged();
}

void ColumnWindow::OnScaleHeightChanged()
{
    QList<BaseCombinedViewWidget*> const pairs = FindAllVisibleCombinedViewWidgets();
    int height = 0;
    for (BaseCombinedViewWidget const* pair : pairs) {
        height = std::max(height, pair->GetBaseScaleView()->sizeHint().height());
    }
    for (BaseCombinedViewWidget* pair : pairs) {
        pair->GetBaseScaleView()->setFixedHeight(height);
    }
}

void ColumnWindow::OnMoveViewWidget(QWidget* moved, QPointF const& global)
{
    int const moved_index = scroll_area_->GetSplitterIndex(moved);
    auto* moved_pair = qobject_cast<BaseCombinedViewWidget*>(moved);
    if (moved_index < 0 || !moved_pair) {
        return;
    }
    std::vector<Quorrel::ViewPlace> places;
    for (BaseCombinedViewWidget const* pair : FindAllCombinedViewWidgets()) {
        places.push_back(
            {scroll_area_->SplitterMapToGlobal(pair->pos()).x(), pair->width(), !pair->isHidden()});
    }
    if (std::optional<int> const target = Quorrel::FindMoveTarget(places, moved_index, global.x())) {
        scroll_area_->InsertSplitterWidget(*target, moved_pair);
    }
}

void ColumnWindow::RemovePair(BaseCombinedViewWidget* pair)
{
    pair->disconnect(this);
    pair->GetBaseViewWidget()->disconnect(this);
    pair->GetBaseScaleView()->disconnect(this);
    pair->hide();
    pair->setParent(nullptr);
    pair->deleteLater();
}
