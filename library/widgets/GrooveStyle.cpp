// SPDX-License-Identifier: MIT
#include "widgets/GrooveStyle.h"

#include "Zorvik/Lumetra/StyleProvider.h"

#include <QSlider>

#include <algorithm>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

// The rules take %1 object name, %2 background, %3 fill, %4 and %5 stops, %6 state. A comma is
// missing after the third stop; style sheets accept that, and hosts compare the text.
constexpr char PositiveRule[] =
    "#%1::groove:horizontal:%6{ background:qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 %2, "
    "stop:0.5 %2, stop:0.50001 %3 stop:%4 %3, stop:%5 %2, stop:1 %2); }";
constexpr char NegativeRule[] =
    "#%1::groove:horizontal:%6{ background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 %2, "
    "stop:%4 %2, stop:%5 %3 stop:0.5 %3, stop:0.50001 %2, stop:1 %2); }";
constexpr char ZeroRule[] = "#%1::groove:horizontal:%6{ background: %2; }";

const QLatin1Char Fill(' ');

/// Holds the template and its stops, which all rules of one slider share.
struct GrooveShape
{
    const char* rule = ZeroRule;
    bool hasStops = false;
    double firstStop = 0.0;
    double secondStop = 0.0;
};

// The constants lie slightly apart, so that each change of colour is a hard edge.
GrooveShape ShapeFor(int value, int maximum)
{
    const double share = value / (2.0 * maximum);
    if (value > 0)
        return {PositiveRule, true, std::min(0.4999 + share, 1.0), std::min(0.49999 + share, 1.0)};
    if (value < 0)
        return {NegativeRule, true, std::max(0.50001 + share, 0.0), std::max(0.5001 + share, 0.0)};
    return {};
}

// Each arg() fills the lowest placeholder left, so they come one after the other.
QString Rule(const GrooveShape& shape, const QString& name, const QString& background,
             const QString& fill, const QString& state)
{
    QString rule = QString::fromLatin1(shape.rule).arg(name, 0, Fill).arg(background, 0, Fill);
    if (shape.hasStops)
        rule = rule.arg(fill, 0, Fill)
                   .arg(shape.firstStop, 0, 'g', -1, Fill)
                   .arg(shape.secondStop, 0, 'g', -1, Fill);
    return rule.arg(state, 0, Fill);
}

} // namespace

void ApplyGrooveStyle(QSlider* slider, const QString& fillColor, const QString& disabledFillColor,
                      const QString& hoverFillColor, const QString& backgroundColor,
                      const QString& disabledBackgroundColor, const QString& hoverBackgroundColor)
{
    if (!StyleProvider::Option(StyleProvider::FillSlider).toBool())
        return;

    const GrooveShape shape = ShapeFor(slider->value(), slider->maximum());
    const QString name = slider->objectName();
    QString rules =
        Rule(shape, name, backgroundColor, fillColor, QStringLiteral("enabled")) +
        Rule(shape, name, disabledBackgroundColor, disabledFillColor, QStringLiteral("!enabled"));
    if (!hoverBackgroundColor.isEmpty() && !hoverFillColor.isEmpty())
        rules += Rule(shape, name, hoverBackgroundColor, hoverFillColor, QStringLiteral("hover"));
    slider->setStyleSheet(rules);
}

} // namespace Zorvik::Lumetra::LumetraPresets
