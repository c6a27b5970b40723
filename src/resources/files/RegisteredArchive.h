#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <memory>

namespace TARN {

/// A resource file that is registered with the toolkit for as long as this lives.
///
/// It is registered from memory, which nobody writes, rather than from the file: who writes that
/// would change what has been found sound. The memory is kept for the life of the process in case
/// that a file in it is still open in the end.
class RegisteredArchive
{
public:
    explicit RegisteredArchive(const QByteArray &archive);
    RegisteredArchive(const RegisteredArchive &) = delete;
    RegisteredArchive &operator=(const RegisteredArchive &) = delete;
    ~RegisteredArchive();

private:
    QByteArray m_archive;
};

/// Registers the resource file at \a path, whose files have to lie in one of \a folders
/// (":/Icons"), anywhere when there are none. Returns a null pointer when it must not be
/// registered; a warning has told why.
std::unique_ptr<RegisteredArchive> registerArchive(const QString &path, const QStringList &folders);

} // namespace TARN
