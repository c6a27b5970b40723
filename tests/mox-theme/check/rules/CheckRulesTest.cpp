#include <QtTest/QtTest>

#include <algorithm>
#include <check/model/RuleTable.h>
#include <mox-theme/support/SoundTheme.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

const QString config = QStringLiteral("config.xml");
const QString palette = QStringLiteral("qpaletteMapping.xml");
const QString description = QStringLiteral("theme.xml");

} // namespace

/// What each rule finds in a theme that breaks it, and nothing else.
class CheckRulesTest : public QObject
{
    Q_OBJECT

private:
    /// Spoils the row's file, and returns the findings.
    static QVector<Finding> spoiled(SoundTheme &theme)
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        theme.replace(file, before, after);
        return theme.check();
    }

    /// Adds a row: \a after in place of \a before gives the one finding \a rule at \a marker, whose
    /// sentence holds \a text and whose suggestion holds \a suggestion.
    static void add(const char *name, const QString &file, const QByteArray &before,
                    const QByteArray &after, const char *rule, const QByteArray &marker,
                    const char *text, const char *suggestion = "")
    {
        QTest::newRow(name) << file << before << after << QString::fromLatin1(rule) << marker
                            << QString::fromLatin1(text) << QString::fromLatin1(suggestion);
    }

    static void addColorRows()
    {
        const QByteArray grey = R"(<Color name="Grey">#808080</Color>)";
        add("color that is none", config, grey, R"(<Color name="Grey">gren</Color>)",
            "unknown-color", R"(<Color name="Grey">)", R"("gren" is no colour; the )", "green");
        add("color without a hash", config, grey, R"(<Color name="Grey">808080</Color>)",
            "unknown-color", R"(<Color name="Grey">)", R"("808080" is no colour)", "#808080");
        add("color of a blank", config, grey, R"( <Color name="Grey">#808080 </Color>)",
            "unknown-color", R"(<Color name="Grey">)", "is no colour", "#808080");
        add("color twice", config, grey,
            grey + "\n  "
                   R"(<Color name="Grey" >red</Color>)",
            "duplicate-entry", R"(<Color name="Grey" >)", R"("Grey" has been defined before)",
            "Remove");
        add("derived name after its original", config, grey,
            grey + R"(<Color name="DisabledGrey">red</Color>)", "duplicate-entry",
            R"(<Color name="DisabledGrey">)", R"(the disabled variant of "Grey")", "at the end");
        add("derived name before its original", config, grey,
            R"(<Color name="DisabledGrey">red</Color>)" + grey, "unused-entry",
            R"(<Color name="DisabledGrey">)", R"(derives from "Grey")");
        add("color without a name", config, grey, grey + "<Color>red</Color>", "faulty-entry",
            "<Color>red", R"(no attribute "name"; the )");
        add("color of an empty name", config, grey, grey + "<Color name=''>red</Color>",
            "faulty-entry", "<Color name=''>", "an empty name");
        add("unused color", config, grey, grey + R"(<Color name="Purple">red</Color>)",
            "unused-entry", R"(<Color name="Purple">)", R"(Nothing asks for "Purple")");
        add("internal that looks true", config, grey,
            R"(<Color name="Grey" internal="True">#808080</Color>)", "internal-value",
            R"(<Color name="Grey")", R"("True")", R"("true")");
        add("internal that is a number", config, grey,
            R"(<Color name="Grey" internal="1">#808080</Color>)", "internal-value",
            R"(<Color name="Grey")", R"("1")", R"("true")");
    }

    static void addBrushRows()
    {
        const QByteArray brush = R"(<SolidBrush name="ListBorderBrush">Black</SolidBrush>)";
        add("brush of an unknown color", config, brush,
            R"(<SolidBrush name="ListBorderBrush">Blakc</SolidBrush>)", "unknown-color",
            R"(<SolidBrush name="ListBorderBrush">)", R"(no colour "Blakc"; the )", "Black");
        add("brush of a color in another case", config, brush,
            R"(<SolidBrush name="ListBorderBrush">BLACK</SolidBrush>)", "unknown-color",
            R"(<SolidBrush name="ListBorderBrush">)", R"("BLACK")", R"("Black")");
        add("brush of a literal", config, brush,
            R"(<SolidBrush name="ListBorderBrush">#123456</SolidBrush>)", "unknown-color",
            R"(<SolidBrush name="ListBorderBrush">)", "#123456", "Define a colour");
        add("brush of no kind", config, brush,
            R"(<SolidBrsh name="ListBorderBrush">Black</SolidBrsh>)", "unknown-brush-kind",
            "<SolidBrsh", R"("SolidBrsh" is no kind of brush; the )", "SolidBrush");
        add("brush twice", config, brush,
            brush + R"(<SolidBrush  name="ListBorderBrush">Black)"
                    "</SolidBrush>",
            "duplicate-entry", "<SolidBrush  ", "defined before", "Remove");
        add("unused brush", config, brush,
            brush + R"(<SolidBrush name="ListBorderBrsh">Black</SolidBrush>)", "unused-entry",
            R"(<SolidBrush name="ListBorderBrsh">)", R"("ListBorderBrsh")");
    }

    static void addGradientRows()
    {
        const QByteArray brush = R"(<SolidBrush name="ListBorderBrush">Black</SolidBrush>)";
        const QByteArray gradient = R"(<LinearGradientBrush name="ListBorderBrush" )";
        add("gradient without points", config, brush, gradient + "/>", "faulty-entry", gradient,
            R"(no attribute "startPoint"; the )", "0,1");
        add("gradient of a bad point", config, brush,
            gradient + R"(startPoint="0,0" endPoint="0;1"/>)", "faulty-entry", gradient,
            R"("endPoint" is no point: "0;1")", "0,1");
        const QByteArray sound = gradient + R"(startPoint="0,0" endPoint="0,1">)";
        const QByteArray end = "</LinearGradientBrush>";
        add("gradient of a bad offset", config, brush,
            sound +
                "\n"
                R"(<GradientStop offset="x">Black</GradientStop>)" +
                end,
            "faulty-entry", "<GradientStop", R"(no number: "x")", "from 0 to 1");
        add("gradient of an unknown color", config, brush,
            sound +
                "\n"
                R"(<GradientStop offset="0">Bleck</GradientStop>)" +
                end,
            "unknown-color", "<GradientStop", R"("Bleck")", R"("Black")");
        add("gradient of a far offset", config, brush,
            sound +
                "\n"
                R"(<GradientStop offset="1.5">Black</GradientStop>)" +
                end,
            "invalid-number", "<GradientStop", R"("1.5")");
        add("gradient of an unknown element", config, brush, sound + "<Stop/>" + end,
            "unknown-section", "<Stop/>", R"("Stop")");
    }

    static void addValueRows()
    {
        const QByteArray opacity = R"(<Opacity name="RubberBandOpacity">0.5</Opacity>)";
        const QByteArray factor = R"(<Factor name="LightForegroundDisableFactor">120</Factor>)";
        add("opacity that is none", config, opacity,
            R"(<Opacity name="RubberBandOpacity">half</Opacity>)", "invalid-number", "<Opacity ",
            R"("half")");
        add("opacity out of range", config, opacity,
            R"(<Opacity name="RubberBandOpacity">50</Opacity>)", "invalid-number", "<Opacity ",
            "from 0 to 1");
        add("opacity twice", config, opacity,
            opacity + R"(<Opacity  name="RubberBandOpacity">1</Opacity>)", "duplicate-entry",
            "<Opacity  ", "defined before", "Remove");
        add("unused opacity", config, opacity, opacity + R"(<Opacity name="Glass">1</Opacity>)",
            "unused-entry", R"(<Opacity name="Glass">)", R"("Glass")");
        add("missing opacity", config, opacity, "", "missing-variable", "<Opacities>",
            R"("RubberBandOpacity")");
        add("factor that is none", config, factor,
            R"(<Factor name="LightForegroundDisableFactor">1.2</Factor>)", "invalid-number",
            R"(<Factor name="LightF)", R"("1.2")");
        add("factor of no effect", config, factor,
            R"(<Factor name="LightForegroundDisableFactor">0</Factor>)", "invalid-number",
            R"(<Factor name="LightF)", "at least 1");
        add("radius that is none", config, "<LargeSize>6</LargeSize>", "<LargeSize>6px</LargeSize>",
            "invalid-number", "<LargeSize>6px", R"("6px")");
        add("negative radius", config, "<LargeSize>6</LargeSize>", "<LargeSize>-6</LargeSize>",
            "invalid-number", "<LargeSize>-6", "at least 0");
        add("no small radius", config, "<SmallSize>2</SmallSize>\n", "", "faulty-entry",
            "<CornerRadius>", R"(no "SmallSize"; the 3 sizes after it are lost)");
        add("no medium radius", config, "<MediumSize>4</MediumSize>\n", "", "missing-variable",
            "<CornerRadius>", R"("MediumSize")");
        add("weight that is none", config, "<Weight>Normal", "<Weight>Bolt", "unknown-weight",
            "<Weight>", R"("Bolt")", R"("Bold")");
        add("no family", config, "<Family>DejaVu Sans</Family>\n", "", "invalid-font", "<Font>",
            "no family");
        add("no base size", config, "<BaseSize>9</BaseSize>\n", "", "invalid-font", "<Font>",
            R"(no "BaseSize"; the 2 sizes after it are lost)", "points");
        add("font size with a unit", config, "<MediumSize>10<", "<MediumSize>10pt<", "invalid-font",
            "<MediumSize>10pt", R"("10pt" of "MediumSize" is no whole number; the )", "points");
        add("font size of nothing", config, "<LargeSize>12<", "<LargeSize>0<", "invalid-number",
            "<LargeSize>0", "at least 1");
    }

    static void addSectionRows()
    {
        add("unknown section", config, "<Opacities>", "<Sounds/>\n<Opacities>", "unknown-section",
            "<Sounds/>", R"("Sounds" in "Config")");
        add("section twice", config, "</Config>", "  <Font></Font>\n</Config>", "unknown-section",
            "<Font></Font>", R"(only the first "Font")", "first");
        add("unknown list", config, "</Palette>", "<ColourList/></Palette>", "unknown-section",
            "<ColourList/>", R"("ColourList" in "Palette")", "ColorsList");
        add("unknown entry", config, "</ColorsList>", "<color/></ColorsList>", "unknown-section",
            "<color/>", R"("color" in "ColorsList")", R"("Color")");
        add("unknown part of the font", config, "<Weight>", "<Style>Italic</Style>\n<Weight>",
            "unknown-section", "<Style>", R"("Style" in "Font")");
        add("unknown part of the description", description, "<name>", "<author/><name>",
            "unknown-section", "<author/>", R"("author" in "theme")");
        add("unknown part of the palette", palette, "</QPalette>", "<Role/></QPalette>",
            "unknown-section", "<Role/>", R"("Role" in "QPalette")");
    }

    static void addPaletteRows()
    {
        const QByteArray role = paletteRole("Link", "@White");
        add("unknown role", palette, role, role + "\n" + paletteRole("Backdrop", "red"),
            "unknown-role", R"(<ColorRole role="Backdrop")", R"("Backdrop")");
        add("role in another case", palette, role, role + paletteRole("windowtext", "red"),
            "unknown-role", R"(<ColorRole role="windowtext")", R"("windowtext")",
            R"("WindowText")");
        add("unknown group", palette, role, paletteRole("Link", "@White", "Activ"), "unknown-group",
            R"(<ColorGroup group="Activ")", R"("Activ")", R"("Active")");
        add("unknown brush", palette, role, paletteRole("Link", "@Wite"), "unknown-color",
            R"(<ColorGroup group="All">@Wite)", R"("Wite")", R"("@White")");
        add("no at sign", palette, role, paletteRole("Link", "MainBrush"), "unknown-color",
            R"(<ColorGroup group="All">MainBrush)", R"("MainBrush")", R"("@MainBrush")");
        add("lost groups", palette, role,
            R"(<ColorRole role="Link"><ColorGroup group="Alle">red</ColorGroup>)"
            R"(<ColorGroup group="Active">white</ColorGroup></ColorRole>)",
            "unknown-group", R"(<ColorGroup group="Alle")", "the group after it is lost",
            R"("All")");
        add("role set again", palette, role, paletteRole("Link", "@Black") + role, "unused-entry",
            R"(<ColorGroup group="All">@Black</ColorGroup></ColorRole><)", "set again in line");
        add("count of the roles", palette, role, role + paletteRole("NColorRoles", "red"),
            "unused-entry", R"(<ColorRole role="NColorRoles")", "counts the roles");
    }

    static void addFileRows()
    {
        add("no name", description, "<name>Sound</name>", "", "missing-name", "<theme>", "name");
        add("empty name", description, "Sound", "", "missing-name", "<name>", "empty");
        add("other description", description, "<theme>\n<name>Sound</name>\n</theme>",
            "\n <Theme/>", "missing-name", "<Theme/>", R"("Theme")", R"("theme")");
        add("wrong end tag", palette, "<QPalette>\n", "<QPalette>\n</Palette>\n", "not-well-formed",
            ">\n<ColorRole", "nothing of it is read");
    }

