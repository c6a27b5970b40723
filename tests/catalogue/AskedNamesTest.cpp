#include "catalogue/ButtonBrushTour.h"
#include "catalogue/GalleryTour.h"
#include "catalogue/LookUpRecorder.h"

#include <catalogue/Catalogue.h>
#include <theme/Theme.h>
#include <theme/ThemeFactory.h>

#include <QtCore/QDirIterator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <support/Text.h>

using TARN::Variable;
namespace Catalogue = TARN::Catalogue;

namespace {

const QString disabledSuffix = text("Disabled");

void applyTheme(const QString &name)
{
    auto *factory = TARN::ThemeFactory::getInstance();
    factory->setThemesRepositoryPath(QStringLiteral(MOX_CHECKOUT "/themes"));
    TARN::Theme *theme = factory->getTheme(name);
    QVERIFY(theme);
    theme->customize(qApp);
}

QString pathOf(const Variable &variable)
{
    return variable.group + QLatin1Char('/') + variable.name;
}

/// Returns the paths of all variables that are in the catalogue, those of disabled twins included.
QSet<QString> knownPaths()
{
    QSet<QString> paths;
    for (const Variable &variable : Catalogue::variables()) {
        paths.insert(pathOf(variable));
        if (variable.hasDisabledTwin) {
            paths.insert(pathOf(variable) + disabledSuffix);
        }
    }
    return paths;
}

/// Returns those of \a paths that are not in the catalogue, as text; empty when all are.
QString unknownOf(const QSet<QString> &paths)
{
    QStringList unknown;
    for (const QString &path : paths - knownPaths()) {
        // Who lists a group asks for no name.
        if (!path.endsWith(QLatin1Char('/'))) {
            unknown.append(path);
        }
    }
    unknown.sort();
    return unknown.join(QLatin1Char('\n'));
}

/// Returns the variables whose names stand in the catalogue as they are, not composed of words.
QVector<Variable> namedVariables()
{
    const QStringList names{
#define MOX_BRUSH(name, twin, role, surfaces, meaning) text("brushes/" #name),
#define MOX_COLOR(name, twin, role, surfaces, meaning) text("colors/" #name),
#define MOX_VALUE(group, name, meaning) text(#group "/" #name),
#include <catalogue/Variables.def>
    };
    QVector<Variable> named;
    for (const Variable &variable : Catalogue::variables()) {
        if (names.contains(pathOf(variable))) {
            named.append(variable);
        }
    }
    return named;
}

/// Returns what is asked for at run time: by the gallery's pages, and by buttons of all forms.
QSet<QString> askedPaths()
{
    const LookUpRecorder recorder;
    applyTheme(text("Dark"));
    tourGallery();
    tourButtonBrushes();
    return recorder.paths();
}

QByteArray contentsBelow(const QString &folder, const QStringList &patterns)
{
    QByteArray contents;
    QDirIterator files(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.fileName().contains(text("/catalogue/")) && file.open(QIODevice::ReadOnly)) {
            contents += file.readAll();
        }
    }
    return contents;
}

/// Tells whether the library's sources or the compiled-in stylesheets ask for \a variable, also
/// where the gallery does not lead.
bool isInSources(const Variable &variable)
{
    const QStringList sourceFiles{text("*.cpp"), text("*.h")};
    static const QString sources =
        QString::fromUtf8(contentsBelow(text(MOX_CHECKOUT "/src/style"), sourceFiles) +
                          contentsBelow(text(MOX_CHECKOUT "/src/resources"), sourceFiles));
    static const QString styleSheets =
        QString::fromUtf8(contentsBelow(text(":/TARN/ThemeLibrary"), {text("*.qss")}));
    static const QMap<QString, QString> patterns{{text("brushes"), text("\\bBrushName::%1\\b")},
                                                 {text("colors"), text("\\bColorName::%1\\b")}};
    const QString pattern =
        patterns.value(variable.group, text("\\bQStringLiteral\\(\"%1\"\\)")).arg(variable.name);
    return sources.contains(QRegularExpression(pattern)) ||
           styleSheets.contains(QLatin1Char('@') + pathOf(variable) + QLatin1Char('@'));
}

} // namespace

/// That the catalogue holds what is asked for, and nothing else.
class AskedNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void galleryAsksForKnownVariables_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::newRow("Dark") << text("Dark");
        QTest::newRow("Light") << text("Light");
    }

    void galleryAsksForKnownVariables()
    {
        QFETCH(QString, theme);
        const LookUpRecorder recorder;
        applyTheme(theme);
        tourGallery();
        for (const char *path : {"brushes/ItemViewBackgroundBrush", "fonts/medium",
                                 "colors/MainColor", "brushes/ForegroundBrushDisabled"}) {
            QVERIFY2(recorder.paths().contains(text(path)), path);
        }
        QCOMPARE(unknownOf(recorder.paths()), QString());
    }

    void buttonsAskForKnownVariables()
    {
        const LookUpRecorder recorder;
        tourButtonBrushes();
        QCOMPARE(unknownOf(recorder.paths()), QString());
    }

    void composedVariablesAreAskedFor()
    {
        const LookUpRecorder recorder;
        tourButtonBrushes();
        QSet<QString> composed = knownPaths();
        for (const Variable &variable : namedVariables()) {
            composed.remove(pathOf(variable));
            composed.remove(pathOf(variable) + disabledSuffix);
        }
        QVERIFY(!composed.isEmpty());
        QCOMPARE((composed - recorder.paths()).values(), QStringList());
    }

    void namedVariablesAreAskedFor()
    {
        const QSet<QString> asked = askedPaths();
        QStringList unasked;
        QStringList unaskedTwins;
        for (const Variable &variable : namedVariables()) {
            const QString path = pathOf(variable);
            if (!asked.contains(path) && !isInSources(variable)) {
                unasked.append(path);
            } else if (variable.hasDisabledTwin && !asked.contains(path + disabledSuffix)) {
                unaskedTwins.append(path);
            }
        }
        QCOMPARE(unasked.join(QLatin1Char('\n')), QString());
        QCOMPARE(unaskedTwins.join(QLatin1Char('\n')), QString());
    }
};

QTEST_MAIN(AskedNamesTest)
#include "AskedNamesTest.moc"
