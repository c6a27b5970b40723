#include "resources/variables/LookUpObserver.h"

#include <utility>

namespace TARN {

LookUpObserver lookUpObserver = nullptr;

LookUpObserver observeLookUps(LookUpObserver observer)
{
    return std::exchange(lookUpObserver, observer);
}

void tellLookUp(const QString &path)
{
    if (Q_UNLIKELY(lookUpObserver)) {
        const QChar separator = QLatin1Char('/');
        lookUpObserver(path.section(separator, 0, 0), path.section(separator, 1));
    }
}

} // namespace TARN