private Q_SLOTS:
    void soundThemeHasNoFindings()
    {
        const SoundTheme theme;
        const QVector<Finding> findings = theme.check();
        QVERIFY2(findings.isEmpty(),
                 qPrintable(places(findings).join(u'\n') +
                            (findings.isEmpty() ? QString() : findings.first().text)));
    }

    void ruleFindsWhatBreaksIt_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QByteArray>("marker");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("suggestion");
        addColorRows();
        addBrushRows();
        addGradientRows();
        addValueRows();
        addSectionRows();
        addPaletteRows();
        addFileRows();
    }

    void ruleFindsWhatBreaksIt()
    {
        QFETCH(QString, file);
        QFETCH(QString, rule);
        QFETCH(QByteArray, marker);
        QFETCH(QString, text);
        QFETCH(QString, suggestion);
        SoundTheme theme;
        const QVector<Finding> findings = spoiled(theme);
        QCOMPARE(places(findings),
                 QStringList(placeOf(file, theme.content(file), marker) + " "_s + rule));
        const Finding &finding = findings.first();
        QCOMPARE(finding.file, theme.path(file));
        QVERIFY(findRule(rule));
        QCOMPARE(finding.severity, findRule(rule)->severity);
        QVERIFY2(finding.text.contains(text), qPrintable(finding.text));
        QVERIFY2(finding.suggestion.contains(suggestion), qPrintable(finding.suggestion));
        QCOMPARE(finding.suggestion.isEmpty(), suggestion.isEmpty());
        QVERIFY(!finding.text.endsWith(u'.'));
    }
};

QTEST_MAIN(CheckRulesTest)
#include "CheckRulesTest.moc"
