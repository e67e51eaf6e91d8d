// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellViewFactory.h"

#include "well/ComponentInfoOverlay.h"
#include "well/DeviationCombinedViewWidget.h"
#include "well/WellSketchCombinedViewWidget.h"
#include "well/ZoneCombinedViewWidget.h"

BaseCombinedViewWidget* WellViewFactory::CreateZoneView(QString const& name,
                                                        ColumnContext const& context) const
{
    return new ZoneCombinedViewWidget(name, context);
}

BaseCombinedViewWidget* WellViewFactory::CreateDeviationView(QString const& name,
                                                             ColumnContext const& context) const
{
    return new DeviationCombinedViewWidget(name, context);
}

BaseCombinedViewWidget* WellViewFactory::CreateWellSketchView(QString const& name,
                                                              ColumnContext const& context) const
{
    return new WellSketchCombinedViewWidget(name, context);
}

void WellViewFactory::ConnectComponentClicks(BaseCombinedViewWidget* view, QObject* receiver,
                                             ComponentClicked const& clicked) const
{
    if (auto* zones = qobject_cast<ZoneCombinedViewWidget*>(view)) {
        QObject::connect(zones, &ZoneCombinedViewWidget::ZoneClicked_Signal, receiver, clicked);
    } else if (auto* sketch = qobject_cast<WellSketchCombinedViewWidget*>(view)) {
        QObject::connect(sketch, &WellSketchCombinedViewWidget::WellComponentClicked_Signal, receiver,
                         clicked);
    }
}

QWidget* WellViewFactory::CreateComponentInfoOverlay(QWidget* parent, Interval const& md, Interval const& tvd,
                                                     QString const& text) const
{
    return new ComponentInfoOverlay(parent, md, tvd, text);
}
