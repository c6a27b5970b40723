#include "resources/variables/LookUps.h"

namespace TARN {

void (*lookUpObserver)(const QString &group, const QString &name) = nullptr;

void tellLookUp(const QString &path)
{
    if (Q_UNLIKELY(lookUpObserver)) {
        const QChar separator = QLatin1Char('/');
        lookUpObserver(path.section(separator, 0, 0), path.section(separator, 1));
    }
}

} // namespace TARN
