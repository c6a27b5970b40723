#include <catalogue/Catalogue.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtGui/QPalette>
#include <QtTest/QtTest>

#include <support/Text.h>

using TARN::Variable;
using TARN::VariableRole;
namespace Catalogue = TARN::Catalogue;

namespace {

bool isPaletteRole(const QString &role)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    return roles.keyToValue(role.toLatin1().constData()) >= 0;
}

/// Tells whether \a surface names a brush, a colour or a brush of the palette.
bool isSurface(const QString &surface)
{
    const QString palette = text("palette/");
    if (surface.startsWith(palette)) {
        return isPaletteRole(surface.mid(palette.size()));
    }
    return Catalogue::find(text("brushes"), surface) || Catalogue::find(text("colors"), surface);
}

/// Tells whether a thing in \a role has to stand out.
bool standsOut(VariableRole role)
{
    return role == VariableRole::Text || role == VariableRole::Graphic ||
           role == VariableRole::Outline;
}

} // namespace

/// That the catalogue of theme variables is sound.
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreUniqueInTheirGroups()
    {
        QSet<QString> paths;
        for (const Variable &variable : Catalogue::variables()) {
            const QString path = variable.group + QLatin1Char('/') + variable.name;
            QVERIFY2(!paths.contains(path), qPrintable(path));
            paths.insert(path);
        }
        QVERIFY(!paths.isEmpty());
    }

    void everyVariableIsFound()
    {
        for (const Variable &variable : Catalogue::variables()) {
            QCOMPARE(Catalogue::find(variable.group, variable.name), &variable);
        }
    }

    void othersAreNotFound()
    {
        const QString brushes = text("brushes");
        QVERIFY(!Catalogue::find(brushes, text("NoSuchBrush")));
        QVERIFY(!Catalogue::find(brushes, text("mainBrush")));
        QVERIFY(!Catalogue::find(brushes, text("MainBrushDisabled")));
        QVERIFY(!Catalogue::find(brushes, text("MainColor")));
        QVERIFY(!Catalogue::find(brushes, QString()));
        QVERIFY(!Catalogue::find(text("pens"), text("MainBrush")));
    }

    /// Names that begin with "Disabled" are derived, those that end with it are twins.
    void noNameIsReserved()
    {
        for (const Variable &variable : Catalogue::variables()) {
            QVERIFY2(!variable.name.startsWith(text("Disabled")), qPrintable(variable.name));
            QVERIFY2(!variable.name.endsWith(text("Disabled")), qPrintable(variable.name));
        }
    }

    void namesTellTheirGroups()
    {
        for (const Variable &variable : Catalogue::variables()) {
            QCOMPARE(variable.name.endsWith(text("Brush")), variable.group == text("brushes"));
            QCOMPARE(variable.name.endsWith(text("Color")), variable.group == text("colors"));
        }
    }

    void valuesAreNoColors()
    {
        for (const Variable &variable : Catalogue::variables()) {
            const bool isColor =
                variable.group == text("brushes") || variable.group == text("colors");
            QCOMPARE(variable.role != VariableRole::Value, isColor);
            QVERIFY2(isColor || !variable.hasDisabledTwin, qPrintable(variable.name));
        }
    }

    void surfacesExist()
    {
        for (const Variable &variable : Catalogue::variables()) {
            for (const QString &surface : variable.surfaces) {
                QVERIFY2(isSurface(surface), qPrintable(variable.name + text(": ") + surface));
            }
        }
    }

    void whatStandsOutHasASurface()
    {
        for (const Variable &variable : Catalogue::variables()) {
            QVERIFY2(standsOut(variable.role) == !variable.surfaces.isEmpty(),
                     qPrintable(variable.name));
        }
    }

    void meaningsAreSentences()
    {
        const QRegularExpression sentence(text("^[A-Z][^.]*[^. ]\\.$"));
        for (const Variable &variable : Catalogue::variables()) {
            QVERIFY2(sentence.match(variable.meaning).hasMatch(), qPrintable(variable.meaning));
            QVERIFY2(!variable.meaning.contains(text("  ")), qPrintable(variable.meaning));
        }
    }

    void familiesStandTogether()
    {
        QStringList families;
        for (const Variable &variable : Catalogue::variables()) {
            if (families.isEmpty() || families.constLast() != variable.family) {
                families.append(variable.family);
            }
        }
        QVERIFY(!families.contains(QString()));
        QCOMPARE(families.removeDuplicates(), 0);
    }

    void paletteTextsLieOnSurfaces()
    {
        QVERIFY(!Catalogue::paletteTexts().isEmpty());
        for (const TARN::PaletteText &paletteText : Catalogue::paletteTexts()) {
            QVERIFY2(isPaletteRole(paletteText.role), qPrintable(paletteText.role));
            QVERIFY2(!paletteText.surfaces.isEmpty(), qPrintable(paletteText.role));
            for (const QString &surface : paletteText.surfaces) {
                QVERIFY2(isSurface(surface), qPrintable(paletteText.role + surface));
            }
        }
    }

    void everyKindHasAllStates_data()
    {
        QTest::addColumn<QString>("kind");
        for (const QString &kind : Catalogue::kinds()) {
            QTest::newRow(qPrintable(kind.isEmpty() ? text("plain") : kind)) << kind;
        }
    }

    void everyKindHasAllStates()
    {
        QFETCH(QString, kind);
        QStringList states;
        for (const char *check : {"Unchecked", "Checked", "Default"}) {
            for (const char *interaction : {"", "Hover", "Pressed"}) {
                states.append(text(check) + text(interaction));
            }
        }
        QCOMPARE(Catalogue::states(), states);
        for (const char *widget : {"Button", "ToggleButton", "Input"}) {
            for (const QString &state : states) {
                for (const char *field : {"Background", "Border", "Foreground"}) {
                    const QString name = text(widget) + kind + state + text(field) + text("Brush");
                    const Variable *variable = Catalogue::find(text("brushes"), name);
                    QVERIFY2(variable && variable->hasDisabledTwin, qPrintable(name));
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(CatalogueTest)
#include "CatalogueTest.moc"
