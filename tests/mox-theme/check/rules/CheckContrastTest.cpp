#include <common_utils/Contrast.h>

#include <QtGui/QColor>
#include <QtTest/QtTest>

#include <mox-theme/support/SoundTheme.h>
#include <text/Literals.h>

using namespace TARN::ThemeTool;

namespace {

const QString config = QStringLiteral("config.xml");
const QString palette = QStringLiteral("qpaletteMapping.xml");
const QString rule = QStringLiteral("low-contrast");

/// Lets the brush \a name have the colour \a color.
void setBrush(const SoundTheme &theme, const QByteArray &name, const QByteArray &color)
{
    const QByteArray content = theme.content(config);
    const QByteArray start = "<SolidBrush name=\"" + name + "\">";
    const int begin = content.indexOf(start);
    const int end = content.indexOf("</SolidBrush>", begin);
    theme.replace(config, content.mid(begin, end - begin), start + color + "Used");
    theme.replace(config, "<ColorsList>\n",
                  "<ColorsList>\n<Color name=\"" + color + "Used\">#" + color + "</Color>\n");
}

/// Returns the colour that a suggestion names.
QColor suggestedColor(const Finding &finding)
{
    return {finding.suggestion.right(7)};
}

} // namespace

/// Text, graphics and outlines against what they are seen on.
class CheckContrastTest : public QObject
{
    Q_OBJECT

private:
    const QByteArray m_text = "ButtonDangerUncheckedForegroundBrush";
    const QByteArray m_surface = "ButtonDangerUncheckedBackgroundBrush";
    const QByteArray m_border = "InputDangerUncheckedBorderBrush";

private Q_SLOTS:
    void demandDependsOnWhatIsSeen_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("color");
        QTest::addColumn<QString>("text");
        // On black: #747474 has 4.49, #757575 4.55; #595959 has 2.99, #5A5A5A 3.04; #3F3F3F has
        // 1.99 and #404040 has 2.03.
        QTest::newRow("text") << m_text << QByteArray("757575") << "";
        QTest::newRow("text too dark") << m_text << QByteArray("747474")
                                       << "(enabled) has a contrast of 4.4:1, 4.5:1 is needed";
        QTest::newRow("outline") << m_border << QByteArray("5A5A5A") << "";
        QTest::newRow("outline too dark") << m_border << QByteArray("595959")
                                          << "(enabled) has a contrast of 2.9:1, 3.0:1 is needed";
        QTest::newRow("disabled text") << m_text + "Disabled" << QByteArray("404040") << "";
        QTest::newRow("disabled text too dark")
            << m_text + "Disabled" << QByteArray("3F3F3F")
            << "(disabled) has a contrast of 1.9:1, 2.0:1 is needed";
        QTest::newRow("disabled outline") << m_border + "Disabled" << QByteArray("000000") << "";
    }

    void demandDependsOnWhatIsSeen()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, color);
        QFETCH(QString, text);
        const SoundTheme theme;
        setBrush(theme, name, color);
        const QVector<Finding> findings = theme.check();
        if (text.isEmpty()) {
            QCOMPARE(places(findings), QStringList());
            return;
        }
        QCOMPARE(places(findings), QStringList(placeOf(config, theme.content(config),
                                                       "<SolidBrush name=\"" + name + "\"") +
                                               " low-contrast"_s));
        QVERIFY2(findings.first().text.endsWith(text), qPrintable(findings.first().text));
        QVERIFY(findings.first().text.startsWith("\""_s + QString::fromUtf8(name) + "\" on "_s));
    }

    void suggestionIsLegible()
    {
        const SoundTheme theme;
        setBrush(theme, m_text, "700000");
        const QVector<Finding> findings = theme.findings(rule);
        QCOMPARE(findings.size(), 1);
        const QColor suggested = suggestedColor(findings.first());
        QVERIFY2(suggested.isValid(), qPrintable(findings.first().suggestion));
        const double ratio = TARN::Helpers::contrastRatio(suggested, Qt::black);
        // Not more than it takes.
        QVERIFY2(ratio >= 4.5 && ratio < 5, qPrintable(QString::number(ratio)));
    }

    void disabledTextIsSeenOnTheDisabledSurface()
    {
        const SoundTheme theme;
        setBrush(theme, m_surface + "Disabled", "FFFFFF");
        const QVector<Finding> findings = theme.findings(rule);
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.first().text,
                 "\"%1Disabled\" on \"%2Disabled\" (disabled) has a contrast of 1.0:1, 2.0:1 is "
                 "needed"_s.arg(QString::fromUtf8(m_text), QString::fromUtf8(m_surface)));
    }

    /// Half-transparent white is #808080 on black, which is enough, and #404040 at a quarter.
    void translucentTextMixesWithItsSurface()
    {
        const SoundTheme enough;
        setBrush(enough, m_text, "80FFFFFF");
        QCOMPARE(places(enough.check()), QStringList());
        const SoundTheme little;
        setBrush(little, m_text, "40FFFFFF");
        QCOMPARE(little.findings(rule).size(), 1);
        QVERIFY(little.findings(rule).first().text.contains("2.0:1"_s));
    }

    void translucentSurfaceMixesWithTheWindow()
    {
        const SoundTheme theme;
        setBrush(theme, m_surface, "01FFFFFF");
        QCOMPARE(places(theme.check()), QStringList());
    }

    void worstStopOfAGradientCounts()
    {
        const SoundTheme theme;
        const QByteArray name = QByteArray(" name=\"") + m_surface + "\"";
        theme.replace(config, "<SolidBrush" + name + ">Black</SolidBrush>",
                      "<LinearGradientBrush" + name +
                          R"( startPoint="0,0" endPoint="0,1">)"
                          R"(<GradientStop offset="0">Black</GradientStop>)"
                          R"(<GradientStop offset="0.5">Grey</GradientStop>)"
                          R"(<GradientStop offset="1">Black</GradientStop>)"
                          "</LinearGradientBrush>");
        const QVector<Finding> findings = theme.findings(rule);
        QCOMPARE(findings.size(), 1);
        QVERIFY2(findings.first().text.contains("3.9:1"_s), qPrintable(findings.first().text));
    }

    void paletteTextIsCheckedOnItsSurfaces()
    {
        const SoundTheme theme;
        theme.replace(palette, paletteRole("ButtonText", "@White"),
                      paletteRole("ButtonText", "#333333"));
        const QVector<Finding> findings = theme.check();
        QCOMPARE(places(findings), QStringList(placeOf(palette, theme.content(palette),
                                                       R"(<ColorGroup group="All">#333333)") +
                                               " low-contrast"_s));
        QVERIFY(findings.first().text.startsWith(
            "\"ButtonText\" on \"palette/Button\" (active) has"_s));
    }

    void otherGroupsOfThePaletteAreNotSeen()
    {
        const SoundTheme theme;
        theme.replace(palette, paletteRole("ButtonText", "@White"),
                      paletteRole("ButtonText", "@White") +
                          paletteRole("ButtonText", "#333333", "Inactive"));
        QCOMPARE(places(theme.check()), QStringList());
    }

    /// White, were it opaque, but mixed with the black base.
    void highlightIsTranslucent()
    {
        const SoundTheme theme;
        theme.replace(palette, paletteRole("HighlightedText", "@Black"),
                      paletteRole("HighlightedText", "#404040"));
        QStringList texts;
        for (const Finding &finding : theme.findings(rule)) {
            texts.append(finding.text);
        }
        // #404040 has 10.3 on white and 3.6 on #999999.
        QVERIFY2(texts.contains("\"HighlightedText\" on \"palette/Highlight\" (active) has a "
                                "contrast of 3.6:1, 4.5:1 is needed"_s),
                 qPrintable(texts.join(u'\n')));
    }

    /// What is missing has a finding of its own.
    void missingSurfaceIsNoContrast()
    {
        const SoundTheme theme;
        setBrush(theme, m_text, "000000");
        theme.replace(config, "<SolidBrush name=\"" + m_surface + "\">Black</SolidBrush>\n", "");
        QCOMPARE(theme.findings(rule).size(), 0);
        QCOMPARE(theme.findings("missing-variable"_s).size(), 1);
    }
};

QTEST_MAIN(CheckContrastTest)
#include "CheckContrastTest.moc"
