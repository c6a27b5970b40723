#include "common_utils/SteadyIcon.h"

#include <QtCore/QDataStream>
#include <QtGui/QIcon>

#include <algorithm>
#include <array>

namespace TARN {

namespace {

/// The toolkit's engines: of pixmaps and their files, of drawings, and of the icon theme.
constexpr std::array steadyEngines{"QPixmapIconEngine", "svg", "QIconLoaderEngine"};

/// Returns what is written of the name of an engine.
QByteArray written(const char *engine)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QString::fromLatin1(engine);
    return bytes;
}

} // namespace

EngineProbe *EngineProbe::of(const QDataStream &stream)
{
    return dynamic_cast<EngineProbe *>(stream.device());
}

EngineProbe::EngineProbe()
{
    setOpenMode(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

bool EngineProbe::hasFoundSteady() const
{
    if (m_answer != Answer::None) {
        return m_answer == Answer::Steady;
    }
    return std::any_of(steadyEngines.begin(), steadyEngines.end(),
                       [this](const char *engine) { return m_heard == written(engine); });
}

bool EngineProbe::open(OpenMode /*mode*/)
{
    return false;
}

qint64 EngineProbe::readData(char * /*data*/, qint64 /*length*/)
{
    return -1;
}

qint64 EngineProbe::writeData(const char *data, qint64 length)
{
    m_heard.append(data, int(length));
    // First comes the length of the name. After the name the stream is to fail, so that no engine
    // goes to the trouble of writing pictures.
    const bool isDone = m_heard.size() > int(sizeof(quint32));
    if (isDone) {
        setOpenMode(QIODevice::NotOpen);
    }
    return isDone ? -1 : length;
}

bool isSteadyIcon(const QIcon &icon)
{
    EngineProbe probe;
    QDataStream stream(&probe);
    stream << icon;
    return probe.hasFoundSteady();
}

} // namespace TARN
