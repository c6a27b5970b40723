// The command that makes the compiled-in icons and cursors of their sources.

#include "cursors/CursorFile.h"
#include "icons/ContactSheet.h"
#include "icons/IconCheck.h"
#include "icons/IconLibrary.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QGuiApplication>

#include <cstdio>

using namespace TARN::Artwork;

namespace {

constexpr char Usage[] =
    "usage: mox-artwork compose ROOT\n"
    "           makes the compiled-in icons and cursors, and the icons that mox-theme\n"
    "           writes into themes\n"
    "       mox-artwork check ROOT [PATTERN]\n"
    "           tells what the icons whose names match do wrong, and which look alike\n"
    "       mox-artwork sheet ROOT PATTERN PICTURE [dark|light|overview]\n"
    "           shows the icons whose names match, enlarged, or all in their own size\n"
    "ROOT is the checkout.\n";

// Such pairs are told, to be looked at, before they are so alike that they fail.
constexpr double NoticeableLikeness = 0.12;

int report(const QStringList &lines)
{
    for (const QString &line : lines) {
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
    return lines.isEmpty() ? 0 : 1;
}

QMap<QString, QByteArray> matchingIcons(const IconLibrary &library, const QString &pattern,
                                        QStringList *errors)
{
    QMap<QString, QByteArray> icons;
    for (const QString &name : library.iconNames().filter(QRegularExpression(pattern))) {
        icons.insert(name, library.icon(name, errors));
    }
    return icons;
}

int compose(const IconLibrary &library, const QString &root)
{
    QStringList errors;
    FileSet files = library.compiledInFiles(&errors);
    const FileSet cursors =
        cursorFiles(root + QStringLiteral("/src/resources/artwork/cursors"), &errors);
    for (auto file = cursors.begin(); file != cursors.end(); ++file) {
        files.insert(file.key(), file.value());
    }
    const FileSet standardIcons = library.standardIconFiles(&errors);
    if (!errors.isEmpty()) {
        return report(errors);
    }
    errors = writeFiles(root + QStringLiteral("/src/resources/internalRC"), files);
    errors += writeFiles(root + QStringLiteral("/apps/mox-theme/generator/icons"), standardIcons);
    return report(errors);
}

int check(const IconLibrary &library, const QString &pattern)
{
    QStringList findings;
    const auto icons = matchingIcons(library, pattern, &findings);
    findings += checkIcons(icons, library.palette());
    report(similarIcons(icons, NoticeableLikeness));
    std::printf("%d icons, %d findings\n", icons.size(), findings.size());
    return report(findings);
}

int sheet(const IconLibrary &library, const QStringList &arguments)
{
    QStringList errors;
    const auto icons = matchingIcons(library, arguments.at(0), &errors);
    SheetLook look{Qt::black, QColor(0xE5EEF4), 6, true};
    look.background = QColor(0x20282F);
    if (arguments.value(2) == u"light") {
        look.background = QColor(0xF4F6F8);
        look.ink = QColor(0x272E34);
    } else if (arguments.value(2) == u"overview") {
        look.large = false;
        look.columns = 20;
    }
    if (!contactSheet(icons, look).save(arguments.at(1))) {
        errors.append(QStringLiteral("can't write ") + arguments.at(1));
    }
    return report(errors);
}

int run(const QStringList &arguments)
{
    const QString command = arguments.value(1);
    const QString root = arguments.value(2);
    QStringList errors;
    const IconLibrary library(root + QStringLiteral("/src/resources/artwork/icons"), &errors);
    if (!errors.isEmpty()) {
        return report(errors);
    }
    if (command == u"compose") {
        return compose(library, root);
    }
    if (command == u"check") {
        return check(library, arguments.value(3));
    }
    return sheet(library, arguments.mid(3));
}

bool isUsable(const QStringList &arguments)
{
    static const QMap<QString, QPair<int, int>> argumentCounts = {
        {QStringLiteral("compose"), {3, 3}},
        {QStringLiteral("check"), {3, 4}},
        {QStringLiteral("sheet"), {5, 6}}};
    const auto counts = argumentCounts.value(arguments.value(1), {0, -1});
    return arguments.size() >= counts.first && arguments.size() <= counts.second;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (!isUsable(QCoreApplication::arguments())) {
        std::fputs(Usage, stderr);
        return 2;
    }
    return run(QCoreApplication::arguments());
}
