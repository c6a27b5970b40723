#include <catalogue/Catalogue.h>
#include <common_utils/Contrast.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <generator/recipes/ThemeDefinition.h>
#include <mox-theme/support/DefinedColors.h>

using namespace TARN;
using namespace TARN::ThemeTool;

Q_DECLARE_METATYPE(TARN::ThemeTool::Base)

namespace {

const QString disabledSuffix = QStringLiteral("Disabled");

Tokens tokensOf(Base base, const QColor &accent)
{
    Tokens tokens;
    tokens.name = QStringLiteral("Sample");
    tokens.base = base;
    tokens.accent = accent;
    return tokens;
}

/// Returns the contrast that a variable of \a role needs.
double neededContrast(VariableRole role, double text, double graphic)
{
    switch (role) {
    case VariableRole::Text:
        return text;
    case VariableRole::Graphic:
    case VariableRole::Outline:
        return graphic;
    default:
        return 1;
    }
}

/// Returns the pairs of \a values that are less legible than they must be.
QStringList illegiblePairs(const DefinedColors &values, double text, double graphic,
                           double disabled)
{
    QStringList pairs;
    const auto compare = [&](const QString &name, const QString &surface, double needed) {
        const QColor ground = values.seen(surface);
        const double ratio = Helpers::contrastRatio(values.seen(name, ground), ground);
        if (!values.has(name) || !values.has(surface) || ratio < needed) {
            pairs += QStringLiteral("%1 on %2: %3").arg(name, surface).arg(ratio, 0, 'f', 2);
        }
    };
    for (const Variable &variable : Catalogue::variables()) {
        for (const QString &surface : variable.surfaces) {
            compare(variable.name, surface, neededContrast(variable.role, text, graphic));
            if (variable.hasDisabledTwin && variable.role == VariableRole::Text) {
                const bool hasTwin = values.has(surface + disabledSuffix);
                compare(variable.name + disabledSuffix,
                        hasTwin ? surface + disabledSuffix : surface, disabled);
            }
        }
    }
    for (const PaletteText &role : Catalogue::paletteTexts()) {
        for (const QString &surface : role.surfaces) {
            compare(QStringLiteral("palette/") + role.role, surface, text);
        }
    }
    return pairs;
}

} // namespace

class ThemeDefinitionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAccentIsLegible_data();
    void everyAccentIsLegible();
    void definesEveryVariableAndNoOther_data() { addBaseRows(); }
    void definesEveryVariableAndNoOther();

private:
    static void addBaseRows();
};

void ThemeDefinitionTest::addBaseRows()
{
    QTest::addColumn<Base>("base");
    QTest::newRow("dark") << Base::Dark;
    QTest::newRow("light") << Base::Light;
    QTest::newRow("high contrast") << Base::HighContrast;
}

void ThemeDefinitionTest::everyAccentIsLegible_data()
{
    QTest::addColumn<Base>("base");
    QTest::addColumn<double>("text");
    QTest::addColumn<double>("graphic");
    QTest::newRow("dark") << Base::Dark << 4.5 << 3.0;
    QTest::newRow("light") << Base::Light << 4.5 << 3.0;
    QTest::newRow("high contrast") << Base::HighContrast << 7.0 << 3.0;
}

void ThemeDefinitionTest::everyAccentIsLegible()
{
    QFETCH(const Base, base);
    QFETCH(const double, text);
    QFETCH(const double, graphic);
    QVector<QColor> accents{Qt::white, Qt::black,  Qt::red, Qt::green,
                            Qt::blue,  Qt::yellow, Qt::gray};
    QRandomGenerator random(1);
    for (int i = 0; i < 200; ++i) {
        accents += QColor::fromRgb(random.generate());
    }
    for (const QColor &accent : accents) {
        const DefinedColors values(defineTheme(tokensOf(base, accent)));
        const QStringList pairs = illegiblePairs(values, text, graphic, 2.0);
        QVERIFY2(pairs.isEmpty(), qPrintable(accent.name() + QStringLiteral(": ") +
                                             pairs.join(QStringLiteral("; "))));
    }
}

void ThemeDefinitionTest::definesEveryVariableAndNoOther()
{
    QFETCH(const Base, base);
    const ThemeDefinition definition = defineTheme(tokensOf(base, QColor(0x3d, 0x8f, 0xd1)));
    QSet<QString> wanted;
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == QStringLiteral("brushes")) {
            wanted += variable.name;
            if (variable.hasDisabledTwin) {
                wanted += variable.name + disabledSuffix;
            }
        }
    }
    QSet<QString> defined;
    for (const auto &section : definition.brushes) {
        for (const BrushEntry &entry : section.entries) {
            QVERIFY2(!defined.contains(entry.name), qPrintable(entry.name));
            defined += entry.name;
        }
    }
    QCOMPARE(defined, wanted);
}

QTEST_GUILESS_MAIN(ThemeDefinitionTest)
#include "ThemeDefinitionTest.moc"
