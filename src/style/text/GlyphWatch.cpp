#include "style/text/GlyphWatch.h"

#include <QtGui/QGuiApplication>

namespace TARN {

void GlyphWatch::attend()
{
    if (m_application == QCoreApplication::instance()) {
        return;
    }
    m_application = QCoreApplication::instance();
    QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, m_drop);
    // It is called before the application takes the fonts down.
    qAddPostRoutine(m_drop);
}

} // namespace TARN
