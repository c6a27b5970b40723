#include "catalogue/Words.h"

#include <QtCore/QStringBuilder>

namespace TARN::Words {

namespace {

constexpr QLatin1String brush = word("Brush");

} // namespace

QString twin(const QString &name, bool enabled)
{
    return enabled ? name : name % disabled;
}

QString buttonBrush(const QString &toggleWord, const QString &kind, const QString &state,
                    QLatin1String field)
{
    return toggleWord % button % kind % state % field % brush;
}

QString inputBrush(const QString &kind, const QString &state, QLatin1String field)
{
    return input % kind % state % field % brush;
}

} // namespace TARN::Words
