#include "Symbol.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

QIcon symbol()
{
    constexpr int size = 16;
    static const QIcon icon = [] {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::darkCyan);
        return QIcon(pixmap);
    }();
    return icon;
}
