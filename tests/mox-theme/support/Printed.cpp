#include "Printed.h"

#include <QtCore/QTemporaryFile>

#include <cstdio>
#include <unistd.h>

namespace {

/// Sends what is written to a standard stream to a file for as long as it lives.
class Diversion
{
public:
    explicit Diversion(std::FILE *stream)
        : m_stream(stream)
        , m_former(dup(fileno(stream)))
    {
        std::fflush(m_stream);
        m_file.open();
        dup2(m_file.handle(), fileno(m_stream));
    }
    Diversion(const Diversion &) = delete;
    Diversion &operator=(const Diversion &) = delete;
    ~Diversion()
    {
        dup2(m_former, fileno(m_stream));
        close(m_former);
    }

    QString text()
    {
        std::fflush(m_stream);
        m_file.seek(0);
        return QString::fromUtf8(m_file.readAll());
    }

private:
    std::FILE *m_stream;
    int m_former;
    QTemporaryFile m_file;
};

} // namespace

Printed printedBy(const std::function<int()> &command)
{
    Diversion output(stdout);
    Diversion problems(stderr);
    Printed printed;
    printed.exitCode = command();
    printed.output = output.text();
    printed.problems = problems.text();
    return printed;
}
