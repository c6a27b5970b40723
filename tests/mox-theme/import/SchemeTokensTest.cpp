#include <common_utils/Contrast.h>

#include <QtTest/QtTest>

#include <color/Tones.h>
#include <generator/recipes/ThemeDefinition.h>
#include <import/Base16.h>
#include <import/KdeColors.h>
#include <import/SchemeTokens.h>
#include <mox-theme/support/SchemeFiles.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;
using TARN::Helpers::contrastRatio;

namespace {

constexpr double TextRatio = 4.5;

/// Returns the test scheme \a name.
ColorScheme schemeNamed(const QString &name)
{
    const QByteArray content = schemeContent(name);
    if (isKdeColors(content)) {
        KdeColors colors;
        readKdeColors(content, colors);
        return colorScheme(colors);
    }
    Base16 scheme;
    readBase16(content, scheme);
    return colorScheme(scheme);
}

Tokens tokensOf(const QString &name)
{
    return tokensFrom(schemeNamed(name), text("Test"));
}

QString override(const Tokens &tokens, const char *variable)
{
    return tokens.colors.value(text(variable));
}

/// Returns the value of \a variable in the theme that \a tokens make; invalid when there is none.
QColor shown(const Tokens &tokens, const QString &variable)
{
    const ThemeDefinition definition = defineTheme(tokens);
    for (const auto &section : definition.colors) {
        for (const ColorEntry &entry : section.entries) {
            if (entry.name == variable) {
                return entry.color;
            }
        }
    }
    return {};
}

} // namespace

/// The tokens that a scheme becomes.
class SchemeTokensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void baseFollowsTheWindow_data();
    void baseFollowsTheWindow();
    void seedsComeFromTheScheme();
    void translucentColorsAreThoseThatAreSeen();
    void aSchemeWithoutAccentTakesItsText();
    void legibleSurfacesStayAsTheyAre_data();
    void legibleSurfacesStayAsTheyAre();
    void legibleTextStaysAsItIs();
    void faintTextIsMadeLegible_data();
    void faintTextIsMadeLegible();
    void mildSurfacesAreMovedOnlyAsFarAsNeeded_data();
    void mildSurfacesAreMovedOnlyAsFarAsNeeded();
    void surfacesOfTheOppositeKindAreLeftOut();
    void seriesCarryText();
    void onlyDifferencesAreToldOf();
    void overridesAreSound_data();
    void overridesAreSound();
};

void SchemeTokensTest::baseFollowsTheWindow_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("black") << QColor(Qt::black) << true;
    QTest::newRow("white") << QColor(Qt::white) << false;
    // Where black and white text are equally legible.
    QTest::newRow("darker grey") << QColor(116, 116, 116) << true;
    QTest::newRow("lighter grey") << QColor(119, 119, 119) << false;
    QTest::newRow("blue") << QColor(0, 0, 255) << true;
    QTest::newRow("yellow") << QColor(255, 255, 0) << false;
}

void SchemeTokensTest::baseFollowsTheWindow()
{
    QFETCH(QColor, window);
    QFETCH(bool, isDark);
    ColorScheme scheme;
    scheme.colors.insert(text("BackgroundColor"), window);
    scheme.accent = QColor(60, 140, 210);
    const Tokens tokens = tokensFrom(scheme, text("Test"));
    QCOMPARE(tokens.base == Base::Dark, isDark);
    QCOMPARE(tokens.base == Base::Light, !isDark);
}

void SchemeTokensTest::seedsComeFromTheScheme()
{
    const Tokens kde = tokensFrom(schemeNamed(text("HarbourDusk.colors")), text("My harbour"));
    QCOMPARE(kde.name, text("My harbour"));
    QCOMPARE(kde.accent, QColor(34, 104, 158));
    QCOMPARE(kde.neutral, QColor(31, 39, 46));
    const Tokens base16 = tokensOf(text("OatField.yaml"));
    QCOMPARE(base16.accent, QColor(0x24, 0x68, 0xab));
    QCOMPARE(base16.neutral, QColor(0xf7, 0xf5, 0xf0));
    QCOMPARE(base16.brushes.size(), 0);
}

