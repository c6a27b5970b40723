#include "support/MessageRecorder.h"

#include <utility>

namespace {

QStringList recorded;

void record(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &message)
{
    recorded.append(message);
}

} // namespace

MessageRecorder::MessageRecorder()
    : m_former(qInstallMessageHandler(record))
{
    recorded.clear();
}

MessageRecorder::~MessageRecorder()
{
    qInstallMessageHandler(m_former);
}

QStringList MessageRecorder::take()
{
    return std::exchange(recorded, {});
}
