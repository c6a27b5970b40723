#pragma once

#include <QtCore/QPointer>
#include <QtCore/QVector>

class QLabel;
class QMdiArea;

namespace TARN {

/// Living widgets that have the colours of the application's palette as their own, and therefore
/// keep them when it changes.
class PlainColors
{
public:
    /// Remembers them. To be made before the palette changes.
    PlainColors();

    /// Gives them the colours of the palette that is in force now.
    void follow() const;

private:
    QVector<QPointer<QLabel>> m_labels;
    QVector<QPointer<QMdiArea>> m_areas;
};

} // namespace TARN
