#include "ToneDemands.h"

#include <common_utils/Contrast.h>

#include <QtCore/QRandomGenerator>

#include <algorithm>

using TARN::Helpers::contrastRatio;
using TARN::ThemeTool::ContrastDemand;
using TARN::ThemeTool::Oklch;
using TARN::ThemeTool::toColor;

QColor randomColor(QRandomGenerator &random)
{
    return {random.bounded(256), random.bounded(256), random.bounded(256)};
}

Demands randomDemands(QRandomGenerator &random)
{
    constexpr double ratios[] = {1.5, 2, 3, 4.5, 7};
    Demands demands(1 + random.bounded(3));
    for (ContrastDemand &demand : demands) {
        demand = {randomColor(random), ratios[random.bounded(5)]};
    }
    return demands;
}

bool isMetByColor(const QColor &color, const Demands &demands)
{
    return std::all_of(demands.cbegin(), demands.cend(), [&](const ContrastDemand &demand) {
        return contrastRatio(color, demand.ground) >= demand.ratio;
    });
}

QVector<QColor> greys()
{
    QVector<QColor> all;
    for (int value = 0; value <= 255; ++value) {
        all.append(QColor(value, value, value));
    }
    return all;
}

bool isMetBySomeGrey(const Demands &demands)
{
    static const QVector<QColor> all = greys();
    return std::any_of(all.cbegin(), all.cend(),
                       [&](const QColor &grey) { return isMetByColor(grey, demands); });
}

QVector<QColor> tonesOf(const Oklch &wanted)
{
    constexpr int count = 2000;
    QVector<QColor> tones;
    for (int i = 0; i <= count; ++i) {
        tones.append(toColor({double(i) / count, wanted.chroma, wanted.hue}));
    }
    return tones;
}

QByteArray described(const QColor &wanted, const Demands &demands)
{
    QByteArray text = wanted.name().toLatin1();
    for (const ContrastDemand &demand : demands) {
        text += ", " + QByteArray::number(demand.ratio) + " on " + demand.ground.name().toLatin1();
    }
    return text;
}
