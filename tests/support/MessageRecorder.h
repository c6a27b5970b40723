#pragma once

#include <QtCore/QStringList>

/// Records every diagnostic message for as long as it lives, in place of printing it.
class MessageRecorder
{
public:
    MessageRecorder();
    MessageRecorder(const MessageRecorder &) = delete;
    MessageRecorder &operator=(const MessageRecorder &) = delete;
    ~MessageRecorder();

    /// Returns the messages so far, and forgets them.
    QStringList take();

private:
    QtMessageHandler m_former;
};
