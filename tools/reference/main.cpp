// The command that writes the theme author's reference from the catalogue of variables.

#include "Reference.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <cstdio>

namespace {

int fail(const QString &message)
{
    std::fprintf(stderr, "mox-theme-reference: %s\n", qPrintable(message));
    return 1;
}

int writeReference(const QString &root)
{
    QFile introduction(root + QStringLiteral("/tools/reference/introduction.md"));
    if (!introduction.open(QIODevice::ReadOnly)) {
        return fail(QStringLiteral("can't read ") + introduction.fileName());
    }
    QSaveFile reference(root + QStringLiteral("/docs/theme-variables.md"));
    const QString text = TARN::Reference::makeReference(QString::fromUtf8(introduction.readAll()));
    if (!reference.open(QIODevice::WriteOnly) || reference.write(text.toUtf8()) < 0 ||
        !reference.commit()) {
        return fail(QStringLiteral("can't write ") + reference.fileName());
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: mox-theme-reference ROOT\n"
                   "           writes docs/theme-variables.md of the checkout ROOT\n",
                   stderr);
        return 2;
    }
    return writeReference(QString::fromLocal8Bit(argv[1]));
}
