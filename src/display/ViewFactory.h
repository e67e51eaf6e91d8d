// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class BaseCombinedViewWidget;
class QObject;
class QWidget;
struct Interval;
struct ColumnContext;

/// Makes the views that stand on floors above the display (zones, sketch, deviation). The application
/// installs one; a column without it has none of these views. Returned widgets are hidden, unparented and not
/// yet wired to the column.
class ViewFactory
{
public:
    virtual ~ViewFactory() = default;
    [[nodiscard]] virtual BaseCombinedViewWidget* CreateZoneView(QString const& name,
                                                                 ColumnContext const&) const = 0;
    [[nodiscard]] virtual BaseCombinedViewWidget* CreateDeviationView(QString const& name,
                                                                      ColumnContext const&) const = 0;
    [[nodiscard]] virtual BaseCombinedViewWidget* CreateWellSketchView(QString const& name,
                                                                       ColumnContext const&) const = 0;

    /// Called with the measured depths (metres) and the text of a well component that was clicked.
    using ComponentClicked = std::function<void(Interval const& md, QString const& text)>;
    /// Reports clicks on well components in a view of this factory to `clicked` as long as `receiver` lives.
    virtual void ConnectComponentClicks(BaseCombinedViewWidget* /*view*/, QObject* /*receiver*/,
                                        ComponentClicked const& /*clicked*/) const
    {
    }
    /// The information box of a well component, a child of `parent`; null for none. Depths in metres.
    virtual QWidget* CreateComponentInfoOverlay(QWidget* /*parent*/, Interval const& /*md*/,
                                                Interval const& /*tvd*/, QString const& /*text*/) const
    {
        return nullptr;
    }
};
