#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <malloc.h>

/// Measures how much memory the process needed at most since the object was made.
class PeakMemory
{
public:
    PeakMemory()
    {
        malloc_trim(0);
        QFile reset(QStringLiteral("/proc/self/clear_refs"));
        m_isUsable = reset.open(QIODevice::WriteOnly) && reset.write("5") == 1 && reset.flush();
        m_before = status("VmRSS:");
    }

    /// Tells whether the system lets a process measure this.
    bool isUsable() const { return m_isUsable && m_before > 0; }

    /// Returns the growth from the beginning to the peak, in bytes.
    qint64 growth() const { return status("VmHWM:") - m_before; }

private:
    static qint64 status(const char *key)
    {
        QFile file(QStringLiteral("/proc/self/status"));
        if (!file.open(QIODevice::ReadOnly)) {
            return 0;
        }
        const QByteArray content = file.readAll();
        const int begin = content.indexOf(key) + int(qstrlen(key));
        return content.mid(begin, content.indexOf("kB", begin) - begin).trimmed().toLongLong() *
               1024;
    }

    bool m_isUsable = false;
    qint64 m_before = 0;
};
