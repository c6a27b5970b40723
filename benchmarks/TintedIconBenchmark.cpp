#include "BenchmarkMain.h"

#include <common_utils/Helpers.h>

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <benchmark/benchmark.h>

namespace {

const QBrush referenceForeground(QColor(0xe5, 0xee, 0xf4));
const QBrush tint(QColor(0x1a, 0x6f, 0xae));

QIcon sourceIcon()
{
    return QIcon(QStringLiteral(MOX_SHIPPED_THEMES "/Dark/Images/Dark/scalable/action.delete.svg"));
}

QIcon tintedIcon()
{
    return TARN::Helpers::getModifiedIconWithForegroundBrush(sourceIcon(), referenceForeground,
                                                             tint, false);
}

/// Calls \a paint with a painter again and again.
template <typename Paint>
void paintRepeatedly(benchmark::State &state, Paint paint)
{
    QPixmap target(64, 64);
    target.fill(Qt::black);
    QPainter painter(&target);
    for ([[maybe_unused]] auto iteration : state) {
        paint(painter);
    }
}

void plainPixmap(benchmark::State &state)
{
    const QPixmap pixmap = tintedIcon().pixmap(static_cast<int>(state.range()));
    paintRepeatedly(state, [&pixmap](QPainter &painter) { painter.drawPixmap(4, 4, pixmap); });
}
BENCHMARK(plainPixmap)->Arg(16)->Arg(24)->Arg(32);

void tintedIconWarm(benchmark::State &state)
{
    const QIcon icon = tintedIcon();
    const auto size = static_cast<int>(state.range());
    paintRepeatedly(state,
                    [&icon, size](QPainter &painter) { icon.paint(&painter, 4, 4, size, size); });
}
BENCHMARK(tintedIconWarm)->Arg(16)->Arg(24)->Arg(32);

void untintedIconWarm(benchmark::State &state)
{
    const QIcon icon = sourceIcon();
    const auto size = static_cast<int>(state.range());
    paintRepeatedly(state,
                    [&icon, size](QPainter &painter) { icon.paint(&painter, 4, 4, size, size); });
}
BENCHMARK(untintedIconWarm)->Arg(16)->Arg(24)->Arg(32);

void tintedIconCold(benchmark::State &state)
{
    const auto size = static_cast<int>(state.range());
    paintRepeatedly(state,
                    [size](QPainter &painter) { tintedIcon().paint(&painter, 4, 4, size, size); });
}
BENCHMARK(tintedIconCold)->Arg(16)->Arg(24)->Arg(32)->Unit(benchmark::kMicrosecond);

void untintedIconCold(benchmark::State &state)
{
    const auto size = static_cast<int>(state.range());
    paintRepeatedly(state,
                    [size](QPainter &painter) { sourceIcon().paint(&painter, 4, 4, size, size); });
}
BENCHMARK(untintedIconCold)->Arg(16)->Arg(24)->Arg(32)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks(argc, argv);
}
