#include <QtTest/QtTest>

#include <import/KdeColors.h>
#include <mox-theme/support/SchemeFiles.h>
#include <support/Text.h>

using namespace TARN::ThemeTool;

namespace {

KdeColors readScheme(const char *name)
{
    KdeColors colors;
    const SchemeProblem problem = readKdeColors(schemeContent(text(name)), colors);
    if (!problem.text.isEmpty()) {
        qFatal("%s: %s", name, qPrintable(problem.text));
    }
    return colors;
}

QString colorOf(const ColorScheme &scheme, const char *variable)
{
    const QColor color = scheme.colors.value(text(variable));
    return color.isValid() ? color.name(QColor::HexArgb) : QString();
}

} // namespace

/// What is read from KDE colour schemes.
class KdeColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isRecognisedByItsContent_data();
    void isRecognisedByItsContent();
    void valuesAreRead_data();
    void valuesAreRead();
    void innerGroupsDoNotReplaceOuterOnes();
    void everyRoleOfAGroupIsRead();
    void nameIsTheUntranslatedOne_data();
    void nameIsTheUntranslatedOne();
    void variablesAreFilled_data();
    void variablesAreFilled();
    void accentIsTheSelection_data();
    void accentIsTheSelection();
    void problemsHaveTheirLine_data();
    void problemsHaveTheirLine();
};

void KdeColorsTest::isRecognisedByItsContent_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isScheme");
    QTest::newRow("group") << QByteArray("[Colors:Window]\nBackgroundNormal=1,2,3\n") << true;
    QTest::newRow("indented") << QByteArray("Orphan=1\r\n  [Colors:View]\r\n") << true;
    QTest::newRow("other groups") << QByteArray("[Desktop Entry]\nName=Colors:View\n") << false;
    QTest::newRow("YAML") << QByteArray("base00: \"112233\"\n") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void KdeColorsTest::isRecognisedByItsContent()
{
    QFETCH(QByteArray, content);
    QTEST(isKdeColors(content), "isScheme");
}

void KdeColorsTest::valuesAreRead_data()
{
    QTest::addColumn<QByteArray>("scheme");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const char *scheme, const char *entry,
                        const char *value) {
        QTest::newRow(name) << QByteArray(scheme) << text(entry) << text(value);
    };
    row("decimals", "HarbourDusk.colors", "Colors:Window/BackgroundNormal", "#ff1f272e");
    row("window manager", "HarbourDusk.colors", "WM/activeBackground", "#ff262f37");
    row("carriage returns", "SlateAndCopper.colors", "Colors:Window/BackgroundNormal", "#ff282a2d");
    row("byte order mark", "SlateAndCopper.colors", "Colors:View/BackgroundNormal", "#ff1e1f22");
    row("alpha", "FrostedGlass.colors", "Colors:Window/BackgroundNormal", "#d7141a22");
    row("no opacity to speak of", "FrostedGlass.colors", "Colors:View/BackgroundAlternate",
        "#0affffff");
    row("colour name", "PosterPaint.colors", "Colors:Window/BackgroundNormal", "#fffffaf0");
    row("colour name in capitals", "PosterPaint.colors", "Colors:View/ForegroundVisited",
        "#ff8b008b");
    row("six digits", "PosterPaint.colors", "Colors:Window/BackgroundAlternate", "#fff4ecd8");
    row("three digits", "PosterPaint.colors", "Colors:View/ForegroundNormal", "#ff222222");
    row("eight digits", "PosterPaint.colors", "Colors:View/ForegroundPositive", "#80006400");
    row("blanks", "LooseLeaves.colors", "WM/activeBackground", "#ff121e1a");
    row("locked entry", "LooseLeaves.colors", "Colors:View/ForegroundVisited", "#ffbe96c8");
    row("later entry", "LooseLeaves.colors", "Colors:View/BackgroundNormal", "#ff0e1412");
    row("group in two parts", "LooseLeaves.colors", "Colors:View/ForegroundPositive", "#ff78c878");
}

void KdeColorsTest::valuesAreRead()
{
    QFETCH(QByteArray, scheme);
    QFETCH(QString, entry);
    const KdeColors colors = readScheme(scheme.constData());
    QVERIFY(colors.colors.contains(entry));
    QTEST(colors.colors.value(entry).name(QColor::HexArgb), "value");
}

