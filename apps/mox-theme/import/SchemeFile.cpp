#include "import/SchemeFile.h"

#include "import/Base16.h"
#include "import/KdeColors.h"
#include "text/Literals.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace TARN::ThemeTool {

namespace {

/// In bytes. Far more than any scheme needs; whatever is larger is something else.
constexpr qint64 LargestFile = 1048576;

/// Reads the file at \a path into \a content. Returns what went wrong; empty when nothing did.
QString readFile(const QString &path, QByteArray &content)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return "does not exist"_s;
    }
    if (!info.isFile()) {
        return "is not a file"_s;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return "cannot be read: "_s + file.errorString();
    }
    if (file.size() > LargestFile) {
        return "is too large for a colour scheme"_s;
    }
    content = file.readAll();
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    if (content.startsWith(byteOrderMark)) {
        content.remove(0, byteOrderMark.size());
    }
    return {};
}

/// Reads \a content by a reader of its kind.
template <typename Content, typename Reader>
SchemeProblem readAs(Reader read, const QByteArray &content, ColorScheme &scheme)
{
    Content colors;
    SchemeProblem problem = read(content, colors);
    if (problem.text.isEmpty()) {
        scheme = colorScheme(colors);
    }
    return problem;
}

SchemeProblem readContent(const QByteArray &content, ColorScheme &scheme)
{
    if (isKdeColors(content)) {
        return readAs<KdeColors>(readKdeColors, content, scheme);
    }
    if (isBase16(content)) {
        return readAs<Base16>(readBase16, content, scheme);
    }
    return {0, 0, "neither a KDE colour scheme nor a base16 or base24 scheme"_s};
}

} // namespace

SchemeProblem readScheme(const QString &path, ColorScheme &scheme)
{
    QByteArray content;
    const QString unreadable = readFile(path, content);
    return unreadable.isEmpty() ? readContent(content, scheme) : SchemeProblem{0, 0, unreadable};
}

} // namespace TARN::ThemeTool