void SchemeTokensTest::translucentColorsAreThoseThatAreSeen()
{
    const Tokens tokens = tokensOf(text("FrostedGlass.colors"));
    const QColor window(20, 26, 34);
    QCOMPARE(override(tokens, "BackgroundColor"), window.name());
    QCOMPARE(override(tokens, "InputBackgroundColor"),
             mixed(QColor(0, 0, 0, 90), 1, window).name());
    QCOMPARE(tokens.accent, mixed(QColor(70, 160, 230, 170), 1, window));
    QCOMPARE(tokens.neutral.alpha(), 255);
}

void SchemeTokensTest::aSchemeWithoutAccentTakesItsText()
{
    QCOMPARE(tokensOf(text("Remnant.colors")).accent, QColor(222, 214, 228));
}

void SchemeTokensTest::legibleSurfacesStayAsTheyAre_data()
{
    QTest::addColumn<QMap<QString, QString>>("surfaces");
    QTest::newRow("HarbourDusk.colors")
        << QMap<QString, QString>{{text("BackgroundColor"), text("#1f272e")},
                                  {text("BackgroundSubLevel1Color"), text("#262f37")},
                                  {text("ButtonBackgroundColor"), text("#2c363f")},
                                  {text("InputBackgroundColor"), text("#151a1f")},
                                  {text("ItemViewBackgroundColor"), text("#151a1f")},
                                  {text("ItemViewAlternateBackgroundColor"), text("#1b2127")},
                                  {text("ToolTipBackgroundColor"), text("#252d35")}};
    QTest::newRow("WritingPaper.colors")
        << QMap<QString, QString>{{text("BackgroundColor"), text("#eef1f3")},
                                  {text("BackgroundSubLevel1Color"), text("#e4e8eb")},
                                  {text("BackgroundSubLevel2Color"), text("#dee3e7")},
                                  {text("InputBackgroundColor"), text("#ffffff")}};
    QTest::newRow("LanternSmoke.yaml")
        << QMap<QString, QString>{{text("BackgroundColor"), text("#1a1f24")},
                                  {text("BackgroundUpLevel1Color"), text("#242b32")},
                                  {text("BackgroundSubLevel1Color"), text("#12161a")},
                                  {text("BackgroundSubLevel2Color"), text("#0b0e11")},
                                  {text("ButtonBackgroundColor"), text("#333c46")}};
}

void SchemeTokensTest::legibleSurfacesStayAsTheyAre()
{
    using Surfaces = QMap<QString, QString>;
    QFETCH(Surfaces, surfaces);
    const Tokens tokens = tokensOf(text(QTest::currentDataTag()));
    for (auto surface = surfaces.cbegin(); surface != surfaces.cend(); ++surface) {
        QCOMPARE(tokens.colors.value(surface.key()), *surface);
        QCOMPARE(shown(tokens, surface.key()), QColor(*surface));
    }
}

void SchemeTokensTest::legibleTextStaysAsItIs()
{
    QCOMPARE(override(tokensOf(text("HarbourDusk.colors")), "ForegroundColor"), text("#e2e8ec"));
    QCOMPARE(override(tokensOf(text("WritingPaper.colors")), "ForegroundColor"), text("#262a2e"));
    QCOMPARE(override(tokensOf(text("PlumOrchard.yaml")), "StatusWarningColor"), text("#ecc878"));
}

void SchemeTokensTest::faintTextIsMadeLegible_data()
{
    QTest::addColumn<QString>("variable");
    for (const char *variable : {"ForegroundColor", "ForegroundSubLevel1Color",
                                 "ForegroundLinkColor", "ForegroundLinkVisitedColor",
                                 "StatusDangerColor", "StatusWarningColor", "StatusSuccessColor"}) {
        QTest::newRow(variable) << text(variable);
    }
}