void KdeColorsTest::innerGroupsDoNotReplaceOuterOnes()
{
    const KdeColors colors = readScheme("HarbourDusk.colors");
    QCOMPARE(colors.colors.value(text("Colors:Header/BackgroundNormal")), QColor(38, 47, 55));
    QCOMPARE(colors.colors.value(text("Colors:Header/Inactive/BackgroundNormal")),
             QColor(29, 36, 43));
}

void KdeColorsTest::everyRoleOfAGroupIsRead()
{
    const KdeColors colors = readScheme("WritingPaper.colors");
    const QMap<QString, QColor> expected{{text("BackgroundNormal"), QColor(255, 255, 255)},
                                         {text("BackgroundAlternate"), QColor(246, 248, 249)},
                                         {text("ForegroundNormal"), QColor(38, 42, 46)},
                                         {text("ForegroundInactive"), QColor(98, 106, 112)},
                                         {text("ForegroundActive"), QColor(24, 98, 164)},
                                         {text("ForegroundLink"), QColor(24, 98, 164)},
                                         {text("ForegroundVisited"), QColor(112, 62, 140)},
                                         {text("ForegroundNegative"), QColor(176, 32, 44)},
                                         {text("ForegroundNeutral"), QColor(148, 88, 0)},
                                         {text("ForegroundPositive"), QColor(26, 116, 62)},
                                         {text("DecorationFocus"), QColor(70, 146, 206)},
                                         {text("DecorationHover"), QColor(104, 172, 224)}};
    QMap<QString, QColor> view;
    const QString group = text("Colors:View/");
    for (auto color = colors.colors.cbegin(); color != colors.colors.cend(); ++color) {
        if (color.key().startsWith(group)) {
            view.insert(color.key().mid(group.size()), *color);
        }
    }
    QCOMPARE(view, expected);
}

void KdeColorsTest::nameIsTheUntranslatedOne_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QString>("name");
    QTest::newRow("name") << QByteArray("[General]\nName=Harbour\n") << text("Harbour");
    QTest::newRow("translated") << QByteArray("[General]\nName=Harbour\nName[de]=Hafen\n")
                                << text("Harbour");
    QTest::newRow("name last") << QByteArray("[General]\nColorScheme=Id\nName=Harbour\n")
                               << text("Harbour");
    QTest::newRow("name first") << QByteArray("[General]\nName=Harbour\nColorScheme=Id\n")
                                << text("Harbour");
    QTest::newRow("file name only") << QByteArray("[General]\nColorScheme=Id\n") << text("Id");
    QTest::newRow("letters") << QByteArray("[General]\nName=Br\xC3\xBC"
                                           "cke\n")
                             << QString::fromUtf8("Br\xC3\xBC"
                                                  "cke");
    QTest::newRow("broken group") << QByteArray("[General\nName=Harbour\n") << QString();
    QTest::newRow("elsewhere") << QByteArray("[Other]\nName=Harbour\n") << QString();
}

void KdeColorsTest::nameIsTheUntranslatedOne()
{
    QFETCH(QByteArray, head);
    KdeColors colors;
    const SchemeProblem problem =
        readKdeColors(head + "[Colors:Window]\nBackgroundNormal=1,2,3\n", colors);
    QCOMPARE(problem.text, QString());
    QTEST(colors.name, "name");
    QCOMPARE(colorScheme(colors).name, colors.name);
}

