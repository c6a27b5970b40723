// The command that writes the references of variables and properties from the catalogue.

#include "PropertyReference.h"
#include "VariableReference.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <cstdio>

namespace {

struct Page
{
    const char *file; ///< in tools/reference what is filled in, in docs what comes of it
    QString (*make)(const QString &page);
};

constexpr Page pages[] = {
    {"theme-variables.md", TARN::Reference::makeVariableReference},
    {"widget-properties.md", TARN::Reference::makePropertyReference},
};

bool fail(const QString &message)
{
    std::fprintf(stderr, "mox-theme-reference: %s\n", qPrintable(message));
    return false;
}

bool writePage(const QString &root, const Page &page)
{
    const QString file = QString::fromLatin1(page.file);
    QFile source(root + QStringLiteral("/tools/reference/") + file);
    if (!source.open(QIODevice::ReadOnly)) {
        return fail(QStringLiteral("can't read ") + source.fileName());
    }
    QSaveFile reference(root + QStringLiteral("/docs/") + file);
    const QString text = page.make(QString::fromUtf8(source.readAll()));
    if (!reference.open(QIODevice::WriteOnly) || reference.write(text.toUtf8()) < 0 ||
        !reference.commit()) {
        return fail(QStringLiteral("can't write ") + reference.fileName());
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs(
            "usage: mox-theme-reference ROOT\n"
            "           writes docs/theme-variables.md and docs/widget-properties.md of the\n"
            "           checkout ROOT\n",
            stderr);
        return 2;
    }
    bool isWritten = true;
    for (const Page &page : pages) {
        isWritten = writePage(QString::fromLocal8Bit(argv[1]), page) && isWritten;
    }
    return isWritten ? 0 : 1;
}
