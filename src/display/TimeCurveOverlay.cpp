// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/TimeCurveOverlay.h"

#include "app/kit/Quorrel.h"
#include "display/DepthGeometry.h"
#include "model/TimeLogDataChannel.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
/// Half of the inch fraction that an overlay is high.
constexpr double HALF_HEIGHT_INCHES = 0.07;
/// Extents below this have no average stroke.
constexpr double SMALLEST_EXTENT = 1e-05;
/// Places beyond this are far outside every view, and near the toolkit's limit for widgets.
constexpr int FARTHEST_PIXEL = 1 << 22;

TimeCurveOverlay::ChartOpener& Opener()
{
    static TimeCurveOverlay::ChartOpener opener;
    return opener;
}

int Pixel(float x)
{
    return std::clamp(Quorrel::TruncateToInt(x), -FARTHEST_PIXEL, FARTHEST_PIXEL);
}

/// The line width of all overlays, from the height of the first one painted.
int LineWidth(int overlay_height)
{
    static int const width = overlay_height / 2;
    return width;
}

QColor Opposite(QColor const& color)
{
    int const hue = color.hsvHue();
    if (hue < 0) {
        return color;
    }
    return QColor::fromHsv((hue + 180) % 360, color.hsvSaturation(), color.value(), 255);
}
} // namespace

TimeCurveOverlay::TimeCurveOverlay(QWidget* parent_view,
                                   std::weak_ptr<TimeLogDataChannel const> const& channel)
    : QPushButton(parent_view), TimeCurve(channel)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setToolTip(QStringLiteral("Average value: %1, Standard Deviation: %2")
                   .arg(Quorrel::FloatTypeToString(GetAverageValue(), 3),
                        Quorrel::FloatTypeToString(GetStandardDeviation(), 3)));
    connect(this, &QPushButton::clicked, this, &TimeCurveOverlay::OnClicked);
    hide();
}

TimeCurveOverlay::~TimeCurveOverlay() = default;

void TimeCurveOverlay::SetChartOpener(ChartOpener opener)
{
    Opener() = std::move(opener);
}

int TimeCurveOverlay::GetHalfHeight(double dpi)
{
    static int half_height = 0;
    if (half_height == 0) {
        half_height = std::clamp(Quorrel::TruncateToInt(dpi * HALF_HEIGHT_INCHES), 0, 1000);
    }
    return half_height;
}

QRect TimeCurveOverlay::CalculateGeometry(Interval const& values, Interval const& scale, float depth,
                                          Interval const& view, int width, int height, int half_height)
{
    int const x_min = Pixel(Quorrel::ConvertCurveValueToX(static_cast<float>(values.lower), scale, width));
    int const x_max = Pixel(Quorrel::ConvertCurveValueToX(static_cast<float>(values.upper), scale, width));
    int const y =
        std::clamp(Quorrel::ConvertDepthToYValue(depth, height, view), -FARTHEST_PIXEL, FARTHEST_PIXEL);
    return {QPoint(std::min(x_min, x_max), y - half_height),
            QPoint(std::max(x_min, x_max) - 1, y + half_height - 1)};
}

void TimeCurveOverlay::Place(Interval const& scale, float depth, Interval const& view, int width, int height,
                             double dpi)
{
    is_mirrored_ = scale.lower > scale.upper;
    setGeometry(CalculateGeometry(GetMinMax(), scale, depth, view, width, height, GetHalfHeight(dpi)));
    show();
}

void TimeCurveOverlay::RenderToPainter(QPainter& painter, int width, int height, int line_width) const
{
    QColor const color = is_hovered_ ? Opposite(GetCurvePen().color()) : GetCurvePen().color();
    double const t = line_width;
    double const middle = height / 2.0;
    painter.setPen(QPen(color, t, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(t, middle), QPointF(width - t, middle));
    Interval const& values = GetMinMax();
    double const extent = values.upper - values.lower;
    if (extent > SMALLEST_EXTENT && std::isfinite(extent)) {
        double const share = (static_cast<double>(GetAverageValue()) - values.lower) / extent;
        double const x = width * (is_mirrored_ ? 1 - share : share) - t / 2;
        painter.drawLine(QPointF(x, 0), QPointF(x, height));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(t, middle), t / 2, t / 2);
    painter.drawEllipse(QPointF(width - t, middle), t / 2, t / 2);
}

TimeLogChart TimeCurveOverlay::GetChart() const
{
    TimeLogChart chart;
    HeaderRow const info = GetCurveInfo();
    chart.window_title = QStringLiteral("Time Log");
    chart.title = info.mnemonic;
    chart.x_axis_title = QStringLiteral("Time");
    chart.y_axis_title =
        info.unit.isEmpty() ? info.mnemonic : QStringLiteral("%1 [%2]").arg(info.mnemonic, info.unit);
    if (auto const channel = GetDataChannel()) {
        auto const samples = channel->GetSamples();
        std::vector<double> const& time = channel->GetTime();
        auto const size = static_cast<std::ptrdiff_t>(std::min(time.size(), samples->size()));
        auto x = std::make_shared<std::vector<float>>();
        x->reserve(static_cast<std::size_t>(size));
        std::transform(time.begin(), time.begin() + size, std::back_inserter(*x),
                       [](double seconds) { return static_cast<float>(seconds); });
        chart.x = std::move(x);
        chart.y = std::make_shared<std::vector<float>>(samples->begin(), samples->begin() + size);
    }
    return chart;
}

void TimeCurveOverlay::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    RenderToPainter(painter, width(), height(), LineWidth(height()));
}

void TimeCurveOverlay::enterEvent(QEnterEvent* event)
{
    is_hovered_ = true;
    update();
    QPushButton::enterEvent(event);
}

void TimeCurveOverlay::leaveEvent(QEvent* event)
{
    is_hovered_ = false;
    update();
    QPushButton::leaveEvent(event);
}

void TimeCurveOverlay::OnClicked()
{
    if (Opener() && GetDataChannel()) {
        Opener()(GetChart(), window());
    }
}
