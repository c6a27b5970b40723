#include "Checkout.h"
#include "support/Text.h"

#include <resources/ThemeResources.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

#include <algorithm>
#include <icons/IconCheck.h>
#include <icons/IconLibrary.h>

using namespace TARN::Artwork;

namespace {

constexpr int IconCount = 710;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const IconLibrary &library()
{
    static QStringList errors;
    static const IconLibrary sources(checkout("src/resources/artwork/icons"), &errors);
    if (!errors.isEmpty()) {
        qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
    }
    return sources;
}

QStringList svgNames(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

/// Returns the compiled-in files by icon name.
QMap<QString, QByteArray> compiledIn()
{
    QMap<QString, QByteArray> files;
    for (const QString &name : svgNames(text(":/Icons"))) {
        files.insert(name.chopped(4), contents(text(":/Icons/") + name));
    }
    return files;
}

} // namespace

class IconArtworkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesMatchTheirSources();
    void standardIconsMatchTheirSources();
    void themesMatchTheirSources_data();
    void themesMatchTheirSources();
    void allAreCompiledIn();
    void namesThatAreAskedForExist();
    void familiesAreOfUse();
    void sizedNamesExist();
    void everyRuleIsKept();
    void motifsAreUsed();
    void foregroundCanBeRecolored();
    void filesAreSmall();
};

void IconArtworkTest::initTestCase()
{
    // The images come with the library, which is loaded when something of it is used.
    QVERIFY(!TARN::ThemeResources::iconsPrefix().isEmpty());
}

void IconArtworkTest::filesMatchTheirSources()
{
    QStringList errors;
    const FileSet composed = library().compiledInFiles(&errors);
    QCOMPARE(errors, QStringList());
    const QString folder = checkout("src/resources/internalRC/");
    for (auto file = composed.begin(); file != composed.end(); ++file) {
        QVERIFY2(contents(folder + file.key()) == file.value(),
                 qPrintable(file.key() + text(": run \"mox-artwork compose\"")));
    }
    QCOMPARE(svgNames(folder + text("icons")).size(), composed.size() - 1);
}

void IconArtworkTest::standardIconsMatchTheirSources()
{
    QStringList errors;
    const FileSet composed = library().standardIconFiles(&errors);
    QCOMPARE(errors, QStringList());
    const QString folder = checkout("apps/mox-theme/generator/icons/");
    for (auto file = composed.begin(); file != composed.end(); ++file) {
        QVERIFY2(contents(folder + file.key()) == file.value(),
                 qPrintable(file.key() + text(": run \"mox-artwork compose\"")));
    }
    QCOMPARE(library().grounds(), QStringList({text("dark-ground"), text("light-ground")}));
    int count = library().grounds().size();
    for (const QString &ground : library().grounds()) {
        count += svgNames(folder + ground).size();
    }
    QCOMPARE(count, composed.size());
}

void IconArtworkTest::themesMatchTheirSources_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("ground");
    QTest::newRow("Dark") << text("Dark") << text("dark-ground");
    QTest::newRow("HighContrast") << text("HighContrast") << text("dark-ground");
    QTest::newRow("Light") << text("Light") << text("light-ground");
}

void IconArtworkTest::themesMatchTheirSources()
{
    QFETCH(const QString, theme);
    QFETCH(const QString, ground);
    QStringList errors;
    const FileSet composed = library().standardIcons(ground, &errors);
    QCOMPARE(errors, QStringList());
    const QString folder = checkout("themes/") + text("%1/Images/%1/scalable").arg(theme);
    QCOMPARE(svgNames(folder), QStringList(composed.keys()));
    for (auto file = composed.begin(); file != composed.end(); ++file) {
        QVERIFY2(contents(folder + QLatin1Char('/') + file.key()) == file.value(),
                 qPrintable(file.key()));
    }
}

void IconArtworkTest::allAreCompiledIn()
{
    const auto files = compiledIn();
    QCOMPARE(files.size(), IconCount);
    QCOMPARE(QStringList(files.keys()), library().iconNames());
    const QString folder = checkout("src/resources/internalRC/icons/");
    for (auto file = files.begin(); file != files.end(); ++file) {
        QVERIFY2(contents(folder + file.key() + text(".svg")) == file.value(),
                 qPrintable(file.key()));
    }
}

void IconArtworkTest::namesThatAreAskedForExist()
{
    const QStringList names = library().iconNames();
    for (const char *name : {"action.app.maximize",
                             "action.app.minimize",
                             "action.close",
                             "action.copy",
                             "action.delete",
                             "arrow.down.small",
                             "arrow.left.small",
                             "arrow.right.small",
                             "arrow.up.small",
                             "chevron.down",
                             "chevron.left",
                             "chevron.right",
                             "chevron.up",
                             "status.checked.circular.colored",
                             "status.danger.circular.colored",
                             "status.help.circular.colored",
                             "status.info.circular.colored",
                             "status.process.stopped",
                             "status.warning.circular.colored",
                             "tool.magicwand",
                             "tool.pen",
                             "view.calendar",
                             "view.layer",
                             "viewer.view.all"}) {
        QVERIFY2(names.contains(text(name)), name);
    }
}

void IconArtworkTest::familiesAreOfUse()
{
    constexpr int LeastOfAFamily = 10;
    for (const QString &family : iconFamilies()) {
        const int count = library()
                              .iconNames()
                              .filter(QRegularExpression(QLatin1Char('^') + family + text("\\.")))
                              .size();
        QVERIFY2(count >= LeastOfAFamily, qPrintable(family));
    }
    QCOMPARE(iconFamilies().size(), 22);
}

void IconArtworkTest::sizedNamesExist()
{
    for (const char *size : {"\\.24x$", "\\.32x$"}) {
        QVERIFY(!library().iconNames().filter(QRegularExpression(text(size))).isEmpty());
    }
}

void IconArtworkTest::everyRuleIsKept()
{
    const QStringList findings = checkIcons(compiledIn(), library().palette());
    QVERIFY2(findings.isEmpty(), qPrintable(findings.join(QLatin1Char('\n'))));
}

void IconArtworkTest::motifsAreUsed()
{
    QCOMPARE(library().unusedMotifs(), QStringList());
}

void IconArtworkTest::foregroundCanBeRecolored()
{
    const auto files = compiledIn();
    for (auto file = files.begin(); file != files.end(); ++file) {
        QVERIFY2(file.value().contains("stroke=\"#E5EEF4\""), qPrintable(file.key()));
    }
}

void IconArtworkTest::filesAreSmall()
{
    QVector<int> sizes;
    for (const QByteArray &file : compiledIn()) {
        sizes.append(file.size());
    }
    std::sort(sizes.begin(), sizes.end());
    QVERIFY2(sizes.at(sizes.size() / 2) < 600, qPrintable(QString::number(sizes.size() / 2)));
    QVERIFY2(sizes.last() < 4000, qPrintable(QString::number(sizes.last())));
}

QTEST_GUILESS_MAIN(IconArtworkTest)
#include "IconArtworkTest.moc"
