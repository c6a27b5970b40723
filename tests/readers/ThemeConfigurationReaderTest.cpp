#include "readers/ConfigurationFile.h"

#include <readers/ThemeConfigurationReader.h>
#include <resources/ThemeResources.h>

#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/Text.h>

using TARN::ThemeConfigurationReader;
using TARN::ThemeFont;

namespace {

template <typename T>
QStringList names(const QMap<QString, T> &map)
{
    return map.keys();
}

} // namespace

/// The configuration file of a theme.
class ThemeConfigurationReaderTest : public QObject
{
    Q_OBJECT

private:
    ConfigurationFile m_file;

    static QVariantMap publishedFactors()
    {
        return qApp->property("theme_var_internal").toMap().value(text("factors")).toMap();
    }

private Q_SLOTS:
    void completeFile()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='F'>120</Factor>";
        configuration.colors = "<Color name='A'>#102030</Color>";
        configuration.brushes = "<SolidBrush name='B'>A</SolidBrush>";
        configuration.opacities = "<Opacity name='O'>0.5</Opacity>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getColorsMap().value(text("A")), QColor(0x10, 0x20, 0x30));
        QCOMPARE(reader.getBrushesMap().value(text("B")), QBrush(QColor(0x10, 0x20, 0x30)));
        QCOMPARE(reader.getOpacitiesMap(), (QMap<QString, double>{{text("O"), 0.5}}));
        QCOMPARE(reader.getDisabledFactorsMap(), (QMap<QString, int>{{text("F"), 120}}));
        QCOMPARE(reader.getCornerRadiusMap(), (QMap<QString, int>{{text("SmallSize"), 2},
                                                                  {text("BaseSize"), 4},
                                                                  {text("MediumSize"), 6},
                                                                  {text("LargeSize"), 8}}));
        QCOMPARE(reader.getFont().getFont(ThemeFont::Base), QFont(text("DejaVu Sans"), 9));
    }

    void missingFile()
    {
        qApp->setProperty("theme_var_internal", 5);
        const ThemeConfigurationReader reader(m_file.path(text("none.xml")));
        QCOMPARE(reader.getStatus(), 1);
        QVERIFY(reader.getColorsMap().isEmpty());
        QVERIFY(reader.getCornerRadiusMap().isEmpty());
        QCOMPARE(reader.getFont().getFont(ThemeFont::Small), QFont());
        QCOMPARE(qApp->property("theme_var_internal"), QVariant(5));
    }

    void malformedFile()
    {
        ThemeConfiguration configuration;
        configuration.colors = "<Color name='A'>#102030</Color>";
        qApp->setProperty("theme_var_internal", 5);
        const ThemeConfigurationReader reader = m_file.readText(configuration.toXml().chopped(3));
        QCOMPARE(reader.getStatus(), 2);
        QVERIFY(reader.getColorsMap().isEmpty());
        QCOMPARE(reader.getFont().getFont(ThemeFont::Base), QFont());
        QCOMPARE(qApp->property("theme_var_internal"), QVariant(5));
    }

    void missingRootStillPublishesFactors()
    {
        qApp->setProperty("theme_var_internal", 5);
        const ThemeConfigurationReader reader = m_file.readText("<config/>");
        QCOMPARE(reader.getStatus(), 2);
        const QVariantMap published = qApp->property("theme_var_internal").toMap();
        QCOMPARE(published.keys(), QStringList{text("factors")});
        QVERIFY(publishedFactors().isEmpty());
    }

    void firstSectionOfANameCounts()
    {
        const QByteArray rest = "<Font><Family>X</Family><SmallSize>1</SmallSize>"
                                "<BaseSize>2</BaseSize><MediumSize>3</MediumSize>"
                                "<LargeSize>4</LargeSize></Font><Unknown>x</Unknown>"
                                "<CornerRadius><SmallSize>1</SmallSize><BaseSize>1</BaseSize>"
                                "<MediumSize>1</MediumSize><LargeSize>1</LargeSize></CornerRadius>";
        const ThemeConfigurationReader reader = m_file.readText(
            "<Config>" + rest +
            "<Opacities><Opacity name='A'>1</Opacity></Opacities>"
            "<Opacities><Opacity name='B'>1</Opacity></Opacities>"
            "<Palette><ColorsList><Color name='A'>red</Color></ColorsList>"
            "<ColorsList><Color name='B'>red</Color></ColorsList></Palette></Config>");
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(names(reader.getOpacitiesMap()), QStringList{text("A")});
        QCOMPARE(names(reader.getColorsMap()), QStringList({text("A"), text("DisabledA")}));
    }

    void orderOfTheSectionsDoesNotMatter()
    {
        const ThemeConfiguration rest;
        const ThemeConfigurationReader reader = m_file.readText(
            "<Config><Palette>"
            "<BrushesList><SolidBrush name='B'>A</SolidBrush></BrushesList>"
            "<ColorsList><Color name='A'>#202020</Color></ColorsList></Palette>"
            "<CornerRadius>" +
            rest.cornerRadii + "</CornerRadius><Font>" + rest.font +
            "</Font><Factors><Factor name='DarkBackgroundDisableFactor'>200</Factor>"
            "</Factors></Config>");
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getColorsMap().value(text("DisabledA")), QColor(0x40, 0x40, 0x40));
        QCOMPARE(reader.getBrushesMap().value(text("DisabledB")), QBrush(QColor(0x40, 0x40, 0x40)));
    }

    void factorsReplaceAllThatWasPublished()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='A'>1</Factor>";
        qApp->setProperty(
            "theme_var_internal",
            QVariantMap{{text("factors"), QVariantMap{{text("B"), 2}}}, {text("other"), 3}});
        m_file.read(configuration);
        QCOMPARE(qApp->property("theme_var_internal").toMap().keys(), QStringList{text("factors")});
        QCOMPARE(publishedFactors().keys(), QStringList{text("A")});
    }

    void disabledColorsUseTheFactorsOfTheSameFile()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='DarkForegroundDisableFactor'>150</Factor>"
                                "<Factor name='DarkBackgroundDisableFactor'>200</Factor>"
                                "<Factor name='LightForegroundDisableFactor'>120</Factor>"
                                "<Factor name='LightBackgroundDisableFactor'>300</Factor>";
        configuration.colors = "<Color name='A'>#202020</Color>"
                               "<Color name='ButtonForegroundColor'>#202020</Color>"
                               "<Color name='foreground'>#e0e0e0</Color>"
                               "<Color name='Foreground'>#e0e0e0</Color>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        const QColor dark(0x20, 0x20, 0x20);
        const QColor light(0xe0, 0xe0, 0xe0);
        const auto &colors = reader.getColorsMap();
        QCOMPARE(colors.value(text("DisabledA")), dark.lighter(200));
        QCOMPARE(colors.value(text("DisabledButtonForegroundColor")), dark.lighter(150));
        QCOMPARE(colors.value(text("Disabledforeground")), light.darker(300));
        QCOMPARE(colors.value(text("DisabledForeground")), light.darker(120));
        QCOMPARE(publishedFactors().value(text("DarkForegroundDisableFactor")), QVariant(150));
    }

    void factorsAreRead_data()
    {
        QTest::addColumn<QByteArray>("factors");
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("none") << QByteArray() << 0 << QStringList();
        QTest::newRow("other elements are passed over")
            << QByteArray("<Other/><Factor name='A'>1</Factor><!-- x -->") << 0
            << QStringList{text("A")};
        QTest::newRow("no name") << QByteArray("<Factor name='A'>1</Factor><Factor>2</Factor>"
                                               "<Factor name='C'>3</Factor>")
                                 << 2 << QStringList{text("A")};
        QTest::newRow("duplicate")
            << QByteArray("<Factor name='A'>1</Factor><Factor name='A'>2</Factor>"
                          "<Factor name='C'>3</Factor>")
            << 2 << QStringList{text("A")};
    }

    void factorsAreRead()
    {
        QFETCH(QByteArray, factors);
        QFETCH(int, status);
        QFETCH(QStringList, names);
        ThemeConfiguration configuration;
        configuration.factors = factors;
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), status);
        QCOMPARE(reader.getDisabledFactorsMap().keys(), names);
        QCOMPARE(publishedFactors().keys(), names);
        for (const QVariant &factor : publishedFactors()) {
            QCOMPARE(factor.userType(), int(QMetaType::Int));
        }
    }

    void numbersThatAreNone()
    {
        ThemeConfiguration configuration;
        configuration.factors = "<Factor name='A'>abc</Factor><Factor name='B'>1.5</Factor>";
        configuration.opacities = "<Opacity name='A'>abc</Opacity><Opacity name='B'/>";
        configuration.cornerRadii =
            "<SmallSize>x</SmallSize><BaseSize/><MediumSize>1.5</MediumSize>"
            "<LargeSize>-3</LargeSize>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(reader.getDisabledFactorsMap(),
                 (QMap<QString, int>{{text("A"), 0}, {text("B"), 0}}));
        QCOMPARE(reader.getOpacitiesMap(),
                 (QMap<QString, double>{{text("A"), 0.0}, {text("B"), 0.0}}));
        QCOMPARE(reader.getCornerRadiusMap().value(text("SmallSize"), 9), 0);
        QCOMPARE(reader.getCornerRadiusMap().value(text("MediumSize"), 9), 0);
        QCOMPARE(reader.getCornerRadiusMap().value(text("LargeSize")), -3);
    }

    void otherElementsArePassedOver()
    {
        ThemeConfiguration configuration;
        configuration.colors = "<color name='B'>red</color><Color name='A'>red</Color><Other/>";
        configuration.opacities = "<Factor name='B'>1</Factor><Opacity name='A'>1</Opacity>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 0);
        QCOMPARE(names(reader.getColorsMap()), QStringList({text("A"), text("DisabledA")}));
        QCOMPARE(names(reader.getOpacitiesMap()), QStringList{text("A")});
    }

    void opacitiesAreRead()
    {
        ThemeConfiguration configuration;
        configuration.opacities = "<Opacity name='A'>0.25</Opacity><Opacity name='A'>1</Opacity>"
                                  "<Opacity name='B'>1</Opacity>";
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), 2);
        QCOMPARE(reader.getOpacitiesMap(), (QMap<QString, double>{{text("A"), 0.25}}));
    }

    void cornerRadiiAreRead_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("keys");
        const QByteArray small = "<SmallSize>1</SmallSize>";
        const QByteArray base = "<BaseSize>2</BaseSize>";
        const QByteArray medium = "<MediumSize>3</MediumSize>";
        const QByteArray large = "<LargeSize>4</LargeSize>";
        const QStringList all{text("BaseSize"), text("LargeSize"), text("MediumSize"),
                              text("SmallSize")};
        QTest::newRow("complete") << small + base + medium + large << 0 << all;
        QTest::newRow("any order") << large + medium + base + small << 0 << all;
        QTest::newRow("no medium") << small + base + large << 0 << all;
        QTest::newRow("no small") << base + medium + large << 2 << QStringList();
        QTest::newRow("no base") << small + medium + large << 2 << QStringList{text("SmallSize")};
        QTest::newRow("no large") << small + base + medium << 2
                                  << QStringList{text("BaseSize"), text("MediumSize"),
                                                 text("SmallSize")};
    }

    void cornerRadiiAreRead()
    {
        QFETCH(QByteArray, section);
        QFETCH(int, status);
        QFETCH(QStringList, keys);
        ThemeConfiguration configuration;
        configuration.cornerRadii = section;
        const ThemeConfigurationReader reader = m_file.read(configuration);
        QCOMPARE(reader.getStatus(), status);
        QCOMPARE(reader.getCornerRadiusMap().keys(), keys);
        if (keys.contains(text("MediumSize"))) {
            QCOMPARE(reader.getCornerRadiusMap().value(text("MediumSize")),
                     section.contains("Medium") ? 3 : 0);
        }
    }

    void missingSectionsAreFaulty()
    {
        const ThemeConfiguration configuration;
        QByteArray withoutRadii = configuration.toXml();
        withoutRadii.replace("CornerRadius", "Corners");
        QCOMPARE(m_file.readText(withoutRadii).getStatus(), 2);
        QByteArray withoutFont = configuration.toXml();
        withoutFont.replace("<Family>", "<Families>").replace("</Family>", "</Families>");
        const ThemeConfigurationReader reader = m_file.readText(withoutFont);
        QCOMPARE(reader.getStatus(), 2);
        QCOMPARE(reader.getFont().getFont(ThemeFont::Base), QFont());
        QCOMPARE(reader.getCornerRadiusMap().size(), 4);
        QCOMPARE(
            m_file
                .readText("<Config><CornerRadius><SmallSize>1</SmallSize><BaseSize>1</BaseSize>"
                          "<LargeSize>1</LargeSize></CornerRadius><Font><Family/><SmallSize>1"
                          "</SmallSize><BaseSize>1</BaseSize><MediumSize>1</MediumSize>"
                          "<LargeSize>1</LargeSize></Font></Config>")
                .getStatus(),
            0);
    }
};

QTEST_MAIN(ThemeConfigurationReaderTest)
#include "ThemeConfigurationReaderTest.moc"
