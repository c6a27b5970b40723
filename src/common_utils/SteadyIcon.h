#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>

class QDataStream;
class QIcon;

namespace TARN {

/// Tells whether \a icon is known to show the same for as long as it exists: the toolkit's engines
/// do, of pixmaps, of files and of the icon theme. Any other may count or tell the time.
bool isSteadyIcon(const QIcon &icon);

/// Hears what the engine of an icon calls itself when the icon is streamed, and takes nothing else.
/// It is all that an icon tells of its engine.
class EngineProbe : public QIODevice
{
public:
    /// Returns the probe that \a stream writes to, or a null pointer.
    static EngineProbe *of(const QDataStream &stream);

    EngineProbe();

    /// Has an engine tell whether its icon is steady, whatever it calls itself.
    void answer(bool isSteady) { m_answer = isSteady ? Answer::Steady : Answer::Changing; }

    bool hasFoundSteady() const;

    bool isSequential() const override { return true; }
    /// What has heard enough does not listen again.
    bool open(OpenMode mode) override;

protected:
    qint64 readData(char *data, qint64 length) override;
    qint64 writeData(const char *data, qint64 length) override;

private:
    enum class Answer { None, Steady, Changing };

    Answer m_answer = Answer::None;
    QByteArray m_heard;
};

} // namespace TARN
