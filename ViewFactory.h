
#pragma once

#include <QString>

class BaseCombinedViewWidget;
class ColumnSlots;
struct ColumnContext;

/// Makes the views that stand on floors above the display (zones, sketch, deviation). The application installs one;
/// a column without it has none of these views. Returned widgets are hidden, unparented and not yet wired to the column.
class ViewFactory
{
public:
    virtual ~ViewFactory() = default;
    [[nodiscard]] virtual BaseCombinedViewWidget* CreateZoneView(QString const& name, ColumnContext const&) const = 0;
    [[nodiscard]] virtual BaseCombinedViewWidget* CreateDeviationView(QString const& name, ColumnContext const&) const = 0;
    [[nodiscard]] virtual BaseCombinedViewWidget* CreateWellSketchView(QString const& name, ColumnContext const&) const = 0;
};
