#include "catalogue/LookUpRecorder.h"

namespace {

QSet<QString> &recordedPaths()
{
    static QSet<QString> paths;
    return paths;
}

void record(const QString &group, const QString &name)
{
    recordedPaths().insert(group + QLatin1Char('/') + name);
}

} // namespace

LookUpRecorder::LookUpRecorder()
    : m_former(TARN::observeLookUps(record))
{
    recordedPaths().clear();
}

LookUpRecorder::~LookUpRecorder()
{
    TARN::observeLookUps(m_former);
}

QSet<QString> LookUpRecorder::paths() const
{
    return recordedPaths();
}