void KdeColorsTest::variablesAreFilled_data()
{
    QTest::addColumn<QByteArray>("scheme");
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *scheme, const char *variable, const char *value) {
        QTest::addRow("%s %s", scheme, variable)
            << QByteArray(scheme) << QByteArray(variable) << text(value);
    };
    const char *dusk = "HarbourDusk.colors";
    row(dusk, "BackgroundColor", "#ff1f272e");
    row(dusk, "BackgroundSubLevel1Color", "#ff262f37");
    row(dusk, "BackgroundSubLevel2Color", "#ff262f37");
    row(dusk, "InputBackgroundColor", "#ff151a1f");
    row(dusk, "ItemViewBackgroundColor", "#ff151a1f");
    row(dusk, "ItemViewAlternateBackgroundColor", "#ff1b2127");
    row(dusk, "ButtonBackgroundColor", "#ff2c363f");
    row(dusk, "ToolTipBackgroundColor", "#ff252d35");
    row(dusk, "ForegroundColor", "#ffe2e8ec");
    row(dusk, "ForegroundSubLevel1Color", "#ff94a0aa");
    row(dusk, "ForegroundLinkColor", "#ff60ace2");
    row(dusk, "ForegroundLinkVisitedColor", "#ffb68ed6");
    row(dusk, "StatusDangerColor", "#ffe05c62");
    row(dusk, "StatusWarningColor", "#ffe8a24a");
    row(dusk, "StatusSuccessColor", "#ff5cc07c");
    row("Remnant.colors", "BackgroundColor", "#ff18141c");
    row("Remnant.colors", "ForegroundColor", "#ffded6e4");
    row("Remnant.colors", "ForegroundLinkColor", "");
    row("Remnant.colors", "ButtonBackgroundColor", "");
    row("FrostedGlass.colors", "InputBackgroundColor", "#5a000000");
}

void KdeColorsTest::variablesAreFilled()
{
    QFETCH(QByteArray, scheme);
    QFETCH(QByteArray, variable);
    QTEST(colorOf(colorScheme(readScheme(scheme.constData())), variable.constData()), "value");
}

void KdeColorsTest::accentIsTheSelection_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QColor>("accent");
    QTest::newRow("selection") << QByteArray("[Colors:View]\nDecorationFocus=4,5,6\n"
                                             "[Colors:Selection]\nBackgroundNormal=7,8,9\n")
                               << QColor(7, 8, 9);
    QTest::newRow("focus") << QByteArray("[Colors:View]\nForegroundLink=1,2,3\n"
                                         "DecorationFocus=4,5,6\n")
                           << QColor(4, 5, 6);
    QTest::newRow("link") << QByteArray("[Colors:View]\nForegroundLink=1,2,3\n") << QColor(1, 2, 3);
    QTest::newRow("none") << QByteArray("[Colors:View]\nForegroundNormal=1,2,3\n") << QColor();
}

void KdeColorsTest::accentIsTheSelection()
{
    QFETCH(QByteArray, content);
    KdeColors colors;
    const SchemeProblem problem =
        readKdeColors("[Colors:Window]\nBackgroundNormal=1,1,1\n" + content, colors);
    QCOMPARE(problem.text, QString());
    QTEST(colorScheme(colors).accent, "accent");
}

void KdeColorsTest::problemsHaveTheirLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const QByteArray &entry, const char *value) {
        QTest::newRow(name) << "[Colors:Window]\r\nBackgroundNormal=1,2,3\r\n" + entry << 3
                            << text("%1 is not a colour").arg(text(value));
    };
    row("word", "ForegroundNormal=greenish", "ForegroundNormal: \"greenish\"");
    row("two numbers", "ForegroundNormal=1,2", "ForegroundNormal: \"1,2\"");
    row("five numbers", "ForegroundNormal=1,2,3,4,5", "ForegroundNormal: \"1,2,3,4,5\"");
    row("too large", "ForegroundNormal=1,256,3", "ForegroundNormal: \"1,256,3\"");
    row("negative", "DecorationHover=1,2,-3", "DecorationHover: \"1,2,-3\"");
    row("no number", "ForegroundLink=1,2,c", "ForegroundLink: \"1,2,c\"");
    row("broken digits", "ForegroundLink=#12345g", "ForegroundLink: \"#12345g\"");
    QTest::newRow("window manager") << QByteArray("[Colors:View]\nBackgroundNormal=1,2,3\n\n"
                                                  "[WM]\nactiveBackground=dusky\n")
                                    << 5 << text("activeBackground: \"dusky\" is not a colour");
    QTest::newRow("no background") << QByteArray("[Colors:Window]\nForegroundNormal=1,2,3\n") << 0
                                   << text("no background colour is given");
}

void KdeColorsTest::problemsHaveTheirLine()
{
    QFETCH(QByteArray, content);
    KdeColors colors;
    const SchemeProblem problem = readKdeColors(content, colors);
    QTEST(problem.text, "problem");
    QTEST(problem.line, "line");
    QCOMPARE(problem.column, 0);
}

QTEST_GUILESS_MAIN(KdeColorsTest)
#include "KdeColorsTest.moc"