void SchemeTokensTest::faintTextIsMadeLegible()
{
    QFETCH(QString, variable);
    for (const char *name : {"ChalkDust.colors", "Whisper.yaml", "FogBank.colors"}) {
        const Tokens tokens = tokensOf(text(name));
        const QColor color = shown(tokens, variable);
        QVERIFY(color.isValid());
        for (const char *surface :
             {"BackgroundColor", "BackgroundUpLevel1Color", "BackgroundSubLevel1Color",
              "ItemViewBackgroundColor", "InputBackgroundColor", "ToolTipBackgroundColor"}) {
            const double ratio = contrastRatio(color, shown(tokens, text(surface)));
            QVERIFY2(ratio >= TextRatio,
                     qPrintable(text("%1 on %2: %3").arg(text(name), text(surface)).arg(ratio)));
        }
    }
}

void SchemeTokensTest::mildSurfacesAreMovedOnlyAsFarAsNeeded_data()
{
    QTest::addColumn<QColor>("window");
    QTest::newRow("FogBank.colors") << QColor(112, 111, 108);
    QTest::newRow("Overcast.yaml") << QColor(0x80, 0x80, 0x80);
}

void SchemeTokensTest::mildSurfacesAreMovedOnlyAsFarAsNeeded()
{
    QFETCH(QColor, window);
    const Tokens tokens = tokensOf(text(QTest::currentDataTag()));
    const QColor moved(override(tokens, "BackgroundColor"));
    QVERIFY(moved.isValid());
    QVERIFY(moved != window);
    // Nowhere near black or white, where any text would be legible.
    const double lightness = toOklch(moved).lightness;
    QVERIFY2(lightness > 0.3 && lightness < 0.9, qPrintable(moved.name()));
    QVERIFY(qAbs(toOklch(moved).hue - toOklch(window).hue) < 12 || toOklch(window).chroma < 0.005);
}

void SchemeTokensTest::surfacesOfTheOppositeKindAreLeftOut()
{
    const Tokens tokens = tokensOf(text("PianoKeys.colors"));
    QCOMPARE(tokens.base, Base::Light);
    QCOMPARE(override(tokens, "BackgroundColor"), text("#ecebf0"));
    for (const char *variable :
         {"BackgroundSubLevel1Color", "BackgroundSubLevel2Color", "ToolTipBackgroundColor"}) {
        QCOMPARE(override(tokens, variable), QString());
    }
}

void SchemeTokensTest::seriesCarryText()
{
    for (const char *name : {"HarbourNight.yaml", "OatField.yaml"}) {
        const Tokens tokens = tokensOf(text(name));
        const QColor foreground = shown(tokens, text("ForegroundColor"));
        const Oklch blue = toOklch(schemeNamed(text(name)).accent);
        const QColor first(override(tokens, "Series01Color"));
        QVERIFY(first.isValid());
        QVERIFY(qAbs(toOklch(first).hue - blue.hue) < 5);
        for (int i = 1; i <= 8; ++i) {
            const QColor series = shown(tokens, text("Series0%1Color").arg(i));
            QVERIFY(contrastRatio(foreground, series) >= TextRatio);
        }
    }
}

void SchemeTokensTest::onlyDifferencesAreToldOf()
{
    const ColorScheme scheme = schemeNamed(text("PianoKeys.colors"));
    const Tokens tokens = tokensFrom(scheme, text("Test"));
    QStringList variables;
    for (const MovedColor &moved : movedColors(scheme, defineTheme(tokens))) {
        variables.append(moved.variable);
        QVERIFY(moved.from != moved.to);
        QCOMPARE(moved.to, shown(tokens, moved.variable));
    }
    QVERIFY(variables.contains(text("ToolTipBackgroundColor")));
    QVERIFY(!variables.contains(text("BackgroundColor")));
    QVERIFY(!variables.contains(text("ItemViewBackgroundColor")));
}

void SchemeTokensTest::overridesAreSound_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : schemeNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void SchemeTokensTest::overridesAreSound()
{
    QFETCH(QString, name);
    const Tokens tokens = tokensOf(name);
    QCOMPARE(overrideProblem(tokens).text, QString());
    QVERIFY(tokens.colors.contains(text("BackgroundColor")));
    for (const QString &color : tokens.colors) {
        QCOMPARE(QColor(color).alpha(), 255);
    }
}

QTEST_GUILESS_MAIN(SchemeTokensTest)
#include "SchemeTokensTest.moc"
