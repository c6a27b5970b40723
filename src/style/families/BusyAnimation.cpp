#include "style/families/BusyAnimation.h"

#include <QtCore/QtMath>
#include <QtWidgets/QProgressBar>

namespace TARN {

namespace {

/// The time to and fro, in milliseconds: as slow as calm breathing.
constexpr int period = 2400;

/// Between two pictures: about 30 a second, which is smooth for something this slow.
constexpr int pictureInterval = 33;

/// Longer than any window system takes to have a picture painted that is in sight.
constexpr int patience = 1000;

} // namespace

const BusyAnimation &BusyAnimation::painted(QProgressBar &bar)
{
    auto *animation = bar.findChild<BusyAnimation *>(QString(), Qt::FindDirectChildrenOnly);
    if (!animation) {
        animation = new BusyAnimation(bar);
    }
    animation->m_isAwaited = false;
    animation->m_sincePainted.start();
    if (animation->state() == QAbstractAnimation::Stopped) {
        animation->start();
    }
    return *animation;
}

BusyAnimation::BusyAnimation(QProgressBar &bar)
    : QAbstractAnimation(&bar)
    , m_bar(bar)
{
    setLoopCount(-1);
}

qreal BusyAnimation::position() const
{
    return (1 - qCos(2 * M_PI * currentLoopTime() / period)) / 2;
}

int BusyAnimation::duration() const
{
    return period;
}

void BusyAnimation::updateCurrentTime(int /*currentTime*/)
{
    const qint64 sincePainted = m_sincePainted.elapsed();
    if (m_isAwaited) {
        if (sincePainted > patience) {
            stop();
        }
    } else if (sincePainted >= pictureInterval) {
        m_isAwaited = true;
        m_bar.update();
    }
}

} // namespace TARN
