#pragma once

#include <QtCore/QAbstractAnimation>
#include <QtCore/QElapsedTimer>

class QProgressBar;

namespace TARN {

/// Moves the chunk of one busy progress bar to and fro.
///
/// It asks for the next picture only when the last one has been painted, and stops when no picture
/// is painted any more: a bar that is hidden, out of sight or no longer busy costs nothing.
class BusyAnimation : public QAbstractAnimation
{
    Q_OBJECT

public:
    /// Returns the animation of \a bar, which is its parent, and notes that it is being painted.
    static const BusyAnimation &painted(QProgressBar &bar);

    /// Returns how far the chunk has got, from 0 at the start of the bar to 1 at its end.
    qreal position() const;

    int duration() const override;

protected:
    void updateCurrentTime(int currentTime) override;

private:
    explicit BusyAnimation(QProgressBar &bar);

    QProgressBar &m_bar;
    QElapsedTimer m_sincePainted;
    bool m_isAwaited = false; ///< whether a picture was asked for and has not been painted
};

} // namespace TARN
